// The clean-up's work on files: career saves go home, installed loose files are deleted.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "disk/game_folder.h"
#include "disk/status.h"
#include "gamesets/game_table.h"

namespace vorlund {

/// What a clean-up came to.
struct CleanUpSummary {
  std::uint64_t careers = 0;  ///< career saves moved home
  std::string home;           ///< where to: what `careers_home_name` gives
  std::uint64_t deleted = 0;  ///< loose files deleted

  /// One line for the player.
  [[nodiscard]] std::string sentence() const;
};

/// Index of the last row whose group is exactly "Careers"; 0 when there is none.
[[nodiscard]] int careers_row(const GameTable& table);

/// Where career saves go home to, as a path inside the game store ("Careers\Camp2"); "" where no row says it.
[[nodiscard]] std::string careers_home_name(const GameTable& table);

/// Number of career saves in "Savedata".
[[nodiscard]] std::size_t count_career_saves(const GameFolder& game);

/// Moves the career saves ("c*.sve" in "Savedata") into the folder that the careers row names, then deletes
/// from the game directory itself the loose files that sets put there. A save is deleted from "Savedata" only
/// when its copy is on the disk. Before any save is moved it is an error when there are saves but no such
/// folder, when links lead that folder to "Savedata", or when two saves differ in case alone. An error ends
/// the action; running it again completes it.
CleanUpSummary clean_game_directory(const GameFolder& game, Status& status, const GameTable& table);

/// The game's own missions, which it leaves in "Savedata".
inline constexpr std::string_view kDefaultMissions = "Default*.msn";

/// Deletes the default missions one after the other, and returns how many there were.
std::uint64_t delete_default_missions(const GameFolder& game);

}  // namespace vorlund
