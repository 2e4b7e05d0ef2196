// The number at the start of a text of any length, read character by character.
#pragma once

#include <cstdint>
#include <string>

namespace vorlund {

/// Takes the characters of a text one after the other and keeps no more of them than the number needs: the
/// text may be longer than memory. The number is the one that `leading_number` describes.
class LeadingNumber {
 public:
  void take(char character);

  /// The number so far; 0 where the text does not begin with one.
  [[nodiscard]] double value() const;

 private:
  enum class Stage { kBlanks, kSign, kInteger, kFraction, kExponentMark, kExponentSign, kExponent, kEnd };

  void take_digit(char digit);
  void take_exponent_digit(char digit);

  Stage stage_ = Stage::kBlanks;
  bool negative_ = false;
  std::string digits_;      ///< significant digits, as many as can matter
  std::int64_t scale_ = 0;  ///< power of ten that the last of them stands for
  bool negative_exponent_ = false;
  std::int64_t exponent_ = 0;
};

}  // namespace vorlund
