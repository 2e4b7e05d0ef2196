// Painting of one entry of a table or a list.
#include "window/entry_delegate.h"

#include "window/entry_model.h"
#include "window/theme.h"

namespace vorlund {

EntryDelegate::EntryDelegate(QAbstractItemView& view, CurrentCell current_cell)
    : QStyledItemDelegate(&view), view_(view), current_cell_(current_cell) {}

void EntryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  if (selected) {
    painter->fillRect(option.rect, theme::kButtonHover);
  } else if (option.state.testFlag(QStyle::State_MouseOver)) {
    painter->fillRect(option.rect, theme::kPanelTitle);
  }
  const QVariant coloured = index.data(Qt::ForegroundRole);
  const QColor colour = coloured.isValid() ? coloured.value<QColor>() : theme::kText;
  QFont font = option.font;
  font.setBold(index.data(EntryModel::kMarkedRole).toBool());
  painter->setFont(font);
  painter->setPen(selected && colour == theme::kQuietText ? theme::kText : colour);
  QRect room = option.rect.adjusted(kMargin, 0, -kMargin, 0);
  if (const QString mark = index.data(kMarkRole).toString(); !mark.isEmpty()) {
    painter->drawText(room, Qt::AlignVCenter | Qt::AlignRight, mark);
    room.setRight(room.right() - option.fontMetrics.horizontalAdvance(mark) - kMargin);
  }
  painter->drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                    painter->fontMetrics().elidedText(index.data(Qt::DisplayRole).toString(),
                                                      option.textElideMode, room.width()));
  if (current_cell_ == CurrentCell::kFramed && index == view_.currentIndex() && view_.hasFocus()) {
    painter->setPen(theme::kAccent);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
  }
}

QSize EntryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int width = option.fontMetrics.horizontalAdvance(index.data(Qt::DisplayRole).toString());
  return {width + 2 * kMargin, option.fontMetrics.height() * 8 / 5};
}

}  // namespace vorlund
