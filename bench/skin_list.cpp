// Measures building the skin list against a plain loop and `find` over the same tree, its growth, and
// matching a flight model: skin_list_bench GROWTH-FILE [Google Benchmark options].
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "aircraft/skin_list.h"
#include "measure.h"
#include "panes/form1.h"
#include "plain_loops.h"
#include "skin_store.h"

namespace {

using namespace vorlund;
using namespace vorlund::bench;
namespace fs = std::filesystem;

constexpr int kRounds = 5;
constexpr double kMostOfPlain = 1.15;

std::string growth_file;
bool missed = false;

/// The window object over the real disk.
struct Surroundings {
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  Status status;
  Form1 form{*files, status, Version{}};

  explicit Surroundings(const SkinStore& store) {
    form.desk.directory.Label16.caption = store.game_directory();
  }
};

void make_list(Surroundings& surroundings) {
  const FileSystem::Action action(*surroundings.files);
  MakeSkinList(surroundings.form.desk.game());
}

void run_find(const SkinStore& store) {
  const std::string command = "find '" + store.store().string() + "' > /dev/null";
  if (std::system(command.c_str()) != 0) std::abort();
}

/// The list, a plain loop over the names of the tree and `find` take turns, so that all meet the same state
/// of the machine.
void skin_list_against_readers(benchmark::State& state) {
  const SkinStore store(static_cast<int>(state.range(0)));
  Surroundings surroundings(store);
  std::vector<double> list;
  std::vector<double> plain;
  std::vector<double> find;
  run_find(store);
  for ([[maybe_unused]] auto round : state) {
    list.push_back(seconds_of([&] { make_list(surroundings); }));
    plain.push_back(seconds_of([&] { benchmark::DoNotOptimize(list_plainly(store.store())); }));
    find.push_back(seconds_of([&] { run_find(store); }));
    state.SetIterationTime(list.back());
  }
  state.counters["plain_ms"] = 1000 * median(plain);
  const double of_plain = median_ratio(list, plain);
  missed = missed || of_plain > kMostOfPlain;
  state.counters["of_plain"] = of_plain;
  state.counters["find_ms"] = 1000 * median(find);
  state.counters["of_find"] = median_ratio(list, find);
}
BENCHMARK(skin_list_against_readers)
    ->Arg(10000)
    ->Iterations(2 * kRounds + 1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// Ever larger stores: how the time grows with each doubling.
void skin_list_growth(benchmark::State& state) {
  const std::vector<int> sizes = {1000, 2000, 4000, 8000, 16000};
  std::vector<std::unique_ptr<SkinStore>> stores;
  std::vector<std::unique_ptr<Surroundings>> surroundings;
  for (const int folders : sizes) {
    stores.push_back(std::make_unique<SkinStore>(folders));
    surroundings.push_back(std::make_unique<Surroundings>(*stores.back()));
    make_list(*surroundings.back());
  }
  for ([[maybe_unused]] auto _ : state) {
    const auto points = measure_growth(sizes, 2 * kRounds + 1, [&](std::size_t index) {
      return seconds_of([&] { make_list(*surroundings[index]); });
    });
    for (const GrowthPoint& point : points) {
      if (point.ratio > 0) state.counters["to_" + std::to_string(point.size)] = point.ratio;
    }
    write_growth(growth_file, points);
  }
}
BENCHMARK(skin_list_growth)->Iterations(1)->Unit(benchmark::kMillisecond);

/// The worst case: no skin's name holds any character of the flight model's.
void match_flight_model(benchmark::State& state) {
  const SkinStore store(static_cast<int>(state.range(0)));
  fs::create_directories(fs::path(store.game_directory()) / "~Vorlund" / "FlightModels" / "Late" /
                         "_=_=_=_=_");
  Surroundings surroundings(store);
  Form1& form = surroundings.form;
  form.plane.set_flight_model_group("Late");
  form.browser.DoFM();
  form.Option1_Click(static_cast<int>(PlaneOption::kMatchSkin));
  for ([[maybe_unused]] auto round : state) form.List2_Click(0);
  state.counters["entries"] = static_cast<double>(form.possible_skins.List4.items.size());
}
BENCHMARK(match_flight_model)->Arg(10000)->Iterations(kRounds)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: skin_list_bench GROWTH-FILE [Google Benchmark options]\n");
    return 2;
  }
  growth_file = argv[1];
  benchmark::RunSpecifiedBenchmarks();
  if (missed) std::printf("the skin list took more than %.2f of the plain loop\n", kMostOfPlain);
  return missed ? 1 : 0;
}
