// The layout of pnames.str, byte by byte, and the name list.
#include "aircraft/pilot_names.h"

#include "aircraft/aircraft_fixture.h"

namespace vorlund {
namespace {

using namespace std::string_literals;
using test::error_of;
using Names = std::vector<std::string>;

/// A 16-bit value and the two 0 bytes after it.
std::string padded(int value) {
  return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8), '\0', '\0'};
}

/// Header, position table and strings as given.
std::string name_file(int length, int count, const std::vector<int>& positions, const std::string& strings) {
  std::string bytes = padded(length) + padded(count);
  for (const int position : positions) bytes += padded(position);
  return bytes + strings;
}

std::vector<int> positions_from(int first) {
  std::vector<int> positions;
  for (int index = 0; index < 30; ++index) positions.push_back(first + index);
  return positions;
}

class PilotNamesFile : public test::AircraftTest {
 protected:
  void load(const std::string& bytes) {
    folder.write("pnames.str", bytes);
    names.LoadPnames(game);
  }

  std::string saved() {
    names.SavePnames(game);
    return folder.read("pnames.str");
  }

  PilotNames names;
};

TEST_F(PilotNamesFile, ThirtyEmptyNamesGive158Bytes) {
  folder.write("pnames.str", "old");
  const std::string bytes = saved();
  EXPECT_EQ(bytes.size(), 158u);
  EXPECT_EQ(bytes, name_file(150, 30, positions_from(120), std::string(30, '\0')));
  EXPECT_EQ(bytes.substr(0, 16), "\x96\0\0\0\x1E\0\0\0\x78\0\0\0\x79\0\0\0"s);
}

TEST_F(PilotNamesFile, NamesShiftThePositionsOfThoseThatFollow) {
  folder.write("pnames.str", "old");
  names.PNameList = {"A", "Camel!"};
  std::vector<int> positions = {120, 122};
  for (int index = 2; index < 30; ++index) positions.push_back(129 + index - 2);
  EXPECT_EQ(saved(), name_file(157, 30, positions, "A\0Camel!\0"s + std::string(28, '\0')));
}

TEST_F(PilotNamesFile, NamesAreTrimmedInTheFileAndInTheList) {
  folder.write("pnames.str", "old");
  names.PNameList = {"  Spit  fire  ", "   ", "\tTab "};
  const std::string bytes = saved();
  EXPECT_EQ(bytes.substr(128, 18), "Spit  fire\0\0\tTab\0\0"s);
  EXPECT_EQ(names.name(0), "Spit  fire");
  EXPECT_EQ(names.name(1), "");
  EXPECT_EQ(names.name(2), "\tTab");
  EXPECT_EQ(names.PNameList.size(), 30u);
}

TEST_F(PilotNamesFile, NamesAreCountedInBytesOfTheCodePage) {
  folder.write("pnames.str", "old");
  names.PNameList = {"\u00C9clair \u20AC", "next"};
  const std::string bytes = saved();
  EXPECT_EQ(bytes.substr(128, 14),
            "\xC9"
            "clair \x80\0next\0"s);
  EXPECT_EQ(bytes.substr(12, 2), "\x81\0"s) << "the second name stands at 120 + 9";
}

TEST_F(PilotNamesFile, WritingAndReadingBackGivesTheSameNames) {
  Names expected;
  for (int index = 0; index < 30; ++index) expected.push_back("Name \u00E9 " + std::to_string(index * index));
  folder.write("pnames.str", "old");
  names.PNameList = expected;
  const std::string bytes = saved();
  PilotNames read;
  read.LoadPnames(game);
  EXPECT_EQ(read.PNameList, expected);
  read.SavePnames(game);
  EXPECT_EQ(folder.read("pnames.str"), bytes);
}

TEST_F(PilotNamesFile, StringsMayStandInAnyOrder) {
  std::vector<int> positions(30, 120);
  positions[1] = 125;
  positions[29] = 122;
  load(name_file(130, 30, positions, "First\0Last\0"s));
  EXPECT_EQ(names.name(0), "First");
  EXPECT_EQ(names.name(1), "");
  EXPECT_EQ(names.name(28), "First");
  EXPECT_EQ(names.name(29), "rst");
}

