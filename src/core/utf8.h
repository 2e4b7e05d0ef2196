// Reading and writing single characters of UTF-8 text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vorlund {

/// A byte that is no valid UTF-8 stands for the character `kStrayByte` plus its value: past all of Unicode,
/// so that it equals nothing but itself.
inline constexpr char32_t kStrayByte = 0x110000;

/// The character at the position `at`, which must lie inside the text; moves the position past it.
char32_t next_character(std::string_view text, std::size_t& at);

/// Appends a character as `next_character` gave it: a stray byte becomes that byte again. A lone surrogate is
/// spelled in three bytes.
void append_character(std::string& text, char32_t character);

/// The upper-case letter of a letter; any other character itself. Takes ASCII, Latin-1, Latin Extended-A,
/// Greek and Cyrillic, one character for one: the sharp s stays, and so do letters whose upper case is an
/// ASCII letter.
char32_t upper_character(char32_t character);

}  // namespace vorlund
