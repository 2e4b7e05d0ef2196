// The format of the game's three plane-picture menu files ("picplnb.mnu", "picplna.mnu", "picplng.mnu").
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vorlund {

// Layout, without padding: 35 bytes of header, then the entries one after the other. An entry is the length L
// of its name (one byte, the ending 0 byte counted), three 0 bytes, L name bytes in the code page, and 15
// bytes of trailer. Header and trailers are carried through unchanged. How many entries a file has is fixed
// by its nation and stands nowhere in it.

inline constexpr std::size_t kMenuHeaderSize = 35;
inline constexpr std::size_t kMenuTrailerSize = 15;

/// One entry as it stands in the file.
struct PictureMenuEntry {
  int length = 0;       ///< the length byte, 0 to 255
  std::string name;     ///< the name's bytes without the 0 bytes among them
  std::string trailer;  ///< 15 bytes
};

/// A menu file, text still as bytes.
struct PictureMenu {
  std::string header;  ///< 35 bytes
  std::vector<PictureMenuEntry> entries;
};

/// Most bytes that a file of so many entries can have.
std::size_t picture_menu_limit(std::size_t entry_count);

/// Reads so many entries. Bytes past the end read as 0; what follows the last entry is not looked at.
PictureMenu parse_picture_menu(std::string_view bytes, std::size_t entry_count);

/// The file's bytes, nothing after the last trailer. Each name is written with one 0 byte, whatever the
/// length byte says: the two differ for an entry that was read with length 0.
std::string compose_picture_menu(const PictureMenu& menu);

}  // namespace vorlund
