// How much memory the measuring process takes, as Linux tells it.
#pragma once

#include <malloc.h>

#include <fstream>
#include <string>
#include <string_view>

namespace vorlund::bench {

/// A figure of the kernel's account of this process, say "VmRSS:", in MiB.
inline double accounted_memory(std::string_view field) {
  std::ifstream lines("/proc/self/status");
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(field)) return std::stod(line.substr(field.size())) / 1024;
  }
  return 0;
}

/// Memory of this process now, in MiB.
inline double resident_megabytes() {
  return accounted_memory("VmRSS:");
}

/// Most memory of this process so far, in MiB, since it was last forgotten.
inline double peak_memory() {
  return accounted_memory("VmHWM:");
}

inline void forget_peak_memory() {
  ::malloc_trim(0);
  std::ofstream("/proc/self/clear_refs") << "5";
}

}  // namespace vorlund::bench
