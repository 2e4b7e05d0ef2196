// A file system that fails on demand, to show what a failing disk leaves behind.
#pragma once

#include <array>
#include <string>
#include <utility>

#include "support/forwarding_file_system.h"

namespace vorlund::test {

enum class FaultKind {
  kError,       ///< the operation does nothing and fails
  kNoRight,     ///< there is no right to it: an existence test answers no, everything else fails
  kShortWrite,  ///< a write puts half of its bytes where it would have written them, and fails
  kDiskFull,    ///< as kShortWrite, and the disk is full
};

enum class FaultSpan {
  kOnce,        ///< only the operation with the number fails
  kPersistent,  ///< that one and all after it fail
};

/// What a sweep goes through: every kind, for one operation and for all that follow.
inline constexpr std::array<std::pair<FaultKind, FaultSpan>, 8> kEveryFault = {{
    {FaultKind::kError, FaultSpan::kOnce},
    {FaultKind::kError, FaultSpan::kPersistent},
    {FaultKind::kNoRight, FaultSpan::kOnce},
    {FaultKind::kNoRight, FaultSpan::kPersistent},
    {FaultKind::kShortWrite, FaultSpan::kOnce},
    {FaultKind::kShortWrite, FaultSpan::kPersistent},
    {FaultKind::kDiskFull, FaultSpan::kOnce},
    {FaultKind::kDiskFull, FaultSpan::kPersistent},
}};

struct Fault {
  int number;  ///< counted from 1
  FaultKind kind = FaultKind::kError;
  FaultSpan span = FaultSpan::kOnce;
};

/// Hands everything on until the operation that is to fail. Each operation has a number, in order, from the
/// arming of the fault; for kShortWrite and kDiskFull only those that write a file are numbered.
class FaultyFileSystem : public ForwardingFileSystem {
 public:
  using ForwardingFileSystem::ForwardingFileSystem;

  /// Numbers anew from here on, and fails as told. A number that is never reached counts the operations.
  void arm(const Fault& fault);

  /// Fails nothing any more.
  void disarm();

  /// Operations numbered since the fault was armed.
  int operations() const { return operations_; }

  /// True when the fault has struck.
  bool struck() const { return !struck_operation_.empty(); }

  /// True when an operation has failed, and has not just answered no, so that an error must have come out.
  bool failed() const { return failed_; }

  /// The first operation that was struck, in the words of RecordingFileSystem.
  const std::string& struck_operation() const { return struck_operation_; }

 protected:
  bool before(const Operation& operation) override;
  void begin_action(Pulse pulse, std::string_view staging) override;
  void end_action() override;

 private:
  void leave_half(const Operation& operation);

  std::string staging_;  ///< of the action, where the platform makes use of it
  bool armed_ = false;
  Fault fault_{0};
  int operations_ = 0;
  bool failed_ = false;
  std::string struck_operation_;
};

}  // namespace vorlund::test
