// Moves careers home and deletes what the masks name.
#include "gamesets/clean_up.h"

#include <algorithm>
#include <array>

#include "core/action_error.h"
#include "core/copier.h"
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

/// The folder that the careers row names, wherever links of the player's lead it, but for one: in "Savedata"
/// a save moved home would be a save deleted.
std::string careers_home(Environment& environment, const std::string& name) {
  const std::string home = environment.game.path(kCareersStore) + "\\" + name;
  const auto refused = [&home](const char* why) {
    return ActionError("bring the career saves home to", home, std::string(why) + "; no save was moved");
  };
  if (!stays_below(name) || !environment.files.FolderExists(home)) throw refused("there is no such folder");
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
  const std::vector<std::string> there = list_files(environment.files, home, kCareerPattern);
  for (const std::string& save : saves) {
    if (std::count_if(there.begin(), there.end(),
                      [&save](const std::string& name) { return same_name(name, save); }) > 1) {
      throw ActionError("bring home the career save", environment.game.path(kSavedata) + "\\" + save,
                        "\"" + home + "\" holds its name in two spellings; no save was moved");
    }
  }
}

std::uint64_t move_careers_home(Environment& environment, Copier& copier, const std::string& name,
                                FileList& savedata) {
  savedata.pattern = kCareerPattern;
  savedata.refresh(environment.files);
  if (savedata.names.empty()) return 0;
  const std::string home = careers_home(environment, name);
  refuse_shared_names(environment, savedata.names);
  refuse_two_spellings_at_home(environment, savedata.names, home);
  for (const std::string& save : savedata.names) {
    const std::string source = environment.game.path(kSavedata) + "\\" + save;
    copier.reach(save);
    copier.copy(source, home + "\\" + save);
    environment.files.remove_file(source);
  }
  return savedata.names.size();
}

}  // namespace

std::string CleanUpSummary::sentence() const {
  std::string text;
  if (careers > 0) text = counted(careers, "career save", "career saves") + " brought home to " + home;
  if (careers > 0 && deleted > 0) text += "; ";
  if (deleted > 0) text += counted(deleted, "loose file", "loose files") + " deleted";
  return text.empty() ? "There was nothing to clean up" : text;
}

int careers_row(const GameTable& table) {
  for (int row = table.G2.row_count() - 1; row > 0; --row) {
    if (table.G2.cell(row, GameTable::kGroup) == "Careers") return row;
  }
  return 0;
}

std::string careers_home_name(const GameTable& table) {
  const int row = careers_row(table);
  if (row == 0) return {};
  const std::string& name = table.G2.cell(row, GameTable::kFolder);
  return name.empty() ? "Careers" : "Careers\\" + name;
}

std::size_t count_career_saves(Environment& environment) {
  return list_files(environment.files, environment.game.path(kSavedata), kCareerPattern).size();
}

CleanUpSummary clean_game_directory(Environment& environment, const GameTable& table, FileList& savedata) {
  Copier copier(environment);
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
    summary.careers =
        move_careers_home(environment, copier, table.G2.cell(row, GameTable::kFolder), savedata);
    summary.home = careers_home_name(table);
  }
  savedata.pattern = kept_pattern;
  savedata.refresh(environment.files);
  const std::vector<std::string> names =
      list_files(environment.files, environment.game.path(""), kLoosePattern);
  copier.expect(summary.careers + names.size());
  for (const std::string& name : names) {
    copier.reach(name);
    if (std::find(kSpared.begin(), kSpared.end(), to_upper(name)) != kSpared.end()) continue;
    environment.files.remove_file(environment.game.path("\\") + name);
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
