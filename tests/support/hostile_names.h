// Names that a record of another player may hold to lead the program astray.
#pragma once

#include <string>
#include <vector>

namespace vorlund::test {

/// More than a hundred group and folder names that no honest record holds.
std::vector<std::string> hostile_names();

/// True for those that a folder can be made under, here.
bool can_be_folder(const std::string& name);

/// True for those of separators alone: joined to a folder they mean the folder itself.
bool is_separators(const std::string& name);

}  // namespace vorlund::test
