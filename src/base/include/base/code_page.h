// The edge between UTF-8 in memory and the single-byte code page of the game's text and names.
#pragma once

#include <string>
#include <string_view>

namespace vorlund {

// The code page is Windows-1252 on POSIX and the system's own on Windows (1252 where the system's own is not
// single-byte). One byte is one character; bytes that the code page leaves undefined stand for the control
// character of the same number, so all 256 values survive decoding and encoding.

/// The UTF-8 text that the bytes spell.
std::string decode_text(std::string_view bytes);

/// The bytes that spell the UTF-8 text; a character that the code page cannot spell becomes "?".
std::string encode_text(std::string_view text);

/// True when the code page can spell the whole text.
[[nodiscard]] bool can_spell(std::string_view text);

}  // namespace vorlund
