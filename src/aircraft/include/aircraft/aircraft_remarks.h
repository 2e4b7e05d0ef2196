// What may surprise a player about an aircraft set that was installed, in plain words.
#pragma once

#include <string>
#include <vector>

#include "aircraft/plane_table.h"
#include "disk/game_folder.h"

namespace vorlund {

/// What the installer has seen on its way.
struct InstallObservations {
  std::vector<int> slots;                 ///< installed rows, ascending
  std::vector<int> without_flight_model;  ///< of them, those whose folder held no ".oaw" file
  bool loadouts = false;                  ///< any load-out was written
};

/// One remark each: a flight-model group, flight model or skin that is not there, a slot without a record
/// number, record numbers that two slots share, and where load-outs came from. Never fails for an installed
/// set.
std::vector<std::string> aircraft_remarks(const GameFolder& game, const PlaneTable& table,
                                          const InstallObservations& seen);

}  // namespace vorlund
