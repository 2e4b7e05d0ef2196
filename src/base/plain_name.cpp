// The parts of a name that is joined to a path, and the rules for the names of new files.
#include "base/plain_name.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/text.h"
#include "base/utf8.h"

namespace vorlund {

namespace {

/// Bytes that a file name may have on Linux; Windows allows as many characters.
constexpr std::size_t kLongestName = 255;

/// "COM1" to "LPT9" and their like; Windows takes the superscript digits for digits.
bool is_port(std::string_view base) {
  if (!base.starts_with("COM") && !base.starts_with("LPT")) return false;
  const std::string_view number = base.substr(3);
  if (number.size() == 1) return number[0] >= '0' && number[0] <= '9';
  return number == "\u00B9" || number == "\u00B2" || number == "\u00B3";
}

/// A device is meant whatever extension follows, and with blanks before the dot.
bool is_device(std::string_view name) {
  constexpr std::array<std::string_view, 7> kDevices = {"CON",    "PRN",     "AUX",   "NUL",
                                                        "CONIN$", "CONOUT$", "CLOCK$"};
  const std::string base = trimmed(to_upper(name.substr(0, name.find('.'))));
  return is_port(base) || std::find(kDevices.begin(), kDevices.end(), base) != kDevices.end();
}

bool is_utf8(std::string_view name) {
  for (std::size_t at = 0; at < name.size();) {
    if (next_character(name, at) >= kStrayByte) return false;
  }
  return true;
}

}  // namespace

bool stays_below(std::string_view name) {
  for (;;) {
    const std::size_t end = name.find_first_of("\\/");
    const std::string_view part = name.substr(0, end);
    if (part == "." || part == "..") return false;
    if (end == std::string_view::npos) return true;
    name.remove_prefix(end + 1);
  }
}

bool is_portable_name(std::string_view name) {
  const auto is_control = [](char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20 || byte == 0x7F;
  };
  return !name.empty() && name.size() <= kLongestName && name.back() != '.' && name.back() != ' ' &&
         name.find_first_of("/\\:*?\"<>|") == std::string_view::npos &&
         std::none_of(name.begin(), name.end(), is_control) && is_utf8(name) && !is_device(name);
}

}  // namespace vorlund
