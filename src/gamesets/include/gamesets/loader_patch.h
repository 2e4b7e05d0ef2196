// Loader patch files (".LDR"): runs of bytes to write at fixed offsets of the game's executable.
#pragma once

#include <string_view>

#include "disk/game_folder.h"
#include "disk/patch_file.h"
#include "disk/status.h"

namespace vorlund {

/// Applies the records of a patch file to the executable's content, and tells the observer of each. A record
/// is the first and the last offset to write (3 bytes each, little-endian, counted from 0, the last
/// inclusive) and then the bytes; a last offset before the first writes nothing. Records follow each other
/// until the end of the patch file; one that is cut short there is not applied. Offsets past the executable's
/// end make it longer, zero-filled.
void apply_loader_patch(FileReader& patch, Status& status, PatchedBytes& executable);

/// Applies a patch file to the game's executable, which must exist. The executable is replaced whole.
/// The patch file may be of any length: one record is held at a time.
void install_loader_patch(const GameFolder& game, Status& status, std::string_view patch_path);

}  // namespace vorlund
