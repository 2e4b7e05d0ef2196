// Names that a record of another player may hold to lead the program astray.
#pragma once

#include <string>
#include <vector>

namespace vorlund::test {

/// More than a hundred group and folder names that no honest record holds.
std::vector<std::string> hostile_names();

}  // namespace vorlund::test
