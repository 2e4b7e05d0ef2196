// Names that come from records, set-ups and players: which of them may become part of a path.
#pragma once

#include <string_view>

namespace vorlund {

/// True when a path that is formed by joining `name` to a folder stays in that folder: no part of it, between
/// backslashes or slashes, is "." or "..". Such a name counts as a folder that does not exist; whatever else
/// there is in a name is the platform's to judge.
bool stays_below(std::string_view name);

/// True when a file can have this name on Linux and on Windows alike: it is not empty, not longer than 255
/// bytes, not of dots and blanks alone, has no slash, backslash, colon, wildcard, quotation mark, angle, bar
/// or control character and no dot or blank at its end, is UTF-8, and names no device of Windows.
bool is_portable_name(std::string_view name);

}  // namespace vorlund
