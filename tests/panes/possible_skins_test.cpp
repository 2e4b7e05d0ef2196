// The pane of possible skins: filling, viewing and choosing.
#include "panes/possible_skins.h"

#include "base/action_error.h"
#include "panes/aircraft_work.h"

namespace vorlund {
namespace {

class PossibleSkinsPane : public test::AircraftWork {
 protected:
  void fill(int row, const std::string& list) {
    folder.write("~Vorlund/SkinStore/SkinList.txt", list);
    plane.G1.select(row, PlaneTable::kRegion);
    skins.FillPossibleSkins();
  }

  void view(const std::string& entry) {
    skins.List4.items = {entry};
    form.List4_Click(0);
  }
};

TEST_F(PossibleSkinsPane, ListsTheSkinsOfTheCurrentSlotAndViewsTheFirst) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  fill(kSpitfireRow, "RAF\\Mk9\\SP09\r\nRAF\\Spit\\SP09\r\nUS\\P38\\P38H\r\n");
  EXPECT_EQ(skins.List4.items, (std::vector<std::string>{"RAF\\Mk9", "RAF\\Spit"}));
  EXPECT_EQ(skins.List4.selected, 0);
  EXPECT_EQ(skins.Label38.caption, "SP09");
  EXPECT_EQ(skins.Label31.caption, "RAF");
  EXPECT_EQ(skins.Label32.caption, "Mk9");
  EXPECT_EQ(skins.Label37.caption, "SP09");
  EXPECT_EQ(labels.SkinLab2.caption, "SP09");
  EXPECT_EQ(labels.SkinLab3.caption, "11");
  EXPECT_TRUE(labels.SkinLab3.visible);
  EXPECT_FALSE(labels.SkinLab2.visible);
  EXPECT_TRUE(skins.Image4.bordered);
  EXPECT_TRUE(skins.Frame4.visible);
  EXPECT_TRUE(skins.Image4.visible);
  EXPECT_GT(skins.Frame4.depth, 0);
}

TEST_F(PossibleSkinsPane, ShowsTheRecordNumberOfTheSlotUntilASkinIsViewed) {
  fill(kSpitfireRow, "");
  EXPECT_EQ(skins.Label37.caption, "11");
}

TEST_F(PossibleSkinsPane, FindsNothingForASlotInLowerCase) {
  plane.G1.set_cell(1, PlaneTable::kSlot, "p38h");
  fill(1, "US\\P38\\P38H\r\n");
  EXPECT_TRUE(skins.List4.items.empty());
  plane.G1.set_cell(1, PlaneTable::kSlot, "P38H");
  fill(1, "US\\P38\\P38H\r\n");
  EXPECT_EQ(skins.List4.items, std::vector<std::string>{"US\\P38"});
}

TEST_F(PossibleSkinsPane, OpensEmptyForASlotWithoutSkinsAndSaysSo) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  fill(kSpitfireRow, "RAF\\Mk9\\SP09\r\n");
  fill(1, "RAF\\Mk9\\SP09\r\n");
  EXPECT_TRUE(skins.Frame4.visible);
  EXPECT_TRUE(skins.List4.items.empty());
  EXPECT_EQ(skins.List4.selected, -1);
  EXPECT_EQ(skins.Label31.caption, "");
  EXPECT_EQ(skins.Label32.caption, "");
  EXPECT_FALSE(skins.Image4.visible);
  EXPECT_EQ(last_outcome(), "No skin in the skin list is made for slot P38H");
}

TEST_F(PossibleSkinsPane, ASkinListThatIsGoneIsAFailingOpen) {
  plane.G1.select(1, PlaneTable::kRegion);
  try {
    skins.FillPossibleSkins();
    FAIL() << "it was read";
  } catch (const ActionError& error) {
    EXPECT_EQ(error.path(), folder.path("~Vorlund\\SkinStore\\SkinList.txt"));
  }
}

