// The few operations that a table of cells needs.
#include "base/cell_table.h"

#include <utility>

namespace vorlund {

void CellTable::add_row(std::vector<std::string> cells) {
  cells.resize(static_cast<std::size_t>(columns));
  rows.push_back({std::move(cells), false});
}

const std::string& CellTable::cell(int row, int column) const {
  static const std::string kEmpty;
  if (row < 0 || row >= row_count()) return kEmpty;
  const std::vector<std::string>& cells = rows[static_cast<std::size_t>(row)].cells;
  if (column < 0 || static_cast<std::size_t>(column) >= cells.size()) return kEmpty;
  return cells[static_cast<std::size_t>(column)];
}

void CellTable::set_cell(int row, int column, std::string text) {
  rows.at(static_cast<std::size_t>(row)).cells.at(static_cast<std::size_t>(column)) = std::move(text);
}

}  // namespace vorlund
