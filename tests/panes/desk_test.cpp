// What the panes share: their order and the status line.
#include "panes/desk.h"

#include <gtest/gtest.h>

#include "support/form_in_folder.h"

namespace vorlund {
namespace {

class DeskTest : public testing::Test {
 protected:
  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
  test::RecordingStatus status_;
  Desk desk_{*files_, status_};
};

TEST_F(DeskTest, ThePaneBroughtForwardLastIsInFront) {
  Frame one;
  Frame two;
  desk_.bring_to_front(one);
  desk_.bring_to_front(two);
  EXPECT_GT(two.depth, one.depth);
  desk_.show_in_front(one);
  EXPECT_GT(one.depth, two.depth);
  EXPECT_TRUE(one.visible);
  EXPECT_FALSE(two.visible);
}

TEST_F(DeskTest, PathsAreFormedByConcatenation) {
  desk_.directory.Label16.caption = folder_.path();
  EXPECT_EQ(desk_.game().path("\\eaw.exe"), folder_.path() + "\\eaw.exe");
  desk_.directory.Label16.caption = "C:\\";
  EXPECT_EQ(desk_.game().path("\\~Vorlund"), "C:\\\\~Vorlund");
}

TEST_F(DeskTest, ALongActionShowsItselfInItsLabel) {
  Label label{"Process!"};
  std::string seen;
  status_.on_repaint = [&] { seen = label.caption; };
  {
    const Working working(desk_, label);
    EXPECT_EQ(seen, "..working!");
  }
  EXPECT_EQ(label.caption, "Process!");
}

TEST_F(DeskTest, TheStatusLineTakesFurtherLines) {
  desk_.say_too("one");
  EXPECT_EQ(desk_.status_line.caption, "one");
  desk_.say_too("two");
  EXPECT_EQ(desk_.status_line.caption, "one\ntwo");
  desk_.say("three");
  EXPECT_EQ(desk_.status_line.caption, "three");
}

}  // namespace
}  // namespace vorlund
