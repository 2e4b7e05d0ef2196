// A disk that fails is not a disk that holds nothing: single calls of the system fail, and what the program
// makes of it is looked at.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <optional>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "disk/listing.h"
#include "disk/patch_file.h"
#include "support/failing_calls.h"
#include "support/left_over.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using test::FailingCall;
using Names = std::vector<std::string>;
using Tree = std::map<std::string, std::string>;

constexpr int kFailures[] = {EIO, EMFILE, ENFILE, ENOMEM};
constexpr int kMissing[] = {ENOENT, ENOTDIR, ENAMETOOLONG, ELOOP, EINVAL, EILSEQ};

/// The parameter says whether the operations stand within one action.
class PosixFaults : public testing::TestWithParam<bool> {
 protected:
  PosixFaults() {
    folder_.write("Game/Planes.dat", "planes");
    folder_.write("Game/other.dat", "other");
    if (GetParam()) action_.emplace(*files_);
  }

  std::string path(std::string_view name) const { return folder_.path(name); }

  /// The error that the operation ends with, none where it ends well.
  static std::optional<ActionError> error_of(const std::function<void()>& operation) {
    try {
      operation();
    } catch (const ActionError& error) {
      return error;
    }
    return std::nullopt;
  }

  CopyOutcome copy(const char* source, const char* target) {
    return files_->copy_file(path(source), path(target), Durability::kFlushed);
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
  std::optional<FileSystem::Action> action_;
};

TEST_P(PosixFaults, ALookThatFailsIsAnErrorThatNamesThePath) {
  const struct {
    const char* function;
    const char* ending;
  } calls[] = {{"openat", "Game"}, {"fstatat", "Planes.dat"}};
  for (const auto& call : calls) {
    for (const int error : kFailures) {
      const FailingCall failing(call.function, call.ending, error);
      const auto found = error_of([&] { files_->FileExists(path("Game\\Planes.dat")); });
      ASSERT_TRUE(found) << call.function << " " << error;
      EXPECT_EQ(found->path(), path("Game\\Planes.dat"));
      EXPECT_NE(found->reason(), "");
      EXPECT_GT(FailingCall::count(), 0);
      EXPECT_THROW(files_->is_there(path("Game\\Planes.dat")), ActionError) << call.function << " " << error;
      EXPECT_THROW(files_->FolderExists(path("Game\\Planes.dat")), ActionError) << call.function;
    }
  }
  EXPECT_EQ(files_->take_unseen(), Names());
}

TEST_P(PosixFaults, WhereSpellingsCannotBeSoughtNothingIsTakenForMissing) {
  for (const char* name : {"Game\\PLANES.DAT", "GAME\\Planes.dat"}) {
    for (const int error : kFailures) {
      for (const char* function : {"getdents64", "openat"}) {
        const bool in_game = std::string(name).starts_with("Game");
        const std::string ending = function == std::string("openat") ? "."
                                   : in_game                         ? "/Game"
                                                                     : folder_.path();
        const FailingCall failing(function, ending, error);
        EXPECT_THROW(files_->FileExists(path(name)), ActionError) << name << " " << function << " " << error;
        EXPECT_THROW(files_->FolderExists(path(name)), ActionError)
            << name << " " << function << " " << error;
      }
    }
  }
  EXPECT_TRUE(files_->FileExists(path("Game\\PLANES.DAT")));
}

TEST_P(PosixFaults, WhatTheDiskSaysIsMissingDoesNotExist) {
  for (const int error : kMissing) {
    const FailingCall failing("fstatat", "Planes.dat", error);
    EXPECT_FALSE(files_->is_there(path("Game\\Planes.dat"))) << error;
    EXPECT_FALSE(files_->FileExists(path("Game\\Planes.dat"))) << error;
    EXPECT_FALSE(files_->FolderExists(path("Game\\Planes.dat"))) << error;
  }
  EXPECT_EQ(files_->take_unseen(), Names());
}

TEST_P(PosixFaults, WhatThereIsNoRightToLookAtDoesNotExistAndIsTold) {
  {
    const FailingCall failing("openat", "Game", EACCES);
    EXPECT_FALSE(files_->FileExists(path("Game\\other.dat")));
    EXPECT_FALSE(files_->lies_inside(path("Game"), path("")));
  }
  {
    const FailingCall failing("fstatat", "Planes.dat", EACCES);
    EXPECT_FALSE(files_->FileExists(path("Game\\Planes.dat")));
    EXPECT_FALSE(files_->FileExists(path("Game\\Planes.dat")));
    EXPECT_FALSE(files_->FolderExists(path("Game\\Planes.dat")));
    EXPECT_THROW(files_->is_there(path("Game\\Planes.dat")), ActionError);
  }
  EXPECT_TRUE(files_->FileExists(path("Game\\other.dat")));
  EXPECT_EQ(files_->take_unseen(), (Names{path("Game"), path("Game\\Planes.dat"), path("Game\\other.dat")}));
  EXPECT_EQ(files_->take_unseen(), Names()) << "it is told once";
}

TEST_P(PosixFaults, WhatWasUnseenBeforeAnActionIsStillTold) {
  action_.reset();
  {
    const FailingCall failing("fstatat", "Planes.dat", EACCES);
    EXPECT_FALSE(files_->FileExists(path("Game\\Planes.dat")));
  }
  action_.emplace(*files_);
  EXPECT_EQ(files_->take_unseen(), Names{path("Game\\Planes.dat")});
}

TEST_P(PosixFaults, AFileThatThereIsNoRightToLookAtIsNotMadeAnew) {
  const FailingCall failing("fstatat", "Planes.dat", EACCES);
  PatchedFile file(*files_, path("Game\\Planes.dat"));
  EXPECT_THROW(file.patch([&file] { file.open().put(0, "A"); }), ActionError);
  EXPECT_EQ(folder_.read("Game/Planes.dat"), "planes");
}

TEST_P(PosixFaults, AListingThatFailsIsNeverAnEmptyOne) {
  for (const int error : {EIO, EMFILE, ENFILE, ENOMEM, EACCES}) {
    for (const char* function : {"openat", "getdents64"}) {
      const FailingCall failing(function, "Game", error);
      const auto found = error_of([&] { list_files(*files_, path("Game"), "*.*"); });
      ASSERT_TRUE(found) << function << " " << error;
      EXPECT_EQ(found->path(), path("Game"));
    }
  }
  for (const int error : kMissing) {
    const FailingCall failing("openat", "Game", error);
    EXPECT_EQ(list_files(*files_, path("Game"), "*.*"), Names()) << error;
  }
}

TEST_P(PosixFaults, AnEntryThatCannotBeToldIsAnErrorThatNamesIt) {
  ASSERT_EQ(::symlink("Planes.dat", (folder_.path() + "/Game/link.dat").c_str()), 0);
  for (const int error : kFailures) {
    const FailingCall failing("fstatat", "link.dat", error);
    const auto found = error_of([&] { files_->entries(path("Game")); });
    ASSERT_TRUE(found) << error;
    EXPECT_EQ(found->path(), path("Game\\link.dat"));
  }
  for (const int error : {ENOENT, ELOOP}) {
    const FailingCall failing("fstatat", "link.dat", error);
    EXPECT_EQ(list_files(*files_, path("Game"), "*.*"), (Names{"other.dat", "Planes.dat"})) << error;
  }
  EXPECT_EQ(files_->take_unseen(), Names());
  const FailingCall failing("fstatat", "link.dat", EACCES);
  EXPECT_EQ(list_files(*files_, path("Game"), "*.*"), (Names{"other.dat", "Planes.dat"}));
  EXPECT_EQ(files_->take_unseen(), Names{path("Game\\link.dat")});
}

TEST_P(PosixFaults, WhereTheDiskCannotTellWhatLiesAboveThatIsAnError) {
  folder_.make_folder("Game/Savedata/Home");
  for (const int error : {EIO, EMFILE, ENFILE, ENOMEM, EACCES}) {
    const FailingCall failing("openat", "..", error);
    EXPECT_THROW(files_->lies_inside(path("Game\\Savedata\\Home"), path("Game")), ActionError) << error;
  }
  for (const int error : kFailures) {
    const FailingCall failing("openat", "Home", error);
    EXPECT_THROW(files_->lies_inside(path("Game\\Savedata\\Home"), path("Game")), ActionError) << error;
  }
  EXPECT_TRUE(files_->lies_inside(path("Game\\Savedata\\Home"), path("Game")));
}

TEST_P(PosixFaults, ALookIsTakenUpAgainAfterASignal) {
  const FailingCall failing("fstatat", "Planes.dat", EINTR, 2);
  EXPECT_TRUE(files_->FileExists(path("Game\\Planes.dat")));
  EXPECT_EQ(FailingCall::count(), 2);
}

TEST_P(PosixFaults, AReadOnlyFileOfAnotherSpellingIsNotSweptAwayWhereItCannotBeSeen) {
  folder_.write("source", "new");
  folder_.write("Game/PLANES.DAT", "precious");
  ASSERT_EQ(::chmod((folder_.path() + "/Game/PLANES.DAT").c_str(), 0444), 0);
  const FailingCall failing("fstatat", "PLANES.DAT", EIO);
  EXPECT_THROW(copy("source", "Game\\Planes.dat"), ActionError);
  EXPECT_EQ(folder_.read("Game/PLANES.DAT"), "precious");
  EXPECT_EQ(folder_.read("Game/Planes.dat"), "planes");
}

TEST_P(PosixFaults, ALeftOverThatABadDiskKeepsIsAnErrorAndOneThatMustStayIsNone) {
  folder_.write("Game/" + test::left_over_name(), "half");
  const auto other = make_platform_file_system();  // within an action a folder is swept but once
  for (const int error : {EACCES, EPERM, EBUSY}) {
    const FailingCall failing("unlinkat", test::left_over_name(), error);
    other->replace_file(path("Game\\new.dat"), "new", Durability::kCached);
    EXPECT_EQ(FailingCall::count(), 1);
  }
  for (const int error : {EIO, ENOMEM}) {
    const FailingCall failing("unlinkat", test::left_over_name(), error);
    EXPECT_THROW(
        make_platform_file_system()->replace_file(path("Game\\new.dat"), "newer", Durability::kCached),
        ActionError);
  }
  EXPECT_EQ(folder_.read("Game/new.dat"), "new");
}

TEST_P(PosixFaults, AFolderThatCannotBeListedIsNotWrittenIn) {
  const auto fresh = make_platform_file_system();  // within an action the names are known
  for (const int error : {EIO, ENOMEM, EACCES, EPERM}) {
    const FailingCall failing("getdents64", "Game", error);
    EXPECT_THROW(fresh->replace_file(path("Game\\Planes.dat"), "new", Durability::kCached), ActionError)
        << error;
  }
  EXPECT_EQ(folder_.read("Game/Planes.dat"), "planes");
}

/// Makes a file whose first half is a hole.
void write_with_hole(const std::string& file, std::size_t size) {
  const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
  const std::string bytes(size / 2, 'x');
  EXPECT_EQ(::pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(size / 2)),
            static_cast<ssize_t>(bytes.size()));
  ::close(descriptor);
}

