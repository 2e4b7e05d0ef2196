// The skin list as it is written at start.
#include "aircraft/skin_list.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "disk/game_folder.h"
#include "support/recording_file_system.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

class SkinList : public testing::Test {
 protected:
  /// Makes a skin folder with empty files of these names.
  void make_skin(const std::string& skin, const std::vector<std::string>& names) const {
    folder.make_folder("~Vorlund/SkinStore/" + skin);
    for (const std::string& name : names) folder.write("~Vorlund/SkinStore/" + skin + "/" + name, "");
  }

  std::string made_list() {
    MakeSkinList(game);
    return folder.read("~Vorlund/SkinStore/SkinList.txt");
  }

  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> disk = make_platform_file_system();
  test::RecordingFileSystem files{*disk};
  GameFolder game{files, folder.path()};
};

TEST_F(SkinList, HasALineForEachFolderInTheOrderOfGroupsAndFolders) {
  make_skin("raf/spit92", {"psp09.3dz"});
  make_skin("raf/Hurri", {"phurr.tpc"});
  make_skin("Luftwaffe/Emil", {"p109e.3dz", "p109e.tpc", "mypic"});
  make_skin("USAAF/Unknown", {"readme.txt"});
  EXPECT_EQ(made_list(),
            "Luftwaffe\\Emil\\109E\r\n"
            "raf\\Hurri\\HURR\r\n"
            "raf\\spit92\\SP09\r\n"
            "USAAF\\Unknown\\\r\n");
}

TEST_F(SkinList, GivesFoldersOfTheSameNameInTwoGroupsTwoLines) {
  make_skin("RAF/Spit", {"psp09.3dz"});
  make_skin("SAAF/Spit", {"psp09.3dz"});
  EXPECT_EQ(made_list(), "RAF\\Spit\\SP09\r\nSAAF\\Spit\\SP09\r\n");
}

TEST_F(SkinList, LooksAtTheFirstShapeFileAndThenAtTheFirstTextureFileAlone) {
  make_skin("A/first of two shapes", {"pzzzz.3dz", "psp09.3dz"});
  make_skin("A/texture behind an unknown shape", {"pzzzz.3dz", "psp09.tpc"});
  make_skin("A/unknown before known shape", {"paaaa.3dz", "psp09.3dz"});
  make_skin("A/unknown before known texture", {"paaaa.tpc", "psp09.tpc"});
  EXPECT_EQ(made_list(),
            "A\\first of two shapes\\SP09\r\n"
            "A\\texture behind an unknown shape\\SP09\r\n"
            "A\\unknown before known shape\\\r\n"
            "A\\unknown before known texture\\\r\n");
}

TEST_F(SkinList, IgnoresDeeperFoldersAndFilesBesideTheFolders) {
  make_skin("RAF/Spit/Deep", {"psp09.3dz"});
  folder.write("~Vorlund/SkinStore/psp09.3dz", "");
  folder.write("~Vorlund/SkinStore/RAF/psp09.3dz", "");
  folder.make_folder("~Vorlund/SkinStore/Empty");
  EXPECT_EQ(made_list(), "RAF\\Spit\\\r\n");
}

TEST_F(SkinList, SpellsAccentedNamesInTheCodePage) {
  make_skin("Armée/Été", {"PSP09.3DZ"});
  EXPECT_EQ(made_list(),
            "Arm\xE9"
            "e\\\xC9t\xE9\\SP09\r\n");
}

TEST_F(SkinList, ReplacesTheOldListAndIsEmptyForAnEmptyStore) {
  folder.write("~Vorlund/SkinStore/SkinList.txt", "RAF\\Gone\\SP09\r\n");
  EXPECT_EQ(made_list(), "");
}

TEST_F(SkinList, IsNotWrittenWithoutASkinStore) {
  MakeSkinList(game);
  EXPECT_TRUE(folder.tree().empty());
}

TEST_F(SkinList, FormsNamesFromTheFirstSkinStoreInTheWholePath) {
  folder.write("Old SkinStore/~Vorlund/SkinStore/RAF/Spit/psp09.3dz", "");
  game.directory = folder.path("Old SkinStore");
  MakeSkinList(game);
  EXPECT_EQ(folder.read("Old SkinStore/~Vorlund/SkinStore/SkinList.txt"),
            "~Vorlund\\SkinStore\\RAF\\Spit\\SP09\r\n");
}

TEST_F(SkinList, ReadsEachFolderOnceAndWritesOnce) {
  make_skin("A/1", {"pzzzz.3dz", "psp09.tpc"});
  make_skin("A/2", {});
  make_skin("B/1", {"psp09.3dz"});
  MakeSkinList(game);
  const std::string store = folder.path("~Vorlund\\SkinStore");
  EXPECT_EQ(files.log(), (std::vector<std::string>{
                             "folder exists " + store, "list " + store, "list " + store + "\\A",
                             "list " + store + "\\A\\1", "list " + store + "\\A\\2", "list " + store + "\\B",
                             "list " + store + "\\B\\1", "replace " + store + "\\SkinList.txt"}));
}

#ifndef _WIN32
TEST_F(SkinList, LeavesOutNamesThatWouldBreakTheirLine) {
  make_skin("RAF/Spit\nRAF\\Fake\\P38H", {"psp09.3dz"});
  make_skin("RAF/Two\nLines", {"psp09.3dz"});
  make_skin("RAF/Whole", {"psp09.3dz"});
  EXPECT_EQ(made_list(), "RAF\\Whole\\SP09\r\n");
}
#endif

struct SlotCase {
  std::string list;
  std::string slot;
  std::vector<std::string> found;
};

TEST_F(SkinList, OffersTheLinesThatEndInTheSlot) {
  const SlotCase cases[] = {
      {"", "SP09", {}},
      {"RAF\\Spit\\SP09\r\nUS\\P38\\P38H\r\nRAF\\Mk9\\SP09\r\n", "SP09", {"RAF\\Spit", "RAF\\Mk9"}},
      {"US\\P38\\P38H\r\n", "P38H", {"US\\P38"}},
      {"US\\P38\\P38H\r\n", "p38h", {}},
      {"US\\P38\\p38h\r\n", "P38H", {"US\\P38"}},
      {"RAF\\Spit\\\r\n", "", {}},
      {"RAF\\Spit\\SP09", "SP09", {"RAF\\Spit"}},
      {"SP09\r\n09\r\n\r\n\\SP09\r\nx\\SP09\r\n", "SP09", {"x"}},
      {"RAF\\Été\\SP09\r\n", "SP09", {"RAF\\Été"}},
  };
  for (const SlotCase& given : cases) {
    EXPECT_EQ(skins_for_slot(given.list, given.slot), given.found) << given.list << " for " << given.slot;
  }
}

}  // namespace
}  // namespace vorlund
