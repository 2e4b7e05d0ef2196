// The selection pane over game sets: opening groups, showing folders, choosing them.
#include "panes/selection_pane.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "support/form_in_folder.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

class GameSelection : public ::testing::Test {
 protected:
  GameSelection() {
    pane.mode = PaneMode::kGameSet;
    for (const char* name :
         {"Careers/Camp1", "Sky/Dusk", "Sky/dawn", "Sky/Noon", "Tweaks/Smoke", "Tweaks/Fire"}) {
      folder.make_folder(std::string("~Vorlund/GameStore/") + name);
    }
    pane.make_group_labels({"Careers", "Sky", "Tweaks"});
    for (const char* group : {"Careers", "Sky"}) game.G2.add_row({group, ""});
    game.G2.g2update();
  }

  std::vector<std::string> selections() const {
    std::vector<std::string> captions;
    for (const Label& label : pane.SelLab) captions.push_back(label.caption);
    return captions;
  }

  void show(int group, int selection) {
    form.Label1_Click(group);
    form.SelLab_Click(selection);
  }

  void describe(const std::string& bytes) const {
    folder.write("~Vorlund/GameStore/Sky/dawn/contents.txt", bytes);
  }

  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  test::FormInFolder work{*files, folder.path()};
  Form1& form = work.form;
  GamePane& game = form.game;
  PlanePane& plane = form.plane;
  SelectionPane& pane = form.selection;
};

TEST_F(GameSelection, OpeningAGroupListsItsFoldersByNameWithoutRegardToCase) {
  game.GameFrame.visible = true;
  plane.Frame1.visible = true;
  pane.Text1.text = "old";
  form.Label1_Click(1);
  EXPECT_EQ(selections(), (std::vector<std::string>{"dawn", "Dusk", "Noon"}));
  EXPECT_EQ(pane.current_group, "Sky");
  EXPECT_TRUE(pane.Frame3.visible);
  EXPECT_TRUE(form.desk.labels.Label2.visible);
  EXPECT_FALSE(game.GameFrame.visible);
  EXPECT_FALSE(plane.Frame1.visible);
  EXPECT_FALSE(pane.Text1.visible);
  EXPECT_EQ(pane.Text1.text, "");
  EXPECT_FALSE(pane.Image1.visible);
  EXPECT_EQ(pane.Frame3.place.width, pane.screen.width);
  EXPECT_EQ(pane.Image3.place.height, pane.Frame3.place.height);
}

TEST_F(GameSelection, SelectionLabelsStandOneBelowTheOther) {
  form.Label1_Click(1);
  for (std::size_t index = 1; index < pane.SelLab.size(); ++index) {
    EXPECT_GT(pane.SelLab[index].place.top, pane.SelLab[index - 1].place.top);
    EXPECT_EQ(pane.SelLab[index].place.left, pane.SelLab[0].place.left);
    EXPECT_TRUE(pane.SelLab[index].visible);
  }
}

TEST_F(GameSelection, AGroupWithoutFoldersKeepsElementZeroWithItsOldCaption) {
  folder.make_folder("~Vorlund/GameStore/Empty");
  pane.make_group_labels({"Sky"});
  form.Label1_Click(1);
  pane.Label1.front().caption = "Empty";
  form.Label1_Click(0);
  EXPECT_EQ(selections(), (std::vector<std::string>{"dawn"}));
  EXPECT_TRUE(pane.Frame3.visible);
}

TEST_F(GameSelection, ADescriptionOfThreeLinesShowsThreeLines) {
  describe("A red evening.\r\nCalm \xE9t\xE9.\r\n\r\n");
  show(1, 0);
  EXPECT_EQ(pane.Text1.text, "A red evening.\r\nCalm \xC3\xA9t\xC3\xA9.\r\n\r\n");
  EXPECT_FALSE(pane.Text1.visible) << "\"Show/hide details\" shows it";
}

TEST_F(GameSelection, ALineWithoutAnEndIsEndedAndWithoutAFileTheDescriptionIsEmpty) {
  describe("one\ntwo");
  show(1, 0);
  EXPECT_EQ(pane.Text1.text, "one\r\ntwo\r\n");
  form.SelLab_Click(1);
  EXPECT_EQ(pane.Text1.text, "");
}

