// Locks on folders between processes of Windows: what another one holds is free when it ends, however.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>

#include "disk/file_system.h"
#include "support/temporary_folder.h"
#include "windows/windows_path.h"

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
  std::wstring self(32768, L'\0');
  self.resize(GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size())));
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  ASSERT_NE(SetEnvironmentVariableW(kHoldMark, L"1"), 0);
  const BOOL started = CreateProcessW(self.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                                      to_wide(folder.path("Game")).c_str(), &start, &process);
  SetEnvironmentVariableW(kHoldMark, nullptr);
  ASSERT_NE(started, 0);
  for (int round = 0; round < 300 && !folder.has("Game\\held"); ++round) Sleep(100);
  ASSERT_TRUE(folder.has("Game\\held"));

  const auto files = make_platform_file_system();
  EXPECT_EQ(folder.read("Game\\held"), "");
  EXPECT_EQ(files->lock_folders({folder.path("GAME")}, 0ms).in_use(), folder.path("GAME"));
  ASSERT_NE(TerminateProcess(process.hProcess, 1), 0);
  WaitForSingleObject(process.hProcess, INFINITE);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  EXPECT_EQ(files->lock_folders({folder.path("Game")}, 10s).in_use(), "");
  EXPECT_EQ(folder.names("Game"), std::vector<std::string>{"held"});
}

}  // namespace
}  // namespace vorlund
