// The few operations that a table of cells needs.
#include "base/cell_table.h"

#include <algorithm>
#include <utility>

#include "base/code_page.h"
#include "base/text.h"

namespace vorlund {

void CellTable::add_row(std::vector<std::string> cells) {
  cells.resize(static_cast<std::size_t>(columns));
  rows.push_back({std::move(cells), false});
}

void CellTable::add_lines(std::string_view bytes) {
  // Without this a long record would need half as much memory again while the rows are moved.
  rows.reserve(rows.size() + static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1);
  while (!bytes.empty()) {
    std::string_view line = take_line(bytes);
    rows.push_back({std::vector<std::string>(static_cast<std::size_t>(columns)), false});
    for (std::string& cell : rows.back().cells) cell = decode_text(take_cell(line));
  }
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
