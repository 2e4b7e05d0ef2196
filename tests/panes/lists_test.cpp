// The list controls that hold the files and folders of a folder.
#include "panes/lists.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using Names = std::vector<std::string>;

class ListControls : public testing::Test {
 protected:
  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
};

TEST_F(ListControls, AListControlIsTakenAgainOnRefreshAndLosesItsSelection) {
  folder_.write("one.gset", "");
  FileList list{folder_.path(), "*.gset", {}, 3};
  list.refresh(*files_);
  EXPECT_EQ(list.names, Names{"one.gset"});
  EXPECT_EQ(list.selected, -1);
  folder_.write("Another.gset", "");
  EXPECT_EQ(list.names, Names{"one.gset"});
  list.refresh(*files_);
  EXPECT_EQ(list.names, (Names{"Another.gset", "one.gset"}));
}

TEST_F(ListControls, OpeningAFolderListPointsItAtTheFolder) {
  folder_.make_folder("one\\two");
  FolderList list;
  list.open(*files_, folder_.path("one"));
  EXPECT_EQ(list.path, folder_.path("one"));
  EXPECT_EQ(list.names, Names{"two"});
}

}  // namespace
}  // namespace vorlund