TEST_F(GameSelection, AnEndlessDescriptionIsCutAtAMebibyte) {
  describe(std::string(3U << 20, 'x'));
  show(1, 0);
  EXPECT_EQ(pane.Text1.text.size(), (1U << 20) + 2);
}

TEST_F(GameSelection, ShowsTheFirstPictureByNameElseTheDefaultPicture) {
  folder.write("~Vorlund/SelPic", "default");
  folder.write("~Vorlund/GameStore/Sky/dawn/View.JPG", "view");
  folder.write("~Vorlund/GameStore/Sky/dawn/MyPic", "my");
  folder.write("~Vorlund/GameStore/Sky/dawn/aaa.png", "no picture of ours");
  show(1, 0);
  EXPECT_EQ(*pane.Image1.picture.bytes, "my");
  EXPECT_EQ(*pane.Image1.fallback.bytes, "default");
  EXPECT_TRUE(pane.Image1.visible);
  form.SelLab_Click(1);
  EXPECT_EQ(pane.Image1.picture.bytes, nullptr);
  EXPECT_EQ(*pane.Image1.fallback.bytes, "default");
}

TEST_F(GameSelection, ShowsGroupAndFolderOfTheSelection) {
  show(1, 2);
  EXPECT_EQ(form.desk.labels.GroupLabel.caption, "Sky");
  EXPECT_EQ(form.desk.labels.FolderLabel.caption, "Noon");
  EXPECT_TRUE(form.desk.labels.GroupLabel.visible);
  EXPECT_TRUE(form.desk.labels.FolderLabel.visible);
  EXPECT_TRUE(pane.Label27[0].visible);
  EXPECT_TRUE(pane.Label27[1].visible);
}

TEST_F(GameSelection, ChoosingReplacesTheFolderOfTheGroupsRowAndAddsNone) {
  game.G2.select(1);
  show(1, 1);
  form.Image1_Click();
  EXPECT_EQ(game.G2.row_count(), 3);
  EXPECT_EQ(game.G2.cell(2, GameTable::kFolder), "Dusk");
  EXPECT_FALSE(game.G2.is_hidden(2));
  EXPECT_EQ(game.G2.current_row, 1) << "choosing leaves the current row alone";
  EXPECT_FALSE(pane.Frame3.visible);
  EXPECT_FALSE(form.desk.labels.GroupLabel.visible);
  show(1, 2);
  form.SelLab_DblClick();
  EXPECT_EQ(game.G2.row_count(), 3);
  EXPECT_EQ(game.G2.cell(2, GameTable::kFolder), "Noon");
}

TEST_F(GameSelection, EveryRowOfTheGroupGetsTheFolder) {
  game.G2.add_row({"Sky", "Dusk"});
  show(1, 0);
  pane.DoSel();
  EXPECT_EQ(game.G2.cell(2, GameTable::kFolder), "dawn");
  EXPECT_EQ(game.G2.cell(3, GameTable::kFolder), "dawn");
}

TEST_F(GameSelection, OfAGroupWithoutARowAddsNothingAndSaysSo) {
  game.G2.clear();
  game.G2.g2update();
  show(1, 0);
  pane.DoSel();
  EXPECT_EQ(game.G2.row_count(), 1);
  EXPECT_NE(work.said().find("no row for the group \"Sky\""), std::string::npos);
}

TEST_F(GameSelection, OfTheLastGroupAlwaysAddsARow) {
  show(2, 0);
  pane.DoSel();
  show(2, 0);
  pane.DoSel();
  show(2, 1);
  pane.DoSel();
  ASSERT_EQ(game.G2.row_count(), 6);
  EXPECT_EQ(game.G2.cell(3, GameTable::kFolder), "Fire");
  EXPECT_EQ(game.G2.cell(4, GameTable::kFolder), "Fire");
  EXPECT_EQ(game.G2.cell(5, GameTable::kFolder), "Smoke");
  EXPECT_EQ(game.G2.current_row, 0);
}

TEST_F(GameSelection, WhileTheGroupLabelsAreRemovedNoGroupIsTheLastOne) {
  EXPECT_EQ(pane.last_group(), "Tweaks");
  show(2, 0);
  pane.remove_group_labels();
  EXPECT_EQ(pane.last_group(), std::nullopt);
  pane.DoSel();
  EXPECT_EQ(game.G2.row_count(), 3) << "no row is added";
}

