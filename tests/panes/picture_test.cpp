// Reading picture files for the window.
#include "panes/picture.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace vorlund {
namespace {

TEST(Picture, AFileIsReadWholeWhateverItsName) {
  const test::TemporaryFolder folder;
  folder.write("mypic", "GIF89a not really");
  const auto files = make_platform_file_system();
  const PictureFile picture = load_picture(*files, folder.path("MyPic"));
  ASSERT_TRUE(picture.bytes);
  EXPECT_EQ(*picture.bytes, "GIF89a not really");
  EXPECT_EQ(picture.path, folder.path("MyPic"));
}

TEST(Picture, WhatIsNotAFileGivesNoPicture) {
  const test::TemporaryFolder folder;
  folder.make_folder("folder");
  const auto files = make_platform_file_system();
  for (const char* name : {"nothing", "folder", "nothing\\below"}) {
    const PictureFile picture = load_picture(*files, folder.path(name));
    EXPECT_FALSE(picture.bytes) << name;
    EXPECT_EQ(picture.path, "") << name;
  }
}

}  // namespace
}  // namespace vorlund
