// Events of the aircraft pane.
#include "aircraft/plane_pane.h"

#include "aircraft/aircraft_fixture.h"
#include "aircraft/plane_record.h"

namespace vorlund {
namespace {

using test::error_of;

class AircraftPane : public test::AircraftTest {
 protected:
  AircraftPane() {
    pane.show_plane_codes = [this] { crossings.emplace_back("plane codes"); };
    pane.fill_possible_skins = [this] {
      crossings.push_back("possible skins of row " + std::to_string(pane.table.G1.row));
    };
    pane.hide_save_pane = [this] { crossings.emplace_back("hide the save pane"); };
  }

  std::vector<std::string> crossings;
  MenuEditor menu_editor{environment};
  PlanePane pane{environment, menu_editor};
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
  pane.table.G1.set_cell(5, PlaneTable::kFlyable, "Yes");
  for (const int option : {-1, 0, 3}) {
    if (option >= 0) pane.select_option(static_cast<PlaneOption>(option));
    pane.G1_MouseDown(5, PlaneTable::kFlyable);
    pane.G1_MouseDown(5, PlaneTable::kRegion);
    EXPECT_EQ(pane.table.G1.cell(5, PlaneTable::kFlyable), "Yes");
    EXPECT_EQ(pane.table.G1.row, 5);
    EXPECT_EQ(pane.table.G1.column, PlaneTable::kRegion);
  }
  EXPECT_TRUE(crossings.empty());
}

TEST_F(AircraftPane, ClickInEditModeCyclesTheCellAndShowsThePlaneCodes) {
  pane.select_option(PlaneOption::kEditMode);
  pane.table.G1.set_cell(5, PlaneTable::kFlyable, "Yes");
  pane.G1_MouseDown(5, PlaneTable::kFlyable);
  EXPECT_EQ(pane.table.G1.cell(5, PlaneTable::kFlyable), "No");
  EXPECT_EQ(crossings, std::vector<std::string>{"plane codes"});
}

TEST_F(AircraftPane, ClickOnRegionOrSkinFolderOffersSkinsForThatRow) {
  pane.select_option(PlaneOption::kEditMode);
  const std::vector<std::string> before = pane.table.G1.rows[12].cells;
  pane.G1_MouseDown(12, PlaneTable::kRegion);
  pane.G1_MouseDown(12, PlaneTable::kSkinFolder);
  EXPECT_EQ(crossings, (std::vector<std::string>{"plane codes", "possible skins of row 12", "plane codes",
                                                 "possible skins of row 12"}));
  EXPECT_EQ(pane.table.G1.rows[12].cells, before);
}

TEST_F(AircraftPane, ClickOnTheHeaderIsNoSelectionAndChangesNothing) {
  pane.select_option(PlaneOption::kEditMode);
  const std::vector<std::string> header = pane.table.G1.rows[0].cells;
  pane.G1_MouseDown(5, PlaneTable::kSide);
  for (int column = 0; column < PlaneTable::kColumns; ++column) pane.G1_MouseDown(0, column);
  EXPECT_EQ(pane.table.G1.row, 0);
  EXPECT_EQ(pane.table.G1.rows[0].cells, header);
  pane.Label3_Click();
  EXPECT_EQ(pane.table.G1.rows[0].cells, header);
  for (const std::string& crossing : crossings) EXPECT_EQ(crossing, "plane codes");
}

TEST_F(AircraftPane, OtherButtonsDoNothingInTheTable) {
  pane.select_option(PlaneOption::kEditMode);
  pane.table.G1.set_cell(5, PlaneTable::kFlyable, "Yes");
  pane.G1_MouseDown(5, PlaneTable::kFlyable, {MouseButton::kRight});
  pane.G1_MouseDown(5, PlaneTable::kFlyable, {MouseButton::kMiddle});
  EXPECT_EQ(pane.table.G1.cell(5, PlaneTable::kFlyable), "Yes");
  EXPECT_EQ(pane.table.G1.row, 0);
}

TEST_F(AircraftPane, OneOptionButtonIsSetAtATime) {
  pane.select_option(PlaneOption::kEditMode);
  pane.select_option(PlaneOption::kFindFlightModel);
  EXPECT_FALSE(pane.is_set(PlaneOption::kEditMode));
  EXPECT_TRUE(pane.is_set(PlaneOption::kFindFlightModel));
  EXPECT_FALSE(pane.is_set(PlaneOption::kMatchSkin));
}

TEST_F(AircraftPane, IsDraggedByItsFreeAreaAndComesToTheFront) {
  Frame other;
  environment.frames.bring_to_front(other);
  pane.Frame1.place = {1000, 2000, 300, 400};
  pane.Frame1_MouseDown({MouseButton::kLeft, 0, 100, 50});
  pane.Frame1_MouseUp({MouseButton::kLeft, 0, 160, 20});
  EXPECT_EQ(pane.Frame1.place.left, 1060);
  EXPECT_EQ(pane.Frame1.place.top, 1970);
  EXPECT_GT(pane.Frame1.depth, other.depth);
}

TEST_F(AircraftPane, HideLabelHidesThePaneAndTheSkinLabels) {
  pane.show_in_front();
  EXPECT_TRUE(pane.Frame1.visible);
  environment.labels.SkinLab2.visible = true;
  environment.labels.Label42.visible = true;
  pane.Label10_Click();
  EXPECT_FALSE(pane.Frame1.visible);
  EXPECT_FALSE(environment.labels.SkinLab2.visible);
  EXPECT_FALSE(environment.labels.Label42.visible);
  EXPECT_TRUE(environment.labels.Label2.visible);
}

TEST_F(AircraftPane, ProcessShowsThatItWorksHidesThePaneAndWritesTheRecord) {
  std::string caption_while_working;
  class Watcher : public Status {
   public:
    Watcher(std::string& seen, const Label*& watched) : seen_(seen), watched_(watched) {}
    void repaint() override {
      if (seen_.empty() && watched_ != nullptr) seen_ = watched_->caption;
    }

   private:
    std::string& seen_;
    const Label*& watched_;
  };
  const Label* watched = nullptr;
  Watcher watcher(caption_while_working, watched);
  Environment surroundings{*files, environment.directory, watcher, environment.frames, environment.labels};
  PlanePane working(surroundings, menu_editor);
  watched = &working.Label8;
  working.Frame1.visible = true;
  working.table.set_flight_model_group("1944");
  working.Label8_Click();
  EXPECT_EQ(caption_while_working, "..working!");
  EXPECT_EQ(working.Label8.caption, "Process!");
  EXPECT_FALSE(working.Frame1.visible);
  EXPECT_EQ(folder.read("~Vorlund/CurrentPlaneSet.txt"), compose_plane_set(working.table));
}

TEST_F(AircraftPane, ProcessHidesTheSavePaneAndSaysWhatWasDone) {
  pane.table.set_flight_model_group("1944");
  pane.table.g1update();
  pane.Label8_Click();
  EXPECT_EQ(crossings, std::vector<std::string>{"hide the save pane"});
  ASSERT_EQ(environment.status.outcomes.size(), 1u);
  EXPECT_EQ(environment.status.outcomes[0],
            "0 slots, 0 files copied, 0 aircraft records and 0 picture menus written, 1 remark\n"
            "the game folder has no pnames.str, so no names were written");
}

TEST_F(AircraftPane, ProcessThatFailsLeavesTheRecordAsItWas) {
  folder.write("~Vorlund/CurrentPlaneSet.txt", "old record");
  model("Spit9/spit.oaw", "too short\r\n");
  pane.table.set_flight_model_group("1944");
  pane.table.G1.set_cell(3, PlaneTable::kScriptFolder, "Spit9");
  EXPECT_NE(error_of([&] { pane.Label8_Click(); }).find("read past the end"), std::string::npos);
  EXPECT_EQ(folder.read("~Vorlund/CurrentPlaneSet.txt"), "old record");
  EXPECT_TRUE(environment.status.outcomes.empty());
}

}  // namespace
}  // namespace vorlund
