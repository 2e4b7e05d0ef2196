// Bitmaps far larger than any window are read in part.
#pragma once

#include <string>

#include "disk/file_system.h"

namespace vorlund {

/// Of a bitmap (.bmp) with a side of 4,000 pixels or more, every n-th pixel of every n-th row,
/// itself a bitmap, whose longer side has at least 2,000. "" for any other file, and for a bitmap that is
/// compressed, has fewer than 8 bits a pixel or ends too early: these are read whole. Reads only the rows
/// that it takes.
std::string thinned_bitmap(FileReader& file);

}  // namespace vorlund
