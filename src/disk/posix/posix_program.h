// Starting a program on POSIX, Windows programs through Wine.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vorlund {

/// What a command line of its own is made of.
struct PosixCommand {
  std::string executable;              ///< path of the program that the system starts
  std::vector<std::string> arguments;  ///< the first is the name that the program sees itself under
};

/// How much of a program file tells what it is.
inline constexpr std::size_t kProgramBeginning = 4096;

/// True for the first `kProgramBeginning` bytes of a 32-bit Windows program.
bool is_32_bit_windows_program(std::string_view beginning);

/// True where the `wine` command at that path is Debian's, of which only the 64-bit part is installed; other
/// systems' start programs of both kinds. `root` stands before the paths of what is installed.
bool lacks_32_bit_wine(const std::string& wine, const std::string& root);

/// The command that starts the program file at `program`, an absolute path as the disk spells it. `beginning`
/// is how the file begins: after "MZ" it is a Windows program, to be started through Wine. Throws ActionError
/// where that, or the part of it that the program takes, is not installed; for `root` see lacks_32_bit_wine.
PosixCommand command_for(const std::string& program, std::string_view beginning,
                         const std::string& root = "");

/// Starts the command in an open folder, detached from this process, and returns when it runs. `path` is for
/// the error report.
void start_detached(const PosixCommand& command, int folder, std::string_view path);

}  // namespace vorlund
