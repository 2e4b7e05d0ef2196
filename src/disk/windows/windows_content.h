// Compares and copies what is in files, in blocks, on Windows.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "pulse.h"
#include "windows/windows_file.h"
#include "windows/windows_patience.h"

namespace vorlund {

/// A file opened to be read; its functions throw ActionError.
class WindowsSource {
 public:
  WindowsSource(std::string_view path, const WindowsPatience& patience);

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
  /// There is a pulse at least every 1 MiB while files are compared or copied. `patience` outlives this.
  explicit WindowsContent(const WindowsPatience& patience) {
    pulse_.set([&patience] { patience.pulse(); });
  }

  /// True when the target, which is as long as the source, holds the same bytes. Those alone
  /// count: there are disks that give two files one number.
  bool same(const WindowsSource& source, HANDLE target);

  /// Writes the source into an empty file. `target_path` is for error reports.
  void copy(const WindowsSource& source, HANDLE target, std::string_view target_path);

 private:
  std::string_view next_block(const WindowsSource& source);

  Pulse pulse_;
  std::vector<char> source_buffer_;
  std::vector<char> target_buffer_;
};

}  // namespace vorlund
