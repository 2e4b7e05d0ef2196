// Which rows of the game table write the same files, told from the names in their folders alone.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "disk/game_folder.h"
#include "gamesets/game_table.h"

namespace vorlund {

/// The rows that win over others. Bytes are not looked at: files of equal bytes count too.
class RowOverlaps {
 public:
  /// Of a table without rows.
  RowOverlaps() = default;

  /// Lists the folders of all rows. One that can't be listed counts as empty.
  RowOverlaps(const GameFolder& game, const GameTable& table);

  /// Number of files that both rows write; the later row wins.
  [[nodiscard]] int shared_files(int row, int other) const;

  /// True for a row that later rows leave nothing of: every file that it copies, and at least one, is copied
  /// by a later row too, and it has no patch.
  [[nodiscard]] bool could_go(int row) const;

 private:
  std::map<std::pair<int, int>, int> shared_;  ///< by the earlier row and the later one
  std::vector<bool> could_go_;
};

}  // namespace vorlund
