// A whole evening with the program: after each action the game folder is compared byte for byte with what
// other code computes from the store, and after the restart the window with what was left.
#include <QApplication>
#include <QLineEdit>
#include <QLocale>
#include <QProcess>
#include <QtTest/QTest>
#include <algorithm>
#include <array>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <locale>

#include "window/expected_game_folder.h"
#include "window/program_window.h"

namespace vorlund::test {
namespace {

namespace fs = std::filesystem;

// Made absolute before a test changes the current folder, and with it, on Windows, the current drive.
const fs::path kMakeSampleGame = fs::absolute(u8"" MAKE_SAMPLE_GAME);
constexpr char kFlightModels[] = "Standard 2.1";
constexpr char kGameSetName[] = "Evening, game";
constexpr char kPlaneSetName[] = "Soir\u00E9e, Flugzeuge 1944";

/// What differs between two folders, name by name.
std::string difference(const Tree& expected, const Tree& found) {
  std::string report;
  for (const auto& [name, content] : expected) {
    const auto other = found.find(name);
    if (other == found.end()) report += name + " is missing\n";
    if (other != found.end() && other->second != content) report += name + " differs\n";
  }
  for (const auto& [name, content] : found) {
    if (!expected.contains(name)) report += name + " is left over\n";
  }
  return report;
}

/// Fills the folder with a sample game: a copy of the one that EVENING_SAMPLE names, or else one made anew.
void make_sample_game(const TemporaryFolder& folder) {
  const char* made = std::getenv("EVENING_SAMPLE");
  if (made != nullptr) {
    fs::copy(fs::path(made), fs::path(folder.path()), fs::copy_options::recursive);
  } else if (QProcess::execute(QString::fromStdU16String(kMakeSampleGame.u16string()),
                               {QString::fromStdString(folder.path())}) != 0) {
    throw std::runtime_error("the sample game can't be made");
  }
}

class Evening : public ProgramWindow {
 protected:
  /// Compares the game folder with what the same actions come to elsewhere.
  void expect_folder(const char* when) {
    EXPECT_EQ(difference(expected->files(), folder.tree()), "") << when;
  }

  QString label_of(const char* array, const std::string& caption) {
    return ProgramWindow::label_of(array, QString::fromStdString(caption));
  }

  void choose(const std::string& group, const std::string& folder_name) {
    click(label_of("Label1", group));
    click(label_of("SelLab", folder_name));
    EXPECT_EQ(form().selection.Text1.text, expected->description("GameStore/" + group + "/" + folder_name));
    click("Image1");
    EXPECT_FALSE(sees("Frame3")) << folder_name;
  }

  /// Clicks the row of the game table that holds that folder.
  void click_game_row(const std::string& folder_name) {
    auto* view = static_cast<GridView*>(widget("G2"));
    for (int row = 0; row < view->grid_model().rowCount(); ++row) {
      const QModelIndex index = view->grid_model().index(row, 1);
      if (index.data().toString().toStdString() != folder_name) continue;
      view->scrollTo(index);
      click_at(view->viewport(), view->visualRect(index).center());
      return;
    }
    FAIL() << folder_name << " is in no row";
  }

  void click_listed(const QString& list, const std::string& entry) {
    auto* view = static_cast<ListView*>(widget(list));
    for (int row = 0; row < view->model()->rowCount(); ++row) {
      if (view->model()->index(row, 0).data().toString().toStdString() == entry)
        return click_entry(list, row);
    }
    FAIL() << entry << " is not in " << list.toStdString();
  }

  /// Types as an input method does, which knows every letter.
  void enter_name(const char* name) {
    QInputMethodEvent typed;
    typed.setCommitString(QString::fromUtf8(name));
    ASSERT_TRUE(widget("Text2")->hasFocus());
    QApplication::sendEvent(widget("Text2"), &typed);
    EXPECT_EQ(text("Text2").toStdString(), name);
  }

  void start_program() {
    make_sample_game(folder);
    expected = std::make_unique<ExpectedGameFolder>(folder.tree());
    games = {{"Aircraft packs", ""},
             {"Campaigns", ""},
             {"Careers", "Harker, 611 Squadron"},
             {"Cockpits", ""},
             {"Hangar screens", ""},
             {"Missions", ""},
             {"Music", ""},
             {"Patches", ""},
             {"Scenery", ""},
             {"Sky and clouds", "Dusk and dawn"},
             {"Terrain", ""},
             {"Tweaks", "Longer contrails"}};
    restart();
    expected->start();
    expect_folder("after the start");
  }

