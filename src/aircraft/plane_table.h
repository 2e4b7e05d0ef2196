// The plane table: the aircraft set being composed, one row for each aircraft slot of the game.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/controls.h"

namespace vorlund {

/// The grid `G1`, its view and the flight-model group that all its rows draw their flight models from.
/// Row 0 is the header; rows 1 to 30 are the slots. A row is used when any cell but its slot code is filled.
class PlaneTable {
 public:
  static constexpr int kRows = 31;  ///< the header and the thirty slots
  static constexpr int kColumns = 10;

  // Columns.
  static constexpr int kSlot = 0;          ///< four-character code of the aircraft that the row replaces
  static constexpr int kRegion = 1;        ///< group of the skin in the skin store
  static constexpr int kSkinFolder = 2;    ///< folder of the skin inside its group
  static constexpr int kRecordNumber = 3;  ///< "PlnDat": record in the game's files, 0 to 29
  static constexpr int kScriptFolder = 4;  ///< flight model: a folder of the flight-model group
  static constexpr int kPlaneName = 5;     ///< name shown by the game
  static constexpr int kSide = 6;          ///< "German", "British", "Allied" or "American"
  static constexpr int kFlyable = 7;       ///< "Yes" or "No"
  static constexpr int kRole = 8;          ///< "Fighter", "F/B" or "Bomber"
  static constexpr int kFuel = 9;  ///< percent of the flight model's own fuel: "100", "75", "50", "25"

  Grid G1;
  std::array<Label, 2> Label25;          ///< the current flight-model group, shown twice
  std::optional<int> selected_slot_row;  ///< row last clicked in edit mode or given a skin; none at first
  Label Label30{"Show All"};  ///< "Show All" while used rows alone are shown, else "Show Selections"

  /// A table of the header row and the thirty slots, nothing chosen.
  PlaneTable();

  const std::string& flight_model_group() const { return flight_model_group_; }

  /// Sets the flight-model group and shows it in both labels.
  void set_flight_model_group(std::string name);

  /// Empties the table to zero rows, not even the header.
  void clear();

  /// Empties every cell but the header and the slot codes, and both labels of the flight-model group. The
  /// group itself stays: it is still the one that flight models are taken from.
  void clear_all();

  /// Makes the table 31 rows long and writes the plane codes in upper case into the slot column. What the
  /// other cells of those rows hold stays.
  void fill_slots();

  /// True when any cell in columns 1 to 9 of the row is filled.
  bool is_used(int row) const;

  /// Slots (rows 1 to 30) that the view shows, ascending.
  std::vector<int> shown_slots() const;

  /// Integer part, rounded down, of the number in the row's "PlnDat" cell; an empty cell counts as 0. A
  /// number that 16 signed bits cannot hold is an overflow error.
  int record_number(int row) const;

  /// Makes a cell the current one; the header row (0) and rows that are not there mean no selection.
  void select(int row, int column);

  /// Refreshes the view to used rows only. A table without rows gets its header row.
  void g1update();

  /// Shows one row, which is being filled.
  void show_row(int row);

  /// Switches between all rows and used rows.
  void Label30_Click();

  /// Clears the current row but for its slot code, and hides it. It stays the current row, so that what is
  /// chosen next goes into it. Does nothing without a current row.
  void Label3_Click();

  /// Cycles a cell of "Side", "Flyable", "Role" or "Fuel %" to its next value; compared exactly, with case.
  /// Empty cells, other values and other columns stay. A fuel that is no number is a type mismatch error.
  void cycle(int row, int column);

  /// How an error names a cell: its column, row and slot.
  std::string describe_cell(int row, int column) const;

 private:
  bool has_slot(int row) const { return row > 0 && row < G1.row_count(); }
  void cycle_fuel(int row);

  std::string flight_model_group_;
};

}  // namespace vorlund
