// Files that another program has open: for a moment they are waited for, and then the error says what it is.
#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <cstdlib>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "support/another_program.h"
#include "support/temporary_folder.h"
#include "windows/windows_file.h"
#include "windows/windows_path.h"

namespace vorlund {
namespace {

using Tree = std::map<std::string, std::string>;
using Clock = std::chrono::steady_clock;

constexpr wchar_t kHolds[] = L"VORLUND_TEST_HOLDS_FILE";

/// The test program starts itself as the other one: it opens a file of its current folder to itself alone, or
/// so that others may delete it, leaves a note and ends after a while. "0" stands for 300 ms, "1" for good
/// and "d" for 300 ms and deletable; the file's name follows.
const bool kStartedAsHolder = [] {
  wchar_t words[64];
  if (GetEnvironmentVariableW(kHolds, words, 64) == 0) return false;
  const DWORD share = words[0] == L'd' ? FILE_SHARE_DELETE : 0;
  const WindowsHandle held(
      CreateFileW(words + 1, GENERIC_READ | DELETE, share, nullptr, OPEN_EXISTING, 0, nullptr));
  if (!held.is_open()) std::_Exit(2);
  if (share != 0) DeleteFileW(words + 1);
  WindowsHandle(CreateFileW(L"held", GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr)).close();
  Sleep(words[0] == L'1' ? 60'000 : 300);
  std::_Exit(0);
}();

class WindowsPatienceTest : public testing::Test {
 protected:
  WindowsPatienceTest() {
    folder_.write("source", "new");
    folder_.write("target", "old");
  }

  /// Starts the other program and waits until it holds what it was told to.
  std::unique_ptr<test::AnotherProgram> holder(const std::wstring& words) {
    auto other = std::make_unique<test::AnotherProgram>(kHolds, words.c_str(), folder_.path());
    for (int round = 0; round < 1000 && !folder_.has("held"); ++round) Sleep(10);
    EXPECT_TRUE(folder_.has("held"));
    while (DeleteFileW(to_wide(folder_.path("held")).c_str()) == 0 && folder_.has("held")) Sleep(1);
    return other;
  }

  /// Works inside an action, counting its pulses.
  void act(const std::function<void()>& work) {
    pulses_ = 0;
    const FileSystem::Action action(*files_, [this] { ++pulses_; });
    const Clock::time_point begin = Clock::now();
    try {
      work();
      reason_.clear();
    } catch (const ActionError& error) {
      reason_ = error.reason();
    }
    waited_ = Clock::now() - begin;
  }

  void copy() { files_->copy_file(folder_.path("source"), folder_.path("target"), Durability::kCached); }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
  int pulses_ = 0;
  std::string reason_;
  Clock::duration waited_{};
};

TEST_F(WindowsPatienceTest, ATargetThatIsHeldForAMomentIsReplacedWhenItIsFree) {
  const auto other = holder(L"0target");
  act([this] { copy(); });
  EXPECT_EQ(reason_, "");
  EXPECT_GT(pulses_, 0);
  EXPECT_EQ(other->wait(), 0U);
  EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}, {"target", "new"}}));
}

TEST_F(WindowsPatienceTest, ASourceThatIsHeldForAMomentIsReadWhenItIsFree) {
  const auto other = holder(L"0source");
  act([this] { copy(); });
  EXPECT_EQ(reason_, "");
  EXPECT_GT(pulses_, 0);
  EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}, {"target", "new"}}));
}

TEST_F(WindowsPatienceTest, AFileThatIsHeldForAMomentIsDeletedAndRespelledWhenItIsFree) {
  auto other = holder(L"0target");
  act([this] { files_->remove_file(folder_.path("target")); });
  EXPECT_EQ(reason_, "");
  EXPECT_GT(pulses_, 0);
  EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}}));

  folder_.write("TARGET", "new");
  other = holder(L"0TARGET");
  act([this] { copy(); });
  EXPECT_EQ(reason_, "");
  EXPECT_GT(pulses_, 0);
  EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}, {"target", "new"}}));
}

TEST_F(WindowsPatienceTest, ANameWhoseDeletionIsPendingIsWaitedFor) {
  folder_.write(staging_name(0), "half");
  const auto other = holder(L"d" + to_wide(staging_name(0)));
  act([this] { copy(); });
  EXPECT_EQ(reason_, "");
  EXPECT_EQ(other->wait(), 0U);
  EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}, {"target", "new"}}));
}

TEST_F(WindowsPatienceTest, WhatIsHeldForGoodStaysAndTheErrorNamesTheLikelyCause) {
  const std::string in_use = "another program, perhaps the game itself, has it open";
  const auto other = holder(L"1target");
  const std::function<void()> works[] = {
      [this] { copy(); },
      [this] { files_->replace_file(folder_.path("target"), "newer", Durability::kCached); },
      [this] { files_->remove_file(folder_.path("target")); },
      [this] { files_->read_file(folder_.path("target")); },
  };
  for (const auto& work : works) {
    act(work);
    EXPECT_EQ(reason_, in_use);
    EXPECT_GE(waited_, std::chrono::seconds(1));
    EXPECT_LT(waited_, std::chrono::seconds(10));
    EXPECT_GT(pulses_, 5);
  }
  other->end();
  EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}, {"target", "old"}}));
}

}  // namespace
}  // namespace vorlund
