// The flight-model browser: preparing the panes, putting flight models into slots, record numbers.
#include "panes/flight_model_browser.h"

#include "panes/aircraft_work.h"

namespace vorlund {
namespace {

class Browser : public test::AircraftWork {
 protected:
  Browser() {
    plane.set_flight_model_group("Late war");
    plane.G1.select(kSpitfireRow, PlaneTable::kScriptFolder);
  }

  /// Lines of an ".oaw" file, the title counted, with what stands in lines 2, 6 and 7.
  static std::string flight_model(const std::string& title, const std::string& line2,
                                  const std::string& line6, const std::string& line7, int lines = 169) {
    std::string text = title + "\r\n" + line2 + "\r\n0\r\n0\r\n0\r\n" + line6 + "\r\n" + line7 + "\r\n";
    for (int line = 8; line <= lines; ++line) text += "0\r\n";
    return text;
  }

  void store(const std::string& model, const std::string& text) const {
    folder.write("~Vorlund/FlightModels/Late war/" + model, text);
  }

  void click(const std::string& model, PlaneOption option) {
    form.plane.List2.items = {model};
    form.Option1_Click(static_cast<int>(option));
    form.List2_Click(0);
  }

  void find_for_slot(const std::string& model) { click(model, PlaneOption::kFindFlightModel); }
};

TEST_F(Browser, PreparesThePanesForTheAircraftWork) {
  make_skin("raf/Mk9", {});
  make_skin("Luftwaffe/Emil", {});
  folder.make_folder("~Vorlund/FlightModels/Late war/spit9");
  folder.make_folder("~Vorlund/FlightModels/Late war/Emil");
  folder.write("~Vorlund/FlightModels/Late war/notes.txt", "");
  selection.make_group_labels({"Careers", "Scenery", "Sounds"});
  plane.G1.clear();
  browser.DoFM();
  ASSERT_EQ(selection.Label1.size(), 2U);
  EXPECT_EQ(selection.Label1[0].caption, "Luftwaffe");
  EXPECT_EQ(selection.Label1[1].caption, "raf");
  EXPECT_TRUE(selection.Label1[0].visible);
  EXPECT_TRUE(selection.Label1[1].visible);
  EXPECT_EQ(form.plane.List2.items, (std::vector<std::string>{"Emil", "spit9"}));
  EXPECT_TRUE(form.plane.List2.visible);
  ASSERT_EQ(form.plane.List3.items.size(), 30U);
  EXPECT_EQ(form.plane.List3.items.front(), "P38H");
  EXPECT_EQ(form.plane.List3.items.back(), "V1V1");
  EXPECT_EQ(plane.G1.row_count(), 31);
  EXPECT_EQ(cell(12, PlaneTable::kSlot), "SP09");
}

TEST_F(Browser, HidesTheFlightModelsWhenTheGroupHasNone) {
  folder.make_folder("~Vorlund/FlightModels/Late war");
  form.plane.List2.items = {"old"};
  browser.DoFM();
  EXPECT_TRUE(form.plane.List2.items.empty());
  EXPECT_FALSE(form.plane.List2.visible);
}

TEST_F(Browser, AGroupOfAHostileNameHasNoFlightModels) {
  folder.make_folder("outside/model");
  folder.make_folder("~Vorlund/FlightModels");
  for (const char* group :
       {"..\\..\\outside", "..", ".", "", "C:", "Late war\\..\\..\\..\\outside", "a/../../.."}) {
    plane.set_flight_model_group(group);
    browser.DoFM();
    EXPECT_TRUE(form.plane.List2.items.empty()) << group;
  }
}

TEST_F(Browser, PreparesEmptyPanesWithoutAStore) {
  browser.DoFM();
  EXPECT_EQ(selection.Label1.size(), 1U);
  EXPECT_FALSE(selection.Label1[0].visible);
  EXPECT_TRUE(form.plane.List2.items.empty());
}

TEST_F(Browser, EditModeShowsThePlaneCodesInsteadOfTheFlightModels) {
  form.Option1_Click(2);
  EXPECT_FALSE(form.plane.List2.visible);
  EXPECT_TRUE(form.plane.List3.visible);
  EXPECT_TRUE(plane.is_set(PlaneOption::kEditMode));
  for (const int index : {0, 3}) {
    form.Option1_Click(2);
    form.Option1_Click(index);
    EXPECT_TRUE(form.plane.List2.visible) << index;
    EXPECT_FALSE(form.plane.List3.visible) << index;
    EXPECT_FALSE(plane.is_set(PlaneOption::kEditMode)) << index;
  }
}

TEST_F(Browser, APlaneCodeSetsTheRecordNumberOfTheCurrentRowAlone) {
  browser.DoFM();
  form.List3_Click(29);
  EXPECT_EQ(row_text(kSpitfireRow), "SP09 - - 29 - - - - - -");
  form.List3_Click(-1);
  EXPECT_EQ(cell(kSpitfireRow, PlaneTable::kRecordNumber), "29");
}

TEST_F(Browser, NeitherListOverwritesTheHeaderRow) {
  store("Spit9/spit9.oaw", flight_model("Spitfire", "11", "1", "1"));
  browser.DoFM();
  const std::string header = row_text(0);
  plane.G1.select(0, 0);
  form.List3_Click(5);
  EXPECT_EQ(row_text(0), header);
  find_for_slot("Spit9");
  EXPECT_EQ(row_text(0), header);
  EXPECT_EQ(last_outcome(), "Nothing was changed: first select a slot in the plane table");
}

struct ModelCase {
  std::string line2, line6, line7;
  std::string cells;  ///< PlnDat, side, flyable, role
};

TEST_F(Browser, FillsTheRowFromTheFlightModel) {
  const ModelCase cases[] = {
      {"11", "133", "0", "11 German Yes Fighter"},
      {"11", "2", "3", "11 Allied No Bomber"},
      {"0", "3", "1", "0 British No F/B"},
      {"29", "4", "2", "29 American Yes -"},
      {"11", "0", "0", "11 - No -"},
      {"11", "127", "5", "11 British Yes F/B"},
      {"11", "128", "3", "11 German No -"},
      {"11.9", "5.9", "4", "11 - Yes Fighter"},
      {" 7 x", "abc", "", "7 - No -"},
      {"", "-3", "-1", "0 - No -"},
      {"-0.5", "1e300", "1e300", "0 German No -"},
  };
  for (const ModelCase& given : cases) {
    for (const PlaneOption option : {PlaneOption::kFindFlightModel, PlaneOption::kEditMode}) {
      plane.G1.set_cell(kSpitfireRow, PlaneTable::kRecordNumber, "");
      store("Model/model.oaw", flight_model("Title", given.line2, given.line6, given.line7));
      click("Model", option);
      std::string cells;
      for (const int column :
           {PlaneTable::kRecordNumber, PlaneTable::kSide, PlaneTable::kFlyable, PlaneTable::kRole}) {
        const std::string value = cell(kSpitfireRow, column);
        cells += (cells.empty() ? "" : " ") + (value.empty() ? "-" : value);
      }
      EXPECT_EQ(cells, given.cells) << given.line2 << " / " << given.line6 << " / " << given.line7;
      EXPECT_EQ(cell(kSpitfireRow, PlaneTable::kPlaneName), "Title");
      EXPECT_EQ(cell(kSpitfireRow, PlaneTable::kFuel), "100");
      EXPECT_EQ(cell(kSpitfireRow, PlaneTable::kScriptFolder), "Model");
    }
  }
}

TEST_F(Browser, ShowsTheHiddenRowThatItFills) {
  browser.DoFM();
  plane.G1.hide_row(kSpitfireRow, true);
  find_for_slot("Spit");
  EXPECT_FALSE(plane.G1.is_hidden(kSpitfireRow));
  plane.G1.hide_row(kSpitfireRow, true);
  form.List3_Click(4);
  EXPECT_FALSE(plane.G1.is_hidden(kSpitfireRow));
}

TEST_F(Browser, OverwritesWhatStandsInTheRowButKeepsAFilledRecordNumber) {
  store("Spit9/spit9.oaw", flight_model("Spitfire IX", "11", "5", "1"));
  for (int column = 1; column < PlaneTable::kColumns; ++column) {
    plane.G1.set_cell(kSpitfireRow, column, "old");
  }
  click("Spit9", PlaneOption::kEditMode);
  EXPECT_EQ(row_text(kSpitfireRow), "SP09 old old old Spit9 Spitfire IX British Yes Fighter 100");
  EXPECT_EQ(last_outcome(), "Slot SP09 now flies \"Spit9\"");
}

TEST_F(Browser, ReadsTheFirstFlightModelByNameAlone) {
  store("Spit9/b.oaw", flight_model("Second", "1", "1", "1"));
  store("Spit9/A.OAW", flight_model("First", "1", "1", "1"));
  find_for_slot("Spit9");
  EXPECT_EQ(cell(kSpitfireRow, PlaneTable::kPlaneName), "First");
}

TEST_F(Browser, ReadsTheTitleInTheCodePageAndKeepsItToOneCell) {
  store("Spit9/spit9.oaw", flight_model("  \xC9t\xE9\tIX", "1", "1", "1"));
  find_for_slot("Spit9");
  EXPECT_EQ(cell(kSpitfireRow, PlaneTable::kPlaneName), "  Été IX");
}

TEST_F(Browser, SetsTheScriptFolderAloneWhereTheFlightModelCannotBeRead) {
  folder.make_folder("~Vorlund/FlightModels/Late war/Empty");
  store("Short/short.oaw", flight_model("Short", "1", "1", "1", 168));
  store("Short/whole.oaw", flight_model("Whole", "1", "1", "1"));
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"Empty", "\"Empty\" holds no \".oaw\" file; only the script folder was set"},
      {"Short", "\"short.oaw\" has 168 lines where 169 are needed; only the script folder was set"},
      {"Gone", "The flight-model group \"Late war\" has no folder \"Gone\"; only the script folder was set"},
      {"..\\..",
       "The flight-model group \"Late war\" has no folder \"..\\..\"; only the script folder was set"},
  };
  for (const auto& [model, outcome] : cases) {
    find_for_slot(model);
    EXPECT_EQ(row_text(kSpitfireRow), "SP09 - - - " + model + " - - - - -");
    EXPECT_EQ(last_outcome(), outcome);
  }
}

