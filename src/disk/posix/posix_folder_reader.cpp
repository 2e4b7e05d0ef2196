// Reads folders by the kernel's own call on Linux and by the library's elsewhere.
#include "posix/posix_folder_reader.h"

#include <dirent.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

namespace vorlund {

bool PosixFolderReader::take(const char* name, unsigned char type) {
  entry_ = {name, type};
  const std::string_view taken = name;
  return taken != "." && taken != "..";
}

#ifdef __linux__

PosixFolderReader::PosixFolderReader(int descriptor) : descriptor_(descriptor) {}

const PosixFolderReader::Entry* PosixFolderReader::next() {
  for (;;) {
    while (at_ < filled_) {
      const auto* record = reinterpret_cast<const dirent64*>(buffer_.data() + at_);
      at_ += record->d_reclen;
      if (take(record->d_name, record->d_type)) return &entry_;
    }
    errno = 0;
    const ssize_t got = ::getdents64(descriptor_, buffer_.data(), buffer_.size());
    if (got <= 0) return nullptr;
    at_ = 0;
    filled_ = static_cast<std::size_t>(got);
  }
}

#else

PosixFolderReader::PosixFolderReader(int descriptor) : stream_(::fdopendir(::dup(descriptor))) {}

PosixFolderReader::~PosixFolderReader() {
  if (stream_ != nullptr) ::closedir(stream_);
}

const PosixFolderReader::Entry* PosixFolderReader::next() {
  if (stream_ == nullptr) return nullptr;
  errno = 0;
  while (const dirent* entry = ::readdir(stream_)) {
    if (take(entry->d_name, entry->d_type)) return &entry_;
  }
  return nullptr;
}

#endif

}  // namespace vorlund
