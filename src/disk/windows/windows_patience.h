// Waiting for files that another program has in use for a moment.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "windows/windows_file.h"

namespace vorlund {

/// Keeps the screen alive while files are worked on or waited for. Virus scanners and indexers open every new
/// file for some milliseconds; nothing of theirs must end an action.
class WindowsPatience {
 public:
  void set_pulse(std::function<void()> pulse) { pulse_ = std::move(pulse); }
  void pulse() const {
    if (pulse_) pulse_();
  }

  /// Calls `attempt` until it returns true, for up to one second as long as another program has the file in
  /// use; there are pulses meanwhile. False, with the system's error, where it came to nothing.
  bool insist(const std::function<bool()>& attempt) const { return insist(attempt, says_in_use); }

  /// The same for what creates, renames or deletes: then the system often says no more than "access denied"
  /// of a file that is in use elsewhere, or whose deletion waits there.
  bool insist_on_change(const std::function<bool()>& attempt) const {
    return insist(attempt, in_use_or_denied);
  }

 private:
  static bool in_use_or_denied(DWORD error);
  bool insist(const std::function<bool()>& attempt, bool (*may_pass)(DWORD error)) const;

  std::function<void()> pulse_;
};

/// The error to report where an operation on the file at a long path has failed with `error`: what says no
/// more than "access denied" is a sharing violation where another program has the file open.
DWORD likely_cause(DWORD error, const std::wstring& long_path);

}  // namespace vorlund
