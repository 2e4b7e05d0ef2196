// Compares and copies what is in files, in blocks, on Windows.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "windows/windows_file.h"

namespace vorlund {

/// A file opened to be read; its functions throw ActionError.
class WindowsSource {
 public:
  explicit WindowsSource(std::string_view path);

  HANDLE handle() const { return handle_.get(); }
  std::uint64_t size() const { return size_; }
  const std::string& path() const { return path_; }

 private:
  std::string path_;
  WindowsHandle handle_;
  std::uint64_t size_ = 0;
};

/// Copies files one after the other through buffers that are used again. Functions throw ActionError.
class WindowsContent {
 public:
  /// Called at least every 1 MiB while files are compared or copied.
  void set_pulse(std::function<void()> pulse) { pulse_ = std::move(pulse); }

  /// True when the target, which is as long as the source, holds the same bytes. Those alone
  /// count: there are disks that give two files one number.
  bool same(const WindowsSource& source, HANDLE target);

  /// Writes the source into an empty file. `target_path` is for error reports.
  void copy(const WindowsSource& source, HANDLE target, std::string_view target_path);

 private:
  std::string_view next_block(const WindowsSource& source);
  void worked_through(std::uint64_t bytes);

  std::function<void()> pulse_;
  std::uint64_t since_pulse_ = 0;
  std::vector<char> source_buffer_;
  std::vector<char> target_buffer_;
};

}  // namespace vorlund
