// Files patched at positions: read whole, patched in memory, replaced whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/file_system.h"

namespace vorlund {

/// The content of a file while it is patched. Writing past the end makes it longer, zero-filled between.
class PatchedBytes {
 public:
  explicit PatchedBytes(std::string bytes) : bytes_(std::move(bytes)), original_(bytes_) {}

  /// Writes one byte at an offset counted from 0.
  void put(std::size_t offset, std::uint8_t value);

  /// Writes a run of bytes at an offset counted from 0.
  void put(std::size_t offset, std::string_view run);

  const std::string& bytes() const { return bytes_; }
  bool changed() const { return bytes_ != original_; }

 private:
  std::string bytes_;
  std::string original_;
};

/// Tells a file that is there from one that is certainly missing: where FileExists says no, the folder is
/// listed, and failing to list it is an error. To be asked before something is made from a file's content and
/// written back, since FileExists also says no to a file that can't be seen for the moment.
bool is_there(FileSystem& files, std::string_view path);

/// Opens the file (an empty one when it does not exist yet), lets `patch` change it, and replaces it whole if
/// anything changed or the file did not exist. A file that is there but can't be seen is an error: it must
/// not be mistaken for one that is missing and be made anew. When `patch` fails, what it had written up to
/// there is kept and the error goes on; when memory gives out the file stays as it was.
void patch_file(FileSystem& files, std::string_view path, const std::function<void(PatchedBytes&)>& patch);

}  // namespace vorlund
