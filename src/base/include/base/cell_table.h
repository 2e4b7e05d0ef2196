// A table of text cells: what a player composes, before anyone shows it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorlund {

/// Rows of text cells. Row 0 is the header row. Which rows are shown and which cell is current belongs to the
/// table, because installing depends on the one and filling on the other.
struct CellTable {
  struct Row {
    std::vector<std::string> cells;
    bool hidden = false;  ///< shown with height 0
  };

  std::vector<Row> rows;
  int columns = 0;
  int current_row = 0;  ///< 0 counts as no selection
  int current_column = 0;

  /// Adds a row at the end, its cells cut or filled up to the number of columns.
  void add_row(std::vector<std::string> cells);

  /// Adds a row for each line of a record: its cells stand between TABs, in the code page.
  void add_lines(std::string_view bytes);

  /// Text of a cell; "" where there is no such row or column.
  [[nodiscard]] const std::string& cell(int row, int column) const;

  /// Sets a cell that exists.
  void set_cell(int row, int column, std::string text);

  /// Shows or hides a row that exists.
  void hide_row(int row, bool hidden) { rows.at(static_cast<std::size_t>(row)).hidden = hidden; }
  [[nodiscard]] bool is_hidden(int row) const { return rows.at(static_cast<std::size_t>(row)).hidden; }

  [[nodiscard]] int row_count() const { return static_cast<int>(rows.size()); }
};

}  // namespace vorlund
