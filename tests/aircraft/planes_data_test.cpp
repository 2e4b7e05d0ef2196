// The aircraft record in Planes.dat, byte by byte.
#include "aircraft/planes_data.h"

#include "aircraft/aircraft_fixture.h"
#include "base/number_text.h"
#include "base/text.h"

namespace vorlund {
namespace {

using namespace std::string_literals;
using test::error_of;
using test::same_values;
using test::value_text;

/// Values 1 to 168 of a flight model; the tests change single ones by their number.
class Values {
 public:
  explicit Values(const std::string& value = "0") : values_(same_values(168, value)) {}
  Values& set(std::size_t line, const std::string& value) {
    values_[line - 1] = value;
    return *this;
  }
  std::string text() const { return value_text("  A title  ", values_); }

 private:
  std::vector<std::string> values_;
};

class PlanesData : public test::AircraftTest {
 protected:
  PlanesData() { fill_row(1, {"0", "Spit9", "Spitfire", "Allied", "No", "Fighter", "100"}); }

  /// Writes the record of a row; true where its flight model was found.
  bool write(int row) {
    PatchedFile planes_file(*files, folder.path("Planes.dat"));
    bool written = false;
    planes_file.patch([&] { written = OawWrite(game, table, row, planes_file); });
    return written;
  }

  std::string planes() const { return folder.read("Planes.dat"); }

  /// Writes row 1 with these values and gives one byte of record 0, counted from 0 in the record.
  int byte_written(const Values& values, std::size_t byte) {
    model("Spit9/spit.oaw", values.text());
    folder.write("Planes.dat", std::string(220, '\xEE'));
    write(1);
    return static_cast<unsigned char>(planes().at(4 + byte));
  }

  std::string error(int row = 1) {
    return error_of([&] { write(row); });
  }
};

TEST_F(PlanesData, WritesExactlyTheFirst168BytesOfItsRecord) {
  struct Case {
    const char* number;
    std::size_t first;
    std::size_t last;
  };
  const Case cases[] = {{"0", 4, 171}, {"7", 1516, 1683}, {"29", 6268, 6435}, {"30", 6484, 6651}};
  model("Spit9/spit.oaw", Values("9").text());
  table.set_cell(1, PlaneTable::kSide, "German");
  table.set_cell(1, PlaneTable::kRole, "");
  for (const Case& test : cases) {
    SCOPED_TRACE(test.number);
    folder.write("Planes.dat", std::string(7000, '\xEE'));
    table.set_cell(1, PlaneTable::kRecordNumber, test.number);
    EXPECT_EQ(write(1), true);
    std::string expected(7000, '\xEE');
    expected.replace(test.first, 168, std::string(168, '\x09'));
    expected[test.first + 4] = '\x88';  // 9 + 128, low three bits replaced by 0
    expected[test.first + 5] = '\x08';  // 9, low two bits replaced by 0
    expected.replace(test.last - 3, 4, "P38H");
    EXPECT_EQ(planes(), expected);
  }
}

TEST_F(PlanesData, CreatesAMissingFileZeroFilledBeforeTheRecord) {
  model("Spit9/spit.oaw", Values("1").text());
  table.set_cell(1, PlaneTable::kRecordNumber, "1");
  table.set_cell(1, PlaneTable::kFlyable, "");
  table.set_cell(1, PlaneTable::kRole, "");
  write(1);
  std::string expected(220, '\0');
  expected += "\1\1\1\1\0\3"s + std::string(158, '\1') + "P38H"s;
  EXPECT_EQ(planes(), expected);
}

TEST_F(PlanesData, FlagsCarrySideRoleAndFlyable) {
  struct Case {
    const char* value;
    const char* side;
    const char* role;
    const char* flyable;
    int expected;
  };
  const Case cases[] = {
      {"3", "German", "", "No", 128},    // 131, low bits replaced
      {"200", "Allied", "", "No", 72},   // 200 - 128
      {"127", "German", "", "No", 120},  // both tests are strict
      {"127", "Allied", "", "No", 120},
      {"128", "German", "", "No", 128},
      {"128", "Allied", "", "No", 0},
      {"126", "German", "", "No", 248},
      {"126", "Allied", "", "No", 120},
      {"255", "British", "", "No", 120},
      {"255", "German", "", "No", 248},
      {"72", "Allied", "F/B", "Yes", 79},
      {"72", "Allied", "Fighter", "No", 73},
      {"72", "Allied", "Bomber", "No", 74},
      {"72", "Allied", "fighter", "yes", 72},  // compared with case
      {"72", "Allied", "", "Yes", 76},
      {"300", "Allied", "", "No", 168},  // 172 fits after the side was taken off
      {"3", "german", "", "No", 0},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.value + " "s + test.side + " " + test.role + " " + test.flyable);
    fill_row(1, {"0", "Spit9", "", test.side, test.flyable, test.role, "100"});
    EXPECT_EQ(byte_written(Values().set(5, test.value), 4), test.expected);
  }
}

TEST_F(PlanesData, SideCodeReplacesTheLowBitsButBritishAddsTheFlagsCode) {
  struct Case {
    const char* value;
    const char* side;
    const char* role;
    const char* flyable;
    int expected;
  };
  const Case cases[] = {
      {"7", "German", "F/B", "Yes", 4},      {"7", "American", "F/B", "Yes", 6},
      {"7", "Allied", "F/B", "Yes", 7},      {"7", "Britsh", "F/B", "Yes", 5},
      {"7", "British", "Fighter", "Yes", 9},  // 5 + 4 x 1: role and flyable, not a side
      {"7", "British", "F/B", "Yes", 11},    {"7", "British", "", "No", 4},
      {"7", "Bulgarian", "Bomber", "No", 6}, {"250", "British", "F/B", "Yes", 255},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.value + " "s + test.side + " " + test.role + " " + test.flyable);
    fill_row(1, {"0", "Spit9", "", test.side, test.flyable, test.role, "100"});
    EXPECT_EQ(byte_written(Values().set(6, test.value), 5), test.expected);
  }
}

