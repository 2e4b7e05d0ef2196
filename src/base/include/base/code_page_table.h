// The platform's side of the code page: which character each byte stands for.
#pragma once

#include <array>

namespace vorlund {

/// Unicode code point of each byte value; no two alike.
using CodePageTable = std::array<char16_t, 256>;

/// The table of the platform's code page, the same for the whole run.
const CodePageTable& code_page_table();

/// The table of Windows-1252.
const CodePageTable& windows_1252_table();

}  // namespace vorlund
