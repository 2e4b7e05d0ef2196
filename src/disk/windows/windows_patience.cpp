// Tries again in small steps.
#include "windows/windows_patience.h"

#include <chrono>

namespace vorlund {

namespace {

constexpr std::chrono::seconds kLongest{1};
constexpr DWORD kStepMilliseconds = 15;

}  // namespace

bool WindowsPatience::in_use_or_denied(DWORD error) {
  return error == ERROR_ACCESS_DENIED || says_in_use(error);
}

bool WindowsPatience::insist(const std::function<bool()>& attempt, bool (*may_pass)(DWORD error)) const {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + kLongest;
  while (!attempt()) {
    const DWORD error = GetLastError();
    if (!may_pass(error) || Clock::now() >= end) {
      SetLastError(error);
      return false;
    }
    Sleep(kStepMilliseconds);
    pulse();
  }
  return true;
}

DWORD likely_cause(DWORD error, const std::wstring& long_path) {
  if (error != ERROR_ACCESS_DENIED) return error;
  const WindowsHandle alone(CreateFileW(long_path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
  return !alone.is_open() && GetLastError() == ERROR_SHARING_VIOLATION ? ERROR_SHARING_VIOLATION : error;
}

}  // namespace vorlund
