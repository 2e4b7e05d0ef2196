// The floor on Windows.
#include <windows.h>

#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "plain_loops.h"

namespace vorlund::bench {

namespace {

namespace fs = std::filesystem;

void must(bool worked, const char* call) {
  if (!worked) throw std::runtime_error(std::string(call) + " failed: " + std::to_string(GetLastError()));
}

HANDLE open(const fs::path& path, DWORD access, DWORD share, DWORD disposition) {
  const HANDLE file = CreateFileW(path.c_str(), access, share, nullptr, disposition, 0, nullptr);
  must(file != INVALID_HANDLE_VALUE, "CreateFile");
  return file;
}

/// Reads a file whole; returns its size.
DWORD read_whole(const fs::path& path, std::vector<char>& bytes) {
  const HANDLE file = open(path, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
  LARGE_INTEGER size;
  must(GetFileSizeEx(file, &size) != 0, "GetFileSizeEx");
  if (bytes.size() < static_cast<std::size_t>(size.QuadPart)) bytes.resize(size.LowPart);
  DWORD got = 0;
  must(ReadFile(file, bytes.data(), size.LowPart, &got, nullptr) != 0 && got == size.LowPart, "ReadFile");
  CloseHandle(file);
  return got;
}

/// Calls `work` with the name of each file in the folder.
void for_each_file(const fs::path& folder, const std::function<void(const wchar_t* name)>& work) {
  WIN32_FIND_DATAW entry;
  const HANDLE search = FindFirstFileExW((folder / L"*").c_str(), FindExInfoBasic, &entry,
                                         FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  must(search != INVALID_HANDLE_VALUE, "FindFirstFileEx");
  do {
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) work(entry.cFileName);
  } while (FindNextFileW(search, &entry) != 0);
  FindClose(search);
}

}  // namespace

void copy_plainly(const fs::path& from, const fs::path& to, const fs::path&) {
  std::vector<char> bytes;
  const fs::path staged = to / L"staged";
  for_each_file(from, [&](const wchar_t* name) {
    const DWORD size = read_whole(from / name, bytes);
    const HANDLE file = open(staged, GENERIC_WRITE, 0, CREATE_NEW);
    DWORD put = 0;
    must(WriteFile(file, bytes.data(), size, &put, nullptr) != 0 && put == size, "WriteFile");
    CloseHandle(file);
    must(MoveFileExW(staged.c_str(), (to / name).c_str(), MOVEFILE_REPLACE_EXISTING) != 0, "MoveFileEx");
  });
}

void compare_plainly(const fs::path& from, const fs::path& to) {
  std::vector<char> bytes;
  std::vector<char> others;
  for_each_file(from, [&](const wchar_t* name) {
    const DWORD size = read_whole(from / name, bytes);
    const bool same =
        read_whole(to / name, others) == size && std::memcmp(bytes.data(), others.data(), size) == 0;
    if (!same) throw std::runtime_error(fs::path(name).string() + " differs");
  });
}

void copy_by_command(const fs::path& from, const fs::path& to) {
  std::wstring line = L"xcopy \"" + from.wstring() + L"\" \"" + to.wstring() + L"\" /Q /Y /I";
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  must(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr, nullptr,
                      &start, &process) != 0,
       "CreateProcess");
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 1;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  if (code != 0) throw std::runtime_error("xcopy failed");
}

void settle(const fs::path&) {}

}  // namespace vorlund::bench
