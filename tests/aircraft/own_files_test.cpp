// What differs in the game's own files is told in the words of the table.
#include "aircraft/own_files.h"

#include <gtest/gtest.h>

#include "aircraft/pilot_names.h"

namespace vorlund {
namespace {

std::string planes(char flags, char side, char fuel_low, char other) {
  std::string bytes(4 + 30 * 216, '\0');
  const std::size_t record = 4 + 7 * 216;
  bytes[record + 4] = flags;
  bytes[record + 5] = side;
  bytes[record + 36] = fuel_low;
  bytes[record + 100] = other;
  bytes.replace(record + 164, 4, "P51D");
  return bytes;
}

PlaneTable chosen() {
  PlaneTable table;
  table.set_cell(6, PlaneTable::kRecordNumber, "7");
  table.set_cell(6, PlaneTable::kSide, "British");
  table.g1update();
  return table;
}

TEST(OwnFiles, ARecordThatIsAsChosenSaysNothing) {
  const std::string bytes = planes(5, 1, 10, 3);
  const auto entries = compare_planes_data(bytes, bytes, chosen());
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].what, "record 7, slot P51D");
  EXPECT_EQ(entries[0].state, "");
}

TEST(OwnFiles, ARecordTellsWhatDiffersAndWhatWasChosen) {
  const auto entries =
      compare_planes_data(planes(static_cast<char>(0x86), 0, 20, 4), planes(5, 1, 10, 3), chosen());
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].state,
            "side is German, chosen British; role is Bomber, chosen Fighter; fuel is 20, chosen 10; "
            "1 other byte differs");
}

TEST(OwnFiles, ARecordThatNoSlotHasChosenIsToldOnlyWhereItDiffers) {
  const std::string then = planes(5, 1, 10, 3);
  std::string today = then;
  today[4 + 20 * 216] = 'x';
  const auto entries = compare_planes_data(today, then, PlaneTable());
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].what, "record 20");
  EXPECT_EQ(entries[0].state, "1 byte differs");
}

TEST(OwnFiles, AShortFileCountsAsZeros) {
  const auto entries = compare_planes_data("", planes(5, 0, 0, 0), chosen());
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_NE(entries[0].state, "");
}

TEST(OwnFiles, LoadOutsAreComparedInBothAreas) {
  const std::string then(10'000, '\0');
  std::string today = then;
  today[1984] = 'x';
  today[7928 + 60 * 7] = 'y';
  const auto entries = compare_loadout_data(today, then, chosen());
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].what, "record 7, slot P51D");
  EXPECT_EQ(entries[0].state, "2 bytes differ");
}

TEST(OwnFiles, NamesAreComparedOneByOne) {
  std::vector<std::string> names(30);
  const std::string today = compose_pilot_names(names, "");
  names[3] = "Spitfire";
  const auto entries = compare_pilot_names(today, compose_pilot_names(names, ""));
  ASSERT_EQ(entries.size(), 30U);
  EXPECT_EQ(entries[2].state, "");
  EXPECT_EQ(entries[3].what, "name 3");
  EXPECT_EQ(entries[3].state, "is \"\", chosen \"Spitfire\"");
}

TEST(OwnFiles, ANameFileThatCannotBeReadSaysSo) {
  const auto entries = compare_pilot_names("\xFF\xFF", "");
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_NE(entries[0].state.find("overflow"), std::string::npos);
}

TEST(OwnFiles, MenusAreComparedEntryByEntry) {
  PictureMenu menu;
  menu.header = std::string(35, 'h');
  for (std::size_t index = 0; index < menu.entries.size(); ++index) {
    menu.entries[index].trailer = std::string(15, 't');
    menu.set_name(index, "Hurricane");
  }
  const std::string today = compose_picture_menu(menu, Country::kBritish);
  menu.set_name(1, "Typhoon");
  const auto entries =
      compare_picture_menu(today, compose_picture_menu(menu, Country::kBritish), Country::kBritish);
  ASSERT_EQ(entries.size(), 9U);
  EXPECT_EQ(entries[0].state, "");
  EXPECT_EQ(entries[1].state, "is \"Hurricane\", chosen \"Typhoon\"");
}

TEST(OwnFiles, EachSideHasItsName) {
  const auto side = [](char today, char then) {
    return compare_planes_data(planes(1, today, 0, 0), planes(1, then, 0, 0), PlaneTable()).at(0).state;
  };
  EXPECT_EQ(side(1, 2), "side is British, chosen American");
  EXPECT_EQ(side(2, 3), "side is American, chosen Allied");
  EXPECT_EQ(side(3, 1), "side is Allied, chosen British");
}

TEST(OwnFiles, TheSideIsThatOfTheTableWhereTheTableNamesOne) {
  PlaneTable table = chosen();
  EXPECT_EQ(compare_planes_data(planes(1, 2, 0, 0), planes(1, 3, 0, 0), table).at(0).state,
            "side is American, chosen British");
  table.set_cell(6, PlaneTable::kSide, "");
  EXPECT_EQ(compare_planes_data(planes(1, 2, 0, 0), planes(1, 3, 0, 0), table).at(0).state,
            "side is American, chosen Allied");
}

TEST(OwnFiles, ADifferenceThatHasNoNameIsCounted) {
  EXPECT_EQ(compare_planes_data(planes(1, 0, 0, 0), planes(1, 1, 0, 0), chosen()).at(0).state,
            "1 byte differs")
      << "both are British";
}

TEST(OwnFiles, ASlotWhoseRecordNumberCannotBeTakenIsPassedOver) {
  PlaneTable table = chosen();
  table.set_cell(6, PlaneTable::kRecordNumber, "70000");
  EXPECT_TRUE(compare_planes_data(planes(1, 1, 0, 0), planes(1, 1, 0, 0), table).empty());
  EXPECT_TRUE(compare_loadout_data("", "", table).empty());
}

TEST(OwnFiles, ALoadOutAsChosenSaysNothing) {
  const auto entries = compare_loadout_data("", "", chosen());
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].state, "");
}

}  // namespace
}  // namespace vorlund
