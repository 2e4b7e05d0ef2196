// What is foretold is what happens: over random game folders, file by file and byte by byte, errors included.
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <set>

#include "base/action_error.h"
#include "base/text.h"
#include "disk/dry_run_file_system.h"
#include "panes/forecast.h"
#include "panes/made_game.h"
#include "panes/set_actions.h"
#include "support/form_in_folder.h"
#include "support/tree_of.h"

namespace vorlund {
namespace {

using Tree = std::map<std::string, std::string>;
using State = ForeseenFile::State;

/// A made game with its tables, made anew for each action.
struct Game {
  explicit Game(unsigned seed) : made(seed) {
    made.lay_out(folder);
    made.fill_tables(work.form);
  }

  SetsAtHand sets() {
    return {work.form.game.G2, work.form.plane.G1, work.form.plane.pilot_names, work.form.menu_editor.menu};
  }

  /// Paths differ from folder to folder.
  std::string without_path(std::string text) const {
    for (std::size_t at = 0; (at = text.find(folder.path(), at)) != std::string::npos;)
      text.replace(at, folder.path().size(), "@");
    return text;
  }

  /// What the disk holds, left-overs of crashes aside.
  Tree tree() {
    Tree tree = test::tree_of(*disk, folder.path());
    std::erase_if(tree, [](const auto& file) { return is_staging_name(file.first); });
    return tree;
  }

