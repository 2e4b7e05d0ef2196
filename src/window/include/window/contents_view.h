// The pane of the game folder's contents on screen: kinds, filter, table, and the chain of the selected file.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "window/pane_view.h"

namespace vorlund {

/// The lines of the pane as a Qt model; nothing is copied.
class ContentsModel : public QAbstractTableModel {
 public:
  explicit ContentsModel(const ContentsPane& pane) : pane_(pane) {}

  /// Takes over other lines, or another order.
  void refresh();

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const ContentsPane& pane_;
  int generation_ = -1;
  int rows_ = 0;
};

/// View of ContentsPane.
class ContentsView : public PaneView {
 public:
  ContentsView(Form1& form, const Perform& perform, QWidget* parent);

 private:
  QTableView* make_table();
  QWidget* make_filter();
  void follow_lines();

  ContentsModel model_;
  QTableView* table_ = nullptr;
  bool following_ = false;
};

}  // namespace vorlund