TEST_F(PlanesData, FuelIsScaledAsOneQuantityOfTwoBytes) {
  struct Case {
    const char* low;
    const char* high;
    const char* percent;
    int expected_low;
    int expected_high;
  };
  const Case cases[] = {
      {"16", "39", "50", 136, 19},  // 10000 gives 5000
      {"16", "39", "100", 16, 39},     {"16", "39", "", 0, 0},          {"16", "39", "50.9", 136, 19},
      {"16", "39", "75 %", 76, 29},    {"255", "255", "100", 255, 255}, {"1", "0", "50", 0, 0},
      {"255", "127", "200", 254, 255},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.low + " "s + test.high + " at " + test.percent);
    table.set_cell(1, PlaneTable::kFuel, test.percent);
    EXPECT_EQ(byte_written(Values().set(37, test.low).set(38, test.high), 36), test.expected_low);
    EXPECT_EQ(static_cast<unsigned char>(planes()[4 + 37]), test.expected_high);
  }
}

TEST_F(PlanesData, FuelPastSixteenBitsIsAnOverflowAfterItsLowByte) {
  table.set_cell(1, PlaneTable::kFuel, "101");
  model("Spit9/spit.oaw", Values().set(37, "255").set(38, "255").text());
  const std::string report = error();
  EXPECT_NE(report.find("spit.oaw"), std::string::npos) << report;
  EXPECT_NE(report.find("lines 38 and 39"), std::string::npos) << report;
  EXPECT_NE(report.find("overflow: 66190"), std::string::npos) << report;
  EXPECT_NE(report.find("column Fuel % of row 1, slot P38H"), std::string::npos) << report;
  EXPECT_EQ(static_cast<unsigned char>(planes()[4 + 36]), 66190 % 256);
  EXPECT_EQ(static_cast<unsigned char>(planes()[4 + 37]), 255) << "still the byte of line 39";
}

TEST_F(PlanesData, NegativeFuelIsAnOverflow) {
  table.set_cell(1, PlaneTable::kFuel, "-50");
  model("Spit9/spit.oaw", Values().set(37, "16").set(38, "39").text());
  EXPECT_NE(error().find("overflow: -5000"), std::string::npos);
}

