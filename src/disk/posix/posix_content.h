// Compares and copies what is in files, in blocks, by the cheapest way the disk offers.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <new>
#include <set>
#include <string_view>
#include <utility>

#include "disk/file_system.h"
#include "posix/posix_file.h"
#include "pulse.h"

namespace vorlund {

/// A file opened to be copied.
struct PosixSource {
  FileHandle handle;
  struct stat status {};
  std::string_view path;  ///< as the program spells it, for error reports; it outlives this

  [[nodiscard]] std::uint64_t size() const { return static_cast<std::uint64_t>(status.st_size); }
};

/// Reads the source block by block.
std::unique_ptr<FileReader> reader_of(PosixSource source);

/// Memory that begins at a page: the kernel copies faster into such.
class PageBlock {
 public:
  /// Memory for `size` bytes, the same size at each call. It is taken at the first one.
  char* bytes(std::size_t size);

 private:
  static constexpr std::align_val_t kPage{4096};
  struct Free {
    void operator()(char* bytes) const { ::operator delete[](bytes, kPage); }
  };

  std::unique_ptr<char, Free> bytes_;
};

/// Copies files one after the other through buffers that are used again. Functions throw ActionError.
class PosixContent {
 public:
  /// Called at least every 1 MiB while files are compared or copied.
  void set_pulse(std::function<void()> pulse) { pulse_.set(std::move(pulse)); }

  /// Takes up a source: one that fits into the buffer is read at once.
  void take(const PosixSource& source);

  /// True when the target is known to hold the bytes of the source taken last. Costs one read and is tried
  /// only where the last files were the same and small: false says nothing.
  bool known_same(const PosixSource& source, int target);

  /// True when the target, which is as long as the source taken last, holds the same bytes. Those alone
  /// count: there are disks that give two files one number.
  bool same_as(const PosixSource& source, int target);

  /// Writes the source taken last into an empty file. Holes of a source that is not read at once stay holes.
  /// `target_path` is for error reports.
  void write_to(const PosixSource& source, int target, std::string_view target_path);

 private:
  std::string_view source_block(const PosixSource& source, std::uint64_t offset, std::size_t size);
  /// Bytes of a file that stand between holes.
  struct Run {
    std::uint64_t begin;
    std::uint64_t end;
  };

  static Run next_run(const PosixSource& source, std::uint64_t offset);
  bool clone(const PosixSource& source, int target);
  std::uint64_t copy_in_kernel(const PosixSource& source, const Run& run, int target);
  void copy_blocks(const PosixSource& source, const Run& run, int target, std::string_view target_path);

  Pulse pulse_;
  PageBlock source_buffer_;
  PageBlock target_buffer_;
  bool whole_source_read_ = false;
  bool last_was_same_ = false;                      ///< what the last comparison came to
  std::set<std::pair<dev_t, dev_t>> cannot_clone_;  ///< pairs of disks that have refused to share blocks
};

}  // namespace vorlund
