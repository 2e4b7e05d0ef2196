// The one door to the disk on Windows, through wide-character calls alone.
#include <windows.h>

#include <algorithm>
#include <memory>
#include <set>
#include <utility>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "windows/windows_content.h"
#include "windows/windows_folder_locks.h"
#include "windows/windows_path.h"
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

/// Where links lead a folder's path, ending in a backslash; "", with the system's error, on failure.
std::wstring resolved_folder(std::string_view path) {
  const WindowsHandle opened =
      open_existing(long_path(path, EntryKind::kFolder), FILE_READ_ATTRIBUTES, FILE_FLAG_BACKUP_SEMANTICS);
  if (!opened.is_open()) return {};
  std::wstring resolved(GetFinalPathNameByHandleW(opened.get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
  const DWORD length = GetFinalPathNameByHandleW(opened.get(), resolved.data(),
                                                 static_cast<DWORD>(resolved.size()), FILE_NAME_NORMALIZED);
  if (length == 0 || length >= resolved.size()) return {};
  resolved.resize(length);
  if (resolved.back() != L'\\') resolved += L'\\';
  return resolved;
}

bool is_folder(DWORD attributes) {
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

struct CloseSearch {
  void operator()(HANDLE search) const { FindClose(search); }
};
using Search = std::unique_ptr<void, CloseSearch>;

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
  void start_program(std::string_view path, std::string_view folder) override;
  FolderLocks lock_folders(const std::vector<std::string>& folders, std::chrono::milliseconds wait) override;

 protected:
  // Windows finds names in any spelling by itself, so there is nothing to remember during an action.
  /// Copies are written beside their targets: a file moved out of another folder would keep the access rights
  /// that it inherited there.
  void begin_action(Pulse pulse, std::string_view) override {
    patience_.set_pulse(std::move(pulse));
    unseen_.clear();
  }
  void end_action() override { patience_.set_pulse({}); }

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
  std::set<std::string> unseen_;  ///< paths that there was no right to look at
};

std::string WindowsFileSystem::current_folder() {
  const std::wstring folder = current_folder_wide();
  if (folder.empty()) throw_windows_error("find", "the current folder");
  return from_wide(folder);
}

void WindowsFileSystem::take_for_missing(std::string_view path) {
  const DWORD error = GetLastError();
  if (error == ERROR_ACCESS_DENIED) unseen_.emplace(path);
  if (tells_nothing(error)) throw_windows_error("look for", path, error);
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
  if (error == ERROR_ACCESS_DENIED || tells_nothing(error)) throw_windows_error("look for", path, error);
  return attributes && !is_folder(*attributes);
}

bool WindowsFileSystem::lies_inside(std::string_view folder, std::string_view root) {
  if (!FolderExists(folder)) return false;
  const std::wstring above = resolved_folder(root);
  if (above.empty()) take_for_missing(root);
  const std::wstring below = resolved_folder(folder);
  if (below.empty()) take_for_missing(folder);
  return !above.empty() && below.starts_with(above);
}

std::vector<FolderEntry> WindowsFileSystem::entries(std::string_view folder) {
  std::wstring prefix = long_path(folder, EntryKind::kFolder);
  if (prefix.empty()) return {};
  if (prefix.back() != L'\\') prefix += L'\\';

  WIN32_FIND_DATAW entry;
  const HANDLE first = FindFirstFileExW((prefix + L"*").c_str(), FindExInfoBasic, &entry,
                                        FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  if (first == INVALID_HANDLE_VALUE) {
    const DWORD error = GetLastError();
    const bool missing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ||
                         error == ERROR_DIRECTORY || error == ERROR_INVALID_NAME;
    if (!missing) throw_windows_error("list the folder", folder, error);
    return {};
  }
  const Search search(first);
  std::vector<FolderEntry> found;
  do {
    const std::wstring_view name = entry.cFileName;
    if (name == L"." || name == L"..") continue;
    const auto attributes = is_link(entry) ? attributes_of(prefix + entry.cFileName) : entry.dwFileAttributes;
    if (!attributes) {
      take_for_missing(std::string(folder).append("\\").append(from_wide(name)));
      continue;
    }
    const bool hidden = (entry.dwFileAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
    found.push_back(
        {from_wide(name), is_folder(*attributes) ? EntryKind::kFolder : EntryKind::kFile, hidden});
  } while (FindNextFileW(search.get(), &entry) != 0);
  const DWORD error = GetLastError();
  if (error != ERROR_NO_MORE_FILES) throw_windows_error("list the folder", folder, error);
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

 private:
  WindowsSource source_;
};

std::unique_ptr<FileReader> WindowsFileSystem::open_file(std::string_view path) {
  return std::make_unique<WindowsReader>(path, patience_);
}

void WindowsFileSystem::replace_file(std::string_view path, std::string_view bytes, Durability durability) {
  WindowsTarget target(path, Spelling::kAsItStands, patience_);
  const HANDLE written = target.begin();
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
  WindowsTarget target(target_path, Spelling::kAsAsked, patience_);
  if (holds(target, source)) {
    return target.keep(durability) ? CopyOutcome::kUnchanged : CopyOutcome::kWritten;
  }
  content_.copy(source, target.begin(), target_path);
  target.finish(durability);
  return CopyOutcome::kWritten;
}

CopyForecast WindowsFileSystem::foresee_copy(std::string_view source_path, std::string_view target_path) {
  const WindowsSource source(source_path, patience_);
  const WindowsTarget target(target_path, Spelling::kAsAsked, patience_);
  const bool same = holds(target, source);
  if (same && target.is_as_asked()) return {CopyOutcome::kUnchanged, source.size()};
  target.foresee(same ? WindowsTarget::Writing::kSpelling : WindowsTarget::Writing::kBytes);
  return {CopyOutcome::kWritten, source.size()};
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
  WindowsTarget(path, spelling, patience_).foresee(WindowsTarget::Writing::kBytes);
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
}

void WindowsFileSystem::start_program(std::string_view path, std::string_view folder) {
  // Programs are given the plain form: many don't know the long one.
  const std::wstring program = absolute_path(path, EntryKind::kFile);
  const std::wstring start_folder = absolute_path(folder, EntryKind::kFolder);
  std::wstring command_line = L"\"" + program + L"\"";
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(program.c_str(), command_line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     start_folder.c_str(), &start, &process) == 0) {
    throw_windows_error("start", path);
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
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
