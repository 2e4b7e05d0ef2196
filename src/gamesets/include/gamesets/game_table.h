// The game table: which folders of the store the game directory is composed of, in order.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/cell_table.h"

namespace vorlund {

/// The game table `G2` and the commands on its rows. Column 0 is the folder group, column 1 the folder name.
/// Rows are installed from top to bottom. A row without a folder name is a cleared row: it stays, but is
/// hidden.
class GameTable : public CellTable {
 public:
  static constexpr int kGroup = 0;
  static constexpr int kFolder = 1;

  /// A table that holds its header row alone.
  GameTable();

  /// Empties the table to zero rows, not even the header.
  void clear();

  /// Refreshes the look: hides cleared rows, shows the others and sets the header's texts.
  void g2update();

  /// Makes a row the current row; the header row (0) and rows that are not there mean no selection.
  void select(int row);

  /// The current row for the player: its folder name in quotation marks, or its group where that is cleared.
  [[nodiscard]] std::string current_in_words() const;

  /// Clears the folder name of the current row, which stays the current one. A row of the group `last_group`,
  /// the only group that may own several rows, is removed altogether; then no row is current. Without a
  /// `last_group` every row stays.
  void clear_current(std::optional<std::string_view> last_group);

  /// Moves the current row behind all others, to be installed last. It stays the current row.
  void move_current_to_end();

  /// Clears the folder name of every row; then no row is current.
  void clear_folders();
};

}  // namespace vorlund
