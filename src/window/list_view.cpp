// The list's painting, mouse and keyboard, and finding by typing.
#include "window/list_view.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "window/action_label.h"
#include "window/entry_delegate.h"
#include "window/theme.h"

namespace vorlund {

namespace {

/// What a key types, "" for none. Control and Alt together are the third shift of many keyboards.
QString typed_text(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const bool plain = held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
  return plain && !event.text().isEmpty() && event.text().front().isPrint() ? event.text() : QString();
}

}  // namespace

ListView::ListView(const QString& name, const QString& caption, const std::vector<std::string>& texts,
                   const Finder& finder, QWidget* parent, Kind kind)
    : QListView(parent), model_(texts, finder), kind_(kind) {
  set_up(name, caption);
}

ListView::ListView(const QString& name, const QString& caption, const std::vector<Label>& labels,
                   const Finder& finder, QWidget* parent)
    : QListView(parent), model_(labels, finder), kind_(Kind::kLabels) {
  set_up(name, caption);
}

void ListView::set_up(const QString& name, const QString& caption) {
  setObjectName(name);
  setAccessibleName(caption);
  theme::keep_font(*this);
  setModel(&model_);
  const auto cell =
      kind_ == Kind::kList ? EntryDelegate::CurrentCell::kPlain : EntryDelegate::CurrentCell::kFramed;
  setItemDelegate(new EntryDelegate(*this, cell));
  viewport()->setAttribute(Qt::WA_Hover);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
  setCursor(Qt::ArrowCursor);
  find_box_ = new QLabel(this);
  find_box_->setObjectName(name + "Find");
  find_box_->setTextFormat(Qt::PlainText);
  find_box_->setAttribute(Qt::WA_TransparentForMouseEvents);
  find_box_->setStyleSheet(
      QStringLiteral("background: %1; color: %2; border: 1px solid %2; padding: 3px 8px;")
          .arg(theme::kField.name(), theme::kAccent.name()));
  find_box_->hide();
}

void ListView::stand_on_picture() {
  setFrameShape(QFrame::NoFrame);
  setStyleSheet("QListView { background: transparent; border: none; }");
  viewport()->setCursor(Qt::PointingHandCursor);
}

void ListView::apply(int selected) {
  const bool others = model_.refresh();
  show_typed();
  show_selected(selected, others);
  setAccessibleDescription(empty_words());
}

QString ListView::empty_words() const {
  if (model_.rowCount() > 0) return {};
  const QString typed = QString::fromStdString(model_.finder().typed);
  return typed.isEmpty() ? empty_text_ : QStringLiteral("No name has \u201C%1\u201D in it").arg(typed);
}

void ListView::show_selected(int selected, bool others) {
  const QModelIndex wanted = model_.row_of(selected);
  const bool moved = others || selected != selected_;
  selected_ = selected;
  if (wanted.isValid()) {
    if (!selectionModel()->isSelected(wanted)) {
      selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
    }
    if (!moved && (kind_ == Kind::kLabels || currentIndex() == wanted)) return;
    selectionModel()->setCurrentIndex(wanted, QItemSelectionModel::NoUpdate);
    scrollTo(wanted);
    return;
  }
  clearSelection();
  if (!model_.finder().typed.empty()) {
    // Enter then acts on the first that was found.
    if (moved) selectionModel()->setCurrentIndex(model_.index(0), QItemSelectionModel::NoUpdate);
  } else if (kind_ == Kind::kList) {
    selectionModel()->clearCurrentIndex();
  }
}

QRect ListView::reach(int index) {
  const QModelIndex row = model_.row_of(index);
  if (!row.isValid()) return {};
  scrollTo(row);
  return visualRect(row);
}

void ListView::show_typed() {
  const QString typed = QString::fromStdString(model_.finder().typed);
  find_box_->setVisible(!typed.isEmpty() && (hasFocus() || !typed_when_focused_));
  if (find_box_->isHidden()) return;
  const QString shown = QStringLiteral("Find: ") + typed;
  find_box_->setAccessibleName(shown);
  const QSize wanted(find_box_->fontMetrics().horizontalAdvance(shown) + 20,
                     find_box_->fontMetrics().height() + 10);
  const QSize size = wanted.boundedTo(viewport()->size());
  find_box_->setText(find_box_->fontMetrics().elidedText(shown, Qt::ElideLeft, size.width() - 18));
  const QPoint corner = viewport()->geometry().bottomRight();
  find_box_->setGeometry(QRect(corner - QPoint(size.width() - 1, size.height() - 1), size));
  find_box_->raise();
}

void ListView::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  theme::draw_empty_words(*viewport(), empty_words());
}

