// What the window says where there is nothing to show: it is true after every path.
#include "window/aircraft_window.h"
#include "window/contact_sheet.h"

namespace vorlund::test {
namespace {

class EmptyStates : public AircraftWindow {
 protected:
  QString words_of_list(const char* name) { return dynamic_cast<ListView*>(widget(name))->empty_words(); }
  QString words_of_table(const char* name) { return dynamic_cast<GridView*>(widget(name))->empty_words(); }

  /// What the status line says.
  const std::string& status() { return form().desk.status_line.caption; }

  /// Loads both set-ups into the tables.
  void load_with_view() {
    click("Label9(3)");
    click_entry("File2", 0);
    click_entry("File3", 0);
    click("Check1");
    click("Label19");
  }
};

const char kNoSlots[] = "This set has no slots: \"Make Aircraft Settings\" in the menu makes all thirty";
const char kNoGroups[] = "No row names a folder yet: \"Make Game Settings\" in the menu shows what there is";

TEST_F(EmptyStates, SetUpsWithoutRowsEmptyBothTablesWhichSaySo) {
  folder.write(
      "~Vorlund/PlaneSetFiles/Nothing",
      "Standard\r\nSlot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel %\r\n");
  folder.write("~Vorlund/GameSetFiles/Nothing", "Folder group\tFolder name\r\n");
  load_with_view();
  EXPECT_EQ(words_of_table("G1"), kNoSlots);
  EXPECT_EQ(words_of_table("G2"), kNoGroups);
  EXPECT_EQ(widget("G1")->accessibleDescription(), kNoSlots) << "screen readers are told";
}

TEST_F(EmptyStates, ARowTakesTheWordsAway) {
  folder.write(
      "~Vorlund/PlaneSetFiles/One",
      "Standard\r\nSlot\tRegion\r\nP38H\tAllied\tWings P38H\t0\tFM P38H\tx\tAmerican\tYes\tFighter\t100\r\n");
  folder.write("~Vorlund/GameSetFiles/One", "Folder group\tFolder name\r\nSounds\tLoud\r\n");
  load_with_view();
  EXPECT_EQ(words_of_table("G1"), "");
  EXPECT_EQ(words_of_table("G2"), "");
  EXPECT_EQ(widget("G1")->accessibleDescription(), "");
}

TEST_F(EmptyStates, SlotsThatAreNotUsedAreSaidToBeThere) {
  folder.write("~Vorlund/PlaneSetFiles/Unused", "Standard\r\nSlot\tRegion\r\nP38H\t\t\t\t\t\t\t\t\t\r\n");
  folder.write("~Vorlund/GameSetFiles/Nothing", "Folder group\tFolder name\r\n");
  load_with_view();
  EXPECT_EQ(words_of_table("G1"), "No slot is in use yet: \"Show All\" shows all of them");
}

TEST_F(EmptyStates, WithoutAFlightModelGroupTheStatusLineSaysWhereModelsComeFrom) {
  click("Label9(0)");
  EXPECT_EQ(
      status(),
      "Choose a group of skins, then a skin\nNo flight-model group is set: the flight models are the folders "
      "of \"~Vorlund\\FlightModels\" itself");
}

TEST_F(EmptyStates, WithoutSavedSetUpsTheListsSaySo) {
  click("Label9(3)");
  EXPECT_EQ(words_of_list("File2"), "No aircraft set has been saved yet");
  EXPECT_EQ(words_of_list("File3"), "No game set has been saved yet");
}

TEST_F(EmptyStates, AGroupWithoutFoldersSaysSoInItsSheetToo) {
  folder.make_folder("~Vorlund/GameStore/Bare");
  click("Label9(1)");
  click(label_of("Label1", "Bare"));
  EXPECT_EQ(words_of_list("Sheet"), "This group has no folder to choose");
  EXPECT_EQ(status(), "\"Bare\" has no folder to choose");
}

class WithoutAStore : public ProgramWindow {
 protected:
  const std::string& status() { return form().desk.status_line.caption; }
};

TEST_F(WithoutAStore, EveryCommandOfTheMenuSaysThatThereIsNothingToChooseFrom) {
  folder.write("eaw.exe", "game");
  restart();
  EXPECT_TRUE(status().ends_with("There is no \"~Vorlund\" in it: there is nothing to choose from"))
      << status();
  click("Label9(0)");
  EXPECT_TRUE(status().starts_with("There is no folder \"~Vorlund\\SkinStore\""));
  click("Label9(1)");
  EXPECT_EQ(status(), "There is no folder \"~Vorlund\\GameStore\"");
  click("Label9(2)");
  EXPECT_EQ(status(), "There is no folder \"~Vorlund\\FlightModels\"");
  EXPECT_EQ(error, "");
}

}  // namespace
}  // namespace vorlund::test
