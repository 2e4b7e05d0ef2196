// What a dry run tells of the files, while the disk stays as it is.
#include "disk/dry_run_file_system.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/action_error.h"
#include "support/forwarding_file_system.h"
#include "support/temporary_folder.h"
#include "support/tree_of.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace vorlund {
namespace {

using State = ForeseenFile::State;

class DryRun : public testing::Test {
 protected:
  void copy(const std::string& source, const std::string& target) {
    dry_.copy_file(folder_.path(source), folder_.path(target), Durability::kCached);
  }
  void replace(const std::string& name, std::string_view bytes) {
    dry_.replace_file(folder_.path(name), bytes, Durability::kCached);
  }
  void remove(const std::string& name) { dry_.remove_file(folder_.path(name)); }
  std::string read(const std::string& name) { return dry_.read_file(folder_.path(name)); }

  /// Each file with its state and size, "name: 3, 12".
  std::vector<std::string> states() {
    std::vector<std::string> words;
    for (const ForeseenFile& file : dry_.foreseen()) {
      constexpr const char* kWords[] = {"in place", "changed", "respelled", "new", "deleted"};
      words.push_back(file.name + ": " + kWords[static_cast<int>(file.state)] + ", " +
                      std::to_string(file.size));
    }
    return words;
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> disk_ = make_platform_file_system();
  DryRunFileSystem dry_{*disk_};
};

using Words = std::vector<std::string>;

TEST_F(DryRun, LeavesTheDiskAsItIs) {
  folder_.write("a", "1");
  folder_.write("b", "2");
  const auto before = folder_.tree();
  copy("a", "B");
  replace("c", "3");
  remove("a");
  EXPECT_EQ(folder_.tree(), before);
  EXPECT_EQ(test::tree_of(dry_, folder_.path()),
            (std::map<std::string, std::string>{{"B", "1"}, {"c", "3"}}));
}

TEST_F(DryRun, ACopyStandsForTheBytesThatItsSourceHadWhateverBecomesOfIt) {
  folder_.write("Savedata/c1.sve", "career");
  folder_.write("Savedata/c2.sve", "second");
  folder_.make_folder("home");
  copy("Savedata\\c1.sve", "home\\c1.sve");
  copy("Savedata\\c2.sve", "home\\c2.sve");
  remove("Savedata\\c1.sve");
  replace("Savedata\\c2.sve", "rewritten");
  EXPECT_EQ(read("home\\c1.sve"), "career");
  EXPECT_EQ(read("home\\c2.sve"), "second");
  copy("home\\c1.sve", "again");
  EXPECT_EQ(read("again"), "career");
}

TEST_F(DryRun, TellsTheNetChangeOfEveryFile) {
  folder_.write("Set/equal", "same");
  folder_.write("Set/other", "new bytes");
  folder_.write("Set/fresh", "12345");
  folder_.write("Set/SPELT", "same");
  folder_.write("Game/equal", "same");
  folder_.write("Game/other", "old");
  folder_.write("Game/spelt", "same");
  folder_.write("Game/loose", "123");
  folder_.write("Game/untouched", "");
  for (const char* name : {"equal", "other", "fresh", "SPELT"}) {
    copy(std::string("Set\\") + name, std::string("Game\\") + name);
  }
  remove("Game\\loose");
  EXPECT_EQ(states(), (Words{"equal: in place, 4", "fresh: new, 5", "loose: deleted, 3", "other: changed, 9",
                             "SPELT: respelled, 4"}));
}

TEST_F(DryRun, WhatHappensOnTheWayDoesNotCount) {
  folder_.write("Set/one", "one");
  folder_.write("Set/two", "two");
  folder_.write("Game/eaw.exe", "patched");
  folder_.write("Game/file", "two");
  copy("Set\\one", "Game\\file");
  copy("Set\\two", "Game\\file");
  copy("Set\\one", "Game\\eaw.exe");
  replace("Game\\eaw.exe", "patched");
  copy("Set\\one", "Game\\passing");
  remove("Game\\passing");
  EXPECT_EQ(states(), (Words{"eaw.exe: in place, 7", "file: in place, 3"}));
}

TEST_F(DryRun, KnowsWhichRowsWroteAFileAndWhoseBytesStand) {
  folder_.write("1/file", "same");
  folder_.write("2/file", "other");
  folder_.write("3/file", "same");
  folder_.make_folder("Game");
  for (int row = 1; row <= 3; ++row) {
    dry_.write_for(row);
    copy(std::to_string(row) + "\\file", "Game\\file");
  }
  dry_.write_for(4);
  replace("Game\\file", "patched on top");
  const std::vector<ForeseenFile> files = dry_.foreseen();
  ASSERT_EQ(files.size(), 1U);
  const std::vector<ForeseenWrite>& writes = files.front().writes;
  ASSERT_EQ(writes.size(), 4U);
  for (int row = 1; row <= 4; ++row) {
    const ForeseenWrite& write = writes[static_cast<std::size_t>(row - 1)];
    EXPECT_EQ(write.row, row);
    EXPECT_EQ(write.counts, row != 2) << row;
    EXPECT_EQ(write.source, row == 4 ? "" : folder_.path(std::to_string(row) + "\\file"));
  }
}

TEST_F(DryRun, OneFolderUnderTwoPathsIsOne) {
  folder_.write("Game/File", "old");
  folder_.write("source", "new");
  copy("source", "GAME\\File");
  EXPECT_EQ(read("game\\.\\file"), "new");
  remove("Game\\file");
  EXPECT_EQ(dry_.entries(folder_.path("gAME")).size(), 0U);
}

TEST_F(DryRun, LeftOversInFoldersThatItIsToLockAreNotListed) {
  folder_.write("~vorlund-p1-0.bak", "half");
  folder_.write("~vorlund-w1-0.bak", "half");
  folder_.write("mine.bak", "player's");
  const FolderLocks locks = dry_.lock_folders({folder_.path()}, std::chrono::milliseconds(0));
  EXPECT_EQ(locks.in_use(), "");
  EXPECT_EQ(dry_.entries(folder_.path()).size(), 2U);
  EXPECT_EQ(folder_.names().size(), 3U);
}

TEST_F(DryRun, AnErrorIsTheOneOfTheRealRun) {
  folder_.write("source", "x");
  folder_.make_folder("folder");
  const auto what = [&](FileSystem& files, const char* source, const char* target) {
    try {
      files.copy_file(folder_.path(source), folder_.path(target), Durability::kCached);
    } catch (const ActionError& error) {
      return std::string(error.what());
    }
    return std::string("no error");
  };
  const std::string long_name(300, 'x');
  for (const char* target : {"folder", "FOLDER", "nowhere\\file", "source\\below", long_name.c_str()}) {
    EXPECT_EQ(what(dry_, "source", target), what(*disk_, "source", target)) << target;
    EXPECT_NE(what(dry_, "source", target), "no error") << target;
  }
  EXPECT_EQ(what(dry_, "nothing", "target"), what(*disk_, "nothing", "target"));
  EXPECT_EQ(what(dry_, "folder", "target"), what(*disk_, "folder", "target"));
}

TEST_F(DryRun, WhatItHasRemovedIsThereNoMore) {
  folder_.write("save", "career");
  folder_.write("other", "x");
  remove("save");
  EXPECT_FALSE(dry_.FileExists(folder_.path("save")));
  EXPECT_FALSE(dry_.is_there(folder_.path("save")));
  EXPECT_THROW(read("save"), ActionError);
  EXPECT_THROW(remove("save"), ActionError);
  EXPECT_THROW(copy("save", "target"), ActionError);
  EXPECT_EQ(states(), Words{"save: deleted, 6"});
  copy("other", "save");
  EXPECT_EQ(read("save"), "x");
}

TEST_F(DryRun, ComposedBytesAreComparedWhereTheyAreCopied) {
  folder_.make_folder("Game");
  replace("one", "same");
  replace("two", "same");
  replace("three", "more");
  const auto outcome = [this](const char* source) {
    return dry_.copy_file(folder_.path(source), folder_.path("Game\\file"), Durability::kCached);
  };
  EXPECT_EQ(outcome("one"), CopyOutcome::kWritten);
  EXPECT_EQ(outcome("two"), CopyOutcome::kUnchanged);
  EXPECT_EQ(outcome("three"), CopyOutcome::kWritten);
  EXPECT_EQ(read("Game\\file"), "more");
}

TEST_F(DryRun, FilesOfOneSizeAreComparedToTheirEnds) {
  const std::string bytes(200'000, '.');
  std::string other = bytes;
  other.back() = '!';
  folder_.write("one", bytes);
  folder_.write("other", other);
  folder_.write("Game/file", "old");
  copy("one", "Game\\file");
  EXPECT_EQ(dry_.foresee_copy(folder_.path("one"), folder_.path("Game\\file")).outcome,
            CopyOutcome::kUnchanged);
  EXPECT_EQ(dry_.foresee_copy(folder_.path("other"), folder_.path("Game\\file")).outcome,
            CopyOutcome::kWritten);
  EXPECT_EQ(dry_.foresee_copy(folder_.path("one"), folder_.path("Game\\FILE")).outcome, CopyOutcome::kWritten)
      << "it is spelled otherwise";
}

TEST_F(DryRun, StartsNoProgram) {
  folder_.write("eaw.exe", "x");
  EXPECT_THROW(dry_.start_program(folder_.path("eaw.exe"), folder_.path()), ActionError);
}

TEST_F(DryRun, ForeseesWhatCanBeDoneToWhatItHasWritten) {
  folder_.write("disk", "x");
  replace("new", "bytes");
  remove("disk");
  for (const Change change : {Change::kReplace, Change::kCopy, Change::kRemove}) {
    EXPECT_NO_THROW(dry_.foresee(change, folder_.path("new")));
  }
  EXPECT_NO_THROW(dry_.foresee(Change::kReplace, folder_.path("disk")));
  EXPECT_THROW(dry_.foresee(Change::kRemove, folder_.path("disk")), ActionError);
  EXPECT_THROW(dry_.foresee(Change::kRemove, folder_.path("nothing")), ActionError);
}

TEST_F(DryRun, ABareNameIsOneOfTheCurrentFolder) {
  dry_.replace_file("vorlund dry run", "bytes", Durability::kCached);
  EXPECT_EQ(dry_.read_file(".\\vorlund dry run"), "bytes");
  EXPECT_TRUE(dry_.FileExists(disk_->current_folder() + "\\vorlund dry run"));
  EXPECT_FALSE(dry_.FileExists("\\vorlund dry run"));
  EXPECT_FALSE(disk_->FileExists("vorlund dry run"));
}

TEST_F(DryRun, BytesThatCannotBeReadTodayAreNotThoseThatItWrites) {
  folder_.write("Game/file", "bytes");
  class Unreadable : public test::ForwardingFileSystem {
   public:
    using ForwardingFileSystem::ForwardingFileSystem;
    std::unique_ptr<FileReader> open_file(std::string_view path) override {
      if (path.ends_with("file")) throw ActionError("read", path, "the disk fails");
      return ForwardingFileSystem::open_file(path);
    }
  } unreadable(*disk_);
  DryRunFileSystem dry(unreadable);
  dry.replace_file(folder_.path("Game\\file"), "bytes", Durability::kCached);
  const std::vector<ForeseenFile> files = dry.foreseen();
  ASSERT_EQ(files.size(), 1U);
  EXPECT_EQ(files.front().state, State::kChanged);
}

#ifndef _WIN32

TEST_F(DryRun, AReadOnlyFileIsNeitherReplacedNorRemoved) {
  folder_.write("source", "new");
  folder_.write("Target", "old");
  folder_.write("twin", "old");
  folder_.write("TWIN", "old");
  for (const char* name : {"/Target", "/TWIN"}) ::chmod((folder_.path() + name).c_str(), 0444);
  EXPECT_THROW(copy("source", "target"), ActionError);
  EXPECT_THROW(replace("target", "new"), ActionError);
  EXPECT_THROW(remove("target"), ActionError);
  remove("twin");
  EXPECT_THROW(remove("TWIN"), ActionError);
  EXPECT_THROW(copy("source", "twin"), ActionError);
  EXPECT_EQ(states(), Words{"twin: deleted, 3"});
}

TEST_F(DryRun, OfSeveralSpellingsThoseThatWouldGoAreToldApart) {
  folder_.write("source", "same");
  for (const char* name : {"Set/File.dat", "Set/FILE.DAT", "Set/file.dat"}) folder_.write(name, "same");
  copy("source", "Set\\FILE.DAT");
  EXPECT_EQ(states(), (Words{"FILE.DAT: in place, 4", "File.dat: deleted, 4", "file.dat: deleted, 4"}));
}

TEST_F(DryRun, AFolderOfTheSameNameIsNoFile) {
  folder_.make_folder("Name");
  folder_.write("name", "file");
  remove("name");
  EXPECT_FALSE(dry_.FileExists(folder_.path("name")));
  for (const auto& work : std::vector<std::function<void()>>{
           [this] { read("name"); }, [this] { remove("name"); }, [this] { replace("name", "new"); }}) {
    try {
      work();
      ADD_FAILURE() << "no error";
    } catch (const ActionError& error) {
      EXPECT_EQ(error.reason(), kIsFolder);
    }
  }
}

TEST_F(DryRun, AFolderThatALinkLeadsToIsOneWithItsOwnPath) {
  folder_.make_folder("Careers/Camp");
  folder_.write("source", "x");
  ASSERT_EQ(::symlink("Careers/Camp", (folder_.path() + "/home").c_str()), 0);
  copy("source", "home\\c1.sve");
  EXPECT_EQ(read("careers\\camp\\c1.sve"), "x");
}

#endif

}  // namespace
}  // namespace vorlund
