// The test program itself, started once more as another program on Windows.
#pragma once

#include <windows.h>

#include <string>

namespace vorlund::test {

/// Runs from its making until it ends itself or is ended.
class AnotherProgram {
 public:
  /// Starts it in a folder, with an environment variable that tells it what it is for. Throws where that
  /// fails.
  AnotherProgram(const wchar_t* variable, const wchar_t* value, const std::string& folder);
  ~AnotherProgram();
  AnotherProgram(const AnotherProgram&) = delete;
  AnotherProgram& operator=(const AnotherProgram&) = delete;

  /// Waits until it has ended by itself; returns its exit code.
  DWORD wait() const;

  /// Ends it at once, as the task manager does.
  void end() const;

 private:
  HANDLE process_ = nullptr;
};

}  // namespace vorlund::test
