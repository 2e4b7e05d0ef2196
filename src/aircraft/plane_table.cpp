// View, row and cell commands of the plane table.
#include "aircraft/plane_table.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "aircraft/plane_codes.h"
#include "core/action_error.h"
#include "core/text.h"

namespace vorlund {

namespace {

constexpr std::array<std::string_view, PlaneTable::kColumns> kHeader = {
    "Slot", "Region", "SkinFolder", "PlnDat", "ScriptFolder", "PName$", "Side", "Flyable", "Role", "Fuel %"};

constexpr std::string_view kShowAll = "Show All";
constexpr std::string_view kShowSelections = "Show Selections";

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
  G1.column_widths = {800, 1500, 3000, 800, 1200};
  Label30.caption = kShowSelections;
  clear();
  fill_slots();
}

void PlaneTable::set_flight_model_group(std::string name) {
  flight_model_group_ = std::move(name);
  for (Label& label : Label25) label.caption = flight_model_group_;
}

void PlaneTable::clear() {
  G1.columns = kColumns;
  G1.rows.clear();
  G1.row = 0;
  G1.column = 0;
}

void PlaneTable::clear_all() {
  for (int row = 1; row < G1.row_count(); ++row) {
    for (int column = 1; column < kColumns; ++column) G1.set_cell(row, column, "");
  }
  for (Label& label : Label25) label.caption.clear();
}

void PlaneTable::fill_slots() {
  if (G1.rows.empty()) G1.add_row({kHeader.begin(), kHeader.end()});
  if (G1.row_count() > kRows) G1.rows.resize(kRows);
  while (G1.row_count() < kRows) {
    G1.add_row({});
    G1.rows.back().hidden = Label30.caption == kShowAll;
  }
  const PlaneCodes codes = PlaneCodeSet();
  for (int index = 0; index < kPlaneCount; ++index) {
    G1.set_cell(index + 1, kSlot, to_upper(codes[static_cast<std::size_t>(index)]));
  }
  if (!has_slot(G1.row)) select(0, 0);
}

bool PlaneTable::is_used(int row) const {
  for (int column = 1; column < kColumns; ++column) {
    if (!G1.cell(row, column).empty()) return true;
  }
  return false;
}

std::vector<int> PlaneTable::shown_slots() const {
  std::vector<int> slots;
  for (int row = 1; row < std::min(kRows, G1.row_count()); ++row) {
    if (!G1.rows[static_cast<std::size_t>(row)].hidden) slots.push_back(row);
  }
  return slots;
}

int PlaneTable::record_number(int row) const {
  const std::string& text = G1.cell(row, kRecordNumber);
  const double number = std::floor(leading_number(text));
  if (number < std::numeric_limits<std::int16_t>::min() ||
      number > std::numeric_limits<std::int16_t>::max()) {
    throw ActionError("take the record number in", describe_cell(row, kRecordNumber),
                      "overflow: \"" + text + "\" does not fit in 16 bits");
  }
  return static_cast<int>(number);
}

void PlaneTable::select(int row, int column) {
  G1.row = has_slot(row) ? row : 0;
  G1.column = std::clamp(column, 0, kColumns - 1);
}

void PlaneTable::g1update() {
  if (G1.rows.empty()) G1.add_row({kHeader.begin(), kHeader.end()});
  for (int row = 1; row < std::min(kRows, G1.row_count()); ++row) {
    G1.rows[static_cast<std::size_t>(row)].hidden = !is_used(row);
  }
  Label30.caption = kShowAll;
}

void PlaneTable::show_row(int row) {
  if (row < G1.row_count()) G1.rows[static_cast<std::size_t>(row)].hidden = false;
}

void PlaneTable::Label30_Click() {
  if (Label30.caption != kShowAll) {
    g1update();
    return;
  }
  for (int row = 1; row < std::min(kRows, G1.row_count()); ++row) {
    G1.rows[static_cast<std::size_t>(row)].hidden = false;
  }
  Label30.caption = kShowSelections;
}

void PlaneTable::Label3_Click() {
  const int cleared = G1.row;
  if (!has_slot(cleared)) return;
  for (int column = 1; column < kColumns; ++column) G1.set_cell(cleared, column, "");
  g1update();
}

void PlaneTable::cycle(int row, int column) {
  if (!has_slot(row)) return;
  const std::string value = G1.cell(row, column);
  switch (column) {
    case kSide:
      G1.set_cell(row, column, successor(kSides, value));
      break;
    case kFlyable:
      G1.set_cell(row, column, successor(kFlyables, value));
      break;
    case kRole:
      G1.set_cell(row, column, successor(kRoles, value));
      break;
    case kFuel:
      cycle_fuel(row);
      break;
    default:
      break;
  }
}

void PlaneTable::cycle_fuel(int row) {
  const std::string value = G1.cell(row, kFuel);
  if (value.empty()) return;
  if (!is_number(value)) {
    throw ActionError("change the fuel in", describe_cell(row, kFuel),
                      "type mismatch: \"" + value + "\" is not a number");
  }
  const double percent = leading_number(value);
  if (percent == 100) G1.set_cell(row, kFuel, "75");
  if (percent == 75) G1.set_cell(row, kFuel, "50");
  if (percent == 50) G1.set_cell(row, kFuel, "25");
  if (percent == 25) G1.set_cell(row, kFuel, "100");
}

std::string PlaneTable::describe_cell(int row, int column) const {
  return "column " + std::string(kHeader.at(static_cast<std::size_t>(column))) + " of row " +
         std::to_string(row) + ", slot " + G1.cell(row, kSlot);
}

}  // namespace vorlund
