// Which plane a skin is made for: the code that its shape and texture files carry in their names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "disk/file_system.h"

namespace vorlund {

inline constexpr std::string_view kShapePattern = "p*.3dz";
inline constexpr std::string_view kTexturePattern = "p*.tpc";

/// Characters 2 to 5, in upper case, of the first file that matches the pattern; "" when none does. The
/// game's shape and texture names are "p" followed by the four characters of the plane code.
std::string first_file_code(const std::vector<FolderEntry>& entries, std::string_view pattern);

}  // namespace vorlund
