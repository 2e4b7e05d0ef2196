// The name of a file that a crash has left.
#pragma once

#include <string>

#include "disk/process_number.h"

namespace vorlund::test {

/// A name such as `staging_name` gives, of a process that runs no more: no platform counts that far.
inline std::string left_over_name() {
  return std::string("~vorlund-") + kPlatformLetter + "7ffffffe-0.bak";
}

}  // namespace vorlund::test
