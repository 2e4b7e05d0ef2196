// Measures the installer of game sets against cp: install_bench FOLDER [Google Benchmark options].
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "game_install.h"

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
std::vector<Result> results;

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

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

/// Program and cp take turns, each round in the other order. Each round has its own ratio, so that a machine
/// that is slow for a while is slow for both; the figure is the median of the ratios.
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
    std::vector<double> ratios;
    std::transform(program.begin(), program.end(), reference.begin(), std::back_inserter(ratios),
                   std::divides());
    report(state, {comparison.name, median(program), median(reference), median(ratios), comparison.most});
  }
}

/// Installs ever more small files, each time into a folder of as many others: how the time grows with each
/// doubling.
void grow(benchmark::State& state) {
  constexpr std::uint64_t kBytes = 4096;
  constexpr double kMost = 2.3;
  for ([[maybe_unused]] auto _ : state) {
    double before = 0;
    for (const std::uint64_t files : {1000U, 2000U, 4000U, 8000U, 16000U}) {
      const GameInstall install(folder + "/growing", files, kBytes);
      std::vector<double> program;
      for (int round = 0; round < kRounds; ++round) {
        install.prepare_program(Targets::kOthers);
        program.push_back(install.run_program());
      }
      const double now = median(program);
      if (before > 0) {
        report(state, {"grow to " + std::to_string(files) + " files", now, before, now / before, kMost});
      }
      before = now;
    }
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
  if (argc != 2) {
    std::fprintf(stderr, "usage: install_bench FOLDER [Google Benchmark options]\n");
    return 2;
  }
  folder = argv[1];
  add_benchmarks();
  benchmark::RunSpecifiedBenchmarks();
  return print_results() ? 0 : 1;
}
