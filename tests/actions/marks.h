// Calls that show in a trace where an action begins and ends.
#pragma once

#include <unistd.h>

namespace vorlund::test {

// Names of files that are not there: asking for one changes nothing.
inline constexpr char kActionBegins[] = "the-action-begins";
inline constexpr char kActionHasEnded[] = "the-action-has-ended";

inline void mark(const char* name) {
  static_cast<void>(::access(name, F_OK));
}

}  // namespace vorlund::test
