// Turns forecasts into lines and sentences.
#include "panes/contents.h"

#include <algorithm>
#include <set>
#include <utility>

#include "aircraft/own_files.h"
#include "base/text.h"
#include "disk/store.h"

namespace vorlund {

namespace {

using State = ForeseenFile::State;

constexpr std::string_view kWinner = "\u25BA ";  // a triangle that points at the row
constexpr std::string_view kWonOver = "   ";

class Composer {
 public:
  Composer(const GameFolder& game, const Forecasts& forecasts, const SetsAtHand& sets)
      : game_(game), forecasts_(forecasts), sets_(sets), store_(game.path(kStore)) {}

  Contents compose() {
    add_files(forecasts_.game_set, Set::kGames);
    add_files(forecasts_.aircraft_set, Set::kAircraft);
    add_patches();
    add_own_files();
    add_clean_up();
    add_wrong();
    for (const std::string& said : sentences_) {
      contents_.sentence.append(contents_.sentence.empty() ? "" : "\n").append(said);
    }
    return std::move(contents_);
  }

 private:
  enum class Set { kGames, kAircraft };

  /// What a set comes to.
  struct Sum {
    std::uint64_t chosen = 0;
    std::uint64_t in_place = 0;
    std::uint64_t differ = 0;
    std::uint64_t missing = 0;
    std::uint64_t bytes = 0;
  };

  [[nodiscard]] bool is_in_store(const ForeseenFile& file) const {
    return same_name(characters(file.folder, 0, character_count(store_)), store_);
  }

  /// Path inside the game folder.
  [[nodiscard]] std::string path_of(const ForeseenFile& file) const {
    std::string folder = file.folder.substr(std::min(game_.directory.size(), file.folder.size()));
    folder.erase(0, folder.find_first_not_of('\\'));
    return folder.empty() ? file.name : folder + "\\" + file.name;
  }

  [[nodiscard]] std::string row_in_words(int row) const {
    return "row " + std::to_string(row) + ": " + sets_.games.cell(row, GameTable::kGroup) + "\\" +
           sets_.games.cell(row, GameTable::kFolder);
  }

  [[nodiscard]] std::string slot_in_words(const ForeseenWrite& write) const {
    if (write.row == 0) {
      return write.source.empty() ? "the aircraft set"
                                  : "flight-model group " + sets_.planes.flight_model_group;
    }
    const PlaneTable& planes = sets_.planes;
    const std::string slot = "slot " + planes.cell(write.row, PlaneTable::kSlot) + ": ";
    const std::string skins = game_.path(kSkinStore);
    if (same_name(characters(write.source, 0, character_count(skins)), skins)) {
      return slot + planes.cell(write.row, PlaneTable::kRegion) + "\\" +
             planes.cell(write.row, PlaneTable::kSkinFolder);
    }
    return slot + planes.cell(write.row, PlaneTable::kScriptFolder);
  }

  [[nodiscard]] std::string origin(const ForeseenWrite& write, Set set) const {
    if (set == Set::kAircraft) return slot_in_words(write);
    return row_in_words(write.row) + (write.source.empty() ? " (patch)" : "");
  }

  /// The write that the file comes from: its last copy, or what composed it where nothing was copied.
  static std::size_t winner_of(const std::vector<ForeseenWrite>& writes) {
    for (std::size_t index = writes.size(); index-- > 0;) {
      if (!writes[index].source.empty()) return index;
    }
    return writes.size() - 1;
  }

  void add_files(const Forecast& forecast, Set set) {
    Sum sum;
    for (const ForeseenFile& file : forecast.files) {
      if (is_in_store(file)) continue;
      ContentsLine line;
      line.file = path_of(file);
      line.size = file.size;
      if (file.state == State::kDeleted) {
        line.state = "another spelling, would go";
        line.is_written = true;
      } else {
        count(file, sum);
        tell_state(file, line);
        tell_origin(file, set, line);
      }
      chosen_.insert(to_upper(line.file));
      contents_.lines.push_back(std::move(line));
    }
    sentences_.push_back(in_words(sum, set));
    if (sum.bytes > 0) check_room(sum, set);
  }

  static void count(const ForeseenFile& file, Sum& sum) {
    ++sum.chosen;
    if (file.state == State::kInPlace) ++sum.in_place;
    if (file.state == State::kNew) ++sum.missing;
    if (file.state == State::kChanged || file.state == State::kRespelled) ++sum.differ;
    if (file.state == State::kChanged || file.state == State::kNew) sum.bytes += file.size;
  }

