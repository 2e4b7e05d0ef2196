// Loading saved set-ups into the tables, and installing them at once.
#include <string>
#include <vector>

#include "base/action_error.h"
#include "panes/setups_fixture.h"

namespace vorlund {
namespace {

class LoadingSetups : public test::SetupsFixture {
 protected:
  LoadingSetups() {
    folder.write("~Vorlund/GameStore/Sky/Dusk/sky.pal", "dusk");
    folder.write("~Vorlund/FlightModels/Standard/common.dat", "common");
    folder.write("~Vorlund/GameSetFiles/Evening", "Folder group\tFolder name\r\nSky\tDusk\r\n");
    folder.write("~Vorlund/PlaneSetFiles/Spring 1944",
                 "Standard\r\nSlot\tRegion\r\nP38H\t\t\t0\t\tLightning\tAmerican\tYes\tFighter\t100\r\n");
    load.open();
  }
};

TEST_F(LoadingSetups, ListsBothKindsAndShowsThePaneInFront) {
  EXPECT_EQ(load.File3.names, (std::vector<std::string>{"Evening"}));
  EXPECT_EQ(load.File2.names, (std::vector<std::string>{"Spring 1944"}));
  EXPECT_TRUE(load.Frame2.visible);
  EXPECT_GT(load.Frame2.depth, 0);
  EXPECT_FALSE(load.Check1.checked);
}

TEST_F(LoadingSetups, InstallsTheAircraftSetFirstAndThenTheGameSet) {
  form.File2_Click(0);
  form.File3_Click(0);
  form.Label19_Click();
  EXPECT_EQ(folder.read("common.dat"), "common");
  EXPECT_EQ(folder.read("sky.pal"), "dusk");
  const std::string& said = work.said();
  EXPECT_EQ(said.find("1 slot, 1 file copied"), 0U) << said;
  EXPECT_NE(said.find("\n1 folder, 1 file copied"), std::string::npos) << said;
  EXPECT_TRUE(folder.has("~Vorlund/CurrentPlaneSet.txt"));
  EXPECT_TRUE(folder.has("~Vorlund/CurrentGameSet.txt"));
  EXPECT_FALSE(load.Frame2.visible);
  EXPECT_FALSE(game.GameFrame.visible);
  EXPECT_FALSE(plane.Frame1.visible);
}

TEST_F(LoadingSetups, WithViewTickedShowsTheTablesAndInstallsNothing) {
  const auto before = folder.tree();
  load.Check1.checked = true;
  form.File2_Click(0);
  form.File3_Click(0);
  form.Label19_Click();
  EXPECT_TRUE(game.GameFrame.visible);
  EXPECT_TRUE(plane.Frame1.visible);
  EXPECT_EQ(game.G2.cell(1, GameTable::kFolder), "Dusk");
  EXPECT_EQ(plane.G1.cell(1, PlaneTable::kPlaneName), "Lightning");
  EXPECT_EQ(plane.Label25[1].caption, "Standard");
  EXPECT_EQ(folder.tree(), before);
}

TEST_F(LoadingSetups, TheSecondViewBoxHasNoEffect) {
  load.Check2.checked = true;
  form.File3_Click(0);
  form.Label19_Click();
  EXPECT_EQ(folder.read("sky.pal"), "dusk");
}

TEST_F(LoadingSetups, AShortPlaneSetLeavesOnlyTheRowsThatItHolds) {
  load.Check1.checked = true;
  form.File2_Click(0);
  form.Label19_Click();
  EXPECT_EQ(plane.G1.row_count(), 2);
}

TEST_F(LoadingSetups, KeepsTheChosenNamesForTheNextTime) {
  load.Check1.checked = true;
  form.File3_Click(0);
  form.Label19_Click();
  game.G2.clear();
  load.open();
  EXPECT_EQ(load.Label21.caption, "Evening");
  form.Label19_Click();
  EXPECT_EQ(game.G2.row_count(), 2);
}

TEST_F(LoadingSetups, WithNothingChosenOnlyClosesThePane) {
  const auto before = folder.tree();
  form.Label19_Click();
  EXPECT_FALSE(load.Frame2.visible);
  EXPECT_EQ(load.Label19.caption, "Load");
  EXPECT_GE(work.status.repaints, 1);
  EXPECT_EQ(folder.tree(), before);
}

TEST_F(LoadingSetups, NamesTheSetUpThatCanNotBeOpened) {
  form.File3_Click(0);
  load.Label21.caption = "Gone";
  try {
    form.Label19_Click();
    FAIL() << "it was loaded";
  } catch (const ActionError& error) {
    EXPECT_NE(std::string(error.what()).find("GameSetFiles\\Gone"), std::string::npos) << error.what();
  }
}

TEST_F(LoadingSetups, CancelAndTheBackgroundCloseThePane) {
  form.Label40_Click();
  EXPECT_FALSE(load.Frame2.visible);
  load.open();
  form.Frame2_Click();
  EXPECT_FALSE(load.Frame2.visible);
}

TEST_F(LoadingSetups, AClickBesideTheNamesChoosesNothing) {
  form.File2_Click(-1);
  form.File3_Click(5);
  EXPECT_EQ(load.Label20.caption, "");
  EXPECT_EQ(load.Label21.caption, "");
}

TEST_F(LoadingSetups, WhatIsNotChosenIsNotTakenBack) {
  form.File3_Click(0);
  form.Label21_Click();
  EXPECT_EQ(load.Label21.caption, "");
  const std::string said = work.said();
  form.Label21_Click();
  form.Label20_Click();
  EXPECT_EQ(work.said(), said);
}

}  // namespace
}  // namespace vorlund
