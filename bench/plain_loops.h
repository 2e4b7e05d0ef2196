// The work of the installer by bare calls of the system, and by its own command: the floor under its times.
#pragma once

#include <cstddef>
#include <filesystem>

namespace vorlund::bench {

/// Copies every file of a folder into another one: each is written under a name of its own and renamed to its
/// place. On POSIX it is written in `staging`, a small folder, on Windows beside its place.
void copy_plainly(const std::filesystem::path& from, const std::filesystem::path& to,
                  const std::filesystem::path& staging);

/// Opens every file of a folder and the one of its name in the other folder, and compares their bytes. Throws
/// where they differ.
void compare_plainly(const std::filesystem::path& from, const std::filesystem::path& to);

/// Copies every file of a folder into another one by the system's own command: `cp -r`, or `xcopy`.
void copy_by_command(const std::filesystem::path& from, const std::filesystem::path& to);

/// Reads the names of a folder and of all folders below it, each once and with nothing asked of them but
/// their kind; returns how many there are. On POSIX alone.
std::size_t list_plainly(const std::filesystem::path& folder);

/// Waits until what was written to the disk of the folder is there, where the system can be asked.
void settle(const std::filesystem::path& folder);

}  // namespace vorlund::bench