TEST_F(GameSelection, ComparesGroupsByCharacterCodesSoLowerCaseSortsBehindUpperCase) {
  folder.make_folder("~Vorlund/GameStore/sounds/Guns");
  pane.remove_group_labels();
  pane.make_group_labels({"Careers", "sounds", "Tweaks"});
  show(1, 0);
  pane.DoSel();
  EXPECT_EQ(game.G2.cell(3, GameTable::kGroup), "sounds");
}

TEST_F(GameSelection, NeverOverwritesTheHeaderRow) {
  folder.make_folder("~Vorlund/GameStore/Folder group/Trap");
  pane.remove_group_labels();
  pane.make_group_labels({"Folder group", "Tweaks"});
  show(0, 0);
  pane.DoSel();
  EXPECT_EQ(game.G2.cell(0, GameTable::kFolder), "Folder name");
}

TEST_F(GameSelection, ChoosingWithoutASelectionDoesNothing) {
  form.Label1_Click(2);
  pane.DoSel();
  EXPECT_EQ(game.G2.row_count(), 3);
  EXPECT_TRUE(pane.Frame3.visible);
}

TEST_F(GameSelection, MarksTheSelectionsThatAreInUse) {
  game.G2.set_cell(2, GameTable::kFolder, "Dusk");
  form.Label1_Click(1);
  EXPECT_EQ(pane.SelLab[0].text_colour, kWhite);
  EXPECT_NE(pane.SelLab[1].text_colour, kWhite);
  show(1, 0);
  pane.DoSel();
  EXPECT_NE(pane.SelLab[0].text_colour, kWhite);
  EXPECT_EQ(pane.SelLab[1].text_colour, kWhite);
}

TEST_F(GameSelection, DetailsAndPictureAreHiddenAndShown) {
  show(1, 0);
  form.Label27_Click(0);
  EXPECT_FALSE(pane.Image1.visible);
  form.Label27_Click(1);
  EXPECT_TRUE(pane.Text1.visible);
  form.SelLab_Click(1);
  EXPECT_TRUE(pane.Text1.visible) << "a selection fills the details and leaves them shown";
  form.Label27_Click(1);
  EXPECT_FALSE(pane.Text1.visible);
}

TEST_F(GameSelection, OpeningAGroupHidesDescriptionAndPictureAndLeavesTheLabels) {
  describe("calm");
  show(1, 0);
  form.Label27_Click(1);
  EXPECT_TRUE(pane.shows_selection());
  form.Label1_Click(2);
  EXPECT_FALSE(pane.Text1.visible);
  EXPECT_EQ(pane.Text1.text, "");
  EXPECT_FALSE(pane.Image1.visible);
  EXPECT_TRUE(pane.Frame3.visible);
  EXPECT_FALSE(pane.shows_selection());
  for (const Label& label : pane.Label27) EXPECT_TRUE(label.visible);
  EXPECT_TRUE(form.desk.labels.FolderLabel.visible);
  EXPECT_EQ(form.desk.labels.FolderLabel.caption, pane.current_selection);
  EXPECT_EQ(pane.current_selection, "dawn") << "it stays until the next click on a selection";
}

TEST_F(GameSelection, AClickOnThePaneOrItsPictureHidesIt) {
  form.Label1_Click(1);
  form.Frame3_Click();
  EXPECT_FALSE(pane.Frame3.visible);
  form.Label1_Click(1);
  form.Image3_Click();
  EXPECT_FALSE(pane.Frame3.visible);
  form.Label1_Click(1);
  form.desk.labels.Label2.visible = false;
  form.Label10_Click(2);
  EXPECT_FALSE(pane.Frame3.visible);
  EXPECT_TRUE(form.desk.labels.Label2.visible);
}

TEST_F(GameSelection, TheTableComesBackInFront) {
  form.Label1_Click(1);
  form.Label2_Click();
  EXPECT_TRUE(game.GameFrame.visible);
  EXPECT_FALSE(form.desk.labels.Label2.visible);
  EXPECT_GT(game.GameFrame.depth, pane.Frame3.depth);
  game.GameFrame.visible = false;
  form.Label41_Click();
  EXPECT_TRUE(game.GameFrame.visible);
}

}  // namespace
}  // namespace vorlund
