// What the game-set installer copies, where to, and in which order.
#include "gamesets/game_installer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "base/action_error.h"
#include "support/recording_status.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::string_literals;
using Tree = std::map<std::string, std::string>;

class GameInstaller : public ::testing::Test {
 protected:
  GameInstaller() {
    for (const char* name : {"Savedata", "Music", "~Vorlund/GameStore"}) folder.make_folder(name);
  }

  void store(const std::string& name, std::string_view bytes) const {
    folder.write("~Vorlund/GameStore/" + name, bytes);
  }

  GameSetSummary install(const std::vector<std::pair<std::string, std::string>>& rows) {
    GameTable table;
    for (const auto& [group, name] : rows) table.add_row({group, name});
    table.g2update();
    return install_game_set(game, status, table);
  }

  /// The game folder without its store.
  Tree game_files() const {
    Tree files_only;
    for (const auto& [name, bytes] : folder.tree()) {
      if (!name.starts_with("~Vorlund/")) files_only.emplace(name, bytes);
    }
    return files_only;
  }

  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  GameFolder game{*files, folder.path()};
  test::RecordingStatus status;
};

TEST_F(GameInstaller, SortsFilesIntoTheirFoldersWhateverTheCaseOfTheirNames) {
  store("Missions/Mixed/mission1.msn", "mission");
  store("Missions/Mixed/Cobra.SVE", "save");
  store("Missions/Mixed/THEME.bgm", "music");
  store("Missions/Mixed/planes.DAT", "planes");
  store("Missions/Mixed/noextension", "plain");
  install({{"Missions", "Mixed"}});
  EXPECT_EQ(game_files(), (Tree{{"Music/THEME.bgm", "music"},
                                {"Savedata/Cobra.SVE", "save"},
                                {"Savedata/mission1.msn", "mission"},
                                {"noextension", "plain"},
                                {"planes.DAT", "planes"}}));
}

TEST_F(GameInstaller, LeavesPicturesTextsAndTheLikeInTheStore) {
  for (const char* name :
       {"readme.txt", "MyPic", "notmypic", "shot.JPG", "a.pcx", "b.Bmp", "c.gif", "run.bat", "d.tab",
        "LoadOutOffsets", "ecaplanes.dat", "ECA_anything", "Eca", ".txt.txt"}) {
    store(std::string("Set/One/") + name, "kept");
  }
  for (const char* name : {"mypic.dat", "LoadOutOffsets2", "xeca.dat", "shot.jpg2", "SkinPic"}) {
    store(std::string("Set/One/") + name, "copied");
  }
  const GameSetSummary summary = install({{"Set", "One"}});
  EXPECT_EQ(game_files(), (Tree{{"LoadOutOffsets2", "copied"},
                                {"Music/", ""},
                                {"Savedata/", ""},
                                {"SkinPic", "copied"},
                                {"mypic.dat", "copied"},
                                {"shot.jpg2", "copied"},
                                {"xeca.dat", "copied"}}));
  EXPECT_EQ(summary.copied, 5U);
}

TEST_F(GameInstaller, AFileThatOneEndingKeepsIsNotCopiedWhereAnotherWouldSendIt) {
  EXPECT_EQ(use_of_set_file("ECAmission.MSN"), SetFileUse::kStays);
  EXPECT_EQ(use_of_set_file("eca.LDR"), SetFileUse::kPatch);
  EXPECT_EQ(use_of_set_file("x.ldr"), SetFileUse::kPatch);
  EXPECT_EQ(use_of_set_file(".sve"), SetFileUse::kCopied);
}

TEST_F(GameInstaller, SendsMissionsSavesAndMusicToTheirFoldersAndAllElseToTheGameItself) {
  EXPECT_EQ(target_of_set_file("a.Msn"), "\\Savedata\\a.Msn");
  EXPECT_EQ(target_of_set_file(".sve"), "\\Savedata\\.sve");
  EXPECT_EQ(target_of_set_file("sve"), "\\sve");
  EXPECT_EQ(target_of_set_file("x.bGM"), "\\Music\\x.bGM");
  EXPECT_EQ(target_of_set_file("eaw.exe"), "\\eaw.exe");
}

TEST_F(GameInstaller, SavedataAndMusicMustExist) {
  const test::TemporaryFolder bare;
  for (const std::string name : {"Savedata\\b.msn", "Music\\b.bgm"}) {
    const std::string bare_name = name.substr(name.find('\\') + 1);
    bare.write("~Vorlund/GameStore/Sky/Dusk/a.dat", "a");
    bare.write("~Vorlund/GameStore/Sky/Dusk/" + bare_name, "b");
    game.directory = bare.path();
    try {
      install({{"Sky", "Dusk"}});
      ADD_FAILURE() << "no error";
    } catch (const ActionError& error) {
      EXPECT_EQ(error.path(), bare.path(name));
    }
    EXPECT_EQ(bare.names(), (std::vector<std::string>{"a.dat", "~Vorlund"})) << "no folder is made";
    std::filesystem::remove(std::filesystem::path(bare.path()) / "~Vorlund/GameStore/Sky/Dusk" / bare_name);
  }
}

