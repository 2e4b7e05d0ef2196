// Writes beside the target and renames, so that a crash leaves the old file or the new one.
#include "posix/posix_target.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "base/action_error.h"

namespace vorlund {

namespace {

constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t kPermissions = S_IRWXU | S_IRWXG | S_IRWXO;
constexpr mode_t kUsualPermissions = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;

}  // namespace

void refuse_read_only(const struct stat& status, std::string_view attempted, std::string_view path) {
  if (S_ISREG(status.st_mode) && (status.st_mode & kAnyWrite) == 0) {
    throw ActionError(attempted, path, "the file is read-only");
  }
}

PosixTarget::PosixTarget(std::shared_ptr<PosixFolder> folder, std::string name, std::string_view path,
                         Spelling spelling)
    : folder_(std::move(folder)), name_(std::move(name)), path_(path), spelling_(spelling) {
  if (folder_->expects_as_spelled())
    existing_ = open_to_read(folder_->descriptor(), name_.c_str(), O_NOFOLLOW);
  if (!existing_.is_open()) look();
}

void PosixTarget::look() {
  if (looked_) return;
  looked_ = true;
  if (existing_.is_open()) {
    look_at(name_);
  } else {
    look_for_spellings();
  }
}

void PosixTarget::look_for_spellings() {
  auto found = folder_->spellings(name_);
  if (!found) fail();
  others_ = std::move(found->others);
  std::string there = name_;
  if (!found->exact) {
    if (others_.empty()) return;
    there = std::move(others_.front());
    others_.erase(others_.begin());
  }
  if (spelling_ == Spelling::kAsItStands) {
    name_ = there;
    others_.clear();
  }
  look_at(there);
}

PosixTarget::~PosixTarget() {
  drop();
}

/// Removes a neighbour that was not put in its place.
void PosixTarget::drop() {
  if (!neighbour_.empty() && names_written()) {
    ::unlinkat(neighbour_folder_->descriptor(), neighbour_.c_str(), 0);
  }
  neighbour_.clear();
}

/// True where the neighbour's name is still that of the file that was written; else false, with errno, which
/// is 0 where another file has the name.
bool PosixTarget::names_written() const {
  struct stat found {};
  if (::fstatat(neighbour_folder_->descriptor(), neighbour_.c_str(), &found, AT_SYMLINK_NOFOLLOW) != 0) {
    return false;
  }
  errno = 0;
  return found.st_dev == written_status_.st_dev && found.st_ino == written_status_.st_ino;
}

void PosixTarget::look_at(const std::string& spelling) {
  if (!existing_.is_open()) {
    existing_ = open_to_read(folder_->descriptor(), spelling.c_str(), O_NOFOLLOW);
  }
  const bool seen = existing_.is_open() ? ::fstat(existing_.descriptor(), &status_) == 0
                                        : vorlund::look_at(folder_->descriptor(), spelling.c_str(), status_,
                                                           AT_SYMLINK_NOFOLLOW);
  if (!seen && errno == ENOENT) return;
  if (!seen) fail();
  if (S_ISDIR(status_.st_mode)) throw ActionError("write", path_, kIsFolder);
  if (!S_ISREG(status_.st_mode)) existing_.close();
  current_ = spelling;
}

bool PosixTarget::keep(Durability durability) {
  const bool as_asked = is_as_asked();
  if (!as_asked) {
    refuse_read_only_files(Writing::kSpelling);
    settle_spelling();
  }
  if (durability == Durability::kFlushed) {
    if (::fsync(existing_.descriptor()) != 0) fail("flush");
    flush_folder();
  }
  return as_asked;
}

int PosixTarget::begin(const std::shared_ptr<PosixFolder>& staging) {
  drop();
  look();
  refuse_read_only_files(Writing::kBytes);
  existing_.close();
  const bool replaces = is_there() && S_ISREG(status_.st_mode);
  const mode_t mode = replaces ? status_.st_mode & kPermissions : kUsualPermissions;
  const bool staged = staging && folder_->takes_files_of(*staging) && create(staging, mode);
  if (!staged && !create(folder_, mode)) fail();
  if (::fstat(written_.descriptor(), &written_status_) != 0) fail();
  if (replaces) set_mode(mode);
  return written_.descriptor();
}

/// Creates the neighbour in a folder under a name that is not taken; false, with errno, where that can't be
/// done.
bool PosixTarget::create(const std::shared_ptr<PosixFolder>& folder, mode_t mode) {
  folder->sweep_left_overs();
  std::string neighbour;
  for (unsigned attempt = 0; !written_.is_open(); ++attempt) {
    neighbour = staging_name(attempt);
    written_ =
        open_at(folder->descriptor(), neighbour.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
    if (!written_.is_open() && errno != EEXIST) return false;
  }
  neighbour_ = std::move(neighbour);
  neighbour_folder_ = folder;
  return true;
}

/// Brings back the permissions that the process's mask has taken from the new file, if any.
void PosixTarget::set_mode(mode_t mode) {
  if ((written_status_.st_mode & kPermissions) != mode && ::fchmod(written_.descriptor(), mode) != 0) fail();
}

bool PosixTarget::finish(Durability durability) {
  if (durability == Durability::kFlushed && ::fsync(written_.descriptor()) != 0) fail("flush");
  // Asked while the file is open: some disks number a file anew once nobody has it open.
  if (!names_written()) {
    if (errno != 0) fail();
    throw ActionError(
        "write", path_,
        "another program has put a file of its own in the place of the new one, \"" + neighbour_ + "\"");
  }
  if (!written_.close()) fail();
  settle_spelling();
  if (::renameat(neighbour_folder_->descriptor(), neighbour_.c_str(), folder_->descriptor(), name_.c_str()) !=
      0) {
    if (errno == EXDEV && neighbour_folder_ != folder_) return false;
    fail();
  }
  neighbour_folder_->name_removed(neighbour_);
  folder_->name_added(name_);
  neighbour_.clear();
  if (durability == Durability::kFlushed) flush_folder();
  return true;
}

/// Flushes the folder, so that the name is on the disk too. Some disks have no such call for folders (shared
/// folders, network and FUSE disks): there it is left to them.
void PosixTarget::flush_folder() const {
  const FileHandle opened = open_at(folder_->descriptor(), ".", O_RDONLY | O_DIRECTORY);
  if (!opened.is_open() || (::fsync(opened.descriptor()) != 0 && errno != EINVAL && errno != ENOTSUP))
    fail("flush the folder of");
}

void PosixTarget::foresee(Writing writing) {
  look();
  refuse_read_only_files(writing);
  if (!folder_->may_be_changed()) fail();
  struct stat status {};
  if (!vorlund::look_at(folder_->descriptor(), name_.c_str(), status, AT_SYMLINK_NOFOLLOW) && errno != ENOENT)
    fail();
}

void PosixTarget::refuse_read_only_files(Writing writing) const {
  if (is_there() && writing == Writing::kBytes) refuse_read_only(status_, "write", path_);
  for (const std::string& other : others_) {
    struct stat status {};
    if (vorlund::look_at(folder_->descriptor(), other.c_str(), status, AT_SYMLINK_NOFOLLOW)) {
      refuse_read_only(status, "write", path_);
    } else if (errno != ENOENT) {
      fail();
    }
  }
}

/// Leaves the file under the asked spelling alone; folders of the same name stay.
void PosixTarget::settle_spelling() {
  if (is_there() && current_ != name_) {
    if (::renameat(folder_->descriptor(), current_.c_str(), folder_->descriptor(), name_.c_str()) != 0)
      fail("give its spelling to");
    folder_->name_removed(current_);
    folder_->name_added(name_);
    current_ = name_;
  }
  for (const std::string& other : others_) {
    if (::unlinkat(folder_->descriptor(), other.c_str(), 0) == 0 || errno == ENOENT) {
      folder_->name_removed(other);
    } else if (errno != EISDIR && errno != EPERM) {
      fail("delete the other spelling of");
    }
  }
}

void PosixTarget::fail(std::string_view attempted) const {
  throw_system_error(attempted, path_);
}

}  // namespace vorlund
