// Work that crosses panes: composing a game set, cleaning up, saving and loading set-ups.
#include "panes/form_fixture.h"

namespace vorlund {
namespace {

using test::left;
using Work = test::FormFixture;

int group_index(const Form1& form, std::string_view caption) {
  for (std::size_t index = 0; index < form.selection.Label1.size(); ++index) {
    if (form.selection.Label1[index].caption == caption) return static_cast<int>(index);
  }
  return -1;
}

void choose(Form1& form, std::string_view group, std::string_view name) {
  form.Label1_Click(group_index(form, group));
  for (std::size_t index = 0; index < form.selection.SelLab.size(); ++index) {
    if (form.selection.SelLab[index].caption == name) form.SelLab_Click(static_cast<int>(index));
  }
  form.Image1_Click();
}

TEST_F(Work, AGameSetIsComposedInstalledAndShownAtTheNextStart) {
  start().Label9_MouseUp(1, left());
  choose(*form, "Sky", "Dusk");
  choose(*form, "Tweaks", "Fire");
  form->Label2_Click();
  EXPECT_TRUE(form->game.GameFrame.visible);
  form->GameLoad_Click();
  EXPECT_EQ(folder.read("sky.pal"), "dusk");
  EXPECT_EQ(folder.read("smoke.dat"), "smoke");
  EXPECT_EQ(folder.read("fire.dat"), "fire");
  EXPECT_EQ(form->desk.status_line.caption, "3 folders, 3 files copied, 1 kept in the store");
  EXPECT_EQ(folder.read("~Vorlund/CurrentGameSet.txt"),
            "Folder group\tFolder name\r\nCareers\t\r\nSky\tDusk\r\nTweaks\tSmoke\r\nTweaks\tFire\r\n");
  start();
  EXPECT_EQ(form->game.G2.row_count(), 5);
  EXPECT_EQ(form->game.G2.cell(4, GameTable::kFolder), "Fire");
}

TEST_F(Work, ATableThatWasLoadedWithoutARunningWorkIsBroughtBack) {
  const std::string game_set = "Folder group\tFolder name\r\nSky\tDusk\r\n";
  folder.write("~Vorlund/GameSetFiles/Spring", game_set);
  folder.write("~Vorlund/PlaneSetFiles/Spring", "Standard\r\nSlot\r\n");
  for (const bool game : {true, false}) {
    start().Label9_MouseUp(2, left());
    form->Label9_MouseUp(3, left());
    if (game) form->File3_Click(0);
    form->File2_Click(0);
    form->load_pane.Check1.checked = true;
    form->Label19_Click();
    form->Label10_Click(1);
    form->Label10_Click(0);
    EXPECT_FALSE(form->game.GameFrame.visible || form->plane.Frame1.visible);
    EXPECT_TRUE(form->desk.labels.Label2.visible);
    EXPECT_EQ(form->desk.labels.Label2.caption, game ? "Show Game Table" : "Show Plane Table");
    form->Label2_Click();
    EXPECT_EQ(form->game.GameFrame.visible, game);
    EXPECT_EQ(form->plane.Frame1.visible, !game);
  }
}

TEST_F(Work, ALoadedSetUpLeavesTheRunningWorkAsItIs) {
  folder.write("~Vorlund/GameSetFiles/Spring", "Folder group\tFolder name\r\nSky\tDusk\r\n");
  start().Label9_MouseUp(2, left());
  form->Label12_Click();
  form->File3_Click(0);
  form->load_pane.Check1.checked = true;
  form->Label19_Click();
  EXPECT_EQ(form->selection.mode, PaneMode::kFlightModelGroup);
  form->Label1_Click(0);
  EXPECT_EQ(form->plane.G1.flight_model_group, "Standard");
}

TEST_F(Work, ClearingARowOfTheLastGroupRemovesIt) {
  start().Label9_MouseUp(1, left());
  form->G2_Click(3);
  form->Label28_Click();
  EXPECT_EQ(form->game.G2.row_count(), 3);
}

TEST_F(Work, ACareersRowThatIsClearedWithoutGroupLabelsStays) {
  folder.write("~Vorlund/GameSetFiles/Campaign", "Folder group\tFolder name\r\nCareers\tCamp1\r\n");
  start().Label9_MouseUp(1, left());
  form->Label9_MouseUp(3, left());
  form->File3_Click(0);
  form->load_pane.Check1.checked = true;
  form->Label19_Click();
  form->G2_Click(1);
  form->Label28_Click();
  EXPECT_EQ(form->game.G2.row_count(), 2);
  EXPECT_EQ(form->game.G2.cell(1, GameTable::kGroup), "Careers");
}

TEST_F(Work, AClearedSlotTakesTheNextFlightModel) {
  folder.write("~Vorlund/FlightModels/Standard/Spit9/spit.oaw", "Spitfire\r\n");
  folder.write(
      "~Vorlund/CurrentPlaneSet.txt",
      "Standard\r\nSlot\r\nP38H\tUSAAF\tSilver\t0\r\nP38J\tUSAAF\tGreen\t1\r\nP47C\tUSAAF\tBlue\t2\r\n");
  start().Label9_MouseUp(0, left());
  form->Option1_Click(static_cast<int>(PlaneOption::kFindFlightModel));
  form->G1_MouseDown(2, PlaneTable::kSlot);
  form->Label3_Click();
  form->Label3_Click();
  const CellTable& table = form->plane.G1;
  EXPECT_TRUE(table.is_hidden(2));
  EXPECT_EQ(table.cell(3, PlaneTable::kSkinFolder), "Blue") << "a double click clears one slot";
  EXPECT_EQ(form->desk.status_line.caption,
            "Slot P38J was cleared and is still the selected one. Its files stay in the game folder until "
            "\"Clean Up\".");
  form->List2_Click(0);
  EXPECT_EQ(table.cell(2, PlaneTable::kScriptFolder), "Spit9");
  EXPECT_FALSE(table.is_hidden(2));
  EXPECT_EQ(table.cell(3, PlaneTable::kScriptFolder), "");
  form->Label3_Click();
  form->List3_Click(7);
  EXPECT_EQ(table.cell(2, PlaneTable::kRecordNumber), "7");
  EXPECT_FALSE(table.is_hidden(2));
}

TEST_F(Work, SaysWhatIsNotInstalledYet) {
  folder.make_folder("~Vorlund/SkinStore/RAF");
  folder.write("~Vorlund/CurrentGameSet.txt",
               "Folder group\tFolder name\r\nCareers\tCamp1\r\nSky\tDawn\r\nTweaks\tSmoke\r\n");
  folder.write("~Vorlund/CurrentPlaneSet.txt", "Standard\r\nSlot\r\nP38H\tUSAAF\tSilver\t0\r\n");
  start().WhatsLoaded_Click();
  EXPECT_EQ(form->desk.status_line.caption, "What the tables show is installed.");
  form->Label9_MouseUp(0, left());
  form->Label9_MouseUp(1, left());
  choose(*form, "Sky", "Dusk");
  choose(*form, "Tweaks", "Fire");
  form->G2_Click(1);
  form->Label28_Click();
  form->WhatsLoaded_Click();
  EXPECT_EQ(form->desk.status_line.caption,
            "Not installed yet: Sky, Tweaks. \"Process!\" installs them.\n"
            "Installed, but cleared since: Careers. \"Clean Up\" deletes their files.");
  form->GameLoad_Click();
  form->G1_MouseDown(1, PlaneTable::kSlot);
  form->Label3_Click();
  form->plane.G1.set_cell(5, PlaneTable::kFuel, "75");
  form->plane.set_flight_model_group("Late");
  form->WhatsLoaded_Click();
  EXPECT_EQ(form->desk.status_line.caption,
            "Not installed yet: slot P51B, flight models of \"Late\". \"Process!\" installs them.\n"
            "Installed, but cleared since: slot P38H. \"Clean Up\" deletes their files.");
  form->G2_Click(2);
  form->Label29_Click();
  form->WhatsLoaded_Click();
  EXPECT_EQ(form->desk.status_line.caption.find("Not installed yet: the order of the game table, slot P51B"),
            0U);
}

TEST_F(Work, SaysWhereCareerSavesWouldGoWhenTheirHomeChanges) {
  folder.make_folder("~Vorlund/GameStore/Careers/Camp2");
  folder.write("Savedata/c1.sve", "one");
  folder.write("~Vorlund/GameSetFiles/Other", "Folder group\tFolder name\r\nCareers\tCamp1\r\n");
  start().Label9_MouseUp(1, left());
  choose(*form, "Sky", "Dusk");
  EXPECT_EQ(form->desk.status_line.caption.find("career"), std::string::npos);
  choose(*form, "Careers", "Camp2");
  EXPECT_TRUE(form->desk.status_line.caption.ends_with(
      "\nThe career save in \"Savedata\" would now go home to Careers\\Camp2 at \"Clean Up\""))
      << form->desk.status_line.caption;
  form->Label12_Click();
  form->File3_Click(0);
  form->load_pane.Check1.checked = true;
  form->Label19_Click();
  EXPECT_TRUE(form->desk.status_line.caption.ends_with("go home to Careers\\Camp1 at \"Clean Up\""))
      << form->desk.status_line.caption;
  folder.write("Savedata/c2.sve", "two");
  form->G2_Click(1);
  form->Label28_Click();
  EXPECT_TRUE(form->desk.status_line.caption.ends_with(
      "\nThe 2 career saves in \"Savedata\" would now go home to Careers at \"Clean Up\""))
      << form->desk.status_line.caption;
  folder.write("~Vorlund/GameSetFiles/None", "Folder group\tFolder name\r\nSky\tDusk\r\n");
  form->Label12_Click();
  form->File3_Click(0);
  form->Label19_Click();
  EXPECT_TRUE(form->desk.status_line.caption.ends_with(
      "\nThe 2 career saves in \"Savedata\" would now stay there: no row names their home"))
      << form->desk.status_line.caption;
}

TEST_F(Work, MarksFollowEveryChangeOfTheTables) {
  start().Label9_MouseUp(1, left());
  form->Label1_Click(1);
  const auto marked = [this](std::size_t index) {
    return form->selection.SelLab[index].text_colour != kWhite;
  };
  ASSERT_EQ(form->selection.SelLab[0].caption, "Dawn");
  EXPECT_TRUE(marked(0));
  form->G2_Click(2);
  form->Label28_Click();
  EXPECT_FALSE(marked(0));
  folder.write("~Vorlund/GameSetFiles/Other", "Folder group\tFolder name\r\nSky\tDusk\r\n");
  form->Label12_Click();
  form->File3_Click(0);
  form->load_pane.Check1.checked = true;
  form->Label19_Click();
  EXPECT_FALSE(marked(0));
  EXPECT_TRUE(marked(1));
  form->CleanUp();
  EXPECT_FALSE(marked(1));
}

TEST_F(Work, CleanUpBringsCareersHomeDeletesAndEmptiesBothTablesAndRecords) {
  folder.write("~Vorlund/CurrentGameSet.txt", "Folder group\tFolder name\r\nCareers\tCamp1\r\nSky\tDawn\r\n");
  folder.write(
      "~Vorlund/CurrentPlaneSet.txt",
      "Standard\r\nSlot\r\nP38H\tUSAAF\tSilver\t0\tP38H\tLightning\tAmerican\tYes\tFighter\t100\r\n");
  folder.write("Savedata/c1.sve", "career");
  folder.write("sky.pal", "dawn");
  folder.write("hof.dat", "fame");
  start().Label9_MouseUp(1, left());
  form->Label5_MouseUp(left());
  EXPECT_EQ(folder.read("~Vorlund/GameStore/Careers/Camp1/c1.sve"), "career");
  EXPECT_FALSE(folder.has("Savedata/c1.sve"));
  EXPECT_FALSE(folder.has("sky.pal"));
  EXPECT_EQ(folder.read("hof.dat"), "fame");
  EXPECT_EQ(folder.read("~Vorlund/CurrentGameSet.txt"),
            "Folder group\tFolder name\r\nCareers\t\r\nSky\t\r\n");
  EXPECT_EQ(form->plane.G1.cell(1, PlaneTable::kSlot), "P38H");
  EXPECT_EQ(form->plane.G1.cell(1, PlaneTable::kRegion), "");
  EXPECT_EQ(form->plane.Label25[0].caption, "");
  EXPECT_EQ(form->plane.Label25[1].caption, "");
  EXPECT_TRUE(form->game.G2.is_hidden(1));
  EXPECT_EQ(form->selection.Label1.size(), 1U);
  EXPECT_FALSE(form->selection.Label1[0].visible);
  EXPECT_FALSE(form->desk.labels.Label2.visible);
  EXPECT_EQ(form->desk.status_line.caption,
            "1 career save brought home to Careers\\Camp1; 1 loose file deleted");
  start();
  EXPECT_TRUE(form->game.G2.is_hidden(2));
}

TEST_F(Work, DelMSNDeletesTheDefaultMissionsAlone) {
  folder.write("Savedata/DEFAULT1.MSN", "");
  folder.write("Savedata/Mine.msn", "");
  start().DelMSN_MouseUp(left());
  EXPECT_EQ(folder.names("Savedata"), (std::vector<std::string>{"Mine.msn"}));
  form->DelMSN_MouseUp(left());
  EXPECT_EQ(folder.names("Savedata"), (std::vector<std::string>{"Mine.msn"}));
}

TEST_F(Work, TheHeaderRowIsNeverASelectedRow) {
  start();
  form->G2_Click(0);
  form->Label28_Click();
  form->Label29_Click();
  EXPECT_EQ(form->game.G2.row_count(), 4);
  EXPECT_EQ(form->game.G2.cell(0, 0), "Folder group");
}

}  // namespace
}  // namespace vorlund