TEST_F(PlanesData, FuelThatSixteenBitsCannotHoldEndsBeforeAnythingIsWritten) {
  model("Spit9/spit.oaw", Values().text());
  for (const std::string fuel : {"32768", "-32769"}) {
    table.set_cell(1, PlaneTable::kFuel, fuel);
    EXPECT_NE(error().find("overflow: \"" + fuel + "\""), std::string::npos);
    EXPECT_FALSE(folder.has("Planes.dat"));
  }
}

TEST_F(PlanesData, ValuesAreRoundedToTheNearestAndHalvesToTheEvenByte) {
  struct Case {
    const char* value;
    int expected;
  };
  const Case cases[] = {{"0.5", 0},     {"1.5", 2}, {"2.5", 2}, {"254.5", 254}, {"255.4", 255}, {"-0.5", 0},
                        {"  12 x", 12}, {"\t7", 7}, {"", 0},    {"plane", 0},   {"1e2", 100},   {"+3", 3}};
  for (const Case& test : cases) {
    EXPECT_EQ(byte_written(Values().set(1, test.value), 0), test.expected) << test.value;
  }
}

TEST_F(PlanesData, ValueOutsideAByteStopsThereAndKeepsWhatWasWritten) {
  for (const char* value : {"256", "255.5", "-1", "1e300", "-1e300"}) {
    SCOPED_TRACE(value);
    folder.write("Planes.dat", std::string(300, '\xEE'));
    model("Spit9/spit.oaw", Values("1").set(10, value).text());
    const std::string report = error();
    EXPECT_NE(report.find("line 11 of"), std::string::npos) << report;
    EXPECT_NE(report.find("spit.oaw"), std::string::npos) << report;
    EXPECT_NE(report.find("overflow: "), std::string::npos) << report;
    EXPECT_EQ(planes().substr(4, 10), "\1\1\1\1\1\3\1\1\1\xEE");
    EXPECT_EQ(planes().size(), 300u);
  }
}

TEST_F(PlanesData, ShortFileIsReadPastItsEndAfterItsLastLine) {
  for (const std::size_t lines : {0u, 1u, 2u, 168u}) {
    SCOPED_TRACE(lines);
    folder.write("Planes.dat", std::string(300, '\xEE'));
    model("Spit9/spit.oaw", lines == 0 ? "" : value_text("title", same_values(lines - 1, "8")));
    const std::string report = error();
    EXPECT_NE(report.find("read line " + std::to_string(lines + 1) + " of"), std::string::npos) << report;
    EXPECT_NE(report.find("read past the end: it has " + std::to_string(lines) + " lines"),
              std::string::npos);
    const std::size_t written = lines == 0 ? 0 : lines - 1;
    EXPECT_EQ(planes()[4 + written], '\xEE');
    if (written > 0) {
      EXPECT_NE(planes()[4 + written - 1], '\xEE');
    }
  }
}

TEST_F(PlanesData, LinesAfterTheLastValueHaveNoEffect) {
  EXPECT_EQ(byte_written(Values("1"), 0), 1);
  const std::string expected = planes();
  folder.write("Planes.dat", std::string(220, '\xEE'));
  model("Spit9/spit.oaw", Values("1").text() + "9999\r\nanything\r\n");
  write(1);
  EXPECT_EQ(planes(), expected);
}

TEST_F(PlanesData, ShortSlotCodeIsAnInvalidArgumentAfterItsCharacters) {
  model("Spit9/spit.oaw", Values("1").text());
  for (const std::size_t length : {0u, 1u, 3u}) {
    SCOPED_TRACE(length);
    folder.write("Planes.dat", std::string(220, '\xEE'));
    const std::string code = std::string("ABCD").substr(0, length);
    table.set_cell(1, PlaneTable::kSlot, code);
    const std::string report = error();
    EXPECT_NE(report.find("column Slot of row 1"), std::string::npos) << report;
    EXPECT_NE(report.find("invalid argument: \"" + code + "\" is shorter than 4 characters"),
              std::string::npos)
        << report;
    EXPECT_EQ(planes().substr(4 + 164, length + 1), code + "\xEE");
  }
}

