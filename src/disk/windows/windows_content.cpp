// Own copy loop: the overwriting copy of the run-time library is known to fail here.
#include "windows/windows_content.h"

#include "base/action_error.h"
#include "windows/windows_path.h"

namespace vorlund {

namespace {

constexpr std::size_t kBlock = 256 * 1024;

/// Leaves the system's error as it is.
bool is_folder(std::string_view path) {
  const DWORD error = GetLastError();
  const DWORD attributes = GetFileAttributesW(long_path(path, EntryKind::kFile).c_str());
  SetLastError(error);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

WindowsSource::WindowsSource(std::string_view path, const WindowsPatience& patience) : path_(path) {
  const std::wstring spelled = long_path(path, EntryKind::kFile);
  patience.insist([&] {
    handle_ = open_existing(spelled, GENERIC_READ, FILE_FLAG_SEQUENTIAL_SCAN);
    return handle_.is_open();
  });
  LARGE_INTEGER size;
  if (!handle_.is_open() && is_folder(path)) throw ActionError("read", path, kIsFolder);
  if (!handle_.is_open() || GetFileSizeEx(handle_.get(), &size) == 0) throw_windows_error("read", path);
  size_ = static_cast<std::uint64_t>(size.QuadPart);
}

bool WindowsContent::same(const WindowsSource& source, HANDLE target) {
  target_buffer_.resize(kBlock);
  for (;;) {
    const std::string_view expected = next_block(source);
    std::size_t got = 0;
    if (!read_up_to(target, target_buffer_.data(), target_buffer_.size(), got)) return false;
    if (expected != std::string_view(target_buffer_.data(), got)) return false;
    pulse_.worked_through(got);
    if (got < kBlock) return true;
  }
}

void WindowsContent::copy(const WindowsSource& source, HANDLE target, std::string_view target_path) {
  if (!go_to(source.handle(), 0)) throw_windows_error("read", source.path());
  for (;;) {
    const std::string_view bytes = next_block(source);
    if (!write_all(target, bytes)) throw_windows_error("write", target_path);
    pulse_.worked_through(bytes.size());
    if (bytes.size() < kBlock) return;
  }
}

std::string_view WindowsContent::next_block(const WindowsSource& source) {
  source_buffer_.resize(kBlock);
  std::size_t got = 0;
  if (!read_up_to(source.handle(), source_buffer_.data(), source_buffer_.size(), got)) {
    throw_windows_error("read", source.path());
  }
  return {source_buffer_.data(), got};
}

}  // namespace vorlund
