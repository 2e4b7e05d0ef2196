// Open files of Windows: their handles, whole reads and writes, and the system's error texts.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vorlund {

/// A file handle that is closed with its owner.
class WindowsHandle {
 public:
  WindowsHandle() = default;
  explicit WindowsHandle(HANDLE handle) : handle_(handle) {}
  ~WindowsHandle() { close(); }
  WindowsHandle(WindowsHandle&& other) noexcept : handle_(other.release()) {}
  WindowsHandle& operator=(WindowsHandle&& other) noexcept;

  HANDLE get() const { return handle_; }
  bool is_open() const { return handle_ != INVALID_HANDLE_VALUE; }

  /// Closes the file; false, with the system's error, on failure.
  bool close();

 private:
  HANDLE release();

  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

/// Throws ActionError with the system's own text for an error (by default the last one).
[[noreturn]] void throw_windows_error(std::string_view attempted, std::string_view path);
[[noreturn]] void throw_windows_error(std::string_view attempted, std::string_view path, DWORD error);

/// True for an error that says nothing of the path it came from: the disk fails, or handles or memory run
/// out. A drive without a medium holds nothing, which is an answer.
bool tells_nothing(DWORD error);

/// True for an error that says that another program has the file in use.
bool says_in_use(DWORD error);

/// Opens an existing file so that others may go on using it. Not open, with the system's error, on failure.
WindowsHandle open_existing(const std::wstring& path, DWORD access, DWORD flags);

/// Reads up to `size` bytes, fewer only at the end of the file; false, with the system's error, on failure.
bool read_up_to(HANDLE file, char* bytes, std::size_t size, std::size_t& done);

/// The next read begins at that byte; false, with the system's error, on failure.
bool go_to(HANDLE file, std::uint64_t offset);

/// Writes all the bytes; false, with the system's error, on failure.
bool write_all(HANDLE file, std::string_view bytes);

}  // namespace vorlund
