// Every command says what it came to, and nothing that was said stays when it is no longer true.
#include <algorithm>

#include "panes/forecast.h"
#include "panes/form_fixture.h"

namespace vorlund {
namespace {

using test::left;

class StatusLine : public test::FormFixture {
 protected:
  StatusLine() {
    folder.write("eaw.exe", "MZ");
    folder.write("~Vorlund/SkinStore/RAF/Silver/pp38h.3dz", "");
    folder.make_folder("~Vorlund/FlightModels/Standard/P38");
    folder.make_folder("~Vorlund/FlightModels/Late/p38");
    folder.make_folder("~Vorlund/GameStore/Empty");
    folder.write(
        "~Vorlund/CurrentPlaneSet.txt",
        "Standard\r\nSlot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel "
        "%\r\nP38H\tRAF\tSilver\t0\tP38\tLightning\tAmerican\tYes\tFighter\t100\r\n"
        "P38J\t\t\t1\tOther\t\t\t\t\t\r\n");
    folder.write("~Vorlund/GameSetFiles/Night", "Folder group\tFolder name\r\nSky\tDusk\r\n");
    folder.write("~Vorlund/PlaneSetFiles/Early", "Late\r\nSlot\r\nP38H\t\t\t7\r\n");
  }

  const std::string& said() const { return form->desk.status_line.caption; }

  struct Case {
    std::function<void()> command;
    const char* says;
  };

