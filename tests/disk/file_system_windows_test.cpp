// What only Windows has: attributes, drive roots, open files that are locked, and starting a program
// directly.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cstdlib>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "support/left_over.h"
#include "support/temporary_folder.h"
#include "windows/windows_file.h"
#include "windows/windows_path.h"

namespace vorlund {
namespace {

using Names = std::vector<std::string>;
using Tree = std::map<std::string, std::string>;

constexpr wchar_t kStartMark[] = L"VORLUND_TEST_STARTED";

/// The test program starts itself as the game: it then leaves a note in its current folder and ends.
const bool kStartedAsGame = [] {
  if (GetEnvironmentVariableW(kStartMark, nullptr, 0) == 0) return false;
  const auto files = make_platform_file_system();
  files->replace_file("started", files->current_folder(), Durability::kCached);
  std::_Exit(0);
}();

class WindowsFileSystemTest : public testing::Test {
 protected:
  std::wstring wide(const std::string& name) const { return long_path(folder_.path(name), EntryKind::kFile); }

  void set_attributes(const std::string& name, DWORD attributes) const {
    ASSERT_NE(SetFileAttributesW(wide(name).c_str(), attributes), 0) << name;
  }

  CopyOutcome copy(const std::string& source, const std::string& target) {
    return files_->copy_file(folder_.path(source), folder_.path(target), Durability::kCached);
  }

