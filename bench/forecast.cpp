// Measures what foretelling an installation costs against the installation itself: forecast_bench FOLDER.
#include <cstdio>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "game_install.h"
#include "measure.h"
#include "memory.h"

namespace vorlund::bench {

namespace {

using Targets = GameInstall::Targets;

constexpr int kRounds = 9;

/// Prints a line of the table; false where the figure is larger than it may be.
bool judge(const std::string& name, double figure, double most) {
  std::printf("| %s | %.2f | %.2f | %s |\n", name.c_str(), figure, most, figure <= most ? "kept" : "missed");
  std::fflush(stdout);
  return figure <= most;
}

/// Forecast and installation of the same unchanged set take turns.
bool compare(const std::string& folder) {
  const GameInstall install(folder + "/foretold", 10'000, 20 * 1024);
  install.prepare_program(Targets::kSame);
  std::vector<double> forecasts;
  std::vector<double> installations;
  for (int round = 0; round < kRounds; ++round) {
    if (round % 2 == 0) forecasts.push_back(install.run_forecast());
    installations.push_back(install.run_program());
    if (round % 2 == 1) forecasts.push_back(install.run_forecast());
  }
  return judge("10,000 x 20 KiB unchanged, of the installation", median_ratio(forecasts, installations),
               1.15);
}

bool remember(const std::string& folder, const char* name, Targets targets) {
  constexpr std::uint64_t kFiles = 10'000;
  const GameInstall install(folder + "/remembered", kFiles, 1024);
  install.prepare_program(targets);
  forget_peak_memory();
  const double idle = peak_memory();
  install.run_forecast();
  return judge(name, (peak_memory() - idle) * 1024 / kFiles, 2);
}

bool grow(const std::string& folder) {
  const std::vector<int> sizes = {4000, 8000, 16000, 32000, 64000};
  std::vector<std::unique_ptr<GameInstall>> installs;
  for (const int files : sizes) {
    installs.push_back(std::make_unique<GameInstall>(folder + "/growing " + std::to_string(files),
                                                     static_cast<std::uint64_t>(files), 1024));
    installs.back()->prepare_program(Targets::kSame);
  }
  bool kept = true;
  const auto measure = [&](std::size_t index) { return installs[index]->run_forecast(); };
  for (const GrowthPoint& point : measure_growth(sizes, 5, measure)) {
    if (point.ratio == 0) continue;
    kept = judge("growth to " + std::to_string(point.size) + " files", point.ratio, 2.3) && kept;
  }
  return kept;
}

}  // namespace

bool measure_all(const std::string& folder) {
  std::printf("| Foretold | Figure | At most | |\n|---|---|---|---|\n");
  bool kept = remember(folder, "KiB a file, unchanged", Targets::kSame);
  kept = remember(folder, "KiB a file, all new", Targets::kEmpty) && kept;
  kept = compare(folder) && kept;
  return grow(folder) && kept;
}

}  // namespace vorlund::bench

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: forecast_bench FOLDER\n");
    return 2;
  }
  try {
    return vorlund::bench::measure_all(argv[1]) ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "forecast_bench: %s\n", error.what());
    return 1;
  }
}
