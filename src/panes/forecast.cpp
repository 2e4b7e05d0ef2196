// Runs the actions on a disk that writes nothing, and keeps what they tell.
#include "panes/forecast.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "base/text.h"
#include "disk/store.h"
#include "gamesets/clean_up.h"
#include "panes/set_actions.h"

namespace vorlund {

namespace {

constexpr double kActions = 3;

/// More records of patches than this are not told of: no set has them, and each takes memory.
constexpr std::size_t kMostPatches = 100'000;

/// Thrown through an action that the observer has left.
struct Left {};

/// A record of a patch with what is needed to recognise its bytes.
struct SeenPatch {
  ForeseenPatch patch;
  std::size_t hash;
};

/// Passes progress on, and keeps from which row things come.
class Recorder final : public Status {
 public:
  explicit Recorder(Status& observer) : observer_(observer) {}

  void begin(DryRunFileSystem& files) {
    files_ = &files;
    row_ = 0;
    patches_.clear();
  }
  void end() { ++done_; }

  void progress(const Progress& progress) override {
    file_ = progress.file;
    observer_.progress({progress.file, (done_ + progress.fraction) / kActions});
    leave_if_wanted();
  }
  void pulse() override {
    observer_.pulse();
    leave_if_wanted();
  }
  void row(int row) override {
    row_ = row;
    files_->write_for(row);
  }
  void patched(std::uint64_t first, std::string_view bytes) override {
    if (patches_.size() == kMostPatches) return;
    patches_.push_back({{row_, file_, first, bytes.size()}, std::hash<std::string_view>()(bytes)});
  }

  [[nodiscard]] const std::vector<SeenPatch>& patches() const { return patches_; }

 private:
  void leave_if_wanted() const {
    if (observer_.leave_wanted()) throw Left();
  }

  Status& observer_;
  DryRunFileSystem* files_ = nullptr;
  double done_ = 0;
  int row_ = 0;
  std::string file_;
  std::vector<SeenPatch> patches_;
};

/// Which parts of a file are taken, and by whom: the one who took a byte first keeps it.
class Ranges {
 public:
  /// Takes a range; returns who holds some of it already, -1 for nobody.
  int take(std::uint64_t begin, std::uint64_t end, int owner) {
    int holder = -1;
    auto next = ranges_.lower_bound(begin);
    if (next != ranges_.begin() && std::prev(next)->second.first > begin) --next;
    while (begin < end) {
      if (next == ranges_.end() || next->first >= end) {
        ranges_.emplace(begin, std::pair(end, owner));
        break;
      }
      if (holder < 0) holder = next->second.second;
      if (begin < next->first) ranges_.emplace(begin, std::pair(next->first, owner));
      begin = std::max(begin, next->second.first);
      ++next;
    }
    return holder;
  }

 private:
  std::map<std::uint64_t, std::pair<std::uint64_t, int>> ranges_;  // begin; end and owner
};

std::string content_of(FileSystem& files, const std::string& path) {
  return files.FileExists(path) ? files.read_file(path) : std::string();
}

bool holds(std::string_view bytes, const SeenPatch& seen) {
  const ForeseenPatch& patch = seen.patch;
  if (patch.length == 0) return true;
  if (patch.first + patch.length > bytes.size()) return false;
  return std::hash<std::string_view>()(bytes.substr(patch.first, patch.length)) == seen.hash;
}

std::vector<ForeseenPatch> judged(const std::vector<SeenPatch>& seen, FileSystem& disk, FileSystem& dry,
                                  const std::string& program) {
  std::vector<ForeseenPatch> patches;
  if (seen.empty()) return patches;
  const std::string today = content_of(disk, program);
  const std::string then = content_of(dry, program);
  for (const SeenPatch& one : seen) {
    patches.push_back(one.patch);
    patches.back().is_in_place = holds(today, one);
    patches.back().stands = holds(then, one);
  }
  Ranges later;
  for (int index = static_cast<int>(patches.size()) - 1; index >= 0; --index) {
    ForeseenPatch& patch = patches[static_cast<std::size_t>(index)];
    patch.overlapped_by = later.take(patch.first, patch.first + patch.length, index);
  }
  return patches;
}

std::vector<OwnFile> own_files(FileSystem& disk, DryRunFileSystem& dry, const GameFolder& game) {
  std::vector<OwnFile> files;
  for (const std::string_view name : {kPlanesData, kLoadoutData, kPilotNames, kBritishPictureMenu,
                                      kAmericanPictureMenu, kGermanPictureMenu}) {
    const std::string path = game.path(name);
    files.push_back({name, content_of(disk, path), content_of(dry, path)});
  }
  return files;
}

/// Runs an action, which returns what the status line would say.
Forecast foresee_one(const GameFolder& game, const GameTable& games, Recorder& recorder,
                     const std::function<std::string(const GameFolder&)>& action) {
  Forecast forecast;
  DryRunFileSystem dry(game.files);
  const GameFolder dry_game{dry, game.directory};
  recorder.begin(dry);
  try {
    const FolderLocks none = dry.lock_folders(written_folders(dry_game, games), std::chrono::milliseconds(0));
    forecast.said = action(dry_game);
  } catch (const std::exception& error) {
    forecast.stops = error.what();
  }
  // What the action was to work on may also fail to be looked at: that is told in the same words.
  try {
    forecast.unseen = dry.take_unseen();
    forecast.files = dry.foreseen([&recorder] { recorder.pulse(); });
    forecast.patches = judged(recorder.patches(), game.files, dry, game.path(kGameProgram));
    forecast.own_files = own_files(game.files, dry, game);
  } catch (const std::exception& error) {
    if (forecast.stops.empty()) forecast.stops = error.what();
  }
  recorder.end();
  return forecast;
}

}  // namespace

Forecasts foresee(const GameFolder& game, Status& observer, const SetsAtHand& sets) {
  Forecasts forecasts;
  Recorder recorder(observer);
  try {
    forecasts.game_set = foresee_one(game, sets.games, recorder, [&](const GameFolder& dry) {
      return process_game_set(dry, recorder, sets.games).text();
    });
    forecasts.aircraft_set = foresee_one(game, sets.games, recorder, [&](const GameFolder& dry) {
      PlaneTable planes = sets.planes;
      PilotNames names = sets.names;
      PictureMenu menu = sets.menu;
      return process_aircraft_set(dry, recorder, planes, names, menu).text();
    });
    forecasts.clean_up = foresee_one(game, sets.games, recorder, [&](const GameFolder& dry) {
      GameTable games = sets.games;
      PlaneTable planes = sets.planes;
      return clean_up_sets(dry, recorder, games, planes).sentence();
    });
  } catch (const Left&) {
    forecasts = {};
    forecasts.is_whole = false;
  }
  return forecasts;
}

std::string what_clean_up_would_do(const GameFolder& game, const GameTable& games) {
  try {
    DryRunFileSystem dry(game.files);
    const GameFolder folder{dry, game.directory};
    Status nobody;
    std::string text = "Would come to: " + clean_game_directory(folder, nobody, games).sentence();
    if (const std::size_t stay = count_career_saves(folder); stay > 0) {
      text += "; " + counted(stay, "career save stays", "career saves stay") + ", for no row names a home";
    }
    return dry.take_unseen().empty() ? text : text + "; as far as there is the right to look";
  } catch (const std::exception& error) {
    return std::string("Would end with an error: ") + error.what();
  }
}

}  // namespace vorlund
