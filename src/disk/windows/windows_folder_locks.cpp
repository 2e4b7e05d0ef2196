// Holds a folder by a mutex that is named by the folder's disk and number on it. That the mutex exists is the
// lock; nobody ever waits for it or owns it, so it does not matter which thread took it and how that ended.
#include "windows/windows_folder_locks.h"

#include <array>

#include "disk/file_system.h"
#include "windows/windows_folder.h"
#include "windows/windows_path.h"

namespace vorlund {

namespace {

/// Disk and number of the folder; "" where the disk does not tell.
std::string identity_of(const std::string& path) {
  const WindowsHandle folder =
      open_existing(long_path(path, EntryKind::kFolder), FILE_READ_ATTRIBUTES, FILE_FLAG_BACKUP_SEMANTICS);
  if (!folder.is_open()) throw_windows_error("lock the folder", path);
  BY_HANDLE_FILE_INFORMATION information;
  if (GetFileInformationByHandle(folder.get(), &information) == 0) return {};
  return std::to_string(information.dwVolumeSerialNumber) + "-" + std::to_string(information.nFileIndexHigh) +
         "-" + std::to_string(information.nFileIndexLow);
}

/// True where a mutex of that name exists, be it one that this user may not open.
bool exists(const std::wstring& name) {
  const HANDLE mutex = OpenMutexW(SYNCHRONIZE, FALSE, name.c_str());
  if (mutex == nullptr) return GetLastError() == ERROR_ACCESS_DENIED;
  CloseHandle(mutex);
  return true;
}

}  // namespace

WindowsFolderLock::WindowsFolderLock(const std::string& path) : FolderLock(path, identity_of(path)) {}

FolderLock::Outcome WindowsFolderLock::take() {
  if (identity().empty()) return Outcome::kNoLocks;
  // For all users of the machine; where that is not allowed, for the programs of this one's session.
  for (const wchar_t* scope : {L"Global\\", L"Local\\"}) {
    const std::wstring name = scope + to_wide("Vorlund folder " + identity());
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, name.c_str());
    const DWORD error = GetLastError();
    if (mutex != nullptr && error != ERROR_ALREADY_EXISTS) {
      mutex_ = WindowsHandle(mutex);
      return Outcome::kTaken;
    }
    if (mutex != nullptr) CloseHandle(mutex);
    if (mutex != nullptr || exists(name)) return Outcome::kInUse;
    if (error != ERROR_ACCESS_DENIED) throw_windows_error("lock the folder", path(), error);
  }
  return Outcome::kNoLocks;
}

void WindowsFolderLock::delete_left_overs() {
  std::wstring folder = long_path(path(), EntryKind::kFolder);
  if (folder.back() != L'\\') folder += L'\\';
  delete_matching(folder, is_staging_name_of_another);
}

}  // namespace vorlund
