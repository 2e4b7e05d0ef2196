// Controls as data: grids, dragging and the order of panes.
#include "core/controls.h"

#include <gtest/gtest.h>

namespace vorlund {
namespace {

TEST(Grid, ARowIsCutOrFilledToTheColumns) {
  Grid grid;
  grid.columns = 2;
  grid.add_row({"Careers"});
  grid.add_row({"Sounds", "Engines", "too much"});
  EXPECT_EQ(grid.row_count(), 2);
  EXPECT_EQ(grid.rows[0].cells, (std::vector<std::string>{"Careers", ""}));
  EXPECT_EQ(grid.rows[1].cells, (std::vector<std::string>{"Sounds", "Engines"}));
  EXPECT_FALSE(grid.rows[0].hidden);
}

TEST(Grid, ACellOutsideTheTableReadsAsEmpty) {
  Grid grid;
  grid.columns = 1;
  grid.add_row({"only"});
  EXPECT_EQ(grid.cell(0, 0), "only");
  for (const auto& [row, column] : {std::pair(-1, 0), std::pair(1, 0), std::pair(0, -1), std::pair(0, 1)}) {
    EXPECT_EQ(grid.cell(row, column), "") << row << ", " << column;
  }
}

TEST(Grid, ACellCanBeSet) {
  Grid grid;
  grid.columns = 2;
  grid.add_row({"a", "b"});
  grid.set_cell(0, 1, "changed");
  EXPECT_EQ(grid.rows[0].cells, (std::vector<std::string>{"a", "changed"}));
}

TEST(DragOrigin, AReleaseMovesTheControlByTheDifference) {
  DragOrigin drag;
  Place place{1000, 2000, 300, 400};
  MouseEvent press;
  press.x = 150;
  press.y = 75;
  MouseEvent release;
  release.x = 450;
  release.y = -25;
  drag.press(press);
  drag.release(release, place);
  EXPECT_EQ(place.left, 1300);
  EXPECT_EQ(place.top, 1900);
  EXPECT_EQ(place.width, 300);
  EXPECT_EQ(place.height, 400);
}

TEST(FrameOrder, ThePaneBroughtForwardLastIsInFront) {
  FrameOrder order;
  Frame one;
  Frame two;
  order.bring_to_front(one);
  order.bring_to_front(two);
  EXPECT_GT(two.depth, one.depth);
  order.bring_to_front(one);
  EXPECT_GT(one.depth, two.depth);
}

}  // namespace
}  // namespace vorlund