  void compose_and_install_games() {
    click("Label9(1)");
    const GameRows chosen = {{"Careers", "Dubois, 341 Squadron"},
                             {"Cockpits", "Night panel"},
                             {"Hangar screens", "Caf\u00E9 du Terrain"},
                             {"Missions", "Railway week"},
                             {"Music", "Marches"},
                             {"Patches", "See farther"},
                             {"Scenery", "Western Europe, every tile"},
                             {"Terrain", "Nordk\u00FCste"}};
    for (const auto& [group, name] : chosen) {
      choose(group, name);
      for (auto& row : games) row.second = row.first == group ? name : row.second;
    }
    // The last group alone takes a new row for each choice.
    for (const char* name : {"Sharper gun sight", "Fewer messages"}) {
      choose("Tweaks", name);
      games.emplace_back("Tweaks", name);
    }
    click("Label2");
    click_game_row("See farther");
    click("Label29");
    std::rotate(games.begin() + 7, games.begin() + 8, games.end());
    click_game_row("Dusk and dawn");
    click("Label28");
    games[8].second.clear();
    click_game_row("Longer contrails");
    click("Label28");
    games.erase(games.begin() + 10);
    click("GameLoad");
    EXPECT_FALSE(sees("GameFrame"));
    expected->install(games);
    expect_folder("after the game set was installed");
  }

  void choose_flight_models() {
    for (const char* group : {"Historical 1944", kFlightModels}) {
      click("Label9(2)");
      click(label_of("Label1", group));
    }
    aircraft.group = kFlightModels;
    click("Label9(0)");
    click("Label2");
    EXPECT_EQ(text("Label25(0)"), kFlightModels);
  }

  void compose_and_install_aircraft() {
    if (text("Label30") == "Show All") click("Label30");
    for (int record = 0; record < 30; ++record) {
      aircraft.rows.push_back(expected->slot(kFlightModels, record));
      click("Option1(3)");
      click_cell(record + 1, 0);
      click_listed("List2", aircraft.rows.back()[4]);
    }
    click("Option1(2)");
    std::vector<Slot> unshaped;
    for (int record = 0; record < 30; ++record) {
      const Slot& slot = aircraft.rows[static_cast<std::size_t>(record)];
      if (slot[2].empty()) continue;  // an aircraft that the store has no skin for
      if (!expected->has_shapes(slot)) unshaped.push_back(slot);
      if (!expected->has_shapes(slot)) continue;
      click_cell(record + 1, 1);
      EXPECT_EQ(text("Label32").toStdString(), slot[2]);
      click("Image4");
      ASSERT_TRUE(sees("Frame1")) << code_of(record);
    }
    for (const Slot& slot : unshaped) choose_skin(slot);
    edit(4, 9, "75");                                                   // 100 percent of fuel
    edit(12, 7, aircraft.rows[12][7] == "Yes" ? "No" : "Yes");          // flyable or not
    edit(17, 6, "British");                                             // a German side
    edit(13, 8, aircraft.rows[13][8] == "F/B" ? "Bomber" : "Fighter");  // a role
    EXPECT_EQ(shown_aircraft(), aircraft.rows);
    click("Label8");
    EXPECT_FALSE(sees("Frame1"));
    expected->install(aircraft);
    expect_folder("after the aircraft set was installed");
  }

  /// Among the possible skins one without shapes would go to the plane of the skin viewed before it; the
  /// groups of skins tell its plane by its textures.
  void choose_skin(const Slot& slot) {
    click("Label10(0)");
    click(label_of("Label1", slot[1]));
    click(label_of("SelLab", slot[2]));
    click("Image1");
    click("Label10(2)");
    click("Label2");
  }

  /// Clicks a cell in edit mode; it must come to hold the text.
  void edit(int record, std::size_t column, const std::string& text) {
    click_cell(record + 1, static_cast<int>(column));
    aircraft.rows[static_cast<std::size_t>(record)][column] = text;
  }

  void save_both() {
    click("WhatsLoaded");
    click("Label11");
    enter_name(kGameSetName);
    click("Label4");
    click("Label10(1)");
    click("Label14");
    enter_name(kPlaneSetName);
    press_key("Text2", Qt::Key_Return);
    expected->save(kGameSetName, games);
    expected->save(kPlaneSetName, aircraft);
    expect_folder("after both were saved");
  }

  void clean_up() {
    click("Label5");
    GameRows cleared = games;
    Aircraft emptied = aircraft;
    expected->clean_up(cleared, emptied);
    expect_folder("after the clean-up");
    EXPECT_EQ(shown_games(), GameRows());
    EXPECT_EQ(text("Label25(0)"), "");
  }