TEST_P(PosixFaults, AFileWithHolesIsCopiedWholeWhereTheDiskCannotTellThem) {
  constexpr std::size_t kSize = 4 << 20;
  write_with_hole(folder_.path() + "/source", kSize);
  for (const int error : {EINVAL, EOPNOTSUPP}) {
    const FailingCall failing("lseek", "/source", error);
    EXPECT_EQ(copy("source", ("Game\\" + std::to_string(error)).c_str()), CopyOutcome::kWritten);
    EXPECT_GT(FailingCall::count(), 0);
    EXPECT_TRUE(folder_.read("Game/" + std::to_string(error)) ==
                std::string(kSize / 2, '\0') + std::string(kSize / 2, 'x'));
  }
  for (const char* function : {"lseek", "ftruncate"}) {
    const FailingCall failing(function, ".bak", EIO);
    EXPECT_THROW(copy("source", "Game\\new.dat"), ActionError) << function;
    EXPECT_GT(FailingCall::count(), 0) << function;
    EXPECT_FALSE(folder_.has("Game/new.dat")) << function;
  }
}

TEST_P(PosixFaults, AReaderThatCannotBePlacedIsAnError) {
  const auto reader = files_->open_file(path("Game\\Planes.dat"));
  reader->seek(2);
  std::string bytes(4, '?');
  EXPECT_EQ(reader->read(bytes.data(), bytes.size()), 4U);
  EXPECT_EQ(bytes, "anes");
  const FailingCall failing("lseek", "Planes.dat", EIO);
  EXPECT_THROW(reader->seek(0), ActionError);
}