  static void tell_state(const ForeseenFile& file, ContentsLine& line) {
    line.is_written = file.state != State::kInPlace;
    line.is_missing = file.state == State::kNew;
    line.state = file.state == State::kInPlace     ? "in place"
                 : file.state == State::kNew       ? "missing"
                 : file.state == State::kRespelled ? "spelled otherwise"
                                                   : "differs";
  }

  void tell_origin(const ForeseenFile& file, Set set, ContentsLine& line) const {
    if (file.writes.empty()) return;
    line.from = origin(file.writes[winner_of(file.writes)], set);
    for (const ForeseenWrite& write : file.writes) {
      const std::string from = origin(write, set);
      line.chain.push_back(std::string(write.counts ? kWinner : kWonOver) + from +
                           (write.counts ? "" : " (overwritten)"));
      if (write.counts) continue;
      line.is_overwritten = true;
      line.also.append(line.also.empty() ? "" : "; ").append(from);
    }
  }

  static std::string in_words(const Sum& sum, Set set) {
    const std::string name = set == Set::kGames ? "Game set: " : "Aircraft set: ";
    if (sum.chosen == 0) return name + "no file is chosen.";
    std::string text = name + counted(sum.chosen, "file", "files") + " chosen: " + grouped(sum.in_place) +
                       " in place, " + grouped(sum.differ) + (sum.differ == 1 ? " differs, " : " differ, ") +
                       grouped(sum.missing) + " missing. ";
    const std::uint64_t written = sum.differ + sum.missing;
    if (written == 0) return text + "\"Process!\" would write nothing.";
    return text + "\"Process!\" would write " + counted(written, "file", "files") + ", " +
           size_in_words(sum.bytes) + ".";
  }

  void check_room(const Sum& sum, Set set) {
    const auto room = game_.files.free_room(game_.path(""));
    if (!room || *room >= sum.bytes) return;
    add_remark(set == Set::kGames ? "game set" : "aircraft set",
               "The disk has room for " + size_in_words(*room) + " more, and " + size_in_words(sum.bytes) +
                   " would be written; what is replaced gives some back, so this is an estimate");
  }

  void add_patches() {
    const std::vector<ForeseenPatch>& patches = forecasts_.game_set.patches;
    for (const ForeseenPatch& patch : patches) {
      ContentsLine line;
      line.kind = ContentsKind::kPatches;
      line.file = bytes_in_words(patch);
      line.from = patch_in_words(patch);
      line.size = patch.length;
      std::string later = "a later eaw.exe";
      if (patch.overlapped_by >= 0) {
        later = patch_in_words(patches[static_cast<std::size_t>(patch.overlapped_by)]);
        line.also = "overlapped by " + later;
      }
      line.state = !patch.stands       ? "overwritten by " + later
                   : patch.is_in_place ? "in place"
                                       : "not in place";
      contents_.lines.push_back(std::move(line));
    }
  }

  static std::string bytes_in_words(const ForeseenPatch& patch) {
    if (patch.length == 0) return "eaw.exe, no byte";
    const std::uint64_t last = patch.first + patch.length - 1;
    return "eaw.exe, bytes " + std::to_string(patch.first) + " to " + std::to_string(last);
  }

  [[nodiscard]] std::string patch_in_words(const ForeseenPatch& patch) const {
    return row_in_words(patch.row) + "\\" + patch.file;
  }

  void add_own_files() {
    for (const OwnFile& own : forecasts_.aircraft_set.own_files) {
      if (own.then.empty()) continue;
      const std::string name(own.name.substr(1));
      for (const OwnFileEntry& entry : compare(own)) {
        ContentsLine line;
        line.kind = ContentsKind::kOwnFiles;
        line.file = name;
        line.from = entry.what;
        line.state = entry.state.empty() ? "as chosen" : entry.state;
        contents_.lines.push_back(std::move(line));
      }
    }
  }

