// The look of the game table and the two commands on its current row.
#include "gamesets/game_table.h"

#include "base/text.h"

namespace vorlund {

GameTable::GameTable() {
  clear();
  g2update();
}

void GameTable::clear() {
  columns = 2;
  clear_rows();
  current_row = 0;
  current_column = 0;
}

void GameTable::g2update() {
  if (row_count() == 0) add_row({});
  for (int row = 1; row < row_count(); ++row) hide_row(row, cell(row, kFolder).empty());
  hide_row(0, false);
  set_cell(0, kGroup, "Folder group");
  set_cell(0, kFolder, "Folder name");
}

void GameTable::select(int row) {
  current_row = row > 0 && row < row_count() ? row : 0;
  current_column = kFolder;
}

std::string GameTable::current_in_words() const {
  const std::string folder = cell(current_row, kFolder);
  if (folder.empty()) return "The row of " + quoted(cell(current_row, kGroup));
  return quoted(folder);
}

void GameTable::clear_current(std::optional<std::string_view> last_group) {
  if (current_row == 0) return;
  set_cell(current_row, kFolder, "");
  if (last_group == cell(current_row, kGroup)) {
    replace_rows(current_row, 1, {});
    select(0);
  }
  g2update();
}

void GameTable::move_current_to_end() {
  if (current_row == 0) return;
  add_row({cell(current_row, kGroup), cell(current_row, kFolder)});
  replace_rows(current_row, 1, {});
  g2update();
  select(row_count() - 1);
}

void GameTable::clear_folders() {
  for (int row = 1; row < row_count(); ++row) set_cell(row, kFolder, "");
  g2update();
  select(0);
}

}  // namespace vorlund
