// Records of other players: whatever a row or a set folder holds, nothing outside the game folder is touched.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "gamesets/game_installer.h"
#include "gamesets/game_record.h"
#include "support/hostile_names.h"
#include "support/left_over.h"
#include "support/recording_status.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::string_literals;

class HostileRows : public ::testing::Test {
 protected:
  HostileRows() {
    for (const char* name : {"game/Savedata", "game/Music", "game/~Vorlund/GameStore/Set"}) {
      folder.make_folder(name);
    }
    folder.write("outside/bait.dat", "bait");
    folder.write("outside/outside/bait.dat", "bait");
    folder.write("bait.dat", "bait");
    folder.write("game/~Vorlund/bait.dat", "bait");
    folder.write("game/~Vorlund/GameStore/bait.dat", "bait");
    folder.write("game/~Vorlund/GameStore/Set/bait.dat", "bait");
    folder.write("game/eaw.exe", "MZ");
  }

  GameSetSummary install(const std::string& group, const std::string& name) {
    GameTable table;
    table.add_row({group, name});
    table.g2update();
    return install_game_set(game, status, table);
  }

  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  GameFolder game{*files, folder.path("game")};
  test::RecordingStatus status;
};

TEST_F(HostileRows, AreShownButPassedOver) {
  const std::vector<std::string> names = test::hostile_names();
  ASSERT_GE(names.size(), 100U);
  const auto before = folder.tree();
  for (const std::string& name : names) {
    if (test::is_separators(name)) continue;
    for (const auto& [group, set] :
         {std::pair(std::string("Set"), name), std::pair(name, std::string("Set")), std::pair(name, name)}) {
      const GameSetSummary summary = install(group, set);
      EXPECT_EQ(summary.copied + summary.unchanged, 0U)
          << testing::PrintToString(group) << " / " << testing::PrintToString(set);
    }
  }
  EXPECT_EQ(folder.tree(), before);
}

TEST_F(HostileRows, OfARecordAreReadAndInstalledWithoutHarm) {
  std::string record = "Folder group\tFolder name\r\n";
  for (const std::string& name : test::hostile_names())
    if (!test::is_separators(name)) record += "Set\t" + name + "\r\n" + name + "\tSet\r\n";
  folder.write("game/~Vorlund/CurrentGameSet.txt", record);
  const auto before = folder.tree();
  GameTable table;
  read_game_set(*files, folder.path("game\\~Vorlund\\CurrentGameSet.txt"), table);
  EXPECT_GT(table.row_count(), 200);
  install_game_set(game, status, table);
  auto after = folder.tree();
  // A line that begins with a TAB has no group: its folder is "Set" in the store itself.
  EXPECT_EQ(after.extract("game/bait.dat").mapped(), "bait");
  EXPECT_EQ(after, before);
}

