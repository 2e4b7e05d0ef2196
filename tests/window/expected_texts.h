// The few operations on texts with which a test works out what the program must write.
#pragma once

#include <string>
#include <vector>

namespace vorlund::test {

/// UTF-8 text in upper case: ASCII and the Latin letters with accents.
std::string upper(std::string text);

/// True without regard to case.
bool ends_in(const std::string& name, const std::string& ending);

/// From the code page to UTF-8, and back; a text that the code page lacks throws.
std::string utf8_of(const std::string& bytes);
std::string bytes_of(const std::string& text);

/// The lines of a text, which end in CR LF.
std::vector<std::string> lines_of(const std::string& text);

/// The whole number at the start of a line; 0 where there is none.
int number_in(const std::string& line);

/// The text without blanks at its ends.
std::string trimmed(const std::string& text);

}  // namespace vorlund::test
