// Which rows of the game table win over which, told from names.
#include "gamesets/row_overlaps.h"

#include <gtest/gtest.h>

#include "base/action_error.h"
#include "support/forwarding_file_system.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

/// A disk whose folders can't be listed.
class WithoutListings : public test::ForwardingFileSystem {
 public:
  using ForwardingFileSystem::ForwardingFileSystem;
  std::vector<FolderEntry> entries(std::string_view folder) override {
    throw ActionError("list the folder", folder, "no right");
  }
};

class RowOverlapsTest : public testing::Test {
 protected:
  void store(const std::string& name) const { folder.write("~Vorlund/GameStore/" + name, ""); }

  RowOverlaps overlaps() { return RowOverlaps({*files, folder.path()}, table); }

  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  GameTable table;
};

TEST_F(RowOverlapsTest, CountsTheFilesThatTwoRowsWriteInAnySpelling) {
  store("\u00C9t\u00E9/One/Sky.pal");
  store("\u00C9t\u00E9/One/clouds.spt");
  store("\u00C9t\u00E9/One/theme.bgm");
  store("Sky/Two/SKY.PAL");
  store("Sky/Two/CLOUDS.spt");
  store("Sky/Two/theme.msn");
  store("Sky/Three/other.dat");
  table.add_row({"\u00C9t\u00E9", "One"});
  table.add_row({"Sky", "Two"});
  table.add_row({"Sky", "Three"});
  table.add_row({"Sky", "Gone"});
  const RowOverlaps rows = overlaps();
  EXPECT_EQ(rows.shared_files(1, 2), 2);
  EXPECT_EQ(rows.shared_files(2, 1), 2);
  EXPECT_EQ(rows.shared_files(1, 1), 0);
  EXPECT_EQ(rows.shared_files(1, 3), 0);
  EXPECT_EQ(rows.shared_files(1, 4), 0);
  EXPECT_EQ(rows.shared_files(7, 9), 0);
  for (const int none : {-1, 5}) {
    EXPECT_EQ(rows.shared_files(none, 1), 0);
    EXPECT_EQ(rows.shared_files(1, none), 0);
  }
  for (int row = -1; row < 6; ++row) EXPECT_FALSE(rows.could_go(row)) << row;
}

TEST_F(RowOverlapsTest, ARowCouldGoWhereLaterRowsReplaceEachOfItsFiles) {
  store("A/One/sky.pal");
  store("A/One/mypic");
  store("A/Patched/sky.pal");
  store("A/Patched/fix.ldr");
  store("A/Pictures/mypic");
  store("B/Two/sky.pal");
  for (const char* name : {"One", "Patched", "Pictures"}) table.add_row({"A", name});
  table.add_row({"B", "Two"});
  const RowOverlaps rows = overlaps();
  EXPECT_TRUE(rows.could_go(1));
  EXPECT_FALSE(rows.could_go(2)) << "its patch is applied";
  EXPECT_FALSE(rows.could_go(3)) << "it writes nothing that could be replaced";
  EXPECT_FALSE(rows.could_go(4)) << "it is the last";
}

TEST_F(RowOverlapsTest, NamesThatLeadElsewhereAndFoldersThatCannotBeListedHaveNoFiles) {
  store("A/One/sky.pal");
  store("A/sky.pal");
  store("sky.pal");
  for (const char* name : {"One", "..\\A\\One", "One", ""}) table.add_row({"A", name});
  table.add_row({"..", "GameStore"});
  EXPECT_EQ(overlaps().shared_files(1, 3), 1);
  for (const int row : {2, 4, 5}) EXPECT_EQ(overlaps().shared_files(1, row), 0) << row;
  WithoutListings failing(*files);
  const RowOverlaps rows({failing, folder.path()}, table);
  EXPECT_EQ(rows.shared_files(1, 3), 0);
  EXPECT_FALSE(rows.could_go(1));
}

}  // namespace
}  // namespace vorlund
