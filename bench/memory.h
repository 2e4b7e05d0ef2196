// The memory of the measuring process.
#pragma once

#include <fstream>
#include <string>

namespace vorlund::bench {

/// Memory of this process in MiB, as the kernel counts it.
inline double resident_megabytes() {
  std::ifstream status("/proc/self/status");
  std::string word;
  double kilobytes = 0;
  while (status >> word) {
    if (word == "VmRSS:") status >> kilobytes;
  }
  return kilobytes / 1024;
}

}  // namespace vorlund::bench
