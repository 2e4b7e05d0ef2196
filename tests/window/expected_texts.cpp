// Case, code page, lines and numbers, without any code of the program.
#include "window/expected_texts.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace vorlund::test {

namespace {

/// The code page: Latin-1, and these in the places of its control characters.
constexpr std::array<unsigned, 32> kSpecial = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

}  // namespace

std::string upper(std::string text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    const bool after_c3 = at > 0 && static_cast<unsigned char>(text[at - 1]) == 0xC3;
    if ((byte >= 'a' && byte <= 'z') || (after_c3 && byte >= 0xA0 && byte <= 0xBE && byte != 0xB7)) {
      text[at] = static_cast<char>(byte - 0x20);
    }
  }
  return text;
}

std::string utf8_of(const std::string& bytes) {
  std::string text;
  for (const char character : bytes) {
    const auto byte = static_cast<unsigned char>(character);
    const unsigned code = byte >= 0x80 && byte < 0xA0 ? kSpecial[byte - 0x80] : byte;
    if (code < 0x80) {
      text += static_cast<char>(code);
    } else if (code < 0x800) {
      text += static_cast<char>(0xC0 | code >> 6);
      text += static_cast<char>(0x80 | (code & 0x3F));
    } else {
      text += static_cast<char>(0xE0 | code >> 12);
      text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
      text += static_cast<char>(0x80 | (code & 0x3F));
    }
  }
  return text;
}

std::string bytes_of(const std::string& text) {
  std::string bytes;
  for (std::size_t at = 0; at < text.size();) {
    bool found = false;
    for (unsigned byte = 0; byte < 256 && !found; ++byte) {
      const std::string spelled = utf8_of(std::string(1, static_cast<char>(byte)));
      if (text.compare(at, spelled.size(), spelled) != 0) continue;
      bytes += static_cast<char>(byte);
      at += spelled.size();
      found = true;
    }
    if (!found) throw std::runtime_error("not in the code page: " + text);
  }
  return bytes;
}

std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find("\r\n", at), text.size());
    lines.push_back(text.substr(at, end - at));
    at = end + 2;
  }
  return lines;
}

int number_in(const std::string& line) {
  int number = 0;
  for (const char character : line) {
    if (character < '0' || character > '9') break;
    number = number * 10 + (character - '0');
  }
  return number;
}

std::string trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool ends_in(const std::string& name, const std::string& ending) {
  return upper(name).ends_with(upper(ending));
}

}  // namespace vorlund::test