TEST_F(PossibleSkinsPane, ShowsTheFirstPictureAndHidesTheSelectionPane) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  folder.write("~Vorlund/SelPic", "default");
  folder.write("~Vorlund/SkinStore/RAF/Mk9/skinpic", "second");
  folder.write("~Vorlund/SkinStore/RAF/Mk9/MyPic", "first");
  selection.Frame3.visible = true;
  selection.Text1.text = "old";
  labels.SkinLab2.visible = true;
  view("RAF\\Mk9");
  ASSERT_TRUE(skins.Image4.picture.bytes);
  EXPECT_EQ(*skins.Image4.picture.bytes, "first");
  EXPECT_EQ(*skins.Image4.fallback.bytes, "default");
  EXPECT_FALSE(selection.Frame3.visible);
  EXPECT_EQ(selection.Text1.text, "");
  EXPECT_FALSE(labels.SkinLab2.visible);
}

TEST_F(PossibleSkinsPane, ShowsTheDefaultPictureAndLeavesTheSelectionPaneWithoutAPicture) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  folder.write("~Vorlund/SelPic", "default");
  selection.Frame3.visible = true;
  view("RAF\\Mk9");
  EXPECT_FALSE(skins.Image4.picture.bytes);
  EXPECT_EQ(*skins.Image4.fallback.bytes, "default");
  EXPECT_TRUE(skins.Image4.visible);
  EXPECT_TRUE(selection.Frame3.visible);
}

TEST_F(PossibleSkinsPane, AnUnknownShapeGivesACodeButNoNumber) {
  make_skin("RAF/Odd", {"pzzzz.3dz", "psp09.tpc"});
  labels.SkinLab3.caption = "7";
  view("RAF\\Odd");
  EXPECT_EQ(labels.SkinLab2.caption, "ZZZZ");
  EXPECT_EQ(labels.SkinLab3.caption, "7");
}

TEST_F(PossibleSkinsPane, TexturesCountOnlyWhileNoCodeStandsFromTheSkinBefore) {
  make_skin("RAF/Texture", {"phurr.tpc"});
  make_skin("RAF/Shape", {"psp09.3dz"});
  view("RAF\\Texture");
  EXPECT_EQ(labels.SkinLab2.caption, "HURR");
  EXPECT_EQ(labels.SkinLab3.caption, "9");
  view("RAF\\Shape");
  view("RAF\\Texture");
  EXPECT_EQ(labels.SkinLab2.caption, "SP09");
  EXPECT_EQ(labels.SkinLab3.caption, "11");
}

TEST_F(PossibleSkinsPane, AnEntryWithoutABackslashAndNoEntryAtAllShowNothingNew) {
  skins.Label31.caption = "kept";
  view("RAF");
  EXPECT_EQ(skins.Label31.caption, "kept");
  for (const int index : {-1, 1, 99}) {
    form.List4_Click(index);
    EXPECT_EQ(skins.Label31.caption, "kept") << index;
  }
  EXPECT_TRUE(files.log().empty());
}

TEST_F(PossibleSkinsPane, ChoosingPutsTheSkinIntoTheRowOfItsPlaneWhateverRowWasClicked) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  plane.G1.select(3, PlaneTable::kRegion);
  plane.Frame1.visible = true;
  view("RAF\\Mk9");
  form.Image4_Click();
  EXPECT_EQ(row_text(kSpitfireRow), "SP09 RAF Mk9 11 - - - - - -");
  EXPECT_EQ(row_text(3), "P47C - - - - - - - - -");
  EXPECT_EQ(plane.G1.current_row, kSpitfireRow);
  EXPECT_FALSE(plane.G1.is_hidden(kSpitfireRow));
  EXPECT_TRUE(plane.G1.is_hidden(3));
  EXPECT_TRUE(plane.Frame1.visible);
  EXPECT_FALSE(skins.Frame4.visible);
  EXPECT_EQ(last_outcome(), "\"Mk9\" is made for slot SP09 and stands in that row, not in the row of P47C");
}

TEST_F(PossibleSkinsPane, ChoosingForTheClickedSlotKeepsTheOtherColumns) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  plane.G1.set_cell(kSpitfireRow, PlaneTable::kScriptFolder, "Spit9");
  plane.G1.set_cell(kSpitfireRow, PlaneTable::kFuel, "50");
  fill(kSpitfireRow, "RAF\\Mk9\\SP09\r\n");
  form.Image4_Click();
  EXPECT_EQ(row_text(kSpitfireRow), "SP09 RAF Mk9 11 Spit9 - - - - 50");
  EXPECT_EQ(last_outcome(), "Slot SP09 now wears \"Mk9\"");
}

