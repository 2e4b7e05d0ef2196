// Controls as data: dragging.
#include "panes/controls.h"

#include <gtest/gtest.h>

namespace vorlund {
namespace {

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

}  // namespace
}  // namespace vorlund
