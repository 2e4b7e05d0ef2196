// Painting, placing and dragging of a pane.
#include "window/pane_frame.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "window/action_label.h"
#include "window/theme.h"

namespace vorlund {

PaneFrame::PaneFrame(const QString& name, FreeArea free_area, QWidget* parent)
    : QWidget(parent), free_area_(free_area), content_(new QVBoxLayout(this)) {
  setObjectName(name);
  setCursor(free_area == FreeArea::kMoves ? Qt::SizeAllCursor : Qt::PointingHandCursor);
  content_->setSpacing(10);
  hide();
}

int PaneFrame::title_height() const {
  return caption_.isEmpty() ? 0 : fontMetrics().height() * 2;
}

QSize PaneFrame::least_size() {
  content_->activate();
  return minimumSizeHint();
}

void PaneFrame::apply(const Frame& frame) {
  caption_ = QString::fromStdString(frame.caption);
  setAccessibleName(caption_);
  content_->setContentsMargins(14, title_height() + 12, 14, 14);
  QRect place = theme::pixels(frame.place);
  const QSize room = parentWidget()->size();
  place.setSize(place.size().boundedTo(room).expandedTo(minimumSizeHint().boundedTo(room)));
  if (!pressed_) {
    place.moveTo(within_reach(place.topLeft(), place.width()));
    setGeometry(place);
  }
  setVisible(frame.visible);
}

/// The nearest corner at which enough of the pane is left inside the window to take hold of it.
QPoint PaneFrame::within_reach(const QPoint& corner, int width) const {
  const QSize room = parentWidget()->size();
  return {std::clamp(corner.x(), 80 - width, std::max(room.width() - 80, 0)),
          std::clamp(corner.y(), 0, std::max(room.height() - 40, 0))};
}

void PaneFrame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  theme::draw_plate(painter, rect(), theme::kPanel, theme::kEdge);
  if (caption_.isEmpty()) return;
  const QRect title(1, 1, width() - 2, title_height());
  theme::draw_plate(painter, title, theme::kPanelTitle, QColor(0, 0, 0, 0));
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(theme::kText);
  painter.drawText(title.adjusted(13, 0, -13, 0), Qt::AlignVCenter | Qt::AlignLeft, caption_);
}

void PaneFrame::mousePressEvent(QMouseEvent* event) {
  pressed_ = true;
  pressed_at_ = event->globalPosition();
  place_at_press_ = pos();
  if (on_press) on_press(to_model(event->button(), event->modifiers(), event->position()));
}

void PaneFrame::mouseMoveEvent(QMouseEvent* event) {
  if (pressed_ && free_area_ == FreeArea::kMoves) {
    move(dragged_to(*event));
  }
}

QPoint PaneFrame::dragged_to(const QMouseEvent& event) const {
  return within_reach(place_at_press_ + (event.globalPosition() - pressed_at_).toPoint(), width());
}

void PaneFrame::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && on_escape) {
    on_escape();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void PaneFrame::mouseReleaseEvent(QMouseEvent* event) {
  if (!pressed_) return;
  pressed_ = false;
  const bool click = rect().contains(event->position().toPoint()) && event->button() == Qt::LeftButton;
  if (!on_release || (free_area_ == FreeArea::kHides && !click)) return;
  const QPointF pressed = pressed_at_ - parentWidget()->mapToGlobal(QPointF(place_at_press_));
  const QPointF moved = free_area_ == FreeArea::kMoves
                            ? pressed + QPointF(dragged_to(*event) - place_at_press_)
                            : event->position();
  on_release(to_model(event->button(), event->modifiers(), moved));
}

}  // namespace vorlund
