// The load-out areas in loadout.dat, byte by byte.
#include "aircraft/loadout_data.h"

#include <algorithm>

#include "aircraft/aircraft_fixture.h"

namespace vorlund {
namespace {

using namespace std::string_literals;
using test::error_of;
using test::same_values;
using test::value_text;

class LoadoutData : public test::AircraftTest {
 protected:
  LoadoutData() {
    fill_row(1, {"0"});
    folder.write("loadout.dat", std::string(10000, '\xEE'));
  }

  void set_record(const std::string& number) { table.set_cell(1, PlaneTable::kRecordNumber, number); }
  LoadOutOutcome write() {
    PatchedFile loadouts(*files, folder.path("loadout.dat"));
    LoadOutOutcome outcome;
    loadouts.patch([&] {
      outcome = LoadOutWrite(game, table, 1, folder.path("~Vorlund\\FlightModels\\1944\\Spit9"), loadouts);
    });
    return outcome;
  }
  std::string error() {
    return error_of([&] { write(); });
  }
  std::string loadout() const { return folder.read("loadout.dat"); }
};

/// The bytes 5, but `number` at the start of every record.
std::string records(std::size_t count, std::size_t record_size, char number) {
  std::string bytes(count, '\5');
  for (std::size_t at = 0; at < count; at += record_size) bytes[at] = number;
  return bytes;
}

TEST(LoadoutOffsets, GiveSevenOrThreeRecordsToEachNumber) {
  const std::vector<int> three_records = {6, 7, 8, 15, 21, 25, 26, 27, 28};
  for (int number = 0; number < 29; ++number) {
    const auto at = static_cast<std::size_t>(number);
    const bool three = std::find(three_records.begin(), three_records.end(), number) != three_records.end();
    EXPECT_EQ(kLoadoutOffsets[at + 1] - kLoadoutOffsets[at], three ? 132 : 308) << number;
  }
  EXPECT_EQ(kLoadoutOffsets[0], 5);
  EXPECT_EQ(kLoadoutOffsets[29], 7353);
  EXPECT_EQ(kLoadoutOffsets[30], 0);
}

TEST_F(LoadoutData, FirstAreaOfNumberZeroStartsAtOffsetFour) {
  model("Spit9/a.lo1", value_text("title", same_values(308, "5")));
  const LoadOutOutcome outcome = write();
  EXPECT_TRUE(outcome.first_area);
  EXPECT_FALSE(outcome.second_area);
  std::string expected(10000, '\xEE');
  expected.replace(4, 308, records(308, 44, '\0'));
  EXPECT_EQ(loadout(), expected);
  EXPECT_EQ(loadout()[4], '\0');
  EXPECT_EQ(loadout()[48], '\0');
  EXPECT_EQ(loadout()[92], '\0');
}

TEST_F(LoadoutData, FirstAreaOfNumberSevenFillsItsThreeRecords) {
  set_record("7");
  model("Spit9/a.LO1", value_text("title", same_values(132, "5")));
  write();
  std::string expected(10000, '\xEE');
  expected.replace(1984, 132, records(132, 44, '\7'));
  EXPECT_EQ(loadout(), expected);
  for (const std::size_t offset : {1984u, 2028u, 2072u}) EXPECT_EQ(loadout()[offset], '\7');
}

TEST_F(LoadoutData, SecondAreaOfNumberThreeFillsItsFiveRecords) {
  set_record("3");
  model("Spit9/a.lo2", value_text("title", same_values(60, "5")));
  const LoadOutOutcome outcome = write();
  EXPECT_FALSE(outcome.first_area);
  EXPECT_TRUE(outcome.second_area);
  std::string expected(10000, '\xEE');
  expected.replace(8108, 60, records(60, 12, '\3'));
  EXPECT_EQ(loadout(), expected);
  for (const std::size_t offset : {8108u, 8120u, 8132u, 8144u, 8156u}) EXPECT_EQ(loadout()[offset], '\3');
}

TEST_F(LoadoutData, LongerFileWritesOnIntoTheNextBlock) {
  set_record("29");
  model("Spit9/a.lo1", value_text("title", same_values(700, "5")));
  model("Spit9/a.lo2", value_text("title", same_values(100, "5")));
  write();
  std::string expected(10000, '\xEE');
  expected.replace(7352, 700, records(700, 44, '\35'));
  expected.replace(7928 + 60 * 29, 100, records(100, 12, '\35'));
  EXPECT_EQ(loadout(), expected);
}

TEST_F(LoadoutData, TwoFilesOrNoneLeaveAnAreaAlone) {
  model("Spit9/a.lo1", value_text("title", same_values(44, "5")));
  model("Spit9/b.lo1", value_text("title", same_values(44, "5")));
  const LoadOutOutcome outcome = write();
  EXPECT_FALSE(outcome.first_area);
  EXPECT_FALSE(outcome.second_area);
  EXPECT_EQ(loadout(), std::string(10000, '\xEE'));
}

TEST_F(LoadoutData, NoFilesCreateNothing) {
  files->remove_file(folder.path("loadout.dat"));
  write();
  EXPECT_FALSE(folder.has("loadout.dat"));
}

TEST_F(LoadoutData, TitleAloneWritesNothingButCreatesAMissingFile) {
  model("Spit9/a.lo1", "title\r\n");
  write();
  EXPECT_EQ(loadout(), std::string(10000, '\xEE'));
  files->remove_file(folder.path("loadout.dat"));
  write();
  EXPECT_EQ(loadout(), "");
}

TEST_F(LoadoutData, MissingFileIsCreatedZeroFilledBeforeTheArea) {
  files->remove_file(folder.path("loadout.dat"));
  model("Spit9/a.lo1", "title\r\n1\r\n2\r\n3");
  write();
  EXPECT_EQ(loadout(), "\0\0\0\0\0\2\3"s);
}

TEST_F(LoadoutData, FileWithoutATitleIsReadPastItsEnd) {
  model("Spit9/a.lo1", "");
  const std::string report = error();
  EXPECT_NE(report.find("read line 1 of"), std::string::npos) << report;
  EXPECT_NE(report.find("a.lo1"), std::string::npos) << report;
  EXPECT_NE(report.find("it has 0 lines"), std::string::npos) << report;
}

TEST_F(LoadoutData, NumberThirtyIsABadPositionAndCreatesTheFile) {
  set_record("30");
  files->remove_file(folder.path("loadout.dat"));
  model("Spit9/a.lo1", value_text("title", same_values(44, "5")));
  const std::string report = error();
  EXPECT_NE(report.find("loadout.dat"), std::string::npos) << report;
  EXPECT_NE(report.find("bad position 0"), std::string::npos) << report;
  EXPECT_NE(report.find("column PlnDat of row 1, slot P38H"), std::string::npos) << report;
  EXPECT_EQ(loadout(), "");
}

TEST_F(LoadoutData, NumberThirtyWithATitleAloneIsNoError) {
  set_record("30");
  model("Spit9/a.lo1", "title\r\n");
  EXPECT_EQ(error(), "");
}

TEST_F(LoadoutData, NumbersOutsideTheTableAreASubscriptError) {
  model("Spit9/a.lo1", "title\r\n");
  for (const char* number : {"31", "32767", "-1"}) {
    set_record(number);
    const std::string report = error();
    EXPECT_NE(report.find("subscript " + std::string(number)), std::string::npos) << report;
    EXPECT_NE(report.find("column PlnDat of row 1, slot P38H"), std::string::npos) << report;
  }
}

TEST_F(LoadoutData, SecondAreaKnowsNoTableAndWritesPastTheLastNumber) {
  set_record("40");
  model("Spit9/a.lo2", value_text("title", same_values(12, "5")));
  write();
  std::string expected(10328 + 12, '\0');
  expected.replace(0, 10000, std::string(10000, '\xEE'));
  expected.replace(10328, 12, records(12, 12, '\50'));
  EXPECT_EQ(loadout(), expected);
}

TEST_F(LoadoutData, SecondAreaOfANumberBelowZeroOverflowsTheByteOfTheNumber) {
  set_record("-133");
  model("Spit9/a.lo2", "title\r\n5\r\n");
  const std::string report = error();
  EXPECT_NE(report.find("overflow: -133"), std::string::npos) << report;
  EXPECT_EQ(loadout(), std::string(10000, '\xEE'));
}

TEST_F(LoadoutData, ValueOutsideAByteStopsThereAndKeepsWhatWasWritten) {
  model("Spit9/a.lo1", "title\r\n1\r\n2\r\n256\r\n4\r\n");
  const std::string report = error();
  EXPECT_NE(report.find("line 4 of"), std::string::npos) << report;
  EXPECT_NE(report.find("a.lo1"), std::string::npos) << report;
  EXPECT_NE(report.find("overflow: 256"), std::string::npos) << report;
  EXPECT_EQ(loadout().substr(4, 3), "\0\2\xEE"s);
}

TEST_F(LoadoutData, ValueThatTheNumberReplacesMayBeAnything) {
  model("Spit9/a.lo1", "title\r\n99999\r\n2\r\n");
  EXPECT_EQ(error(), "");
  EXPECT_EQ(loadout().substr(4, 2), "\0\2"s);
}

}  // namespace
}  // namespace vorlund
