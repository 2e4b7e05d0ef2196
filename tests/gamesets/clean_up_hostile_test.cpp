// Careers rows, save names and links that lead elsewhere: no save is lost, nothing outside the store is
// written.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "base/action_error.h"
#include "gamesets/clean_up.h"
#include "support/hostile_names.h"
#include "support/recording_status.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

namespace fs = std::filesystem;
using Tree = std::map<std::string, std::string>;

const Tree kSaves = {{"c1.sve", "career one"}, {"CAREER.SVE", "career two"}};

class HostileCareers : public ::testing::Test {
 protected:
  HostileCareers() {
    folder.make_folder("game/~Vorlund/GameStore/Careers/Camp1");
    folder.make_folder("game/Savedata");
    folder.make_folder("game/Music");
    folder.make_folder("outside");
    put_saves_out();
  }

  void put_saves_out() {
    for (const auto& [name, bytes] : kSaves) folder.write("game/Savedata/" + name, bytes);
    folder.write("game/loose.dat", "loose");
    folder.write("outside/loose.dat", "not ours");
    folder.write("loose.dat", "not ours");
  }

  /// True when the clean-up came to its end.
  bool clean(const std::vector<std::pair<std::string, std::string>>& rows) {
    GameTable table;
    for (const auto& [group, name] : rows) table.add_row({group, name});
    try {
      clean_game_directory(game_folder, status, table);
      return true;
    } catch (const ActionError&) {
      return false;
    }
  }

  /// The saves that stand whole neither in "Savedata" nor in the store.
  std::string lost(const Tree& saves) {
    std::string names;
    const Tree found = folder.tree();
    for (const auto& [name, bytes] : saves) {
      bool safe = false;
      for (const auto& [path, content] : found) {
        const bool in_game = path.starts_with("game/Savedata/");
        const bool at_home = path.starts_with("game/~Vorlund/GameStore/Careers/");
        safe = safe || ((in_game || at_home) && path.ends_with("/" + name) && content == bytes);
      }
      if (!safe) names += name + "; ";
    }
    return names;
  }

  void expect_nothing_outside(const std::string& what) {
    EXPECT_EQ(folder.names("outside"), (std::vector<std::string>{"loose.dat"})) << what;
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"game", "loose.dat", "outside"})) << what;
    EXPECT_EQ(folder.read("outside/loose.dat"), "not ours") << what;
  }

  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  GameFolder game_folder{*files, folder.path("game")};
  test::RecordingStatus status;
};

TEST_F(HostileCareers, RowsWithoutAFolderEndTheCleanUpBeforeAnythingIsTouched) {
  const std::vector<std::string> names = test::hostile_names();
  ASSERT_GE(names.size(), 100U);
  const Tree before = folder.tree();
  for (const std::string& name : names) {
    if (test::is_separators(name)) continue;
    const std::string what = testing::PrintToString(name.substr(0, 60));
    EXPECT_FALSE(clean({{"Careers", "Camp1"}, {"Careers", name}})) << what;
    ASSERT_EQ(folder.tree(), before) << what;
  }
}

TEST_F(HostileCareers, GroupsThatAreNotExactlyCareersLeaveTheSavesInSavedata) {
  for (const char* group : {"careers", "CAREERS", "Careers ", " Careers", "Careers\\", "Careers/",
                            "Careers\\.", "Careers\\..\\Careers", "..\\GameStore\\Careers", "Career", ""}) {
    put_saves_out();
    EXPECT_TRUE(clean({{group, "Camp1"}})) << group;
    for (const auto& [name, bytes] : kSaves) EXPECT_EQ(folder.read("game/Savedata/" + name), bytes) << group;
    EXPECT_FALSE(folder.has("game/loose.dat")) << group;
    expect_nothing_outside(group);
  }
}

