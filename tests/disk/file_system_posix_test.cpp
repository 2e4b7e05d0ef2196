// What only a POSIX disk has: cases told apart, links, pipes, permissions, names that are not UTF-8.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <utility>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "support/left_over.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using Names = std::vector<std::string>;
using Tree = std::map<std::string, std::string>;

class PosixFileSystemTest : public testing::Test {
 protected:
  /// Path for calls of the system.
  std::string system_path(const std::string& name) const { return folder_.path() + "/" + name; }

  Names listed(const std::string& name) {
    Names names;
    for (const FolderEntry& entry : files_->entries(folder_.path(name))) {
      names.push_back(entry.name + (entry.kind == EntryKind::kFolder ? "/" : "") +
                      (entry.hidden ? " hidden" : ""));
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  CopyOutcome copy(const std::string& source, const std::string& target) {
    return files_->copy_file(folder_.path(source), folder_.path(target), Durability::kCached);
  }

  void replace(const std::string& name, std::string_view bytes) {
    files_->replace_file(folder_.path(name), bytes, Durability::kCached);
  }

  mode_t mode_of(const std::string& name) const {
    struct stat status {};
    EXPECT_EQ(::lstat(system_path(name).c_str(), &status), 0) << name;
    return status.st_mode;
  }

  void link_to(const std::string& what, const std::string& name) const {
    ASSERT_EQ(::symlink(what.c_str(), system_path(name).c_str()), 0);
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
};

TEST_F(PosixFileSystemTest, OfSeveralSpellingsTheExactOneIsReadElseTheFirstInOrder) {
  folder_.write("aB", "1");
  folder_.write("Ab", "2");
  EXPECT_EQ(files_->read_file(folder_.path("aB")), "1");
  EXPECT_EQ(files_->read_file(folder_.path("Ab")), "2");
  EXPECT_EQ(files_->read_file(folder_.path("AB")), "2");
  EXPECT_EQ(files_->read_file(folder_.path("ab")), "2");
}

TEST_F(PosixFileSystemTest, OfSeveralSpellingsTheOneThatIsReadIsReplaced) {
  for (const bool in_action : {false, true}) {
    std::optional<FileSystem::Action> action;
    if (in_action) action.emplace(*files_);
    for (const char* name : {"Set/File.dat", "Set/FILE.DAT", "Set/file.dat"}) folder_.write(name, name);
    replace("Set\\File.DAT", "new");
    EXPECT_EQ(
        folder_.tree(),
        (Tree{{"Set/FILE.DAT", "new"}, {"Set/File.dat", "Set/File.dat"}, {"Set/file.dat", "Set/file.dat"}}));
    EXPECT_EQ(files_->read_file(folder_.path("Set\\File.DAT")), "new");
    replace("Set\\file.dat", "exact");
    EXPECT_EQ(folder_.read("Set/file.dat"), "exact");
  }
}

TEST_F(PosixFileSystemTest, ACopyIsTheOnlySpellingLeftAlsoWhereItIsUnchanged) {
  folder_.write("source", "same");
  for (const char* name : {"Set/File.dat", "Set/FILE.DAT", "Set/file.dat"}) folder_.write(name, "same");
  EXPECT_EQ(copy("source", "Set\\FILE.DAT"), CopyOutcome::kWritten);
  EXPECT_EQ(folder_.names("Set"), Names{"FILE.DAT"});
  EXPECT_EQ(copy("source", "Set\\FILE.DAT"), CopyOutcome::kUnchanged);
}

TEST_F(PosixFileSystemTest, AFolderOfTheSameNameInAnotherSpellingStays) {
  folder_.write("file", "old");
  folder_.make_folder("FILE");
  replace("file", "new");
  EXPECT_EQ(folder_.tree(), (Tree{{"FILE/", ""}, {"file", "new"}}));
}

TEST_F(PosixFileSystemTest, NamesThatAreNotUtf8ListAndCopy) {
  const std::string name = "caf\xE9 \xC3(.dat";
  folder_.write("Set/" + name, "bytes");
  folder_.make_folder("Game");
  EXPECT_EQ(listed("Set"), Names{name});
  EXPECT_EQ(copy("SET\\" + name, "Game\\" + name), CopyOutcome::kWritten);
  EXPECT_EQ(folder_.read("Game/" + name), "bytes");
  EXPECT_TRUE(files_->FileExists(folder_.path("game\\CAF\xE9 \xC3(.DAT")));
  EXPECT_FALSE(files_->FileExists(folder_.path("game\\caf\u00E9 \xC3(.dat")));
}

TEST_F(PosixFileSystemTest, NamesThatNoPathCanSpellAreLeftOut) {
  folder_.write("seen", "");
  const FILE* odd = std::fopen(system_path("a\\b").c_str(), "w");
  ASSERT_NE(odd, nullptr);
  EXPECT_EQ(listed(""), Names{"seen"});
}

TEST_F(PosixFileSystemTest, ALeadingDotHides) {
  folder_.write(".hidden", "");
  folder_.make_folder(".folder");
  folder_.write("seen.", "");
  EXPECT_EQ(listed(""), (Names{".folder/ hidden", ".hidden hidden", "seen."}));
}

TEST_F(PosixFileSystemTest, LinksCountAsWhatTheyLeadToAndTheRestIsLeftOut) {
  folder_.write("file", "");
  folder_.make_folder("folder");
  link_to("file", "link to file");
  link_to("folder", "link to folder");
  link_to("nothing", "dangling");
  link_to("loop", "loop");
  ASSERT_EQ(::mkfifo(system_path("pipe").c_str(), 0666), 0);
  link_to("pipe", "link to pipe");
  EXPECT_EQ(listed(""), (Names{"file", "folder/", "link to file", "link to folder/"}));
  EXPECT_TRUE(files_->FileExists(folder_.path("LINK TO FILE")));
  EXPECT_TRUE(files_->FolderExists(folder_.path("link to folder")));
  for (const char* name : {"dangling", "loop", "pipe", "link to pipe"}) {
    EXPECT_FALSE(files_->FileExists(folder_.path(name))) << name;
    EXPECT_FALSE(files_->FolderExists(folder_.path(name))) << name;
  }
}

TEST_F(PosixFileSystemTest, ALinkAsTargetIsReplacedItself) {
  const test::TemporaryFolder outside;
  outside.write("precious", "untouched");
  folder_.write("source", "new");
  for (const std::string& leads_to :
       {outside.path() + "/precious", outside.path() + "/not there", std::string(".")}) {
    link_to(leads_to, "target");
    EXPECT_EQ(copy("source", "target"), CopyOutcome::kWritten) << leads_to;
    EXPECT_TRUE(S_ISREG(mode_of("target"))) << leads_to;
    EXPECT_EQ(folder_.read("target"), "new") << leads_to;
    ASSERT_EQ(::unlink(system_path("target").c_str()), 0);

    link_to(leads_to, "TARGET");
    replace("target", "newer");
    EXPECT_EQ(folder_.tree(), (Tree{{"TARGET", "newer"}, {"source", "new"}})) << leads_to;
    ASSERT_EQ(::unlink(system_path("TARGET").c_str()), 0);
  }
  EXPECT_EQ(outside.tree(), (Tree{{"precious", "untouched"}}));
}

TEST_F(PosixFileSystemTest, ALinkToTheSourceIsReplacedByACopy) {
  folder_.write("source", "bytes");
  link_to("source", "target");
  EXPECT_EQ(copy("source", "target"), CopyOutcome::kWritten);
  EXPECT_EQ(folder_.tree(), (Tree{{"source", "bytes"}, {"target", "bytes"}}));
}

TEST_F(PosixFileSystemTest, ALeftOverNeighbourThatIsALinkIsNotFollowed) {
  const test::TemporaryFolder outside;
  outside.write("precious", "untouched");
  link_to(outside.path() + "/precious", test::left_over_name());
  link_to(outside.path() + "/precious", staging_name(0));
  replace("target", "new");
  EXPECT_EQ(outside.tree(), (Tree{{"precious", "untouched"}}));
  EXPECT_EQ(folder_.tree(),
            (Tree{{staging_name(0), "-> " + outside.path() + "/precious"}, {"target", "new"}}));
}

TEST_F(PosixFileSystemTest, ASourceMayBeALink) {
  folder_.write("real", "bytes");
  link_to("real", "source");
  EXPECT_EQ(copy("SOURCE", "target"), CopyOutcome::kWritten);
  EXPECT_EQ(folder_.read("target"), "bytes");
}

TEST_F(PosixFileSystemTest, RemovingALinkLeavesWhatItLeadsTo) {
  folder_.write("real", "bytes");
  link_to("real", "link");
  files_->remove_file(folder_.path("link"));
  EXPECT_EQ(folder_.tree(), (Tree{{"real", "bytes"}}));
}

TEST_F(PosixFileSystemTest, AHardLinkToTheSourceIsUnchanged) {
  folder_.write("source", "bytes");
  ASSERT_EQ(::link(system_path("source").c_str(), system_path("target").c_str()), 0);
  EXPECT_EQ(copy("source", "target"), CopyOutcome::kUnchanged);
}

TEST_F(PosixFileSystemTest, AfterFilesThatWereTheSameEveryOtherTargetIsStillSeenForWhatItIs) {
  const std::string same(30000, 'x');
  folder_.make_folder("target");
  for (const char* name :
       {"1", "2", "3", "different", "folder", "link", "longer", "missing", "renamed", "shorter"}) {
    folder_.write(std::string("source/") + name, same);
  }
  for (const char* name : {"1", "2", "3"}) folder_.write(std::string("target/") + name, same);
  folder_.write("target/different", same.substr(1) + "y");
  folder_.make_folder("target/folder");
  link_to("../source/link", "target/link");
  folder_.write("target/longer", same + "x");
  folder_.write("target/Renamed", same);
  folder_.write("target/shorter", same.substr(1));
  const FileSystem::Action action(*files_);
  const auto again = [&](const std::string& name) { return copy("source\\" + name, "target\\" + name); };
  for (const char* name : {"different", "link", "longer", "missing", "renamed", "shorter"}) {
    for (const char* unchanged : {"1", "2", "3"})
      EXPECT_EQ(again(unchanged), CopyOutcome::kUnchanged) << name;
    EXPECT_EQ(again(name), CopyOutcome::kWritten) << name;
    EXPECT_EQ(folder_.read(std::string("target/") + name), same) << name;
    EXPECT_TRUE(S_ISREG(mode_of(std::string("target/") + name))) << name;
  }
  EXPECT_EQ(again("1"), CopyOutcome::kUnchanged);
  EXPECT_EQ(again("2"), CopyOutcome::kUnchanged);
  EXPECT_THROW(again("folder"), ActionError);
  EXPECT_EQ(folder_.names("target"),
            (Names{"1", "2", "3", "different", "folder", "link", "longer", "missing", "renamed", "shorter"}));
}

TEST_F(PosixFileSystemTest, AfterFilesThatWereTheSameASecondSpellingIsStillSweptAway) {
  const std::string same(30000, 'x');
  for (const char* name :
       {"source/1", "source/2", "source/twin", "target/1", "target/2", "target/twin", "target/TWIN"}) {
    folder_.write(name, same);
  }
  const FileSystem::Action action(*files_);
  EXPECT_EQ(copy("source\\1", "target\\1"), CopyOutcome::kUnchanged);
  EXPECT_EQ(copy("source\\2", "target\\2"), CopyOutcome::kUnchanged);
  EXPECT_EQ(copy("source\\twin", "target\\twin"), CopyOutcome::kWritten);
  EXPECT_EQ(folder_.names("target"), (Names{"1", "2", "twin"}));
}

TEST_F(PosixFileSystemTest, APipeIsNeitherReadNorWaitedFor) {
  ASSERT_EQ(::mkfifo(system_path("pipe").c_str(), 0666), 0);
  EXPECT_THROW(files_->read_file(folder_.path("pipe")), ActionError);
  EXPECT_THROW(copy("pipe", "target"), ActionError);
  folder_.write("source", "bytes");
  EXPECT_EQ(copy("source", "pipe"), CopyOutcome::kWritten);
  EXPECT_EQ(folder_.tree(), (Tree{{"pipe", "bytes"}, {"source", "bytes"}}));
}

TEST_F(PosixFileSystemTest, AReadOnlyFileIsNeitherReplacedNorRemoved) {
  folder_.write("source", "new");
  folder_.write("Target", "old");
  ASSERT_EQ(::chmod(system_path("Target").c_str(), 0444), 0);
  for (const char* name : {"Target", "TARGET"}) {
    try {
      copy("source", name);
      ADD_FAILURE() << "no error";
    } catch (const ActionError& error) {
      EXPECT_EQ(error.reason(), "the file is read-only");
      EXPECT_EQ(error.path(), folder_.path(name));
    }
    EXPECT_THROW(replace(name, "new"), ActionError);
    EXPECT_THROW(files_->remove_file(folder_.path(name)), ActionError);
  }
  EXPECT_EQ(folder_.tree(), (Tree{{"Target", "old"}, {"source", "new"}}));
  folder_.write("equal", "old");
  EXPECT_EQ(copy("equal", "Target"), CopyOutcome::kUnchanged);
}

TEST_F(PosixFileSystemTest, AFileThatWentAwayDuringAnActionIsWrittenAnew) {
  folder_.write("source", "new");
  folder_.write("Game/one", "old");
  folder_.write("Game/TWO", "old");
  const FileSystem::Action action(*files_);
  EXPECT_TRUE(files_->FileExists(folder_.path("Game\\ONE"))) << "the names are remembered now";
  ASSERT_EQ(::unlink(system_path("Game/one").c_str()), 0);
  ASSERT_EQ(::unlink(system_path("Game/TWO").c_str()), 0);
  EXPECT_EQ(copy("source", "Game\\one"), CopyOutcome::kWritten);
  EXPECT_EQ(copy("source", "Game\\two"), CopyOutcome::kWritten);
  EXPECT_EQ(folder_.tree(), (Tree{{"Game/one", "new"}, {"Game/two", "new"}, {"source", "new"}}));
}

TEST_F(PosixFileSystemTest, AFolderOfTheSameNameInAnotherSpellingStaysBesideACopy) {
  folder_.write("source", "new");
  folder_.write("file", "old");
  folder_.make_folder("FILE");
  EXPECT_EQ(copy("source", "file"), CopyOutcome::kWritten);
  EXPECT_EQ(folder_.tree(), (Tree{{"FILE/", ""}, {"file", "new"}, {"source", "new"}}));
}

TEST_F(PosixFileSystemTest, AReadOnlyFileOfAnotherSpellingIsNotSweptAway) {
  folder_.write("source", "new");
  folder_.write("target", "old");
  folder_.write("TARGET", "precious");
  ASSERT_EQ(::chmod(system_path("TARGET").c_str(), 0444), 0);
  EXPECT_THROW(copy("source", "target"), ActionError);
  EXPECT_EQ(folder_.tree(), (Tree{{"TARGET", "precious"}, {"source", "new"}, {"target", "old"}}));
}

TEST_F(PosixFileSystemTest, AReplacedFileKeepsItsPermissionsAndANewOneHasTheUsualOnes) {
  const mode_t mask = ::umask(022);
  folder_.write("source", "new");
  ASSERT_EQ(::chmod(system_path("source").c_str(), 0711), 0);
  EXPECT_EQ(copy("source", "fresh"), CopyOutcome::kWritten);
  EXPECT_EQ(mode_of("fresh") & 07777, 0644U);
  for (const mode_t mode : {0755U, 0600U, 0666U, 0222U}) {
    folder_.write("target", "old");
    ASSERT_EQ(::chmod(system_path("target").c_str(), mode), 0);
    EXPECT_EQ(copy("source", "TARGET"), CopyOutcome::kWritten);
    EXPECT_EQ(mode_of("TARGET") & 07777, mode);
    replace("target", "other");
    EXPECT_EQ(mode_of("TARGET") & 07777, mode);
    ASSERT_EQ(::unlink(system_path("TARGET").c_str()), 0);
  }
  ::umask(mask);
}

/// While it lives no file of this process can grow past a size; writes up to there succeed.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    ::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    ::signal(SIGXFSZ, SIG_DFL);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_{};
};

TEST_F(PosixFileSystemTest, AWriteThatTheDiskCutsShortLeavesTheOldFileWhole) {
  for (const std::size_t size : {std::size_t{5000}, std::size_t{700'000}, std::size_t{20'000'000}}) {
    const std::string bytes(size, 'n');
    folder_.write("source", bytes);
    folder_.write("TARGET", "old");
    const FileSizeLimit limit(size - 1000);
    EXPECT_THROW(copy("source", "target"), ActionError) << size;
    EXPECT_THROW(copy("source", "fresh"), ActionError) << size;
    EXPECT_THROW(replace("target", bytes), ActionError) << size;
    EXPECT_EQ(folder_.names(), (Names{"TARGET", "source"})) << size;
    EXPECT_EQ(folder_.read("TARGET"), "old") << size;
  }
}

TEST_F(PosixFileSystemTest, ACurrentFolderThatIsGoneIsAnError) {
  const std::filesystem::path before = std::filesystem::current_path();
  folder_.make_folder("gone");
  std::filesystem::current_path(system_path("gone"));
  EXPECT_EQ(files_->current_folder(), system_path("gone"));
  ASSERT_EQ(::rmdir(system_path("gone").c_str()), 0);
  EXPECT_THROW(files_->current_folder(), ActionError);
  std::filesystem::current_path(before);
}

TEST_F(PosixFileSystemTest, ACurrentFolderOfAnyLengthIsTold) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::string deep = "Deep";
  for (int level = 0; level < 5; ++level) deep += "/" + std::string(100, 'd');
  folder_.make_folder(deep);
  std::filesystem::current_path(system_path(deep));
  EXPECT_EQ(files_->current_folder(), system_path(deep));
  std::filesystem::current_path(before);
}

TEST_F(PosixFileSystemTest, RelativePathsStartAtTheCurrentFolder) {
  const std::filesystem::path before = std::filesystem::current_path();
  folder_.write("Sub/File", "x");
  std::filesystem::current_path(folder_.path());
  EXPECT_EQ(files_->read_file("sub\\FILE"), "x");
  files_->replace_file("other", "y", Durability::kFlushed);
  std::filesystem::current_path(before);
  EXPECT_EQ(folder_.read("other"), "y");
}

int open_descriptors() {
  const std::filesystem::directory_iterator descriptors("/proc/self/fd");
  return static_cast<int>(std::distance(begin(descriptors), end(descriptors)));
}

TEST_F(PosixFileSystemTest, AnActionOverManyFoldersKeepsFewDescriptorsOpenAndEndsWithNone) {
  for (int index = 0; index < 300; ++index) folder_.write("Set " + std::to_string(index) + "/a", "x");
  const int before = open_descriptors();
  {
    const FileSystem::Action action(*files_);
    for (int index = 0; index < 300; ++index) {
      EXPECT_TRUE(files_->FileExists(folder_.path("SET " + std::to_string(index) + "\\A")));
    }
    EXPECT_LE(open_descriptors(), before + 20);
  }
  EXPECT_EQ(open_descriptors(), before);
}

/// Counts how often a folder is opened to be read.
class FolderReadings {
 public:
  explicit FolderReadings(const std::string& path) : queue_(::inotify_init1(IN_NONBLOCK)) {
    EXPECT_GE(::inotify_add_watch(queue_, path.c_str(), IN_OPEN), 0);
  }
  ~FolderReadings() { ::close(queue_); }
  FolderReadings(const FolderReadings&) = delete;
  FolderReadings& operator=(const FolderReadings&) = delete;

  int count() {
    alignas(inotify_event) std::array<char, 65536> buffer;
    for (ssize_t got = 0; (got = ::read(queue_, buffer.data(), buffer.size())) > 0;) {
      for (ssize_t at = 0; at < got;) {
        const auto* event = reinterpret_cast<const inotify_event*>(buffer.data() + at);
        EXPECT_EQ(event->mask & IN_Q_OVERFLOW, 0U);
        if ((event->mask & IN_ISDIR) != 0 && event->len == 0) ++count_;
        at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
      }
    }
    return count_;
  }

 private:
  int queue_;
  int count_ = 0;
};

TEST_F(PosixFileSystemTest, AnActionReadsTheNamesOfEachFolderOnce) {
  constexpr int kFiles = 200;
  for (int index = 0; index < kFiles; ++index) {
    folder_.write("Set/File " + std::to_string(index), "new");
    folder_.write("Game/FILE " + std::to_string(2 * index), "old");
  }
  FolderReadings set(system_path("Set"));
  FolderReadings game(system_path("Game"));
  {
    const FileSystem::Action action(*files_);
    for (int index = 0; index < kFiles; ++index) {
      const std::string number = std::to_string(index);
      copy("Set\\FILE " + number, "Game\\File " + number);
      EXPECT_TRUE(files_->FileExists(folder_.path("GAME\\file " + number)));
    }
  }
  EXPECT_EQ(set.count(), 1);
  EXPECT_EQ(game.count(), 1);

  copy("Set\\FILE 0", "Game\\File 0");
  EXPECT_EQ(set.count(), 2) << "nothing is remembered after the action";
  EXPECT_EQ(game.count(), 2);
}

/// So much that several pulses fall into the work on one file.
constexpr std::size_t kLong = 4U << 20;

TEST_F(PosixFileSystemTest, OfASourceThatShrinksMeanwhileWhatIsLeftIsCopied) {
  const std::string bytes(kLong, 's');
  folder_.write("source", bytes);
  int pulses = 0;
  const FileSystem::Action action(*files_, [&] {
    ++pulses;
    EXPECT_EQ(::truncate(system_path("source").c_str(), 1), 0);
  });
  EXPECT_EQ(copy("source", "target"), CopyOutcome::kWritten);
  const std::string copied = folder_.read("target");
  EXPECT_EQ(copied, bytes.substr(0, copied.size()));
  EXPECT_EQ(copied.size() < kLong, pulses > 0) << "a disk that shares blocks copies all at once";
}

TEST_F(PosixFileSystemTest, ATargetThatShrinksWhileItIsComparedIsWritten) {
  const std::string bytes(kLong, 's');
  folder_.write("source", bytes);
  folder_.write("target", bytes);
  bool is_cut = false;
  const FileSystem::Action action(*files_, [&] {
    if (std::exchange(is_cut, true)) return;
    EXPECT_EQ(::truncate(system_path("target").c_str(), 1), 0);
  });
  EXPECT_EQ(copy("source", "target"), CopyOutcome::kWritten);
  EXPECT_TRUE(is_cut);
  EXPECT_EQ(folder_.read("target"), bytes);
}

}  // namespace
}  // namespace vorlund
