// Patches one aircraft record from the lines of a flight-model file.
#include "aircraft/planes_data.h"

#include <cmath>
#include <limits>
#include <string>

#include "aircraft/flight_model_folder.h"
#include "aircraft/plane_codes.h"
#include "aircraft/positioned_file.h"
#include "aircraft/value_file.h"
#include "base/action_error.h"
#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "disk/store.h"

namespace vorlund {

namespace {

constexpr int kValues = 168;
constexpr std::int64_t kRecordSize = 216;
constexpr std::int64_t kHeaderSize = 4;
static_assert(kHeaderSize + kPlaneCount * kRecordSize == 6484, "the game's own Planes.dat");
static_assert(kValues < kRecordSize, "a record must not reach into the next");

// Value lines with a meaning, counted from 1 after the title.
constexpr int kFlagsLine = 5;      // bit 7 German, bits 0-1 role, bit 2 flyable
constexpr int kSideLine = 6;       // bits 0-1 side
constexpr int kFuelLowLine = 37;   // fuel quantity, low byte
constexpr int kFuelHighLine = 38;  // fuel quantity, high byte
constexpr int kSlotLine = 165;     // first of the four characters of the slot code

class RecordWriter {
 public:
  RecordWriter(const PlaneTable& table, int row, int record, int fuel_percent, ValueFile& values,
               PositionedFile& planes)
      : table_(table),
        row_(row),
        base_(kRecordSize * record + kHeaderSize),
        fuel_percent_(fuel_percent),
        slot_(encode_text(table.cell(row, PlaneTable::kSlot))),
        values_(values),
        planes_(planes) {}

  void write() {
    values_.skip_title();
    for (int line = 1; line <= kValues; ++line) {
      planes_.put(base_ + line, values_.to_byte(patched(line, values_.next_value())));
    }
    write_fuel();
  }

 private:
  [[nodiscard]] std::string cell(int column) const { return table_.cell(row_, column); }

  double patched(int line, double value) {
    switch (line) {
      case kFlagsLine:
        return flags(value);
      case kSideLine:
        return side(value);
      case kFuelLowLine:
        return fuel_low_ = value;
      case kFuelHighLine:
        return fuel_high_ = value;
      default:
        return line >= kSlotLine ? slot_character(line - kSlotLine) : value;
    }
  }

  double flags(double value) {
    const bool german = cell(PlaneTable::kSide) == "German";
    // Deliberate: both tests are strict. A flight model whose flags are exactly 127 belongs to neither side
    // and is left as its maker wrote it.
    if (value > 127 && !german) value -= 128;
    if (value < 127 && german) value += 128;
    const std::string role = cell(PlaneTable::kRole);
    if (role == "Fighter") code_ = 1;
    if (role == "Bomber") code_ = 2;
    if (role == "F/B") code_ = 3;
    if (cell(PlaneTable::kFlyable) == "Yes") code_ += 4;
    return code_ + 8 * std::floor(value / 8);
  }

  double side(double value) {
    const std::string name = cell(PlaneTable::kSide);
    // Deliberate: the code of the flags line is not reset first and "Britsh" is misspelt. British rows so
    // carry their role and flyable code into this byte; that is what every set installed so far has given
    // the game, and another value would change how its British aircraft behave.
    if (name == "German") code_ = 0;
    if (name == "Britsh") code_ = 1;
    if (name == "American") code_ = 2;
    if (name == "Allied") code_ = 3;
    return code_ + 4 * std::floor(value / 4);
  }

  [[nodiscard]] double slot_character(int index) const {
    if (static_cast<std::size_t>(index) >= slot_.size()) {
      throw ActionError("take character " + std::to_string(index + 1) + " of the slot code in",
                        table_.describe_cell(row_, PlaneTable::kSlot),
                        "invalid argument: \"" + cell(PlaneTable::kSlot) + "\" is shorter than 4 characters");
    }
    return static_cast<unsigned char>(slot_[static_cast<std::size_t>(index)]);
  }

  void write_fuel() {
    const double quantity = std::floor((fuel_low_ + 256 * fuel_high_) * fuel_percent_ / 100);
    planes_.put(base_ + kFuelLowLine, fuel_byte(std::fmod(quantity, 256), quantity));
    planes_.put(base_ + kFuelHighLine, fuel_byte(std::floor(quantity / 256), quantity));
  }

  [[nodiscard]] std::uint8_t fuel_byte(double value, double quantity) const {
    if (value < 0 || value > 255) {
      throw ActionError("scale the fuel of lines 38 and 39 of", values_.path(),
                        "overflow: " + number_text(quantity) + " does not fit in 16 bits; \"" +
                            cell(PlaneTable::kFuel) + "\" percent come from " +
                            table_.describe_cell(row_, PlaneTable::kFuel));
    }
    return static_cast<std::uint8_t>(value);
  }

  const PlaneTable& table_;
  int row_;
  std::int64_t base_;  // position of the record's byte before the first, counted from 1
  int fuel_percent_;
  std::string slot_;
  ValueFile& values_;
  PositionedFile& planes_;
  int code_ = 0;  // serves the flags line and then the side line
  double fuel_low_ = 0;
  double fuel_high_ = 0;
};

int fuel_percent(const PlaneTable& table, int row) {
  const std::string text = table.cell(row, PlaneTable::kFuel);
  const double percent = std::floor(leading_number(text));
  if (percent < std::numeric_limits<std::int16_t>::min() ||
      percent > std::numeric_limits<std::int16_t>::max()) {
    throw ActionError("take the fuel in", table.describe_cell(row, PlaneTable::kFuel),
                      "overflow: \"" + text + "\" does not fit in 16 bits");
  }
  return static_cast<int>(percent);
}

}  // namespace

bool OawWrite(const GameFolder& game, const PlaneTable& table, int row, PatchedFile& planes) {
  const int record = table.record_number(row);
  const int fuel = fuel_percent(table, row);
  const std::string folder = flight_model_folder(game, table, row);
  const std::vector<std::string> models = list_model_files(game.files, folder, "*.oaw");
  if (models.empty()) return false;
  PositionedFile content(planes.open(), planes.path(), table.describe_cell(row, PlaneTable::kRecordNumber));
  ValueFile values(game.files, folder + "\\" + models.front());
  RecordWriter(table, row, record, fuel, values, content).write();
  return true;
}

}  // namespace vorlund
