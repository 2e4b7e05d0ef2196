// Stands before the system's functions: the linker takes what is defined at the end for their addresses.
#include "support/watched_windows_calls.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace vorlund::test {

namespace {

struct Watch {
  int number;
  DWORD error;
};

bool watching = false;
Watch watch{};
int made = 0;
const char* struck_function = "";

/// True where the call is not to be made, or to be made and said to have failed.
bool fails(const char* function) {
  if (!watching) return false;
  if (++made != watch.number) return false;
  struck_function = function;
  if (watch.error == WatchedWindowsCalls::kEnds) TerminateProcess(GetCurrentProcess(), kEndedCode);
  return true;
}

struct Name {
  template <std::size_t kSize>
  consteval Name(const char (&name)[kSize]) {
    std::copy_n(name, kSize, text);
  }
  char text[32] = {};
};

void* system_function(const char* name) {
  for (const wchar_t* library : {L"kernel32", L"advapi32"}) {
    if (const FARPROC found = GetProcAddress(GetModuleHandleW(library), name))
      return reinterpret_cast<void*>(found);
  }
  std::abort();
}

template <typename Function>
struct Watched;

template <typename Result, typename... Arguments>
struct Watched<Result (*)(Arguments...)> {
  template <Name kName, std::intptr_t kFailure>
  static Result call(Arguments... arguments) {
    static const auto real = reinterpret_cast<Result (*)(Arguments...)>(system_function(kName.text));
    const bool closes = std::string_view(kName.text).find("Close") != std::string_view::npos;
    if (!fails(kName.text)) return real(arguments...);
    if (closes) real(arguments...);
    SetLastError(watch.error);
    return (Result)kFailure;
  }
};

constexpr std::intptr_t kNo = 0;
constexpr std::intptr_t kNoHandle = -1;

}  // namespace

WatchedWindowsCalls::WatchedWindowsCalls(int number, DWORD error) {
  watch = {number, error};
  made = 0;
  struck_function = "";
  watching = true;
}

WatchedWindowsCalls::~WatchedWindowsCalls() {
  watching = false;
}

int WatchedWindowsCalls::count() {
  return made;
}

std::string WatchedWindowsCalls::struck() {
  return struck_function;
}

}  // namespace vorlund::test

using namespace vorlund::test;

extern "C" {
#define WATCHED(function, failure) \
  decltype(&function) __imp_##function = Watched<decltype(&function)>::call<#function, failure>
WATCHED(CloseHandle, kNo);
WATCHED(CreateFileW, kNoHandle);
WATCHED(CreateMutexW, kNo);
WATCHED(DeleteFileW, kNo);
WATCHED(FindClose, kNo);
WATCHED(FindFirstFileExW, kNoHandle);
WATCHED(FindNextFileW, kNo);
WATCHED(FlushFileBuffers, kNo);
WATCHED(GetCurrentDirectoryW, kNo);
WATCHED(GetDiskFreeSpaceExW, kNo);
WATCHED(GetFileAttributesW, kNoHandle);
WATCHED(GetFileInformationByHandle, kNo);
WATCHED(GetFileSizeEx, kNo);
WATCHED(GetFinalPathNameByHandleW, kNo);
WATCHED(GetKernelObjectSecurity, kNo);
WATCHED(MoveFileExW, kNo);
WATCHED(OpenMutexW, kNo);
WATCHED(ReadFile, kNo);
WATCHED(SetFileAttributesW, kNo);
WATCHED(SetFileInformationByHandle, kNo);
WATCHED(SetFilePointerEx, kNo);
WATCHED(WriteFile, kNo);
#undef WATCHED
}
