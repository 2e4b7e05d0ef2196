// The folders that the flight models of an aircraft set are taken from.
#pragma once

#include <string>
#include <string_view>

#include "aircraft/plane_table.h"
#include "core/environment.h"
#include "core/listing.h"

namespace vorlund {

// Sets travel between players, so their names may be anything: one with ".." or "." in it counts as a folder
// that does not exist. An empty flight-model group, where none has been chosen, is the folder of all groups.

/// Path of the set's flight-model group; "" when it counts as not existing.
std::string flight_model_group_folder(const Environment& environment, const PlaneTable& table);

/// Path of a row's flight model; "" when it counts as not existing. A row with an empty "ScriptFolder" cell
/// has the group folder itself: deliberate, so that a group can hold files for rows without a model of their
/// own.
std::string flight_model_folder(const Environment& environment, const PlaneTable& table, int row);

/// Lists the files of the list's folder that match; none when there is no such folder.
void list_pattern(FileSystem& files, FileList& list, std::string_view pattern);

}  // namespace vorlund
