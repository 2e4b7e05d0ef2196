// The game's three plane-picture menu files ("picplnb.mnu", "picplna.mnu", "picplng.mnu").
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "disk/game_folder.h"

namespace vorlund {

// Layout, without padding: 35 bytes of header, then the entries one after the other. An entry is the length L
// of its name (one byte, the ending 0 byte counted), three 0 bytes, L name bytes in the code page, and 15
// bytes of trailer. Header and trailers are carried through unchanged. How many entries a file has is fixed
// by its nation and stands nowhere in it.

/// Whose menu: it decides the file and how many entries it has.
enum class Country { kBritish = 0, kAmerican = 1, kGerman = 2 };

inline constexpr std::array<Country, 3> kCountries = {Country::kBritish, Country::kAmerican,
                                                      Country::kGerman};

/// The country's file, as it is appended to the game directory.
[[nodiscard]] std::string_view picture_menu_file(Country country);

/// Entries of the country's file: 9, or 11 of the German one.
[[nodiscard]] std::size_t picture_menu_entries(Country country);

/// One menu in memory, with room for the entries of the largest.
class PictureMenu {
 public:
  static constexpr std::size_t kHeaderSize = 35;
  static constexpr std::size_t kTrailerSize = 15;
  static constexpr std::size_t kEntries = 11;
  static constexpr std::size_t kLongestName = 254;  ///< characters; the length byte counts one more

  struct Entry {
    std::string name;           ///< UTF-8, without 0 characters
    std::optional<int> length;  ///< the length byte, 0 to 255; none until there was a name
    std::string trailer;        ///< 15 bytes as they stand in the file
  };

  std::string header;  ///< 35 bytes as they stand in the file; "" while none was read
  std::array<Entry, kEntries> entries;

  /// Sets an entry's name, cut at a 0 character and at 254 characters. A name that differs from the old one
  /// sets the length too: its characters and one.
  void set_name(std::size_t index, std::string_view name);

  /// Empties header, names and trailers. A name that was there leaves the length 1.
  void clear();
};

/// Takes the bytes of a country's file into a menu that was cleared. Bytes past the end read as 0; what
/// follows the last entry is not looked at. The 0 bytes of a name are left out.
void parse_picture_menu(std::string_view bytes, Country country, PictureMenu& menu);

/// The bytes of a country's file, nothing after the last trailer. Each name is written with one 0 byte,
/// whatever the length byte says: the two differ for an entry that was read with length 0.
[[nodiscard]] std::string compose_picture_menu(const PictureMenu& menu, Country country);

/// Clears the menu and reads the country's file into it. A missing file leaves it cleared.
void pmenread(const GameFolder& game, Country country, PictureMenu& menu);

/// Replaces the country's file by the menu. False where there is no such file: the program never creates one.
bool pmenwrite(const GameFolder& game, Country country, const PictureMenu& menu);

}  // namespace vorlund
