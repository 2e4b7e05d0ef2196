// How the tables differ from what is installed, as the records tell it.
#pragma once

#include <string>

#include "aircraft/plane_table.h"
#include "disk/game_folder.h"
#include "gamesets/game_table.h"

namespace vorlund {

/// In plain words, which groups and slots of the tables are not installed yet, and which are installed but
/// cleared since. Reads both records; a missing one counts as an empty set.
std::string what_is_installed(const GameFolder& game_folder, const GameTable& game, const PlaneTable& plane);

}  // namespace vorlund
