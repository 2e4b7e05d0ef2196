// Paints the entries of tables and lists alike: selection, hover, colour, and text cut off with dots.
#pragma once

#include <QAbstractItemView>
#include <QStyledItemDelegate>

namespace vorlund {

/// Draws one line of text a cell. The cell that the keyboard acts on is framed where cells are reached one by
/// one.
class EntryDelegate : public QStyledItemDelegate {
 public:
  enum class CurrentCell { kPlain, kFramed };

  /// Role of a short text that stands at the right of the entry and is never cut off.
  static constexpr int kMarkRole = Qt::UserRole + 1;

  static constexpr int kMargin = 7;  ///< pixels left and right of the text

  EntryDelegate(QAbstractItemView& view, CurrentCell current_cell);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  QAbstractItemView& view_;
  CurrentCell current_cell_;
};

}  // namespace vorlund
