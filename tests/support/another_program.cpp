// Finds the file of the running program and starts it.
#include "support/another_program.h"

#include <stdexcept>

#include "windows/windows_path.h"

namespace vorlund::test {

AnotherProgram::AnotherProgram(const wchar_t* variable, const wchar_t* value, const std::string& folder) {
  std::wstring self(32768, L'\0');
  self.resize(GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size())));
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  SetEnvironmentVariableW(variable, value);
  const BOOL started = CreateProcessW(self.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                                      to_wide(folder).c_str(), &start, &process);
  SetEnvironmentVariableW(variable, nullptr);
  if (started == 0) throw std::runtime_error("the test program could not be started once more");
  CloseHandle(process.hThread);
  process_ = process.hProcess;
}

AnotherProgram::~AnotherProgram() {
  end();
  CloseHandle(process_);
}

DWORD AnotherProgram::wait() const {
  DWORD code = 0;
  WaitForSingleObject(process_, INFINITE);
  GetExitCodeProcess(process_, &code);
  return code;
}

void AnotherProgram::end() const {
  TerminateProcess(process_, 1);
  WaitForSingleObject(process_, INFINITE);
}

}  // namespace vorlund::test
