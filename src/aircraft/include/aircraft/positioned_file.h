// A game file that is patched at positions counted from 1, as the game's own tables count them.
#pragma once

#include <cstdint>
#include <string>

#include "disk/patch_file.h"

namespace vorlund {

/// Writes single bytes at positions. The first byte of the file is position 1.
class PositionedFile {
 public:
  /// `origin` is the cell that the positions come from; errors name it.
  PositionedFile(PatchedBytes& content, std::string path, std::string origin);

  /// Writes one byte, making the file longer where it is too short. A position below 1 is an error.
  void put(std::int64_t position, std::uint8_t value);

 private:
  PatchedBytes& content_;
  std::string path_;
  std::string origin_;
};

}  // namespace vorlund
