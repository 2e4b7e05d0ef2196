// Starting a program on Windows.
#pragma once

#include <windows.h>

#include <string_view>

namespace vorlund {

/// The system's error where a program asks for more rights than its starter has; not all headers name it.
inline constexpr DWORD kElevationRequired = 740;

/// Starts a program as FileSystem::start_program does; one that asks for an administrator's rights after
/// Windows has asked the user for them. Throws ActionError, also where the user says no.
void start_windows_program(std::string_view path, std::string_view folder);

}  // namespace vorlund
