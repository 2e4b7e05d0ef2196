// The one door to the disk on POSIX systems.
#include <dirent.h>
#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <set>
#include <utility>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "posix/posix_content.h"
#include "posix/posix_folder.h"
#include "posix/posix_folder_locks.h"
#include "posix/posix_folder_reader.h"
#include "posix/posix_program.h"
#include "posix/posix_target.h"

namespace vorlund {

namespace {

constexpr std::string_view kDelete = "delete";

class PosixFileSystem final : public FileSystem {
 public:
  std::string current_folder() override;
  bool FileExists(std::string_view path) override;
  bool FolderExists(std::string_view path) override;
  bool is_there(std::string_view path) override;
  bool lies_inside(std::string_view folder, std::string_view root) override;
  std::vector<std::string> take_unseen() override;
  std::vector<FolderEntry> entries(std::string_view folder) override;
  std::unique_ptr<FileReader> open_file(std::string_view path) override;
  void replace_file(std::string_view path, std::string_view bytes, Durability durability) override;
  CopyOutcome copy_file(std::string_view source, std::string_view target, Durability durability) override;
  void remove_file(std::string_view path) override;
  void foresee(Change change, std::string_view path) override;
  CopyForecast foresee_copy(std::string_view source, std::string_view target) override;
  std::optional<std::uint64_t> free_room(std::string_view folder) override;
  void start_program(std::string_view path, std::string_view folder) override;
  FolderLocks lock_folders(const std::vector<std::string>& folders, std::chrono::milliseconds wait) override;

 protected:
  void begin_action(Pulse pulse, std::string_view staging) override;
  void end_action() override;

 private:
  /// A name in an open folder; no folder, with errno, where the path leads nowhere.
  struct Place {
    std::shared_ptr<PosixFolder> folder;
    std::string name;
  };

  Place place_of(std::string_view path, EntryKind kind);

  /// Lets `attempt` work on the name as it is spelled, and where there is none, on its other spelling.
  /// `attempt` returns false, with errno, on failure.
  template <typename Attempt>
  bool with_spelling(Place& place, Attempt attempt);

  /// What is in the place, of either kind; false, with errno, on failure.
  bool look(Place& place, struct stat& status, int flags = 0);
  /// What is at the path, of either kind. False where nothing is; where there is no right to look as well,
  /// and that is noted. Otherwise a failure is an error.
  bool find(std::string_view path, EntryKind kind, struct stat& status);
  /// The same for a look that has failed, with errno.
  void take_for_missing(std::string_view path);
  /// The kind of what stands in a folder, a link taken as what it leads to; none for what is neither.
  std::optional<EntryKind> kind_of(int descriptor, const PosixFolderReader::Entry& entry,
                                   std::string_view folder);
  /// Not open, with errno, where the place is no folder. `open` opens a name inside an open folder.
  FileHandle open_folder(Place& place, FileHandle (*open)(int folder, const char* name));
  PosixSource open_source(std::string_view path);
  PosixTarget open_target(std::string_view path, Spelling spelling);
  /// The file that is to be deleted, which may be.
  Place removable(std::string_view path);
  /// Takes up the source, and says whether the target, which is looked at, holds its bytes.
  bool holds(PosixTarget& target, const PosixSource& source);

