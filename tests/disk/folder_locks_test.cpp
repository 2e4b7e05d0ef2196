// Locks on folders: what is taken together, what is passed over, and what is deleted where they are held.
#include "disk/folder_locks.h"

#include <gtest/gtest.h>
#ifdef _WIN32
#include <windows.h>

#include <psapi.h>
#endif

#include <algorithm>
#include <map>
#include <optional>
#include <sstream>
#include <thread>

#include "disk/file_system.h"
#include "disk/process_number.h"
#include "support/recording_file_system.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::chrono_literals;
using Tree = std::map<std::string, std::string>;

class FolderLocksTest : public testing::Test {
 protected:
  FolderLocksTest() {
    for (const char* name : {"Game", "Store", "Saved\u00E9"}) folder_.make_folder(name);
  }

  FolderLocks lock(const std::vector<std::string>& names, std::chrono::milliseconds wait = 0ms) {
    std::vector<std::string> paths;
    for (const std::string& name : names) paths.push_back(folder_.path(name));
    return make_platform_file_system()->lock_folders(paths, wait);
  }

  test::TemporaryFolder folder_;
};

TEST_F(FolderLocksTest, AHeldFolderIsInUseUntilItIsLetGo) {
  std::optional<FolderLocks> held = lock({"Game", "Store"});
  EXPECT_EQ(held->in_use(), "");
  EXPECT_EQ(held->without_locks(), "");
  EXPECT_EQ(lock({"Store"}).in_use(), folder_.path("Store"));
  EXPECT_EQ(lock({"Saved\u00E9", "Game", "Store"}).in_use(), folder_.path("Game"));
  EXPECT_EQ(lock({"Saved\u00E9"}).in_use(), "");
  held.reset();
  EXPECT_EQ(lock({"Game", "Store"}).in_use(), "");
}

TEST_F(FolderLocksTest, WhereOneIsInUseNoneIsHeld) {
  const FolderLocks held = lock({"Store"});
  const FolderLocks refused = lock({"Game", "Store", "Saved\u00E9"});
  EXPECT_EQ(refused.in_use(), folder_.path("Store"));
  EXPECT_EQ(lock({"Game", "Saved\u00E9"}).in_use(), "");
}

TEST_F(FolderLocksTest, LocksThatAreHandedOnStayHeld) {
  FolderLocks first = lock({"Game"});
  const FolderLocks second = std::move(first);
  EXPECT_EQ(lock({"Game"}).in_use(), folder_.path("Game"));
}

TEST_F(FolderLocksTest, AFolderInAnySpellingIsOne) {
  const FolderLocks held = lock({"Saved\u00E9", "SAVED\u00C9\\", "saved\u00E9\\.", "Game\\\\"});
  EXPECT_EQ(held.in_use(), "");
  EXPECT_EQ(lock({"SAVED\u00C9"}).in_use(), folder_.path("SAVED\u00C9"));
  EXPECT_EQ(lock({"game"}).in_use(), folder_.path("game"));
}

TEST_F(FolderLocksTest, WhatIsNoFolderIsPassedOver) {
  folder_.write("file", "x");
  const FolderLocks held = lock({"nothing", "nothing\\below", "file", "file\\below", "Game"});
  EXPECT_EQ(held.in_use(), "");
  EXPECT_EQ(held.without_locks(), "");
  EXPECT_EQ(lock({"nothing", "file"}).in_use(), "");
  EXPECT_EQ(lock({"Game"}).in_use(), folder_.path("Game"));
  EXPECT_EQ(make_platform_file_system()->lock_folders({"", "\\\\"}, 0ms).in_use(), "");
}

TEST_F(FolderLocksTest, AFolderBelowOrAboveAHeldOneIsFree) {
  folder_.make_folder("Game\\Below");
  const FolderLocks held = lock({"Game"});
  EXPECT_EQ(lock({"Game\\Below", ""}).in_use(), "");
}

TEST_F(FolderLocksTest, ALockLeavesNothingOnTheDisk) {
  const Tree before = folder_.tree();
  const FolderLocks held = lock({"Game", "Store"});
  EXPECT_EQ(folder_.tree(), before);
}

TEST_F(FolderLocksTest, OneThatIsLetGoInTimeIsWaitedFor) {
  std::optional<FolderLocks> held = lock({"Game"});
  std::thread holder([&held] {
    std::this_thread::sleep_for(100ms);
    held.reset();
  });
  EXPECT_EQ(lock({"Store", "Game"}, 60s).in_use(), "");
  holder.join();
}

TEST_F(FolderLocksTest, OneThatIsNotLetGoIsWaitedForNoLongerThanAsked) {
  const FolderLocks held = lock({"Game"});
  const auto begun = std::chrono::steady_clock::now();
  EXPECT_EQ(lock({"Game"}, 150ms).in_use(), folder_.path("Game"));
  EXPECT_GE(std::chrono::steady_clock::now() - begun, 150ms);
}

