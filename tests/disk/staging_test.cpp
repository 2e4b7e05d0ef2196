// Copies that are written in a folder of their own before they are renamed to their place.
#include <gtest/gtest.h>

#include "disk/file_system.h"
#include "support/left_over.h"
#include "support/temporary_folder.h"

#ifdef _WIN32
#include <windows.h>

#include <sddl.h>

#include "windows/windows_path.h"
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace vorlund {
namespace {

using Tree = std::map<std::string, std::string>;

/// Lets everybody do everything in the folder.
void open_to_everybody(const std::string& folder) {
#ifdef _WIN32
  PSECURITY_DESCRIPTOR rights = nullptr;
  ASSERT_NE(ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;OICI;FA;;;WD)", SDDL_REVISION_1,
                                                                 &rights, nullptr),
            0);
  EXPECT_NE(SetFileSecurityW(to_wide(folder).c_str(), DACL_SECURITY_INFORMATION, rights), 0);
  LocalFree(rights);
#else
  EXPECT_EQ(::chmod(folder.c_str(), 0777), 0);
#endif
}

class Staging : public testing::Test {
 protected:
  Staging() {
    folder_.write("Set/a.dat", "new a");
    folder_.write("Set/b.dat", "new b");
    folder_.write("Game/A.DAT", "old a");
    folder_.make_folder("Store");
  }

  /// Copies both files of the set into the game folder, in one action.
  void copy_set(const std::string& staging, Durability durability = Durability::kCached) {
    const FileSystem::Action action(*files_, {}, staging);
    for (const char* name : {"a.dat", "b.dat"}) {
      const std::string bare = name;
      EXPECT_EQ(files_->copy_file(folder_.path("Set\\" + bare), folder_.path("Game\\" + bare), durability),
                CopyOutcome::kWritten);
    }
  }

  /// The game folder and the staging folder as they must be afterwards.
  void expect_copied(const Tree& others = {{"Store/", ""}}) const {
    Tree expected = others;
    expected.insert({{"Set/a.dat", "new a"}, {"Set/b.dat", "new b"}});
    expected.insert({{"Game/a.dat", "new a"}, {"Game/b.dat", "new b"}});
    EXPECT_EQ(folder_.tree(), expected);
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
  const std::string left_over_ = test::left_over_name();
};

TEST_F(Staging, ACopyIsWrittenInTheStagingFolderAndNotBesideItsTarget) {
  // What a crash left shows where something is written: it is swept there.
  folder_.write("Game/" + left_over_, "half");
  copy_set(folder_.path("STORE"));
  expect_copied({{"Game/" + left_over_, "half"}, {"Store/", ""}});
}

TEST_F(Staging, ACopyThatIsFlushedIsWrittenThereToo) {
  folder_.write("Game/" + left_over_, "half");
  copy_set(folder_.path("Store"), Durability::kFlushed);
  expect_copied({{"Game/" + left_over_, "half"}, {"Store/", ""}});
}

TEST_F(Staging, WhatACrashLeftInTheStagingFolderIsSwept) {
  folder_.write("Store/" + left_over_, "half of something");
  copy_set(folder_.path("Store"));
  expect_copied();
}

TEST_F(Staging, WhatThePlayerKeepsThereUnderItsNameStays) {
  folder_.write("Store/" + staging_name(0), "the player's");
  copy_set(folder_.path("Store"));
  expect_copied({{"Store/" + staging_name(0), "the player's"}});
}

TEST_F(Staging, WhereThereIsNoStagingFolderACopyIsWrittenBesideItsTarget) {
  copy_set(folder_.path("Missing"));
  expect_copied();
}

TEST_F(Staging, AnActionWithoutOneWritesBesideTheTargetAgain) {
  copy_set(folder_.path("Store"));
  folder_.write("Set/a.dat", "newer a");
  folder_.write("Store/" + left_over_, "half");
  const FileSystem::Action action(*files_);
  files_->copy_file(folder_.path("Set\\a.dat"), folder_.path("Game\\a.dat"), Durability::kCached);
  EXPECT_EQ(folder_.read("Game/a.dat"), "newer a");
  EXPECT_TRUE(folder_.has("Store/" + left_over_));
}

TEST_F(Staging, OfOtherPermissionsItServesNot) {
  open_to_everybody(folder_.path() + "/Store");
  folder_.write("Store/" + left_over_, "would be swept");
  copy_set(folder_.path("Store"));
  expect_copied({{"Store/" + left_over_, "would be swept"}});
}

#ifndef _WIN32

TEST_F(Staging, OfAnotherGroupItServesNot) {
  if (::chown((folder_.path() + "/Store").c_str(), static_cast<uid_t>(-1), 1) != 0)
    GTEST_SKIP() << "only root gives a folder to any group";
  folder_.write("Store/" + left_over_, "would be swept");
  copy_set(folder_.path("Store"));
  expect_copied({{"Store/" + left_over_, "would be swept"}});
}

#endif

}  // namespace
}  // namespace vorlund
