// A made game folder for window tests of the aircraft work: a store of thirty of everything, and the game's
// files.
#pragma once

#include <string>

#include "support/temporary_folder.h"

namespace vorlund::test {

/// Plane code of a record, 0 to 29, in upper case: spelled out here so as not to trust the program's own.
std::string slot_code(int record);

/// The flight model made for a record, such as "FM P38H", and the title in its first line.
std::string flight_model_name(int record);
std::string flight_model_title(int record);

/// The skin made for a record, such as "Wings P38H", and its group: "Allied" for the first 16, then "Axis".
std::string skin_name(int record);
std::string skin_group(int record);

/// Writes the flight-model group "Standard", the two skin groups, folders for saved set-ups, a game group and
/// the game's aircraft files. The aircraft records of "Planes.dat" are filled with 238.
void make_aircraft_game(const TemporaryFolder& folder);

}  // namespace vorlund::test