#ifdef _WIN32
std::uint32_t running_process() {
  DWORD numbers[64];
  DWORD size = 0;
  EXPECT_NE(K32EnumProcesses(numbers, sizeof numbers, &size), 0);
  return *std::find_if(numbers, numbers + size / sizeof(DWORD),
                       [](DWORD number) { return number != 0 && number != own_process_number(); });
}
#else
std::uint32_t running_process() {
  return 1;
}
#endif

/// A name such as `staging_name` gives, of a process that runs.
std::string name_of_a_running_process() {
  std::ostringstream name;
  name << "~vorlund-" << kPlatformLetter << std::hex << running_process() << "-0.bak";
  return name.str();
}

TEST_F(FolderLocksTest, WhatACrashLeftGoesThoughItsNumberBelongsToARunningProgramNow) {
  ASSERT_FALSE(is_left_over(name_of_a_running_process()));
  for (const char* name : {"Game\\", "Store\\", "Saved\u00E9\\"}) {
    folder_.write(name + name_of_a_running_process(), "half");
  }
  lock({"game", "Store"});
  EXPECT_EQ(folder_.tree(),
            (Tree{{"Game/", ""}, {"Store/", ""}, {"Saved\u00E9/" + name_of_a_running_process(), "half"}}));
}

TEST_F(FolderLocksTest, WhereAFolderIsInUseWhatAnotherProgramIsWritingStays) {
  const FolderLocks held = lock({"Store"});
  folder_.write("Game\\" + name_of_a_running_process(), "half");
  folder_.write("Store\\" + name_of_a_running_process(), "half");
  const Tree before = folder_.tree();
  lock({"Game", "Store"});
  EXPECT_EQ(folder_.tree(), before);
}

TEST_F(FolderLocksTest, NothingElseIsDeleted) {
  const char other_platform = kPlatformLetter == 'p' ? 'w' : 'p';
  for (const std::string& name : {staging_name(0), staging_name(7), std::string("~vorlund-1.bak"),
                                  std::string("~vorlund-") + other_platform + "1-0.bak",
                                  std::string("~vorlund-") + kPlatformLetter + "01-0.bak",
                                  name_of_a_running_process() + ".bak", std::string("Planes.bak")}) {
    folder_.write("Game\\" + name, "x");
  }
  folder_.make_folder("Store\\" + name_of_a_running_process());
  const Tree before = folder_.tree();
  const FolderLocks held = lock({"Game", "Store"});
  EXPECT_EQ(folder_.tree(), before);
}

TEST_F(FolderLocksTest, ADoubleHandsTheLockOn) {
  const auto disk = make_platform_file_system();
  test::RecordingFileSystem files(*disk);
  const FolderLocks held = files.lock_folders({folder_.path("Game"), folder_.path("Store")}, 0ms);
  EXPECT_EQ(lock({"Store"}).in_use(), folder_.path("Store"));
  EXPECT_EQ(files.log(),
            std::vector<std::string>{"lock " + folder_.path("Game") + ", " + folder_.path("Store")});
}

/// What happens to made locks, in words.
using Log = std::vector<std::string>;

class MadeLock : public FolderLock {
 public:
  MadeLock(const std::string& name, Outcome outcome, Log& log)
      : FolderLock("path of " + name, name), outcome_(outcome), log_(log) {}
  Outcome take() override {
    log_.push_back("take " + identity());
    return outcome_;
  }
  void let_go() override { log_.push_back("let go " + identity()); }
  void delete_left_overs() override { log_.push_back("sweep " + identity()); }

 private:
  Outcome outcome_;
  Log& log_;
};

class MadeLocks : public testing::Test {
 protected:
  void add(const std::string& name, FolderLock::Outcome outcome) {
    locks_.push_back(std::make_unique<MadeLock>(name, outcome, log_));
  }

  std::vector<std::unique_ptr<FolderLock>> locks_;
  Log log_;
};

TEST_F(MadeLocks, ADiskThatKnowsNoLocksIsNamedAndPassedOver) {
  add("a", FolderLock::Outcome::kTaken);
  add("b", FolderLock::Outcome::kNoLocks);
  add("c", FolderLock::Outcome::kNoLocks);
  add("a", FolderLock::Outcome::kTaken);
  const FolderLocks locks(std::move(locks_), 0ms);
  EXPECT_EQ(locks.in_use(), "");
  EXPECT_EQ(locks.without_locks(), "path of b");
  EXPECT_EQ(log_, (Log{"take a", "take b", "take c", "sweep a"}));
}

TEST_F(MadeLocks, WhatWasTakenBeforeOneInUseIsLetGoAndNothingIsSwept) {
  add("a", FolderLock::Outcome::kTaken);
  add("b", FolderLock::Outcome::kTaken);
  add("c", FolderLock::Outcome::kInUse);
  add("d", FolderLock::Outcome::kTaken);
  const FolderLocks locks(std::move(locks_), 0ms);
  EXPECT_EQ(locks.in_use(), "path of c");
  EXPECT_EQ(log_, (Log{"take a", "take b", "take c", "let go a", "let go b"}));
}

TEST_F(MadeLocks, WithNoneThereIsNothingInUse) {
  const FolderLocks locks;
  EXPECT_EQ(locks.in_use(), "");
  EXPECT_EQ(locks.without_locks(), "");
}

}  // namespace
}  // namespace vorlund
