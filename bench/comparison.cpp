// Takes turns and prints what came of it.
#include "comparison.h"

#include <cstdio>
#include <memory>

#include "measure.h"

namespace vorlund::bench {

Result compare(const std::filesystem::path& folder, const Comparison& comparison, int rounds) {
  const GameInstall install(folder, comparison.files, comparison.bytes);
  std::vector<double> program;
  std::vector<double> reference;
  const auto take_program = [&] {
    install.prepare_program(comparison.before_program);
    program.push_back(install.run_program());
  };
  const auto take_reference = [&] {
    install.prepare_reference(comparison.before_reference);
    reference.push_back(install.run_reference(comparison.reference));
  };
  for (int round = 0; round < rounds; ++round) {
    if (round % 2 == 0) take_program();
    take_reference();
    if (round % 2 == 1) take_program();
  }
  return {comparison.name, median(program), median(reference), median_ratio(program, reference),
          comparison.most};
}

std::vector<Result> grow(const std::filesystem::path& folder, const Growth& growth, int rounds,
                         const std::string& growth_file) {
  constexpr std::uint64_t kBytes = 4096;
  std::vector<std::unique_ptr<GameInstall>> installs;
  for (const int files : growth.sizes) {
    installs.push_back(std::make_unique<GameInstall>(folder / std::to_string(files),
                                                     static_cast<std::uint64_t>(files), kBytes));
  }
  const std::vector<GrowthPoint> points = measure_growth(growth.sizes, rounds, [&](std::size_t index) {
    installs[index]->prepare_program(growth.before);
    return installs[index]->run_program();
  });
  std::vector<Result> results;
  for (std::size_t index = 1; index < points.size(); ++index) {
    results.push_back({std::string(growth.name) + " " + std::to_string(points[index].size) + " files",
                       points[index].seconds, points[index - 1].seconds, points[index].ratio, growth.most});
  }
  if (!growth_file.empty()) write_growth(growth_file, points);
  return results;
}

bool print_results(const std::vector<Result>& results) {
  bool kept = true;
  std::printf("\n| Measured | Vorlund | Reference | Figure | At most | |\n|---|---|---|---|---|---|\n");
  for (const Result& result : results) {
    const bool fine = result.most == 0 || result.figure <= result.most;
    kept = kept && fine;
    std::printf("| %s | %.3f s | ", result.name.c_str(), result.program);
    if (result.reference == 0) {
      std::printf("| %.1f MiB | %.0f MiB", result.figure, result.most);
    } else if (result.most == 0) {
      std::printf("%.3f s | %.2f | ", result.reference, result.figure);
    } else {
      std::printf("%.3f s | %.2f | %.2f", result.reference, result.figure, result.most);
    }
    std::printf(" | %s |\n", result.most == 0 ? "" : fine ? "kept" : "missed");
  }
  return kept;
}

}  // namespace vorlund::bench
