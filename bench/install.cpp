// Measures the installer of game sets against cp: install_bench FOLDER GROWTH-FILE [Google Benchmark
// options].
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "game_install.h"
#include "measure.h"

namespace vorlund::bench {

namespace {

using Targets = GameInstall::Targets;

constexpr int kRounds = 9;

/// A measured figure and the most it may come to.
struct Result {
  std::string name;
  double program = 0;    ///< seconds, median of the rounds
  double reference = 0;  ///< seconds, median of the rounds
  double figure = 0;
  double most = 0;
};

std::string folder;
std::string growth_file;
std::vector<Result> results;

void report(benchmark::State& state, const Result& result) {
  state.SetIterationTime(result.program);
  state.counters["reference_s"] = result.reference;
  state.counters["figure"] = result.figure;
  state.counters["most"] = result.most;
  results.push_back(result);
}

/// What is installed, what stands there before, for the program and for cp, and the ratio that is allowed.
struct Comparison {
  const char* name;
  std::uint64_t files;
  std::uint64_t bytes;
  Targets before_program;
  Targets before_reference;
  double most;
};

/// Program and cp take turns, each round in the other order.
void compare(benchmark::State& state, const Comparison& comparison) {
  for ([[maybe_unused]] auto _ : state) {
    const GameInstall install(folder + "/compared", comparison.files, comparison.bytes);
    std::vector<double> program;
    std::vector<double> reference;
    const auto take_program = [&] {
      install.prepare_program(comparison.before_program);
      program.push_back(install.run_program());
    };
    const auto take_reference = [&] {
      install.prepare_reference(comparison.before_reference);
      reference.push_back(install.run_reference());
    };
    for (int round = 0; round < kRounds; ++round) {
      if (round % 2 == 0) take_program();
      take_reference();
      if (round % 2 == 1) take_program();
    }
    report(state, {comparison.name, median(program), median(reference), median_ratio(program, reference),
                   comparison.most});
  }
}

/// Installs ever more small files, each time into a folder of as many others: how the time grows with each
/// doubling.
void grow(benchmark::State& state) {
  constexpr std::uint64_t kBytes = 4096;
  constexpr double kMost = 2.3;
  const std::vector<int> sizes = {1000, 2000, 4000, 8000, 16000};
  for ([[maybe_unused]] auto _ : state) {
    std::vector<std::unique_ptr<GameInstall>> installs;
    for (const int files : sizes) {
      installs.push_back(std::make_unique<GameInstall>(folder + "/growing " + std::to_string(files),
                                                       static_cast<std::uint64_t>(files), kBytes));
    }
    const std::vector<GrowthPoint> points = measure_growth(sizes, kRounds, [&](std::size_t index) {
      installs[index]->prepare_program(Targets::kOthers);
      return installs[index]->run_program();
    });
    for (std::size_t index = 1; index < points.size(); ++index) {
      report(state, {"grow to " + std::to_string(points[index].size) + " files", points[index].seconds,
                     points[index - 1].seconds, points[index].ratio, kMost});
    }
    write_growth(growth_file, points);
  }
}

/// Most memory of this process so far, in MiB, since it was last forgotten.
double peak_memory() {
  std::ifstream lines("/proc/self/status");
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024;
  }
  return 0;
}

void forget_peak_memory() {
  ::malloc_trim(0);
  std::ofstream("/proc/self/clear_refs") << "5";
}

void remember(benchmark::State& state, const char* name, std::uint64_t files, std::uint64_t bytes) {
  constexpr double kMost = 32;
  for ([[maybe_unused]] auto _ : state) {
    const GameInstall install(folder + "/remembered", files, bytes);
    install.prepare_program(Targets::kDifferent);
    forget_peak_memory();
    const double idle = peak_memory();
    const double seconds = install.run_program();
    report(state, {name, seconds, 0, peak_memory() - idle, kMost});
  }
}

void add_benchmarks() {
  constexpr std::uint64_t kSmall = 20 * 1024;
  constexpr std::uint64_t kLarge = 5 * 1024 * 1024;
  static constexpr Comparison kComparisons[] = {
      {"10,000 x 20 KiB, empty", 10000, kSmall, Targets::kEmpty, Targets::kEmpty, 1.25},
      {"10,000 x 20 KiB, existing", 10000, kSmall, Targets::kDifferent, Targets::kDifferent, 1.4},
      {"10,000 x 20 KiB, unchanged", 10000, kSmall, Targets::kSame, Targets::kEmpty, 0.45},
      {"200 x 5 MiB, empty", 200, kLarge, Targets::kEmpty, Targets::kEmpty, 1.1},
  };
  const auto add = [](const char* name, auto function) {
    benchmark::RegisterBenchmark(name, function)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);
  };
  // Memory first: later the process holds more of it than the program would when idle.
  add("memory of 10,000 x 20 KiB",
      [](auto& state) { remember(state, "memory 10,000 x 20 KiB", 10000, kSmall); });
  add("memory of 200 x 5 MiB", [](auto& state) { remember(state, "memory 200 x 5 MiB", 200, kLarge); });
  for (const Comparison& comparison : kComparisons) {
    add(comparison.name, [&comparison](auto& state) { compare(state, comparison); });
  }
  add("growth", grow);
}

/// Prints the table; false where a figure is larger than it may be.
bool print_results() {
  bool kept = true;
  std::printf("\n| Measured | Vorlund | Reference | Figure | At most | |\n|---|---|---|---|---|---|\n");
  for (const Result& result : results) {
    const bool fine = result.figure <= result.most;
    kept = kept && fine;
    std::printf("| %s | %.3f s | ", result.name.c_str(), result.program);
    if (result.reference > 0) {
      std::printf("%.3f s | %.2f | %.2f", result.reference, result.figure, result.most);
    } else {
      std::printf("| %.1f MiB | %.0f MiB", result.figure, result.most);
    }
    std::printf(" | %s |\n", fine ? "kept" : "missed");
  }
  return kept;
}

}  // namespace

}  // namespace vorlund::bench

int main(int argc, char** argv) {
  using namespace vorlund::bench;
  benchmark::Initialize(&argc, argv);
  if (argc != 3) {
    std::fprintf(stderr, "usage: install_bench FOLDER GROWTH-FILE [Google Benchmark options]\n");
    return 2;
  }
  folder = argv[1];
  growth_file = argv[2];
  add_benchmarks();
  benchmark::RunSpecifiedBenchmarks();
  return print_results() ? 0 : 1;
}