TEST_F(HostileCareers, OddButPlainFoldersTakeTheSavesHome) {
  int taken = 0;
  for (const std::string& name : test::hostile_names()) {
    const std::string what = testing::PrintToString(name.substr(0, 60));
    const std::string home = "game/~Vorlund/GameStore/Careers/" + name;
    if (!test::can_be_folder(name)) continue;
    put_saves_out();
    folder.make_folder(home);
    EXPECT_TRUE(clean({{"Careers", name}})) << what;
    for (const auto& [save, bytes] : kSaves) EXPECT_EQ(folder.read(home + "/" + save), bytes) << what;
    EXPECT_TRUE(folder.names("game/Savedata").empty()) << what;
    expect_nothing_outside(what);
    ++taken;
  }
  EXPECT_GT(taken, 10);
}

TEST_F(HostileCareers, ANestedHomeTakesTheSavesHome) {
  folder.make_folder("game/~Vorlund/GameStore/Careers/Camp1/Winter");
  EXPECT_TRUE(clean({{"Careers", "Camp1\\Winter"}}));
  for (const auto& [name, bytes] : kSaves)
    EXPECT_EQ(folder.read("game/~Vorlund/GameStore/Careers/Camp1/Winter/" + name), bytes);
  EXPECT_TRUE(folder.names("game/Savedata").empty());
}

TEST_F(HostileCareers, TheMasksDeleteInTheGameFolderAlone) {
  const std::vector<std::string> elsewhere = {
      "game/Savedata/loose.dat",  "game/Music/loose.bgm",          "game/Music/mypic",
      "game/~Vorlund/loose.txt",  "game/~Vorlund/GameStore/a.pal", "game/~Vorlund/SkinStore/SkinList.txt",
      "game/folder.dat/loose.pal"};
  for (const std::string& name : elsewhere) folder.write(name, "stays");
  ASSERT_TRUE(clean({}));
  EXPECT_FALSE(folder.has("game/loose.dat"));
  for (const std::string& name : elsewhere) EXPECT_TRUE(folder.has(name)) << name;
  expect_nothing_outside("masks");
}

#ifndef _WIN32

TEST_F(HostileCareers, SavesOfAnyNameComeHomeWholeOrStay) {
  const fs::path savedata = fs::path(folder.path()) / "game/Savedata";
  Tree saves = kSaves;
  for (const std::string& odd : test::hostile_names()) {
    std::string name = "c" + odd + ".sve";
    const bool possible = odd.find('/') == std::string::npos && odd.find('\0') == std::string::npos;
    if (!possible || name.size() > 255) continue;
    const std::string bytes = "career of " + name;
    std::ofstream(savedata / name, std::ios::binary) << bytes;
    if (fs::exists(savedata / name)) saves[name] = bytes;
  }
  ASSERT_GE(saves.size(), 60U);
  EXPECT_TRUE(clean({{"Careers", "Camp1"}}));
  EXPECT_EQ(lost(saves), "");
  for (const std::string& name : folder.names("game/Savedata")) {
    EXPECT_NE(name.find('\\'), std::string::npos) << name << " could have been moved";
  }
  expect_nothing_outside("saves");
}

TEST_F(HostileCareers, TwoSavesThatDifferInCaseAloneAreNotMoved) {
  folder.write("game/Savedata/C1.SVE", "another career");
  const Tree before = folder.tree();
  EXPECT_FALSE(clean({{"Careers", "Camp1"}}));
  EXPECT_EQ(folder.tree(), before);
}

TEST_F(HostileCareers, ASaveThatWouldTakeThePlaceOfTwoAtHomeIsNotMoved) {
  for (const char* name : {"C1.SVE", "c1.sve"})
    folder.write(std::string("game/~Vorlund/GameStore/Careers/Camp1/") + name, "career one");
  const Tree before = folder.tree();
  EXPECT_FALSE(clean({{"Careers", "Camp1"}}));
  EXPECT_EQ(folder.tree(), before);

  const fs::path home = fs::path(folder.path()) / "game/~Vorlund/GameStore/Careers/Camp1";
  fs::remove(home / "C1.SVE");
  fs::create_directory(home / "C1.SVE");
  EXPECT_TRUE(clean({{"Careers", "Camp1"}})) << "a folder is no save";
}

