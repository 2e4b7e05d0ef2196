// Works through the rows of the game table, and through the files of each row's folder.
#include "gamesets/game_installer.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/listing.h"
#include "core/plain_name.h"
#include "core/store.h"
#include "core/text.h"
#include "gamesets/loader_patch.h"

namespace vorlund {

namespace {

std::string counted(std::uint64_t count, std::string_view one, std::string_view many) {
  return std::to_string(count) + " " + std::string(count == 1 ? one : many);
}

class Installation {
 public:
  Installation(Environment& environment, const GameTable& table) : environment_(environment), table_(table) {}

  GameSetSummary run() {
    for (row_ = 1; row_ < table_.G2.row_count(); ++row_) {
      if (!table_.G2.cell(row_, GameTable::kFolder).empty()) install_row();
    }
    return summary_;
  }

 private:
  void install_row() {
    const std::string& group = table_.G2.cell(row_, GameTable::kGroup);
    const std::string& name = table_.G2.cell(row_, GameTable::kFolder);
    const std::string folder = environment_.game.path(kGameStore) + "\\" + group + "\\" + name;
    if (!is_plain_name(group) || !is_plain_name(name) || !environment_.files.FolderExists(folder)) {
      ++summary_.missing;
      return;
    }
    ++summary_.folders;
    const std::vector<std::string> names = list_files(environment_.files, folder, "*.*");
    for (std::size_t index = 0; index < names.size(); ++index) {
      report(names[index], index, names.size());
      install_file(folder + "\\" + names[index], names[index]);
    }
  }

  void install_file(const std::string& source, const std::string& name) {
    switch (use_of_set_file(name)) {
      case SetFileUse::kGameDirectory:
        copy(source, environment_.game.path("\\") + name);
        break;
      case SetFileUse::kSavedata:
        copy(source, environment_.game.path(kSavedata) + "\\" + name);
        break;
      case SetFileUse::kMusic:
        copy(source, environment_.game.path(kMusic) + "\\" + name);
        break;
      case SetFileUse::kPatch:
        patch(source);
        break;
      default:
        ++summary_.kept;
    }
  }

  void copy(const std::string& source, const std::string& target) {
    const CopyOutcome outcome = environment_.files.copy_file(source, target, durability_of(target));
    ++(outcome == CopyOutcome::kWritten ? summary_.copied : summary_.unchanged);
  }

  /// A save may stand where the player's own save stood a moment ago, so it must be on the disk itself.
  static Durability durability_of(std::string_view target) {
    return to_upper(last_characters(target, 4)) == ".SVE" ? Durability::kFlushed : Durability::kCached;
  }

  void patch(const std::string& source) {
    if (!environment_.files.FileExists(environment_.game.path(kGameProgram))) {
      ++summary_.patches_passed;
      return;
    }
    install_loader_patch(environment_, source);
    ++summary_.patches;
  }

  void report(std::string_view name, std::size_t index, std::size_t count) const {
    const double rows = table_.G2.row_count() - 1;
    const double within = static_cast<double>(index) / static_cast<double>(count);
    environment_.status.progress({name, (row_ - 1 + within) / rows});
  }

  Environment& environment_;
  const GameTable& table_;
  GameSetSummary summary_;
  int row_ = 0;
};

}  // namespace

SetFileUse use_of_set_file(std::string_view name) {
  static constexpr std::array<std::string_view, 8> kStayingEndings = {"MYPIC", ".JPG", ".PCX", ".BMP",
                                                                      ".GIF",  ".BAT", ".TAB", ".TXT"};
  const std::string upper = to_upper(name);
  if (upper.ends_with(".LDR")) return SetFileUse::kPatch;
  const bool stays = std::any_of(kStayingEndings.begin(), kStayingEndings.end(),
                                 [&](std::string_view ending) { return upper.ends_with(ending); });
  if (stays || upper == "LOADOUTOFFSETS" || upper.starts_with("ECA")) return SetFileUse::kStays;
  if (upper.ends_with(".MSN") || upper.ends_with(".SVE")) return SetFileUse::kSavedata;
  if (upper.ends_with(".BGM")) return SetFileUse::kMusic;
  return SetFileUse::kGameDirectory;
}

std::string GameSetSummary::sentence() const {
  std::string text = counted(folders, "folder", "folders");
  text += ", " + counted(copied, "file", "files") + " copied";
  if (unchanged > 0) text += ", " + std::to_string(unchanged) + " already in place";
  text += ", " + std::to_string(kept) + " kept in the store";
  text += ", " + counted(patches, "patch", "patches") + " into eaw.exe";
  if (patches_passed > 0) {
    text += ", " + counted(patches_passed, "patch", "patches") + " passed over: there is no eaw.exe";
  }
  if (missing > 0) text += ", " + counted(missing, "row", "rows") + " passed over: no such folder";
  return text;
}

GameSetSummary install_game_set(Environment& environment, const GameTable& table) {
  const FileSystem::Action action(
      environment.files, [&] { environment.status.pulse(); }, environment.game.path(kStore));
  return Installation(environment, table).run();
}

}  // namespace vorlund
