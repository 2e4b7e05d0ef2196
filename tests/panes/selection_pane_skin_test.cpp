// The selection pane over skins, and over flight-model groups.
#include "panes/aircraft_work.h"

namespace vorlund {
namespace {

class SkinSelection : public test::AircraftWork {
 protected:
  void open(const std::string& group, const std::string& skin) {
    browser.DoFM();
    for (std::size_t index = 0; index < selection.Label1.size(); ++index) {
      if (selection.Label1[index].caption == group) form.Label1_Click(static_cast<int>(index));
    }
    for (std::size_t index = 0; index < selection.SelLab.size(); ++index) {
      if (selection.SelLab[index].caption == skin) form.SelLab_Click(static_cast<int>(index));
    }
  }
};

TEST_F(SkinSelection, OpeningAGroupListsItsSkinsAndHidesTheTables) {
  make_skin("RAF/spit", {});
  make_skin("RAF/Hurri", {});
  plane.Frame1.visible = true;
  form.game.GameFrame.visible = true;
  open("RAF", "");
  ASSERT_EQ(selection.SelLab.size(), 2U);
  EXPECT_EQ(selection.SelLab[0].caption, "Hurri");
  EXPECT_EQ(selection.SelLab[1].caption, "spit");
  EXPECT_TRUE(selection.Frame3.visible);
  EXPECT_TRUE(labels.Label2.visible);
  EXPECT_FALSE(plane.Frame1.visible);
  EXPECT_FALSE(form.game.GameFrame.visible);
}

TEST_F(SkinSelection, ShowsTheCodeNumberAndWhatTheSlotHoldsNow) {
  make_skin("RAF/Mk9", {"pzzzz.3dz", "psp09.3dz"});
  plane.G1.set_cell(kSpitfireRow, PlaneTable::kRegion, "Old group");
  plane.G1.set_cell(kSpitfireRow, PlaneTable::kSkinFolder, "Old skin");
  open("RAF", "Mk9");
  EXPECT_EQ(labels.SkinLab2.caption, "SP09");
  EXPECT_EQ(labels.SkinLab3.caption, "11");
  EXPECT_EQ(labels.Label43.caption, "Old group");
  EXPECT_EQ(labels.Label45.caption, "Old skin");
  EXPECT_TRUE(labels.Label43.visible);
  EXPECT_TRUE(labels.Label44.visible);
  EXPECT_TRUE(labels.Label45.visible);
  EXPECT_EQ(labels.GroupLabel.caption, "RAF");
  EXPECT_EQ(labels.FolderLabel.caption, "Mk9");
}

TEST_F(SkinSelection, HidesTheSlotLabelsWhereTheSlotHoldsNoSkin) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  open("RAF", "Mk9");
  EXPECT_FALSE(labels.Label43.visible);
  EXPECT_FALSE(labels.Label44.visible);
  EXPECT_FALSE(labels.Label45.visible);
}

TEST_F(SkinSelection, LooksAtTexturesWhereThereIsNoShape) {
  make_skin("RAF/Texture", {"phurr.tpc"});
  make_skin("RAF/Odd", {"pzzzz.3dz", "phurr.tpc"});
  make_skin("RAF/None", {});
  open("RAF", "Texture");
  EXPECT_EQ(labels.SkinLab2.caption, "HURR");
  EXPECT_EQ(labels.SkinLab3.caption, "9");
  open("RAF", "Odd");
  EXPECT_EQ(labels.SkinLab2.caption, "ZZZZ");
  EXPECT_EQ(labels.SkinLab3.caption, "");
  open("RAF", "None");
  EXPECT_EQ(labels.SkinLab2.caption, "");
  EXPECT_EQ(labels.SkinLab3.caption, "");
}

TEST_F(SkinSelection, ChoosingPutsTheSkinIntoTheRowOfItsPlane) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  plane.G1.g1update();
  open("RAF", "Mk9");
  form.Image1_Click();
  EXPECT_EQ(row_text(kSpitfireRow), "SP09 RAF Mk9 11 - - - - - -");
  EXPECT_FALSE(plane.G1.is_hidden(kSpitfireRow));
  EXPECT_FALSE(labels.GroupLabel.visible);
  EXPECT_FALSE(labels.FolderLabel.visible);
  EXPECT_FALSE(labels.Label44.visible);
}