TEST_F(HostileCareers, AHomeThatALinkOfThePlayersLeadsToTakesTheSavesHome) {
  const fs::path game = fs::path(folder.path()) / "game";
  const fs::path careers = game / "~Vorlund/GameStore/Careers";
  fs::create_directory(game / "~Vorlund/Elsewhere");
  fs::create_directory_symlink(game.parent_path() / "outside", careers / "outside");
  fs::create_directory_symlink("../../Elsewhere", careers / "elsewhere");
  fs::create_directory_symlink("Camp1", careers / "alias");
  for (const auto& [link, home] :
       {std::pair("OUTSIDE", "outside/"), std::pair("elsewhere", "game/~Vorlund/Elsewhere/"),
        std::pair("alias", "game/~Vorlund/GameStore/Careers/Camp1/")}) {
    put_saves_out();
    EXPECT_TRUE(clean({{"Careers", link}})) << link;
    for (const auto& [name, bytes] : kSaves) EXPECT_EQ(folder.read(home + name), bytes) << link;
    EXPECT_TRUE(folder.names("game/Savedata").empty()) << link;
  }
}

TEST_F(HostileCareers, LinksToSavedataOrToNoFolderAreNoHome) {
  const fs::path game = fs::path(folder.path()) / "game";
  const fs::path careers = game / "~Vorlund/GameStore/Careers";
  fs::create_directory(game / "Savedata/Inside");
  fs::create_directory_symlink("../../../Savedata", careers / "savedata");
  fs::create_directory_symlink("../../../Savedata/Inside", careers / "inside");
  fs::create_directory_symlink("nowhere", careers / "dangling");
  fs::create_directory_symlink("round", careers / "round");
  fs::create_symlink("../../../loose.dat", careers / "file");
  const Tree before = folder.tree();
  for (const char* name : {"savedata", "inside", "dangling", "round", "file"}) {
    EXPECT_FALSE(clean({{"Careers", name}})) << name;
    ASSERT_EQ(folder.tree(), before) << name;
  }
}

TEST_F(HostileCareers, ASavedataThatIsALinkToItsOwnHomeLosesNoSave) {
  const fs::path game = fs::path(folder.path()) / "game";
  fs::remove_all(game / "Savedata");
  fs::create_directory_symlink("~Vorlund/GameStore/Careers/Camp1", game / "Savedata");
  put_saves_out();
  EXPECT_FALSE(clean({{"Careers", "Camp1"}})) << "Savedata is the careers folder";
  EXPECT_EQ(lost(kSaves), "");
}

TEST_F(HostileCareers, AStoreThatThePlayerKeepsOnAnotherDiskTakesTheSavesHome) {
  const fs::path game = fs::path(folder.path()) / "game";
  fs::rename(game / "~Vorlund", game.parent_path() / "store");
  fs::create_directory_symlink("../store", game / "~Vorlund");
  EXPECT_TRUE(clean({{"Careers", "Camp1"}}));
  for (const auto& [name, bytes] : kSaves)
    EXPECT_EQ(folder.read("store/GameStore/Careers/Camp1/" + name), bytes);
}

TEST_F(HostileCareers, ASaveThatIsALinkLeavesItsFileAndADeletedLinkLeavesItsTarget) {
  const fs::path game = fs::path(folder.path()) / "game";
  fs::create_symlink("../../outside/loose.dat", game / "Savedata/clink.sve");
  fs::create_symlink("../outside/loose.dat", game / "linked.dat");
  fs::create_directory_symlink("../outside", game / "linked.pal");
  fs::create_symlink(game.parent_path() / "outside/loose.dat",
                     game / "~Vorlund/GameStore/Careers/Camp1/c1.sve");
  EXPECT_TRUE(clean({{"Careers", "Camp1"}}));
  EXPECT_EQ(folder.read("game/~Vorlund/GameStore/Careers/Camp1/clink.sve"), "not ours");
  EXPECT_EQ(folder.read("game/~Vorlund/GameStore/Careers/Camp1/c1.sve"), "career one");
  EXPECT_FALSE(folder.has("game/linked.dat"));
  EXPECT_TRUE(folder.has("game/linked.pal"));
  expect_nothing_outside("links");
}

#endif

}  // namespace
}  // namespace vorlund
