// The few operations that a grid needs.
#include "core/controls.h"

#include <utility>

namespace vorlund {

void Grid::add_row(std::vector<std::string> cells) {
  cells.resize(static_cast<std::size_t>(columns));
  rows.push_back({std::move(cells), false});
}

const std::string& Grid::cell(int row_index, int column_index) const {
  static const std::string kEmpty;
  if (row_index < 0 || row_index >= row_count()) return kEmpty;
  const std::vector<std::string>& cells = rows[static_cast<std::size_t>(row_index)].cells;
  if (column_index < 0 || static_cast<std::size_t>(column_index) >= cells.size()) return kEmpty;
  return cells[static_cast<std::size_t>(column_index)];
}

void Grid::set_cell(int row_index, int column_index, std::string text) {
  rows.at(static_cast<std::size_t>(row_index)).cells.at(static_cast<std::size_t>(column_index)) =
      std::move(text);
}

}  // namespace vorlund
