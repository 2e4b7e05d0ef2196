// Thin layer over the handle calls of Windows.
#include "windows/windows_file.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/action_error.h"
#include "disk/process_number.h"
#include "windows/windows_path.h"

namespace vorlund {

namespace {

constexpr std::size_t kLargestTransfer = 64U << 20;

/// The system's sentence for an error, without the line end and full stop that it carries; its one for a file
/// in use does not say what to look for.
std::string error_text(DWORD error) {
  if (says_in_use(error)) return "another program, perhaps the game itself, has it open";
  wchar_t* text = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
      error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
  if (length == 0) return "error " + std::to_string(error);
  std::wstring_view sentence(text, length);
  sentence = sentence.substr(0, sentence.find_last_not_of(L"\r\n. ") + 1);
  const std::string result = from_wide(sentence);
  LocalFree(text);
  return result;
}

}  // namespace

std::uint32_t own_process_number() {
  return GetCurrentProcessId();
}

bool process_runs(std::uint32_t number) {
  const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, number);
  if (process == nullptr) return GetLastError() != ERROR_INVALID_PARAMETER;
  DWORD code = 0;
  const bool ended = GetExitCodeProcess(process, &code) != 0 && code != STILL_ACTIVE;
  CloseHandle(process);
  return !ended;
}

WindowsHandle& WindowsHandle::operator=(WindowsHandle&& other) noexcept {
  std::swap(handle_, other.handle_);
  return *this;
}

bool WindowsHandle::close() {
  return !is_open() || CloseHandle(release()) != 0;
}

HANDLE WindowsHandle::release() {
  return std::exchange(handle_, INVALID_HANDLE_VALUE);
}

void throw_windows_error(std::string_view attempted, std::string_view path) {
  throw_windows_error(attempted, path, GetLastError());
}

void throw_windows_error(std::string_view attempted, std::string_view path, DWORD error) {
  throw ActionError(attempted, path, error_text(error));
}

bool tells_nothing(DWORD error) {
  static constexpr std::array<DWORD, 19> kErrors = {ERROR_TOO_MANY_OPEN_FILES,
                                                    ERROR_NOT_ENOUGH_MEMORY,
                                                    ERROR_OUTOFMEMORY,
                                                    ERROR_CRC,
                                                    ERROR_SEEK,
                                                    ERROR_SECTOR_NOT_FOUND,
                                                    ERROR_READ_FAULT,
                                                    ERROR_GEN_FAILURE,
                                                    ERROR_SEM_TIMEOUT,
                                                    ERROR_IO_DEVICE,
                                                    ERROR_DEVICE_NOT_CONNECTED,
                                                    ERROR_FILE_CORRUPT,
                                                    ERROR_DISK_CORRUPT,
                                                    ERROR_NO_SYSTEM_RESOURCES,
                                                    ERROR_WORKING_SET_QUOTA,
                                                    ERROR_COMMITMENT_LIMIT,
                                                    ERROR_NETNAME_DELETED,
                                                    ERROR_DEV_NOT_EXIST,
                                                    ERROR_UNEXP_NET_ERR};
  return std::find(kErrors.begin(), kErrors.end(), error) != kErrors.end();
}

bool says_in_use(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_DELETE_PENDING ||
         error == ERROR_USER_MAPPED_FILE;
}

WindowsHandle open_existing(const std::wstring& path, DWORD access, DWORD flags) {
  constexpr DWORD kShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return WindowsHandle(CreateFileW(path.c_str(), access, kShare, nullptr, OPEN_EXISTING, flags, nullptr));
}

bool read_up_to(HANDLE file, char* bytes, std::size_t size, std::size_t& done) {
  done = 0;
  while (done < size) {
    DWORD got = 0;
    const auto step = static_cast<DWORD>(std::min(size - done, kLargestTransfer));
    if (ReadFile(file, bytes + done, step, &got, nullptr) == 0) return false;
    done += got;
    if (got < step) break;  // the end: files are not read piecemeal
  }
  return true;
}

bool go_to(HANDLE file, std::uint64_t offset) {
  LARGE_INTEGER position;
  position.QuadPart = static_cast<LONGLONG>(offset);
  return SetFilePointerEx(file, position, nullptr, FILE_BEGIN) != 0;
}

bool write_all(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD put = 0;
    const auto step = static_cast<DWORD>(std::min(bytes.size(), kLargestTransfer));
    if (WriteFile(file, bytes.data(), step, &put, nullptr) == 0) return false;
    if (put == 0) {
      SetLastError(ERROR_DISK_FULL);
      return false;
    }
    bytes.remove_prefix(put);
  }
  return true;
}

}  // namespace vorlund
