// Every change of the two tables can be taken back and done again, and no file follows.
#include "panes/form_fixture.h"

namespace vorlund {
namespace {

using test::left;

class TakingBack : public test::FormFixture {
 protected:
  TakingBack() {
    folder.write("~Vorlund/SkinStore/RAF/Silver/pp38h.3dz", "");
    folder.write("~Vorlund/SkinStore/RAF/Green/pp38h.3dz", "");
    std::string oaw = "Lightning\r\n0\r\n1\r\n2\r\n3\r\n5\r\n2\r\n";
    for (int line = 7; line < 169; ++line) oaw += "0\r\n";
    folder.write("~Vorlund/FlightModels/Standard/P38/p38.oaw", oaw);
    folder.make_folder("~Vorlund/FlightModels/Late");
    folder.write("~Vorlund/CurrentPlaneSet.txt",
                 "Standard\r\nSlot\r\nP38H\tRAF\tSilver\t0\tP38\tLightning\tAmerican\tYes\tFighter\t100\r\n");
    folder.write("~Vorlund/GameSetFiles/Other", "Folder group\tFolder name\r\nSky\tDusk\r\n");
    folder.write("~Vorlund/PlaneSetFiles/Early", "Late\r\nSlot\r\nP38H\t\t\t7\r\nP38J\t\t\t8\r\n");
    start();
  }

  /// Both tables, and the flight-model group as it is shown.
  std::string tables() const {
    std::string text = form->plane.G1.flight_model_group + " " + form->plane.Label25[0].caption + "\n";
    for (const CellTable* table :
         {static_cast<const CellTable*>(&form->game.G2), static_cast<const CellTable*>(&form->plane.G1)}) {
      for (int row = 0; row < table->row_count(); ++row) {
        for (const std::string& cell : table->cells(row)) text += cell + "|";
        text += "\n";
      }
    }
    return text;
  }

  const std::string& said() const { return form->desk.status_line.caption; }

  void choose(int group, int folder_label) {
    form->Label1_Click(group);
    form->SelLab_Click(folder_label);
    form->Image1_Click();
  }

  struct Change {
    const char* name;
    std::function<void()> prepare;
    std::function<void()> make;
  };

