// The text functions on ASCII, accented, non-Latin and damaged text.
#include "base/text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

#include "base/utf8.h"

namespace vorlund {
namespace {

struct UpperCase {
  std::string_view text;
  std::string_view upper;
};

constexpr UpperCase kUpperCases[] = {
    {"", ""},
    {"planes.dat", "PLANES.DAT"},
    {"@[`{", "@[`{"},
    {"caf\u00E9", "CAF\u00C9"},
    {"\u00E0\u00F6\u00F8\u00FE", "\u00C0\u00D6\u00D8\u00DE"},
    {"\u00F7\u00D7", "\u00F7\u00D7"},
    {"stra\u00DFe", "STRA\u00DFE"},
    {"\u00FF", "\u0178"},
    {"\u0101\u0137\u014B\u0177", "\u0100\u0136\u014A\u0176"},
    {"\u013A\u0148\u017A\u017E", "\u0139\u0147\u0179\u017D"},
    {"\u0131\u0130\u0138\u0149\u017F", "\u0131\u0130\u0138\u0149\u017F"},
    {"\u03AC\u03AD\u03AF\u03CC\u03CD\u03CE", "\u0386\u0388\u038A\u038C\u038E\u038F"},
    {"\u03B1\u03C9\u03C2\u0390\u03B0", "\u0391\u03A9\u03A3\u0390\u03B0"},
    {"\u0436\u0451\u045F\u0430\u044F", "\u0416\u0401\u040F\u0410\u042F"},
    {"\u0461\u0481\u0491\u04C2\u04CF\u04D1\u0482", "\u0460\u0480\u0490\u04C1\u04C0\u04D0\u0482"},
    {"\u65E5\u672C \U0001F6E9", "\u65E5\u672C \U0001F6E9"},
    {"a\xE9z", "A\xE9Z"},
    {"\xC3", "\xC3"},
    {"\xED\xA0\x80x", "\xED\xA0\x80X"},
};

TEST(Text, UpperCaseTakesOneCharacterForOne) {
  for (const UpperCase& sample : kUpperCases) {
    EXPECT_EQ(to_upper(sample.text), sample.upper) << sample.text;
    EXPECT_EQ(character_count(to_upper(sample.text)), character_count(sample.text)) << sample.text;
    EXPECT_EQ(to_upper(sample.upper), sample.upper) << "twice: " << sample.text;
  }
}

TEST(Text, AnUpperCaseLetterHasAsManyBytesAsTheLetter) {
  for (char32_t character = 0; character < kStrayByte + 0x100; ++character) {
    std::string text;
    std::string upper;
    append_character(text, character);
    append_character(upper, upper_character(character));
    ASSERT_EQ(upper.size(), text.size()) << static_cast<std::uint32_t>(character);
  }
}

TEST(Text, NamesAreTheSameWithoutRegardToCase) {
  for (const UpperCase& sample : kUpperCases) {
    EXPECT_TRUE(same_name(sample.text, sample.upper)) << sample.text;
  }
  EXPECT_TRUE(same_name("DEFAULT1.MSN", "default1.msn"));
  EXPECT_FALSE(same_name("eaw.exe", "eaw.ex"));
  EXPECT_FALSE(same_name("eaw.ex", "eaw.exe"));
  EXPECT_FALSE(same_name("cafe", "caf\u00E9"));
  EXPECT_FALSE(same_name("caf\xE9", "caf\u00E9"));
  EXPECT_FALSE(same_name("\xE9", "\xC9"));
}

TEST(Text, NamesAreOrderedWithoutRegardToCaseAndThenByBytes) {
  constexpr std::string_view kOrdered[] = {"",
                                           " ",
                                           "1.dat",
                                           "A",
                                           "a",
                                           "a.dat",
                                           "AB",
                                           "Ab",
                                           "aB",
                                           "ab",
                                           "abc",
                                           "abcdefghI",
                                           "abcdefghi",
                                           "abcdefghij",
                                           "abcdefgh\u00C4",
                                           "abcdefgh\u00E4",
                                           "abcdefgh\u0104",
                                           "B",
                                           "zebra",
                                           "_x",
                                           "\u00C4",
                                           "\u00E4",
                                           "\u00E9cole",
                                           "\u0416",
                                           "\u65E5",
                                           "\uFFFD",
                                           "\xC3",
                                           "\xE9.dat"};
  const std::size_t count = std::size(kOrdered);
  for (std::size_t first = 0; first < count; ++first) {
    for (std::size_t second = 0; second < count; ++second) {
      EXPECT_EQ(name_less(kOrdered[first], kOrdered[second]), first < second)
          << kOrdered[first] << " before " << kOrdered[second];
    }
  }
}

TEST(Text, DamagedBytesCountAsOneCharacterEach) {
  constexpr struct {
    std::string_view text;
    std::size_t count;
  } kSamples[] = {
      {"", 0},
      {"abc", 3},
      {"\u00E9\u20AC\U0001F600", 3},
      {"\x80", 1},
      {"\xC0\x80", 2},
      {"\xC3", 1},
      {"\xE2\x82", 2},
      {"\xE2\x82z", 3},
      {"\xED\xA0\x80", 3},
      {"\xF0\x8F\xBF\xBF", 4},
      {"\xF4\x90\x80\x80", 4},
      {"\xF4\x8F\xBF\xBF", 1},
      {"\xFF\xFE", 2},
  };
  for (const auto& sample : kSamples) {
    EXPECT_EQ(character_count(sample.text), sample.count) << testing::PrintToString(sample.text);
    EXPECT_EQ(characters(sample.text, 0, sample.count), sample.text) << testing::PrintToString(sample.text);
  }
}

TEST(Text, PartsAreTakenByCharacters) {
  const std::string text =
      "a\u00E9\u20AC\xFF"
      "z";
  EXPECT_EQ(characters(text, 0, 2), "a\u00E9");
  EXPECT_EQ(characters(text, 1, 1), "\u00E9");
  EXPECT_EQ(characters(text, 2, 2), "\u20AC\xFF");
  EXPECT_EQ(characters(text, 4, 100), "z");
  EXPECT_EQ(characters(text, 5, 1), "");
  EXPECT_EQ(characters(text, 100, 1), "");
  EXPECT_EQ(characters(text, 0, 0), "");
  EXPECT_EQ(characters(text, 1, std::numeric_limits<std::size_t>::max()),
            "\u00E9\u20AC\xFF"
            "z");
  EXPECT_EQ(last_characters(text, 2),
            "\xFF"
            "z");
  EXPECT_EQ(last_characters(text, 0), "");
  EXPECT_EQ(last_characters(text, 99), text);
  EXPECT_EQ(last_characters("mission.MSN", 4), ".MSN");
  EXPECT_EQ(last_characters("\u00E9.sve", 4), ".sve");
}

TEST(Text, OnlyBlanksAreTrimmed) {
  EXPECT_EQ(trimmed("  a b  "), "a b");
  EXPECT_EQ(trimmed("\t a \n"), "\t a \n");
  EXPECT_EQ(trimmed("   "), "");
  EXPECT_EQ(trimmed(""), "");
  EXPECT_EQ(trimmed("\u00A0x"), "\u00A0x");
}

TEST(Text, TheBareNameFollowsTheLastBackslash) {
  EXPECT_EQ(bare_name("C:\\Games\\eaw.exe"), "eaw.exe");
  EXPECT_EQ(bare_name("/home/caf\u00E9/game\\Savedata\\a.msn"), "a.msn");
  EXPECT_EQ(bare_name("eaw.exe"), "eaw.exe");
  EXPECT_EQ(bare_name("folder\\"), "");
  EXPECT_EQ(bare_name(""), "");
}

TEST(Text, LinesEndInAnyOfTheThreeWays) {
  using Lines = std::vector<std::string_view>;
  EXPECT_EQ(split_lines(""), Lines());
  EXPECT_EQ(split_lines("one"), (Lines{"one"}));
  EXPECT_EQ(split_lines("one\r\ntwo\r\n"), (Lines{"one", "two"}));
  EXPECT_EQ(split_lines("one\ntwo\rthree"), (Lines{"one", "two", "three"}));
  EXPECT_EQ(split_lines("\r\n\r\n"), (Lines{"", ""}));
  EXPECT_EQ(split_lines("a\n\rb"), (Lines{"a", "", "b"}));
  EXPECT_EQ(split_lines(std::string_view("a\0b\r\n", 5)), (Lines{std::string_view("a\0b", 3)}));
}

TEST(Text, CellsAreTakenOffALineOneByOne) {
  std::string_view line = "Careers\tMy career\t\tend";
  for (const std::string_view cell : {"Careers", "My career", "", "end", "", ""})
    EXPECT_EQ(take_cell(line), cell);
  EXPECT_EQ(line, "");
}

struct NumberCase {
  std::string_view text;
  double value;
};

constexpr NumberCase kNumbers[] = {
    {"", 0},
    {"   ", 0},
    {"12", 12},
    {"  \t 12abc", 12},
    {"-3.5 lb", -3.5},
    {"+7", 7},
    {"+-7", 0},
    {"--7", 0},
    {"- 7", 0},
    {".5", 0.5},
    {"-.5", -0.5},
    {"5.", 5},
    {".", 0},
    {"-", 0},
    {"+", 0},
    {"e5", 0},
    {"1e3", 1000},
    {"1E+3", 1000},
    {"25e-2", 0.25},
    {"1e", 1},
    {"1e+", 1},
    {"1e+x", 1},
    {"1.2.3", 1.2},
    {"1,5", 1},
    {"0x10", 0},
    {"inf", 0},
    {"-nan", 0},
    {"\n5", 0},
    {"\u00A05", 0},
    {"007", 7},
    {"1e308", 1e308},
    {"1e309", std::numeric_limits<double>::max()},
    {"-1e99999999999999999999", -std::numeric_limits<double>::max()},
    {"1e-99999999999999999999", 0},
    {"0e99999999999999999999", 0},
    {"0.0000001e+0000000000000400", std::numeric_limits<double>::max()},
};

TEST(Text, TheLeadingNumberIsReadInEveryLocale) {
  const char* const locales[] = {"C", "de_DE.UTF-8", ""};
  for (const char* locale : locales) {
    std::setlocale(LC_ALL, locale);
    for (const NumberCase& sample : kNumbers) {
      EXPECT_EQ(leading_number(sample.text), sample.value) << '"' << sample.text << "\" in " << locale;
    }
  }
  std::setlocale(LC_ALL, "C");
}

TEST(Text, LargeNumbersHaveCommasBetweenTheirThousands) {
  EXPECT_EQ(grouped(0), "0");
  EXPECT_EQ(grouped(999), "999");
  EXPECT_EQ(grouped(1000), "1,000");
  EXPECT_EQ(grouped(3014), "3,014");
  EXPECT_EQ(grouped(100000), "100,000");
  EXPECT_EQ(grouped(std::numeric_limits<std::uint64_t>::max()), "18,446,744,073,709,551,615");
  EXPECT_EQ(counted(1, "file", "files"), "1 file");
  EXPECT_EQ(counted(0, "file", "files"), "0 files");
  EXPECT_EQ(counted(20000, "file", "files"), "20,000 files");
}

TEST(Text, EndlessDigitsGiveTheNearestNumberThereIs) {
  const double largest = std::numeric_limits<double>::max();
  const std::string nines(5000, '9');
  const std::string zeros(5000, '0');
  EXPECT_EQ(leading_number(nines), largest);
  EXPECT_EQ(leading_number("-" + nines), -largest);
  EXPECT_EQ(leading_number(nines + "e-4"), largest);
  EXPECT_EQ(leading_number("0." + zeros + "1"), 0);
  EXPECT_EQ(leading_number("." + zeros + "1e5"), 0);
  EXPECT_EQ(leading_number(zeros + "42"), 42);
  EXPECT_EQ(leading_number("1" + zeros + "e-5000"), 1);
}

}  // namespace
}  // namespace vorlund