  [[nodiscard]] std::vector<OwnFileEntry> compare(const OwnFile& own) const {
    if (own.name == kPlanesData) return compare_planes_data(own.today, own.then, sets_.planes);
    if (own.name == kLoadoutData) return compare_loadout_data(own.today, own.then, sets_.planes);
    if (own.name == kPilotNames) return compare_pilot_names(own.today, own.then);
    const auto country = std::find_if(kCountries.begin(), kCountries.end(),
                                      [&own](Country one) { return picture_menu_file(one) == own.name; });
    return compare_picture_menu(own.today, own.then, *country);
  }

  void add_clean_up() {
    std::uint64_t loose = 0;
    for (const ForeseenFile& file : forecasts_.clean_up.files) {
      ContentsLine line;
      line.size = file.size;
      line.kind = ContentsKind::kCleanUp;
      if (is_in_store(file)) {
        if (file.writes.empty() || file.writes.back().source.empty()) continue;
        line.file = std::string(kSavedata.substr(1)) + "\\" + file.name;
        line.from = "career save";
        line.state = "would go home to " + path_of(file);
      } else {
        line.file = path_of(file);
        const bool is_save = line.file.find('\\') != std::string::npos;
        if (is_save) continue;  // told of with its home
        const bool belongs = chosen_.contains(to_upper(line.file));
        line.from = belongs ? "a row or slot" : "no row";
        line.state = "would be deleted";
        if (!belongs) {
          ++loose;
          ContentsLine none = line;
          none.kind = ContentsKind::kNoRow;
          none.state = "loose";
          contents_.lines.push_back(std::move(none));
        }
      }
      contents_.lines.push_back(std::move(line));
    }
    if (loose > 0) {
      sentences_.push_back(counted(loose, "loose file belongs", "loose files belong") + " to no row.");
    }
  }

  void add_remark(const std::string& action, const std::string& text) {
    ContentsLine line;
    line.kind = ContentsKind::kWrong;
    line.file = action;
    line.state = text;
    contents_.lines.push_back(std::move(line));
  }

  /// The remarks that an action says in the end: all lines but the first, which sums up.
  void add_remarks(const std::string& action, const Forecast& forecast) {
    const bool cleans = action == "Clean Up";
    const std::string command = cleans ? "\"Clean Up\"" : "\"Process!\"";
    if (!forecast.stops.empty()) {
      add_remark(action, command + " would stop: " + forecast.stops);
      sentences_.push_back(command + (cleans ? "" : " of the " + action) + " would stop: " + forecast.stops);
    }
    bool first = true;
    for (const std::string_view line : split_lines(forecast.said)) {
      if (!std::exchange(first, false)) add_remark(action, std::string(line));
    }
    for (const std::string& path : forecast.unseen) {
      add_remark(action, "Taken for missing, for want of the right to look: " + path);
    }
  }

  void add_wrong() {
    add_remarks("game set", forecasts_.game_set);
    add_remarks("aircraft set", forecasts_.aircraft_set);
    add_remarks("Clean Up", forecasts_.clean_up);
  }

  const GameFolder& game_;
  const Forecasts& forecasts_;
  const SetsAtHand& sets_;
  std::string store_;
  std::set<std::string> chosen_;  // paths in upper case
  std::vector<std::string> sentences_;
  Contents contents_;
};

}  // namespace

bool ContentsLine::belongs_to(ContentsKind shown) const {
  const bool chosen = kind == ContentsKind::kAll;
  switch (shown) {
    case ContentsKind::kAll:
      return chosen || kind == ContentsKind::kNoRow;
    case ContentsKind::kWritten:
      return chosen && is_written;
    case ContentsKind::kOverwritten:
      return chosen && is_overwritten;
    case ContentsKind::kMissing:
      return chosen && is_missing;
    default:
      return kind == shown;
  }
}

Contents contents_of(const GameFolder& game, const Forecasts& forecasts, const SetsAtHand& sets) {
  return Composer(game, forecasts, sets).compose();
}

std::string size_in_words(std::uint64_t bytes) {
  constexpr std::array<std::string_view, 4> kUnits = {" kB", " MB", " GB", " TB"};
  if (bytes < 1000) return counted(bytes, "byte", "bytes");
  std::uint64_t tenths = (bytes + 50) / 100;
  std::size_t unit = 0;
  for (; tenths >= 10'000 && unit + 1 < kUnits.size(); ++unit) tenths = (tenths + 500) / 1000;
  return std::to_string(tenths / 10).append(".").append(std::to_string(tenths % 10)).append(kUnits[unit]);
}

}  // namespace vorlund
