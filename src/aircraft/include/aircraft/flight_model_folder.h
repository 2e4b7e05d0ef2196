// The folders that the flight models of an aircraft set are taken from.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "aircraft/plane_table.h"
#include "disk/game_folder.h"
#include "disk/listing.h"

namespace vorlund {

// Sets travel between players, so their names may be anything: one with ".." or "." in it counts as a folder
// that does not exist. An empty flight-model group, where none has been chosen, is the folder of all groups.

/// Path of the set's flight-model group; "" when it counts as not existing.
[[nodiscard]] std::string flight_model_group_folder(const GameFolder& game, const PlaneTable& table);

/// Path of a row's flight model; "" when it counts as not existing. A row with an empty "ScriptFolder" cell
/// has the group folder itself: deliberate, so that a group can hold files for rows without a model of their
/// own.
[[nodiscard]] std::string flight_model_folder(const GameFolder& game, const PlaneTable& table, int row);

/// The files of such a folder that match, in the order of listings; none where the folder does not exist.
[[nodiscard]] std::vector<std::string> list_model_files(FileSystem& files, const std::string& folder,
                                                        std::string_view pattern);

}  // namespace vorlund
