// Text files of the flight-model store that hold one number a line (".oaw", ".lo1", ".lo2").
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/leading_number.h"
#include "disk/file_system.h"

namespace vorlund {

/// Reads such a file line by line, however long it is: what a line holds behind its number is not kept. Lines
/// end as `split_lines` has it. The first line is a title. Every error names the file and the line.
class ValueFile {
 public:
  /// Opens the file; fails when it can't be read.
  ValueFile(FileSystem& files, std::string path);

  bool at_end();

  /// Reads the title line and returns it, in the code page; a file without any line is read past its end,
  /// which is an error.
  std::string title();

  /// As `title`, keeping nothing of it.
  void skip_title() { next_value(); }

  /// The number at the start of the next line, 0 where there is none. Past the last line is an error.
  double next_value();

  /// The byte nearest to the value, halves to the even one. A byte outside 0 to 255 is an overflow error
  /// that names the line last read.
  [[nodiscard]] std::uint8_t to_byte(double value) const;

  [[nodiscard]] const std::string& path() const { return path_; }

  /// Lines read so far.
  [[nodiscard]] std::uint64_t lines_read() const { return lines_read_; }

 private:
  /// Hands the characters of the next line to `take`. Past the last line is an error.
  template <typename Take>
  void read_line(Take take);
  bool fill();

  std::string path_;
  std::unique_ptr<FileReader> file_;
  std::vector<char> block_;
  std::size_t at_ = 0;
  std::size_t filled_ = 0;
  std::uint64_t lines_read_ = 0;
};

}  // namespace vorlund
