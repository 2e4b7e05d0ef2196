// How a running action is seen from outside; whoever works on files knows no screen.
#pragma once

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
};

}  // namespace vorlund
