// The one door to the disk on Windows, through wide-character calls alone.
#include <windows.h>

#include <memory>
#include <set>
#include <utility>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "windows/windows_content.h"
#include "windows/windows_folder.h"
#include "windows/windows_folder_locks.h"
#include "windows/windows_listing.h"
#include "windows/windows_path.h"
#include "windows/windows_program.h"
#include "windows/windows_target.h"

namespace vorlund {

namespace {

constexpr std::string_view kDelete = "delete";

/// Attributes of what a path leads to, links followed; none, with the system's error, on failure.
std::optional<DWORD> attributes_of(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return std::nullopt;
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return attributes;
  const WindowsHandle opened = open_existing(path, FILE_READ_ATTRIBUTES, FILE_FLAG_BACKUP_SEMANTICS);
  BY_HANDLE_FILE_INFORMATION information;
  if (!opened.is_open() || GetFileInformationByHandle(opened.get(), &information) == 0) return std::nullopt;
  return information.dwFileAttributes;
}

bool is_folder(DWORD attributes) {
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

class WindowsFileSystem final : public FileSystem {
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
  void start_program(std::string_view path, std::string_view folder) override {
    start_windows_program(path, folder);
  }
  FolderLocks lock_folders(const std::vector<std::string>& folders, std::chrono::milliseconds wait) override;

 protected:
  void begin_action(Pulse pulse, std::string_view staging) override;
  void end_action() override;

 private:
  /// After a look that failed: returns where nothing is there; where there is no right to look as well, and
  /// that is noted. Otherwise the failure is an error.
  void take_for_missing(std::string_view path);
  /// True where the target holds the source's bytes.
  bool holds(const WindowsTarget& target, const WindowsSource& source);
  /// Path of the file that is to be deleted, which may be.
  static std::wstring removable(std::string_view path);

  WindowsPatience patience_;
  WindowsContent content_{patience_};
  WindowsFolders folders_;
  std::shared_ptr<WindowsFolder> staging_;  ///< where copies are written; none: beside their targets
  std::set<std::string> unseen_;            ///< paths that there was no right to look at
};

std::string WindowsFileSystem::current_folder() {
  const std::wstring folder = current_folder_wide();
  if (folder.empty()) throw_windows_error("find", "the current folder");
  return from_wide(folder);
}

void WindowsFileSystem::take_for_missing(std::string_view path) {
  const DWORD error = GetLastError();
  if (error == ERROR_ACCESS_DENIED) unseen_.emplace(path);
  if (tells_nothing(error) || says_in_use(error)) throw_windows_error("look for", path, error);
}

std::vector<std::string> WindowsFileSystem::take_unseen() {
  const std::set<std::string> unseen = std::exchange(unseen_, {});
  return {unseen.begin(), unseen.end()};
}

bool WindowsFileSystem::FileExists(std::string_view path) {
  const auto attributes = attributes_of(long_path(path, EntryKind::kFile));
  if (!attributes) take_for_missing(path);
  return attributes && !is_folder(*attributes);
}

bool WindowsFileSystem::FolderExists(std::string_view path) {
  const auto attributes = attributes_of(long_path(path, EntryKind::kFolder));
  if (!attributes) take_for_missing(path);
  return attributes && is_folder(*attributes);
}

bool WindowsFileSystem::is_there(std::string_view path) {
  const auto attributes = attributes_of(long_path(path, EntryKind::kFile));
  const DWORD error = attributes ? ERROR_SUCCESS : GetLastError();
  const bool unknown = error == ERROR_ACCESS_DENIED || tells_nothing(error) || says_in_use(error);
  if (unknown) throw_windows_error("look for", path, error);
  return attributes && !is_folder(*attributes);
}

bool WindowsFileSystem::lies_inside(std::string_view folder, std::string_view root) {
  if (!FolderExists(folder)) return false;
  const std::wstring above = resolved_folder(long_path(root, EntryKind::kFolder));
  if (above.empty()) take_for_missing(root);
  const std::wstring below = resolved_folder(long_path(folder, EntryKind::kFolder));
  if (below.empty()) take_for_missing(folder);
  return !above.empty() && below.starts_with(above);
}

std::vector<FolderEntry> WindowsFileSystem::entries(std::string_view folder) {
  std::wstring prefix = long_path(folder, EntryKind::kFolder);
  if (prefix.empty()) return {};
  if (prefix.back() != L'\\') prefix += L'\\';

  std::vector<FolderEntry> found;
  WindowsListing listing(prefix, L"*");
  while (const auto* entry = listing.next()) {
    const std::string name = from_wide(entry->cFileName);
    std::optional<DWORD> attributes = entry->dwFileAttributes;
    if (is_link(*entry)) attributes = attributes_of(prefix + entry->cFileName);
    if (!attributes) {
      take_for_missing(std::string(folder).append("\\").append(name));
      continue;
    }
    const bool hidden = (entry->dwFileAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
    found.push_back({name, is_folder(*attributes) ? EntryKind::kFolder : EntryKind::kFile, hidden});
  }
  const DWORD error = GetLastError();
  const bool no_folder =
      error == ERROR_PATH_NOT_FOUND || error == ERROR_DIRECTORY || error == ERROR_INVALID_NAME;
  if (error != ERROR_NO_MORE_FILES && !no_folder) throw_windows_error("list the folder", folder, error);
  return found;
}

/// Reads an open file block by block.
class WindowsReader final : public FileReader {
 public:
  WindowsReader(std::string_view path, const WindowsPatience& patience) : source_(path, patience) {}

  std::uint64_t size() const override { return source_.size(); }

  std::size_t read(char* bytes, std::size_t size) override {
    std::size_t got = 0;
    if (!read_up_to(source_.handle(), bytes, size, got)) throw_windows_error("read", source_.path());
    return got;
  }

  void seek(std::uint64_t offset) override {
    if (!go_to(source_.handle(), offset)) throw_windows_error("read", source_.path());
  }

 private:
  WindowsSource source_;
};

std::unique_ptr<FileReader> WindowsFileSystem::open_file(std::string_view path) {
  return std::make_unique<WindowsReader>(path, patience_);
}

void WindowsFileSystem::replace_file(std::string_view path, std::string_view bytes, Durability durability) {
  WindowsTarget target(folders_, path, Spelling::kAsItStands, patience_);
  const HANDLE written = target.begin(nullptr);
  if (!write_all(written, bytes)) throw_windows_error("write", path);
  target.finish(durability);
}

bool WindowsFileSystem::holds(const WindowsTarget& target, const WindowsSource& source) {
  const WindowsHandle existing = target.open_to_compare(source.size());
  return existing.is_open() && content_.same(source, existing.get());
}

CopyOutcome WindowsFileSystem::copy_file(std::string_view source_path, std::string_view target_path,
                                         Durability durability) {
  const WindowsSource source(source_path, patience_);
  WindowsTarget target(folders_, target_path, Spelling::kAsAsked, patience_);
  return copy_to(target, holds(target, source), staging_, durability,
                 [&](HANDLE written) { content_.copy(source, written, target_path); });
}

CopyForecast WindowsFileSystem::foresee_copy(std::string_view source_path, std::string_view target_path) {
  const WindowsSource source(source_path, patience_);
  const WindowsTarget target(folders_, target_path, Spelling::kAsAsked, patience_);
  return foresee_copy_to(target, holds(target, source), source.size());
}

void WindowsFileSystem::foresee(Change change, std::string_view path) {
  if (change == Change::kRemove) {
    // Asking for the right to delete a file deletes nothing.
    const std::wstring spelled = removable(path);
    if (!open_existing(spelled, DELETE, FILE_FLAG_OPEN_REPARSE_POINT).is_open())
      throw_windows_error(kDelete, path, likely_cause(GetLastError(), spelled));
    return;
  }
  const Spelling spelling = change == Change::kCopy ? Spelling::kAsAsked : Spelling::kAsItStands;
  WindowsTarget(folders_, path, spelling, patience_).foresee(Writing::kBytes);
}

std::optional<std::uint64_t> WindowsFileSystem::free_room(std::string_view folder) {
  ULARGE_INTEGER room;
  if (GetDiskFreeSpaceExW(long_path(folder, EntryKind::kFolder).c_str(), &room, nullptr, nullptr) == 0)
    return std::nullopt;
  return room.QuadPart;
}

std::wstring WindowsFileSystem::removable(std::string_view path) {
  const std::wstring spelled = long_path(path, EntryKind::kFile);
  const DWORD attributes = GetFileAttributesW(spelled.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) throw_windows_error(kDelete, path);
  refuse_read_only(attributes, kDelete, path);
  return spelled;
}

void WindowsFileSystem::remove_file(std::string_view path) {
  const std::wstring spelled = removable(path);
  if (!patience_.insist_on_change([&] { return DeleteFileW(spelled.c_str()) != 0; })) {
    throw_windows_error(kDelete, path, likely_cause(GetLastError(), spelled));
  }
  const std::size_t name_begin = spelled.rfind(L'\\') + 1;
  folders_.open(spelled.substr(0, name_begin))->name_removed(spelled.substr(name_begin));
}

void WindowsFileSystem::begin_action(Pulse pulse, std::string_view staging) {
  patience_.set_pulse(std::move(pulse));
  folders_.remember();
  const std::wstring folder = long_path(staging, EntryKind::kFolder);
  if (!folder.empty()) staging_ = folders_.open(folder + L"\\");
}

void WindowsFileSystem::end_action() {
  patience_.set_pulse({});
  staging_.reset();
  folders_.forget();
}

FolderLocks WindowsFileSystem::lock_folders(const std::vector<std::string>& folders,
                                            std::chrono::milliseconds wait) {
  std::vector<std::unique_ptr<FolderLock>> locks;
  for (const std::string& path : folders) {
    if (FolderExists(path)) locks.push_back(std::make_unique<WindowsFolderLock>(path));
  }
  return FolderLocks(std::move(locks), wait);
}

}  // namespace

std::unique_ptr<FileSystem> make_platform_file_system() {
  return std::make_unique<WindowsFileSystem>();
}

}  // namespace vorlund
