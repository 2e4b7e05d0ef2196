// Line by line reading of number files, with errors that name the line.
#include "aircraft/value_file.h"

#include <cmath>
#include <utility>

#include "base/action_error.h"
#include "base/number_text.h"

namespace vorlund {

namespace {

constexpr std::size_t kBlock = 16 << 10;

}  // namespace

ValueFile::ValueFile(FileSystem& files, std::string path)
    : path_(std::move(path)), file_(files.open_file(path_)), block_(kBlock) {}

/// Makes sure that there is a character to read; false at the end of the file.
bool ValueFile::fill() {
  if (at_ < filled_) return true;
  at_ = 0;
  filled_ = file_->read(block_.data(), block_.size());
  return filled_ > 0;
}

bool ValueFile::at_end() {
  return !fill();
}

template <typename Take>
void ValueFile::read_line(Take take) {
  if (at_end()) {
    throw ActionError("read line " + std::to_string(lines_read_ + 1) + " of", path_,
                      "read past the end: it has " + std::to_string(lines_read_) + " lines");
  }
  ++lines_read_;
  while (fill()) {
    const char character = block_[at_++];
    if (character == '\n') return;
    if (character == '\r') {
      if (fill() && block_[at_] == '\n') ++at_;
      return;
    }
    take(character);
  }
}

std::string ValueFile::title() {
  std::string line;
  read_line([&line](char character) { line += character; });
  return line;
}

double ValueFile::next_value() {
  LeadingNumber number;
  read_line([&number](char character) { number.take(character); });
  return number.value();
}

std::uint8_t ValueFile::to_byte(double value) const {
  const double nearest = std::nearbyint(value);
  if (!(nearest >= 0 && nearest <= 255)) {
    throw ActionError("take the byte value in line " + std::to_string(lines_read_) + " of", path_,
                      "overflow: " + number_text(value) + " is not in 0 to 255");
  }
  return static_cast<std::uint8_t>(nearest);
}

}  // namespace vorlund
