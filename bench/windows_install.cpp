// Measures the installer of game sets on Windows against plain loops and xcopy: install_bench FOLDER FILES
// ROUNDS.
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "comparison.h"

int main(int argc, char** argv) try {
  using namespace vorlund::bench;
  using Reference = GameInstall::Reference;
  using Targets = GameInstall::Targets;
  if (argc != 4) throw std::invalid_argument("usage: install_bench FOLDER FILES ROUNDS");
  const std::filesystem::path folder = argv[1];
  const std::uint64_t files = std::strtoull(argv[2], nullptr, 10);
  const int rounds = std::atoi(argv[3]);
  constexpr std::uint64_t kBytes = 20 * 1024;
  const Comparison comparisons[] = {
      {"created, of the loop", files, kBytes, Reference::kCopying, Targets::kEmpty, Targets::kEmpty, 1.3},
      {"unchanged, of the loop", files, kBytes, Reference::kComparing, Targets::kSame, Targets::kSame, 1.1},
      {"replaced, of the loop", files, kBytes, Reference::kCopying, Targets::kDifferent, Targets::kDifferent,
       0},
      {"created, of xcopy", files, kBytes, Reference::kCommand, Targets::kEmpty, Targets::kEmpty, 0},
  };
  std::vector<Result> results;
  for (const Comparison& comparison : comparisons)
    results.push_back(compare(folder / "compared", comparison, rounds));
  const int most = static_cast<int>(files);
  const std::vector<int> sizes = {most / 8, most / 4, most / 2, most};
  // Under Wine each new name costs a look through the folder, for its other spellings: the loop grows alike.
  const Growth growths[] = {{"unchanged, grow to", sizes, Targets::kSame, 2.2},
                            {"replaced, grow to", sizes, Targets::kDifferent, 2.2},
                            {"created, grow to", sizes, Targets::kEmpty, 0}};
  for (const Growth& growth : growths) {
    for (const Result& result : grow(folder / "growing", growth, rounds, "")) results.push_back(result);
  }
  return print_results(results) ? 0 : 1;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 2;
}
