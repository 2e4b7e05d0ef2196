// Packs the cells of each row into one text: their number, and each behind its length.
#include "base/cell_table.h"

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>

#include "base/code_page.h"
#include "base/text.h"

namespace vorlund {

namespace {

constexpr std::size_t kMuchFormerText = 1 << 20;

/// Seven bits a byte, the lowest first; all bytes but the last have the highest bit set.
void append_number(std::string& text, std::size_t number) {
  for (; number >= 0x80; number >>= 7) text.push_back(static_cast<char>(number | 0x80));
  text.push_back(static_cast<char>(number));
}

std::size_t take_number(std::string_view& text) {
  std::size_t number = 0;
  for (int shift = 0;; shift += 7) {
    const auto byte = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    number |= static_cast<std::size_t>(byte & 0x7F) << shift;
    if (byte < 0x80) return number;
  }
}

/// Empty cells at the end are left out, so that equal rows have equal texts.
template <typename Cells>
void pack(std::string& text, const Cells& cells, std::size_t count) {
  while (count > 0 && cells[count - 1].empty()) --count;
  append_number(text, count);
  for (std::size_t column = 0; column < count; ++column) {
    append_number(text, cells[column].size());
    text.append(cells[column]);
  }
}

bool is_ascii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

std::string_view take_packed(std::string_view& text) {
  const std::size_t length = take_number(text);
  const std::string_view cell = text.substr(0, length);
  text.remove_prefix(length);
  return cell;
}

}  // namespace

CellTable::Rows CellTable::Rows::part(std::size_t first, std::size_t count) const {
  Rows rows;
  rows.text_ = text_;
  const auto begin = starts_.begin() + static_cast<std::ptrdiff_t>(first);
  rows.starts_.assign(begin, begin + static_cast<std::ptrdiff_t>(count));
  return rows;
}

std::string_view CellTable::Rows::packed(std::size_t row) const {
  const std::string_view from = std::string_view(*text_).substr(starts_.at(row));
  std::string_view rest = from;
  for (std::size_t left = take_number(rest); left > 0; --left) take_packed(rest);
  return from.substr(0, from.size() - rest.size());
}

std::uint32_t CellTable::end_of_text() const {
  if (rows_.text_->size() > std::numeric_limits<std::uint32_t>::max()) throw std::bad_alloc();
  return static_cast<std::uint32_t>(rows_.text_->size());
}

void CellTable::clear_rows() {
  rows_ = {};
  former_ = 0;
  hidden_.clear();
}

template <typename Cells>
void CellTable::add_packed(const Cells& cells) {
  const std::uint32_t start = end_of_text();
  pack(*rows_.text_, cells, std::min(cells.size(), static_cast<std::size_t>(columns)));
  hidden_.push_back(false);
  rows_.starts_.push_back(start);
}

void CellTable::add_row(const std::vector<std::string>& cells) {
  add_packed(cells);
}

void CellTable::add_lines(std::string_view bytes) {
  // Without this a long record would need half as much memory again while it grows.
  const auto lines = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1;
  rows_.starts_.reserve(rows_.size() + lines);
  hidden_.reserve(rows_.size() + lines);
  rows_.text_->reserve(rows_.text_->size() + bytes.size() + lines + 1);
  std::vector<std::string_view> cells;
  while (!bytes.empty()) {
    std::string_view line = take_line(bytes);
    const std::string decoded = is_ascii(line) ? std::string() : decode_text(line);
    if (!decoded.empty()) line = decoded;
    cells.clear();
    while (!line.empty() && cells.size() < static_cast<std::size_t>(columns))
      cells.push_back(take_cell(line));
    add_packed(cells);
  }
}

void CellTable::replace_rows(int first, int count, const Rows& rows) {
  if (first < 0 || count < 0 || first + count > row_count()) throw std::out_of_range("no such rows");
  std::vector<std::uint32_t> starts = rows.starts_;
  if (rows.text_ != rows_.text_) {
    for (std::size_t row = 0; row < rows.size(); ++row) {
      starts[row] = end_of_text();
      rows_.text_->append(rows.packed(row));
    }
  }
  const auto exchange = [first, count](auto& all, const auto& wanted) {
    const auto at = all.erase(all.begin() + first, all.begin() + first + count);
    all.insert(at, wanted.begin(), wanted.end());
  };
  exchange(rows_.starts_, starts);
  exchange(hidden_, std::vector<bool>(starts.size(), false));
}

std::string CellTable::cell(int row, int column) const {
  if (row < 0 || row >= row_count() || column < 0) return {};
  std::string_view rest = std::string_view(*rows_.text_).substr(rows_.starts_[static_cast<std::size_t>(row)]);
  if (take_number(rest) <= static_cast<std::size_t>(column)) return {};
  for (int before = 0; before < column; ++before) take_packed(rest);
  return std::string(take_packed(rest));
}

std::vector<std::string> CellTable::cells(int row) const {
  std::string_view packed = rows_.packed(static_cast<std::size_t>(row));
  std::vector<std::string> cells(static_cast<std::size_t>(columns));
  const std::size_t count = take_number(packed);
  for (std::size_t column = 0; column < count; ++column) cells[column] = take_packed(packed);
  return cells;
}

void CellTable::set_cell(int row, int column, std::string_view text) {
  std::vector<std::string> changed = cells(row);
  std::string& cell = changed.at(static_cast<std::size_t>(column));
  if (cell == text) return;
  cell = text;
  set_row(row, changed);
}

void CellTable::set_row(int row, const std::vector<std::string>& cells) {
  std::uint32_t& start = rows_.starts_.at(static_cast<std::size_t>(row));
  const std::uint32_t end = end_of_text();
  former_ += rows_.packed(static_cast<std::size_t>(row)).size();
  pack(*rows_.text_, cells, std::min(cells.size(), static_cast<std::size_t>(columns)));
  start = end;
  if (former_ > kMuchFormerText && former_ > rows_.text_->size() / 2) leave_former_text();
}

/// Whoever has kept rows of the former text keeps that.
void CellTable::leave_former_text() {
  Rows own;
  own.starts_.reserve(rows_.size());
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    own.starts_.push_back(static_cast<std::uint32_t>(own.text_->size()));
    own.text_->append(rows_.packed(row));
  }
  rows_ = std::move(own);
  former_ = 0;
}

}  // namespace vorlund
