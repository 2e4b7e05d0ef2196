// Shows a table of cells: the header row as the table's header, hidden rows left out.
#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "base/cell_table.h"
#include "window/row_table.h"

namespace vorlund {

/// The shown data rows of a table as a Qt model; nothing is copied.
class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(const CellTable& grid, QObject* parent = nullptr)
      : QAbstractTableModel(parent), grid_(grid) {}

  /// Takes over what has changed in the grid; true where other rows are shown now.
  bool refresh();

  /// Grid row of a table row, and table row of a grid row (-1 where it is hidden).
  [[nodiscard]] int grid_row(int table_row) const;
  [[nodiscard]] int table_row(int grid_row) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Says of a cell whether a click cycles its value; such cells look as if they did.
  std::function<bool(int row, int column)> cycles;

  /// Explains a column in the tooltip of its header.
  std::function<QString(int column)> explains;

  /// The mark at the right of a row's last cell, and what its tooltips say of it; "" for none.
  std::function<std::string(int row)> mark;
  std::function<std::string(int row)> mark_in_words;

 private:
  [[nodiscard]] QString tool_tip(int row, int column) const;

  const CellTable& grid_;
  std::vector<int> shown_;
  int columns_ = 0;
};

/// A table whose current cell is the grid's. Clicks, arrow keys, Enter and Space are handed back.
class GridView : public RowTable {
 public:
  /// `caption` is what assistive tools call the table; `widths` are those of its first columns, in twips. The
  /// grid and the widths outlive the view.
  GridView(const QString& name, const QString& caption, const CellTable& grid, std::span<const int> widths,
           QWidget* parent);

  /// The current cell was moved with the keyboard.
  std::function<void(int row, int column)> on_move;
  /// A cell was clicked, or Enter or Space pressed on it; row 0 is the header.
  std::function<void(int row, int column)> on_click;
  /// Delete was pressed.
  std::function<void()> on_delete;

  GridModel& grid_model() { return model_; }

  void apply();

  /// Minimum column widths in pixels fit for the content, on top of the grid's own widths.
  void fit_columns();

  /// From now on shares the room among the columns by what they hold: headers stay whole, and so do the
  /// columns of short values; of the others the longest texts give way first. A column that the user sizes
  /// ends this.
  void share_columns(std::vector<int> short_columns);

  /// Shown in place of rows while there is none.
  void set_empty_text(const QString& text) { empty_text_ = text; }

  /// What stands in place of rows, "" while there are any. Screen readers are told it as well.
  [[nodiscard]] QString empty_words() const;

  /// A few rows, and every column as narrow as it may get.
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  enum class Sharing { kOff, kOn };
  void measure();
  void share_room();
  [[nodiscard]] int header_width(int column) const;
  [[nodiscard]] int least_width(int column) const;
  [[nodiscard]] int wanted_width(int column) const;

  const CellTable& grid_;
  std::span<const int> widths_;
  GridModel model_;
  QString empty_text_;
  bool applying_ = false;
  Sharing sharing_ = Sharing::kOff;
  std::vector<int> short_columns_;
  CellTable::Rows measured_;  ///< what the widths below are those of
  std::vector<int> least_;    ///< pixels that a column needs
  std::vector<int> wanted_;   ///< pixels with which nothing of a column is cut
  int least_total_ = 0;       ///< pixels of all columns
};

}  // namespace vorlund
