// Measures finding typed words in many names: name_filter_bench [Google Benchmark options].
#include "base/name_filter.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "base/text.h"
#include "measure.h"

namespace {

using namespace vorlund;
using namespace vorlund::bench;

constexpr double kFrameSeconds = 0.016;
constexpr int kRounds = 21;

/// Names of 30 to 120 characters, some with accents, every hundredth one a twin.
std::vector<std::string> many_names(int count) {
  std::vector<std::string> names;
  for (int index = 0; index < count; ++index) {
    std::string name = "J\u00E4gergeschwader " + std::to_string(index) + " Spitfire IX early";
    while (name.size() < static_cast<std::size_t>(30 + index % 90)) name += " \u00E9t\u00E9 44";
    names.push_back(index % 100 == 0 ? name + " Zwillinge" : name);
  }
  return names;
}

/// The plainest way to do without regard to case alone, as the measure of what the letters cost.
int upper_case_matches(const std::vector<std::string>& names) {
  int found = 0;
  for (const std::string& name : names) found += to_upper(name).find("ZWILLING") != std::string::npos ? 1 : 0;
  return found;
}

void filter_names(benchmark::State& state) {
  const std::vector<std::string> names = many_names(static_cast<int>(state.range(0)));
  const auto itself = [](const std::string& name) -> const std::string& { return name; };
  std::vector<double> filter;
  std::vector<double> plain;
  std::size_t found = 0;
  for ([[maybe_unused]] auto round : state) {
    filter.push_back(
        seconds_of([&] { found = matching_indices(NameFilter("spit zwilling"), names, itself).size(); }));
    plain.push_back(seconds_of([&] { benchmark::DoNotOptimize(upper_case_matches(names)); }));
    state.SetIterationTime(filter.back());
  }
  state.counters["found"] = static_cast<double>(found);
  state.counters["of_upper_case"] = median_ratio(filter, plain);
  state.counters["of_frame"] = median(filter) / kFrameSeconds;
}
BENCHMARK(filter_names)->Arg(10000)->Iterations(kRounds)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
