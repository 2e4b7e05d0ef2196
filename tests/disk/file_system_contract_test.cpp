// What every file system must do, the one of the platform and the doubles for tests alike.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "base/action_error.h"
#include "base/text.h"
#include "disk/dry_run_file_system.h"
#include "disk/file_system.h"
#include "disk/process_number.h"
#include "support/faulty_file_system.h"
#include "support/forwarding_file_system.h"
#include "support/left_over.h"
#include "support/recording_file_system.h"
#include "support/temporary_folder.h"
#include "support/text_reader.h"
#include "support/tree_of.h"

namespace vorlund {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;
using Tree = std::map<std::string, std::string>;

enum class Kind { kPlatform, kFaulty, kRecording, kDryRun };

/// Whether the operations stand alone or within one action.
enum class Span { kAlone, kAction };

class FileSystemContract : public testing::TestWithParam<std::tuple<Kind, Span>> {
 protected:
  FileSystemContract() {
    if (std::get<Kind>(GetParam()) == Kind::kFaulty) {
      double_ = std::make_unique<test::FaultyFileSystem>(*disk_);
    } else if (std::get<Kind>(GetParam()) == Kind::kRecording) {
      double_ = std::make_unique<test::RecordingFileSystem>(*disk_);
    } else if (is_dry_run()) {
      double_ = std::make_unique<DryRunFileSystem>(*disk_);
    }
    if (std::get<Span>(GetParam()) == Span::kAction) action_.emplace(files(), [this] { ++pulses_; });
  }

  static bool is_dry_run() { return std::get<Kind>(GetParam()) == Kind::kDryRun; }

  /// Writes a file behind the file system's back; a dry run, which counts on the disk to stay, begins anew.
  void write_behind(std::string_view name, std::string_view bytes) {
    folder_.write(name, bytes);
    if (!is_dry_run()) return;
    const bool in_action = action_.has_value();
    action_.reset();
    double_ = std::make_unique<DryRunFileSystem>(*disk_);
    if (in_action) action_.emplace(files(), [this] { ++pulses_; });
  }

  FileSystem& files() { return double_ ? *double_ : *disk_; }