  void load_and_install_both() {
    click("Label9(3)");
    click_listed("File2", kPlaneSetName);
    click_listed("File3", kGameSetName);
    EXPECT_FALSE(form().load_pane.Check1.checked);
    click("Label19");
    EXPECT_FALSE(sees("Frame2"));
    expected->install(aircraft);
    expected->install(games);
    expect_folder("after both were loaded");
    click("DelMSN");
    expected->delete_default_missions();
    expect_folder("after the default missions were deleted");
  }

  /// The rows that the tables show, as their views give them out.
  GameRows shown_games() {
    const GridModel& model = static_cast<GridView*>(widget("G2"))->grid_model();
    GameRows rows;
    for (int row = 0; row < model.rowCount(); ++row) {
      rows.emplace_back(model.index(row, 0).data().toString().toStdString(),
                        model.index(row, 1).data().toString().toStdString());
    }
    return rows;
  }

  std::vector<Slot> shown_aircraft() {
    const GridModel& model = static_cast<GridView*>(widget("G1"))->grid_model();
    std::vector<Slot> rows;
    for (int row = 0; row < model.rowCount(); ++row) {
      Slot& slot = rows.emplace_back();
      for (std::size_t column = 0; column < slot.size(); ++column) {
        slot[column] = model.index(row, static_cast<int>(column)).data().toString().toStdString();
      }
    }
    return rows;
  }

  void expect_what_was_left() {
    expect_folder("after the restart");
    GameRows filled;
    for (const auto& row : games) {
      if (!row.second.empty()) filled.push_back(row);
    }
    EXPECT_TRUE(sees("Label6"));
    EXPECT_EQ(text("Label26"), "Version 1.0.60");
    EXPECT_EQ(text("Label16").toStdString(), folder.path());
    for (const char* pane : {"GameFrame", "Frame1", "Frame2", "Frame3", "Frame4", "SaveFrame", "PMenFrame"}) {
      EXPECT_FALSE(sees(pane)) << pane;
    }
    click("WhatsLoaded");
    EXPECT_TRUE(sees("GameFrame"));
    EXPECT_TRUE(sees("Frame1"));
    EXPECT_EQ(shown_games(), filled);
    EXPECT_EQ(shown_aircraft(), aircraft.rows);
    EXPECT_EQ(text("Label25(0)"), kFlightModels);
    EXPECT_EQ(text("Label25(1)"), kFlightModels);
    EXPECT_EQ(text("Label30"), "Show All");
    click("Label10(1)");
    click("Label13");
    EXPECT_EQ(form().load_pane.File3.names,
              (std::vector<std::string>{"Battle of Britain", kGameSetName, "N\u00E4chte im Winter",
                                        "Spring 1944"}));
    EXPECT_EQ(form().load_pane.File2.names,
              (std::vector<std::string>{"Battle of Britain", "Night", kPlaneSetName, "Spring 1944"}));
    EXPECT_EQ(text("Label20"), "");
  }

  std::unique_ptr<ExpectedGameFolder> expected;
  GameRows games;
  Aircraft aircraft;
};

TEST_F(Evening, RunsInTheLocaleThatItWasAskedFor) {
  const char* wanted = std::getenv("LC_ALL");
  ASSERT_NE(wanted, nullptr);
  const bool comma = std::string(wanted) != "C";
  EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), wanted);
  EXPECT_STREQ(std::localeconv()->decimal_point, comma ? "," : ".");
  EXPECT_EQ(std::use_facet<std::numpunct<char>>(std::locale()).decimal_point(), comma ? ',' : '.');
  EXPECT_EQ(QLocale().decimalPoint(), comma ? "," : ".");
  EXPECT_EQ(QLocale::system().decimalPoint(), comma ? "," : ".");
}

TEST_F(Evening, LeavesWhatTheStoreSaysAndIsShownAtTheNextStart) {
  ASSERT_NE(folder.path().find("\u00E9"), std::string::npos);
  ASSERT_NE(folder.path().find(' '), std::string::npos);
  start_program();
  const std::array<std::function<void()>, 6> steps = {[this] { compose_and_install_games(); },
                                                      [this] { choose_flight_models(); },
                                                      [this] { compose_and_install_aircraft(); },
                                                      [this] { save_both(); },
                                                      [this] { clean_up(); },
                                                      [this] { load_and_install_both(); }};
  for (const auto& step : steps) {
    if (HasFailure()) return;
    step();
  }
  if (HasFailure()) return;
  restart();
  expect_what_was_left();
}

}  // namespace
}  // namespace vorlund::test
