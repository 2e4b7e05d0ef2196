// Takes the names of all rows together.
#include "gamesets/row_overlaps.h"

#include <algorithm>
#include <iterator>
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
  const std::string group = table.cell(row, GameTable::kGroup);
  const std::string folder = table.cell(row, GameTable::kFolder);
  if (folder.empty() || !stays_below(group) || !stays_below(folder)) return {};
  return list_files(game.files, game.path(kGameStore) + "\\" + group + "\\" + folder, "*.*");
} catch (const ActionError&) {
  return {};
}

}  // namespace

RowOverlaps::RowOverlaps(const GameFolder& game, const GameTable& table) {
  const auto rows = static_cast<std::size_t>(table.row_count());
  files_.resize(rows);
  could_go_.resize(rows);
  std::unordered_map<std::string, int> numbers;
  std::vector<std::size_t> last_writers;
  std::vector<bool> patches(rows);
  for (std::size_t row = 1; row < rows; ++row) {
    for (const std::string& name : names_of(game, table, static_cast<int>(row))) {
      const SetFileUse use = use_of_set_file(name);
      if (use == SetFileUse::kPatch) patches[row] = true;
      if (use != SetFileUse::kCopied) continue;
      const auto [file, is_new] =
          numbers.emplace(to_upper(target_of_set_file(name)), static_cast<int>(numbers.size()));
      if (is_new) last_writers.push_back(row);
      last_writers[static_cast<std::size_t>(file->second)] = row;
      files_[row].push_back(file->second);
    }
    std::sort(files_[row].begin(), files_[row].end());
    files_[row].erase(std::unique(files_[row].begin(), files_[row].end()), files_[row].end());
  }
  for (std::size_t row = 1; row < rows; ++row) {
    could_go_[row] = !files_[row].empty() && !patches[row] &&
                     std::none_of(files_[row].begin(), files_[row].end(), [&](int file) {
                       return last_writers[static_cast<std::size_t>(file)] == row;
                     });
  }
}

int RowOverlaps::shared_files(int row, int other) const {
  const auto rows = static_cast<int>(files_.size());
  if (row < 0 || row >= rows || other < 0 || other >= rows || row == other) return 0;
  const std::vector<int>& ours = files_[static_cast<std::size_t>(row)];
  const std::vector<int>& theirs = files_[static_cast<std::size_t>(other)];
  std::vector<int> both;
  std::set_intersection(ours.begin(), ours.end(), theirs.begin(), theirs.end(), std::back_inserter(both));
  return static_cast<int>(both.size());
}

bool RowOverlaps::could_go(int row) const {
  return row >= 0 && static_cast<std::size_t>(row) < could_go_.size() &&
         could_go_[static_cast<std::size_t>(row)];
}

}  // namespace vorlund
