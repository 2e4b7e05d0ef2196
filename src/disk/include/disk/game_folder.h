// The folder that everything happens in, and how paths in it are formed.
#pragma once

#include <string>
#include <string_view>

#include "disk/file_system.h"

namespace vorlund {

/// The disk, and the game directory on it. Paths are formed by joining texts as they stand.
struct GameFolder {
  FileSystem& files;
  std::string directory;  ///< without a trailing backslash, but for a drive's root

  /// The game directory followed by a literal that begins with a backslash.
  [[nodiscard]] std::string path(std::string_view literal) const { return directory + std::string(literal); }
};

}  // namespace vorlund
