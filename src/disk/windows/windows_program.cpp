// Starts a program itself, and lets the shell do so where rights have to be asked for.
#include "windows/windows_program.h"

#include <windows.h>

#include <shellapi.h>

#include <string>

#include "windows/windows_file.h"
#include "windows/windows_path.h"

namespace vorlund {

namespace {

bool start_directly(const std::wstring& program, const std::wstring& folder) {
  std::wstring command_line = L"\"" + program + L"\"";
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(program.c_str(), command_line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     folder.c_str(), &start, &process) == 0) {
    return false;
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

bool start_by_shell(const std::wstring& program, const std::wstring& folder) {
  SHELLEXECUTEINFOW start{};
  start.cbSize = sizeof start;
  start.fMask = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
  start.lpFile = program.c_str();
  start.lpDirectory = folder.c_str();
  start.nShow = SW_SHOWNORMAL;
  return ShellExecuteExW(&start) != 0;
}

}  // namespace

void start_windows_program(std::string_view path, std::string_view folder) {
  // Programs are given the plain form: many don't know the long one.
  const std::wstring program = absolute_path(path, EntryKind::kFile);
  const std::wstring start_folder = absolute_path(folder, EntryKind::kFolder);
  if (start_directly(program, start_folder)) return;
  const bool asks_for_rights = GetLastError() == kElevationRequired;
  if (!asks_for_rights || !start_by_shell(program, start_folder)) throw_windows_error("start", path);
}

}  // namespace vorlund
