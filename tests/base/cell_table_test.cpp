// Rows and cells of a table.
#include "base/cell_table.h"

#include <gtest/gtest.h>

namespace vorlund {
namespace {

TEST(CellTable, ARowIsCutOrFilledToTheColumns) {
  CellTable table;
  table.columns = 2;
  table.add_row({"Careers"});
  table.add_row({"Sounds", "Engines", "too much"});
  EXPECT_EQ(table.row_count(), 2);
  EXPECT_EQ(table.rows[0].cells, (std::vector<std::string>{"Careers", ""}));
  EXPECT_EQ(table.rows[1].cells, (std::vector<std::string>{"Sounds", "Engines"}));
  EXPECT_FALSE(table.rows[0].hidden);
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
  EXPECT_EQ(table.rows[0].cells, (std::vector<std::string>{"a", "changed"}));
}

}  // namespace
}  // namespace vorlund