  PosixFolders folders_;
  PosixContent content_;
  std::set<std::string> unseen_;          ///< paths that there was no right to look at
  std::shared_ptr<PosixFolder> staging_;  ///< where copies are written; none: beside their targets
};

PosixFileSystem::Place PosixFileSystem::place_of(std::string_view path, EntryKind kind) {
  const SplitPath parts = split_path(path);
  const bool folder_only = !path.empty() && (path.back() == '\\' || path.back() == '/');
  if (parts.name.empty() || (folder_only && kind == EntryKind::kFile)) {
    errno = ENOENT;
    return {};
  }
  return {folders_.open(parts.folder), std::string(parts.name)};
}

template <typename Attempt>
bool PosixFileSystem::with_spelling(Place& place, Attempt attempt) {
  if (!place.folder) return false;
  if (attempt(place.folder->descriptor(), place.name.c_str())) return true;
  if (errno != ENOENT) return false;
  auto other = place.folder->other_spelling(place.name);
  if (!other) return false;
  place.name = std::move(*other);
  return attempt(place.folder->descriptor(), place.name.c_str());
}

bool PosixFileSystem::look(Place& place, struct stat& status, int flags) {
  return with_spelling(
      place, [&status, flags](int folder, const char* name) { return look_at(folder, name, status, flags); });
}

bool PosixFileSystem::find(std::string_view path, EntryKind kind, struct stat& status) {
  Place place = place_of(path, kind);
  const bool found = look(place, status);
  if (!found) take_for_missing(path);
  return found;
}

void PosixFileSystem::take_for_missing(std::string_view path) {
  if (says_no_right(errno)) {
    unseen_.emplace(path);
  } else if (!says_missing(errno)) {
    throw_system_error("look for", path);
  }
}

std::string PosixFileSystem::current_folder() {
  std::string path(256, '\0');
  while (::getcwd(path.data(), path.size()) == nullptr) {
    if (errno != ERANGE) throw_system_error("find", "the current folder");
    path.resize(path.size() * 2);
  }
  path.resize(path.find('\0'));
  return path;
}

bool PosixFileSystem::FileExists(std::string_view path) {
  struct stat status {};
  return find(path, EntryKind::kFile, status) && S_ISREG(status.st_mode);
}

bool PosixFileSystem::FolderExists(std::string_view path) {
  struct stat status {};
  return find(path, EntryKind::kFolder, status) && S_ISDIR(status.st_mode);
}

bool PosixFileSystem::is_there(std::string_view path) {
  struct stat status {};
  Place place = place_of(path, EntryKind::kFile);
  const bool found = look(place, status);
  if (!found && !says_missing(errno)) throw_system_error("look for", path);
  return found && S_ISREG(status.st_mode);
}

std::vector<std::string> PosixFileSystem::take_unseen() {
  const std::set<std::string> unseen = std::exchange(unseen_, {});
  return {unseen.begin(), unseen.end()};
}

FileHandle open_to_list(int folder, const char* name) {
  return open_at(folder, name, O_RDONLY | O_DIRECTORY);
}

FileHandle PosixFileSystem::open_folder(Place& place, FileHandle (*open)(int, const char*)) {
  FileHandle handle;
  with_spelling(place, [&handle, open](int parent, const char* name) {
    handle = open(parent, name);
    return handle.is_open();
  });
  return handle;
}

bool same_entry(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool PosixFileSystem::lies_inside(std::string_view folder, std::string_view root) {
  constexpr std::string_view kAttempted = "find out what lies above";
  struct stat wanted {};
  struct stat status {};
  Place place = place_of(folder, EntryKind::kFolder);
  FileHandle handle = open_folder(place, open_folder_at);
  if (!handle.is_open()) {
    take_for_missing(folder);
    return false;
  }
  if (::fstat(handle.descriptor(), &status) != 0) throw_system_error(kAttempted, folder);
  if (!find(root, EntryKind::kFolder, wanted)) return false;
  // Upwards by "..", whatever links led down; the root of the disk is its own parent.
  while (!same_entry(status, wanted)) {
    struct stat parent {};
    handle = open_folder_at(handle.descriptor(), "..");
    if (!handle.is_open() || ::fstat(handle.descriptor(), &parent) != 0)
      throw_system_error(kAttempted, folder);
    if (same_entry(status, parent)) return false;
    status = parent;
  }
  return true;
}

std::optional<EntryKind> PosixFileSystem::kind_of(int descriptor, const PosixFolderReader::Entry& entry,
                                                  std::string_view folder) {
  if (entry.type == DT_REG) return EntryKind::kFile;
  if (entry.type == DT_DIR) return EntryKind::kFolder;
  struct stat status {};
  if (!look_at(descriptor, entry.name, status)) {
    take_for_missing(std::string(folder).append("\\").append(entry.name));
    return std::nullopt;
  }
  if (S_ISDIR(status.st_mode)) return EntryKind::kFolder;
  return S_ISREG(status.st_mode) ? std::optional(EntryKind::kFile) : std::nullopt;
}

std::vector<FolderEntry> PosixFileSystem::entries(std::string_view folder) {
  constexpr std::string_view kAttempted = "list the folder";
  Place place = place_of(folder, EntryKind::kFolder);
  FileHandle handle = open_folder(place, open_to_list);
  if (!handle.is_open() && says_missing(errno)) return {};
  if (!handle.is_open()) throw_system_error(kAttempted, folder);

  std::vector<FolderEntry> found;
  PosixFolderReader reader(handle.descriptor());
  while (const auto* entry = reader.next()) {
    const std::string_view name = entry->name;
    if (name.find('\\') != std::string_view::npos) continue;
    const auto kind = kind_of(handle.descriptor(), *entry, folder);
    if (kind) found.push_back({std::string(name), *kind, name.front() == '.'});
  }
  if (errno != 0) throw_system_error(kAttempted, folder);
  return found;
}

PosixSource PosixFileSystem::open_source(std::string_view path) {
  PosixSource source;
  source.path = path;
  Place place = place_of(path, EntryKind::kFile);
  const bool opened = with_spelling(place, [&source](int folder, const char* name) {
    source.handle = open_to_read(folder, name);
    return source.handle.is_open();
  });
  if (!opened || ::fstat(source.handle.descriptor(), &source.status) != 0) throw_system_error("read", path);
  if (S_ISDIR(source.status.st_mode)) throw ActionError("read", path, kIsFolder);
  if (!S_ISREG(source.status.st_mode)) throw ActionError("read", path, "it is not a regular file");
  return source;
}

std::unique_ptr<FileReader> PosixFileSystem::open_file(std::string_view path) {
  return reader_of(open_source(path));
}

PosixTarget PosixFileSystem::open_target(std::string_view path, Spelling spelling) {
  Place place = place_of(path, EntryKind::kFile);
  if (!place.folder) throw_system_error("write", path);
  return PosixTarget(std::move(place.folder), std::move(place.name), path, spelling);
}

void PosixFileSystem::replace_file(std::string_view path, std::string_view bytes, Durability durability) {
  PosixTarget target = open_target(path, Spelling::kAsItStands);
  const int written = target.begin(nullptr);
  if (!write_all(written, bytes)) throw_system_error("write", path);
  target.finish(durability);
}

bool PosixFileSystem::holds(PosixTarget& target, const PosixSource& source) {
  content_.take(source);
  if (target.readable() >= 0 && content_.known_same(source, target.readable())) return true;
  target.look();
  return target.readable() >= 0 && target.status().st_size == source.status.st_size &&
         content_.same_as(source, target.readable());
}

CopyOutcome PosixFileSystem::copy_file(std::string_view source_path, std::string_view target_path,
                                       Durability durability) {
  const PosixSource source = open_source(source_path);
  PosixTarget target = open_target(target_path, Spelling::kAsAsked);
  return copy_to(target, holds(target, source), staging_, durability,
                 [&](int written) { content_.write_to(source, written, target_path); });
}

CopyForecast PosixFileSystem::foresee_copy(std::string_view source_path, std::string_view target_path) {
  const PosixSource source = open_source(source_path);
  PosixTarget target = open_target(target_path, Spelling::kAsAsked);
  return foresee_copy_to(target, holds(target, source), source.size());
}

PosixFileSystem::Place PosixFileSystem::removable(std::string_view path) {
  Place place = place_of(path, EntryKind::kFile);
  struct stat status {};
  if (!look(place, status, AT_SYMLINK_NOFOLLOW)) throw_system_error(kDelete, path);
  refuse_read_only(status, kDelete, path);
  if (S_ISDIR(status.st_mode)) throw ActionError(kDelete, path, kIsFolder);
  return place;
}

void PosixFileSystem::foresee(Change change, std::string_view path) {
  if (change == Change::kRemove) {
    if (!removable(path).folder->may_be_changed()) throw_system_error(kDelete, path);
    return;
  }
  const Spelling spelling = change == Change::kCopy ? Spelling::kAsAsked : Spelling::kAsItStands;
  open_target(path, spelling).foresee(Writing::kBytes);
}

std::optional<std::uint64_t> PosixFileSystem::free_room(std::string_view folder) {
  Place place = place_of(folder, EntryKind::kFolder);
  const FileHandle handle = open_folder(place, open_folder_at);
  struct statvfs room {};
  if (!handle.is_open() || ::fstatvfs(handle.descriptor(), &room) != 0) return std::nullopt;
  return std::uint64_t{room.f_bavail} * room.f_frsize;
}

void PosixFileSystem::remove_file(std::string_view path) {
  const Place place = removable(path);
  if (::unlinkat(place.folder->descriptor(), place.name.c_str(), 0) != 0) throw_system_error(kDelete, path);
  place.folder->name_removed(place.name);
}

void PosixFileSystem::start_program(std::string_view path, std::string_view folder) {
  Place program = place_of(path, EntryKind::kFile);
  struct stat status {};
  if (!look(program, status)) throw_system_error("start", path);
  const std::string beginning = read_file(path, kProgramBeginning);
  std::string spelled = join_path(program.folder->path(), program.name);
  if (spelled.front() != '/') spelled = join_path(current_folder(), spelled);

  Place place = place_of(folder, EntryKind::kFolder);
  const FileHandle start_folder = open_folder(place, open_folder_at);
  if (!start_folder.is_open()) throw_system_error("start a program in", folder);
  start_detached(command_for(spelled, beginning), start_folder.descriptor(), path);
}

FolderLocks PosixFileSystem::lock_folders(const std::vector<std::string>& folders,
                                          std::chrono::milliseconds wait) {
  std::vector<std::unique_ptr<FolderLock>> locks;
  for (const std::string& path : folders) {
    Place place = place_of(path, EntryKind::kFolder);
    FileHandle handle = open_folder(place, open_to_list);
    if (handle.is_open()) {
      locks.push_back(std::make_unique<PosixFolderLock>(path, std::move(handle)));
    } else if (!says_missing(errno)) {
      throw_system_error("lock the folder", path);
    }
  }
  return FolderLocks(std::move(locks), wait);
}

void PosixFileSystem::begin_action(Pulse pulse, std::string_view staging) {
  content_.set_pulse(std::move(pulse));
  folders_.remember();
  if (!staging.empty()) staging_ = place_of(join_path(staging, "any"), EntryKind::kFile).folder;
}

void PosixFileSystem::end_action() {
  content_.set_pulse({});
  staging_.reset();
  folders_.forget();
}

}  // namespace

std::unique_ptr<FileSystem> make_platform_file_system() {
  return std::make_unique<PosixFileSystem>();
}

}  // namespace vorlund