TEST_P(PosixFaults, AFileWhoseFolderMayNotBeChangedIsForeseenToStay) {
  EXPECT_NO_THROW(files_->foresee(Change::kRemove, path("Game\\Planes.dat")));
  const FailingCall failing("faccessat", ".", EACCES);
  EXPECT_THROW(files_->foresee(Change::kRemove, path("Game\\Planes.dat")), ActionError);
}

TEST_P(PosixFaults, RoomThatTheDiskDoesNotTellIsNotKnown) {
  EXPECT_EQ(files_->free_room(path("Game")), 0U);
  EXPECT_FALSE(files_->free_room(path("nothing")));
  const FailingCall failing("fstatvfs", "Game", ENOSYS);
  EXPECT_FALSE(files_->free_room(path("Game")));
}

TEST_P(PosixFaults, AnErrorSaysWhatFailedAlsoOnceTheFileIsInItsPlace) {
  folder_.write("source", "new");
  folder_.write("renamed", "same");
  folder_.write("Game/Renamed", "same");
  {
    const FailingCall failing("fsync", "/Game", EIO);
    const auto found = error_of([&] { copy("source", "Game\\new.dat"); });
    ASSERT_TRUE(found);
    EXPECT_EQ(found->attempted(), "flush the folder of");
    EXPECT_EQ(folder_.read("Game/new.dat"), "new") << "it is in its place";
  }
  {
    const FailingCall failing("fsync", "new.dat", EIO);
    const auto found = error_of([&] { copy("source", "Game\\new.dat"); });
    ASSERT_TRUE(found);
    EXPECT_EQ(found->attempted(), "flush");
  }
  {
    const FailingCall failing("renameat", "renamed", EIO);
    const auto found = error_of([&] { copy("renamed", "Game\\renamed"); });
    ASSERT_TRUE(found);
    EXPECT_EQ(found->attempted(), "give its spelling to");
    EXPECT_EQ(folder_.read("Game/Renamed"), "same");
  }
  const FailingCall failing("renameat", "other.dat", EIO);
  const auto found = error_of([&] { copy("source", "Game\\other.dat"); });
  ASSERT_TRUE(found);
  EXPECT_EQ(found->attempted(), "write");
  EXPECT_EQ(folder_.read("Game/other.dat"), "other");
}

