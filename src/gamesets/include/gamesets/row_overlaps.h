// Which rows of the game table write the same files, told from the names in their folders alone.
#pragma once

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

  /// Number of files that both rows write; the later row wins. None for a row and itself.
  [[nodiscard]] int shared_files(int row, int other) const;

  /// True for a row that later rows leave nothing of: every file that it copies, and at least one, is copied
  /// by a later row too, and it has no patch.
  [[nodiscard]] bool could_go(int row) const;

 private:
  std::vector<std::vector<int>> files_;  ///< that a row writes, each by a number of its own, ascending
  std::vector<bool> could_go_;
};

}  // namespace vorlund
