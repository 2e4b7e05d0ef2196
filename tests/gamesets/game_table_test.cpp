// The look of the game table and its row commands.
#include "gamesets/game_table.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace vorlund {
namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

GameTable table_of(const Rows& rows) {
  GameTable table;
  for (const auto& [group, folder] : rows) table.add_row({group, folder});
  table.g2update();
  return table;
}

Rows rows_of(const GameTable& table) {
  Rows rows;
  for (int row = 1; row < table.row_count(); ++row) {
    rows.emplace_back(table.cell(row, GameTable::kGroup), table.cell(row, GameTable::kFolder));
  }
  return rows;
}

std::vector<bool> hidden_rows(const GameTable& table) {
  std::vector<bool> hidden;
  for (int row = 0; row < table.row_count(); ++row) hidden.push_back(table.is_hidden(row));
  return hidden;
}

TEST(GameTable, BeginsWithItsHeaderRowAlone) {
  const GameTable table;
  ASSERT_EQ(table.row_count(), 1);
  EXPECT_EQ(table.cell(0, 0), "Folder group");
  EXPECT_EQ(table.cell(0, 1), "Folder name");
}

TEST(GameTable, HidesClearedRowsAndShowsTheOthers) {
  const GameTable table = table_of({{"Scenery", "Winter"}, {"Sounds", ""}, {"Sky", "Dusk"}});
  EXPECT_EQ(hidden_rows(table), (std::vector<bool>{false, false, true, false}));
}

TEST(GameTable, GivesATableWithoutRowsItsHeaderBack) {
  GameTable table;
  table.clear();
  table.g2update();
  ASSERT_EQ(table.row_count(), 1);
  EXPECT_EQ(table.cell(0, 1), "Folder name");
}

TEST(GameTable, ReplacesWhateverTextsTheHeaderRowHeld) {
  GameTable table;
  table.clear();
  table.add_row({"x", ""});
  table.g2update();
  EXPECT_EQ(table.cell(0, 0), "Folder group");
  EXPECT_FALSE(table.is_hidden(0));
}

TEST(GameTable, CommandsDoNothingToATableOfTheHeaderAlone) {
  GameTable table;
  table.select(0);
  table.clear_current("");
  table.move_current_to_end();
  EXPECT_EQ(table.row_count(), 1);
  EXPECT_EQ(table.cell(0, 0), "Folder group");
}

TEST(GameTable, CommandsDoNothingWithoutASelectedRow) {
  GameTable table = table_of({{"Scenery", "Winter"}});
  table.select(0);
  table.clear_current("Scenery");
  table.move_current_to_end();
  EXPECT_EQ(rows_of(table), (Rows{{"Scenery", "Winter"}}));
}

TEST(GameTable, TakesARowThatIsNotThereAsNoSelection) {
  GameTable table = table_of({{"Scenery", "Winter"}});
  for (const int row : {-1, 2, 1000}) {
    table.select(row);
    EXPECT_EQ(table.current_row, 0) << row;
  }
}

TEST(GameTable, ClearingARowKeepsItsGroupAndHidesIt) {
  GameTable table = table_of({{"Scenery", "Winter"}, {"Sky", "Dusk"}});
  table.select(1);
  table.clear_current("Tweaks");
  EXPECT_EQ(rows_of(table), (Rows{{"Scenery", ""}, {"Sky", "Dusk"}}));
  EXPECT_EQ(hidden_rows(table), (std::vector<bool>{false, true, false}));
}

TEST(GameTable, ClearingARowOfTheLastGroupRemovesIt) {
  GameTable table = table_of({{"Scenery", "Winter"}, {"Tweaks", "Smoke"}, {"Sky", "Dusk"}});
  table.select(2);
  table.clear_current("Tweaks");
  EXPECT_EQ(rows_of(table), (Rows{{"Scenery", "Winter"}, {"Sky", "Dusk"}}));
}

TEST(GameTable, ComparesTheLastGroupWithCase) {
  GameTable table = table_of({{"tweaks", "Smoke"}});
  table.select(1);
  table.clear_current("Tweaks");
  EXPECT_EQ(rows_of(table), (Rows{{"tweaks", ""}}));
}

TEST(GameTable, AClearedRowStaysCurrentSoThatASecondClickClearsNothingElse) {
  GameTable table = table_of({{"A", "1"}, {"B", "2"}, {"D", "4"}});
  table.select(2);
  table.clear_current("Z");
  EXPECT_EQ(table.current_row, 2);
  table.clear_current("Z");
  EXPECT_EQ(rows_of(table), (Rows{{"A", "1"}, {"B", ""}, {"D", "4"}}));
}

TEST(GameTable, AfterRemovingARowNoneIsCurrentSoThatASecondClickRemovesNoOther) {
  GameTable table = table_of({{"Z", "1"}, {"Z", "2"}, {"Z", "3"}});
  table.select(2);
  table.clear_current("Z");
  EXPECT_EQ(table.current_row, 0);
  table.clear_current("Z");
  EXPECT_EQ(rows_of(table), (Rows{{"Z", "1"}, {"Z", "3"}}));
}

TEST(GameTable, WithoutALastGroupEveryClearedRowStays) {
  GameTable table = table_of({{"Careers", "Camp1"}, {"", "Loose"}});
  table.select(1);
  table.clear_current(std::nullopt);
  table.select(2);
  table.clear_current(std::nullopt);
  EXPECT_EQ(rows_of(table), (Rows{{"Careers", ""}, {"", ""}}));
}

TEST(GameTable, MovesTheCurrentRowBehindAllOthersAndKeepsItCurrent) {
  GameTable table = table_of({{"A", "1"}, {"B", "2"}, {"C", ""}});
  table.select(1);
  table.move_current_to_end();
  EXPECT_EQ(rows_of(table), (Rows{{"B", "2"}, {"C", ""}, {"A", "1"}}));
  EXPECT_EQ(hidden_rows(table), (std::vector<bool>{false, false, true, false}));
  EXPECT_EQ(table.current_row, 3);
}

TEST(GameTable, MovingTheLastRowLeavesTheOrder) {
  GameTable table = table_of({{"A", "1"}, {"B", "2"}});
  table.select(2);
  table.move_current_to_end();
  EXPECT_EQ(rows_of(table), (Rows{{"A", "1"}, {"B", "2"}}));
  EXPECT_EQ(table.current_row, 2);
}

}  // namespace
}  // namespace vorlund
