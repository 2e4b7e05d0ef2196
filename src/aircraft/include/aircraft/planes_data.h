// The writer of aircraft records in the game's "Planes.dat".
#pragma once

#include "aircraft/plane_table.h"
#include "disk/game_folder.h"
#include "disk/patch_file.h"

namespace vorlund {

// Planes.dat is 4 bytes of header and then records of 216 bytes; record n starts at offset 4 + 216 x n. Bytes
// 0 to 167 of a record are written here, bytes 168 to 215 never.

/// Writes the record that the row's "PlnDat" names into `planes`, the game's Planes.dat, from the first
/// ".oaw" file of the row's flight-model folder: its lines 2 to 169, one byte each, patched with the row's
/// side, role, flyable flag, fuel and slot code. False, and nothing written, where the folder holds no such
/// file. An error (overflow, read past the end, bad position, slot code of fewer than 4 characters) names the
/// line or the cell; the bytes before it stay written.
[[nodiscard]] bool OawWrite(const GameFolder& game, const PlaneTable& table, int row, PatchedFile& planes);

}  // namespace vorlund
