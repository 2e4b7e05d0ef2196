// Reading and writing single characters of UTF-8 text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vorlund {

/// A byte that is no valid UTF-8 stands for the character `kStrayByte` plus its value: past all of Unicode,
/// so that it equals nothing but itself.
inline constexpr char32_t kStrayByte = 0x110000;

/// As `next_character`, for one that does not begin with an ASCII byte.
char32_t next_long_character(std::string_view text, std::size_t& at);

/// As `upper_character`, for one past ASCII.
char32_t upper_long_character(char32_t character);

/// The character at the position `at`, which must lie inside the text; moves the position past it.
inline char32_t next_character(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  if (lead >= 0x80) return next_long_character(text, at);
  ++at;
  return lead;
}

/// Appends a character as `next_character` gave it: a stray byte becomes that byte again. A lone surrogate is
/// spelled in three bytes.
void append_character(std::string& text, char32_t character);

/// The upper-case letter of a letter; any other character itself. Takes ASCII, Latin-1, Latin Extended-A,
/// Greek and Cyrillic, one character for one: the sharp s stays, and so do letters whose upper case is an
/// ASCII letter.
inline char32_t upper_character(char32_t character) {
  if (character >= 0x80) return upper_long_character(character);
  return character >= U'a' && character <= U'z' ? character - 0x20 : character;
}

}  // namespace vorlund
