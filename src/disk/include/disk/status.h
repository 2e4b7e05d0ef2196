// How a running action is seen from outside; whoever works on files knows no screen.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vorlund {

/// How far a long action has got.
struct Progress {
  std::string_view file;  ///< bare name of the file at hand
  double fraction = 0;    ///< share of the work that is done, 0 to 1
};

/// Observes actions. The defaults ignore everything.
class Status {
 public:
  virtual ~Status() = default;

  /// The controls have changed in the middle of an action: show them at once.
  virtual void repaint() {}

  /// A long action has reached a file. Called for each file; the observer decides how often to paint.
  virtual void progress(const Progress&) {}

  /// A long action goes on with the file at hand.
  virtual void pulse() {}

  /// What is written from here on is for this row of the table at work, a slot of the aircraft table; 0: for
  /// no one of them.
  virtual void row(int) {}

  /// A record of the loader patch that was reached last has put these bytes into the game's executable.
  virtual void patched(std::uint64_t first, std::string_view bytes) {
    static_cast<void>(first);
    static_cast<void>(bytes);
  }

  /// True when the player wants to leave. Asked by what only reads; an action that writes runs to its end.
  virtual bool leave_wanted() { return false; }
};

}  // namespace vorlund
