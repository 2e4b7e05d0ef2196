// A state machine over the characters, and the conversion of what it kept.
#include "base/leading_number.h"

#include <charconv>
#include <limits>
#include <system_error>

namespace vorlund {

namespace {

/// A double is decided by its first 768 significant digits and by whether anything follows them.
constexpr std::size_t kDigitsKept = 800;

/// Past every exponent that leaves a number between 0 and infinity, whatever digits stand before it in a
/// file.
constexpr std::int64_t kLargestExponent = std::int64_t{1} << 60;

bool is_digit(char character) {
  return character >= '0' && character <= '9';
}

}  // namespace

void LeadingNumber::take(char character) {
  const bool signs = character == '+' || character == '-';
  switch (stage_) {
    case Stage::kBlanks:
      if (character == ' ' || character == '\t') return;
      stage_ = Stage::kSign;
      negative_ = character == '-';
      if (signs) return;
      [[fallthrough]];
    case Stage::kSign:
      stage_ = Stage::kInteger;
      [[fallthrough]];
    case Stage::kInteger:
      if (is_digit(character)) return take_digit(character);
      if (character == '.') {
        stage_ = Stage::kFraction;
        return;
      }
      [[fallthrough]];
    case Stage::kFraction:
      if (stage_ == Stage::kFraction && is_digit(character)) return take_digit(character);
      stage_ = character == 'e' || character == 'E' ? Stage::kExponentMark : Stage::kEnd;
      return;
    case Stage::kExponentMark:
      stage_ = Stage::kExponentSign;
      negative_exponent_ = character == '-';
      if (signs) return;
      [[fallthrough]];
    case Stage::kExponentSign:
    case Stage::kExponent:
      stage_ = is_digit(character) ? Stage::kExponent : Stage::kEnd;
      if (is_digit(character)) take_exponent_digit(character);
      return;
    case Stage::kEnd:
      return;
  }
}

void LeadingNumber::take_digit(char digit) {
  const bool fraction = stage_ == Stage::kFraction;
  const bool significant = !digits_.empty() || digit != '0';
  if (significant && digits_.size() < kDigitsKept) {
    digits_ += digit;
    if (fraction) --scale_;
  } else {
    // What is cut off counts in so far as it is not 0.
    if (significant && digit != '0') digits_.back() = digits_.back() == '0' ? '1' : digits_.back();
    if (fraction != significant) scale_ += fraction ? -1 : 1;
  }
}

void LeadingNumber::take_exponent_digit(char digit) {
  if (exponent_ < kLargestExponent / 10) exponent_ = exponent_ * 10 + (digit - '0');
}

double LeadingNumber::value() const {
  if (digits_.empty()) return 0;
  const std::int64_t power = scale_ + (negative_exponent_ ? -exponent_ : exponent_);
  const std::string text = (negative_ ? "-" : "") + digits_ + "e" + std::to_string(power);
  double value = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
  if (parsed.ec != std::errc::result_out_of_range) return value;
  if (power + static_cast<std::int64_t>(digits_.size()) <= 0) return 0;
  const double largest = std::numeric_limits<double>::max();
  return negative_ ? -largest : largest;
}

}  // namespace vorlund
