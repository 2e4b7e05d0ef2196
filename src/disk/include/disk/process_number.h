// The numbers that the platform gives to running programs.
#pragma once

#include <cstdint>

namespace vorlund {

#ifdef _WIN32
inline constexpr char kPlatformLetter = 'w';
#else
inline constexpr char kPlatformLetter = 'p';
#endif

/// Number of this process.
std::uint32_t own_process_number();

/// False when there is certainly no process of that number.
bool process_runs(std::uint32_t number);

}  // namespace vorlund
