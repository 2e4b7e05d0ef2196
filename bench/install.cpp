// Measures the installer of game sets against plain loops and cp: install_bench FOLDER GROWTH-FILE [Google
// Benchmark options].
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

#include "comparison.h"
#include "memory.h"

namespace vorlund::bench {

namespace {

using Reference = GameInstall::Reference;
using Targets = GameInstall::Targets;

constexpr int kRounds = 9;

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
      {"10,000 x 20 KiB, empty, of the loop", 10000, kSmall, Reference::kCopying, Targets::kEmpty,
       Targets::kEmpty, 1.12},
      {"10,000 x 20 KiB, existing, of the loop", 10000, kSmall, Reference::kCopying, Targets::kDifferent,
       Targets::kDifferent, 1.15},
      {"10,000 x 20 KiB, unchanged, of the loop", 10000, kSmall, Reference::kComparing, Targets::kSame,
       Targets::kSame, 1.12},
      {"10,000 x 20 KiB, empty, of cp", 10000, kSmall, Reference::kCommand, Targets::kEmpty, Targets::kEmpty,
       0},
      {"10,000 x 20 KiB, existing, of cp", 10000, kSmall, Reference::kCommand, Targets::kDifferent,
       Targets::kDifferent, 0},
      {"10,000 x 20 KiB, unchanged, of cp", 10000, kSmall, Reference::kCommand, Targets::kSame,
       Targets::kEmpty, 0},
      {"200 x 5 MiB, empty, of cp", 200, kLarge, Reference::kCommand, Targets::kEmpty, Targets::kEmpty, 1.1},
  };
  const auto add = [](const char* name, auto function) {
    benchmark::RegisterBenchmark(name, function)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);
  };
  // Memory first: later the process holds more of it than the program would when idle.
  add("memory of 10,000 x 20 KiB",
      [](auto& state) { remember(state, "memory 10,000 x 20 KiB", 10000, kSmall); });
  add("memory of 200 x 5 MiB", [](auto& state) { remember(state, "memory 200 x 5 MiB", 200, kLarge); });
  for (const Comparison& comparison : kComparisons) {
    add(comparison.name, [&comparison](auto& state) {
      for ([[maybe_unused]] auto _ : state) report(state, compare(folder + "/compared", comparison, kRounds));
    });
  }
  add("growth", [](auto& state) {
    for ([[maybe_unused]] auto _ : state) {
      const Growth growth{"grow to", {1000, 2000, 4000, 8000, 16000}, Targets::kOthers, 2.3};
      for (const Result& result : grow(folder + "/growing", growth, kRounds, growth_file)) {
        report(state, result);
      }
    }
  });
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
  return print_results(results) ? 0 : 1;
}
