// The game directory: start-up, confirming and changing it, and the paths formed from it.
#include "panes/game_directory.h"

#include <gtest/gtest.h>

#include "disk/store.h"
#include "support/forwarding_file_system.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using Names = std::vector<std::string>;

/// The disk, with a current folder of the test's choice.
class ElsewhereFileSystem : public test::ForwardingFileSystem {
 public:
  ElsewhereFileSystem(FileSystem& inner, std::string current)
      : ForwardingFileSystem(inner), current_(std::move(current)) {}
  std::string current_folder() override { return current_; }

 private:
  std::string current_;
};

/// The same, and no folder holds anything.
class EmptyFileSystem : public ElsewhereFileSystem {
 public:
  using ElsewhereFileSystem::ElsewhereFileSystem;
  std::vector<FolderEntry> entries(std::string_view) override { return {}; }
};

class GameDirectoryTest : public testing::Test {
 protected:
  GameDirectoryTest() {
    folder_.make_folder("Game\\Music");
    folder_.make_folder("Game\\Savedata");
    game_.start();
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> disk_ = make_platform_file_system();
  ElsewhereFileSystem files_{*disk_, folder_.path("Game")};
  GameDirectory game_{files_};
};

TEST_F(GameDirectoryTest, StartUpTakesTheCurrentFolderAndOffersIt) {
  EXPECT_EQ(game_.Label16.caption, folder_.path("Game"));
  EXPECT_EQ(game_.Dir6.path, folder_.path("Game"));
  EXPECT_EQ(game_.Dir6.names, (Names{"Music", "Savedata"}));
  EXPECT_TRUE(game_.Dir6.visible);
}

TEST_F(GameDirectoryTest, OpeningAFolderMakesItTheGameDirectory) {
  game_.open_folder(1);
  EXPECT_EQ(game_.Label16.caption, folder_.path("Game") + "\\Savedata");
  EXPECT_EQ(game_.Dir6.names, Names());
}

TEST_F(GameDirectoryTest, OpeningTheParentLeadsUp) {
  game_.open_folder(-2);
  EXPECT_EQ(game_.Label16.caption, folder_.path());
  EXPECT_EQ(game_.Dir6.names, Names{"Game"});
  EXPECT_EQ(game_.Dir4.names, Names{"Game"});
}

TEST_F(GameDirectoryTest, ConfirmingHidesTheControlsThatAsk) {
  game_.confirm();
  EXPECT_FALSE(game_.Label17.visible);
  EXPECT_FALSE(game_.Label16.visible);
  EXPECT_FALSE(game_.Dir6.visible);
}

TEST(GameDirectory, OutsideAnyFolderItStartsEmpty) {
  const auto disk = make_platform_file_system();
  const test::TemporaryFolder folder;
  ElsewhereFileSystem files(*disk, folder.path("gone"));
  GameDirectory game(files);
  game.start();
  EXPECT_EQ(game.Dir6.names, Names());
}

TEST_F(GameDirectoryTest, AClickBesideTheFoldersStays) {
  game_.open_folder(-1);
  game_.open_folder(2);
  EXPECT_EQ(game_.Label16.caption, folder_.path("Game"));
}

TEST(GameDirectory, ARootIsItsOwnParentAndTakesNoSecondSeparator) {
  const auto disk = make_platform_file_system();
  const struct {
    const char* folder;
    const char* parent;
  } cases[] = {{"C:\\", "C:\\"}, {"C:\\Games", "C:\\"}, {"\\", "\\"}, {"/Games", "/"}, {"Games", "Games"}};
  for (const auto& one : cases) {
    EmptyFileSystem files(*disk, one.folder);
    GameDirectory game(files);
    game.start();
    game.open_folder(-2);
    EXPECT_EQ(game.Label16.caption, one.parent) << one.folder;
  }
  EmptyFileSystem files(*disk, "C:\\");
  GameDirectory game(files);
  game.start();
  game.Dir6.names = {"Games"};
  game.open_folder(0);
  EXPECT_EQ(game.Label16.caption, "C:\\Games");
}

}  // namespace
}  // namespace vorlund
