// Reads the entries of an open folder.
#pragma once

#include <cstddef>

#ifdef __linux__
#include <array>
#else
#include <dirent.h>
#endif

namespace vorlund {

/// Goes once through an open folder, "." and ".." left out.
class PosixFolderReader {
 public:
  struct Entry {
    const char* name;    ///< valid until the next call
    unsigned char type;  ///< DT_REG, DT_DIR, DT_LNK, DT_UNKNOWN ...
  };

  /// The folder must be open for reading; its descriptor stays the caller's.
  explicit PosixFolderReader(int descriptor);
#ifndef __linux__
  ~PosixFolderReader();
#endif
  PosixFolderReader(const PosixFolderReader&) = delete;
  PosixFolderReader& operator=(const PosixFolderReader&) = delete;

  /// The next entry; null at the end, with errno 0, or on failure, with errno.
  const Entry* next();

 private:
  bool take(const char* name, unsigned char type);

  Entry entry_{};
#ifdef __linux__
  // The kernel's own call does with half the calls of the library's stream: it counts where a store holds
  // ten thousand folders of a few files each.
  int descriptor_;
  std::size_t at_ = 0;
  std::size_t filled_ = 0;
  alignas(8) std::array<char, 32 << 10> buffer_;
#else
  DIR* stream_;
#endif
};

}  // namespace vorlund
