// The writer of aircraft records in the game's "Planes.dat".
#pragma once

#include "aircraft/plane_table.h"
#include "core/environment.h"
#include "core/listing.h"

namespace vorlund {

// Planes.dat is 4 bytes of header and then records of 216 bytes; record n starts at offset 4 + 216 x n. Bytes
// 0 to 167 of a record are written here, bytes 168 to 215 never.

enum class OawOutcome {
  kWritten,
  kNoFlightModel,  ///< the row's folder holds no ".oaw" file: nothing was written
};

/// Writes the record that the row's "PlnDat" names from the first ".oaw" file of the row's flight-model
/// folder: its lines 2 to 169, one byte each, patched with the row's side, role, flyable flag, fuel and slot
/// code. A missing Planes.dat is created. `selected` is left at that folder, whether it holds an ".oaw" file
/// or not; `LoadOutWrite` goes on from there. An error (overflow, read past the end, bad position, slot code
/// of fewer than 4 characters) names the line or the cell; the bytes before it stay written.
OawOutcome OawWrite(Environment& environment, const PlaneTable& table, int row, FileList& selected);

}  // namespace vorlund
