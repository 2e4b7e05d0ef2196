// Line by line reading of number files, with errors that name the line.
#include "aircraft/value_file.h"

#include <cmath>
#include <utility>

#include "aircraft/number_text.h"
#include "core/action_error.h"
#include "core/text.h"

namespace vorlund {

ValueFile::ValueFile(FileSystem& files, std::string path)
    : path_(std::move(path)), text_(files.read_file(path_, kLongest + 1)) {
  if (text_.size() > kLongest) throw ActionError("read", path_, "it is longer than 1 MiB");
  lines_ = split_lines(text_);
}

std::string_view ValueFile::next_line() {
  if (at_end()) {
    throw ActionError("read line " + std::to_string(next_ + 1) + " of", path_,
                      "read past the end: it has " + std::to_string(lines_.size()) + " lines");
  }
  return lines_[next_++];
}

double ValueFile::next_value() {
  return leading_number(next_line());
}

std::uint8_t ValueFile::to_byte(double value) const {
  const double nearest = std::nearbyint(value);
  if (!(nearest >= 0 && nearest <= 255)) {
    throw ActionError("take the byte value in line " + std::to_string(next_) + " of", path_,
                      "overflow: " + number_text(value) + " is not in 0 to 255");
  }
  return static_cast<std::uint8_t>(nearest);
}

}  // namespace vorlund
