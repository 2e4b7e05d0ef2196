// The list model over texts, and the list's painting, mouse and keyboard.
#include "window/list_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "window/entry_delegate.h"
#include "window/theme.h"

namespace vorlund {

void TextListModel::refresh() {
  const int count = static_cast<int>(texts_.size());
  if (count == count_) {
    if (count_ > 0) emit dataChanged(index(0), index(count_ - 1));
    return;
  }
  beginResetModel();
  count_ = count;
  endResetModel();
}

int TextListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

QVariant TextListModel::data(const QModelIndex& index, int role) const {
  const std::size_t row = static_cast<std::size_t>(index.row());
  if (!index.isValid() || row >= texts_.size()) return {};
  if (role == Qt::DisplayRole) return QString::fromStdString(texts_[row]);
  if (role == Qt::ToolTipRole) return theme::literal(QString::fromStdString(texts_[row]));
  return {};
}

ListView::ListView(const QString& name, const QString& caption, const std::vector<std::string>& texts,
                   QWidget* parent)
    : QListView(parent), model_(texts) {
  setObjectName(name);
  setAccessibleName(caption);
  theme::keep_font(*this);
  setModel(&model_);
  setItemDelegate(new EntryDelegate(*this, EntryDelegate::CurrentCell::kPlain));
  viewport()->setAttribute(Qt::WA_Hover);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
  setCursor(Qt::ArrowCursor);
}

void ListView::apply(int selected) {
  model_.refresh();
  const QModelIndex wanted = model_.index(selected);
  if (currentIndex() == wanted && (!wanted.isValid() || selectionModel()->isSelected(wanted))) return;
  if (wanted.isValid()) {
    setCurrentIndex(wanted);
    scrollTo(wanted);
  } else {
    clearSelection();
    selectionModel()->clearCurrentIndex();
  }
}

void ListView::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (model_.rowCount() > 0 || empty_text_.isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(theme::kQuietText);
  painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap,
                   empty_text_);
}

void ListView::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && index.isValid() && on_select) on_select(index.row());
}

void ListView::mouseMoveEvent(QMouseEvent*) {}

void ListView::mouseReleaseEvent(QMouseEvent*) {}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (indexAt(event->position().toPoint()) != currentIndex()) mousePressEvent(event);
}

void ListView::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  // Focus alone selects nothing: the first arrow key is to reach the first entry.
  if (!selectionModel()->hasSelection()) selectionModel()->clearCurrentIndex();
}

void ListView::keyPressEvent(QKeyEvent* event) {
  const bool activates =
      event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
  const QModelIndex before = currentIndex();
  if (activates) {
    if (before.isValid() && on_select) on_select(before.row());
    return;
  }
  if (event->key() == Qt::Key_Delete && on_delete) {
    on_delete();
    return;
  }
  QListView::keyPressEvent(event);
  const QModelIndex now = currentIndex();
  if (now.isValid() && now != before && on_select) on_select(now.row());
}

}  // namespace vorlund
