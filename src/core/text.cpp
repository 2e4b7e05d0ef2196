// Character by character work on UTF-8: case, order, parts of a text and the number at its start.
#include "core/text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

#include "core/utf8.h"

namespace vorlund {

namespace {

bool is_digit(char character) {
  return character >= '0' && character <= '9';
}

std::size_t skip_digits(std::string_view text, std::size_t at) {
  while (at < text.size() && is_digit(text[at])) ++at;
  return at;
}

bool continues(std::string_view text, std::size_t at) {
  return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
}

/// Position of the first character that is not spelled by the same bytes in both texts.
std::size_t common_beginning(std::string_view a, std::string_view b) {
  const std::size_t shorter = std::min(a.size(), b.size());
  std::size_t at = 0;
  while (at < shorter && a[at] == b[at]) ++at;
  while (at > 0 && (continues(a, at) || continues(b, at))) --at;
  return at;
}

/// Compares folded characters; less than, equal to or greater than 0.
int compare_folded(std::string_view a, std::string_view b) {
  std::size_t in_a = common_beginning(a, b);
  std::size_t in_b = in_a;
  while (in_a < a.size() && in_b < b.size()) {
    const char32_t left = upper_character(next_character(a, in_a));
    const char32_t right = upper_character(next_character(b, in_b));
    if (left != right) return left < right ? -1 : 1;
  }
  if (in_a < a.size()) return 1;
  return in_b < b.size() ? -1 : 0;
}

/// Position after `count` characters from the position `at`.
std::size_t advance(std::string_view text, std::size_t at, std::size_t count) {
  for (; count > 0 && at < text.size(); --count) next_character(text, at);
  return at;
}

/// The value of an exponent; one of more than six digits counts as 999,999.
long exponent_value(std::string_view exponent) {
  const bool negative = exponent.front() == '-';
  if (negative || exponent.front() == '+') exponent.remove_prefix(1);
  exponent.remove_prefix(std::min(exponent.find_first_not_of('0'), exponent.size()));
  long value = 0;
  for (const char digit : exponent.substr(0, 6)) value = value * 10 + (digit - '0');
  if (exponent.size() > 6) value = 999'999;
  return negative ? -value : value;
}

/// The value of a number too great or too small for a double: the largest one or 0.
double value_out_of_range(std::string_view number, std::size_t exponent_mark) {
  const std::string_view digits = number.substr(0, exponent_mark);
  const std::size_t first = digits.find_first_of("123456789");
  if (first == std::string_view::npos) return 0;
  const auto point = static_cast<long>(std::min(digits.find('.'), digits.size()));
  long magnitude = point - static_cast<long>(first);
  if (exponent_mark < number.size()) magnitude += exponent_value(number.substr(exponent_mark + 1));
  if (magnitude < 0) return 0;
  const double largest = std::numeric_limits<double>::max();
  return number.front() == '-' ? -largest : largest;
}

}  // namespace

std::string to_upper(std::string_view text) {
  std::string upper;
  upper.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    append_character(upper, upper_character(next_character(text, at)));
  }
  return upper;
}

bool same_name(std::string_view a, std::string_view b) {
  return compare_folded(a, b) == 0;
}

bool name_less(std::string_view a, std::string_view b) {
  const int order = compare_folded(a, b);
  return order != 0 ? order < 0 : a < b;
}

std::size_t character_count(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); ++count) next_character(text, at);
  return count;
}

std::string characters(std::string_view text, std::size_t first, std::size_t count) {
  const std::size_t begin = advance(text, 0, first);
  const std::size_t end = advance(text, begin, count);
  return std::string(text.substr(begin, end - begin));
}

std::string last_characters(std::string_view text, std::size_t count) {
  const std::size_t total = character_count(text);
  return characters(text, total > count ? total - count : 0, count);
}

std::string trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string_view bare_name(std::string_view path) {
  return path.substr(path.rfind('\\') + 1);
}

std::vector<std::string_view> split_lines(std::string_view text) {
  std::vector<std::string_view> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find_first_of("\r\n", at);
    if (end == std::string_view::npos) {
      lines.push_back(text.substr(at));
      break;
    }
    lines.push_back(text.substr(at, end - at));
    at = end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
  }
  return lines;
}

std::vector<std::string_view> split_cells(std::string_view line) {
  std::vector<std::string_view> cells;
  for (;;) {
    const std::size_t end = line.find('\t');
    cells.push_back(line.substr(0, end));
    if (end == std::string_view::npos) return cells;
    line.remove_prefix(end + 1);
  }
}

double leading_number(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(" \t");
  if (begin == std::string_view::npos) return 0;
  std::string_view number = text.substr(begin);
  if (number.front() == '+') {
    number.remove_prefix(1);
    if (number.empty() || number.front() == '-') return 0;
  }

  std::size_t end = skip_digits(number, number.substr(0, 1) == "-" ? 1 : 0);
  if (end < number.size() && number[end] == '.') end = skip_digits(number, end + 1);
  const std::size_t exponent_mark = end;
  if (end < number.size() && (number[end] == 'e' || number[end] == 'E')) {
    std::size_t exponent = end + 1;
    if (exponent < number.size() && (number[exponent] == '+' || number[exponent] == '-')) ++exponent;
    if (skip_digits(number, exponent) > exponent) end = skip_digits(number, exponent);
  }
  number = number.substr(0, end);

  double value = 0;
  const auto parsed = std::from_chars(number.data(), number.data() + number.size(), value);
  if (parsed.ec == std::errc::result_out_of_range) return value_out_of_range(number, exponent_mark);
  return parsed.ec == std::errc() ? value : 0;
}

}  // namespace vorlund
