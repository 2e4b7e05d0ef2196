// Reads the entries of a folder on Windows.
#pragma once

#include <windows.h>

#include <string>

namespace vorlund {

/// Goes once through the names of a folder that fit a mask, "." and ".." left out.
class WindowsListing {
 public:
  /// `folder` is a full path with a backslash at its end.
  WindowsListing(const std::wstring& folder, const wchar_t* mask);
  ~WindowsListing();
  WindowsListing(const WindowsListing&) = delete;
  WindowsListing& operator=(const WindowsListing&) = delete;

  /// The next entry, valid until the next call, links not followed; null at the end, with
  /// ERROR_NO_MORE_FILES, or on failure, with the system's error.
  const WIN32_FIND_DATAW* next();

 private:
  WIN32_FIND_DATAW entry_{};
  HANDLE search_;
  DWORD error_;  ///< of the search for the first one, which is at hand where there was none
  bool first_ = true;
};

/// True for a link, which is replaced or removed itself.
bool is_link(const WIN32_FIND_DATAW& entry);

}  // namespace vorlund
