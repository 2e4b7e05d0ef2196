// Compares the tables with the records row by row.
#include "panes/installed_sets.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "aircraft/plane_record.h"
#include "disk/store.h"
#include "gamesets/game_record.h"

namespace vorlund {

namespace {

using Names = std::vector<std::string>;

void add_once(Names& names, const std::string& name) {
  if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
}

std::string joined(const Names& names) {
  std::string text;
  for (const std::string& name : names) text.append(text.empty() ? "" : ", ").append(name);
  return text;
}

bool names_folder(const GameTable& table, int row) {
  return !table.cell(row, GameTable::kFolder).empty();
}

/// The rows of a game table that name a folder, packed, in order.
std::vector<std::string_view> filled_rows(const GameTable& table) {
  std::vector<std::string_view> rows;
  for (int row = 1; row < table.row_count(); ++row) {
    if (names_folder(table, row)) rows.push_back(table.rows().packed(static_cast<std::size_t>(row)));
  }
  return rows;
}

/// Adds the group of each row of `table` that `other` does not hold.
void compare_games(const GameTable& table, const GameTable& other, Names& missing) {
  std::vector<std::string_view> known = filled_rows(other);
  std::sort(known.begin(), known.end());
  for (int row = 1; row < table.row_count(); ++row) {
    const std::string_view packed = table.rows().packed(static_cast<std::size_t>(row));
    if (names_folder(table, row) && !std::binary_search(known.begin(), known.end(), packed)) {
      add_once(missing, table.cell(row, GameTable::kGroup));
    }
  }
}

bool same_row(const PlaneTable& a, const PlaneTable& b, int row) {
  for (int column = 1; column < PlaneTable::kColumns; ++column) {
    if (a.cell(row, column) != b.cell(row, column)) return false;
  }
  return true;
}

}  // namespace

std::string what_is_installed(const GameFolder& game_folder, const GameTable& game, const PlaneTable& plane) {
  GameTable installed_games;
  PlaneTable installed_planes;
  const std::string game_record = game_folder.path(kCurrentGameSet);
  const std::string plane_record = game_folder.path(kCurrentPlaneSet);
  if (game_folder.files.FileExists(game_record)) {
    read_game_set(game_folder.files, game_record, installed_games);
  }
  if (game_folder.files.FileExists(plane_record)) {
    read_plane_set(game_folder.files, plane_record, installed_planes);
  }
  Names wanted;
  Names cleared;
  compare_games(game, installed_games, wanted);
  const auto rows = filled_rows(game);
  const auto installed_rows = filled_rows(installed_games);
  if (wanted.empty() && rows.size() == installed_rows.size() && rows != installed_rows) {
    wanted.emplace_back("the order of the game table");
  }
  compare_games(installed_games, game, cleared);
  std::erase_if(cleared,
                [&](const std::string& name) { return std::count(wanted.begin(), wanted.end(), name); });
  for (int row = 1; row < PlaneTable::kRows; ++row) {
    if (same_row(plane, installed_planes, row)) continue;
    (plane.is_used(row) ? wanted : cleared).push_back("slot " + plane.cell(row, PlaneTable::kSlot));
  }
  const std::string& group = plane.flight_model_group;
  if (group != installed_planes.flight_model_group) wanted.push_back("flight models of \"" + group + "\"");
  std::string text = "What the tables show is installed.";
  if (!wanted.empty()) text = "Not installed yet: " + joined(wanted) + ". \"Process!\" installs them.";
  if (!cleared.empty()) {
    text += "\nInstalled, but cleared since: " + joined(cleared) + ". \"Clean Up\" deletes their files.";
  }
  return text;
}

}  // namespace vorlund
