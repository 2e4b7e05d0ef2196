// Names that come from records and set-ups of other players: which of them are safe to put into a path.
#pragma once

#include <string_view>

namespace vorlund {

/// Which platform's rules a name must obey besides those that hold everywhere.
enum class NameRules {
  kPosix,    ///< no further rule
  kWindows,  ///< no device name, no wildcard or other forbidden character, no trailing dot or blank
};

#ifdef _WIN32
inline constexpr NameRules kPlatformNameRules = NameRules::kWindows;
#else
inline constexpr NameRules kPlatformNameRules = NameRules::kPosix;
#endif

/// True when `name` can only mean one file or folder directly inside the folder it is joined to.
/// Never plain on any platform: the empty name, names of dots and blanks alone, names with a slash,
/// backslash, colon or control character. A row that names a folder which is not plain is passed over like
/// one whose folder does not exist.
bool is_plain_name(std::string_view name, NameRules rules = kPlatformNameRules);

}  // namespace vorlund
