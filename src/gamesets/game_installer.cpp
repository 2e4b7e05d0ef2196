// Works through the rows of the game table, and through the files of each row's folder.
#include "gamesets/game_installer.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "base/plain_name.h"
#include "base/text.h"
#include "disk/copier.h"
#include "disk/store.h"
#include "gamesets/loader_patch.h"

namespace vorlund {

namespace {

class Installation {
 public:
  Installation(const GameFolder& game, Status& status, const GameTable& table)
      : game_(game), status_(status), table_(table), copier_(game, status) {}

  GameSetSummary run() {
    look_ahead();
    for (const Row& row : rows_) install_row(row);
    status_.row(0);
    summary_.copied = copier_.copied();
    summary_.unchanged = copier_.unchanged();
    return summary_;
  }

 private:
  /// A row that names a folder.
  struct Row {
    int index;                         ///< in the table
    std::string name;                  ///< group, backslash, folder name
    std::string folder;                ///< path of the folder
    std::optional<ListedAhead> files;  ///< none where there is no such folder
  };

  void look_ahead() {
    for (int index = 1; index < table_.row_count(); ++index) {
      const std::string group = table_.cell(index, GameTable::kGroup);
      const std::string folder_name = table_.cell(index, GameTable::kFolder);
      if (folder_name.empty()) continue;
      Row row;
      row.index = index;
      row.name = group + "\\" + folder_name;
      row.folder = game_.path(kGameStore) + "\\" + row.name;
      if (stays_below(group) && stays_below(folder_name) && game_.files.FolderExists(row.folder)) {
        row.files.emplace(game_.files, row.folder, "*.*");
        copier_.expect(row.files->count());
      }
      rows_.push_back(std::move(row));
    }
  }

  void install_row(const Row& row) {
    if (!row.files) {
      summary_.missing.push_back(row.name);
      return;
    }
    ++summary_.folders;
    status_.row(row.index);
    for (const std::string& name : row.files->names()) {
      copier_.reach(name);
      install_file(row.folder + "\\" + name, name);
    }
  }

  void install_file(const std::string& source, const std::string& name) {
    const SetFileUse use = use_of_set_file(name);
    if (use == SetFileUse::kCopied) {
      copier_.copy(source, game_.path(target_of_set_file(name)));
    } else if (use == SetFileUse::kPatch) {
      patch(source);
    } else {
      ++summary_.kept;
    }
  }

  void patch(const std::string& source) {
    if (!game_.files.FileExists(game_.path(kGameProgram))) {
      ++summary_.patches_passed;
      return;
    }
    install_loader_patch(game_, status_, source);
    ++summary_.patches;
  }

  const GameFolder& game_;
  Status& status_;
  const GameTable& table_;
  Copier copier_;
  std::vector<Row> rows_;
  GameSetSummary summary_;
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
  return SetFileUse::kCopied;
}

std::string target_of_set_file(std::string_view name) {
  const std::string upper = to_upper(name);
  std::string target;
  if (upper.ends_with(".MSN") || upper.ends_with(".SVE")) target = kSavedata;
  if (upper.ends_with(".BGM")) target = kMusic;
  return target.append("\\").append(name);
}

std::string GameSetSummary::text() const {
  std::vector<std::string> parts;
  const auto say = [&parts](std::uint64_t count, const std::string& words) {
    if (count > 0) parts.push_back(words);
  };
  say(folders, counted(folders, "folder", "folders"));
  say(copied, counted(copied, "file", "files") + " copied");
  say(unchanged, counted(unchanged, "file", "files") + " already in place");
  say(kept, std::to_string(kept) + " kept in the store");
  say(patches, counted(patches, "patch", "patches") + " into eaw.exe");
  say(patches_passed, counted(patches_passed, "patch", "patches") + " passed over: there is no eaw.exe");
  std::string text = parts.empty() ? "There was nothing to install" : "";
  for (const std::string& part : parts) text.append(text.empty() ? "" : ", ").append(part);
  if (!missing.empty()) {
    text += "\n" + counted(missing.size(), "row", "rows") +
            " passed over, for want of a folder: " + first_of(missing);
  }
  return text;
}

GameSetSummary install_game_set(const GameFolder& game, Status& status, const GameTable& table) {
  return Installation(game, status, table).run();
}

}  // namespace vorlund