TEST_F(GameInstaller, TheFileOfTheLowerRowWins) {
  store("A/One/planes.dat", "from one");
  store("B/Two/planes.dat", "from two");
  install({{"A", "One"}, {"B", "Two"}});
  EXPECT_EQ(folder.read("planes.dat"), "from two");
  install({{"B", "Two"}, {"A", "One"}});
  EXPECT_EQ(folder.read("planes.dat"), "from one");
}

TEST_F(GameInstaller, ACopiedFileKeepsTheCaseOfItsSource) {
  folder.write("PLANES.dat", "old");
  store("A/One/Planes.DAT", "new");
  install({{"A", "One"}});
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"Music", "Planes.DAT", "Savedata", "~Vorlund"}));
  EXPECT_EQ(folder.read("Planes.DAT"), "new");
}

TEST_F(GameInstaller, SkipsClearedRowsAndRowsWithoutAFolder) {
  store("A/One/a.dat", "a");
  const GameSetSummary summary = install({{"A", ""}, {"A", "Missing"}, {"", "One"}, {"Nowhere", "One"}});
  EXPECT_EQ(game_files(), (Tree{{"Music/", ""}, {"Savedata/", ""}}));
  EXPECT_EQ(summary.missing, (std::vector<std::string>{"A\\Missing", "\\One", "Nowhere\\One"}));
  EXPECT_EQ(summary.folders, 0U);
}

TEST_F(GameInstaller, FindsASetFolderInAnySpelling) {
  store("Scenery/Winter/Snow.tm", "snow");
  install({{"SCENERY", "winter"}});
  EXPECT_EQ(folder.read("Snow.tm"), "snow");
}

#ifndef _WIN32

TEST_F(GameInstaller, OfTwoSetFoldersThatDifferInCaseAloneTakesTheOneSpelledAsTheRow) {
  store("Sky/Dusk/small.dat", "small");
  store("Sky/DUSK/large.dat", "large");
  install({{"Sky", "DUSK"}});
  EXPECT_EQ(game_files(), (Tree{{"Music/", ""}, {"Savedata/", ""}, {"large.dat", "large"}}));
  install({{"Sky", "Dusk"}});
  EXPECT_EQ(game_files(),
            (Tree{{"Music/", ""}, {"Savedata/", ""}, {"large.dat", "large"}, {"small.dat", "small"}}));
}

#endif

TEST_F(GameInstaller, AnEmptySetFolderIsDoneWithAtOnce) {
  folder.make_folder("~Vorlund/GameStore/A/Empty");
  store("B/Two/b.dat", "b");
  const GameSetSummary summary = install({{"A", "Empty"}, {"B", "Two"}});
  EXPECT_EQ(summary.folders, 2U);
  EXPECT_EQ(folder.read("b.dat"), "b");
}

TEST_F(GameInstaller, NeverVisitsSubFolders) {
  store("A/One/deep/x.dat", "x");
  install({{"A", "One"}});
  EXPECT_EQ(game_files(), (Tree{{"Music/", ""}, {"Savedata/", ""}}));
}

TEST_F(GameInstaller, PatchesTheExecutableAndDoesNotCopyThePatch) {
  folder.write("eaw.exe", "0123456789ABCDEFGHIJ");
  store("Patches/One/fix.ldr", "\x10\0\0\x11\0\0xy"s);
  const GameSetSummary summary = install({{"Patches", "One"}});
  EXPECT_EQ(folder.read("eaw.exe"), "0123456789ABCDEFxyIJ");
  EXPECT_FALSE(folder.has("fix.ldr"));
  EXPECT_EQ(summary.patches, 1U);
  EXPECT_EQ(summary.text(), "1 folder, 1 patch into eaw.exe");
}

TEST_F(GameInstaller, ALaterPatchWinsAndAppliesToAnExecutableThatAnEarlierRowCopied) {
  folder.write("EAW.EXE", "old");
  store("Patches/One/eaw.exe", "abcdef");
  store("Patches/One/z.LDR", "\x00\0\0\x01\0\0XY"s);
  store("Patches/Two/a.LDR", "\x01\0\0\x01\0\0!"s);
  install({{"Patches", "One"}, {"Patches", "Two"}});
  EXPECT_EQ(folder.read("eaw.exe"), "X!cdef");
}

