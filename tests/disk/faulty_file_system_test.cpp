// The doubles themselves: a fault strikes where it is told to, and the log says what was asked.
#include "support/faulty_file_system.h"

#include <gtest/gtest.h>

#include "base/action_error.h"
#include "support/left_over.h"
#include "support/recording_file_system.h"
#include "support/temporary_folder.h"

namespace vorlund::test {
namespace {

using Names = std::vector<std::string>;
using Tree = std::map<std::string, std::string>;

class FaultyFileSystemTest : public testing::Test {
 protected:
  TemporaryFolder folder_;
  std::unique_ptr<FileSystem> disk_ = make_platform_file_system();
  FaultyFileSystem files_{*disk_};
};

TEST_F(FaultyFileSystemTest, FailsOnceAtTheNumberAndThenGoesOn) {
  folder_.write("a", "1");
  files_.arm({2});
  EXPECT_EQ(files_.read_file(folder_.path("a")), "1");
  EXPECT_THROW(files_.read_file(folder_.path("a")), ActionError);
  EXPECT_EQ(files_.read_file(folder_.path("a")), "1");
  EXPECT_EQ(files_.operations(), 3);
  EXPECT_TRUE(files_.struck());
  EXPECT_TRUE(files_.failed());
  EXPECT_EQ(files_.struck_operation(), "read " + folder_.path("a"));
}

TEST_F(FaultyFileSystemTest, FailsPersistentlyFromTheNumberOn) {
  folder_.write("a", "1");
  files_.arm({2, FaultKind::kError, FaultSpan::kPersistent});
  EXPECT_TRUE(files_.FileExists(folder_.path("a")));
  EXPECT_THROW(files_.FileExists(folder_.path("a")), ActionError);
  EXPECT_THROW(files_.is_there(folder_.path("a")), ActionError);
  EXPECT_THROW(files_.remove_file(folder_.path("a")), ActionError);
  EXPECT_THROW(files_.entries(folder_.path()), ActionError);
  EXPECT_THROW(files_.open_file(folder_.path("a")), ActionError);
  EXPECT_THROW(files_.current_folder(), ActionError);
  EXPECT_THROW(files_.start_program(folder_.path("a"), folder_.path()), ActionError);
  EXPECT_TRUE(files_.failed());
  EXPECT_EQ(folder_.tree(), (Tree{{"a", "1"}}));
}

TEST_F(FaultyFileSystemTest, WithoutARightExistenceTestsAnswerNoAndTheRestFails) {
  folder_.write("a", "1");
  files_.arm({1, FaultKind::kNoRight, FaultSpan::kPersistent});
  EXPECT_FALSE(files_.FileExists(folder_.path("a")));
  EXPECT_FALSE(files_.FolderExists(folder_.path()));
  EXPECT_FALSE(files_.lies_inside(folder_.path(), folder_.path()));
  EXPECT_TRUE(files_.struck());
  EXPECT_FALSE(files_.failed());
  EXPECT_THROW(files_.is_there(folder_.path("a")), ActionError);
  EXPECT_TRUE(files_.failed());
  EXPECT_THROW(files_.entries(folder_.path()), ActionError);
}

TEST_F(FaultyFileSystemTest, AShortWriteLeavesHalfInTheNeighbourAndTheTargetWhole) {
  folder_.write("source", "12345678");
  folder_.write("target", "old");
  const std::string neighbour = left_over_name();
  for (const FaultKind kind : {FaultKind::kShortWrite, FaultKind::kDiskFull}) {
    files_.arm({1, kind, FaultSpan::kPersistent});
    EXPECT_EQ(files_.read_file(folder_.path("target")), "old");
    EXPECT_THROW(files_.copy_file(folder_.path("source"), folder_.path("target"), Durability::kCached),
                 ActionError);
    EXPECT_EQ(folder_.tree(), (Tree{{"source", "12345678"}, {"target", "old"}, {neighbour, "1234"}}));
    EXPECT_THROW(files_.replace_file(folder_.path("target"), "abcd", Durability::kFlushed), ActionError);
    EXPECT_EQ(folder_.tree(), (Tree{{"source", "12345678"}, {"target", "old"}, {neighbour, "ab"}}));
    EXPECT_EQ(files_.operations(), 2);
  }
}

TEST_F(FaultyFileSystemTest, AFullDiskSaysSo) {
  files_.arm({1, FaultKind::kDiskFull});
  try {
    files_.replace_file(folder_.path("target"), "abcd", Durability::kCached);
    ADD_FAILURE() << "no error";
  } catch (const ActionError& error) {
    EXPECT_EQ(error.reason(), "No space left on device");
  }
}

TEST_F(FaultyFileSystemTest, ArmingNumbersAnewAndDisarmingEndsTheFault) {
  files_.arm({1, FaultKind::kError, FaultSpan::kPersistent});
  EXPECT_THROW(files_.current_folder(), ActionError);
  files_.arm({100});
  EXPECT_NO_THROW(files_.current_folder());
  EXPECT_EQ(files_.operations(), 1);
  EXPECT_FALSE(files_.struck());
  files_.arm({1, FaultKind::kError, FaultSpan::kPersistent});
  files_.disarm();
  EXPECT_NO_THROW(files_.current_folder());
}

TEST(RecordingFileSystem, LogsWhatIsAskedInOrder) {
  const TemporaryFolder folder;
  const auto disk = make_platform_file_system();
  RecordingFileSystem files(*disk);
  const std::string a = folder.path("a");
  const std::string b = folder.path("b");
  {
    const FileSystem::Action action(files);
    files.replace_file(a, "12", Durability::kFlushed);
    files.copy_file(a, b, Durability::kCached);
  }
  files.FileExists(a);
  files.FolderExists(a);
  files.is_there(a);
  files.lies_inside(a, b);
  files.entries(folder.path());
  files.read_file(a);
  files.read_file(a, 1);
  files.remove_file(b);
  EXPECT_THROW(files.start_program(b, folder.path()), ActionError);
  EXPECT_EQ(files.log(), (Names{"begin action", "replace " + a + " (flushed)", "copy " + a + " -> " + b,
                                "end action", "file exists " + a, "folder exists " + a, "file is there " + a,
                                "lies inside " + b + ": " + a, "list " + folder.path(), "read " + a,
                                "read " + a, "remove " + b, "start " + b + " in " + folder.path()}));
  EXPECT_EQ(files.changes(), (Names{"replace " + a + " (flushed)", "copy " + a + " -> " + b, "remove " + b,
                                    "start " + b + " in " + folder.path()}));
  files.clear();
  EXPECT_EQ(files.log(), Names());
}

}  // namespace
}  // namespace vorlund::test
