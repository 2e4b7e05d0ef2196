// Events of the aircraft pane.
#include "panes/plane_pane.h"

#include "aircraft/aircraft_fixture.h"
#include "aircraft/plane_record.h"
#include "support/form_in_folder.h"

namespace vorlund {
namespace {

using test::error_of;

class AircraftPane : public test::AircraftTest {
 protected:
  AircraftPane() { folder.write("~Vorlund/SkinStore/SkinList.txt", "RAF\\Mk9\\SP09\r\n"); }

  test::FormInFolder work{*files, folder.path()};
  Form1& form = work.form;
  PlanePane& pane = form.plane;
};

TEST_F(AircraftPane, HasItsCaptions) {
  EXPECT_EQ(pane.Frame1.caption, "Skin and flight model table");
  EXPECT_EQ(pane.Label8.caption, "Process!");
  EXPECT_EQ(pane.Label3.caption, "Clear the selected row");
  EXPECT_EQ(pane.Label24.caption, "Current flight model:");
  EXPECT_EQ(pane.Label10.caption, "Hide");
  EXPECT_EQ(pane.Option1[0].caption, "Match skin to selected FM");
  EXPECT_EQ(pane.Option1[2].caption, "Edit Mode");
  EXPECT_EQ(pane.Option1[3].caption, "Find FM for selected slot");
  for (const Choice& choice : pane.Option1) EXPECT_FALSE(choice.checked);
}

TEST_F(AircraftPane, ClickOutsideEditModeOnlyMakesTheCellCurrent) {
  pane.G1.set_cell(5, PlaneTable::kFlyable, "Yes");
  for (const int option : {-1, 0, 3}) {
    if (option >= 0) pane.set_option(static_cast<PlaneOption>(option));
    form.G1_MouseDown(5, PlaneTable::kFlyable);
    form.G1_MouseDown(5, PlaneTable::kRegion);
    EXPECT_EQ(pane.G1.cell(5, PlaneTable::kFlyable), "Yes");
    EXPECT_EQ(pane.G1.current_row, 5);
    EXPECT_EQ(pane.G1.current_column, PlaneTable::kRegion);
  }
  EXPECT_FALSE(pane.List3.visible);
  EXPECT_FALSE(form.possible_skins.Frame4.visible);
}

TEST_F(AircraftPane, ClickInEditModeCyclesTheCellAndShowsThePlaneCodes) {
  pane.set_option(PlaneOption::kEditMode);
  pane.G1.set_cell(5, PlaneTable::kFlyable, "Yes");
  form.G1_MouseDown(5, PlaneTable::kFlyable);
  EXPECT_EQ(pane.G1.cell(5, PlaneTable::kFlyable), "No");
  EXPECT_TRUE(pane.List3.visible);
  EXPECT_FALSE(pane.List2.visible);
}

TEST_F(AircraftPane, ClickOnRegionOrSkinFolderOffersSkinsForThatRow) {
  pane.set_option(PlaneOption::kEditMode);
  const std::vector<std::string> before = pane.G1.cells(12);
  form.G1_MouseDown(12, PlaneTable::kRegion);
  form.G1_MouseDown(12, PlaneTable::kSkinFolder);
  EXPECT_TRUE(pane.List3.visible);
  EXPECT_TRUE(form.possible_skins.Frame4.visible);
  EXPECT_EQ(form.possible_skins.List4.items, std::vector<std::string>{"RAF\\Mk9"});
  EXPECT_EQ(pane.G1.cells(12), before);
}

TEST_F(AircraftPane, ClickOnTheHeaderIsNoSelectionAndChangesNothing) {
  pane.set_option(PlaneOption::kEditMode);
  const std::vector<std::string> header = pane.G1.cells(0);
  form.G1_MouseDown(5, PlaneTable::kSide);
  for (int column = 0; column < PlaneTable::kColumns; ++column) form.G1_MouseDown(0, column);
  EXPECT_EQ(pane.G1.current_row, 0);
  EXPECT_EQ(pane.G1.cells(0), header);
  form.Label3_Click();
  EXPECT_EQ(pane.G1.cells(0), header);
  EXPECT_FALSE(form.possible_skins.Frame4.visible);
}

TEST_F(AircraftPane, OtherButtonsDoNothingInTheTable) {
  pane.set_option(PlaneOption::kEditMode);
  pane.G1.set_cell(5, PlaneTable::kFlyable, "Yes");
  form.G1_MouseDown(5, PlaneTable::kFlyable, {MouseButton::kRight});
  form.G1_MouseDown(5, PlaneTable::kFlyable, {MouseButton::kMiddle});
  EXPECT_EQ(pane.G1.cell(5, PlaneTable::kFlyable), "Yes");
  EXPECT_EQ(pane.G1.current_row, 0);
}

TEST_F(AircraftPane, OneOptionButtonIsSetAtATime) {
  pane.set_option(PlaneOption::kEditMode);
  pane.set_option(PlaneOption::kFindFlightModel);
  EXPECT_FALSE(pane.is_set(PlaneOption::kEditMode));
  EXPECT_TRUE(pane.is_set(PlaneOption::kFindFlightModel));
  EXPECT_FALSE(pane.is_set(PlaneOption::kMatchSkin));
}

TEST_F(AircraftPane, IsDraggedByItsFreeAreaAndComesToTheFront) {
  Frame other;
  form.desk.bring_to_front(other);
  pane.Frame1.place = {1000, 2000, 300, 400};
  form.Frame1_MouseDown({MouseButton::kLeft, 0, 100, 50});
  form.Frame1_MouseUp({MouseButton::kLeft, 0, 160, 20});
  EXPECT_EQ(pane.Frame1.place.left, 1060);
  EXPECT_EQ(pane.Frame1.place.top, 1970);
  EXPECT_GT(pane.Frame1.depth, other.depth);
}

TEST_F(AircraftPane, HideLabelHidesThePaneAndTheSkinLabels) {
  pane.show();
  EXPECT_TRUE(pane.Frame1.visible);
  form.desk.labels.SkinLab2.visible = true;
  form.desk.labels.Label42.visible = true;
  form.Label10_Click(0);
  EXPECT_FALSE(pane.Frame1.visible);
  EXPECT_FALSE(form.desk.labels.SkinLab2.visible);
  EXPECT_FALSE(form.desk.labels.Label42.visible);
  EXPECT_TRUE(form.desk.labels.Label2.visible);
}

TEST_F(AircraftPane, ProcessShowsThatItWorksHidesThePaneAndWritesTheRecord) {
  std::string caption_while_working;
  work.status.on_repaint = [&] {
    if (caption_while_working.empty()) caption_while_working = pane.Label8.caption;
  };
  pane.Frame1.visible = true;
  pane.set_flight_model_group("1944");
  form.Label8_Click();
  EXPECT_EQ(caption_while_working, "..working!");
  EXPECT_EQ(pane.Label8.caption, "Process!");
  EXPECT_FALSE(pane.Frame1.visible);
  EXPECT_EQ(folder.read("~Vorlund/CurrentPlaneSet.txt"), compose_plane_set(pane.G1));
}

TEST_F(AircraftPane, ProcessHidesTheSavePaneAndSaysWhatWasDone) {
  pane.set_flight_model_group("1944");
  pane.G1.g1update();
  form.Label14_Click();
  form.Label8_Click();
  EXPECT_FALSE(form.save_pane.SaveFrame.visible);
  EXPECT_EQ(work.said(),
            "There was nothing to install, 1 remark\n"
            "the game folder has no pnames.str, so no names were written");
}

TEST_F(AircraftPane, ProcessThatFailsLeavesTheRecordAsItWas) {
  folder.write("~Vorlund/CurrentPlaneSet.txt", "old record");
  model("Spit9/spit.oaw", "too short\r\n");
  pane.set_flight_model_group("1944");
  pane.G1.set_cell(3, PlaneTable::kScriptFolder, "Spit9");
  EXPECT_NE(error_of([&] { form.Label8_Click(); }).find("read past the end"), std::string::npos);
  EXPECT_EQ(folder.read("~Vorlund/CurrentPlaneSet.txt"), "old record");
  EXPECT_EQ(work.said(), "");
}

TEST_F(AircraftPane, SaysHowManySlotsAreShown) {
  const auto said_of_switching = [this] {
    form.Label30_Click();
    return form.desk.status_line.caption;
  };
  pane.G1.fill_slots();
  if (!pane.G1.shows_all) said_of_switching();
  EXPECT_EQ(said_of_switching(), "No slot is in use");
  EXPECT_EQ(said_of_switching(), "All slots are shown");
  pane.G1.set_cell(3, PlaneTable::kScriptFolder, "Mk9");
  EXPECT_EQ(said_of_switching(), "1 slot that is in use is shown");
}

}  // namespace
}  // namespace vorlund
