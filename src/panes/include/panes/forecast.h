// What "Process!" of either table and "Clean Up" would do to the game folder, told without doing it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "aircraft/picture_menu.h"
#include "aircraft/pilot_names.h"
#include "aircraft/plane_table.h"
#include "disk/dry_run_file_system.h"
#include "disk/game_folder.h"
#include "disk/status.h"
#include "gamesets/game_table.h"

namespace vorlund {

/// One record of a loader patch.
struct ForeseenPatch {
  int row = 0;               ///< of the game table
  std::string file;          ///< bare name of the patch file
  std::uint64_t first = 0;   ///< first byte of eaw.exe that it writes
  std::uint64_t length = 0;  ///< bytes; 0 for a record that writes nothing
  bool is_in_place = false;  ///< eaw.exe holds these bytes today
  bool stands = false;       ///< eaw.exe would hold them in the end
  int overlapped_by = -1;    ///< index of a later record that writes into the same bytes; -1 for none
};

/// One of the files that the game itself brings and an aircraft set is written into.
struct OwnFile {
  std::string_view name;  ///< as it is appended to the game directory
  std::string today;      ///< its bytes on the disk, "" where it is not there
  std::string then;       ///< its bytes after the action
};

/// What one action would do from the disk as it is now.
struct Forecast {
  std::vector<ForeseenFile> files;     ///< every file that it writes or deletes, in place or not
  std::vector<ForeseenPatch> patches;  ///< in the order in which they are applied
  std::string said;                    ///< what the status line would say in the end, "" where it would stop
  std::string stops;                   ///< the error that it would end with, "" for none
  std::vector<std::string> unseen;     ///< paths taken for missing for want of the right to look
  std::vector<OwnFile> own_files;      ///< Planes.dat, loadout.dat, pnames.str and the picture menus
};

/// What each of the three actions would do, each for itself: none follows another.
struct Forecasts {
  Forecast game_set;
  Forecast aircraft_set;
  Forecast clean_up;
  bool is_whole = true;  ///< false where the observer wanted to leave; then nothing of it counts
};

/// The tables and working copies that the actions would work on; they stay as they are.
struct SetsAtHand {
  const GameTable& games;
  const PlaneTable& planes;
  const PilotNames& names;
  const PictureMenu& menu;
};

/// Runs the three actions on copies of the sets, on a disk that writes nothing. Takes no lock. The observer
/// sees the progress of all three as one. An action that would end with an error is foretold up to there, and
/// `stops` says so. Errors of a failing disk, and too little room, are not foretold.
Forecasts foresee(const GameFolder& game, Status& observer, const SetsAtHand& sets);

/// What a clean-up would come to, or the error that it would end with, in a sentence for a tooltip.
[[nodiscard]] std::string what_clean_up_would_do(const GameFolder& game, const GameTable& games);

}  // namespace vorlund
