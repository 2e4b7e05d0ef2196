// Counts the calls that the test program makes to Windows about files, and lets them fail one by one.
#pragma once

#include <windows.h>

#include <string>

namespace vorlund::test {

/// The exit code of a program that was ended at a call.
inline constexpr UINT kEndedCode = 77;

/// While it lives, calls about files, folders and locks are counted, and the one of a number is not made and
/// fails. A handle is closed whatever is said of it. One at a time; only programs that link
/// watched_windows_calls.cpp know it.
class WatchedWindowsCalls {
 public:
  /// In place of an error: at the call the process is ended, as by the task manager, with kEndedCode.
  static constexpr DWORD kEnds = ERROR_SUCCESS;

  /// `number` counts from 1; `error` is the system's error that the call ends with.
  WatchedWindowsCalls(int number, DWORD error);
  ~WatchedWindowsCalls();
  WatchedWindowsCalls(const WatchedWindowsCalls&) = delete;
  WatchedWindowsCalls& operator=(const WatchedWindowsCalls&) = delete;

  /// How many calls were made.
  static int count();

  /// The function that was struck, "" where fewer calls were made.
  static std::string struck();
};

}  // namespace vorlund::test
