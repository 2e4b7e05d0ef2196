// On Windows the game's text is in the system's own single-byte code page.
#include <windows.h>

#include <algorithm>

#include "base/code_page_table.h"

namespace vorlund {

namespace {

/// Characters of the private use area stand for bytes that are undefined and whose control character is
/// taken.
constexpr char16_t kPrivateUse = 0xF700;

CodePageTable system_table() {
  const UINT code_page = GetACP();
  CPINFO information{};
  if (GetCPInfo(code_page, &information) == 0 || information.MaxCharSize != 1) return windows_1252_table();

  CodePageTable table{};
  std::array<bool, 256> defined{};
  for (std::size_t byte = 0; byte < table.size(); ++byte) {
    const char source = static_cast<char>(byte);
    wchar_t character = 0;
    defined[byte] = MultiByteToWideChar(code_page, MB_ERR_INVALID_CHARS, &source, 1, &character, 1) == 1;
    if (defined[byte]) table[byte] = static_cast<char16_t>(character);
  }
  for (std::size_t byte = 0; byte < table.size(); ++byte) {
    const auto first = table.begin();
    const auto here = first + static_cast<std::ptrdiff_t>(byte);
    if (defined[byte] && std::find(first, here, *here) == here) continue;
    const auto control = static_cast<char16_t>(byte);
    const bool taken = std::find(table.begin(), table.end(), control) != table.end();
    *here = taken ? static_cast<char16_t>(kPrivateUse + byte) : control;
  }
  return table;
}

}  // namespace

const CodePageTable& code_page_table() {
  static const CodePageTable table = system_table();
  return table;
}

}  // namespace vorlund
