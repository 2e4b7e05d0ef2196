// Moves careers home and deletes what the masks name.
#include "gamesets/clean_up.h"

#include <algorithm>
#include <array>

#include "base/action_error.h"
#include "base/plain_name.h"
#include "base/text.h"
#include "disk/copier.h"
#include "disk/listing.h"
#include "disk/store.h"

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
std::string careers_home(const GameFolder& game, const std::string& name) {
  std::string home = game.path(kCareersStore) + "\\" + name;
  const auto refused = [&home](const char* why) {
    return ActionError("bring the career saves home to", home, std::string(why) + "; no save was moved");
  };
  if (!stays_below(name) || !game.files.FolderExists(home)) throw refused("there is no such folder");
  if (game.files.lies_inside(home, game.path(kSavedata))) {
    throw refused("it leads to \"Savedata\"");
  }
  return home;
}

/// Two saves that differ in case alone would have to share one place at home. `saves` is sorted by name.
void refuse_shared_names(const GameFolder& game, const std::vector<std::string>& saves) {
  const auto pair = std::adjacent_find(saves.begin(), saves.end(), same_name);
  if (pair == saves.end()) return;
  throw ActionError("bring home the career save", game.path(kSavedata) + "\\" + pair[1],
                    "its name is that of \"" + pair[0] + "\" in another spelling; no save was moved");
}

/// A save replaces the one of its name at home. Where two spellings of that name stand there, it would take
/// the place of both.
void refuse_two_spellings_at_home(const GameFolder& game, const std::vector<std::string>& saves,
                                  const std::string& home) {
  const std::vector<std::string> there = list_files(game.files, home, kCareerPattern);
  for (const std::string& save : saves) {
    if (std::count_if(there.begin(), there.end(),
                      [&save](const std::string& name) { return same_name(name, save); }) > 1) {
      throw ActionError("bring home the career save", game.path(kSavedata) + "\\" + save,
                        "\"" + home + "\" holds its name in two spellings; no save was moved");
    }
  }
}

/// Moves the saves into the home that the careers row names; returns how many.
std::uint64_t move_careers_home(const GameFolder& game, Copier& copier, const std::string& name) {
  const std::vector<std::string> saves = list_files(game.files, game.path(kSavedata), kCareerPattern);
  if (saves.empty()) return 0;
  const std::string home = careers_home(game, name);
  refuse_shared_names(game, saves);
  refuse_two_spellings_at_home(game, saves, home);
  for (const std::string& save : saves) {
    const std::string source = game.path(kSavedata) + "\\" + save;
    copier.reach(save);
    copier.copy(source, home + "\\" + save);
    game.files.remove_file(source);
  }
  return saves.size();
}

}  // namespace

std::string CleanUpSummary::sentence() const {
  std::string text;
  if (careers > 0) text = counted(careers, "career save", "career saves") + " brought home to " + home;
  if (careers > 0 && deleted > 0) text += "; ";
  if (deleted > 0) text += counted(deleted, "loose file", "loose files") + " deleted";
  if (text.empty()) text = "There was nothing to clean up";
  return text;
}

int careers_row(const GameTable& table) {
  for (int row = table.row_count() - 1; row > 0; --row) {
    if (table.cell(row, GameTable::kGroup) == "Careers") return row;
  }
  return 0;
}

std::string careers_home_name(const GameTable& table) {
  const int row = careers_row(table);
  if (row == 0) return {};
  const std::string name = table.cell(row, GameTable::kFolder);
  if (name.empty()) return "Careers";
  return "Careers\\" + name;
}

std::size_t count_career_saves(const GameFolder& game) {
  return list_files(game.files, game.path(kSavedata), kCareerPattern).size();
}

CleanUpSummary clean_game_directory(const GameFolder& game, Status& status, const GameTable& table) {
  Copier copier(game, status);
  // The records are written at the end. Where they can't be, no set was ever installed, and the folder may be
  // any: nothing must be deleted there.
  if (!game.files.FolderExists(game.path(kStore))) {
    throw ActionError(
        "clean up", game.path(""),
        "it is no game folder with a store, for it has no folder \"~Vorlund\"; nothing was deleted");
  }
  CleanUpSummary summary;
  if (const int row = careers_row(table); row > 0) {
    summary.careers = move_careers_home(game, copier, table.cell(row, GameTable::kFolder));
    summary.home = careers_home_name(table);
  }
  const std::vector<std::string> names = list_files(game.files, game.path(""), kLoosePattern);
  copier.expect(summary.careers + names.size());
  for (const std::string& name : names) {
    copier.reach(name);
    if (std::find(kSpared.begin(), kSpared.end(), to_upper(name)) != kSpared.end()) continue;
    game.files.remove_file(game.path("\\") + name);
    ++summary.deleted;
  }
  return summary;
}

std::uint64_t delete_default_missions(const GameFolder& game) {
  std::uint64_t deleted = 0;
  for (;;) {
    const std::vector<std::string> missions = list_files(game.files, game.path(kSavedata), kDefaultMissions);
    if (missions.empty()) return deleted;
    game.files.remove_file(game.path(kSavedata) + "\\" + missions.front());
    ++deleted;
  }
}

}  // namespace vorlund