TEST_F(PlanesData, SlotCodeIsWrittenInTheCodePageFourCharactersAtMost) {
  model("Spit9/spit.oaw", Values("1").text());
  table.set_cell(1, PlaneTable::kSlot, "\u00E9\u20ACcdefgh");
  write(1);
  EXPECT_EQ(planes().substr(4 + 164),
            "\xE9\x80"
            "cd");
}

TEST_F(PlanesData, NegativeRecordNumberIsABadPosition) {
  model("Spit9/spit.oaw", Values("1").text());
  folder.write("Planes.dat", "untouched");
  table.set_cell(1, PlaneTable::kRecordNumber, "-1");
  const std::string report = error();
  EXPECT_NE(report.find("Planes.dat"), std::string::npos) << report;
  EXPECT_NE(report.find("bad position -211"), std::string::npos) << report;
  EXPECT_NE(report.find("column PlnDat of row 1, slot P38H"), std::string::npos) << report;
  EXPECT_EQ(planes(), "untouched");
}

TEST_F(PlanesData, HugeRecordNumberIsAnOverflow) {
  model("Spit9/spit.oaw", Values("1").text());
  table.set_cell(1, PlaneTable::kRecordNumber, "99999999");
  EXPECT_NE(error().find("overflow: \"99999999\""), std::string::npos);
  EXPECT_FALSE(folder.has("Planes.dat"));
}

TEST_F(PlanesData, FolderWithoutAFlightModelIsPassedOverButStaysSelected) {
  folder.make_folder("~Vorlund/FlightModels/1944/Spit9");
  EXPECT_EQ(write(1), false);
  EXPECT_FALSE(folder.has("Planes.dat"));
  table.set_cell(1, PlaneTable::kScriptFolder, "Missing");
  EXPECT_EQ(write(1), false);
}

TEST_F(PlanesData, TakesTheFirstOfSeveralFilesWithoutRegardToCase) {
  model("Spit9/b.oaw", Values("2").text());
  model("Spit9/A.OAW", Values("1").text());
  write(1);
  EXPECT_EQ(planes()[4], '\1');
}

TEST_F(PlanesData, EmptyScriptFolderMeansTheGroupItself) {
  model("group.oaw", Values("6").text());
  table.set_cell(1, PlaneTable::kScriptFolder, "");
  EXPECT_EQ(write(1), true);
  EXPECT_EQ(planes()[4], '\6');
}

TEST_F(PlanesData, AnEmptyGroupIsTheFolderOfAllGroups) {
  folder.write("~Vorlund/FlightModels/stray.oaw", Values("6").text());
  folder.write("~Vorlund/FlightModels/Spit9/spit.oaw", Values("7").text());
  table.flight_model_group = "";
  for (const auto& [name, byte] : {std::pair("", '\6'), std::pair("Spit9", '\7')}) {
    table.set_cell(1, PlaneTable::kScriptFolder, name);
    EXPECT_EQ(write(1), true) << name;
    EXPECT_EQ(folder.read("Planes.dat")[4], byte) << name;
  }
}

TEST_F(PlanesData, AFlightModelIsReadAsFarAsItsLinesWhateverFollows) {
  const std::string lines = Values("6").text();
  model("Spit9/spit.oaw", lines);
  EXPECT_EQ(error(), "");
  const std::string expected = folder.read("Planes.dat");
  folder.write("Planes.dat", "");
  std::string long_lines;
  for (const std::string_view line : split_lines(lines)) {
    long_lines.append(line).append(" ").append(50'000, 'x').append("\r\n");
  }
  model("Spit9/spit.oaw", long_lines + std::string(3 << 20, '\n') + "what follows is ignored");
  EXPECT_EQ(error(), "");
  EXPECT_EQ(folder.read("Planes.dat"), expected);
}

TEST(NumberText, SpellsNumbersAsAPersonWould) {
  EXPECT_EQ(number_text(300), "300");
  EXPECT_EQ(number_text(-1), "-1");
  EXPECT_EQ(number_text(255.5), "255.5");
  EXPECT_EQ(number_text(1e300), "1e+300");
}

}  // namespace
}  // namespace vorlund
