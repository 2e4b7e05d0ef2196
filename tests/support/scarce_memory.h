// Runs work in a process that is short of memory.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>

#include "base/action_error.h"

#ifdef __linux__
#include <sys/resource.h>
#include <unistd.h>

namespace vorlund::test {

/// Ends the process: with 0 where the work, with so many bytes more than are in use, ends with an error that
/// names the path and says that memory ran out.
[[noreturn]] inline void run_out_of_memory(std::size_t more, const std::string& path,
                                           const std::function<void()>& work) {
  std::size_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  const rlim_t most = pages * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) + more;
  const rlimit limit{most, most};
  if (::setrlimit(RLIMIT_AS, &limit) != 0) std::_Exit(3);
  try {
    work();
  } catch (const ActionError& error) {
    std::_Exit(error.path() == path && error.reason() == kOutOfMemory ? 0 : 2);
  }
  std::_Exit(1);
}

}  // namespace vorlund::test
#endif

/// Expects of the work that it runs out of memory so.
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
#define EXPECT_OUT_OF_MEMORY(more, path, work) \
  EXPECT_EXIT(vorlund::test::run_out_of_memory(more, path, work), testing::ExitedWithCode(0), "")
#else
#define EXPECT_OUT_OF_MEMORY(more, path, work) \
  static_cast<void>(more);                     \
  GTEST_SKIP() << "memory can't be limited here"
#endif
