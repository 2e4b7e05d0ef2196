// A file that somebody else puts in the place of the one that is being written.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using Tree = std::map<std::string, std::string>;
namespace fs = std::filesystem;

/// Where a file is written that is renamed to its place afterwards.
enum class Stage { kBesideTheTarget, kStore };

class InterferedWrite : public testing::TestWithParam<Stage> {
 protected:
  InterferedWrite() {
    folder_.make_folder("Store");
    folder_.make_folder("Game");
    folder_.write("source", bytes_);
    folder_.write("Game/TARGET", "old");
  }

  const char* stage() const { return GetParam() == Stage::kStore ? "Store" : "Game"; }
  std::string neighbour() const { return std::string(stage()) + "/" + staging_name(0); }
  fs::path path_of(const std::string& name) const { return fs::path(folder_.path()) / name; }

  /// Copies the source onto the target; `interfere` is called once, while the copy is written.
  void copy_while(const std::function<void()>& interfere) {
    bool done = false;
    const auto pulse = [&] {
      if (!std::exchange(done, true)) interfere();
    };
    const FileSystem::Action action(*files_, pulse, GetParam() == Stage::kStore ? folder_.path("Store") : "");
    try {
      files_->copy_file(folder_.path("source"), folder_.path("Game\\target"), Durability::kFlushed);
    } catch (const ActionError& error) {
      reason_ = error.reason();
      EXPECT_EQ(error.path(), folder_.path("Game\\target"));
    }
    interfered_ = done;
  }

  const std::string bytes_ = std::string(5'000'000, 'n');
  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
  bool interfered_ = false;
  std::string reason_;  ///< of the error, "" when there was none
};

constexpr char kNoChance[] = "the disk shares blocks: a copy is written in one call here";

TEST_P(InterferedWrite, AStrangersFileInThePlaceOfARemovedOneStaysAndSoDoesTheTarget) {
  copy_while([this] {
    ASSERT_TRUE(fs::remove(path_of(neighbour())));
    folder_.write(neighbour(), "a stranger's");
  });
  if (!interfered_) GTEST_SKIP() << kNoChance;
  EXPECT_EQ(reason_, "another program has put a file of its own in the place of the new one, \"" +
                         staging_name(0) + "\"");
  Tree expected = {{"source", bytes_}, {"Game/TARGET", "old"}, {neighbour(), "a stranger's"}};
  if (GetParam() != Stage::kStore) expected["Store/"] = "";
  EXPECT_TRUE(folder_.tree() == expected);
}

TEST_P(InterferedWrite, AStrangersFileInThePlaceOfOneThatWasMovedAwayStaysAndSoDoesTheTarget) {
  copy_while([this] {
    fs::rename(path_of(neighbour()), path_of("elsewhere"));
    folder_.write(neighbour(), "a stranger's");
  });
  if (!interfered_) GTEST_SKIP() << kNoChance;
  EXPECT_NE(reason_, "");
  EXPECT_EQ(folder_.read("Game/TARGET"), "old");
  EXPECT_EQ(folder_.read(neighbour()), "a stranger's");
}

TEST_P(InterferedWrite, ALinkInItsPlaceIsNotTakenForWhatItLeadsTo) {
  copy_while([this] {
    fs::rename(path_of(neighbour()), path_of("elsewhere"));
    fs::create_symlink(path_of("elsewhere"), path_of(neighbour()));
  });
  if (!interfered_) GTEST_SKIP() << kNoChance;
  EXPECT_NE(reason_, "");
  EXPECT_EQ(folder_.read("Game/TARGET"), "old");
  EXPECT_TRUE(fs::is_symlink(path_of(neighbour())));
}

TEST_P(InterferedWrite, ARemovedFileIsAnErrorAndTheTargetStays) {
  copy_while([this] { ASSERT_TRUE(fs::remove(path_of(neighbour()))); });
  if (!interfered_) GTEST_SKIP() << kNoChance;
  EXPECT_EQ(reason_, "No such file or directory");
  EXPECT_EQ(folder_.names("Game"), std::vector<std::string>{"TARGET"});
  EXPECT_EQ(folder_.read("Game/TARGET"), "old");
}

INSTANTIATE_TEST_SUITE_P(Stages, InterferedWrite, testing::Values(Stage::kBesideTheTarget, Stage::kStore));

}  // namespace
}  // namespace vorlund