  /// The change, back, again: the tables are what they were each time, and the status line says so.
  void check(const Change& change) {
    SCOPED_TRACE(change.name);
    start();
    if (change.prepare) change.prepare();
    const auto files_before = folder.tree();
    const std::string before = tables();
    change.make();
    const std::string after = tables();
    const std::string what = form->desk.outcome();
    ASSERT_NE(before, after) << "nothing was changed";
    form->take_back();
    EXPECT_EQ(tables(), before);
    EXPECT_TRUE(said().starts_with("Taken back: ")) << said();
    EXPECT_GT(said().size(), 20U);
    form->do_again();
    EXPECT_EQ(tables(), after);
    EXPECT_TRUE(said().starts_with("Done again: ")) << said();
    form->take_back();
    EXPECT_EQ(tables(), before);
    EXPECT_EQ(folder.tree(), files_before);
  }
};

TEST_F(TakingBack, WorksForEveryChangeOfTheTables) {
  const auto games = [this] { form->Label9_MouseUp(1, left()); };
  const auto planes = [this] { form->Label9_MouseUp(0, left()); };
  const auto edit = [this, planes] {
    planes();
    form->Option1_Click(static_cast<int>(PlaneOption::kEditMode));
  };
  const auto view = [this] {
    form->Label12_Click();
    form->load_pane.Check1.checked = true;
  };
  const Change changes[] = {
      {"choose for a group of one row", games, [this] { choose(1, 1); }},
      {"choose for the last group, which adds a row", games, [this] { choose(2, 0); }},
      {"clear a row", games,
       [this] {
         form->G2_Click(2);
         form->Label28_Click();
       }},
      {"clear a row of the last group, which removes it", games,
       [this] {
         form->G2_Click(3);
         form->Label28_Click();
       }},
      {"move", games,
       [this] {
         form->G2_Click(1);
         form->Label29_Click();
       }},
      {"choose a skin", planes, [this] { choose(0, 0); }},
      {"clear a slot", planes,
       [this] {
         form->G1_MouseDown(1, 0);
         form->Label3_Click();
       }},
      {"cycle", edit, [this] { form->G1_MouseDown(1, PlaneTable::kFuel); }},
      {"plane code", edit,
       [this] {
         form->G1_MouseDown(1, PlaneTable::kSlot);
         form->List3_Click(7);
       }},
      {"possible skin", edit,
       [this] {
         form->G1_MouseDown(1, PlaneTable::kRegion);
         form->List4_Click(0);
         form->Image4_Click();
       }},
      {"flight model", planes,
       [this] {
         form->Option1_Click(static_cast<int>(PlaneOption::kFindFlightModel));
         form->G1_MouseDown(2, PlaneTable::kSlot);
         form->List2_Click(0);
       }},
      {"flight-model group", [this] { form->Label9_MouseUp(2, left()); }, [this] { form->Label1_Click(0); }},
      {"load a game set with \"View\"", view,
       [this] {
         form->File3_Click(0);
         form->Label19_Click();
       }},
      {"load both sets with \"View\"", view,
       [this] {
         form->File3_Click(0);
         form->File2_Click(0);
         form->Label19_Click();
       }},
  };
  for (const Change& change : changes) check(change);
}

TEST_F(TakingBack, GoesBackStepByStepToTheStartAndForthAgain) {
  form->Label9_MouseUp(0, left());
  form->Label9_MouseUp(1, left());
  std::vector<std::string> states = {tables()};
  choose(1, 1);
  states.push_back(tables());
  choose(2, 0);
  states.push_back(tables());
  form->G2_Click(1);
  form->Label29_Click();
  states.push_back(tables());
  for (int step = 2; step >= 0; --step) {
    form->take_back();
    EXPECT_EQ(tables(), states[static_cast<std::size_t>(step)]);
  }
  form->take_back();
  EXPECT_EQ(said(), "There is nothing to take back");
  EXPECT_EQ(tables(), states[0]) << "the slots that opening the settings has added stay";
  for (std::size_t step = 1; step < states.size(); ++step) {
    form->do_again();
    EXPECT_EQ(tables(), states[step]);
  }
  form->do_again();
  EXPECT_EQ(said(), "There is nothing to do again");
}

TEST_F(TakingBack, ANewChangeForgetsWhatWasTakenBack) {
  form->Label9_MouseUp(1, left());
  choose(1, 1);
  form->take_back();
  choose(2, 0);
  form->do_again();
  EXPECT_EQ(said(), "There is nothing to do again");
}

TEST_F(TakingBack, OutlivesAnInstallationAndEndsWithTheCleanUp) {
  form->Label9_MouseUp(1, left());
  const std::string before = tables();
  choose(1, 1);
  form->GameLoad_Click();
  const auto installed = folder.tree();
  form->take_back();
  EXPECT_EQ(tables(), before);
  EXPECT_EQ(folder.tree(), installed) << "files are never undone";
  form->do_again();
  form->CleanUp();
  const std::string cleaned = tables();
  form->take_back();
  EXPECT_EQ(said(), "There is nothing to take back");
  EXPECT_EQ(tables(), cleaned);
}

TEST_F(TakingBack, MakesTheChangedRowTheCurrentOneAndNoOther) {
  form->Label9_MouseUp(1, left());
  form->G2_Click(1);
  choose(1, 1);
  form->take_back();
  EXPECT_EQ(form->game.G2.current_row, 2);
  choose(2, 0);
  form->take_back();
  EXPECT_EQ(form->game.G2.current_row, 0) << "its row is gone: a second click must clear no other";
  form->Label9_MouseUp(0, left());
  form->G1_MouseDown(1, 0);
  form->Label3_Click();
  form->G1_MouseDown(5, 0);
  form->take_back();
  EXPECT_EQ(form->plane.G1.current_row, 1);
  EXPECT_FALSE(form->plane.G1.is_hidden(1));
}

TEST_F(TakingBack, SaysWhatItTookBackAndWhereSavesWouldGoAgain) {
  folder.make_folder("~Vorlund/GameStore/Careers/Camp2");
  folder.write("Savedata/c1.sve", "one");
  form->Label9_MouseUp(1, left());
  form->G2_Click(2);
  form->Label28_Click();
  form->take_back();
  EXPECT_EQ(said(), "Taken back: \"Dawn\" was cleared");
  choose(0, 1);
  form->take_back();
  EXPECT_TRUE(said().ends_with("would now go home to Careers at \"Clean Up\"")) << said();
}

TEST_F(TakingBack, ReachesAThousandChangesBack) {
  CellTable& table = form->game.G2;
  TableHistory history(form->game, form->plane);
  table.add_row({"Sounds", "0"});
  const int row = table.row_count() - 1;
  history.begin();
  for (int change = 1; change <= 1'200; ++change) {
    table.set_cell(row, GameTable::kFolder, std::to_string(change));
    history.note("a change");
  }
  int taken_back = 0;
  while (!history.take_back().empty()) ++taken_back;
  EXPECT_EQ(taken_back, 1'000);
  EXPECT_EQ(table.cell(row, GameTable::kFolder), "200");
  while (!history.do_again().empty()) --taken_back;
  EXPECT_EQ(taken_back, 0);
  EXPECT_EQ(table.cell(row, GameTable::kFolder), "1200");
}

TEST_F(TakingBack, ForgetsTheOldestOfLargeTables) {
  CellTable& table = form->game.G2;
  constexpr std::size_t kLarge = 1 << 20;
  TableHistory history(form->game, form->plane, 3 * kLarge);
  const auto load = [&](const std::string& name) {
    const std::vector<std::string> header = table.cells(0);
    table.clear_rows();
    table.add_row(header);
    table.add_row({name, std::string(kLarge, '.')});
    history.note(name);
  };
  load("one");
  history.begin();
  for (const char* name : {"two", "three", "four", "five"}) load(name);
  EXPECT_EQ(history.take_back(), "five");
  EXPECT_EQ(history.take_back(), "four");
  EXPECT_EQ(history.take_back(), "");
  EXPECT_EQ(table.cell(1, GameTable::kGroup), "three");
  load("six");
  EXPECT_EQ(history.do_again(), "") << "what was taken back is forgotten";
  EXPECT_EQ(history.take_back(), "six");
  EXPECT_EQ(history.take_back(), "");
}

TEST_F(TakingBack, KeepsTheLastStepOfATableHoweverLarge) {
  CellTable& table = form->game.G2;
  TableHistory history(form->game, form->plane, 1);
  history.begin();
  const std::vector<std::string> header = table.cells(0);
  for (const char* name : {"one", "two"}) {
    table.clear_rows();
    table.add_row(header);
    table.add_row({name, "folder"});
    history.note(name);
  }
  EXPECT_EQ(history.take_back(), "two");
  EXPECT_EQ(table.cell(1, GameTable::kGroup), "one");
  EXPECT_EQ(history.take_back(), "");
}

TEST_F(TakingBack, SlotsThatTheAircraftSettingsAddedGoAndComeWithTheChangeBeforeThem) {
  form->Label9_MouseUp(1, left());
  const std::string before = tables();
  choose(1, 1);
  form->Label9_MouseUp(0, left());
  const std::string after = tables();
  form->take_back();
  EXPECT_EQ(tables(), before);
  form->do_again();
  EXPECT_EQ(tables(), after);
}

}  // namespace
}  // namespace vorlund
