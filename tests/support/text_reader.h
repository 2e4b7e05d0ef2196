// A file reader over bytes in memory.
#pragma once

#include <string>
#include <string_view>

#include "disk/file_system.h"

namespace vorlund::test {

/// Reads a copy of the bytes, as from a file.
class TextReader : public FileReader {
 public:
  explicit TextReader(std::string_view bytes) : bytes_(bytes) {}

  std::uint64_t size() const override { return bytes_.size(); }

  std::size_t read(char* bytes, std::size_t size) override {
    const std::size_t count = bytes_.copy(bytes, size, at_);
    at_ += count;
    return count;
  }

  void seek(std::uint64_t offset) override { at_ = static_cast<std::size_t>(offset); }

 private:
  std::string bytes_;
  std::size_t at_ = 0;
};

}  // namespace vorlund::test
