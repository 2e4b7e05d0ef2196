// Files patched at positions: read whole, patched in memory, replaced whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "disk/file_system.h"

namespace vorlund {

/// The content of a file while it is patched. Writing past the end makes it longer, zero-filled between.
class PatchedBytes {
 public:
  explicit PatchedBytes(std::string bytes) : bytes_(std::move(bytes)), original_(bytes_) {}

  /// Writes one byte at an offset counted from 0.
  void put(std::size_t offset, std::uint8_t value);

  /// Writes a run of bytes at an offset counted from 0.
  void put(std::size_t offset, std::string_view run);

  [[nodiscard]] const std::string& bytes() const { return bytes_; }
  [[nodiscard]] bool changed() const { return bytes_ != original_; }

  /// Takes back everything that was written.
  void revert() { bytes_ = original_; }

 private:
  std::string bytes_;
  std::string original_;
};

/// A file that is patched by several steps and written once.
class PatchedFile {
 public:
  /// Nothing is read yet.
  PatchedFile(FileSystem& files, std::string path) : files_(files), path_(std::move(path)) {}

  /// The content, read at the first call; empty for a file that does not exist yet, which will then be made.
  /// A file that is there but can't be seen is an error: it must not be taken for a missing one.
  PatchedBytes& open();

  /// Runs the steps and then replaces the file whole, if it was opened and anything changed or it did not
  /// exist; it is flushed, since the game can't be without it. When the steps fail, what they had written up
  /// to there is kept and the error goes on; when memory gives out the file stays as it was.
  void patch(const std::function<void()>& steps);

  [[nodiscard]] const std::string& path() const { return path_; }

 private:
  void keep();

  FileSystem& files_;
  std::string path_;
  std::optional<PatchedBytes> content_;
  bool existed_ = false;
};

}  // namespace vorlund
