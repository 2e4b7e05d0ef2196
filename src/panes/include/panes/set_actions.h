// The three actions that compose the game folder, each with the record that it leaves: what the panes run on
// the disk, and what is foretold on copies of their tables.
#pragma once

#include <string>
#include <vector>

#include "aircraft/aircraft_installer.h"
#include "aircraft/picture_menu.h"
#include "aircraft/pilot_names.h"
#include "aircraft/plane_table.h"
#include "disk/game_folder.h"
#include "disk/status.h"
#include "gamesets/clean_up.h"
#include "gamesets/game_installer.h"
#include "gamesets/game_table.h"

namespace vorlund {

/// "Process!" of the game pane: installs the game set and writes its record.
GameSetSummary process_game_set(const GameFolder& game, Status& status, const GameTable& games);

/// "Process!" of the aircraft pane: installs the aircraft set and writes its record. `menu` is left holding
/// the German picture menu.
AircraftSummary process_aircraft_set(const GameFolder& game, Status& status, PlaneTable& planes,
                                     PilotNames& names, PictureMenu& menu);

/// "Clean Up": brings the careers home, deletes the loose files, empties both tables and writes both records.
CleanUpSummary clean_up_sets(const GameFolder& game, Status& status, GameTable& games, PlaneTable& planes);

/// Every folder that one of the actions may write or delete in.
[[nodiscard]] std::vector<std::string> written_folders(const GameFolder& game, const GameTable& games);

}  // namespace vorlund
