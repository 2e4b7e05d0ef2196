// A second program that has started and waits for the word to act.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace vorlund::test {

/// A program that says a line when it is ready, acts when it gets one, and then says what came of it.
class WaitingProgram {
 public:
  /// Starts the program inside a folder and waits until it is ready.
  WaitingProgram(const std::vector<std::string>& command, const std::string& folder);
  ~WaitingProgram();
  WaitingProgram(const WaitingProgram&) = delete;
  WaitingProgram& operator=(const WaitingProgram&) = delete;

  /// Lets it act and waits for its end. Returns its exit code, -1 when a signal ended it.
  int act();

  /// What it said after the action.
  const std::string& said() const { return said_; }

 private:
  pid_t process_ = 0;
  int word_ = -1;    ///< what it reads
  int answer_ = -1;  ///< what it writes
  std::string said_;
};

}  // namespace vorlund::test
