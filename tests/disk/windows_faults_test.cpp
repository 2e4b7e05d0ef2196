// What a disk or the system refuses on Windows: calls are made to fail that no test can make fail otherwise.
#include <gtest/gtest.h>
#include <windows.h>

#include <shellapi.h>

#include <string>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "support/temporary_folder.h"
#include "windows/windows_path.h"
#include "windows/windows_program.h"

namespace {

DWORD create_process_error = ERROR_SUCCESS;
DWORD shell_error = ERROR_SUCCESS;
DWORD create_new_error = ERROR_SUCCESS;
std::wstring shell_started;
std::wstring shell_folder;

/// The system's own function.
template <typename Function>
Function system_function(const wchar_t* library, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(library), name)));
}

BOOL failed(DWORD error) {
  SetLastError(error);
  return FALSE;
}

BOOL WINAPI create_process(LPCWSTR, LPWSTR, LPSECURITY_ATTRIBUTES, LPSECURITY_ATTRIBUTES, BOOL, DWORD, LPVOID,
                           LPCWSTR, LPSTARTUPINFOW, LPPROCESS_INFORMATION) {
  return failed(create_process_error);
}

BOOL WINAPI shell_execute(SHELLEXECUTEINFOW* start) {
  shell_started = start->lpFile;
  shell_folder = start->lpDirectory;
  return shell_error == ERROR_SUCCESS ? TRUE : failed(shell_error);
}

HANDLE WINAPI create_file(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                          DWORD disposition, DWORD flags, HANDLE model) {
  static const auto real = system_function<decltype(&CreateFileW)>(L"kernel32", "CreateFileW");
  if (disposition == CREATE_NEW && create_new_error != ERROR_SUCCESS) {
    SetLastError(create_new_error);
    return INVALID_HANDLE_VALUE;
  }
  return real(name, access, share, security, disposition, flags, model);
}

}  // namespace

// The linker takes these for the addresses of the system's functions.
extern "C" {
decltype(&CreateProcessW) __imp_CreateProcessW = create_process;
decltype(&ShellExecuteExW) __imp_ShellExecuteExW = shell_execute;
decltype(&CreateFileW) __imp_CreateFileW = create_file;
}

namespace vorlund {
namespace {

/// The reason of the error that the work ends with, "" where it ends well.
template <typename Work>
std::string reason_of(const Work& work) {
  try {
    work();
    return "";
  } catch (const ActionError& error) {
    return error.reason();
  }
}

class WindowsFaults : public testing::Test {
 protected:
  WindowsFaults() {
    create_process_error = shell_error = create_new_error = ERROR_SUCCESS;
    shell_started.clear();
  }

  std::string start() {
    return reason_of([this] { files_->start_program(folder_.path("eaw.exe"), folder_.path()); });
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
};

TEST_F(WindowsFaults, AProgramThatAsksForAnAdministratorsRightsIsStartedByTheShell) {
  create_process_error = kElevationRequired;
  EXPECT_EQ(start(), "");
  EXPECT_EQ(from_wide(shell_started), folder_.path("eaw.exe"));
  EXPECT_EQ(from_wide(shell_folder), folder_.path());
}

TEST_F(WindowsFaults, ItIsAnErrorWhereTheUserSaysNo) {
  create_process_error = kElevationRequired;
  shell_error = ERROR_CANCELLED;
  EXPECT_NE(start(), "");
}

TEST_F(WindowsFaults, NoOtherFailureIsLeftToTheShell) {
  create_process_error = ERROR_BAD_EXE_FORMAT;
  EXPECT_NE(start(), "");
  EXPECT_EQ(shell_started, L"");
}

TEST_F(WindowsFaults, WithoutTheRightToWriteTheErrorSaysWhatToDo) {
  folder_.write("source", "new");
  create_new_error = ERROR_ACCESS_DENIED;
  const std::string reason = reason_of(
      [this] { files_->copy_file(folder_.path("source"), folder_.path("target"), Durability::kCached); });
  EXPECT_NE(reason.find("outside \"Program Files\""), std::string::npos) << reason;
  EXPECT_EQ(folder_.names(), std::vector<std::string>{"source"});
}

}  // namespace
}  // namespace vorlund