TEST_F(Browser, DoesNothingWithoutAnOptionOrWithoutASelection) {
  store("Spit9/spit9.oaw", flight_model("Spitfire", "1", "1", "1"));
  form.plane.List2.items = {"Spit9"};
  form.List2_Click(0);
  EXPECT_EQ(row_text(kSpitfireRow), "SP09 - - - - - - - - -");
  form.Option1_Click(3);
  for (const int index : {-1, 1}) {
    form.List2_Click(index);
    EXPECT_EQ(row_text(kSpitfireRow), "SP09 - - - - - - - - -") << index;
  }
}

TEST_F(Browser, LinesMayEndInEitherByteAlone) {
  for (const char* end : {"\n", "\r"}) {
    std::string text;
    for (const char character : flight_model("Spitfire IX", "11", "5", "2")) {
      if (character != '\n') text += character == '\r' ? *end : character;
    }
    store("spit9/spit9.oaw", text);
    find_for_slot("spit9");
    EXPECT_EQ(row_text(kSpitfireRow).find("SP09 - - 11 spit9 Spitfire IX"), 0U) << row_text(kSpitfireRow);
    plane.G1.clear_current();
  }
}

TEST_F(Browser, AFlightModelWithoutALineIsToldOf) {
  store("spit9/spit9.oaw", "");
  find_for_slot("spit9");
  EXPECT_NE(last_outcome().find("\"spit9.oaw\" has 0 lines where 169 are needed"), std::string::npos)
      << last_outcome();
}

TEST_F(Browser, AClickBesideThePlaneCodesPutsNoneIntoTheRow) {
  browser.DoFM();
  plane.G1.select(kSpitfireRow, PlaneTable::kScriptFolder);
  ASSERT_EQ(plane.List3.items.size(), 30U);
  for (const int index : {-1, 30}) {
    form.List3_Click(index);
    EXPECT_EQ(cell(kSpitfireRow, PlaneTable::kRecordNumber), "") << index;
  }
}

}  // namespace
}  // namespace vorlund
