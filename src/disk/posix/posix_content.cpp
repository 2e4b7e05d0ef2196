// Compares by blocks, and copies by shared blocks, by the kernel's copy, or by reading and writing.
#include "posix/posix_content.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#ifdef __linux__
#include <linux/fs.h>
#include <sys/ioctl.h>
#endif

namespace vorlund {

namespace {

constexpr std::size_t kBlock = 256 << 10;
constexpr std::size_t kBuffer = kBlock + 1;
constexpr std::size_t kFirstBlock = 4096;

/// Reads up to `size` bytes at an offset, fewer only at the end of the file; -1, with errno, on failure.
ssize_t read_at(int descriptor, char* bytes, std::size_t size, std::uint64_t offset) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t got = ::pread(descriptor, bytes + done, size - done, static_cast<off_t>(offset + done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return -1;
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  return static_cast<ssize_t>(done);
}

class PosixReader final : public FileReader {
 public:
  explicit PosixReader(PosixSource source) : source_(std::move(source)), path_(source_.path) {}

  [[nodiscard]] std::uint64_t size() const override { return source_.size(); }

  std::size_t read(char* bytes, std::size_t size) override {
    const ssize_t got = read_up_to(source_.handle.descriptor(), bytes, size);
    if (got < 0) throw_system_error("read", path_);
    return static_cast<std::size_t>(got);
  }

  void seek(std::uint64_t offset) override {
    if (::lseek(source_.handle.descriptor(), static_cast<off_t>(offset), SEEK_SET) < 0)
      throw_system_error("read", path_);
  }

 private:
  PosixSource source_;
  std::string path_;  ///< that of the source may live less long
};

}  // namespace

std::unique_ptr<FileReader> reader_of(PosixSource source) {
  return std::make_unique<PosixReader>(std::move(source));
}

char* PageBlock::bytes(std::size_t size) {
  if (!bytes_) bytes_.reset(new (kPage) char[size]);
  return bytes_.get();
}

void PosixContent::take(const PosixSource& source) {
  whole_source_read_ = false;
  if (source.size() > kBlock) return;
  const std::string_view bytes = source_block(source, 0, static_cast<std::size_t>(source.size()));
  whole_source_read_ = bytes.size() == source.size();
}

bool PosixContent::known_same(const PosixSource& source, int target) {
  if (!last_was_same_ || !whole_source_read_ || source.size() == 0) return false;
  // One byte more is asked for, so that a longer target shows.
  const auto size = static_cast<std::size_t>(source.size());
  const ssize_t got = ::pread(target, target_buffer_.bytes(kBuffer), size + 1, 0);
  const bool same = got == static_cast<ssize_t>(size) &&
                    std::memcmp(target_buffer_.bytes(kBuffer), source_buffer_.bytes(kBuffer), size) == 0;
  if (same) pulse_.worked_through(size);
  return same;
}

bool PosixContent::same_as(const PosixSource& source, int target) {
  // Files that differ mostly do so early; but a set that is installed again is the same throughout.
  std::size_t step = last_was_same_ ? kBlock : kFirstBlock;
  last_was_same_ = false;
  for (std::uint64_t offset = 0; offset < source.size();) {
    const auto size = static_cast<std::size_t>(std::min<std::uint64_t>(step, source.size() - offset));
    const std::string_view expected = whole_source_read_
                                          ? std::string_view(source_buffer_.bytes(kBuffer) + offset, size)
                                          : source_block(source, offset, size);
    const ssize_t got = read_at(target, target_buffer_.bytes(kBuffer), size, offset);
    if (got != static_cast<ssize_t>(size) ||
        expected != std::string_view(target_buffer_.bytes(kBuffer), size)) {
      return false;
    }
    pulse_.worked_through(size);
    offset += size;
    step = kBlock;
  }
  last_was_same_ = true;
  return true;
}

void PosixContent::write_to(const PosixSource& source, int target, std::string_view target_path) {
  if (whole_source_read_) {
    const std::string_view bytes(source_buffer_.bytes(kBuffer), static_cast<std::size_t>(source.size()));
    if (!write_all(target, bytes)) throw_system_error("write", target_path);
    pulse_.worked_through(bytes.size());
    return;
  }
  if (clone(source, target)) return;
  std::uint64_t done = 0;
  while (done < source.size()) {
    const Run run = next_run(source, done);
    const auto begin = static_cast<off_t>(run.begin);
    if (run.begin > done && (::ftruncate(target, begin) != 0 || ::lseek(target, begin, SEEK_SET) != begin))
      throw_system_error("write", target_path);
    copy_blocks(source, {copy_in_kernel(source, run, target), run.end}, target, target_path);
    done = run.end;
  }
}

/// The next bytes from an offset on that are no hole; empty, at the end of the file, where only a hole is
/// left. Where the disk can't tell holes, all the rest.
PosixContent::Run PosixContent::next_run(const PosixSource& source, std::uint64_t offset) {
  const Run rest{offset, source.size()};
#if defined(SEEK_DATA) && defined(SEEK_HOLE)
  constexpr std::uint64_t kUnitOfBlocks = 512;
  if (static_cast<std::uint64_t>(source.status.st_blocks) * kUnitOfBlocks >= source.size()) return rest;
  const off_t begin = ::lseek(source.handle.descriptor(), static_cast<off_t>(offset), SEEK_DATA);
  if (begin < 0 && errno == ENXIO) return {source.size(), source.size()};
  const off_t end = begin < 0 ? -1 : ::lseek(source.handle.descriptor(), begin, SEEK_HOLE);
  if (end > begin) {
    return {static_cast<std::uint64_t>(begin), std::min(static_cast<std::uint64_t>(end), source.size())};
  }
#endif
  return rest;
}

std::string_view PosixContent::source_block(const PosixSource& source, std::uint64_t offset,
                                            std::size_t size) {
  const ssize_t got = read_at(source.handle.descriptor(), source_buffer_.bytes(kBuffer), size, offset);
  if (got < 0) throw_system_error("read", source.path);
  return {source_buffer_.bytes(kBuffer), static_cast<std::size_t>(got)};
}

bool PosixContent::clone(const PosixSource& source, int target) {
#ifdef FICLONE
  struct stat status {};
  if (::fstat(target, &status) != 0) return false;
  const auto disks = std::make_pair(source.status.st_dev, status.st_dev);
  if (cannot_clone_.contains(disks)) return false;
  if (::ioctl(target, FICLONE, source.handle.descriptor()) == 0) return true;
  cannot_clone_.insert(disks);
#else
  static_cast<void>(source);
  static_cast<void>(target);
#endif
  return false;
}

/// Returns the offset up to which the kernel has copied; where it can't go on, reading and writing takes over
/// and meets the error, if there is one.
std::uint64_t PosixContent::copy_in_kernel(const PosixSource& source, const Run& run, int target) {
#ifdef __linux__
  auto offset = static_cast<off_t>(run.begin);
  const auto end = static_cast<off_t>(run.end);
  while (offset < end) {
    const auto step =
        std::min(static_cast<std::size_t>(Pulse::kBytes), static_cast<std::size_t>(end - offset));
    const ssize_t got = ::copy_file_range(source.handle.descriptor(), &offset, target, nullptr, step, 0);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    pulse_.worked_through(static_cast<std::uint64_t>(got));
  }
  return static_cast<std::uint64_t>(offset);
#else
  static_cast<void>(source);
  static_cast<void>(target);
  return run.begin;
#endif
}

void PosixContent::copy_blocks(const PosixSource& source, const Run& run, int target,
                               std::string_view target_path) {
  for (std::uint64_t offset = run.begin; offset < run.end;) {
    const auto step = static_cast<std::size_t>(std::min<std::uint64_t>(kBlock, run.end - offset));
    const std::string_view bytes = source_block(source, offset, step);
    if (bytes.empty()) return;
    if (!write_all(target, bytes)) throw_system_error("write", target_path);
    offset += bytes.size();
    pulse_.worked_through(bytes.size());
  }
}

}  // namespace vorlund