  void check(const std::function<void()>& prepare, const std::vector<Case>& cases) {
    start();
    form->Label17_Click();
    prepare();
    for (const Case& one : cases) {
      form->desk.say("stale");
      one.command();
      EXPECT_EQ(said(), one.says);
    }
  }
};

TEST_F(StatusLine, SpeaksOfTheMainWindow) {
  check([] {},
        {{[this] { form->Label9_MouseUp(0, left(MouseEvent::kShiftKey)); },
          "\"Make Aircraft Settings\" is hidden until the next start"},
         {[this] { form->Label18_MouseUp(left()); }, "The game was started"},
         {[this] { form->DelMSN_MouseUp(left()); }, "There is no \"Default\" mission file in \"Savedata\""},
         {[this] { form->Label9_MouseUp(1, left()); }, "Choose a group, then one of its folders"},
         {[this] { form->Label2_Click(); }, ""},
         {[this] { form->Label10_Click(1); }, "\"Show Game Table\" brings it back"},
         {[this] { form->Label41_Click(); }, ""},
         {[this] { form->PictureMenus_Click(); }, ""},
         {[this] { form->MenuHide_Click(); }, ""}});
}

TEST_F(StatusLine, SpeaksOfTheGameTableAndItsChoices) {
  check([this] { form->Label9_MouseUp(1, left()); },
        {{[this] { form->Label28_Click(); }, "Nothing was cleared: first select a row"},
         {[this] { form->G2_Click(2); }, ""},
         {[this] { form->Label28_Click(); },
          "\"Dawn\" was cleared. Its files stay in the game folder until \"Clean Up\"."},
         {[this] { form->G2_Click(3); }, ""},
         {[this] { form->Label29_Click(); }, "\"Smoke\" now stands at the end and is loaded last"},
         {[this] { form->Label1_Click(1); }, "\"Empty\" has no folder to choose"},
         {[this] { form->Label1_Click(2); }, ""},
         {[this] { form->SelLab_Click(1); }, ""},
         {[this] { form->Image1_Click(); }, "\"Dusk\" now stands in the game table for \"Sky\""},
         {[this] { form->Label1_Click(2); }, ""},
         {[this] { form->Frame3_Click(); }, ""}});
}

TEST_F(StatusLine, SaysHowAGroupGetsARow) {
  folder.write("~Vorlund/CurrentGameSet.txt", "Folder group\tFolder name\r\n");
  check([this] { form->Label9_MouseUp(1, left()); },
        {{[this] {
            form->Label1_Click(2);
            form->SelLab_Click(0);
            form->Image1_Click();
          },
          "Nothing was chosen: the game table has no row for the group \"Sky\"\n"
          "With the program closed, add a line \"Sky\" and a TAB to \"~Vorlund\\CurrentGameSet.txt\""}});
}

TEST_F(StatusLine, SpeaksOfTheAircraftTable) {
  check([this] { form->Label9_MouseUp(0, left()); },
        {{[this] { form->Label30_Click(); }, "All slots are shown"},
         {[this] { form->Label30_Click(); }, "2 slots that are in use are shown"},
         {[this] { form->List2_Click(0); },
          "Nothing was changed: choose above the table what a click in the list does"},
         {[this] { form->Option1_Click(2); }, ""},
         {[this] { form->G1_MouseDown(1, PlaneTable::kFuel); }, "Fuel % of slot P38H is now 75"},
         {[this] { form->G1_MouseDown(2, PlaneTable::kFuel); }, ""},
         {[this] { form->G1_Move(1, 0); }, ""},
         {[this] { form->List3_Click(7); }, "PlnDat of slot P38H is now 7"},
         {[this] { form->G1_MouseDown(1, PlaneTable::kRegion); },
          "1 skin in the skin list is made for slot P38H"},
         {[this] { form->List4_Click(0); }, ""},
         {[this] { form->Image4_Click(); }, "Slot P38H now wears \"Silver\""},
         {[this] { form->G1_MouseDown(1, PlaneTable::kSkinFolder); },
          "1 skin in the skin list is made for slot P38H"},
         {[this] { form->Label31_Click(); }, "The list was emptied"},
         {[this] { form->Label33_Click(); }, ""}});
}

TEST_F(StatusLine, SpeaksOfTheSetUps) {
  check([] {}, {{[this] { form->Label11_Click(); }, "Type a name, or click on one to replace it"},
                {[this] { form->Label4_Click(); }, "Nothing was saved: no name was given"},
                {[this] { form->Label11_Click(); }, "Type a name, or click on one to replace it"},
                {[this] { form->File5_Click(0); }, "\"Night\" will be replaced"},
                {[this] { form->Text2_Change("Day"); }, ""},
                {[this] { form->Label4_Click(); }, "Saved as \"Day\""},
                {[this] { form->Label11_Click(); }, "Type a name, or click on one to replace it"},
                {[this] { form->File5_Click(1); }, "\"Night\" will be replaced"},
                {[this] { form->Label4_Click(); }, "\"Night\" was replaced"},
                {[this] { form->Label12_Click(); }, "Choose a game set, an aircraft set, or both"},
                {[this] { form->File3_Click(0); }, ""},
                {[this] { form->Label21_Click(); }, "\"Day\" is no longer chosen"},
                {[this] { form->Label19_Click(); }, "Nothing was loaded: no set-up was chosen"},
                {[this] { form->Label13_Click(); }, "Choose a game set, an aircraft set, or both"},
                {[this] {
                   form->File2_Click(0);
                   form->File3_Click(1);
                   form->load_pane.Check1.checked = true;
                   form->Label19_Click();
                 },
                 "\"Early\" and \"Night\" loaded into the tables"},
                {[this] { form->Label12_Click(); }, "Choose a game set, an aircraft set, or both"},
                {[this] { form->Label40_Click(); }, ""}});
}

TEST_F(StatusLine, SaysHowManySlotsLackTheirModelInAnotherFlightModelGroup) {
  check([this] { form->Label9_MouseUp(2, left()); },
        {{[this] { form->Label1_Click(0); },
          "The flight models are now taken from \"Late\"\n1 slot lacks its flight model in it: P38J"}});
}

TEST_F(StatusLine, SaysWhereTheFolderIsNoGame) {
  folder.make_folder("Music/Inner");
  start();
  const auto& names = form->desk.directory.Dir6.names;
  const auto music = std::find(names.begin(), names.end(), "Music");
  ASSERT_NE(music, names.end());
  form->Dir6_DblClick(static_cast<int>(music - names.begin()));
  EXPECT_EQ(said(), "The game folder is now \"" + folder.path("Music") +
                        "\"\nThere is no \"eaw.exe\" in it: it is no folder of the game\n"
                        "There is no \"~Vorlund\" in it: there is nothing to choose from");
  form->Label17_Click();
  EXPECT_TRUE(said().starts_with("Choose from the menu on the left\nThere is no \"eaw.exe\""));
  form->Label9_MouseUp(1, left());
  EXPECT_EQ(said(), "There is no folder \"~Vorlund\\GameStore\"");
}

TEST_F(StatusLine, SaysAtOnceWhatARecordCanNotSpell) {
  folder.make_folder("~Vorlund/GameStore/Sky/\u65e5\u672c");
  start().Label9_MouseUp(1, left());
  form->Label1_Click(2);
  form->SelLab_Click(2);
  form->Image1_Click();
  const std::string warning =
      "\nNo record can spell \"\u65e5\u672c\": it will be remembered as \"??\" and not found at the next "
      "start";
  EXPECT_EQ(said(), "\"\u65e5\u672c\" now stands in the game table for \"Sky\"" + warning);
  form->Label11_Click();
  form->Text2_Change("Day");
  form->Label4_Click();
  EXPECT_EQ(said(), "Saved as \"Day\"" + warning);
}

TEST_F(StatusLine, TellsBeforehandWhatACleanUpComesToAndTouchesNothing) {
  folder.write("~Vorlund/CurrentGameSet.txt", "Folder group\tFolder name\r\nCareers\tCamp1\r\n");
  folder.write("Savedata/c1.sve", "one");
  folder.write("Savedata/c2.sve", "two");
  folder.write("sky.pal", "dusk");
  start();
  const auto before = folder.tree();
  const std::string said_before = said();
  const auto foretold = [this] { return what_clean_up_would_do(form->desk.game(), form->game.G2); };
  EXPECT_EQ(foretold(), "Would come to: 2 career saves brought home to Careers\\Camp1; 1 loose file deleted");
  EXPECT_EQ(folder.tree(), before);
  EXPECT_EQ(said(), said_before);
  form->game.G2.set_cell(1, GameTable::kFolder, "Gone");
  EXPECT_TRUE(foretold().starts_with("Would end with an error: ")) << foretold();
  EXPECT_EQ(folder.tree(), before);
}

TEST_F(StatusLine, KeepsTheChosenSetUpsMarkedUntilTheyAreTakenBack) {
  start().Label12_Click();
  form->File2_Click(0);
  form->Label40_Click();
  folder.write("~Vorlund/PlaneSetFiles/Another", "");
  form->Label13_Click();
  EXPECT_EQ(form->load_pane.File2.selected, 1) << "it stands behind the new one now";
  form->Label20_Click();
  EXPECT_EQ(form->load_pane.File2.selected, -1);
  EXPECT_EQ(form->load_pane.Label20.caption, "");
}

}  // namespace
}  // namespace vorlund
