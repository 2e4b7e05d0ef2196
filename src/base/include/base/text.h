// Text in memory is UTF-8; these are the few operations on it that the program's rules are made of.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vorlund {

// Everywhere below, a byte that is no valid UTF-8 counts as one character of its own and is kept as it is,
// and upper case means one character for one character (ASCII, Latin, Greek and Cyrillic letters), whatever
// the locale.

/// The text in upper case.
[[nodiscard]] std::string to_upper(std::string_view text);

/// True when two names are the same without regard to case: the comparison for file and folder names.
[[nodiscard]] bool same_name(std::string_view a, std::string_view b);

/// Orders names as listings do: ascending without regard to case, names that differ in case alone by their
/// bytes.
[[nodiscard]] bool name_less(std::string_view a, std::string_view b);

/// Number of characters.
[[nodiscard]] std::size_t character_count(std::string_view text);

/// Up to `count` characters from the character at `first`, which is counted from 0; "" past the end.
[[nodiscard]] std::string characters(std::string_view text, std::size_t first, std::size_t count);

/// The last `count` characters, or the whole text when it is shorter.
[[nodiscard]] std::string last_characters(std::string_view text, std::size_t count);

/// The text without blanks (character 32) at both ends.
[[nodiscard]] std::string trimmed(std::string_view text);

/// The text in quotation marks.
[[nodiscard]] std::string quoted(std::string_view text);

/// The number with a comma between each three digits: "3,014".
[[nodiscard]] std::string grouped(std::uint64_t number);

/// A number of things in words: "1 file", "3,014 files".
[[nodiscard]] std::string counted(std::uint64_t count, std::string_view one, std::string_view many);

/// The first three of the texts with "; " between them, and "; ..." behind them where there are more.
[[nodiscard]] std::string first_of(const std::vector<std::string>& texts);

/// The bare name at the end of a path: what follows its last backslash.
[[nodiscard]] std::string_view bare_name(std::string_view path);

/// Takes the next line off a text, with its end, and returns it without; see `split_lines`.
[[nodiscard]] std::string_view take_line(std::string_view& text);

/// Takes the next cell off a line, with the TAB behind it, and returns it without; "" where there is none.
[[nodiscard]] std::string_view take_cell(std::string_view& line);

/// The lines of a text file: each ended by CR LF, LF or CR; a last line without an end counts.
[[nodiscard]] std::vector<std::string_view> split_lines(std::string_view text);

/// The number at the start of the text, else 0: blanks and TABs before it are skipped, then an optional sign,
/// digits with an optional point, and an optional exponent are read. The point is a point in every locale. A
/// number too great for a double is the largest double of its sign, one too small is 0.
[[nodiscard]] double leading_number(std::string_view text);

}  // namespace vorlund
