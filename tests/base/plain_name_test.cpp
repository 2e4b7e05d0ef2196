// Hostile names from other players' records and set-ups, and the names that must stay usable.
#include "base/plain_name.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vorlund {
namespace {

using namespace std::string_view_literals;

/// No name for a file on any platform, or on Linux alone.
const std::string_view kHostile[] = {
    // nothing, dots and blanks
    ""sv, " "sv, "   "sv, "."sv, ".."sv, "..."sv, "...."sv, " ."sv, ". "sv, " .."sv, ".. "sv, ". ."sv,
    ".. .."sv, ".  ."sv,
    // up and out
    "../x"sv, "..\\x"sv, "../../etc/passwd"sv, "..\\..\\Windows\\win.ini"sv, "x/.."sv, "x\\.."sv, "x/../.."sv,
    "x\\..\\.."sv, "./x"sv, ".\\x"sv, "..\\"sv, "../"sv, "..\\../x"sv,
    // separators
    "/"sv, "\\"sv, "//"sv, "\\\\"sv, "a/b"sv, "a\\b"sv, "/a"sv, "\\a"sv, "a/"sv, "a\\"sv, "/etc/passwd"sv,
    "\\Windows\\system32"sv, "a//b"sv, "a\\\\b"sv, "Careers\\..\\..\\eaw.exe"sv,
    // drives, shares, devices by path
    "C:"sv, "c:"sv, "C:\\"sv, "C:/"sv, "C:x"sv, "C:\\Windows"sv, "C:..\\x"sv, "\\\\server\\share"sv,
    "//server/share"sv, "\\\\?\\C:\\x"sv, "\\\\.\\PhysicalDrive0"sv, "\\\\.\\C:"sv, "\\??\\C:\\x"sv,
    "\\\\?\\UNC\\server\\x"sv, "\\\\?\\GLOBALROOT\\Device"sv, "file:///etc/passwd"sv, "http://host/x"sv,
    // streams
    "x:stream"sv, "x::$DATA"sv, "x:$I30:$INDEX_ALLOCATION"sv, ":x"sv, "x:"sv, "::"sv, "eaw.exe:evil:$DATA"sv,
    // control characters
    "\0"sv, "x\0y"sv, "x\0"sv, "\0x"sv, "..\0"sv, "x\0/../y"sv, "\t"sv, "x\ty"sv, "x\n"sv, "x\r"sv, "x\r\n"sv,
    "\x01"sv, "x\x1F"sv, "\x1Bx"sv, "x\x7F"sv, "\bx"sv, "x\v"sv, "x\f"sv};

/// On Windows these are devices, can't be written, or name something else.
const std::string_view kHostileOnWindows[] = {
    "CON"sv,         "con"sv,         "Con"sv,       "PRN"sv,
    "AUX"sv,         "NUL"sv,         "nul"sv,       "COM0"sv,
    "COM1"sv,        "com9"sv,        "LPT0"sv,      "LPT1"sv,
    "lpt9"sv,        "CONIN$"sv,      "conout$"sv,   "CLOCK$"sv,
    "COM\u00B9"sv,   "com\u00B2"sv,   "LPT\u00B3"sv, "NUL.txt"sv,
    "nul.tar.gz"sv,  "con.x"sv,       "AUX."sv,      "prn "sv,
    "COM1.dat"sv,    "LPT1 .dat"sv,   "NUL .x"sv,    " NUL"sv,
    "COM\u00B9.x"sv, "*"sv,           "?"sv,         "a*b"sv,
    "a?b"sv,         "*.*"sv,         "a\"b"sv,      "<"sv,
    ">"sv,           "a<b"sv,         "a>b"sv,       "a|b"sv,
    "|"sv,           "x."sv,          "x.."sv,       "x "sv,
    "x  "sv,         "x. "sv,         "x ."sv,       "... x."sv,
    "Careers."sv,    "Careers "sv,    "caf\xE9"sv,   "\xC0\xAE\xC0\xAE"sv,
    "\xC0\xAF"sv,    "\xED\xA0\x80"sv};

/// Names for a file everywhere, however odd they look.
const std::string_view kPortable[] = {
    "Careers"sv,  "My career 1"sv, "caf\u00E9"sv, "\u65E5\u672C"sv, "\U0001F6E9"sv, "a.b.c"sv,
    ".hidden"sv,  "..x"sv,         "...x"sv,      "x..y"sv,         "-rf"sv,        "~"sv,
    "~Vorlund"sv, "$HOME"sv,       "%TEMP%"sv,    "`id`"sv,         "$(id)"sv,      "a&b"sv,
    "a;b"sv,      "a'b"sv,         "#1"sv,        "@x"sv,           "{x}"sv,        "[x]"sv,
    "a=b"sv,      "a,b"sv,         "a+b"sv,       "a^b"sv,          "!x"sv,         "(x)"sv,
    " x"sv,       "CONTENTS"sv,    "CONSOLE"sv,   "NULL"sv,         "AUXILIARY"sv,  "COM"sv,
    "COM10"sv,    "COM!"sv,        "COMA"sv,      "LPT"sv,          "LPTX"sv,       "COM1x"sv,
    "PROGRA~1"sv, "\u2025"sv,      "\u2215x"sv,   "\uFF0Fx"sv,      "\uFF3Cx"sv,    "x\u00A0"sv,
    "\u0081"sv};

std::string shown(std::string_view name) {
  return testing::PrintToString(std::string(name));
}

TEST(PlainName, AtLeastAHundredHostileNamesAreNoneForAFile) {
  EXPECT_GE(std::size(kHostile) + std::size(kHostileOnWindows), 100U);
  for (const std::string_view name : kHostile) EXPECT_FALSE(is_portable_name(name)) << shown(name);
  for (const std::string_view name : kHostileOnWindows) EXPECT_FALSE(is_portable_name(name)) << shown(name);
}

TEST(PlainName, OddButHarmlessNamesAreForAFile) {
  for (const std::string_view name : kPortable) EXPECT_TRUE(is_portable_name(name)) << shown(name);
  EXPECT_TRUE(is_portable_name(std::string(255, 'a')));
  EXPECT_FALSE(is_portable_name(std::string(256, 'a')));
}

TEST(PlainName, EveryControlCharacterIsRefused) {
  for (char character = 0; character < 0x20; ++character) {
    EXPECT_FALSE(is_portable_name(std::string("a") + character + "b")) << int{character};
  }
}

TEST(PlainName, OneOrTwoDotsBetweenSeparatorsLeadOutOfTheFolder) {
  for (const std::string_view name :
       {"..", ".", "../x", "..\\x", "x/..", "x\\..", "./x", ".\\x", "x/./y", "x\\..\\y", "/..", "\\..",
        "..\\", "..\\../x", "Careers\\..\\..\\eaw.exe", "C:\\..\\x"}) {
    EXPECT_FALSE(stays_below(name)) << shown(name);
  }
}

TEST(PlainName, WhateverElseStaysBelowItsFolder) {
  for (const std::string_view name : {"",
                                      "Dusk\\sub",
                                      "Dusk/sub",
                                      "Battle: Berlin",
                                      "Ends in a dot.",
                                      "Ends in a blank ",
                                      "...",
                                      ". .",
                                      "..x",
                                      "x..",
                                      " ..",
                                      ".. ",
                                      "/etc",
                                      "\\Windows",
                                      "C:",
                                      "C:\\Windows",
                                      "a//b",
                                      "NUL",
                                      "*",
                                      "caf\xE9"}) {
    EXPECT_TRUE(stays_below(name)) << shown(name);
  }
}

}  // namespace
}  // namespace vorlund
