// Prepares folders and takes times.
#include "game_install.h"

#include <cstdio>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "disk/dry_run_file_system.h"
#include "gamesets/game_installer.h"
#include "measure.h"
#include "plain_loops.h"

namespace vorlund::bench {

namespace {

namespace fs = std::filesystem;

/// Bytes without a pattern, others for each seed.
std::string made(std::uint64_t seed, std::uint64_t size) {
  std::string bytes(size, '\0');
  std::uint64_t state = seed * 0x9E3779B97F4A7C15ULL + 1;
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    if (at % 8 == 0) {
      state ^= state << 13;
      state ^= state >> 7;
      state ^= state << 17;
    }
    bytes[at] = static_cast<char>(state >> (at % 8 * 8));
  }
  return bytes;
}

}  // namespace

GameInstall::GameInstall(fs::path root, std::uint64_t files, std::uint64_t bytes)
    : root_(std::move(root)),
      game_(root_ / "game"),
      set_(game_ / "~Vorlund/GameStore/Group/Set"),
      reference_(root_ / "reference"),
      files_(files),
      bytes_(bytes) {
  fs::remove_all(root_);
  fs::create_directories(set_);
  fs::create_directories(reference_ / "~Vorlund");
  write_files(set_, "file", 1);
}

GameInstall::~GameInstall() {
  std::error_code ignored;
  fs::remove_all(root_, ignored);
}

void GameInstall::write_files(const fs::path& folder, const char* prefix, unsigned seed) const {
  for (std::uint64_t index = 0; index < files_; ++index) {
    char name[32];
    std::snprintf(name, sizeof name, "%s%06u.dat", prefix, static_cast<unsigned>(index));
    const std::string bytes = made(seed * files_ + index, bytes_);
    std::ofstream file(folder / name, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write into " + folder.string());
  }
}

void GameInstall::empty(const fs::path& target) const {
  for (const fs::directory_entry& entry : fs::directory_iterator(target)) {
    if (entry.path().filename() != "~Vorlund") fs::remove_all(entry.path());
  }
}

void GameInstall::prepare_program(Targets targets) const {
  prepare(game_, targets);
}

void GameInstall::prepare_reference(Targets targets) const {
  prepare(reference_, targets);
}

void GameInstall::prepare(const fs::path& target, Targets targets) const {
  empty(target);
  switch (targets) {
    case Targets::kEmpty:
      break;
    case Targets::kDifferent:
      write_files(target, "file", 2);
      break;
    case Targets::kSame:
      write_files(target, "file", 1);
      break;
    case Targets::kOthers:
      write_files(target, "other", 3);
      break;
  }
  settle(root_);
}

double GameInstall::run_program() const {
  const std::unique_ptr<FileSystem> files = make_platform_file_system();
  const GameFolder game{*files, game_.string()};
  Status status;
  GameTable table;
  table.add_row({"Group", "Set"});
  GameSetSummary summary;
  const double seconds = seconds_of([&] { summary = install_game_set(game, status, table); });
  if (summary.copied + summary.unchanged != files_) throw std::runtime_error("not every file was installed");
  return seconds;
}

double GameInstall::run_forecast() const {
  const std::unique_ptr<FileSystem> files = make_platform_file_system();
  DryRunFileSystem dry(*files);
  Status status;
  GameTable table;
  table.add_row({"Group", "Set"});
  std::vector<ForeseenFile> foreseen;
  const double seconds = seconds_of([&] {
    install_game_set({dry, game_.string()}, status, table);
    foreseen = dry.foreseen();
  });
  if (foreseen.size() != files_) throw std::runtime_error("not every file was foretold");
  return seconds;
}

double GameInstall::run_reference(Reference reference) const {
  return seconds_of([&] {
    switch (reference) {
      case Reference::kCommand:
        return copy_by_command(set_, reference_);
      case Reference::kCopying:
        return copy_plainly(set_, reference_, reference_ / "~Vorlund");
      case Reference::kComparing:
        return compare_plainly(set_, reference_);
    }
  });
}

}  // namespace vorlund::bench
