// Character by character work on UTF-8: case, order and parts of a text.
#include "base/text.h"

#include <algorithm>
#include <cstring>

#include "base/leading_number.h"
#include "base/utf8.h"

namespace vorlund {

namespace {

bool continues(std::string_view text, std::size_t at) {
  return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
}

/// Position of the first character that is not spelled by the same bytes in both texts.
std::size_t common_beginning(std::string_view a, std::string_view b) {
  const std::size_t shorter = std::min(a.size(), b.size());
  constexpr std::size_t kStep = 8;  // compared as one number: names in a folder often begin alike
  std::size_t at = 0;
  while (at + kStep <= shorter && std::memcmp(a.data() + at, b.data() + at, kStep) == 0) at += kStep;
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

}  // namespace

std::string to_upper(std::string_view text) {
  std::string upper(text);
  const auto is_long = [](char character) { return static_cast<unsigned char>(character) >= 0x80; };
  const auto end = std::find_if(upper.begin(), upper.end(), is_long);
  const auto upper_byte = [](char character) {
    return static_cast<char>(upper_character(static_cast<unsigned char>(character)));
  };
  std::transform(upper.begin(), end, upper.begin(), upper_byte);
  upper.erase(end, upper.end());
  for (std::size_t at = upper.size(); at < text.size();) {
    append_character(upper, upper_character(next_character(text, at)));
  }
  return upper;
}

bool same_name(std::string_view a, std::string_view b) {
  // An upper-case letter has as many bytes as the letter.
  return a.size() == b.size() && compare_folded(a, b) == 0;
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

std::string quoted(std::string_view text) {
  std::string marked = "\"";
  return marked.append(text).append("\"");
}

std::string grouped(std::uint64_t number) {
  std::string digits = std::to_string(number);
  for (std::size_t at = digits.size(); at > 3;) digits.insert(at -= 3, 1, ',');
  return digits;
}

std::string counted(std::uint64_t count, std::string_view one, std::string_view many) {
  return grouped(count).append(" ").append(count == 1 ? one : many);
}

std::string first_of(const std::vector<std::string>& texts) {
  constexpr std::size_t kNamed = 3;
  std::string named;
  for (std::size_t index = 0; index < std::min(texts.size(), kNamed); ++index) {
    named.append(index > 0 ? "; " : "").append(texts[index]);
  }
  return texts.size() > kNamed ? named + "; ..." : named;
}

std::string_view bare_name(std::string_view path) {
  return path.substr(path.rfind('\\') + 1);
}

std::string_view take_line(std::string_view& text) {
  const auto ends = [](char character) { return character == '\n' || character == '\r'; };
  const auto end = std::find_if(text.begin(), text.end(), ends);
  const std::string_view line = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(line.size());
  text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(text.size(), 1));
  return line;
}

std::string_view take_cell(std::string_view& line) {
  const std::string_view cell = line.substr(0, line.find('\t'));
  line.remove_prefix(std::min(line.size(), cell.size() + 1));
  return cell;
}

std::vector<std::string_view> split_lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) lines.push_back(take_line(text));
  return lines;
}

double leading_number(std::string_view text) {
  LeadingNumber number;
  for (const char character : text) number.take(character);
  return number.value();
}

}  // namespace vorlund
