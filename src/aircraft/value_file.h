// Text files of the flight-model store that hold one number a line (".oaw", ".lo1", ".lo2").
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/file_system.h"

namespace vorlund {

/// Reads such a file line by line. Its first line is a title. Every error names the file and the line.
class ValueFile {
 public:
  static constexpr std::uint64_t kLongest = 1024 * 1024;  ///< bytes; a longer file is refused

  /// Opens the file; fails when it can't be read or is longer than `kLongest`.
  ValueFile(FileSystem& files, std::string path);

  bool at_end() const { return next_ == lines_.size(); }

  /// Reads the title line; a file without any line is read past its end, which is an error.
  void skip_title() { next_line(); }

  /// The number at the start of the next line, 0 where there is none. Past the last line is an error.
  double next_value();

  /// The byte nearest to the value, halves to the even one. A byte outside 0 to 255 is an overflow error
  /// that names the line last read.
  std::uint8_t to_byte(double value) const;

  const std::string& path() const { return path_; }

 private:
  std::string_view next_line();

  std::string path_;
  std::string text_;
  std::vector<std::string_view> lines_;
  std::size_t next_ = 0;
};

}  // namespace vorlund
