// The single-byte code page: every byte survives, and what it can't spell is marked.
#include "base/code_page.h"

#include <gtest/gtest.h>

#include <set>

#include "base/code_page_table.h"
#include "base/text.h"

namespace vorlund {
namespace {

TEST(CodePage, EveryByteSurvivesDecodingAndEncoding) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  const std::string text = decode_text(all);
  EXPECT_EQ(character_count(text), 256U);
  EXPECT_EQ(encode_text(text), all);
}

TEST(CodePage, NoTwoBytesStandForTheSameCharacter) {
  for (const CodePageTable* table : {&code_page_table(), &windows_1252_table()}) {
    EXPECT_EQ(std::set<char16_t>(table->begin(), table->end()).size(), 256U);
  }
}

TEST(CodePage, AsciiStandsForItself) {
  EXPECT_EQ(decode_text("Planes.dat\t1\r\n"), "Planes.dat\t1\r\n");
  EXPECT_EQ(encode_text("Planes.dat\t1\r\n"), "Planes.dat\t1\r\n");
  EXPECT_EQ(decode_text(""), "");
  EXPECT_EQ(encode_text(""), "");
}

TEST(CodePage, TheTableIsThatOfWindows1252) {
  constexpr struct {
    unsigned char byte;
    char16_t character;
  } kSamples[] = {{0x80, 0x20AC}, {0x81, 0x0081}, {0x8A, 0x0160}, {0x8D, 0x008D}, {0x8E, 0x017D},
                  {0x8F, 0x008F}, {0x90, 0x0090}, {0x92, 0x2019}, {0x99, 0x2122}, {0x9D, 0x009D},
                  {0x9F, 0x0178}, {0xA0, 0x00A0}, {0xDF, 0x00DF}, {0xE9, 0x00E9}, {0xFF, 0x00FF}};
  for (const auto& sample : kSamples) {
    EXPECT_EQ(windows_1252_table()[sample.byte], sample.character) << int{sample.byte};
  }
}

TEST(CodePage, CharactersItCannotSpellBecomeQuestionMarks) {
  EXPECT_EQ(encode_text("\u65E5\u672C.dat"), "??.dat");
  EXPECT_EQ(encode_text("\U0001F6E9x"), "?x");
  EXPECT_EQ(encode_text("a\u0301"), "a?");
  EXPECT_EQ(encode_text("\uFFFD"), "?");
}

TEST(CodePage, BytesThatAreNotUtf8BecomeQuestionMarks) {
  EXPECT_EQ(encode_text("caf\xE9"), "caf?");
  EXPECT_EQ(encode_text("\xC3"), "?");
  EXPECT_EQ(encode_text("\xED\xA0\x80"), "???");
}

#ifndef _WIN32
TEST(CodePage, AccentedTextIsWindows1252OutsideWindows) {
  EXPECT_EQ(encode_text("caf\u00E9 \u20AC \u201Eb\u201C"),
            "caf\xE9 \x80 \x84"
            "b\x93");
  EXPECT_EQ(decode_text("caf\xE9 \x80"), "caf\u00E9 \u20AC");
}
#endif

}  // namespace
}  // namespace vorlund