TEST_P(PosixFaults, FilesOfOneNumberAreToldApartByTheirBytes) {
  folder_.write("save", "my own save");
  folder_.write("Game/save", "the old one");
  const test::CollidingNumbers colliding;
  EXPECT_EQ(copy("save", "Game\\save"), CopyOutcome::kWritten);
  EXPECT_EQ(folder_.read("Game/save"), "my own save");
  EXPECT_EQ(copy("save", "Game\\save"), CopyOutcome::kUnchanged);
  EXPECT_EQ(copy("save", "save"), CopyOutcome::kUnchanged);
  EXPECT_EQ(folder_.read("save"), "my own save");
}

TEST_P(PosixFaults, WithNoDescriptorLeftNothingIsTakenForMissing) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizers' own checks need descriptors";
#endif
  folder_.make_folder("Game/Empty");
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
  const int lowest = ::open("/dev/null", O_RDONLY);
  ASSERT_GE(lowest, 0);
  ::close(lowest);
  rlimit none = before;
  none.rlim_cur = static_cast<rlim_t>(lowest);
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
  EXPECT_THROW(files_->FileExists(path("Game\\Planes.dat")), ActionError);
  EXPECT_THROW(files_->FolderExists(path("Game\\Empty")), ActionError);
  EXPECT_THROW(files_->is_there(path("Game\\Planes.dat")), ActionError);
  EXPECT_THROW(files_->entries(path("Game")), ActionError);
  EXPECT_THROW(files_->lies_inside(path("Game\\Empty"), path("Game")), ActionError);
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
  EXPECT_TRUE(files_->FileExists(path("Game\\Planes.dat")));
}

TEST_P(PosixFaults, ACurrentFolderThatIsGoneHoldsNothing) {
  const FailingCall failing("openat", ".", ENOENT);
  EXPECT_FALSE(files_->FileExists("no such file"));
  EXPECT_FALSE(files_->FolderExists("no such folder\\file"));
  EXPECT_GT(FailingCall::count(), 0);
}

TEST(PosixStaging, AFolderThatMayNotBeListedServesAndOneThatCannotBeListedIsAnError) {
  const test::TemporaryFolder folder;
  folder.write("source", "new");
  folder.make_folder("Game");
  folder.make_folder("Store");
  const auto files = make_platform_file_system();
  const auto copy = [&](int error) {
    const FileSystem::Action action(*files, {}, folder.path("Store"));
    const FailingCall failing("getdents64", "Store", error);
    files->copy_file(folder.path("source"), folder.path("Game\\" + std::to_string(error)),
                     Durability::kCached);
  };
  EXPECT_NO_THROW(copy(EACCES));
  EXPECT_THROW(copy(EIO), ActionError);
  EXPECT_EQ(folder.names("Game"), Names{std::to_string(EACCES)});
}

INSTANTIATE_TEST_SUITE_P(Both, PosixFaults, testing::Bool(),
                         [](const auto& sample) { return sample.param ? "InAnAction" : "Alone"; });

}  // namespace
}  // namespace vorlund
