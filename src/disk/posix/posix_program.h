// Starting a program on POSIX, Windows programs through Wine.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorlund {

/// What a command line of its own is made of.
struct PosixCommand {
  std::string executable;              ///< path of the program that the system starts
  std::vector<std::string> arguments;  ///< the first is the name that the program sees itself under
};

/// The command that starts the program file at `program`, an absolute path as the disk spells it. `beginning`
/// is how the file begins: after "MZ" it is a Windows program, to be started through Wine. Throws ActionError
/// where that is needed and not installed.
PosixCommand command_for(const std::string& program, std::string_view beginning);

/// Starts the command in an open folder, detached from this process, and returns when it runs. `path` is for
/// the error report.
void start_detached(const PosixCommand& command, int folder, std::string_view path);

}  // namespace vorlund
