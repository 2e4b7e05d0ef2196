// Compares and copies what is in files, in blocks, by the cheapest way the disk offers.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <functional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "core/posix_file.h"

namespace vorlund {

/// A file opened to be copied.
struct PosixSource {
  FileHandle handle;
  struct stat status {};
  std::string_view path;  ///< as the program spells it, for error reports; it outlives this

  std::uint64_t size() const { return static_cast<std::uint64_t>(status.st_size); }
};

/// Copies files one after the other through buffers that are used again. Functions throw ActionError.
class PosixContent {
 public:
  /// Called at least every 8 MiB while files are compared or copied.
  void set_pulse(std::function<void()> pulse) { pulse_ = std::move(pulse); }

  /// Takes up a source: one that fits into the buffer is read at once.
  void take(const PosixSource& source);

  /// True when the target, which is as long as the source taken last, holds the same bytes.
  bool same_as(const PosixSource& source, int target);

  /// Writes the source taken last into an empty file. `target_path` is for error reports.
  void write_to(const PosixSource& source, int target, std::string_view target_path);

 private:
  std::string_view source_block(const PosixSource& source, std::uint64_t offset, std::size_t size);
  bool clone(const PosixSource& source, int target);
  std::uint64_t copy_in_kernel(const PosixSource& source, int target);
  void copy_blocks(const PosixSource& source, std::uint64_t offset, int target, std::string_view target_path);
  void worked_through(std::uint64_t bytes);

  std::function<void()> pulse_;
  std::uint64_t since_pulse_ = 0;
  std::vector<char> source_buffer_;
  std::vector<char> target_buffer_;
  bool whole_source_read_ = false;
  bool last_was_same_ = false;                      ///< what the last comparison came to
  std::set<std::pair<dev_t, dev_t>> cannot_clone_;  ///< pairs of disks that have refused to share blocks
};

}  // namespace vorlund