  void replace(const std::string& name, std::string_view bytes) {
    files_->replace_file(folder_.path(name), bytes, Durability::kCached);
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
};

TEST_F(WindowsFileSystemTest, TheHiddenAndTheSystemAttributeHide) {
  for (const char* name : {"hidden", "system", "seen"}) folder_.write(name, "");
  set_attributes("hidden", FILE_ATTRIBUTE_HIDDEN);
  set_attributes("system", FILE_ATTRIBUTE_SYSTEM);
  std::map<std::string, bool> hidden;
  for (const FolderEntry& entry : files_->entries(folder_.path())) hidden[entry.name] = entry.hidden;
  EXPECT_EQ(hidden, (std::map<std::string, bool>{{"hidden", true}, {"system", true}, {"seen", false}}));
}

TEST_F(WindowsFileSystemTest, AReplacedFileKeepsItsAttributesAndACopyTakesNone) {
  folder_.write("source", "new");
  folder_.write("Target", "old");
  set_attributes("source", FILE_ATTRIBUTE_HIDDEN);
  set_attributes("Target", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  EXPECT_EQ(copy("source", "target"), CopyOutcome::kWritten);
  EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}, {"target", "new"}}));
  const DWORD attributes = GetFileAttributesW(wide("target").c_str());
  EXPECT_EQ(attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM),
            DWORD{FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM});
  EXPECT_EQ(copy("source", "fresh"), CopyOutcome::kWritten);
  EXPECT_EQ(GetFileAttributesW(wide("fresh").c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(WindowsFileSystemTest, AReadOnlyFileIsNeitherReplacedNorRemoved) {
  folder_.write("source", "new");
  folder_.write("Target", "old");
  set_attributes("Target", FILE_ATTRIBUTE_READONLY);
  for (const char* name : {"Target", "TARGET"}) {
    try {
      copy("source", name);
      ADD_FAILURE() << "no error";
    } catch (const ActionError& error) {
      EXPECT_EQ(error.reason(), "the file is read-only");
    }
    EXPECT_THROW(replace(name, "new"), ActionError);
    EXPECT_THROW(files_->remove_file(folder_.path(name)), ActionError);
  }
  EXPECT_EQ(folder_.tree(), (Tree{{"Target", "old"}, {"source", "new"}}));
  folder_.write("equal", "old");
  EXPECT_EQ(copy("equal", "Target"), CopyOutcome::kUnchanged);
  EXPECT_EQ(files_->copy_file(folder_.path("equal"), folder_.path("Target"), Durability::kFlushed),
            CopyOutcome::kUnchanged);
}

TEST_F(WindowsFileSystemTest, AReadOnlyOrHiddenLeftOverIsSwept) {
  const std::string neighbour = test::left_over_name();
  for (const DWORD attributes : {DWORD{FILE_ATTRIBUTE_READONLY}, DWORD{FILE_ATTRIBUTE_HIDDEN}}) {
    folder_.write(neighbour, "half");
    set_attributes(neighbour, attributes);
    replace("target", "new");
    EXPECT_EQ(folder_.tree(), (Tree{{"target", "new"}}));
  }
}

TEST_F(WindowsFileSystemTest, ATargetThatAnotherProgramHasLockedStaysAndLeavesNoNeighbour) {
  folder_.write("source", "new");
  folder_.write("target", "old");
  {
    const WindowsHandle locked(CreateFileW(wide("target").c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                           OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(locked.is_open());
    EXPECT_THROW(copy("source", "target"), ActionError);
    EXPECT_THROW(replace("target", "new"), ActionError);
    EXPECT_THROW(files_->read_file(folder_.path("target")), ActionError);
  }
  EXPECT_EQ(folder_.tree(), (Tree{{"source", "new"}, {"target", "old"}}));
}

TEST_F(WindowsFileSystemTest, WhatIsBeingWrittenIsOpenToNobodyElse) {
  folder_.write("source", std::string(3'000'000, 'n'));
  folder_.write("target", "old");
  folder_.write("stranger", "a stranger's");
  int attempts = 0;
  const FileSystem::Action action(*files_, [&] {
    const std::wstring neighbour = wide(staging_name(0));
    ++attempts;
    EXPECT_EQ(DeleteFileW(neighbour.c_str()), 0);
    EXPECT_EQ(MoveFileExW(neighbour.c_str(), wide("elsewhere").c_str(), 0), 0);
    EXPECT_EQ(MoveFileExW(wide("stranger").c_str(), neighbour.c_str(), MOVEFILE_REPLACE_EXISTING), 0);
  });
  EXPECT_EQ(copy("source", "target"), CopyOutcome::kWritten);
  EXPECT_GT(attempts, 0);
  EXPECT_EQ(folder_.names(), (Names{"source", "stranger", "target"}));
  EXPECT_TRUE(folder_.read("target") == folder_.read("source"));
}

TEST_F(WindowsFileSystemTest, PathsBelowADriveRootMayDoubleTheBackslash) {
  const std::string name = "vorlund caf\u00E9 " + std::to_string(GetCurrentProcessId()) + ".txt";
  const std::string path = folder_.path().substr(0, 3) + "\\" + name;
  ASSERT_EQ(path.substr(1, 3), ":\\\\");
  files_->replace_file(path, "x", Durability::kFlushed);
  EXPECT_TRUE(files_->FileExists(path));
  EXPECT_EQ(files_->read_file(path), "x");
  EXPECT_TRUE(files_->FolderExists(folder_.path().substr(0, 3)));
  const std::vector<FolderEntry> entries = files_->entries(folder_.path().substr(0, 3));
  EXPECT_EQ(
      std::count_if(entries.begin(), entries.end(), [&](const auto& entry) { return entry.name == name; }),
      1);
  files_->remove_file(path);
  EXPECT_FALSE(files_->FileExists(path));
}

TEST_F(WindowsFileSystemTest, WildcardsAndStreamsAreNoNames) {
  folder_.write("File.dat", "bytes");
  for (const char* name :
       {"*", "File.*", "F?le.dat", "File.dat:x", "File.dat::$DATA", "<.dat", "File\"dat"}) {
    EXPECT_FALSE(files_->FileExists(folder_.path(name))) << name;
    EXPECT_THROW(replace(name, "x"), ActionError) << name;
    EXPECT_THROW(files_->remove_file(folder_.path(name)), ActionError) << name;
    EXPECT_THROW(files_->read_file(folder_.path(name)), ActionError) << name;
  }
  EXPECT_EQ(folder_.tree(), (Tree{{"File.dat", "bytes"}}));
}

TEST(WindowsErrors, OfADiskThatFailsTellNothingAndAnAnswerDoes) {
  for (const DWORD error : {ERROR_CRC, ERROR_IO_DEVICE, ERROR_TOO_MANY_OPEN_FILES, ERROR_NOT_ENOUGH_MEMORY,
                            ERROR_NO_SYSTEM_RESOURCES}) {
    EXPECT_TRUE(tells_nothing(error)) << error;
  }
  for (const DWORD error : {ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND, ERROR_INVALID_NAME,
                            ERROR_ACCESS_DENIED, ERROR_NOT_READY, ERROR_BAD_NETPATH}) {
    EXPECT_FALSE(tells_nothing(error)) << error;
  }
}

TEST(WindowsErrors, OfAFileThatIsOpenElsewhereSayThatItIsInUse) {
  for (const DWORD error :
       {ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION, ERROR_DELETE_PENDING, ERROR_USER_MAPPED_FILE}) {
    EXPECT_TRUE(says_in_use(error)) << error;
  }
  EXPECT_FALSE(says_in_use(ERROR_ACCESS_DENIED));
}

TEST_F(WindowsFileSystemTest, AnErrorCarriesTheSystemsText) {
  try {
    files_->read_file(folder_.path("nothing"));
    ADD_FAILURE() << "no error";
  } catch (const ActionError& error) {
    EXPECT_FALSE(error.reason().empty());
    EXPECT_EQ(error.reason().find_first_of("\r\n"), std::string::npos);
  }
}

TEST_F(WindowsFileSystemTest, AProgramRunsInItsFolder) {
  std::wstring self(32768, L'\0');
  self.resize(GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size())));
  folder_.make_folder("Game");
  files_->copy_file(from_wide(self), folder_.path("Game\\eaw.exe"), Durability::kCached);

  ASSERT_NE(SetEnvironmentVariableW(kStartMark, L"1"), 0);
  files_->start_program(folder_.path("Game") + "\\\\eaw.exe", folder_.path("Game"));
  SetEnvironmentVariableW(kStartMark, nullptr);
  for (int round = 0; round < 300 && !folder_.has("Game\\started"); ++round) Sleep(100);
  ASSERT_TRUE(folder_.has("Game\\started"));
  EXPECT_EQ(folder_.read("Game\\started"), folder_.path("Game"));
  for (int round = 0; round < 100 && DeleteFileW(wide("Game\\eaw.exe").c_str()) == 0; ++round) Sleep(100);
}

}  // namespace
}  // namespace vorlund
