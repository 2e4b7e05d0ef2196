// Painting and events of a label that acts.
#include "window/action_label.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "window/theme.h"

namespace vorlund {

namespace {

constexpr double kDimmed = 0.4;

int key_state(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) + (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

/// A mouse may have further buttons, which go back and forth in other programs: here they do nothing.
bool has_a_use(Qt::MouseButton button) {
  return button == Qt::LeftButton || button == Qt::RightButton || button == Qt::MiddleButton;
}

}  // namespace

bool activates(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
}

MouseEvent to_model(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, const QPointF& position) {
  MouseEvent event;
  event.button = button == Qt::RightButton    ? MouseButton::kRight
                 : button == Qt::MiddleButton ? MouseButton::kMiddle
                                              : MouseButton::kLeft;
  event.shift = key_state(modifiers);
  event.x = theme::twips(position.x());
  event.y = theme::twips(position.y());
  return event;
}

ActionLabel::ActionLabel(const QString& name, Look look, QWidget* parent, Drag drag)
    : QAbstractButton(parent), look_(look), drag_(drag), text_colour_(theme::kText) {
  setObjectName(name);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setAttribute(Qt::WA_Hover);
  // Mouse and keys are handled below; this is the press of an assistive tool.
  connect(this, &QAbstractButton::clicked, this, [this] { command(Qt::NoModifier); });
  if (look == Look::kHelp) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
  }
}

void ActionLabel::apply(const Label& label) {
  const QString caption = QString::fromStdString(label.caption);
  if (text() != caption) {
    setText(caption);
    setAccessibleName(caption);
    updateGeometry();
  }
  const QColor colour = QColor::fromRgb(label.text_colour);
  if (text_colour_ != colour) {
    text_colour_ = colour;
    update();
  }
  setVisible(label.visible);
}

QSize ActionLabel::sizeHint() const {
  QFont widest = font();
  widest.setBold(true);  // a caption that is marked or golden for a while keeps its size
  const QFontMetrics metrics(widest);
  if (look_ == Look::kHelp) return {metrics.averageCharWidth() * 40, metrics.height() * 2};
  return {metrics.horizontalAdvance(text()) + 2 * metrics.height(), metrics.height() * 2};
}

/// The program's own captions are never cut, names from the store are.
QSize ActionLabel::minimumSizeHint() const {
  const bool own = look_ == Look::kButton || look_ == Look::kPrimary;
  return own ? sizeHint() : QAbstractButton::minimumSizeHint();
}

void ActionLabel::set_look(Look look) {
  if (look_ == look) return;
  look_ = look;
  updateGeometry();
  update();
}

void ActionLabel::set_dimmed(bool dimmed) {
  if (dimmed_ == dimmed) return;
  dimmed_ = dimmed;
  update();
}

int ActionLabel::heightForWidth(int width) const {
  if (look_ != Look::kHelp) return -1;
  const QFontMetrics metrics = fontMetrics();
  const QRect room(0, 0, width - metrics.height() * 4 / 3, 10000);
  return metrics.boundingRect(room, Qt::AlignLeft | Qt::TextWordWrap, text()).height() + metrics.height();
}

QColor ActionLabel::fill() const {
  const bool lit = isEnabled() && (underMouse() || isDown());
  switch (look_) {
    case Look::kPlate:
      return lit ? theme::kPlateHover : theme::kPlate;
    case Look::kButton:
      return lit ? theme::kButtonHover : theme::kButton;
    case Look::kHelp:
      return lit ? theme::kButton : theme::kPanelTitle;
    case Look::kPrimary:
      return lit ? theme::kAccent.lighter(115) : theme::kAccent;
    case Look::kRow:
      return lit ? theme::kPlateHover : QColor(0, 0, 0, 0);
  }
  return {};
}

QRect ActionLabel::text_area() const {
  const int margin = fontMetrics().height() * 2 / 3;
  return rect().adjusted(margin, 0, -margin, 0);
}

bool ActionLabel::marked() const {
  return text_colour_ != theme::kText && text_colour_ != QColor(Qt::white);
}

QFont ActionLabel::shown_font() const {
  QFont shown = font();
  shown.setBold(marked() || look_ == Look::kPrimary);
  return shown;
}

bool ActionLabel::wraps() const {
  return look_ == Look::kHelp || text_area().height() >= 2 * fontMetrics().lineSpacing() + 6;
}

bool ActionLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && tool_tip_now) setToolTip(theme::literal(tool_tip_now()));
  const bool cut = !wraps() && QFontMetrics(shown_font()).horizontalAdvance(text()) > text_area().width();
  if (event->type() == QEvent::ToolTip && cut && toolTip().isEmpty()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), theme::literal(text()), this);
    return true;
  }
  return QAbstractButton::event(event);
}

void ActionLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool working = window()->property(theme::kWorkingProperty).toBool();
  if (dimmed_ && !hasFocus()) painter.setOpacity(kDimmed);
  if (working && text() != QLatin1String(kWorkingCaption)) painter.setOpacity(kDimmed);
  const QColor edge = look_ == Look::kPlate ? theme::kPlateEdge : QColor(0, 0, 0, 0);
  // A golden edge would not be seen round the golden main command.
  const QColor focus_edge = look_ == Look::kPrimary ? theme::kText : theme::kAccent;
  theme::draw_plate(painter, rect(), fill(), hasFocus() ? focus_edge : edge);
  painter.setPen(look_ == Look::kPrimary ? theme::kField : marked() ? text_colour_ : theme::kText);
  painter.setFont(shown_font());
  const QRect area = text_area();
  if (wraps()) {
    painter.drawText(area, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap, text());
    return;
  }
  const bool centred = look_ == Look::kButton || look_ == Look::kPrimary;
  const QString shown = painter.fontMetrics().elidedText(text(), Qt::ElideRight, area.width());
  const Qt::Alignment alignment = Qt::AlignVCenter | (centred ? Qt::AlignHCenter : Qt::AlignLeft);
  painter.drawText(area, static_cast<int>(alignment), shown);
}

void ActionLabel::mousePressEvent(QMouseEvent* event) {
  if (held_ != Qt::NoButton || !has_a_use(event->button())) return;
  held_ = event->button();
  pressed_at_ = event->globalPosition();
  place_at_press_ = pos();
  setDown(held_ == Qt::LeftButton);
  if (on_press) on_press(to_model(held_, event->modifiers(), event->position()));
}

void ActionLabel::mouseMoveEvent(QMouseEvent* event) {
  if (held_ == Qt::RightButton && drag_ == Drag::kRightButton) {
    move(place_at_press_ + (event->globalPosition() - pressed_at_).toPoint());
  } else if (held_ == Qt::LeftButton) {
    setDown(rect().contains(event->position().toPoint()));
  }
}

void ActionLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != held_) return;
  held_ = Qt::NoButton;
  setDown(false);
  // While it is dragged the label moves under the pointer: its place at the press is what positions count
  // from.
  const QPointF position =
      event->button() == Qt::RightButton && drag_ == Drag::kRightButton
          ? event->globalPosition() - parentWidget()->mapToGlobal(QPointF(place_at_press_))
          : event->position();
  const bool inside = rect().contains(position.toPoint());
  if (drag_ == Drag::kNo && event->button() != Qt::LeftButton) return;
  if (!inside && event->button() != Qt::RightButton) return;
  if (on_release) on_release(to_model(event->button(), event->modifiers(), position));
}

void ActionLabel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (on_double_click && event->button() == Qt::LeftButton) {
    on_double_click();
  } else {
    mousePressEvent(event);
  }
}

void ActionLabel::keyPressEvent(QKeyEvent* event) {
  if (activates(*event)) {
    if (!event->isAutoRepeat()) command(event->modifiers());
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

void ActionLabel::command(Qt::KeyboardModifiers modifiers) {
  if (on_release) on_release(to_model(Qt::LeftButton, modifiers, QPointF(rect().center())));
}

void ActionLabel::keyReleaseEvent(QKeyEvent* event) {
  if (!activates(*event)) QAbstractButton::keyReleaseEvent(event);
}

void ActionLabel::enterEvent(QEnterEvent* event) {
  update();
  QAbstractButton::enterEvent(event);
}

void ActionLabel::leaveEvent(QEvent* event) {
  update();
  QAbstractButton::leaveEvent(event);
}

}  // namespace vorlund
