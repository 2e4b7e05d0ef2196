// The text form of the game table, byte for byte.
#include "gamesets/game_record.h"

#include <gtest/gtest.h>

#include <string>

#include "base/code_page.h"
#include "support/recording_status.h"
#include "support/scarce_memory.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::string_literals;

class GameRecord : public ::testing::Test {
 protected:
  GameTable read(std::string_view bytes) {
    folder.write("record.txt", bytes);
    GameTable table;
    table.add_row({"left", "over"});
    read_game_set(*files, folder.path("record.txt"), table);
    return table;
  }

  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
};

TEST_F(GameRecord, AnEmptyTableGivesAFileOfOneLine) {
  write_game_set(*files, folder.path("record.txt"), GameTable());
  EXPECT_EQ(folder.read("record.txt"), "Folder group\tFolder name\r\n");
}

TEST_F(GameRecord, WritesEveryRowClearedOnesTooInTheCodePage) {
  GameTable table;
  table.add_row({"Scenery", "Winter \xC3\xA9t\xC3\xA9"});
  table.add_row({"Sounds", ""});
  write_game_set(*files, folder.path("record.txt"), table);
  EXPECT_EQ(folder.read("record.txt"), "Folder group\tFolder name\r\nScenery\tWinter " +
                                           encode_text("\xC3\xA9t\xC3\xA9") + "\r\nSounds\t\r\n");
}

TEST_F(GameRecord, ReplacesTheOldFileWhole) {
  folder.write("record.txt", std::string(5000, 'x'));
  write_game_set(*files, folder.path("record.txt"), GameTable());
  EXPECT_EQ(folder.read("record.txt"), "Folder group\tFolder name\r\n");
}

TEST_F(GameRecord, SaveGSWritesTheRecordOfTheInstalledSet) {
  folder.make_folder("~Vorlund");
  const GameFolder game{*files, folder.path()};
  test::RecordingStatus status;
  SaveGS(game, GameTable());
  EXPECT_EQ(folder.read("~Vorlund/CurrentGameSet.txt"), "Folder group\tFolder name\r\n");
}

TEST_F(GameRecord, ReadsBackWhatItWrote) {
  const GameTable table =
      read("Folder group\tFolder name\r\nScenery\t" + encode_text("\xC3\x89t\xC3\xA9") + "\r\nSky\t\r\n");
  ASSERT_EQ(table.row_count(), 3);
  EXPECT_EQ(table.cell(1, 0), "Scenery");
  EXPECT_EQ(table.cell(1, 1), "\xC3\x89t\xC3\xA9");
  EXPECT_TRUE(table.is_hidden(2));
  EXPECT_EQ(table.current_row, 0);
}

TEST_F(GameRecord, YieldsALastRowWithoutALineEnd) {
  const GameTable table = read("Folder group\tFolder name\r\nSky\tDusk");
  ASSERT_EQ(table.row_count(), 2);
  EXPECT_EQ(table.cell(1, 1), "Dusk");
}

TEST_F(GameRecord, ALineWithoutATabGivesAHiddenRow) {
  const GameTable table = read("Folder group\tFolder name\r\nSky Dusk\r\n");
  ASSERT_EQ(table.row_count(), 2);
  EXPECT_EQ(table.cell(1, 0), "Sky Dusk");
  EXPECT_EQ(table.cell(1, 1), "");
  EXPECT_TRUE(table.is_hidden(1));
}

TEST_F(GameRecord, DropsWhatFollowsASecondTab) {
  const GameTable table = read("Folder group\tFolder name\r\nSky\tDusk\tmore\tand more\r\n");
  EXPECT_EQ(table.cells(1), (std::vector<std::string>{"Sky", "Dusk"}));
}

TEST_F(GameRecord, OfTheHeaderLineAloneGivesATableWithoutDataRows) {
  EXPECT_EQ(read("Folder group\tFolder name\r\n").row_count(), 1);
}

TEST_F(GameRecord, OfNoLineAtAllGivesATableWithItsHeader) {
  const GameTable table = read("");
  ASSERT_EQ(table.row_count(), 1);
  EXPECT_EQ(table.cell(0, 0), "Folder group");
}

TEST_F(GameRecord, SurvivesNulBytesAndOverlongLines) {
  const GameTable table = read("h\th\r\nSky\tDu\0sk\r\n"s + std::string(3'000'000, 'g') + "\tname\r\n");
  ASSERT_EQ(table.row_count(), 3);
  EXPECT_EQ(table.cell(1, 1), "Du\0sk"s);
  EXPECT_EQ(table.cell(2, 0).size(), 3'000'000U);
}

TEST_F(GameRecord, HoldsAHundredThousandRows) {
  std::string bytes = "Folder group\tFolder name\r\n";
  for (int row = 0; row < 100'000; ++row) bytes += "Sky\tDusk " + std::to_string(row) + "\r\n";
  const GameTable table = read(bytes);
  ASSERT_EQ(table.row_count(), 100'001);
  EXPECT_EQ(table.cell(100'000, 1), "Dusk 99999");
  write_game_set(*files, folder.path("again.txt"), table);
  EXPECT_EQ(folder.read("again.txt"), bytes);
}

TEST(LongGameRecord, ForWhichMemoryDoesNotSufficeIsAnErrorThatNamesIt) {
  const test::TemporaryFolder folder;
  std::string bytes;
  for (int row = 0; row < 4000000; ++row) bytes += "A\tB\r\n";
  folder.write("record.txt", bytes);
  const auto files = make_platform_file_system();
  const std::string path = folder.path("record.txt");
  GameTable table;
  for (const std::size_t more : {std::size_t{1} << 19, std::size_t{24} << 20}) {
    EXPECT_OUT_OF_MEMORY(more, path, [&] { read_game_set(*files, path, table); });
  }
}

}  // namespace
}  // namespace vorlund
