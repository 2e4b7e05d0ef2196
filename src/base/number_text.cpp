// Spells numbers whatever the locale.
#include "base/number_text.h"

#include <array>
#include <charconv>

namespace vorlund {

std::string number_text(double number) {
  std::array<char, 64> buffer{};
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::general, 15);
  return {buffer.data(), result.ptr};
}

}  // namespace vorlund
