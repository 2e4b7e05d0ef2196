// The writer of weapon load-outs in the game's "loadout.dat".
#pragma once

#include <array>

#include "aircraft/plane_table.h"
#include "disk/game_folder.h"
#include "disk/patch_file.h"

namespace vorlund {

// loadout.dat holds two areas. The first, from ".lo1" files, has 7 or 3 records of 44 bytes for each record
// number, at the position that the offset table gives; the second, from ".lo2" files, has 5 records of 12
// bytes for each, from offset 7928 + 60 x n. The first byte of every record is the record number.

/// Positions, counted from 1, at which the first area of each record number begins. The last entry is empty.
using LoadoutOffsets = std::array<int, 31>;
inline constexpr LoadoutOffsets kLoadoutOffsets = {
    5,    313,  621,  929,  1237, 1545, 1853, 1985, 2117, 2249, 2557, 2865, 3173, 3481, 3789, 4097,
    4229, 4537, 4845, 5153, 5461, 5769, 5901, 6209, 6517, 6825, 6957, 7089, 7221, 7353, 0};

/// Which areas were written.
struct LoadOutOutcome {
  bool first_area = false;
  bool second_area = false;
};

/// Writes the load-out of the record that the row's "PlnDat" names into `loadouts`, the game's loadout.dat.
/// An area is written only when `folder` holds exactly one file for it; the file's values go one byte each to
/// the area, as many as there are. An error (overflow, read past the end, subscript, bad position) names the
/// line or the cell; the bytes before it stay written.
LoadOutOutcome LoadOutWrite(const GameFolder& game, const PlaneTable& table, int row,
                            const std::string& folder, PatchedFile& loadouts);

}  // namespace vorlund
