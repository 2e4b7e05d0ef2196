// How error reports spell a number.
#pragma once

#include <string>

namespace vorlund {

/// The number in decimal, up to 15 significant digits, without trailing zeros.
std::string number_text(double number);

}  // namespace vorlund
