// The game's own files that an aircraft set is written into, compared entry by entry.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "aircraft/picture_menu.h"
#include "aircraft/plane_table.h"

namespace vorlund {

/// One record, block or name of a file.
struct OwnFileEntry {
  std::string what;   ///< "record 7, slot P51D"
  std::string state;  ///< "" where it is as chosen, else what differs: "side is German, chosen British"
};

// `today` are the bytes on the disk, `then` those after an installation. Entries that no slot has chosen are
// left out where they are the same.

/// Records of Planes.dat. Of several slots with one record number the last counts, as in the installation.
std::vector<OwnFileEntry> compare_planes_data(std::string_view today, std::string_view then,
                                              const PlaneTable& table);

/// Both areas of each record number in loadout.dat.
std::vector<OwnFileEntry> compare_loadout_data(std::string_view today, std::string_view then,
                                               const PlaneTable& table);

/// The thirty names of pnames.str.
std::vector<OwnFileEntry> compare_pilot_names(std::string_view today, std::string_view then);

/// The entries of a country's picture menu.
std::vector<OwnFileEntry> compare_picture_menu(std::string_view today, std::string_view then,
                                               Country country);

}  // namespace vorlund