TEST_F(GameInstaller, APatchedExecutableKeepsTheSpellingOfItsName) {
  folder.write("EAW.EXE", "0123");
  store("Patches/One/fix.ldr", "\x01\0\0\x01\0\0x"s);
  install({{"Patches", "One"}});
  EXPECT_EQ(folder.read("EAW.EXE"), "0x23");
  EXPECT_FALSE(folder.has("eaw.exe"));
}

TEST_F(GameInstaller, PatchesOfOneFolderApplyInTheOrderOfTheirNames) {
  folder.write("eaw.exe", "....");
  store("Patches/One/b.ldr", "\x00\0\0\x00\0\0b"s);
  store("Patches/One/A.LDR", "\x00\0\0\x01\0\0aa"s);
  install({{"Patches", "One"}});
  EXPECT_EQ(folder.read("eaw.exe"), "ba..");
}

TEST_F(GameInstaller, PassesAPatchOverWhereThereIsNoExecutable) {
  store("Patches/One/fix.ldr", "\x00\0\0\x00\0\0x"s);
  store("Patches/One/other.dat", "other");
  const GameSetSummary summary = install({{"Patches", "One"}});
  EXPECT_FALSE(folder.has("eaw.exe"));
  EXPECT_EQ(folder.read("other.dat"), "other");
  EXPECT_EQ(summary.patches_passed, 1U);
}

TEST_F(GameInstaller, InstallsAgainWithoutWritingWhatIsInPlace) {
  store("A/One/a.dat", "a");
  store("A/One/b.MSN", "b");
  EXPECT_EQ(install({{"A", "One"}}).copied, 2U);
  const GameSetSummary again = install({{"A", "One"}});
  EXPECT_EQ(again.copied, 0U);
  EXPECT_EQ(again.unchanged, 2U);
}

TEST_F(GameInstaller, ComparesContentsAndNotSizeOrTime) {
  store("A/One/a.dat", "new!");
  folder.write("a.dat", "old!");
  EXPECT_EQ(install({{"A", "One"}}).copied, 1U);
  EXPECT_EQ(folder.read("a.dat"), "new!");
}

TEST_F(GameInstaller, WritesASummaryForThePlayer) {
  GameSetSummary summary;
  summary.folders = 3;
  summary.copied = 214;
  summary.kept = 12;
  summary.patches = 2;
  EXPECT_EQ(summary.text(), "3 folders, 214 files copied, 12 kept in the store, 2 patches into eaw.exe");
  summary.unchanged = 7;
  summary.patches_passed = 1;
  summary.missing = {"Scenery\\Old"};
  EXPECT_EQ(summary.text(),
            "3 folders, 214 files copied, 7 files already in place, 12 kept in the store, "
            "2 patches into eaw.exe, 1 patch passed over: there is no eaw.exe\n"
            "1 row passed over, for want of a folder: Scenery\\Old");
  summary = {};
  EXPECT_EQ(summary.text(), "There was nothing to install");
  summary.missing = {"A\\1", "B\\2", "C\\3", "D\\4"};
  EXPECT_EQ(summary.text(),
            "There was nothing to install\n4 rows passed over, for want of a folder: A\\1; B\\2; C\\3; ...");
}

TEST_F(GameInstaller, ReportsEveryFileAsItGoesAndNeverGoesBack) {
  store("A/One/b.dat", "b");
  store("A/One/A.dat", "a");
  store("B/Two/c.dat", "c");
  install({{"A", "One"}, {"B", "Two"}});
  EXPECT_EQ(status.files, (std::vector<std::string>{"A.dat", "b.dat", "c.dat"}));
  EXPECT_EQ(status.fractions, (std::vector<double>{0, 1.0 / 3, 2.0 / 3}));
}

TEST_F(GameInstaller, WeighsItsProgressByFilesAndNotByRows) {
  std::vector<std::pair<std::string, std::string>> rows;
  for (int row = 0; row < 12; ++row) {
    const std::string group = "Group" + std::to_string(row);
    for (int file = 0; file < (row == 5 ? 1500 : 2); ++file) {
      store(group + "/Set/" + std::to_string(file) + ".dat", "");
    }
    rows.emplace_back(group, "Set");
  }
  install(rows);
  const std::vector<double>& fractions = status.fractions;
  ASSERT_EQ(fractions.size(), 1522U);
  for (std::size_t done = 0; done < fractions.size(); ++done) {
    ASSERT_NEAR(fractions[done], static_cast<double>(done) / 1522, 0.03) << done;
  }
}

}  // namespace
}  // namespace vorlund
