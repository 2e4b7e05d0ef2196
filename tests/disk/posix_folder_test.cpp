// Paths taken apart, and folders found and remembered.
#include "posix/posix_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::string_literals;

TEST(SplitPath, TakesPathsApartBeforeTheirLastName) {
  const struct {
    std::string path;
    std::string folder;
    std::string name;
  } samples[] = {
      {"", "", ""},
      {"a\0b"s, "", ""},
      {"\0"s, "", ""},
      {"file", ".", "file"},
      {".", ".", "."},
      {".\\", ".", "."},
      {".\\.\\", ".", "."},
      {"/", "/", "."},
      {"\\", "\\", "."},
      {"\\\\", "\\\\", "."},
      {"\\.", "\\", "."},
      {"/file", "/", "file"},
      {"\\file", "\\", "file"},
      {"/a/b", "/a", "b"},
      {"/a\\b\\c", "/a\\b", "c"},
      {"/a//b\\\\c\\", "/a//b", "c"},
      {"a\\.\\b", "a\\.", "b"},
      {"a\\.", ".", "a"},
      {"a\\b\\.\\\\.", "a", "b"},
      {"/a\\..\\b", "/a\\..", "b"},
      {"..", ".", ".."},
      {"C:\\\\~Vorlund\\x", "C:\\\\~Vorlund", "x"},
      {"caf\u00E9 x\\y z", "caf\u00E9 x", "y z"},
  };
  for (const auto& sample : samples) {
    const SplitPath parts = split_path(sample.path);
    EXPECT_EQ(parts.folder, sample.folder) << testing::PrintToString(sample.path);
    EXPECT_EQ(parts.name, sample.name) << testing::PrintToString(sample.path);
  }
}

TEST(SplitPath, PartsJoinAgain) {
  EXPECT_EQ(join_path("/a/b", "c"), "/a/b/c");
  EXPECT_EQ(join_path("/", "c"), "/c");
  EXPECT_EQ(join_path(".", "c"), "./c");
}

TEST(PosixFolders, AFolderReachedByTwoSpellingsIsOneFolderWhileRemembered) {
  const test::TemporaryFolder folder;
  folder.make_folder("SkinStore");
  PosixFolders folders;
  folders.remember();
  const auto exact = folders.open(folder.path() + "/SkinStore");
  const auto other = folders.open(folder.path() + "/Skinstore");
  ASSERT_TRUE(exact);
  EXPECT_EQ(exact, other);
  EXPECT_EQ(exact->path(), folder.path() + "/SkinStore");
  folders.forget();
  EXPECT_NE(folders.open(folder.path() + "/SkinStore"), exact);
}

TEST(PosixFolders, AMissingFolderGivesNoneAndSaysWhy) {
  const test::TemporaryFolder folder;
  folder.write("file", "");
  PosixFolders folders;
  EXPECT_FALSE(folders.open(folder.path() + "/nothing/below"));
  EXPECT_EQ(errno, ENOENT);
  EXPECT_FALSE(folders.open(folder.path() + "/file"));
  EXPECT_EQ(errno, ENOTDIR);
}

TEST(PosixFolder, SpellingsAreInTheOrderOfListings) {
  const test::TemporaryFolder folder;
  for (const char* name : {"aB", "Ab", "ab", "AB", "abc"}) folder.write(name, "");
  for (const bool remembered : {false, true}) {
    PosixFolders folders;
    if (remembered) folders.remember();
    const auto opened = folders.open(folder.path());
    ASSERT_TRUE(opened);
    const auto spellings = opened->spellings("Ab");
    ASSERT_TRUE(spellings);
    EXPECT_TRUE(spellings->exact);
    EXPECT_EQ(spellings->others, (std::vector<std::string>{"AB", "aB", "ab"}));
    EXPECT_EQ(opened->other_spelling("ABC"), "abc");
    EXPECT_EQ(opened->other_spelling("nothing"), std::nullopt);
    EXPECT_EQ(errno, ENOENT);
  }
}

TEST(PosixFolder, RememberedNamesAreKeptInStep) {
  const test::TemporaryFolder folder;
  for (const char* name : {"aB", "Ab", "other"}) folder.write(name, "");
  PosixFolders folders;
  folders.remember();
  const auto opened = folders.open(folder.path());
  ASSERT_TRUE(opened);
  using Names = std::vector<std::string>;
  const auto others = [&] { return opened->spellings("AB")->others; };
  EXPECT_EQ(others(), (Names{"Ab", "aB"}));
  opened->name_added("ab");
  opened->name_added("ab");
  EXPECT_EQ(others(), (Names{"Ab", "aB", "ab"}));
  for (const char* removed : {"Ab", "Ab", "nothing"}) opened->name_removed(removed);
  EXPECT_EQ(others(), (Names{"aB", "ab"}));
  opened->name_removed("ab");
  EXPECT_EQ(others(), Names{"aB"});
  opened->name_removed("aB");
  EXPECT_EQ(others(), Names());
  opened->name_added("AB");
  EXPECT_TRUE(opened->spellings("AB")->exact);
  EXPECT_EQ(opened->other_spelling("OTHER"), "other");
}

}  // namespace
}  // namespace vorlund
