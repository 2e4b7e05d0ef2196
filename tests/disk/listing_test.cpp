// Masks, listings and their order.
#include "disk/listing.h"

#include <gtest/gtest.h>

#include "disk/store.h"
#include "support/recording_file_system.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using Names = std::vector<std::string>;

struct MaskCase {
  std::string_view name;
  std::string_view pattern;
  bool matches;
};

constexpr MaskCase kMasks[] = {
    {"DEFAULT1.MSN", "Default*.msn", true},
    {"default.msn", "Default*.msn", true},
    {"default.msn.bak", "Default*.msn", false},
    {"xdefault.msn", "Default*.msn", false},
    {"readme", "*.*", true},
    {"readme.txt", "*.*", true},
    {".profile", "*.*", true},
    {"anything", "*", true},
    {"mypic", "mypic", true},
    {"MyPic", "mypic", true},
    {"mypic.jpg", "mypic", false},
    {"shot.JPG", kPicturePattern, true},
    {"shot.jpeg", kPicturePattern, false},
    {"SKINPIC", kPicturePattern, true},
    {"a.bmp", kPicturePattern, true},
    {"a.bmpx", kPicturePattern, false},
    {"c123.sve", "c*.sve", true},
    {"ace.sve", "c*.sve", false},
    {"abc", "a?c", true},
    {"ac", "a?c", false},
    {"a\u00E9c", "a?c", true},
    {"a\U0001F600c", "a?c", true},
    {"a\xE9"
     "c",
     "a?c", true},
    {"\u00C9T\u00C9.DAT", "\u00E9t\u00E9.*", true},
    {"aaab", "*a*b", true},
    {"aaac", "*a*b", false},
    {"abcbd", "a*b*d", true},
    {"mississippi", "m*iss*ppi", true},
    {"mississippi", "m*issi*ssippi*x", false},
    {"x", "**?**", true},
    {"", "*", true},
    {"", "?", false},
    {"a", "", false},
    {"a", ";", false},
    {"a", ";a", true},
    {"a", "b;a;", true},
    {"a;b", "a;b", false},
    {"[a]", "[a]", true},
};

TEST(Listing, MasksMatchAsDefined) {
  for (const MaskCase& sample : kMasks) {
    EXPECT_EQ(matches_pattern(sample.name, sample.pattern), sample.matches)
        << sample.name << " against " << sample.pattern;
  }
}

TEST(Listing, AMaskOfManyStarsDoesNotTakeForEver) {
  std::string mask;
  for (int star = 0; star < 40; ++star) mask += "*a";
  EXPECT_FALSE(matches_pattern(std::string(4000, 'a') + "b", mask));
}

class ListingTest : public testing::Test {
 protected:
  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
};

TEST_F(ListingTest, FilesAreListedAscendingWithoutRegardToCaseAndWithoutFolders) {
  for (const char* name : {"b.msn", "C.MSN", "a.msn", "\u00C9t\u00E9.msn", "readme", "z.txt"})
    folder_.write(name, "");
  folder_.make_folder("d.msn");
  EXPECT_EQ(list_files(*files_, folder_.path(), "*.msn"),
            (Names{"a.msn", "b.msn", "C.MSN", "\u00C9t\u00E9.msn"}));
  EXPECT_EQ(list_files(*files_, folder_.path(), "*.*"),
            (Names{"a.msn", "b.msn", "C.MSN", "readme", "z.txt", "\u00C9t\u00E9.msn"}));
}

TEST_F(ListingTest, FoldersAreListedAscendingWithoutRegardToCaseAndWithoutFiles) {
  for (const char* name : {"Sounds", "careers", "Patches"}) folder_.make_folder(name);
  folder_.write("file", "");
  EXPECT_EQ(list_folders(*files_, folder_.path()), (Names{"careers", "Patches", "Sounds"}));
}

TEST_F(ListingTest, AFolderWithoutAMatchGivesNone) {
  folder_.write("a.txt", "");
  EXPECT_EQ(list_files(*files_, folder_.path(), "*.msn"), Names());
  EXPECT_EQ(list_folders(*files_, folder_.path()), Names());
}

TEST_F(ListingTest, AFolderThatIsNotThereGivesNone) {
  folder_.write("file", "");
  for (const char* missing : {"nothing", "nothing\\below", "file", "file\\below"}) {
    EXPECT_EQ(list_files(*files_, folder_.path(missing), "*.*"), Names()) << missing;
    EXPECT_EQ(list_folders(*files_, folder_.path(missing)), Names()) << missing;
  }
}

TEST_F(ListingTest, ThePatternForDefaultMissionsListsEverySpelling) {
  folder_.write("Savedata\\DEFAULT1.MSN", "");
  folder_.write("Savedata\\default.msn", "");
  EXPECT_EQ(list_files(*files_, folder_.path("Savedata"), "Default*.msn"),
            (Names{"default.msn", "DEFAULT1.MSN"}));
}

TEST_F(ListingTest, TheTwoSpellingsOfTheSkinStoreNameTheSameFolder) {
  folder_.write("~Vorlund\\SkinStore\\mypic", "");
  EXPECT_EQ(list_files(*files_, folder_.path("~Vorlund\\Skinstore\\"), "*.*"), Names{"mypic"});
  EXPECT_EQ(list_files(*files_, folder_.path("~Vorlund\\SkinStore\\"), "*.*"), Names{"mypic"});
}

TEST_F(ListingTest, AGameDirectoryThatEndsInASeparatorStillOpens) {
  folder_.write("~Vorlund\\contents.txt", "x");
  EXPECT_EQ(list_files(*files_, folder_.path() + "\\" + "\\~Vorlund", "*.*"), Names{"contents.txt"});
}

TEST_F(ListingTest, OneReadingOfAFolderServesSeveralPatterns) {
  for (const char* name : {"a.jpg", "MYPIC", "b.oaw"}) folder_.write(name, "");
  test::RecordingFileSystem recorder(*files_);
  const std::vector<FolderEntry> entries = recorder.entries(folder_.path());
  EXPECT_EQ(matching_files(entries, kPicturePattern), (Names{"a.jpg", "MYPIC"}));
  EXPECT_EQ(matching_files(entries, "*.oaw"), Names{"b.oaw"});
  EXPECT_EQ(recorder.log(), Names{"list " + folder_.path()});
}

#ifndef _WIN32
TEST_F(ListingTest, HiddenFilesAreNotListed) {
  folder_.write(".hidden.msn", "");
  folder_.write("seen.msn", "");
  EXPECT_EQ(list_files(*files_, folder_.path(), "*.msn"), Names{"seen.msn"});
}
#endif

}  // namespace
}  // namespace vorlund
