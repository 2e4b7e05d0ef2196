// The plane table: the aircraft set being composed, one row for each aircraft slot of the game.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/cell_table.h"

namespace vorlund {

/// The plane table `G1`, its view and the flight-model group that all its rows draw their flight models from.
/// Row 0 is the header; rows 1 to 30 are the slots. A row is used when any cell but its slot code is filled.
class PlaneTable : public CellTable {
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

  /// Folder under "FlightModels" that the whole set draws its flight models from; "" while none is set.
  std::string flight_model_group;

  /// Row last clicked in edit mode or given a skin; none at first.
  std::optional<int> selected_slot_row;

  /// True while the view shows all thirty slots, false while used rows alone.
  bool shows_all = true;

  /// A table of the header row and the thirty slots, nothing chosen.
  PlaneTable();

  /// Empties the table to zero rows, not even the header.
  void clear();

  /// Empties every cell but the header and the slot codes, and refreshes the view. The flight-model group
  /// stays: it is still the one that flight models are taken from.
  void clear_slots();

  /// Makes the table 31 rows long and writes the plane codes in upper case into the slot column. What the
  /// other cells of those rows hold stays.
  void fill_slots();

  /// True when any cell in columns 1 to 9 of the row is filled.
  [[nodiscard]] bool is_used(int row) const;

  /// Slots (rows 1 to 30) that the view shows, ascending.
  [[nodiscard]] std::vector<int> shown_slots() const;

  /// Integer part, rounded down, of the number in the row's "PlnDat" cell; an empty cell counts as 0. A
  /// number that 16 signed bits cannot hold is an overflow error.
  [[nodiscard]] int record_number(int row) const;

  /// Makes a cell the current one; the header row (0) and rows that are not there mean no selection.
  void select(int row, int column);

  /// Refreshes the view to used rows only. A table without rows gets its header row.
  void g1update();

  /// Shows one row, which is being filled.
  void show_row(int row);

  /// Switches between all rows and used rows.
  void switch_view();

  /// Clears the current row but for its slot code, and hides it. It stays the current row, so that what is
  /// chosen next goes into it. Does nothing without a current row.
  void clear_current();

  /// Cycles a cell of "Side", "Flyable", "Role" or "Fuel %" to its next value; compared exactly, with case.
  /// Empty cells, other values and other columns stay. A fuel that is no number is a type mismatch error.
  void cycle(int row, int column);

  /// How an error names a cell: its column, row and slot.
  [[nodiscard]] std::string describe_cell(int row, int column) const;

 private:
  [[nodiscard]] bool has_slot(int row) const { return row > 0 && row < row_count(); }
  void cycle_fuel(int row);
};

}  // namespace vorlund