TEST_F(HostileRows, AHundredThousandOfThemEnd) {
  GameTable table;
  for (int row = 0; row < 100'000; ++row) table.add_row({"Set", "..\\..\\" + std::to_string(row)});
  table.g2update();
  EXPECT_EQ(install_game_set(game, status, table).missing.size(), 100'000U);
}

TEST_F(HostileRows, APatchFarPastTheExecutablesEndStaysInsideTheExecutable) {
  folder.write("game/~Vorlund/GameStore/Set/Far/far.LDR", "\xFE\xFF\xFF\xFF\xFF\xFF!!"s);
  install("Set", "Far");
  const std::string executable = folder.read("game/eaw.exe");
  EXPECT_EQ(executable.size(), 0x1000000U);
  EXPECT_EQ(executable.substr(0x1000000 - 3), "\0!!"s);
}

TEST_F(HostileRows, ANestedNameIsThePathThatConcatenationGives) {
  folder.write("game/~Vorlund/GameStore/Set/Dusk/sub/night.pal", "night");
  EXPECT_EQ(install("Set", "Dusk\\sub").copied, 1U);
  EXPECT_EQ(folder.read("game/night.pal"), "night");
  folder.write("game/~Vorlund/GameStore/Plain/plain.pal", "plain");
  EXPECT_EQ(install("", "Plain").copied, 1U) << "without a group the folder stands in the store itself";
  EXPECT_EQ(folder.read("game/plain.pal"), "plain");
}

TEST_F(HostileRows, EveryFolderThatThePlayerSeesCanBeInstalled) {
  int seen = 0;
  for (const std::string& name : test::hostile_names()) {
    if (!test::can_be_folder(name)) continue;
    folder.write("game/~Vorlund/GameStore/Set/" + name + "/file.dat", "of " + name);
    EXPECT_EQ(install("Set", name).copied, 1U) << testing::PrintToString(name);
    EXPECT_EQ(folder.read("game/file.dat"), "of " + name);
    ++seen;
  }
  EXPECT_GT(seen, 10);
}

#ifndef _WIN32
TEST_F(HostileRows, NamesThatOnlyLinuxKnowsAreNamesLikeOthers) {
  for (const std::string name : {"Battle: Berlin", "Ends in a dot.", "Ends in a blank ", "CON", "a?b"}) {
    folder.write("game/~Vorlund/GameStore/Set/" + name + "/x.dat", name);
    EXPECT_EQ(install("Set", name).copied, 1U) << name;
    folder.write("game/~Vorlund/GameStore/" + name + "/Inside/y.dat", name);
    EXPECT_EQ(install(name, "Inside").copied, 1U) << name;
    EXPECT_EQ(folder.read("game/x.dat") + folder.read("game/y.dat"), name + name);
  }
}

TEST_F(HostileRows, LinksInASetNeverLeadAWriteOutside) {
  namespace fs = std::filesystem;
  const fs::path root = fs::u8path(folder.path());
  const fs::path set = root / "game/~Vorlund/GameStore/Set/Links";
  fs::create_directories(set);
  fs::create_symlink(root / "outside/bait.dat", set / "link.dat");
  fs::create_directory_symlink(root / "outside", set / "linked folder");
  fs::create_symlink(root / "nowhere", set / "dangling.dat");
  fs::create_symlink(root / "outside/bait.dat", root / "game/victim.dat");
  fs::create_symlink(root / "outside/bait.dat", root / "game" / staging_name(0));
  fs::create_symlink(root / "outside/bait.dat", root / "game" / test::left_over_name());
  folder.write("game/~Vorlund/GameStore/Set/Links/victim.dat", "written inside");
  install("Set", "Links");
  EXPECT_EQ(folder.read("outside/bait.dat"), "bait");
  EXPECT_EQ(folder.read("game/link.dat"), "bait");
  EXPECT_FALSE(fs::is_symlink(root / "game/link.dat"));
  EXPECT_EQ(folder.read("game/victim.dat"), "written inside");
  EXPECT_FALSE(fs::is_symlink(root / "game/victim.dat"));
  EXPECT_FALSE(folder.has("game/dangling.dat"));
}

TEST_F(HostileRows, AnExecutableThatIsALinkIsPatchedInsideTheGameFolder) {
  namespace fs = std::filesystem;
  const fs::path root = fs::u8path(folder.path());
  fs::remove(root / "game/eaw.exe");
  fs::create_symlink(root / "outside/bait.dat", root / "game/eaw.exe");
  folder.write("game/~Vorlund/GameStore/Set/Patch/fix.LDR", "\x00\0\0\x00\0\0B"s);
  install("Set", "Patch");
  EXPECT_EQ(folder.read("outside/bait.dat"), "bait");
  EXPECT_EQ(folder.read("game/eaw.exe"), "Bait");
}

TEST_F(HostileRows, FileNamesThatHoldABackslashStayInTheStore) {
  namespace fs = std::filesystem;
  const fs::path root = fs::u8path(folder.path());
  const fs::path set = root / "game/~Vorlund/GameStore/Set/Names";
  fs::create_directories(set);
  { std::ofstream(set / "..\\..\\outside\\bait.dat") << "evil"; }
  { std::ofstream(set / "..\\evil.dat") << "evil"; }
  const auto before = folder.tree();
  EXPECT_EQ(install("Set", "Names").copied, 0U);
  EXPECT_EQ(folder.tree(), before);
}
#endif

}  // namespace
}  // namespace vorlund
