// Asks the disk for one name, or remembers all of a folder during an action.
#include "windows/windows_folder.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "disk/file_system.h"
#include "windows/windows_file.h"
#include "windows/windows_listing.h"
#include "windows/windows_path.h"

namespace vorlund {

namespace {

/// An action works in a handful of folders at a time; the bound keeps memory small.
constexpr std::size_t kFoldersKept = 16;

/// The name in upper case, by the rules of the disks.
std::wstring upper(const std::wstring& name) {
  std::wstring folded(name.size(), L'\0');
  const auto size = static_cast<int>(name.size());
  const int done = LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, name.data(), size, folded.data(),
                                 size, nullptr, nullptr, 0);
  return done == size ? folded : name;
}

WindowsEntry entry_of(const WIN32_FIND_DATAW& found) {
  return {found.cFileName, found.dwFileAttributes, is_link(found),
          (std::uint64_t{found.nFileSizeHigh} << 32) | found.nFileSizeLow};
}

}  // namespace

std::optional<WindowsEntry> WindowsFolder::find(const std::wstring& name) {
  // Short forms have such a sign, and no listing names them.
  if (memory_ == Memory::kRemembered && name.find(L'~') == std::wstring::npos) {
    if (!remember_names()) return std::nullopt;
    const auto found = names_->find(upper(name));
    if (found != names_->end()) return found->second;
  } else {
    WindowsListing listing(path_, name.c_str());
    if (const auto* found = listing.next()) return entry_of(*found);
    if (GetLastError() != ERROR_NO_MORE_FILES) return std::nullopt;
  }
  SetLastError(ERROR_FILE_NOT_FOUND);
  return std::nullopt;
}

bool WindowsFolder::remember_names() {
  if (names_) return true;
  names_.emplace();
  WindowsListing listing(path_, L"*");
  while (const auto* found = listing.next()) name_written(entry_of(*found));
  const DWORD error = GetLastError();
  if (error != ERROR_NO_MORE_FILES) names_.reset();
  SetLastError(error);
  return names_.has_value();
}

const std::string& WindowsFolder::nature() {
  if (nature_) return *nature_;
  nature_.emplace();
  const WindowsHandle opened =
      open_existing(path_, FILE_READ_ATTRIBUTES | READ_CONTROL, FILE_FLAG_BACKUP_SEMANTICS);
  BY_HANDLE_FILE_INFORMATION information;
  if (!opened.is_open() || GetFileInformationByHandle(opened.get(), &information) == 0) return *nature_;
  DWORD size = 0;
  GetKernelObjectSecurity(opened.get(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::string rights(size, '\0');
  if (GetKernelObjectSecurity(opened.get(), DACL_SECURITY_INFORMATION, rights.data(), size, &size) == 0)
    return *nature_;
  constexpr DWORD kInherited = FILE_ATTRIBUTE_COMPRESSED | FILE_ATTRIBUTE_ENCRYPTED;
  nature_ = std::to_string(information.dwVolumeSerialNumber) + " " +
            std::to_string(information.dwFileAttributes & kInherited) + " " + rights;
  return *nature_;
}

bool WindowsFolder::takes_files_of(WindowsFolder& other) {
  return !nature().empty() && nature() == other.nature();
}

void WindowsFolder::sweep_left_overs() {
  if (memory_ == Memory::kRemembered && std::exchange(swept_, true)) return;
  delete_matching(path_, is_left_over);
}

void WindowsFolder::name_written(WindowsEntry entry) {
  if (names_) names_->insert_or_assign(upper(entry.name), std::move(entry));
}

void WindowsFolder::name_removed(const std::wstring& name) {
  if (names_) names_->erase(upper(name));
}

void WindowsFolders::forget() {
  remembering_ = false;
  kept_.clear();
}

std::shared_ptr<WindowsFolder> WindowsFolders::open(const std::wstring& path) {
  const auto kept =
      std::find_if(kept_.begin(), kept_.end(), [&path](const Kept& one) { return one.path == path; });
  if (kept != kept_.end()) {
    kept_.splice(kept_.begin(), kept_, kept);
    return kept->folder;
  }
  const std::wstring resolved = remembering_ ? resolved_folder(path) : std::wstring();
  if (resolved.empty()) return std::make_shared<WindowsFolder>(path, WindowsFolder::Memory::kFresh);
  const auto same = std::find_if(kept_.begin(), kept_.end(),
                                 [&resolved](const Kept& one) { return one.resolved == resolved; });
  std::shared_ptr<WindowsFolder> folder;
  if (same != kept_.end()) {
    folder = same->folder;
  } else {
    folder = std::make_shared<WindowsFolder>(path, WindowsFolder::Memory::kRemembered);
  }
  kept_.push_front({path, resolved, folder});
  if (kept_.size() > kFoldersKept) kept_.pop_back();
  return folder;
}

std::wstring resolved_folder(const std::wstring& path) {
  const WindowsHandle opened = open_existing(path, FILE_READ_ATTRIBUTES, FILE_FLAG_BACKUP_SEMANTICS);
  if (!opened.is_open()) return {};
  std::wstring resolved(GetFinalPathNameByHandleW(opened.get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
  const DWORD length = GetFinalPathNameByHandleW(opened.get(), resolved.data(),
                                                 static_cast<DWORD>(resolved.size()), FILE_NAME_NORMALIZED);
  if (length == 0 || length >= resolved.size()) {
    // Wine knows no such names of more than 260 characters; there a path stands for itself.
    resolved = to_wide(to_upper(from_wide(path)));
  } else {
    resolved.resize(length);
  }
  if (resolved.back() != L'\\') resolved += L'\\';
  return resolved;
}

void delete_matching(const std::wstring& folder, bool (*goes)(std::string_view name)) {
  WindowsListing listing(folder, L"~vorlund-*.bak");
  while (const auto* entry = listing.next()) {
    if (!goes(from_wide(entry->cFileName))) continue;
    const std::wstring left_over = folder + entry->cFileName;
    SetFileAttributesW(left_over.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(left_over.c_str());
  }
}

}  // namespace vorlund
