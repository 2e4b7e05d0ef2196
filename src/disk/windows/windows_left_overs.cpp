// Lets the system pick the names by their beginning and end, and looks at each of these closely.
#include "windows/windows_left_overs.h"

#include <windows.h>

#include "windows/windows_path.h"

namespace vorlund {

void delete_matching(const std::wstring& folder, bool (*goes)(std::string_view name)) {
  WIN32_FIND_DATAW entry;
  const HANDLE search = FindFirstFileExW((folder + L"~vorlund-*.bak").c_str(), FindExInfoBasic, &entry,
                                         FindExSearchNameMatch, nullptr, 0);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    if (!goes(from_wide(entry.cFileName))) continue;
    const std::wstring left_over = folder + entry.cFileName;
    SetFileAttributesW(left_over.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(left_over.c_str());
  } while (FindNextFileW(search, &entry) != 0);
  FindClose(search);
}

}  // namespace vorlund
