// The game-set installer: copies the folders of the game table into the game directory, top row first.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "disk/game_folder.h"
#include "disk/status.h"
#include "gamesets/game_table.h"

namespace vorlund {

/// What becomes of a file of a set folder.
enum class SetFileUse {
  kCopied,  ///< copied into the game folder
  kPatch,   ///< loader patch: applied to the game's executable, never copied
  kStays,   ///< stays in the store: pictures, texts, batch files and the like
};

/// Decides by the bare name, without regard to case.
[[nodiscard]] SetFileUse use_of_set_file(std::string_view name);

/// Where a file that is copied goes, as it is appended to the game directory: missions and saves into
/// "Savedata", music into "Music", all others into the game directory itself.
[[nodiscard]] std::string target_of_set_file(std::string_view name);

/// What an installation came to.
struct GameSetSummary {
  std::uint64_t folders = 0;         ///< set folders that were there
  std::uint64_t copied = 0;          ///< files written
  std::uint64_t unchanged = 0;       ///< files that stood in the game directory already, byte for byte
  std::uint64_t kept = 0;            ///< files that stay in the store
  std::uint64_t patches = 0;         ///< loader patches applied
  std::uint64_t patches_passed = 0;  ///< loader patches passed over for want of an executable
  std::vector<std::string> missing;  ///< rows whose folder does not exist: group, backslash, folder name

  /// One line for the player, and a second one where rows were passed over, separated by "\n". What is 0 is
  /// left out.
  [[nodiscard]] std::string text() const;
};

/// Copies and patches the files of every row of the table that names a folder. A later row's file replaces
/// an earlier one's. Rows whose folder does not exist are passed over. A failing operation ends the
/// installation with an ActionError; what was done before stays.
GameSetSummary install_game_set(const GameFolder& game, Status& status, const GameTable& table);

}  // namespace vorlund
