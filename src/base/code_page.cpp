// Decoding and encoding by the platform's table.
#include "base/code_page.h"

#include <algorithm>
#include <utility>

#include "base/code_page_table.h"
#include "base/utf8.h"

namespace vorlund {

namespace {

/// The characters of the code page in order of their code point, each with its byte.
using ByteOfCharacter = std::array<std::pair<char32_t, unsigned char>, 256>;

const ByteOfCharacter& byte_of_character() {
  static const ByteOfCharacter sorted = [] {
    ByteOfCharacter bytes;
    for (std::size_t byte = 0; byte < bytes.size(); ++byte) {
      bytes[byte] = {code_page_table()[byte], static_cast<unsigned char>(byte)};
    }
    std::sort(bytes.begin(), bytes.end());
    return bytes;
  }();
  return sorted;
}

char encode_character(char32_t character) {
  const ByteOfCharacter& bytes = byte_of_character();
  const auto found =
      std::lower_bound(bytes.begin(), bytes.end(), std::pair<char32_t, unsigned char>(character, 0));
  if (found == bytes.end() || found->first != character) return '?';
  return static_cast<char>(found->second);
}

/// Moves the ASCII characters at the beginning of a text, which are the same in every code page.
void move_ascii(std::string_view& from, std::string& to) {
  std::size_t length = 0;
  while (length < from.size() && static_cast<unsigned char>(from[length]) < 0x80) ++length;
  to.append(from.substr(0, length));
  from.remove_prefix(length);
}

// What Windows-1252 has at 0x80 to 0x9F; 81, 8D, 8F, 90 and 9D are left undefined.
constexpr std::array<char16_t, 32> kWindows1252Middle = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

std::string decode_text(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    move_ascii(bytes, text);
    if (bytes.empty()) break;
    append_character(text, code_page_table()[static_cast<unsigned char>(bytes.front())]);
    bytes.remove_prefix(1);
  }
  return text;
}

std::string encode_text(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    move_ascii(text, bytes);
    if (text.empty()) break;
    std::size_t length = 0;
    bytes.push_back(encode_character(next_character(text, length)));
    text.remove_prefix(length);
  }
  return bytes;
}

bool can_spell(std::string_view text) {
  return decode_text(encode_text(text)) == text;
}

const CodePageTable& windows_1252_table() {
  static const CodePageTable table = [] {
    CodePageTable filled{};
    for (std::size_t byte = 0; byte < filled.size(); ++byte) filled[byte] = static_cast<char16_t>(byte);
    std::copy(kWindows1252Middle.begin(), kWindows1252Middle.end(), filled.begin() + 0x80);
    return filled;
  }();
  return table;
}

}  // namespace vorlund
