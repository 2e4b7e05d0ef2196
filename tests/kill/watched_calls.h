// What a run of a program did to files, folders and networks, read from its trace.
#pragma once

#include <string>
#include <vector>

namespace vorlund::test {

/// The calls of all threads that change something or reach out. Paths are absolute and stand as the bytes
/// they are; but for `written` and `deleted`, calls that failed are told too.
struct WatchedCalls {
  std::vector<std::string> written;        ///< opened for writing, created, renamed to, cut or marked
  std::vector<std::string> deleted;        ///< unlinked or renamed away
  std::vector<std::string> folders;        ///< made or removed
  std::vector<std::string> links;          ///< made, symbolic and hard, and special files
  std::vector<std::string> read;           ///< opened for reading alone, and there
  std::vector<std::string> networks;       ///< address family of each socket made
  std::vector<std::string> programs;       ///< started
  std::vector<std::string> other_changes;  ///< calls that change a file in any other way
};

/// Reads a trace as TracedProgram::run_watched leaves it.
WatchedCalls read_watched_calls(const std::string& trace_file);

}  // namespace vorlund::test
