// Listings of files and folders: the masks and the order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "disk/file_system.h"

namespace vorlund {

/// True when the name matches the pattern: one or more masks separated by ";", "*" standing for any run of
/// characters and "?" for one, without regard to case. "*.*" matches every name, those without a dot too.
bool matches_pattern(std::string_view name, std::string_view pattern);

/// Bare names of the files directly in the folder that match, hidden and system files left out, ascending
/// without regard to case. A folder that does not exist gives none.
std::vector<std::string> list_files(FileSystem& files, std::string_view folder, std::string_view pattern);

/// As `list_files`, from entries that were read before: for callers that apply several patterns to one
/// folder.
std::vector<std::string> matching_files(const std::vector<FolderEntry>& entries, std::string_view pattern);

/// Bare names of the folders directly in the folder, ascending without regard to case. The path of each is
/// the folder, a backslash and the name.
std::vector<std::string> list_folders(FileSystem& files, std::string_view folder);

}  // namespace vorlund
