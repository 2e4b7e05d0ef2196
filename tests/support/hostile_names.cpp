// The names: ways out of a folder, devices, wildcards, and bytes that no name should hold.
#include "support/hostile_names.h"

#include "base/plain_name.h"

namespace vorlund::test {

using namespace std::string_literals;

std::vector<std::string> hostile_names() {
  std::vector<std::string> names = {"..",
                                    ".",
                                    "...",
                                    "....",
                                    "..\\..",
                                    "../..",
                                    "..\\..\\outside",
                                    "../../outside",
                                    "../../../outside",
                                    "..\\..\\..\\outside",
                                    "\\outside",
                                    "/outside",
                                    "/etc",
                                    "\\\\server\\share",
                                    "//server/share",
                                    "C:",
                                    "c:\\",
                                    "C:outside",
                                    "C:\\outside",
                                    "c:/outside",
                                    "\\\\?\\C:\\outside",
                                    "\\\\.\\C:",
                                    "\\??\\C:\\outside",
                                    "One:stream",
                                    "One::$DATA",
                                    "One:evil:$DATA",
                                    ":",
                                    "::",
                                    "/",
                                    "\\",
                                    "//",
                                    "\\\\",
                                    "One/",
                                    "One\\",
                                    "/One",
                                    "\\One",
                                    "One/..",
                                    "One\\..",
                                    "One/../../..",
                                    "One\\..\\..\\..",
                                    "./One",
                                    ".\\One",
                                    "One/.",
                                    "One\\.",
                                    "One//Two",
                                    "One\\\\Two",
                                    " ",
                                    "  ",
                                    ". ",
                                    ".. ",
                                    " ..",
                                    " . ",
                                    ". .",
                                    ".. ..",
                                    "\t",
                                    "\n",
                                    "\r",
                                    "One\n",
                                    "\x01",
                                    "\x1F",
                                    "\x7F/..",
                                    "One\0"s,
                                    "\0"s,
                                    "\0.."s,
                                    "..\0"s,
                                    "../\0"s,
                                    "One\0/../../outside"s,
                                    "%2e%2e",
                                    "%2e%2e/outside",
                                    "..%2foutside",
                                    "..%5coutside",
                                    "~",
                                    "~/outside",
                                    "$HOME/outside",
                                    "%USERPROFILE%\\outside",
                                    "`outside`",
                                    "\xC0\xAE\xC0\xAE/outside",
                                    "..\xC0\xAF..\xC0\xAFoutside",
                                    "\xEF\xBC\x8E\xEF\xBC\x8E",
                                    "\xE2\x88\x95outside",
                                    "\xEF\xBC\x8F..",
                                    "..\xE2\x81\x84outside",
                                    "\xFF\xFE",
                                    "\xED\xA0\x80",
                                    std::string(300, 'a'),
                                    std::string(5000, '.'),
                                    std::string(70'000, 'x'),
                                    "a/" + std::string(5000, '/') + "b",
                                    "*",
                                    "?",
                                    "*.*",
                                    "<",
                                    ">",
                                    "|",
                                    "\"",
                                    "One*",
                                    "O?e",
                                    "file:///outside",
                                    "http://outside",
                                    "-rf",
                                    "--",
                                    "; rm -rf outside",
                                    "&& outside",
                                    "$(outside)",
                                    "{}",
                                    "outside/../outside"};
  for (const char* device : {"CON", "PRN", "AUX", "NUL", "COM1", "COM9", "LPT1", "LPT9", "nul.txt", "con ",
                             "aux.", "CONIN$", "CONOUT$", "COM\xC2\xB9"}) {
    names.emplace_back(device);
  }
  return names;
}

bool can_be_folder(const std::string& name) {
#ifdef _WIN32
  return is_portable_name(name);
#else
  return !name.empty() && name != "." && name != ".." && name.size() <= 255 &&
         name.find_first_of("\\/\0"s) == std::string::npos;
#endif
}

bool is_separators(const std::string& name) {
  return name.find_first_not_of("\\/") == std::string::npos;
}

}  // namespace vorlund::test
