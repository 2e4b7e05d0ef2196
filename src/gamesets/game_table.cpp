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

void GameTable::clear_current(std::string_view last_group) {
  const int row = G2.row;
  if (row == 0) return;
  G2.set_cell(row, kFolder, "");
  if (G2.cell(row, kGroup) == last_group) G2.rows.erase(G2.rows.begin() + row);
  g2update();
  select_shown_near(row);
}

void GameTable::move_current_to_end() {
  const int row = G2.row;
  if (row == 0) return;
  G2.add_row({G2.cell(row, kGroup), G2.cell(row, kFolder)});
  G2.rows.erase(G2.rows.begin() + row);
  g2update();
  select(G2.row_count() - 1);
}

void GameTable::select_shown_near(int row) {
  int found = 0;
  for (int next = row; next < G2.row_count() && found == 0; ++next) {
    if (!G2.rows[static_cast<std::size_t>(next)].hidden) found = next;
  }
  for (int before = row - 1; before > 0 && found == 0; --before) {
    if (before < G2.row_count() && !G2.rows[static_cast<std::size_t>(before)].hidden) found = before;
  }
  select(found);
}

}  // namespace vorlund
