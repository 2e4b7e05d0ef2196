// Made bytes of plane-picture menu files.
#pragma once

#include <string>
#include <vector>

namespace vorlund::test {

/// A run of bytes that counts up from `first`.
inline std::string counting_bytes(int first, std::size_t count) {
  std::string bytes;
  for (std::size_t index = 0; index < count; ++index) {
    bytes += static_cast<char>((first + static_cast<int>(index)) & 0xFF);
  }
  return bytes;
}

/// 35 header bytes: 200, 201, ... 234.
inline std::string sample_menu_header() {
  return counting_bytes(200, 35);
}

/// 15 trailer bytes of an entry: ten times its number, and counting up.
inline std::string sample_menu_trailer(int entry) {
  return counting_bytes(10 * entry, 15);
}

/// An entry as the game writes it: length, three 0 bytes, the name with its 0 byte, the trailer.
inline std::string sample_menu_entry(const std::string& name, int entry) {
  std::string bytes(1, static_cast<char>(name.size() + 1));
  bytes += std::string(3, '\0') + name + std::string(1, '\0') + sample_menu_trailer(entry);
  return bytes;
}

/// A whole file with these names.
inline std::string sample_menu(const std::vector<std::string>& names) {
  std::string bytes = sample_menu_header();
  int entry = 0;
  for (const std::string& name : names) bytes += sample_menu_entry(name, entry++);
  return bytes;
}

}  // namespace vorlund::test
