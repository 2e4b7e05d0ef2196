// The aircraft-set installer: puts the plane table into the game directory and the game's own files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "aircraft/pilot_names.h"
#include "aircraft/plane_table.h"
#include "core/environment.h"
#include "menus/menu_editor.h"

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

  /// One line that sums up, then one line for each remark, separated by "\n".
  std::string text() const;
};

/// Installs every slot that the view shows: copies the files of the flight-model group, each slot's flight
/// model and skin, and writes names, aircraft records, load-outs and picture menus. Where the game directory
/// holds pnames.str the view is first refreshed to used rows; without it the rows that happen to be shown
/// count. Folders that do not exist give no files. A slot cell that leads out of the game
/// folder is an error before that file is written. Where no name list was read since the start the menus keep
/// their names.
/// A failing operation ends the installation with an ActionError; what was done before stays. The record is
/// not written here.
AircraftSummary install_aircraft_set(Environment& environment, PlaneTable& table, PilotNames& names,
                                     MenuEditor& menu_editor);

}  // namespace vorlund
