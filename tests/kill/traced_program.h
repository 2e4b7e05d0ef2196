// Runs a program while its system calls are watched, or while it is killed at one of them.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace vorlund::test {

/// How a program ended.
struct Ending {
  bool killed = false;  ///< by SIGKILL
  int exit_code = -1;   ///< -1 when a signal ended it
};

/// The calls that the first thread of a program made to files and descriptors.
struct Trace {
  bool begun = false;                 ///< the action was reached
  bool ended = false;                 ///< and run to its end
  std::map<std::string, int> before;  ///< calls of each name before the action
  std::map<std::string, int> during;  ///< calls of each name in it, those about files
  bool last_is_about_files = false;   ///< whether the last call was one of these
};

/// A program that is run inside a folder, off-screen where it has a window.
class TracedProgram {
 public:
  /// `command` is the program and its arguments; `trace_file` is written by the runs under strace.
  TracedProgram(std::vector<std::string> command, std::string trace_file)
      : command_(std::move(command)), trace_file_(std::move(trace_file)) {}

  /// True where strace is installed and may watch other programs.
  static bool can_trace();

  Ending run(const std::string& folder) const;

  /// Runs the program to its end and tells the calls it made.
  Ending run_traced(const std::string& folder, Trace& trace) const;

  /// Runs the program to its end and leaves in the trace file every call of all its threads that goes by the
  /// name of a file or to a network, descriptors with their paths, texts whole.
  Ending run_watched(const std::string& folder) const;

  /// Kills the program as it enters its call number `number` (from 1) of that name; the call is not made.
  /// The trace tells only of calls of that name.
  Ending run_killed(const std::string& folder, const std::string& call, int number, Trace& trace) const;

  /// Lets the program's call number `number` (from 1) of that name end with `result`, such as "error=EIO" or
  /// "retval=0"; the call is not made.
  Ending run_failed(const std::string& folder, const std::string& call, int number,
                    const std::string& result) const;

  /// Stops the program as it enters its call number `number` (from 1) of that name, does `meanwhile`, and
  /// lets it go on to its end. `stopped` tells whether it came to that call.
  Ending run_stopped(const std::string& folder, const std::string& call, int number, bool& stopped,
                     const std::function<void()>& meanwhile) const;

 private:
  Ending run_under_strace(const std::string& folder, const std::vector<std::string>& options) const;
  std::vector<std::string> under_strace(const std::vector<std::string>& options) const;

  std::vector<std::string> command_;
  std::string trace_file_;
};

}  // namespace vorlund::test
