// The text form of an aircraft set, line by line.
#include "aircraft/plane_record.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/action_error.h"
#include "base/text.h"
#include "support/recording_status.h"
#include "support/scarce_memory.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::string_literals;

const std::string kHeaderLine =
    "Slot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel %\r\n";

TEST(PlaneRecord, TableWithoutUsedRowsHasThirtyTwoLines) {
  const std::string bytes = compose_plane_set(PlaneTable());
  EXPECT_TRUE(
      bytes.starts_with("\r\n" + kHeaderLine + "P38H\t\t\t\t\t\t\t\t\t\r\nP38J\t\t\t\t\t\t\t\t\t\r\n"));
  EXPECT_TRUE(bytes.ends_with("\r\nV1V1\t\t\t\t\t\t\t\t\t\r\n"));
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 32);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\t'), 31 * 9);
}

TEST(PlaneRecord, WritesGroupAndCellsInTheCodePage) {
  PlaneTable table;
  table.flight_model_group = "\u00C9t\u00E9 1944";
  table.set_row(1, {"P38H", "RAF", "Fran\u00E7ais", "0", "P38", "Lightning", "American", "Yes", "F/B", "75"});
  const std::string bytes = compose_plane_set(table);
  EXPECT_EQ(bytes.substr(0, bytes.find("P38J")), "\xC9t\xE9 1944\r\n" + kHeaderLine +
                                                     "P38H\tRAF\tFran\xE7"
                                                     "ais\t0\tP38\tLightning\tAmerican\tYes\tF/B\t75\r\n");
}

TEST(PlaneRecord, WritingAndReadingBackGivesTheSameTable) {
  PlaneTable table;
  table.flight_model_group = "1944 \u20AC";
  for (int row = 1; row < PlaneTable::kRows; row += 3) {
    for (int column = 1; column < PlaneTable::kColumns; ++column) {
      table.set_cell(row, column, std::to_string(row) + " \u00E9 " + std::to_string(column));
    }
  }
  PlaneTable read;
  parse_plane_set(compose_plane_set(table), read);
  EXPECT_EQ(read.flight_model_group, "1944 \u20AC");
  ASSERT_EQ(read.row_count(), 31);
  for (int row = 0; row < 31; ++row) EXPECT_EQ(read.cells(row), table.cells(row)) << row;
  EXPECT_EQ(read.shown_slots(), (std::vector<int>{1, 4, 7, 10, 13, 16, 19, 22, 25, 28}));
}

TEST(PlaneRecord, MissingRowsAreWrittenWithEmptyCells) {
  PlaneTable table;
  table.clear();
  table.flight_model_group = "G";
  const std::string bytes = compose_plane_set(table);
  std::string expected = "G\r\n";
  for (int row = 0; row < 31; ++row) expected += "\t\t\t\t\t\t\t\t\t\r\n";
  EXPECT_EQ(bytes, expected);
}

TEST(PlaneRecord, RowsPastTheThirtiethSlotAreNotWritten) {
  PlaneTable table;
  table.add_row({"more"});
  EXPECT_EQ(compose_plane_set(table), compose_plane_set(PlaneTable()));
}

TEST(PlaneRecord, ReadsWhatAHandLeft) {
  struct Case {
    const char* what;
    std::string bytes;
    std::string group;
    int rows;
    std::string last_cell;
  };
  const Case cases[] = {
      {"empty file", "", "", 1, "Fuel %"},
      {"group alone", "1944\r\n", "1944", 1, "Fuel %"},
      {"group without a line end", "1944", "1944", 1, "Fuel %"},
      {"header alone", "1944\r\n" + kHeaderLine, "1944", 1, "Fuel %"},
      {"short row", "1944\r\n" + kHeaderLine + "P38H\tRAF\r\n", "1944", 2, ""},
      {"no line end at the end", "1944\r\n" + kHeaderLine + "P38H\t1\t2\t3\t4\t5\t6\t7\t8\t9", "1944", 2,
       "9"},
      {"too many cells", "1944\r\n" + kHeaderLine + "P38H\t1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\r\n", "1944", 2,
       "9"},
      {"line feeds alone", "1944\n" + kHeaderLine + "P38H\t1\t2\t3\t4\t5\t6\t7\t8\t9\n", "1944", 2, "9"},
      {"NUL bytes",
       "19\0"
       "44\r\n"s +
           kHeaderLine + "P38H\t1\t2\t3\t4\t5\t6\t7\t8\t9\0\r\n"s,
       "19\0"
       "44"s,
       2, "9\0"s},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.what);
    PlaneTable table;
    parse_plane_set(test.bytes, table);
    EXPECT_EQ(table.flight_model_group, test.group);
    ASSERT_EQ(table.row_count(), test.rows);
    EXPECT_EQ(table.cell(test.rows - 1, PlaneTable::kFuel), test.last_cell);
    EXPECT_EQ(table.current_row, 0);
  }
}

TEST(PlaneRecord, OverlongRecordsAndLinesAreRead) {
  std::string bytes = "1944\r\n" + kHeaderLine;
  for (int row = 0; row < 100000; ++row) bytes += "P38H\tRAF\r\n";
  bytes += std::string(3'000'000, 'x');
  PlaneTable table;
  parse_plane_set(bytes, table);
  EXPECT_EQ(table.row_count(), 100002);
  EXPECT_EQ(table.cell(100001, 0).size(), 3'000'000u);
  EXPECT_EQ(table.shown_slots().size(), 30u);
}

TEST(PlaneRecord, IsReplacedWholeInTheStore) {
  const test::TemporaryFolder folder;
  folder.write("~Vorlund/CurrentPlaneSet.txt", std::string(100'000, 'o'));
  const auto files = make_platform_file_system();
  const GameFolder game{*files, folder.path()};
  test::RecordingStatus status;
  PlaneTable table;
  table.flight_model_group = "1944";
  SavePS(game, table);
  EXPECT_EQ(folder.read("~Vorlund/CurrentPlaneSet.txt"), compose_plane_set(table));
  PlaneTable read;
  read_plane_set(*files, folder.path("~Vorlund\\CurrentPlaneSet.txt"), read);
  EXPECT_EQ(read.flight_model_group, "1944");
}

TEST(PlaneRecord, StoreThatDoesNotExistIsAnError) {
  const test::TemporaryFolder folder;
  const auto files = make_platform_file_system();
  const GameFolder game{*files, folder.path()};
  test::RecordingStatus status;
  EXPECT_THROW(SavePS(game, PlaneTable()), ActionError);
}

TEST(PlaneRecord, ForWhichMemoryDoesNotSufficeIsAnErrorThatNamesIt) {
  const test::TemporaryFolder folder;
  std::string bytes = "1944\r\n";
  for (int row = 0; row < 2000000; ++row) bytes += "P38H\tRAF\r\n";
  folder.write("record.txt", bytes);
  const auto files = make_platform_file_system();
  const std::string path = folder.path("record.txt");
  PlaneTable table;
  EXPECT_OUT_OF_MEMORY(std::size_t{24} << 20, path, [&] { read_plane_set(*files, path, table); });
}

}  // namespace
}  // namespace vorlund
