// Takes the names of all rows together.
#include "gamesets/row_overlaps.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "base/action_error.h"
#include "base/plain_name.h"
#include "base/text.h"
#include "disk/listing.h"
#include "disk/store.h"
#include "gamesets/game_installer.h"

namespace vorlund {

namespace {

/// What is only a mark must not end the program: whoever installs the row meets the error.
std::vector<std::string> names_of(const GameFolder& game, const GameTable& table, int row) try {
  const std::string& group = table.cell(row, GameTable::kGroup);
  const std::string& folder = table.cell(row, GameTable::kFolder);
  if (folder.empty() || !stays_below(group) || !stays_below(folder)) return {};
  return list_files(game.files, game.path(kGameStore) + "\\" + group + "\\" + folder, "*.*");
} catch (const ActionError&) {
  return {};
}

}  // namespace

RowOverlaps::RowOverlaps(const GameFolder& game, const GameTable& table) {
  std::unordered_map<std::string, std::vector<int>> writers;
  could_go_.assign(static_cast<std::size_t>(table.row_count()), false);
  std::vector<bool> stays(could_go_.size(), false);
  for (int row = 1; row < table.row_count(); ++row) {
    for (const std::string& name : names_of(game, table, row)) {
      const SetFileUse use = use_of_set_file(name);
      const auto index = static_cast<std::size_t>(row);
      if (use == SetFileUse::kPatch) stays[index] = true;
      if (use != SetFileUse::kCopied) continue;
      could_go_[index] = true;
      std::vector<int>& rows = writers[to_upper(target_of_set_file(name))];
      if (rows.empty() || rows.back() != row) rows.push_back(row);
    }
  }
  for (const auto& [place, rows] : writers) {
    stays[static_cast<std::size_t>(rows.back())] = true;
    for (auto earlier = rows.begin(); earlier != rows.end(); ++earlier) {
      for (auto later = earlier + 1; later != rows.end(); ++later) ++shared_[{*earlier, *later}];
    }
  }
  for (std::size_t row = 0; row < stays.size(); ++row) could_go_[row] = could_go_[row] && !stays[row];
}

int RowOverlaps::shared_files(int row, int other) const {
  const auto found = shared_.find(std::minmax(row, other));
  return found == shared_.end() ? 0 : found->second;
}

bool RowOverlaps::could_go(int row) const {
  return row >= 0 && static_cast<std::size_t>(row) < could_go_.size() &&
         could_go_[static_cast<std::size_t>(row)];
}

}  // namespace vorlund
