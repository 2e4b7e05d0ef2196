// The game's display names of its thirty aircraft ("pnames.str").
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "disk/game_folder.h"

namespace vorlund {

// Layout of pnames.str, little-endian: at 0 the length in bytes of all that follows offset 8, at 4 the number
// of strings (30), at 8 + 4 x i the position of string i counted from offset 8, each in 2 bytes followed by
// two 0 bytes; from 128 the strings in the code page, each ended by a 0 byte.

/// The bytes of a pnames.str with these thirty names, which must be trimmed. A file whose length field would
/// not fit in 15 bits is an overflow error that names `path`: the game reads the field as signed.
std::string compose_pilot_names(const std::vector<std::string>& names, std::string_view path);

/// Thirty names from the bytes of a pnames.str. Of a damaged file (short, another count, positions past its
/// end) those that can be read, blank for the rest. A length, count or position of 32768 or more is an
/// overflow error that names `path`.
std::vector<std::string> parse_pilot_names(std::string_view bytes, std::string_view path);

/// The name list and its file in the game directory. The program never creates the file.
class PilotNames {
 public:
  std::vector<std::string> PNameList;  ///< by record number, 0 to 29; empty until the file has been read

  /// True once the list was filled.
  [[nodiscard]] bool were_read() const { return !PNameList.empty(); }

  /// The name of a record; "" for one that the list does not hold.
  [[nodiscard]] std::string name(int record) const;

  /// Sets the name of a record, 0 to 29.
  void set_name(int record, std::string name);

  /// Fills the list from the file. Without the file nothing changes.
  void LoadPnames(const GameFolder& game);

  /// Trims blanks off every name in the list and rewrites the file from it. Without the file nothing changes.
  void SavePnames(const GameFolder& game);
};

}  // namespace vorlund