  test::TemporaryFolder folder;
  test::MadeGame made;
  std::unique_ptr<FileSystem> disk = make_platform_file_system();
  test::FormInFolder work{*disk, folder.path()};
};

struct Action {
  const char* name;
  std::function<void(Form1&)> click;
  std::function<void(const GameFolder&, Status&, Form1&)> run;
  Forecast Forecasts::*forecast;
};

const std::array<Action, 3> kActions = {
    {{"game set", [](Form1& form) { form.GameLoad_Click(); },
      [](const GameFolder& game, Status& status, Form1& form) {
        process_game_set(game, status, form.game.G2);
      },
      &Forecasts::game_set},
     {"aircraft set", [](Form1& form) { form.Label8_Click(); },
      [](const GameFolder& game, Status& status, Form1& form) {
        process_aircraft_set(game, status, form.plane.G1, form.plane.pilot_names, form.menu_editor.menu);
      },
      &Forecasts::aircraft_set},
     {"clean-up", [](Form1& form) { form.Label5_MouseUp({MouseButton::kLeft}); },
      [](const GameFolder& game, Status& status, Form1& form) {
        clean_up_sets(game, status, form.game.G2, form.plane.G1);
      },
      &Forecasts::clean_up}}};

std::string error_of(const std::function<void()>& action) {
  try {
    action();
  } catch (const ActionError& error) {
    return error.what();
  }
  return {};
}

/// The tree that a dry run tells of, run on a game of its own.
Tree foretold_tree(const Action& action, unsigned seed) {
  Game game(seed);
  DryRunFileSystem dry(*game.disk);
  const GameFolder folder{dry, game.folder.path()};
  const FolderLocks locks =
      dry.lock_folders(written_folders(folder, game.work.form.game.G2), std::chrono::milliseconds(0));
  error_of([&] { action.run(folder, game.work.status, game.work.form); });
  Tree tree = test::tree_of(dry, game.folder.path());
  std::erase_if(tree, [](const auto& file) { return is_staging_name(file.first); });
  return tree;
}

/// Names of a tree's files that differ in the other one, in bytes or by not being there.
std::set<std::string> different(const Tree& tree, const Tree& other) {
  std::set<std::string> names;
  for (const auto& [name, bytes] : tree) {
    const auto found = other.find(name);
    if (!name.ends_with('/') && (found == other.end() || found->second != bytes)) names.insert(name);
  }
  return names;
}

/// What the forecast says is written, and what it says is gone, as names in the tree.
void collect(const Forecast& forecast, const Game& game, std::set<std::string>& written,
             std::set<std::string>& gone, const Tree& before) {
  for (const ForeseenFile& file : forecast.files) {
    std::string folder = file.folder.substr(std::min(game.folder.path().size(), file.folder.size()));
    while (folder.starts_with('\\')) folder.erase(0, 1);
    std::replace(folder.begin(), folder.end(), '\\', '/');
    const std::string name = (folder.empty() ? "" : folder + "/") + file.name;
    if (file.state == State::kDeleted) gone.insert(name);
    if (file.state == State::kChanged || file.state == State::kNew || file.state == State::kRespelled)
      written.insert(name);
    if (file.state != State::kDeleted && file.state != State::kNew && !before.contains(name)) {
      // A file that stood there under another spelling, which goes.
      written.insert(name);
    }
  }
}

/// True for a folder that two paths of the tree lead to.
bool has_links(const Game& game) {
  for (const auto& [name, bytes] : game.folder.tree()) {
    if (bytes.starts_with("-> ")) return true;
  }
  return false;
}

class ForecastTruth : public testing::TestWithParam<unsigned> {};

TEST_P(ForecastTruth, WhatIsForetoldIsWhatTheClickThenDoes) {
  const unsigned seed = GetParam();
  for (const Action& action : kActions) {
    SCOPED_TRACE(action.name);
    Game game(seed);
    const Tree before = game.tree();
    const Tree raw_before = game.folder.tree();
    const Forecasts forecasts = foresee({*game.disk, game.folder.path()}, game.work.status, game.sets());
    const Forecast& forecast = forecasts.*action.forecast;
    EXPECT_EQ(game.folder.tree(), raw_before) << "the forecast has written";

    const std::string error = error_of([&] { action.click(game.work.form); });
    EXPECT_EQ(forecast.stops, error);
    if (error.empty()) {
      EXPECT_EQ(game.work.said().substr(0, forecast.said.size()), forecast.said);
    }
    const Tree after = game.tree();
    EXPECT_EQ(foretold_tree(action, seed), after);
    for (const OwnFile& own : forecast.own_files) {
      const std::string path = game.folder.path() + std::string(own.name);
      EXPECT_EQ(game.disk->FileExists(path) ? game.disk->read_file(path) : "", own.then) << own.name;
    }
    if (has_links(game)) continue;
    std::set<std::string> written;
    std::set<std::string> gone;
    collect(forecast, game, written, gone, before);
    EXPECT_EQ(written, different(after, before));
    std::set<std::string> missing;
    for (const std::string& name : different(before, after)) {
      // Of a name that is only spelled otherwise the old spelling is not told apart.
      const bool respelled = std::any_of(written.begin(), written.end(), [&](const std::string& other) {
        return other != name && same_name(other, name);
      });
      if (!after.contains(name) && !respelled) missing.insert(name);
    }
    std::erase_if(gone,
                  [&](const std::string& name) { return after.contains(name) || written.contains(name); });
    std::erase_if(gone, [&](const std::string& name) {
      return std::any_of(written.begin(), written.end(),
                         [&](const std::string& other) { return same_name(other, name); });
    });
    EXPECT_EQ(gone, missing);
  }
}

TEST_P(ForecastTruth, AfterAnInstallationNothingWouldBeWritten) {
  for (const Action& action : {kActions[0], kActions[1]}) {
    SCOPED_TRACE(action.name);
    Game game(GetParam());
    if (!error_of([&] { action.click(game.work.form); }).empty()) continue;
    const Forecasts again = foresee({*game.disk, game.folder.path()}, game.work.status, game.sets());
    EXPECT_EQ((again.*action.forecast).stops, "");
    for (const ForeseenFile& file : (again.*action.forecast).files) {
      const bool shifts =
          game.made.has_shifting_menu() && same_name(file.name.substr(file.name.size() - 4), ".mnu");
      if (!shifts) {
        EXPECT_EQ(file.state, State::kInPlace) << file.folder << " " << file.name;
      }
    }
    for (const ForeseenPatch& patch : (again.*action.forecast).patches) {
      EXPECT_EQ(patch.stands, patch.is_in_place) << patch.file << " at " << patch.first;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ForecastTruth, testing::Range(FORECAST_FIRST_SEED, FORECAST_LAST_SEED));

}  // namespace
}  // namespace vorlund
