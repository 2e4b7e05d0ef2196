// The program against a reference: both take turns in one run, and a figure is the median of the rounds'
// ratios.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "game_install.h"

namespace vorlund::bench {

/// A measured figure and the most it may come to; 0 where it is shown alone.
struct Result {
  std::string name;
  double program = 0;    ///< seconds, median of the rounds
  double reference = 0;  ///< seconds, median of the rounds
  double figure = 0;
  double most = 0;
};

/// What is installed, against what, what stands there before, and the ratio that is allowed.
struct Comparison {
  const char* name;
  std::uint64_t files;
  std::uint64_t bytes;
  GameInstall::Reference reference;
  GameInstall::Targets before_program;
  GameInstall::Targets before_reference;
  double most;
};

/// Measures in a folder that is made anew. Program and reference take turns, each round in the other order.
Result compare(const std::filesystem::path& folder, const Comparison& comparison, int rounds);

/// How the time grows with each doubling.
struct Growth {
  const char* name;
  std::vector<int> sizes;       ///< how many small files are installed
  GameInstall::Targets before;  ///< what stands there
  double most;
};

/// Installs ever more small files. Writes the times into a file where one is named.
std::vector<Result> grow(const std::filesystem::path& folder, const Growth& growth, int rounds,
                         const std::string& growth_file);

/// Prints the table; false where a figure is larger than it may be.
bool print_results(const std::vector<Result>& results);

}  // namespace vorlund::bench
