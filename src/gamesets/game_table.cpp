// The look of the game table and the two commands on its current row.
#include "gamesets/game_table.h"

namespace vorlund {

GameTable::GameTable() {
  G2.column_widths = {3000, 5000};
  clear();
  g2update();
}

void GameTable::clear() {
  G2.columns = 2;
  G2.rows.clear();
  G2.row = 0;
  G2.column = 0;
}

void GameTable::g2update() {
  if (G2.rows.empty()) G2.add_row({});
  for (int row = 1; row < G2.row_count(); ++row) {
    G2.rows[static_cast<std::size_t>(row)].hidden = G2.cell(row, kFolder).empty();
  }
  G2.rows.front().hidden = false;
  G2.set_cell(0, kGroup, "Folder group");
  G2.set_cell(0, kFolder, "Folder name");
}

void GameTable::select(int row) {
  G2.row = row > 0 && row < G2.row_count() ? row : 0;
  G2.column = kFolder;
}

std::string GameTable::current_in_words() const {
  const std::string& folder = G2.cell(G2.row, kFolder);
  return folder.empty() ? "The row of \"" + G2.cell(G2.row, kGroup) + "\"" : "\"" + folder + "\"";
}

void GameTable::clear_current(std::optional<std::string_view> last_group) {
  const int row = G2.row;
  if (row == 0) return;
  G2.set_cell(row, kFolder, "");
  if (last_group == G2.cell(row, kGroup)) {
    G2.rows.erase(G2.rows.begin() + row);
    select(0);
  }
  g2update();
}

void GameTable::move_current_to_end() {
  const int row = G2.row;
  if (row == 0) return;
  G2.add_row({G2.cell(row, kGroup), G2.cell(row, kFolder)});
  G2.rows.erase(G2.rows.begin() + row);
  g2update();
  select(G2.row_count() - 1);
}

}  // namespace vorlund