  /// Entries of a folder as "name/" for folders and "name" for files, sorted.
  Names listed(std::string_view path) {
    Names names;
    for (const FolderEntry& entry : files().entries(path)) {
      names.push_back(entry.name + (entry.kind == EntryKind::kFolder ? "/" : ""));
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  /// What the file system has made of the folder: on the disk, or, of a dry run, as it tells it.
  Tree tree() { return is_dry_run() ? test::tree_of(files(), folder_.path()) : folder_.tree(); }
  std::string read(std::string_view name) {
    return is_dry_run() ? files().read_file(folder_.path(name)) : folder_.read(name);
  }
  Names names(std::string_view name = "") {
    if (!is_dry_run()) return folder_.names(name);
    Names names;
    for (const FolderEntry& entry : files().entries(folder_.path(name))) names.push_back(entry.name);
    std::sort(names.begin(), names.end());
    return names;
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> disk_ = make_platform_file_system();
  std::unique_ptr<FileSystem> double_;
  int pulses_ = 0;
  std::optional<FileSystem::Action> action_;
};

TEST_P(FileSystemContract, FilesAndFoldersExistInAnySpelling) {
  folder_.write("Sav\u00E9data\\Mission.MSN", "x");
  for (const char* name :
       {"Sav\u00E9data\\Mission.MSN", "SAV\u00C9DATA\\MISSION.msn", "sav\u00E9data/mission.msn",
        "\\Sav\u00E9data\\\\Mission.MSN", "Sav\u00E9data\\.\\Mission.MSN"}) {
    EXPECT_TRUE(files().FileExists(folder_.path(name))) << name;
    EXPECT_TRUE(files().is_there(folder_.path(name))) << name;
    EXPECT_FALSE(files().FolderExists(folder_.path(name))) << name;
  }
  for (const char* name :
       {"Sav\u00E9data", "SAV\u00C9DATA", "sav\u00E9data\\", "sav\u00E9data\\\\", "", "\\"}) {
    EXPECT_TRUE(files().FolderExists(folder_.path(name))) << name;
    EXPECT_FALSE(files().FileExists(folder_.path(name))) << name;
    EXPECT_FALSE(files().is_there(folder_.path(name))) << name;
  }
}

TEST_P(FileSystemContract, MalformedAndUnreachablePathsDoNotExist) {
  folder_.write("file", "x");
  const std::string hostile[] = {"",
                                 folder_.path("nothing"),
                                 folder_.path("nothing\\below"),
                                 folder_.path("file\\"),
                                 folder_.path("file\\below"),
                                 folder_.path("file") + '\0',
                                 folder_.path("fi\0le"s),
                                 folder_.path("*"),
                                 folder_.path("f?le"),
                                 folder_.path("\xFF\xFE"),
                                 folder_.path("\x01"),
                                 folder_.path(std::string(300, 'x')),
                                 folder_.path(std::string(100'000, 'x')),
                                 "\\\\?\\nonsense",
                                 "Q:\\nothing"};
  for (const std::string& path : hostile) {
    EXPECT_FALSE(files().FileExists(path)) << testing::PrintToString(path.substr(0, 400));
    EXPECT_FALSE(files().is_there(path)) << testing::PrintToString(path.substr(0, 400));
    EXPECT_FALSE(files().FolderExists(path)) << testing::PrintToString(path.substr(0, 400));
  }
  EXPECT_EQ(files().take_unseen(), Names());
}

TEST_P(FileSystemContract, EveryQuestionAsksTheDisk) {
  const std::string path = folder_.path("file");
  EXPECT_FALSE(files().FileExists(path));
  folder_.write("file", "x");
  EXPECT_TRUE(files().FileExists(path));
}

TEST_P(FileSystemContract, EntriesAreTheFilesAndFoldersDirectlyInside) {
  folder_.write("Readme", "");
  folder_.write("caf\u00E9.txt", "");
  folder_.write("Sub\\below.txt", "");
  EXPECT_EQ(listed(folder_.path()), (Names{"Readme", "Sub/", "caf\u00E9.txt"}));
  EXPECT_EQ(listed(folder_.path("SUB\\")), Names{"below.txt"});
}

TEST_P(FileSystemContract, AFolderThatIsNotThereHasNoEntries) {
  folder_.write("file", "");
  for (const char* name : {"nothing", "nothing\\below", "file", "file\\below"}) {
    EXPECT_EQ(listed(folder_.path(name)), Names()) << name;
  }
}

TEST_P(FileSystemContract, NamesThatTheCodePageCannotSpellListAndCopy) {
  const std::string name = "\u65E5\u672C\U0001F6E9 \u0416.dat";
  folder_.write("Set\\" + name, "bytes");
  folder_.make_folder("Game");
  ASSERT_EQ(listed(folder_.path("Set")), Names{name});
  files().copy_file(folder_.path("Set\\" + name), folder_.path("Game\\" + name), Durability::kCached);
  EXPECT_EQ(read("Game\\" + name), "bytes");
}

TEST_P(FileSystemContract, AFileIsReadWholeOrUpToALimit) {
  const std::string bytes = "0123\r\n\x1A\0\xFF"s;
  folder_.write("File.bin", bytes);
  const std::string path = folder_.path("FILE.BIN");
  EXPECT_EQ(files().read_file(path), bytes);
  EXPECT_EQ(files().read_file(path, 0), "");
  EXPECT_EQ(files().read_file(path, 4), "0123");
  EXPECT_EQ(files().read_file(path, bytes.size()), bytes);
  EXPECT_EQ(files().read_file(path, 1000), bytes);
  EXPECT_EQ(files().open_file(path)->size(), bytes.size());
}

TEST_P(FileSystemContract, AnEmptyFileIsReadAndCopied) {
  folder_.write("empty", "");
  EXPECT_EQ(files().read_file(folder_.path("empty")), "");
  EXPECT_EQ(files().open_file(folder_.path("empty"))->size(), 0U);
  EXPECT_EQ(files().copy_file(folder_.path("empty"), folder_.path("copy"), Durability::kCached),
            CopyOutcome::kWritten);
  EXPECT_EQ(read("copy"), "");
  EXPECT_EQ(files().copy_file(folder_.path("empty"), folder_.path("copy"), Durability::kCached),
            CopyOutcome::kUnchanged);
}

TEST_P(FileSystemContract, ReadingWhatIsNotAFileIsAnErrorThatNamesThePath) {
  folder_.make_folder("folder");
  for (const std::string& path :
       {folder_.path("nothing"), folder_.path("folder"), folder_.path("no\\where"), ""s}) {
    for (const bool open : {true, false}) {
      try {
        open ? static_cast<void>(files().open_file(path)) : static_cast<void>(files().read_file(path));
        ADD_FAILURE() << "no error for " << path;
      } catch (const ActionError& error) {
        EXPECT_EQ(error.path(), path);
        EXPECT_NE(error.reason(), "");
      }
    }
  }
}

TEST_P(FileSystemContract, AFileIsCreatedAndReplacedWhole) {
  const std::string path = folder_.path("Record.txt");
  for (const Durability durability : {Durability::kCached, Durability::kFlushed}) {
    files().replace_file(path, "a long first content\r\n", durability);
    EXPECT_EQ(tree(), (Tree{{"Record.txt", "a long first content\r\n"}}));
    files().replace_file(path, "short\0"s, durability);
    EXPECT_EQ(tree(), (Tree{{"Record.txt", "short\0"s}}));
  }
}

TEST_P(FileSystemContract, AReplacedFileKeepsTheSpellingOfItsName) {
  folder_.write("PLANES.DAT", "old");
  files().replace_file(folder_.path("Planes.dat"), "new", Durability::kCached);
  EXPECT_EQ(tree(), (Tree{{"PLANES.DAT", "new"}}));
  files().replace_file(folder_.path("loadout.dat"), "created", Durability::kFlushed);
  EXPECT_EQ(tree(), (Tree{{"PLANES.DAT", "new"}, {"loadout.dat", "created"}}));
}

TEST_P(FileSystemContract, ACopiedFileIsSpelledAsAsked) {
  folder_.write("Set\\Readme.\u00C9T\u00C9", "new");
  folder_.write("Game\\README.\u00E9t\u00E9", "old");
  EXPECT_EQ(files().copy_file(folder_.path("set\\readme.\u00E9t\u00E9"),
                              folder_.path("Game\\Readme.\u00C9t\u00E9"), Durability::kCached),
            CopyOutcome::kWritten);
  EXPECT_EQ(names("Game"), Names{"Readme.\u00C9t\u00E9"});
  EXPECT_EQ(read("Game\\Readme.\u00C9t\u00E9"), "new");
}

TEST_P(FileSystemContract, AnEqualFileIsNotWrittenButRenamedWhereItsSpellingDiffers) {
  folder_.write("a", "same bytes");
  folder_.write("B", "same bytes");
  EXPECT_EQ(files().copy_file(folder_.path("a"), folder_.path("b"), Durability::kCached),
            CopyOutcome::kWritten);
  EXPECT_EQ(names(), (Names{"a", "b"}));
  EXPECT_EQ(files().copy_file(folder_.path("a"), folder_.path("b"), Durability::kFlushed),
            CopyOutcome::kUnchanged);
  EXPECT_EQ(tree(), (Tree{{"a", "same bytes"}, {"b", "same bytes"}}));
}

TEST_P(FileSystemContract, SizesFromNothingToSeveralBlocksCopyExactly) {
  constexpr std::array<std::size_t, 12> kSizes = {1,      4095,   4096,   4097,    65535,   65536,
                                                  262143, 262144, 262145, 1048577, 9000000, 20000000};
  for (const std::size_t size : kSizes) {
    std::string bytes(size, '\0');
    for (std::size_t at = 0; at < size; ++at) bytes[at] = static_cast<char>(at * 31 + at / 251);
    write_behind("source", bytes);
    const auto copy = [&] {
      return files().copy_file(folder_.path("source"), folder_.path("target"), Durability::kCached);
    };
    EXPECT_EQ(copy(), CopyOutcome::kWritten) << size;
    EXPECT_TRUE(read("target") == bytes) << size;
    EXPECT_EQ(copy(), CopyOutcome::kUnchanged) << size;

    for (const std::size_t different : {std::size_t{0}, size / 2, size - 1}) {
      std::string other = bytes;
      other[different] = static_cast<char>(~other[different]);
      write_behind("target", other);
      EXPECT_EQ(copy(), CopyOutcome::kWritten) << size << ", different at " << different;
      EXPECT_TRUE(read("target") == bytes) << size << ", different at " << different;
    }
  }
  EXPECT_GE(pulses_, std::get<Span>(GetParam()) == Span::kAction ? 10 : 0);
  EXPECT_EQ(names(), (Names{"source", "target"}));
}

TEST_P(FileSystemContract, ALongerAndAShorterTargetAreReplaced) {
  folder_.write("source", "12345");
  for (const char* old : {"", "1234", "123456", "12345\n"}) {
    write_behind("target", old);
    EXPECT_EQ(files().copy_file(folder_.path("source"), folder_.path("target"), Durability::kFlushed),
              CopyOutcome::kWritten);
    EXPECT_EQ(read("target"), "12345") << old;
  }
}

TEST_P(FileSystemContract, AFileCopiedOntoItselfStays) {
  folder_.write("File", "bytes");
  EXPECT_EQ(files().copy_file(folder_.path("File"), folder_.path("File"), Durability::kCached),
            CopyOutcome::kUnchanged);
  EXPECT_EQ(files().copy_file(folder_.path("File"), folder_.path("FILE"), Durability::kCached),
            CopyOutcome::kWritten);
  EXPECT_EQ(tree(), (Tree{{"FILE", "bytes"}}));
}

TEST_P(FileSystemContract, AFailedCopyLeavesTheTargetAndNoNeighbour) {
  folder_.write("target", "old");
  folder_.make_folder("folder");
  const auto copy = [&](const char* source, const char* target) {
    files().copy_file(folder_.path(source), folder_.path(target), Durability::kCached);
  };
  const Tree before = tree();
  EXPECT_THROW(copy("nothing", "target"), ActionError);
  EXPECT_THROW(copy("folder", "target"), ActionError);
  EXPECT_THROW(copy("target", "folder"), ActionError);
  EXPECT_THROW(copy("target", "FOLDER"), ActionError);
  EXPECT_THROW(copy("target", "nowhere\\target"), ActionError);
  EXPECT_THROW(copy("target", "target\\below"), ActionError);
  EXPECT_THROW(copy("target", ""), ActionError);
  EXPECT_EQ(tree(), before);
}

TEST_P(FileSystemContract, AFailedReplacementLeavesEverythingAsItWas) {
  folder_.write("folder\\inside", "x");
  const Tree before = tree();
  for (const char* name : {"folder", "FOLDER", "nowhere\\file", "folder\\inside\\file", ""}) {
    EXPECT_THROW(files().replace_file(folder_.path(name), "bytes", Durability::kFlushed), ActionError)
        << name;
  }
  EXPECT_THROW(files().replace_file("", "bytes", Durability::kCached), ActionError);
  EXPECT_EQ(tree(), before);
}

TEST_P(FileSystemContract, AFolderInAFilesPlaceIsCalledOne) {
  folder_.write("file", "bytes");
  folder_.make_folder("SkinList.txt");
  const std::string folder = folder_.path("SkinList.txt");
  const auto expect_called_one = [&](const auto& operation) {
    try {
      operation();
      ADD_FAILURE() << "no error";
    } catch (const ActionError& error) {
      EXPECT_EQ(error.path(), folder);
      EXPECT_EQ(error.reason(), "it is a folder");
    }
  };
  expect_called_one([&] { files().replace_file(folder, "bytes", Durability::kCached); });
  expect_called_one([&] { files().copy_file(folder_.path("file"), folder, Durability::kCached); });
  expect_called_one([&] { files().read_file(folder); });
}

TEST_P(FileSystemContract, AFileIsReadInSteps) {
  folder_.write("file", "0123456789");
  const auto file = files().open_file(folder_.path("FILE"));
  std::string bytes(4, '\0');
  EXPECT_EQ(file->read(bytes.data(), 4), 4U);
  EXPECT_EQ(bytes, "0123");
  EXPECT_EQ(file->read(bytes.data(), 4), 4U);
  EXPECT_EQ(bytes, "4567");
  EXPECT_EQ(file->read(bytes.data(), 4), 2U);
  EXPECT_EQ(bytes.substr(0, 2), "89");
  EXPECT_EQ(file->read(bytes.data(), 4), 0U);
}

TEST_P(FileSystemContract, WhatACrashLeftIsSweptByTheNextWriteInItsFolder) {
  folder_.write(test::left_over_name(), "half of something");
  files().replace_file(folder_.path("target"), "new", Durability::kCached);
  EXPECT_EQ(tree(), (Tree{{"target", "new"}}));
}

TEST_P(FileSystemContract, NoFileOfThePlayersIsTakenForALeftOver) {
  const Tree files_of_the_player = {{"~vorlund.bak", "1"},
                                    {"~vorlund2.bak", "2"},
                                    {"~vorlund-.bak", "3"},
                                    {staging_name(0), "4"},
                                    {staging_name(1), "5"},
                                    {"~vorlund-x7ffffffe-0.bak", "6"},
                                    {"~vorlund-case.bak", "7"},
                                    {"~vorlund-p07ffffffe-0.bak", "8"},
                                    {"~vorlund-w07ffffffe-0.bak", "9"},
                                    {"~vorlund-p7ffffffe-0.bak.txt", "10"}};
  for (const auto& [name, bytes] : files_of_the_player) folder_.write(name, bytes);
  Tree expected = files_of_the_player;
  files().replace_file(folder_.path("target"), "new", Durability::kCached);
  files().copy_file(folder_.path("target"), folder_.path("copy"), Durability::kCached);
  expected.insert({{"target", "new"}, {"copy", "new"}});
  EXPECT_EQ(tree(), expected);
}

TEST_P(FileSystemContract, AFolderOfTheStagingNameIsGoneRound) {
  folder_.make_folder(staging_name(0));
  files().replace_file(folder_.path("target"), "new", Durability::kCached);
  EXPECT_EQ(tree(), (Tree{{staging_name(0) + "/", ""}, {"target", "new"}}));
}

TEST_P(FileSystemContract, AFileOfTheStagingNameIsWrittenToo) {
  const std::string name = staging_name(0);
  files().replace_file(folder_.path(name), "first", Durability::kCached);
  files().replace_file(folder_.path(to_upper(name)), "second", Durability::kCached);
  EXPECT_EQ(tree(), (Tree{{name, "second"}}));
}

TEST_P(FileSystemContract, AFileIsRemovedInAnySpelling) {
  folder_.write("Career.SVE", "x");
  folder_.write("other", "x");
  files().remove_file(folder_.path("career.sve"));
  EXPECT_EQ(names(), Names{"other"});
  EXPECT_FALSE(files().FileExists(folder_.path("Career.SVE")));
}

TEST_P(FileSystemContract, RemovingWhatIsNotAFileIsAnError) {
  folder_.make_folder("folder");
  for (const char* name : {"nothing", "folder", "", "nowhere\\file"}) {
    EXPECT_THROW(files().remove_file(folder_.path(name)), ActionError) << name;
  }
  EXPECT_EQ(names(), Names{"folder"});
}

TEST_P(FileSystemContract, WhatWasWrittenAndRemovedIsSeenAtOnceInAnySpelling) {
  const auto exists = [&](const char* name) { return files().FileExists(folder_.path(name)); };
  EXPECT_FALSE(exists("NEW.DAT"));
  files().replace_file(folder_.path("New.dat"), "1", Durability::kCached);
  EXPECT_TRUE(exists("NEW.DAT"));
  files().copy_file(folder_.path("NEW.dat"), folder_.path("Copy.dat"), Durability::kCached);
  EXPECT_TRUE(exists("COPY.DAT"));
  EXPECT_EQ(files().read_file(folder_.path("copy.dat")), "1");
  files().replace_file(folder_.path("new.DAT"), "2", Durability::kCached);
  EXPECT_EQ(files().read_file(folder_.path("NEW.dat")), "2");
  files().remove_file(folder_.path("new.dat"));
  EXPECT_FALSE(exists("NEW.DAT"));
  EXPECT_FALSE(exists("new.DAT"));
  files().replace_file(folder_.path("NEW.dat"), "3", Durability::kCached);
  EXPECT_EQ(files().read_file(folder_.path("new.dat")), "3");
  EXPECT_EQ(names(), (Names{"Copy.dat", "NEW.dat"}));
}

TEST_P(FileSystemContract, DoubledBackslashesAreOne) {
  const std::string root = folder_.path() + "\\\\";
  folder_.make_folder("~Vorlund");
  files().replace_file(root + "~Vorlund\\\\list.txt", "x", Durability::kCached);
  EXPECT_EQ(files().read_file(root + "~Vorlund\\list.txt"), "x");
  EXPECT_EQ(listed(root + "~Vorlund\\\\"), Names{"list.txt"});
}

TEST_P(FileSystemContract, PathsPast260CharactersWork) {
  std::string deep = "deep";
  while (folder_.path(deep).size() < 600) deep += "\\a folder with a rather long name, \u00E9t\u00E9 1944";
  folder_.make_folder(deep);
  const std::string path = folder_.path(deep + "\\File.dat");
  files().replace_file(path, "deep down", Durability::kFlushed);
  EXPECT_TRUE(files().FileExists(folder_.path(to_upper(deep + "\\file.dat"))));
  EXPECT_TRUE(files().FolderExists(folder_.path(to_upper(deep))));
  EXPECT_EQ(files().read_file(path), "deep down");
  EXPECT_EQ(files().copy_file(path, folder_.path(deep + "\\Copy.dat"), Durability::kCached),
            CopyOutcome::kWritten);
  EXPECT_EQ(listed(folder_.path(deep)), (Names{"Copy.dat", "File.dat"}));
  files().remove_file(path);
  EXPECT_EQ(names(deep), Names{"Copy.dat"});
}

TEST_P(FileSystemContract, TheCurrentFolderIsAFolderWithoutASeparatorAtItsEnd) {
  const std::string current = files().current_folder();
  EXPECT_TRUE(files().FolderExists(current)) << current;
  ASSERT_FALSE(current.empty());
  if (current != "/" && !current.ends_with(":\\")) {
    EXPECT_FALSE(current.ends_with('/') || current.ends_with('\\')) << current;
  }
}

TEST_P(FileSystemContract, AFolderLiesInsideItselfAndWhatIsAboveIt) {
  folder_.make_folder("Outer\\Inner");
  folder_.make_folder("Outer 2");
  folder_.write("Outer\\file", "");
  EXPECT_TRUE(files().lies_inside(folder_.path("OUTER\\inner"), folder_.path("outer")));
  EXPECT_TRUE(files().lies_inside(folder_.path("Outer\\Inner"), folder_.path()));
  EXPECT_TRUE(files().lies_inside(folder_.path("Outer"), folder_.path("Outer\\")));
  EXPECT_FALSE(files().lies_inside(folder_.path("Outer"), folder_.path("Outer\\Inner")));
  EXPECT_FALSE(files().lies_inside(folder_.path("Outer 2"), folder_.path("Outer")));
  EXPECT_FALSE(files().lies_inside(folder_.path("Outer\\none"), folder_.path("Outer")));
  EXPECT_FALSE(files().lies_inside(folder_.path("Outer\\file"), folder_.path("Outer")));
  EXPECT_FALSE(files().lies_inside(folder_.path("Outer"), folder_.path("none")));
  EXPECT_FALSE(files().lies_inside("", ""));
}

TEST_P(FileSystemContract, StartingWhatIsNotThereIsAnError) {
  EXPECT_THROW(files().start_program(folder_.path("eaw.exe"), folder_.path()), ActionError);
  folder_.make_folder("folder");
  EXPECT_THROW(files().start_program(folder_.path("folder"), folder_.path()), ActionError);
}

TEST_P(FileSystemContract, ManyFoldersInOneActionWorkAlike) {
  for (int index = 0; index < 60; ++index) folder_.write("Group " + std::to_string(index) + "\\File", "x");
  folder_.make_folder("Game");
  for (int round = 0; round < 2; ++round) {
    for (int index = 0; index < 60; ++index) {
      const std::string number = std::to_string(index);
      files().copy_file(folder_.path("GROUP " + number + "\\FILE"), folder_.path("game\\File" + number),
                        Durability::kCached);
      files().replace_file(folder_.path("group " + number + "\\file"), number, Durability::kCached);
    }
  }
  EXPECT_EQ(names("Game").size(), 60U);
  EXPECT_EQ(read("Game\\File59"), "59");
  EXPECT_EQ(names("Group 59"), Names{"File"});
}

TEST_P(FileSystemContract, AReaderGoesOnWhereItIsPlaced) {
  files().replace_file(folder_.path("File"), "0123456789", Durability::kCached);
  const auto reader = files().open_file(folder_.path("file"));
  std::string bytes(3, '?');
  for (const std::uint64_t offset : {4U, 0U, 8U, 10U}) {
    reader->seek(offset);
    const std::size_t got = reader->read(bytes.data(), bytes.size());
    EXPECT_EQ(bytes.substr(0, got), std::string("0123456789").substr(offset, 3));
  }
}

/// Claims a length that it does not have.
class ClaimingReader : public test::TextReader {
 public:
  explicit ClaimingReader(std::uint64_t size) : TextReader("few"), size_(size) {}
  std::uint64_t size() const override { return size_; }

 private:
  std::uint64_t size_;
};

class ClaimingFileSystem : public test::ForwardingFileSystem {
 public:
  using ForwardingFileSystem::ForwardingFileSystem;
  std::unique_ptr<FileReader> open_file(std::string_view) override {
    return std::make_unique<ClaimingReader>(size);
  }
  std::uint64_t size = 0;
};

TEST(ReadFile, OfALengthThatNoMemoryHoldsIsAnErrorThatNamesTheFile) {
  const auto platform = make_platform_file_system();
  ClaimingFileSystem files(*platform);
  EXPECT_EQ(files.read_file("file"), "few");
  std::vector<std::uint64_t> lengths = {std::uint64_t{1} << 63};  // more than a text can be long
#ifndef __SANITIZE_ADDRESS__
  lengths.push_back(std::uint64_t{1} << 62);  // the sanitizer ends the program that asks for so much
#endif
  for (const std::uint64_t size : lengths) {
    files.size = size;
    try {
      files.read_file("file");
      ADD_FAILURE() << size;
    } catch (const ActionError& error) {
      EXPECT_EQ(error.path(), "file");
      EXPECT_EQ(error.reason(), kOutOfMemory);
    }
  }
}

TEST(StagingNames, AreToldFromNamesThatOnlyLookAlike) {
  for (const std::string& name :
       {staging_name(0), staging_name(300), "~vorlund-w1-ff.bak"s, "~vorlund-pffffffff-0.bak"s}) {
    EXPECT_TRUE(is_staging_name(name)) << name;
  }
  for (const char* name :
       {"", "eaw.exe", "~vorlund-.bak", "~vorlund-p.bak", "~vorlund-x1-0.bak", "~vorlund-pz-0.bak",
        "~vorlund-p1.bak", "~vorlund-p1-.bak", "~vorlund-p1-0", "~vorlund-p01-0.bak", "~vorlund-p1-00.bak",
        "~vorlund-p1-0x.bak", "~vorlund-p1ffffffff-0.bak", "~VORLUND-p1-0.bak", "~vorlund-.ba",
        "~vorlund-p1-0.bak.bak"}) {
    EXPECT_FALSE(is_staging_name(name)) << name;
    EXPECT_FALSE(is_left_over(name)) << name;
    EXPECT_FALSE(is_staging_name_of_another(name)) << name;
  }
  // Of another platform's processes nothing is known.
  const std::string elsewhere =
      std::string("~vorlund-") + (kPlatformLetter == 'p' ? 'w' : 'p') + "7ffffffe-0.bak";
  EXPECT_TRUE(is_staging_name(elsewhere));
  EXPECT_FALSE(is_left_over(elsewhere));
  EXPECT_FALSE(is_staging_name_of_another(elsewhere));
  EXPECT_FALSE(is_staging_name_of_another(staging_name(0)));
  EXPECT_FALSE(is_left_over(staging_name(0)));
}

std::string name_of(const testing::TestParamInfo<std::tuple<Kind, Span>>& info) {
  const auto [kind, span] = info.param;
  const std::string_view name = kind == Kind::kPlatform ? "Platform"
                                : kind == Kind::kFaulty ? "Faulty"
                                : kind == Kind::kDryRun ? "DryRun"
                                                        : "Recording";
  return std::string(name) + (span == Span::kAlone ? "Alone" : "InAnAction");
}

INSTANTIATE_TEST_SUITE_P(Every, FileSystemContract,
                         testing::Combine(testing::Values(Kind::kPlatform, Kind::kFaulty, Kind::kRecording,
                                                          Kind::kDryRun),
                                          testing::Values(Span::kAlone, Span::kAction)),
                         name_of);

}  // namespace
}  // namespace vorlund
