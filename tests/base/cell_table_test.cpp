// Rows and cells of a table.
#include "base/cell_table.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vorlund {
namespace {

TEST(CellTable, ARowIsCutOrFilledToTheColumns) {
  CellTable table;
  table.columns = 2;
  table.add_row({"Careers"});
  table.add_row({"Sounds", "Engines", "too much"});
  EXPECT_EQ(table.row_count(), 2);
  EXPECT_EQ(table.cells(0), (std::vector<std::string>{"Careers", ""}));
  EXPECT_EQ(table.cells(1), (std::vector<std::string>{"Sounds", "Engines"}));
  EXPECT_FALSE(table.is_hidden(0));
}

TEST(CellTable, ACellOutsideTheTableReadsAsEmpty) {
  CellTable table;
  table.columns = 1;
  table.add_row({"only"});
  EXPECT_EQ(table.cell(0, 0), "only");
  for (const auto& [row, column] : {std::pair(-1, 0), std::pair(1, 0), std::pair(0, -1), std::pair(0, 1)}) {
    EXPECT_EQ(table.cell(row, column), "") << row << ", " << column;
  }
}

TEST(CellTable, ACellCanBeSet) {
  CellTable table;
  table.columns = 2;
  table.add_row({"a", "b"});
  table.set_cell(0, 1, "changed");
  EXPECT_EQ(table.cells(0), (std::vector<std::string>{"a", "changed"}));
}

TEST(CellTable, ASettingOfOneCellLeavesAllOthers) {
  CellTable table;
  table.columns = 3;
  table.add_row({"a", "", "c"});
  table.add_row({});
  table.set_cell(1, 2, "late");
  table.set_cell(0, 0, "");
  EXPECT_EQ(table.cells(0), (std::vector<std::string>{"", "", "c"}));
  EXPECT_EQ(table.cells(1), (std::vector<std::string>{"", "", "late"}));
  EXPECT_THROW(table.set_cell(2, 0, "no such row"), std::out_of_range);
  EXPECT_THROW(table.set_cell(0, 3, "no such column"), std::out_of_range);
}

TEST(CellTable, EveryByteMayStandInACell) {
  std::string every;
  for (int byte = 0; byte < 256; ++byte) every.push_back(static_cast<char>(byte));
  constexpr std::size_t kLengths[] = {127, 128, 16383, 16384};
  CellTable table;
  table.columns = 2;
  for (const std::size_t length : kLengths) table.add_row({std::string(length, '\xFF'), every});
  int row = 0;
  for (const std::size_t length : kLengths) {
    EXPECT_EQ(table.cell(row, 0), std::string(length, '\xFF'));
    EXPECT_EQ(table.cell(row, 1), every);
    ++row;
  }
}

TEST(CellTable, ALineOfARecordBecomesARow) {
  CellTable table;
  table.columns = 2;
  table.add_lines("Sky\tDusk\tdropped\r\n\r\nCareers\n\t\xC9t\xE9\rlast\t");
  ASSERT_EQ(table.row_count(), 5);
  EXPECT_EQ(table.cells(0), (std::vector<std::string>{"Sky", "Dusk"}));
  EXPECT_EQ(table.cells(1), (std::vector<std::string>{"", ""}));
  EXPECT_EQ(table.cells(2), (std::vector<std::string>{"Careers", ""}));
  EXPECT_EQ(table.cells(3), (std::vector<std::string>{"", "\u00C9t\u00E9"}));
  EXPECT_EQ(table.cells(4), (std::vector<std::string>{"last", ""}));
}

TEST(CellTable, RowsArePackedAlikeWhereTheirCellsAreTheSame) {
  CellTable table;
  table.columns = 2;
  table.add_row({"a"});
  table.add_row({"a", ""});
  table.add_row({"", "a"});
  table.add_lines("a\t\r\n");
  const auto packed = [&](std::size_t row) { return table.rows().packed(row); };
  EXPECT_EQ(packed(0), packed(1));
  EXPECT_EQ(packed(0), packed(3));
  EXPECT_NE(packed(0), packed(2));
}

TEST(CellTable, RowsStayAsTheyWereWhateverBecomesOfTheTable) {
  CellTable table;
  table.columns = 1;
  const auto names = [&] {
    std::string text;
    for (int row = 0; row < table.row_count(); ++row) text += table.cell(row, 0) + " ";
    return text;
  };
  for (const char* name : {"a", "b", "c", "d"}) table.add_row({name});
  const CellTable::Rows middle = table.rows().part(1, 2);
  const CellTable::Rows all = table.rows();
  table.set_cell(1, 0, "b");
  EXPECT_TRUE(table.rows().is(all)) << "it was so before";
  table.set_cell(1, 0, "changed");
  EXPECT_FALSE(table.rows().is(all));
  table.hide_row(3, true);
  table.replace_rows(0, 3, middle);
  EXPECT_EQ(names(), "b c d ");
  EXPECT_TRUE(table.is_hidden(2));
  table.clear_rows();
  EXPECT_EQ(names(), "");
  table.add_row({"new"});
  table.replace_rows(1, 0, middle);
  EXPECT_EQ(names(), "new b c ");
  EXPECT_FALSE(table.is_hidden(2));
  EXPECT_THROW(table.replace_rows(2, 2, middle), std::out_of_range);
}

TEST(CellTable, TheTextOfFormerRowsIsLeftToWhoeverKeepsThem) {
  CellTable table;
  table.columns = 2;
  table.add_row({"stays", "as it is"});
  table.add_row({"first", ""});
  const CellTable::Rows kept = table.rows();
  const std::string first(kept.packed(1));
  for (int change = 0; change < 30'000; ++change)
    table.set_cell(1, 1, std::to_string(change) + std::string(200, '.'));
  EXPECT_LT(table.rows().bytes_beside(kept), 4U << 20) << "6 MB of text were set";
  EXPECT_EQ(table.cells(0), (std::vector<std::string>{"stays", "as it is"}));
  EXPECT_EQ(table.cells(1), (std::vector<std::string>{"first", "29999" + std::string(200, '.')}));
  EXPECT_EQ(kept.packed(1), first);
  table.replace_rows(1, 1, kept.part(1, 1));
  EXPECT_EQ(table.cells(1), (std::vector<std::string>{"first", ""}));
}

}  // namespace
}  // namespace vorlund
