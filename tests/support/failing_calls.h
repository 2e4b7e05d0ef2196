// Lets calls of the system fail, or answer as an odd disk does, inside the test program itself.
#pragma once

#include <limits>
#include <string>

namespace vorlund::test {

/// While it lives, every call of one function of the system fails that goes by a name: for "openat",
/// "faccessat", "fstatat", "unlinkat" and "renameat" the name they are given, for "fstatvfs", "getdents64",
/// "fsync", "ftruncate" and "lseek" the path of what is open. The call is not made. One at a time; only
/// programs that link failing_calls.cpp know it.
class FailingCall {
 public:
  /// `ending` is how the name ends, `error` the error number; `times` tells how many
  /// calls fail before they go through again.
  FailingCall(std::string function, std::string ending, int error,
              int times = std::numeric_limits<int>::max());
  ~FailingCall();
  FailingCall(const FailingCall&) = delete;
  FailingCall& operator=(const FailingCall&) = delete;

  /// How many calls have failed.
  static int count();
};

/// While it lives, every regular file has the same device and number, as on a disk whose numbers collide.
class CollidingNumbers {
 public:
  CollidingNumbers();
  ~CollidingNumbers();
  CollidingNumbers(const CollidingNumbers&) = delete;
  CollidingNumbers& operator=(const CollidingNumbers&) = delete;
};

}  // namespace vorlund::test
