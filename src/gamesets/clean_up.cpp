// Moves careers home and deletes what the masks name.
#include "gamesets/clean_up.h"

#include <algorithm>
#include <array>

#include "core/action_error.h"
#include "core/plain_name.h"
#include "core/store.h"
#include "core/text.h"

namespace vorlund {

namespace {

constexpr std::string_view kCareerPattern = "c*.sve";

/// The kinds of loose files that sets install; the game prefers them to its own packed data.
constexpr std::string_view kLoosePattern =
    "*.bat;*.bgm;*.smk;*.fnt;*.wsd;*.fsp;*.pal;*.bak;*.tco;*.pco;*.bco;*.hm;*.jpg;*.pcx;*.txt;mypic;planepic;"
    "skinpic;*.mnu;*.dat;*.mpc;*.wsp;*.pic;*.spt;*.str;*.ter;*.tm;*.tpc;*.flt;*.3dz;*.snd;*.bil;*.bin;*.cpt";

/// Files of the game itself that the masks would take.
constexpr std::array<std::string_view, 4> kSpared = {"DSG.ICO", "EXTRA.SPT", "CHATLINE.TXT", "HOF.DAT"};

/// The folder that the careers row names. Wherever links in the store lead, it must lie in "GameStore", and
/// be another than "Savedata", where a save moved home would be a save deleted. The store as a whole may be a
/// link: players keep large stores on another disk.
std::string careers_home(Environment& environment, const std::string& name) {
  const std::string home = environment.game.path(kCareersStore) + "\\" + name;
  const auto refused = [&home](const char* why) {
    return ActionError("bring the career saves home to", home, std::string(why) + "; no save was moved");
  };
  const bool group_itself = name.empty();  // a cleared careers row names the folder of the group
  const bool named = group_itself || is_plain_name(name);
  if (!named || !environment.files.FolderExists(home)) throw refused("there is no such folder");
  if (!environment.files.lies_inside(home, environment.game.path(kGameStore))) {
    throw refused("it leads out of the store");
  }
  if (environment.files.lies_inside(home, environment.game.path(kSavedata))) {
    throw refused("it leads to \"Savedata\"");
  }
  return home;
}

/// Two saves that differ in case alone would have to share one place at home. `saves` is sorted by name.
void refuse_shared_names(Environment& environment, const std::vector<std::string>& saves) {
  const auto pair = std::adjacent_find(saves.begin(), saves.end(), same_name);
  if (pair == saves.end()) return;
  throw ActionError("bring home the career save", environment.game.path(kSavedata) + "\\" + pair[1],
                    "its name is that of \"" + pair[0] + "\" in another spelling; no save was moved");
}

/// A save replaces the one of its name at home. Where two spellings of that name stand there, it would take
/// the place of both.
void refuse_two_spellings_at_home(Environment& environment, const std::vector<std::string>& saves,
                                  const std::string& home) {
  const std::vector<FolderEntry> there = environment.files.entries(home);
  for (const std::string& save : saves) {
    const FolderEntry* first = nullptr;
    for (const FolderEntry& entry : there) {
      if (entry.kind != EntryKind::kFile || !same_name(entry.name, save)) continue;
      if (first) {
        throw ActionError("bring home the career save", environment.game.path(kSavedata) + "\\" + save,
                          "\"" + home + "\" holds both \"" + std::min(first->name, entry.name) + "\" and \"" +
                              std::max(first->name, entry.name) + "\"; no save was moved");
      }
      first = &entry;
    }
  }
}

std::uint64_t move_careers_home(Environment& environment, const std::string& name, FileList& savedata) {
  savedata.pattern = kCareerPattern;
  savedata.refresh(environment.files);
  if (savedata.names.empty()) return 0;
  const std::string home = careers_home(environment, name);
  refuse_shared_names(environment, savedata.names);
  refuse_two_spellings_at_home(environment, savedata.names, home);
  for (const std::string& save : savedata.names) {
    const std::string source = environment.game.path(kSavedata) + "\\" + save;
    environment.files.copy_file(source, home + "\\" + save, Durability::kFlushed);
    environment.files.remove_file(source);
  }
  return savedata.names.size();
}

}  // namespace

std::string CleanUpSummary::sentence() const {
  return std::to_string(careers) + (careers == 1 ? " career save" : " career saves") + " brought home, " +
         std::to_string(deleted) + (deleted == 1 ? " loose file" : " loose files") + " deleted";
}

int careers_row(const GameTable& table) {
  for (int row = table.G2.row_count() - 1; row > 0; --row) {
    if (table.G2.cell(row, GameTable::kGroup) == "Careers") return row;
  }
  return 0;
}

CleanUpSummary clean_game_directory(Environment& environment, const GameTable& table, FileList& savedata) {
  const FileSystem::Action action(
      environment.files, [&] { environment.status.pulse(); }, environment.game.path(kStore));
  // The records are written at the end. Where they can't be, no set was ever installed, and the folder may be
  // any: nothing must be deleted there.
  if (!environment.files.FolderExists(environment.game.path(kStore))) {
    throw ActionError(
        "clean up", environment.game.path(""),
        "it is no game folder with a store, for it has no folder \"~Vorlund\"; nothing was deleted");
  }
  CleanUpSummary summary;
  const std::string kept_pattern = savedata.pattern;
  savedata.path = environment.game.path(kSavedata);
  if (const int row = careers_row(table); row > 0) {
    summary.careers = move_careers_home(environment, table.G2.cell(row, GameTable::kFolder), savedata);
  }
  savedata.pattern = kept_pattern;
  savedata.refresh(environment.files);
  const std::vector<std::string> names =
      list_files(environment.files, environment.game.path(""), kLoosePattern);
  for (std::size_t index = 0; index < names.size(); ++index) {
    const std::string upper = to_upper(names[index]);
    if (std::find(kSpared.begin(), kSpared.end(), upper) != kSpared.end()) continue;
    environment.status.progress(
        {names[index], static_cast<double>(index) / static_cast<double>(names.size())});
    environment.files.remove_file(environment.game.path("\\") + names[index]);
    ++summary.deleted;
  }
  return summary;
}

std::uint64_t delete_listed_missions(Environment& environment, FileList& savedata) {
  std::uint64_t deleted = 0;
  savedata.path = environment.game.path(kSavedata);
  savedata.refresh(environment.files);
  while (!savedata.names.empty()) {
    environment.files.remove_file(environment.game.path(kSavedata) + "\\" + savedata.names.front());
    ++deleted;
    savedata.refresh(environment.files);
  }
  return deleted;
}

}  // namespace vorlund
