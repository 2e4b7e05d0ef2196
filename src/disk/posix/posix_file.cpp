// Thin layer over open, read, write and close that goes on after signals and short transfers.
#include "posix/posix_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "base/action_error.h"

namespace vorlund {

FileHandle::~FileHandle() {
  const int error = errno;
  close();
  errno = error;
}

FileHandle& FileHandle::operator=(FileHandle&& other) noexcept {
  const int taken = other.release();
  close();
  descriptor_ = taken;
  return *this;
}

bool FileHandle::close() {
  if (!is_open()) return true;
  // A descriptor is gone after close even where a signal broke in, so it is never closed twice.
  return ::close(release()) == 0 || errno == EINTR;
}

int FileHandle::release() {
  return std::exchange(descriptor_, -1);
}

void throw_system_error(std::string_view attempted, std::string_view path) {
  throw_system_error(attempted, path, errno);
}

void throw_system_error(std::string_view attempted, std::string_view path, int error) {
  throw ActionError(attempted, path, std::generic_category().message(error));
}

FileHandle open_at(int folder, const char* name, int flags, mode_t mode) {
  int descriptor = -1;
  do {
    descriptor = ::openat(folder, name, flags | O_CLOEXEC, mode);
  } while (descriptor < 0 && errno == EINTR);
  return FileHandle(descriptor);
}

FileHandle open_to_read(int folder, const char* name, int flags) {
#ifdef O_NOATIME
  // Allowed for the owner's files alone.
  FileHandle unmarked = open_at(folder, name, O_RDONLY | O_NONBLOCK | O_NOATIME | flags);
  if (unmarked.is_open() || errno != EPERM) return unmarked;
#endif
  return open_at(folder, name, O_RDONLY | O_NONBLOCK | flags);
}

FileHandle open_folder_at(int folder, const char* name) {
#ifdef O_PATH
  return open_at(folder, name, O_PATH | O_DIRECTORY);
#else
  return open_at(folder, name, O_RDONLY | O_DIRECTORY);
#endif
}

bool look_at(int folder, const char* name, struct stat& status, int flags) {
  int result = -1;
  do {
    result = ::fstatat(folder, name, &status, flags);
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

bool says_missing(int error) {
  return error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG || error == ELOOP || error == EINVAL ||
         error == EILSEQ;
}

bool says_no_right(int error) {
  return error == EACCES || error == EPERM;
}

ssize_t read_up_to(int descriptor, char* bytes, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t got = ::read(descriptor, bytes + done, size - done);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return -1;
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  return static_cast<ssize_t>(done);
}

bool write_all(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t put = ::write(descriptor, bytes.data(), bytes.size());
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) {
      if (put == 0) errno = EIO;
      return false;
    }
    bytes.remove_prefix(static_cast<std::size_t>(put));
  }
  return true;
}

}  // namespace vorlund
