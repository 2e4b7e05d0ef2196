// The aircraft-set installer: puts the plane table into the game directory and the game's own files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "aircraft/picture_menu.h"
#include "aircraft/pilot_names.h"
#include "aircraft/plane_table.h"
#include "disk/game_folder.h"
#include "disk/status.h"

namespace vorlund {

/// What an installation came to.
struct AircraftSummary {
  std::uint64_t slots = 0;           ///< slots worked through
  std::uint64_t records = 0;         ///< of them, those whose aircraft record was written
  std::uint64_t copied = 0;          ///< files written
  std::uint64_t unchanged = 0;       ///< files that stood in the game directory already, byte for byte
  std::uint64_t menus = 0;           ///< picture menus written
  bool names = false;                ///< pnames.str was written
  std::vector<std::string> remarks;  ///< what a player may not expect, in plain words

  /// One line that sums up, without what is 0, then one line for each remark, separated by "\n".
  [[nodiscard]] std::string text() const;
};

/// Installs every slot that the view shows: copies the files of the flight-model group, each slot's flight
/// model and skin, and writes names, aircraft records, load-outs and picture menus. Where the game directory
/// holds pnames.str the view is first refreshed to used rows; without it the rows that happen to be shown
/// count. Folders that do not exist give no files. A slot cell that leads out of the game
/// folder is an error before that file is written. Where no name list was read since the start the menus keep
/// their names.
/// A failing operation ends the installation with an ActionError; what was done before stays. The record is
/// not written here.
/// `menu` is the working copy of the picture menus; it is left holding the German one.
AircraftSummary install_aircraft_set(const GameFolder& game, Status& status, PlaneTable& table,
                                     PilotNames& names, PictureMenu& menu);

}  // namespace vorlund
