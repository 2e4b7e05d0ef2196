// The layout of plane-picture menu files, byte by byte.
#include "menus/picture_menu.h"

#include <gtest/gtest.h>

#include <string>

#include "menus/sample_menu.h"

namespace vorlund {
namespace {

using namespace std::string_literals;

const std::string kHeader = test::sample_menu_header();
const std::string kTrailer0 = test::sample_menu_trailer(0);
const std::string kTrailer1 = test::sample_menu_trailer(1);

TEST(PictureMenu, EntryWithLengthFivePutsTheNextEntryAtOffset59) {
  const std::string bytes = kHeader + "\5\0\0\0Spit\0"s + kTrailer0 + "\3\0\0\0Me\0"s + kTrailer1;
  ASSERT_EQ(bytes[59], '\3');
  const PictureMenu menu = parse_picture_menu(bytes, 2);
  EXPECT_EQ(menu.header, kHeader);
  EXPECT_EQ(menu.entries[0].length, 5);
  EXPECT_EQ(menu.entries[0].name, "Spit");
  EXPECT_EQ(menu.entries[0].trailer, kTrailer0);
  EXPECT_EQ(menu.entries[1].length, 3);
  EXPECT_EQ(menu.entries[1].name, "Me");
  EXPECT_EQ(menu.entries[1].trailer, kTrailer1);
}

TEST(PictureMenu, ComposesWhatItReadAndDropsWhatFollows) {
  const std::string bytes = kHeader + "\5\0\0\0Spit\0"s + kTrailer0 + "\3\0\0\0Me\0"s + kTrailer1;
  EXPECT_EQ(compose_picture_menu(parse_picture_menu(bytes + "tail", 2)), bytes);
}

TEST(PictureMenu, NeverReadsTheHighBytesOfALengthAndWritesThemAsZero) {
  const std::string bytes = kHeader + "\3\1\2\3Me\0"s + kTrailer0;
  EXPECT_EQ(compose_picture_menu(parse_picture_menu(bytes, 1)), kHeader + "\3\0\0\0Me\0"s + kTrailer0);
}

TEST(PictureMenu, LeavesZeroBytesOutOfAName) {
  const PictureMenu menu = parse_picture_menu(kHeader + "\6\0\0\0AB\0CD\0"s + kTrailer0, 1);
  EXPECT_EQ(menu.entries[0].length, 6);
  EXPECT_EQ(menu.entries[0].name, "ABCD");
  EXPECT_EQ(menu.entries[0].trailer, kTrailer0);
}

TEST(PictureMenu, WritesAnEntryOfLengthZeroOneByteLongerThanItSays) {
  const PictureMenu menu =
      parse_picture_menu(kHeader + "\0\0\0\0"s + kTrailer0 + "\3\0\0\0Me\0"s + kTrailer1, 2);
  EXPECT_EQ(menu.entries[0].length, 0);
  EXPECT_EQ(menu.entries[0].name, "");
  EXPECT_EQ(menu.entries[1].name, "Me");
  EXPECT_EQ(compose_picture_menu(menu), kHeader + "\0\0\0\0\0"s + kTrailer0 + "\3\0\0\0Me\0"s + kTrailer1);
}

TEST(PictureMenu, ReadsBytesPastTheEndAsZero) {
  struct Case {
    std::string bytes;
    std::string header;
    int length;
    std::string name;
    std::string trailer;
  };
  const std::string kZeros15(15, '\0');
  const std::string kCutTrailer = "\1\2"s + std::string(13, '\0');
  const Case cases[] = {
      {"", std::string(35, '\0'), 0, "", kZeros15},
      {"head", "head" + std::string(31, '\0'), 0, "", kZeros15},
      {kHeader, kHeader, 0, "", kZeros15},
      {kHeader + "\377", kHeader, 255, "", kZeros15},
      {kHeader + "\5\0\0\0Sp"s, kHeader, 5, "Sp", kZeros15},
      {kHeader + "\5\0\0\0Spit\0\1\2"s, kHeader, 5, "Spit", kCutTrailer},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.bytes.size());
    const PictureMenu menu = parse_picture_menu(test.bytes, 9);
    ASSERT_EQ(menu.entries.size(), 9u);
    EXPECT_EQ(menu.header, test.header);
    EXPECT_EQ(menu.entries[0].length, test.length);
    EXPECT_EQ(menu.entries[0].name, test.name);
    EXPECT_EQ(menu.entries[0].trailer, test.trailer);
    EXPECT_EQ(menu.entries[8].length, 0);
    EXPECT_EQ(menu.entries[8].trailer, kZeros15);
  }
}

TEST(PictureMenu, LimitHoldsTheLongestFileThatCanBeRead) {
  EXPECT_EQ(picture_menu_limit(9), 35u + 9u * 274u);
  EXPECT_EQ(picture_menu_limit(11), 35u + 11u * 274u);
}

}  // namespace
}  // namespace vorlund
