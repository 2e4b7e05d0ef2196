// The rules that a name from outside must obey before it becomes part of a path.
#include "core/plain_name.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/text.h"
#include "core/utf8.h"

namespace vorlund {

namespace {

bool plain_everywhere(std::string_view name) {
  if (name.find_first_not_of(". ") == std::string_view::npos) return false;
  return std::none_of(name.begin(), name.end(), [](char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20 || byte == 0x7F || byte == '/' || byte == '\\' || byte == ':';
  });
}

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

bool plain_on_windows(std::string_view name) {
  return name.find_first_of("*?\"<>|") == std::string_view::npos && name.back() != '.' &&
         name.back() != ' ' && !is_device(name) && is_utf8(name);
}

}  // namespace

bool is_plain_name(std::string_view name, NameRules rules) {
  return plain_everywhere(name) && (rules == NameRules::kPosix || plain_on_windows(name));
}

}  // namespace vorlund
