// What a file system tells of a folder, to be compared with what the disk holds.
#pragma once

#include <map>
#include <string>

#include "disk/file_system.h"

namespace vorlund::test {

/// Every file below a folder, as TemporaryFolder::tree gives it, but asked of a file system.
std::map<std::string, std::string> tree_of(FileSystem& files, const std::string& folder);

}  // namespace vorlund::test