TEST_F(PossibleSkinsPane, ASkinOfNoPlaneGoesToTheFirstRowWhileNoNumberIsKnown) {
  make_skin("RAF/Odd", {"pzzzz.3dz"});
  view("RAF\\Odd");
  form.Image4_Click();
  EXPECT_EQ(row_text(1), "P38H RAF Odd - - - - - - -");
  EXPECT_EQ(last_outcome(),
            "No plane was recognised for \"Odd\"; it was put into the row of slot P38H, the first");
}

TEST_F(PossibleSkinsPane, NothingIsPutIntoATableWithoutTheRow) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  plane.G1.replace_rows(5, plane.G1.row_count() - 5, {});
  view("RAF\\Mk9");
  form.Image4_Click();
  EXPECT_EQ(plane.G1.row_count(), 5);
  EXPECT_EQ(last_outcome(), "\"Mk9\" was not put anywhere: the plane table has no row for its slot");
}

TEST_F(PossibleSkinsPane, EntriesOfHostileNamesNeverLeadOutOfTheStore) {
  folder.write("psp09.3dz", "");
  folder.write("mypic", "secret");
  folder.write("~Vorlund/mypic", "secret");
  const std::vector<std::string> entries = {
      "..\\..", "..\\~Vorlund", "RAF\\..",         "RAF\\..\\..\\..", "RAF\\.",
      ".\\.",   "RAF/..\\Mk9",  "RAF\\Mk9/../../", "..\\..\\..\\..",  "RAF\\..\\RAF\\Mk9"};
  for (const std::string& entry : entries) {
    files.clear();
    view(entry);
    EXPECT_FALSE(skins.Image4.picture.bytes) << entry;
    EXPECT_EQ(labels.SkinLab2.caption, "") << entry;
    for (const std::string& operation : files.log())
      EXPECT_EQ(operation.find("list"), std::string::npos) << operation;
  }
}

TEST_F(PossibleSkinsPane, OddFoldersThatExistAreShownAndChosen) {
  make_skin("RAF/sub/Mk9", {"psp09.3dz"});
  view("RAF\\sub\\Mk9");
  EXPECT_EQ(labels.SkinLab2.caption, "SP09");
#ifndef _WIN32
  make_skin("RAF/Mk9: late.", {"pp51d.3dz"});
  view("RAF\\Mk9: late.");
  EXPECT_EQ(labels.SkinLab2.caption, "P51D");
  form.Image4_Click();
  EXPECT_EQ(cell(6, PlaneTable::kSkinFolder), "Mk9: late.");
#endif
}

TEST_F(PossibleSkinsPane, IsDraggedByItsFreeAreaAndComesToTheFront) {
  skins.Frame4.place = {1000, 2000, 300, 400};
  plane.show();
  form.Frame4_MouseDown({MouseButton::kLeft, 0, 50, 60});
  form.Frame4_MouseUp({MouseButton::kLeft, 0, 150, 30});
  EXPECT_EQ(skins.Frame4.place.left, 1100);
  EXPECT_EQ(skins.Frame4.place.top, 1970);
  EXPECT_GT(skins.Frame4.depth, plane.Frame1.depth);
}

TEST_F(PossibleSkinsPane, AClickOnTheHelpTextBringsThePlaneTableBack) {
  skins.Frame4.visible = true;
  form.Label33_Click();
  EXPECT_FALSE(skins.Frame4.visible);
  EXPECT_TRUE(plane.Frame1.visible);
}

TEST_F(PossibleSkinsPane, AClickOnTheSkinGroupEmptiesTheListAlone) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  fill(kSpitfireRow, "RAF\\Mk9\\SP09\r\n");
  form.Label31_Click();
  EXPECT_TRUE(skins.List4.items.empty());
  EXPECT_TRUE(skins.Frame4.visible);
  EXPECT_EQ(skins.Label31.caption, "RAF");
}

}  // namespace
}  // namespace vorlund