void ListView::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  show_typed();
}

bool ListView::act(const QModelIndex& row) {
  if (row.isValid() && on_select) on_select(model_.entry(row));
  return row.isValid();
}

void ListView::mousePressEvent(QMouseEvent* event) {
  const QModelIndex row = indexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !row.isValid()) {
    event->setAccepted(kind_ == Kind::kList || row.isValid());
    return;
  }
  pressed_ = row;
  if (kind_ == Kind::kList) act(row);
  if (kind_ == Kind::kFolders) setCurrentIndex(row);
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
  if (kind_ != Kind::kLabels || event->button() != Qt::LeftButton || !pressed_.isValid()) return;
  const QModelIndex row = indexAt(event->position().toPoint());
  if (row != pressed_) return;
  selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
  act(row);
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex row = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && row.isValid() && row == pressed_ && on_double_click) {
    pressed_ = QModelIndex();
    on_double_click();
  } else if (kind_ == Kind::kFolders && row == pressed_) {
    pressed_ = QModelIndex();
    act(row);
  } else if (kind_ == Kind::kLabels || row != currentIndex()) {
    mousePressEvent(event);
  }
}

QItemSelectionModel::SelectionFlags ListView::selectionCommand(const QModelIndex& index,
                                                               const QEvent* event) const {
  // In labels the frame moves alone; what is selected is the model's business.
  return kind_ == Kind::kLabels ? QItemSelectionModel::NoUpdate : QListView::selectionCommand(index, event);
}

void ListView::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  setAttribute(Qt::WA_InputMethodEnabled);
  show_typed();
  // Focus alone selects nothing: the first arrow key is to reach the first entry.
  if (kind_ == Kind::kList && !selectionModel()->hasSelection()) selectionModel()->clearCurrentIndex();
}

void ListView::focusOutEvent(QFocusEvent* event) {
  QListView::focusOutEvent(event);
  show_typed();
}

void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  setAttribute(Qt::WA_InputMethodEnabled);  // the base class takes it for a list that can't be typed into
}

bool ListView::find(const QKeyEvent& event) {
  Finder finder = model_.finder();
  if (event.key() == Qt::Key_Escape) {
    if (!finder.clear()) return false;
  } else if (event.key() == Qt::Key_Backspace) {
    if (finder.typed.empty()) return false;
    finder.erase_last();
  } else {
    const QString text = typed_text(event);
    if (text.isEmpty() || (text == " " && finder.typed.empty())) return false;
    finder.add(text.toStdString());
  }
  if (on_find) on_find(finder.typed);
  return true;
}

void ListView::keyPressEvent(QKeyEvent* event) {
  if (find(*event)) return;
  if (event->key() == Qt::Key_Escape) {
    event->ignore();
    return;
  }
  const QModelIndex before = currentIndex();
  if (activates(*event)) {
    if (!event->isAutoRepeat()) act(before);
    return;
  }
  if (event->key() == Qt::Key_Delete && on_delete) {
    on_delete();
    return;
  }
  QListView::keyPressEvent(event);
  const QModelIndex now = currentIndex();
  const bool acts = kind_ == Kind::kList || (arrows_act && arrows_act());
  if (acts && now.isValid() && now != before) act(now);
}

void ListView::inputMethodEvent(QInputMethodEvent* event) {
  if (event->commitString().isEmpty() || !on_find) return;
  Finder finder = model_.finder();
  finder.add(event->commitString().toStdString());
  on_find(finder.typed);
}

ShownElement find_element(const QWidget& window, const QString& name) {
  const qsizetype bracket = name.indexOf('(');
  if (bracket < 0) return {};
  auto* list = dynamic_cast<ListView*>(window.findChild<QWidget*>(name.left(bracket)));
  return {list, name.mid(bracket + 1).chopped(1).toInt()};
}

}  // namespace vorlund
