// The first entry comes with the search itself, the others one by one.
#include "windows/windows_listing.h"

#include <string_view>
#include <utility>

namespace vorlund {

WindowsListing::WindowsListing(const std::wstring& folder, const wchar_t* mask)
    : search_(FindFirstFileExW((folder + mask).c_str(), FindExInfoBasic, &entry_, FindExSearchNameMatch,
                               nullptr, FIND_FIRST_EX_LARGE_FETCH)),
      error_(search_ == INVALID_HANDLE_VALUE ? GetLastError() : ERROR_SUCCESS) {
  // A drive's root has no entry that stands for itself.
  if (error_ == ERROR_FILE_NOT_FOUND) error_ = ERROR_NO_MORE_FILES;
}

WindowsListing::~WindowsListing() {
  if (search_ != INVALID_HANDLE_VALUE) FindClose(search_);
}

const WIN32_FIND_DATAW* WindowsListing::next() {
  if (error_ != ERROR_SUCCESS) {
    SetLastError(error_);
    return nullptr;
  }
  while (std::exchange(first_, false) || FindNextFileW(search_, &entry_) != 0) {
    const std::wstring_view name = entry_.cFileName;
    if (name != L"." && name != L"..") return &entry_;
  }
  return nullptr;
}

bool is_link(const WIN32_FIND_DATAW& entry) {
  return (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
         IsReparseTagNameSurrogate(entry.dwReserved0);
}

}  // namespace vorlund