TEST_F(PilotNamesFile, MissingFileChangesNothingAndIsNeverCreated) {
  names.PNameList = {"  kept  "};
  names.LoadPnames(game);
  names.SavePnames(game);
  EXPECT_EQ(names.PNameList, Names{"  kept  "});
  EXPECT_FALSE(folder.has("pnames.str"));
}

TEST_F(PilotNamesFile, NameWithAZeroByteEndsEarlyWhenReadBack) {
  folder.write("pnames.str", "old");
  names.PNameList = {"ab\0cd"s, "next"};
  saved();
  names.LoadPnames(game);
  EXPECT_EQ(names.name(0), "ab");
  EXPECT_EQ(names.name(1), "next");
}

TEST_F(PilotNamesFile, DamagedFileGivesTheNamesThatCanBeRead) {
  struct Case {
    const char* what;
    std::string bytes;
    Names first;  // the names from index 0; all others are blank
  };
  std::vector<int> positions = positions_from(125);
  positions[0] = 120;
  positions[1] = 30000;
  positions[2] = 122;
  const std::string whole = name_file(160, 30, positions, "One\0\0"s + std::string(29, '\0'));
  const Case cases[] = {
      {"empty", "", {}},
      {"cut in the header", "\x96\0\0\0\x1E"s, {}},
      {"cut in the table", whole.substr(0, 8 + 4 * 15), {}},
      {"cut in a string", whole.substr(0, 130), {"On"}},
      {"string without its end", whole.substr(0, 131), {"One", "", "e"}},
      {"position past the end", whole, {"One", "", "e"}},
      {"count 0", name_file(160, 0, positions, "One\0"s), {}},
      {"count 1", name_file(160, 1, positions, "One\0"s), {"One"}},
      {"count 1000", name_file(160, 1000, positions, "One\0"s), {"One", "", "e"}},
      {"length field means nothing", name_file(3, 30, positions, "One\0"s), {"One", "", "e"}},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.what);
    Names expected = test.first;
    expected.resize(30);
    load(test.bytes);
    EXPECT_EQ(names.PNameList, expected);
  }
}

TEST_F(PilotNamesFile, FieldsOf32768OrMoreAreAnOverflowThatNamesFileAndValue) {
  struct Case {
    const char* what;
    std::string bytes;
    const char* offset;
    const char* value;
  };
  std::vector<int> positions = positions_from(120);
  positions[4] = 0xFFFF;
  const Case cases[] = {
      {"length", name_file(32768, 30, positions_from(120), std::string(30, '\0')), "offset 0", "32768"},
      {"count", name_file(150, 40000, positions_from(120), std::string(30, '\0')), "offset 4", "40000"},
      {"position", name_file(150, 30, positions, std::string(30, '\0')), "offset 24", "65535"},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.what);
    names.PNameList = {"kept"};
    const std::string report = error_of([&] { load(test.bytes); });
    EXPECT_NE(report.find("pnames.str"), std::string::npos) << report;
    EXPECT_NE(report.find(test.offset), std::string::npos) << report;
    EXPECT_NE(report.find("overflow: " + std::string(test.value)), std::string::npos) << report;
    EXPECT_EQ(names.PNameList, Names{"kept"});
  }
}

TEST_F(PilotNamesFile, LargestFieldsThatFitAreRead) {
  std::vector<int> positions(30, 32767);
  load(name_file(32767, 30, positions, std::string(32767 - 120, 'x') + "far\0"s));
  EXPECT_EQ(names.name(0), "far");
  EXPECT_EQ(names.name(29), "far");
}

TEST_F(PilotNamesFile, NamesTooLongForTheLengthFieldAreAnOverflowAndTheOldFileStays) {
  folder.write("pnames.str", "old");
  names.PNameList = {std::string(32767 - 150, 'n')};
  EXPECT_EQ(saved().substr(0, 2), "\xFF\x7F");
  names.PNameList[1] = "n";
  const std::string before = folder.read("pnames.str");
  const std::string report = error_of([&] { names.SavePnames(game); });
  EXPECT_NE(report.find("overflow: names of 32768 bytes"), std::string::npos) << report;
  EXPECT_EQ(folder.read("pnames.str"), before);
}

TEST_F(PilotNamesFile, NamesOutsideTheListAreBlank) {
  EXPECT_EQ(names.name(-1), "");
  EXPECT_EQ(names.name(0), "");
  EXPECT_EQ(names.name(30), "");
}

}  // namespace
}  // namespace vorlund
