// Locks the descriptor of a folder, so that no file is needed for it.
#include "posix/posix_folder_locks.h"

#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>
#include <vector>

#include "disk/file_system.h"
#include "posix/posix_folder_reader.h"

namespace vorlund {

namespace {

/// What disks answer that know no locks, or none on folders; some shared ones want the right to write first.
constexpr std::array<int, 5> kNoLocksErrors = {EBADF, EINVAL, ENOLCK, ENOSYS, ENOTSUP};

std::string identity_of(const std::string& path, int folder) {
  struct stat status {};
  if (::fstat(folder, &status) != 0) throw_system_error("lock the folder", path);
  return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
}

/// Repeats the call that a signal breaks into.
int lock(int folder, int operation) {
  int result = 0;
  do {
    result = ::flock(folder, operation);
  } while (result != 0 && errno == EINTR);
  return result;
}

}  // namespace

PosixFolderLock::PosixFolderLock(const std::string& path, FileHandle folder)
    : FolderLock(path, identity_of(path, folder.descriptor())), folder_(std::move(folder)) {}

FolderLock::Outcome PosixFolderLock::take() {
  taken_ = lock(folder_.descriptor(), LOCK_EX | LOCK_NB) == 0;
  if (taken_) return Outcome::kTaken;
  if (errno == EWOULDBLOCK) return Outcome::kInUse;
  if (std::find(kNoLocksErrors.begin(), kNoLocksErrors.end(), errno) != kNoLocksErrors.end()) {
    return Outcome::kNoLocks;
  }
  throw_system_error("lock the folder", path());
}

/// Unlocks outright: closing would leave the lock to a child that has not yet become another program.
void PosixFolderLock::let_go() {
  if (std::exchange(taken_, false)) lock(folder_.descriptor(), LOCK_UN);
}

void PosixFolderLock::delete_left_overs() {
  std::vector<std::string> left_overs;
  PosixFolderReader reader(folder_.descriptor());
  while (const auto* entry = reader.next()) {
    if (is_staging_name_of_another(entry->name)) left_overs.emplace_back(entry->name);
  }
  for (const std::string& name : left_overs) ::unlinkat(folder_.descriptor(), name.c_str(), 0);
}

}  // namespace vorlund
