// What the tables have in common: they are lists of rows.
#pragma once

#include <QTableView>
#include <algorithm>

namespace vorlund {

/// A table in which Home and End move to the first and the last row; the column stays.
class RowTable : public QTableView {
 public:
  using QTableView::QTableView;

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override {
    if (model() == nullptr || (action != MoveHome && action != MoveEnd)) {
      return QTableView::moveCursor(action, modifiers);
    }
    return model()->index(action == MoveHome ? 0 : model()->rowCount() - 1,
                          std::max(currentIndex().column(), 0));
  }
};

}  // namespace vorlund
