// Locks on folders between processes of Windows: what another one holds is free when it ends, however.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>

#include "disk/file_system.h"
#include "support/another_program.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::chrono_literals;

constexpr wchar_t kHoldMark[] = L"VORLUND_TEST_HOLDS";

/// The test program starts itself as the other one: it holds its current folder and leaves a note there.
const bool kStartedAsHolder = [] {
  if (GetEnvironmentVariableW(kHoldMark, nullptr, 0) == 0) return false;
  const auto files = make_platform_file_system();
  const FolderLocks locks = files->lock_folders({files->current_folder()}, 0ms);
  files->replace_file("held", locks.in_use(), Durability::kCached);
  Sleep(60'000);
  std::_Exit(0);
}();

TEST(WindowsFolderLocksTest, WhatAnotherProgramHoldsIsFreeWhenItIsEnded) {
  const test::TemporaryFolder folder;
  folder.make_folder("Game");
  const test::AnotherProgram other(kHoldMark, L"1", folder.path("Game"));
  for (int round = 0; round < 300 && !folder.has("Game\\held"); ++round) Sleep(100);
  ASSERT_TRUE(folder.has("Game\\held"));

  const auto files = make_platform_file_system();
  EXPECT_EQ(files->read_file(folder.path("Game\\held")), "");
  EXPECT_EQ(files->lock_folders({folder.path("GAME")}, 0ms).in_use(), folder.path("GAME"));
  other.end();
  EXPECT_EQ(files->lock_folders({folder.path("Game")}, 10s).in_use(), "");
  EXPECT_EQ(folder.names("Game"), std::vector<std::string>{"held"});
}

}  // namespace
}  // namespace vorlund
