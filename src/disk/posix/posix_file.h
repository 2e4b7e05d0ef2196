// Open files of a POSIX system: their handles, whole reads and writes, and the system's error texts.
#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace vorlund {

/// A file descriptor that is closed with its owner, errno left alone; -1 when nothing is open.
class FileHandle {
 public:
  FileHandle() = default;
  explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
  ~FileHandle();
  FileHandle(FileHandle&& other) noexcept : descriptor_(other.release()) {}
  FileHandle& operator=(FileHandle&& other) noexcept;

  [[nodiscard]] int descriptor() const { return descriptor_; }
  [[nodiscard]] bool is_open() const { return descriptor_ >= 0; }

  /// Closes the file; false, with errno, where the system only now reports that a write failed.
  bool close();

  /// Gives the descriptor away unclosed.
  int release();

 private:
  int descriptor_ = -1;
};

/// Throws ActionError with the text of the error number (by default errno).
[[noreturn]] void throw_system_error(std::string_view attempted, std::string_view path);
[[noreturn]] void throw_system_error(std::string_view attempted, std::string_view path, int error);

/// Opens a name inside an open folder (AT_FDCWD for the current folder), taken up again when a signal breaks
/// in. Not open, with errno, on failure.
FileHandle open_at(int folder, const char* name, int flags, mode_t mode = 0);

/// Opens a name inside an open folder for reading, `flags` besides. Neither waits for a pipe that stands
/// there nor, where the system allows it, marks the file as read, which would write to the disk.
FileHandle open_to_read(int folder, const char* name, int flags = 0);

/// Opens a folder inside an open folder to work relative to it, for which the right to list it is not needed.
FileHandle open_folder_at(int folder, const char* name);

/// Asks what a name inside an open folder is, taken up again when a signal breaks in; false, with errno, on
/// failure.
bool look_at(int folder, const char* name, struct stat& status, int flags = 0);

/// What the error number of a failed look says of the path: that nothing is there, or could be under such a
/// name.
bool says_missing(int error);

/// The same: that there is no right to look. Where neither is said the look itself has failed, as on a bad
/// disk or for want of descriptors or memory, and nothing is known of the path.
bool says_no_right(int error);

/// Reads up to `size` bytes, fewer only at the end of the file; -1, with errno, on failure.
ssize_t read_up_to(int descriptor, char* bytes, std::size_t size);

/// Writes all the bytes; false, with errno, on failure.
bool write_all(int descriptor, std::string_view bytes);

}  // namespace vorlund