TEST_F(SkinSelection, AFolderOfNoPlaneCannotBeChosen) {
  make_skin("RAF/Odd", {"pzzzz.3dz"});
  open("RAF", "Odd");
  form.SelLab_DblClick();
  for (int row = 1; row <= 30; ++row) EXPECT_FALSE(plane.G1.is_used(row)) << row;
  EXPECT_EQ(last_outcome(), "\"Odd\" can't be chosen: no file in it names one of the game's planes");
}

TEST_F(SkinSelection, MarksTheSkinsInUseWithGroupAndFolder) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  make_skin("RAF/Other", {"psp09.3dz"});
  make_skin("SAAF/Mk9", {"psp09.3dz"});
  open("RAF", "Mk9");
  selection.DoSel();
  EXPECT_NE(selection.SelLab[0].text_colour, kWhite);
  EXPECT_EQ(selection.SelLab[1].text_colour, kWhite);
  open("SAAF", "");
  EXPECT_EQ(selection.SelLab[0].text_colour, kWhite);
  open("RAF", "");
  EXPECT_NE(selection.SelLab[0].text_colour, kWhite);
}

TEST_F(SkinSelection, BringsThePlaneTableBackWithTheFlightModels) {
  plane.show_plane_codes();
  selection.Image1.picture = {"x", std::make_shared<const std::string>("x")};
  labels.Label2.visible = true;
  form.Label2_Click();
  EXPECT_TRUE(plane.Frame1.visible);
  EXPECT_TRUE(form.plane.List2.visible);
  EXPECT_FALSE(form.plane.List3.visible);
  EXPECT_FALSE(labels.Label2.visible);
  EXPECT_FALSE(selection.Image1.picture.bytes);
  plane.Frame1.visible = false;
  skins.open();
  form.Label41_Click();
  EXPECT_TRUE(plane.Frame1.visible);
  EXPECT_GT(plane.Frame1.depth, skins.Frame4.depth);
  EXPECT_FALSE(form.game.GameFrame.visible);
}

class GroupChoice : public test::AircraftWork {
 protected:
  GroupChoice() {
    selection.mode = PaneMode::kFlightModelGroup;
    selection.make_group_labels({"Early war", "Late war"});
  }
};

TEST_F(GroupChoice, MakesTheClickedGroupTheCurrentOneAndHidesTheLabels) {
  plane.set_flight_model_group("Old");
  form.Label1_Click(1);
  EXPECT_EQ(plane.G1.flight_model_group, "Late war");
  EXPECT_EQ(plane.Label25[0].caption, "Late war");
  EXPECT_EQ(plane.Label25[1].caption, "Late war");
  EXPECT_EQ(selection.current_group, "Late war");
  for (const Label& label : selection.Label1) EXPECT_FALSE(label.visible);
  EXPECT_FALSE(selection.Frame3.visible);
}

TEST_F(GroupChoice, HasNoTableToBringBack) {
  form.desk.labels.Label2.visible = true;
  form.Label41_Click();
  form.Label2_Click();
  EXPECT_FALSE(plane.Frame1.visible);
  EXPECT_FALSE(form.game.GameFrame.visible);
}

TEST_F(SkinSelection, NothingIsPutIntoATableWithoutTheRow) {
  make_skin("RAF/Mk9", {"psp09.3dz"});
  open("RAF", "Mk9");
  plane.G1.replace_rows(5, plane.G1.row_count() - 5, {});
  form.Image1_Click();
  EXPECT_EQ(plane.G1.row_count(), 5);
  EXPECT_EQ(last_outcome(), "\"Mk9\" was not put anywhere: the plane table has no row for its slot");
}

}  // namespace
}  // namespace vorlund
