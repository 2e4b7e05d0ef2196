// The layout of plane-picture menu files, byte by byte.
#include "aircraft/picture_menu.h"

#include <gtest/gtest.h>

#include <string>

#include "support/sample_menu.h"

namespace vorlund {
namespace {

using namespace std::string_literals;

const std::string kHeader = test::sample_menu_header();
const std::string kTrailer0 = test::sample_menu_trailer(0);
const std::string kTrailer1 = test::sample_menu_trailer(1);

PictureMenu parsed(std::string_view bytes, Country country = Country::kBritish) {
  PictureMenu menu;
  parse_picture_menu(bytes, country, menu);
  return menu;
}

/// The bytes of a British menu that begins with these entries; the further ones have length 1.
std::string british(const std::string& first_entries, int count) {
  std::string bytes = kHeader + first_entries;
  for (int entry = count; entry < 9; ++entry) bytes += "\1\0\0\0\0"s + kTrailer0;
  return bytes;
}

TEST(PictureMenu, EntryWithLengthFivePutsTheNextEntryAtOffset59) {
  const std::string bytes = british("\5\0\0\0Spit\0"s + kTrailer0 + "\3\0\0\0Me\0"s + kTrailer1, 2);
  ASSERT_EQ(bytes[59], '\3');
  const PictureMenu menu = parsed(bytes);
  EXPECT_EQ(menu.header, kHeader);
  EXPECT_EQ(menu.entries[0].length, 5);
  EXPECT_EQ(menu.entries[0].name, "Spit");
  EXPECT_EQ(menu.entries[0].trailer, kTrailer0);
  EXPECT_EQ(menu.entries[1].length, 3);
  EXPECT_EQ(menu.entries[1].name, "Me");
  EXPECT_EQ(menu.entries[1].trailer, kTrailer1);
}

TEST(PictureMenu, ComposesWhatItReadAndDropsWhatFollows) {
  const std::string bytes = british("\5\0\0\0Spit\0"s + kTrailer0 + "\3\0\0\0Me\0"s + kTrailer1, 2);
  EXPECT_EQ(compose_picture_menu(parsed(bytes + "tail"), Country::kBritish), bytes);
}

TEST(PictureMenu, NeverReadsTheHighBytesOfALengthAndWritesThemAsZero) {
  EXPECT_EQ(compose_picture_menu(parsed(british("\3\1\2\3Me\0"s + kTrailer0, 1)), Country::kBritish),
            british("\3\0\0\0Me\0"s + kTrailer0, 1));
}

TEST(PictureMenu, LeavesZeroBytesOutOfANameAndCountsTheRest) {
  const PictureMenu menu = parsed(british("\6\0\0\0AB\0CD\0"s + kTrailer0, 1));
  EXPECT_EQ(menu.entries[0].length, 5);
  EXPECT_EQ(menu.entries[0].name, "ABCD");
  EXPECT_EQ(menu.entries[0].trailer, kTrailer0);
}

TEST(PictureMenu, WritesAnEntryOfLengthZeroOneByteLongerThanItSays) {
  const std::string me = "\3\0\0\0Me\0"s + kTrailer1;
  const PictureMenu menu = parsed(british("\0\0\0\0"s + kTrailer0 + me, 2));
  EXPECT_EQ(menu.entries[0].length, 0);
  EXPECT_EQ(menu.entries[0].name, "");
  EXPECT_EQ(menu.entries[1].name, "Me");
  EXPECT_EQ(compose_picture_menu(menu, Country::kBritish), british("\0\0\0\0\0"s + kTrailer0 + me, 2));
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
      {kHeader + "\5\0\0\0Sp"s, kHeader, 3, "Sp", kZeros15},
      {kHeader + "\5\0\0\0Spit\0\1\2"s, kHeader, 5, "Spit", kCutTrailer},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.bytes.size());
    const PictureMenu menu = parsed(test.bytes);
    EXPECT_EQ(menu.header, test.header);
    EXPECT_EQ(menu.entries[0].length, test.length);
    EXPECT_EQ(menu.entries[0].name, test.name);
    EXPECT_EQ(menu.entries[0].trailer, test.trailer);
    EXPECT_EQ(menu.entries[8].length, 0);
    EXPECT_EQ(menu.entries[8].trailer, kZeros15);
  }
}

TEST(PictureMenu, HasTwoMoreEntriesForTheGermans) {
  EXPECT_EQ(picture_menu_entries(Country::kBritish), 9u);
  EXPECT_EQ(picture_menu_entries(Country::kAmerican), 9u);
  EXPECT_EQ(picture_menu_entries(Country::kGerman), 11u);
  std::string bytes = kHeader;
  for (int entry = 0; entry < 11; ++entry)
    bytes += test::sample_menu_entry("N" + std::to_string(entry), entry);
  EXPECT_EQ(compose_picture_menu(parsed(bytes, Country::kGerman), Country::kGerman), bytes);
  EXPECT_FALSE(parsed(bytes).entries[9].length.has_value());
}

TEST(PictureMenu, ANameSetsItsLengthOnlyWhereItDiffers) {
  PictureMenu menu = parsed(british("\0\0\0\0"s + kTrailer0, 1));
  menu.set_name(0, "");
  EXPECT_EQ(menu.entries[0].length, 0);
  menu.set_name(0, "\u00C9t\u00E9");
  EXPECT_EQ(menu.entries[0].length, 4);
  menu.clear();
  EXPECT_EQ(menu.entries[0].length, 1);
  EXPECT_EQ(menu.entries[0].trailer, "");
}

}  // namespace
}  // namespace vorlund
