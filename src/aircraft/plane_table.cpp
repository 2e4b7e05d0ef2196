// View, row and cell commands of the plane table.
#include "aircraft/plane_table.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "aircraft/plane_codes.h"
#include "base/action_error.h"
#include "base/text.h"

namespace vorlund {

namespace {

constexpr std::array<std::string_view, PlaneTable::kColumns> kHeader = {
    "Slot", "Region", "SkinFolder", "PlnDat", "ScriptFolder", "PName$", "Side", "Flyable", "Role", "Fuel %"};

using Succession = std::pair<std::string_view, std::string_view>;
constexpr std::array<Succession, 4> kSides = {
    {{"German", "British"}, {"British", "Allied"}, {"Allied", "American"}, {"American", "German"}}};
constexpr std::array<Succession, 3> kRoles = {{{"Fighter", "F/B"}, {"F/B", "Bomber"}, {"Bomber", "Fighter"}}};
constexpr std::array<Succession, 2> kFlyables = {{{"Yes", "No"}, {"No", "Yes"}}};

template <std::size_t count>
std::string successor(const std::array<Succession, count>& values, const std::string& value) {
  for (const auto& [from, to] : values) {
    if (value == from) return std::string(to);
  }
  return value;
}

bool is_digit(char character) {
  return character >= '0' && character <= '9';
}

/// True when the whole text, blanks around it aside, is one decimal number.
bool is_number(std::string_view text) {
  const std::string kept = trimmed(text);
  std::size_t at = 0;
  const auto skip_sign = [&] { at += at < kept.size() && (kept[at] == '+' || kept[at] == '-') ? 1 : 0; };
  const auto skip_digits = [&] {
    const std::size_t start = at;
    while (at < kept.size() && is_digit(kept[at])) ++at;
    return at - start;
  };
  skip_sign();
  std::size_t digits = skip_digits();
  if (at < kept.size() && kept[at] == '.') {
    ++at;
    digits += skip_digits();
  }
  if (digits == 0) return false;
  if (at < kept.size() && (kept[at] == 'e' || kept[at] == 'E')) {
    ++at;
    skip_sign();
    if (skip_digits() == 0) return false;
  }
  return at == kept.size();
}

}  // namespace

PlaneTable::PlaneTable() {
  clear();
  fill_slots();
}

void PlaneTable::clear() {
  columns = kColumns;
  clear_rows();
  current_row = 0;
  current_column = 0;
}

void PlaneTable::clear_slots() {
  for (int row = 1; row < row_count(); ++row) {
    set_row(row, {cell(row, kSlot)});
  }
  g1update();
}

void PlaneTable::fill_slots() {
  if (row_count() == 0) add_row({kHeader.begin(), kHeader.end()});
  if (row_count() > kRows) replace_rows(kRows, row_count() - kRows, {});
  while (row_count() < kRows) {
    add_row({});
    hide_row(row_count() - 1, !shows_all);
  }
  const PlaneCodes codes = PlaneCodeSet();
  for (int index = 0; index < kPlaneCount; ++index) {
    set_cell(index + 1, kSlot, to_upper(codes[static_cast<std::size_t>(index)]));
  }
  if (!has_slot(current_row)) select(0, 0);
}

bool PlaneTable::is_used(int row) const {
  for (int column = 1; column < kColumns; ++column) {
    if (!cell(row, column).empty()) return true;
  }
  return false;
}

std::vector<int> PlaneTable::shown_slots() const {
  std::vector<int> slots;
  for (int row = 1; row < std::min(kRows, row_count()); ++row) {
    if (!is_hidden(row)) slots.push_back(row);
  }
  return slots;
}

int PlaneTable::record_number(int row) const {
  const std::string text = cell(row, kRecordNumber);
  const double number = std::floor(leading_number(text));
  if (number < std::numeric_limits<std::int16_t>::min() ||
      number > std::numeric_limits<std::int16_t>::max()) {
    throw ActionError("take the record number in", describe_cell(row, kRecordNumber),
                      "overflow: \"" + text + "\" does not fit in 16 bits");
  }
  return static_cast<int>(number);
}

void PlaneTable::select(int row, int column) {
  current_row = has_slot(row) ? row : 0;
  current_column = std::clamp(column, 0, kColumns - 1);
}

void PlaneTable::g1update() {
  if (row_count() == 0) add_row({kHeader.begin(), kHeader.end()});
  for (int row = 1; row < std::min(kRows, row_count()); ++row) {
    hide_row(row, !is_used(row));
  }
  shows_all = false;
}

void PlaneTable::show_row(int row) {
  if (row < row_count()) hide_row(row, false);
}

void PlaneTable::switch_view() {
  if (shows_all) {
    g1update();
    return;
  }
  for (int row = 1; row < std::min(kRows, row_count()); ++row) {
    hide_row(row, false);
  }
  shows_all = true;
}

void PlaneTable::clear_current() {
  if (!has_slot(current_row)) return;
  set_row(current_row, {cell(current_row, kSlot)});
  g1update();
}

void PlaneTable::cycle(int row, int column) {
  if (!has_slot(row)) return;
  const std::string value = cell(row, column);
  switch (column) {
    case kSide:
      set_cell(row, column, successor(kSides, value));
      break;
    case kFlyable:
      set_cell(row, column, successor(kFlyables, value));
      break;
    case kRole:
      set_cell(row, column, successor(kRoles, value));
      break;
    case kFuel:
      cycle_fuel(row);
      break;
    default:
      break;
  }
}

void PlaneTable::cycle_fuel(int row) {
  const std::string value = cell(row, kFuel);
  if (value.empty()) return;
  if (!is_number(value)) {
    throw ActionError("change the fuel in", describe_cell(row, kFuel),
                      "type mismatch: \"" + value + "\" is not a number");
  }
  const double percent = leading_number(value);
  if (percent == 100) set_cell(row, kFuel, "75");
  if (percent == 75) set_cell(row, kFuel, "50");
  if (percent == 50) set_cell(row, kFuel, "25");
  if (percent == 25) set_cell(row, kFuel, "100");
}

std::string PlaneTable::describe_cell(int row, int column) const {
  return "column " + std::string(kHeader.at(static_cast<std::size_t>(column))) + " of row " +
         std::to_string(row) + ", slot " + cell(row, kSlot);
}

}  // namespace vorlund
