// A player composes and installs all thirty slots with the mouse.
#include <algorithm>

#include "window/aircraft_window.h"
#include "window/made_aircraft_game.h"

namespace vorlund::test {
namespace {

/// What a row must hold once its flight model and its skin are chosen.
std::vector<std::string> expected_row(int record) {
  return {slot_code(record),
          skin_group(record),
          skin_name(record),
          std::to_string(record),
          flight_model_name(record),
          flight_model_title(record),
          record >= 16 ? "German" : "American",
          "Yes",
          "Fighter",
          "100"};
}

int byte_at(const std::string& bytes, int position) {
  return static_cast<unsigned char>(bytes.at(static_cast<std::size_t>(position)));
}

class ComposeAircraft : public AircraftWindow {
 protected:
  /// Index of a record's flight model in `List2`, which is sorted by name.
  int flight_model_index(int record) {
    const auto& items = form().plane.List2.items;
    const auto found = std::find(items.begin(), items.end(), flight_model_name(record));
    EXPECT_NE(found, items.end()) << flight_model_name(record);
    return static_cast<int>(found - items.begin());
  }

  void compose_all_slots() {
    open_aircraft_pane();
    if (text("Label30") == "Show All") click("Label30");
    click("Option1(3)");
    for (int record = 0; record < 30; ++record) {
      click_cell(record + 1, PlaneTable::kSlot);
      click_entry("List2", flight_model_index(record));
    }
    click("Option1(2)");
    for (int record = 0; record < 30; ++record) {
      click_cell(record + 1, PlaneTable::kRegion);
      ASSERT_TRUE(sees("Frame4")) << slot_code(record);
      EXPECT_EQ(text("Label32").toStdString(), skin_name(record));
      click("Image4");
      ASSERT_TRUE(sees("Frame1")) << slot_code(record);
    }
  }
};

TEST_F(ComposeAircraft, ThirtySlotsAreFilledWithTheMouseAlone) {
  compose_all_slots();
  for (int record = 0; record < 30; ++record) {
    EXPECT_EQ(table().cells(record + 1), expected_row(record));
  }
  auto* view = static_cast<GridView*>(widget("G1"));
  EXPECT_EQ(view->grid_model().rowCount(), 30);
  EXPECT_EQ(view->currentIndex().row(), 29) << "the row last filled is the current one";
}

TEST_F(ComposeAircraft, ProcessWritesTheGameFilesOfEverySlot) {
  compose_all_slots();
  click_cell(1, PlaneTable::kSide);     // American becomes German
  click_cell(2, PlaneTable::kRole);     // Fighter becomes F/B
  click_cell(3, PlaneTable::kFuel);     // 100 becomes 75
  click_cell(4, PlaneTable::kFlyable);  // Yes becomes No
  click("Label8");
  EXPECT_FALSE(sees("Frame1"));
  EXPECT_NE(text("StatusLine"), "");
  const std::string planes = folder.read("Planes.dat");
  const std::string names = folder.read("pnames.str");
  for (int record = 0; record < 30; ++record) {
    const std::string code = slot_code(record);
    const int base = 4 + 216 * record;
    EXPECT_EQ(planes.substr(static_cast<std::size_t>(base) + 164, 4), code);
    EXPECT_EQ(byte_at(planes, base + 168), 0xEE) << "past the written part of " << code;
    EXPECT_EQ(folder.read("P" + code + ".3dz"), "shape " + code);
    EXPECT_EQ(folder.read(code + ".flt"), "flight " + code);
    EXPECT_NE(names.find(flight_model_title(record) + '\0'), std::string::npos) << code;
  }
  EXPECT_EQ(byte_at(planes, 4 + 4), 128 + 5) << "a German flyable fighter";
  EXPECT_EQ(byte_at(planes, 4 + 216 + 4), 4 + 3) << "a flyable F/B";
  EXPECT_EQ(byte_at(planes, 4 + 216 * 2 + 36) + 256 * byte_at(planes, 4 + 216 * 2 + 37), 750);
  EXPECT_EQ(byte_at(planes, 4 + 216 * 3 + 4), 1) << "a fighter that can't be flown";
  EXPECT_NE(folder.read("picplnb.mnu").find("Type TYPH"), std::string::npos);
  EXPECT_EQ(folder.read("~Vorlund/CurrentPlaneSet.txt").substr(0, 10), "Standard\r\n");
}

TEST_F(ComposeAircraft, TheNextStartShowsWhatWasInstalled) {
  compose_all_slots();
  click("Label8");
  restart();
  click("WhatsLoaded");
  EXPECT_TRUE(sees("Frame1"));
  EXPECT_EQ(text("Label25(0)"), "Standard");
  for (int record = 0; record < 30; ++record) {
    EXPECT_EQ(table().cells(record + 1), expected_row(record));
  }
}

}  // namespace
}  // namespace vorlund::test
