// Measures reading records and set-ups of 100 MB against reading their bytes and finding the lines:
// records_bench.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "aircraft/plane_record.h"
#include "disk/file_system.h"
#include "gamesets/game_record.h"
#include "measure.h"
#include "memory.h"

namespace vorlund::bench {

namespace {

constexpr int kRounds = 3;
constexpr std::size_t kRecordBytes = 100'000'000;
constexpr double kMostMemory = 4;
constexpr double kMostSeconds = 2;

struct Kind {
  const char* name;
  std::string line;
  std::function<void(FileSystem&, const std::string&)> read;
};

template <typename Table, void read(FileSystem&, std::string_view, Table&)>
void read_table(FileSystem& files, const std::string& path) {
  Table table;
  read(files, path, table);
}

/// False where a goal is missed.
bool measure_kind(FileSystem& files, const Kind& kind) {
  const std::filesystem::path path = std::filesystem::temp_directory_path() / "vorlund record";
  {
    std::string bytes;
    bytes.reserve(kRecordBytes + kind.line.size());
    while (bytes.size() < kRecordBytes) bytes += kind.line;
    files.replace_file(path.string(), bytes, Durability::kCached);
  }
  std::vector<double> reading;
  std::vector<double> plain;
  forget_peak_memory();
  const double idle = peak_memory();
  for (int round = 0; round < kRounds; ++round) {
    reading.push_back(seconds_of([&] { kind.read(files, path.string()); }));
  }
  const double memory = (peak_memory() - idle) * 1024 * 1024 / kRecordBytes;
  std::size_t lines = 0;
  for (int round = 0; round < kRounds; ++round) {
    plain.push_back(seconds_of([&] {
      const std::string bytes = files.read_file(path.string());
      lines = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
    }));
  }
  std::filesystem::remove(path);
  const bool kept = memory <= kMostMemory && median(reading) <= kMostSeconds;
  std::printf("| %s, %zu lines | %.2f s | %.1f | %.1f | %s |\n", kind.name, lines, median(reading),
              median_ratio(reading, plain), memory, kept ? "kept" : "missed");
  std::fflush(stdout);
  return kept;
}

bool measure_all() {
  const auto read_games = read_table<GameTable, read_game_set>;
  const auto read_planes = read_table<PlaneTable, read_plane_set>;
  const std::vector<Kind> kinds = {
      {"game set of usual rows", "Scenery\tNormandy in winter\r\n", read_games},
      {"game set of the shortest rows", "a\tb\r\n", read_games},
      {"game set of one row", std::string(kRecordBytes, 'x'), read_games},
      {"aircraft set of usual rows",
       "P51D\tUSAAF\tSilver\t3\tP-51D\tMustang\tAmerican\tYes\tFighter\t100\r\n", read_planes},
      {"aircraft set of the shortest rows", "a\tb\r\n", read_planes},
  };
  std::printf(
      "| Record of 100 MB | Read in | Of reading bytes and counting lines | Memory of its size | |\n");
  std::printf("|---|---|---|---|---|\n");
  const std::unique_ptr<FileSystem> files = make_platform_file_system();
  bool kept = true;
  for (const Kind& kind : kinds) kept = measure_kind(*files, kind) && kept;
  return kept;
}

}  // namespace

}  // namespace vorlund::bench

int main() {
  try {
    return vorlund::bench::measure_all() ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "records_bench: %s\n", error.what());
    return 1;
  }
}
