// The plane table: its rows, view, commands and cycling cells.
#include "aircraft/plane_table.h"

#include <gtest/gtest.h>

#include "aircraft/plane_codes.h"
#include "base/action_error.h"
#include "base/text.h"

namespace vorlund {
namespace {

TEST(PlaneCodes, StandInTheGamesOrderOfRecords) {
  const PlaneCodes expected = {"p38h", "p38j", "p47c", "p47d", "p51b", "p51d", "bb17", "b24a",
                               "b26a", "hurr", "sp2a", "sp09", "sp14", "typh", "temp", "mosq",
                               "109e", "109g", "109k", "110c", "110g", "m410", "190a", "190d",
                               "262a", "j88a", "j88c", "ju87", "h111", "v1v1"};
  EXPECT_EQ(PlaneCodeSet(), expected);
  EXPECT_EQ(plane_code_index("SP09"), 11);
  EXPECT_EQ(plane_code_index("sp09"), 11);
  EXPECT_EQ(plane_code_index("sp0"), -1);
  EXPECT_EQ(plane_code_index(""), -1);
}

TEST(PlaneTable, StartsWithItsHeaderAndThirtyEmptySlots) {
  const PlaneTable table;
  ASSERT_EQ(table.row_count(), 31);
  const std::vector<std::string> header = {"Slot",   "Region", "SkinFolder", "PlnDat", "ScriptFolder",
                                           "PName$", "Side",   "Flyable",    "Role",   "Fuel %"};
  EXPECT_EQ(table.cells(0), header);
  EXPECT_EQ(table.cell(1, 0), "P38H");
  EXPECT_EQ(table.cell(30, 0), "V1V1");
  for (int row = 1; row <= 30; ++row) EXPECT_FALSE(table.is_used(row)) << row;
  EXPECT_EQ(table.shown_slots().size(), 30u);
  EXPECT_EQ(table.current_row, 0);
}

TEST(PlaneTable, UpdateShowsExactlyTheRowsWithAnyFilledCellBesidesTheSlot) {
  for (int column = 1; column < PlaneTable::kColumns; ++column) {
    PlaneTable table;
    table.set_cell(7, column, "x");
    table.g1update();
    EXPECT_EQ(table.shown_slots(), std::vector<int>{7}) << "column " << column;
    EXPECT_FALSE(table.shows_all);
    EXPECT_FALSE(table.is_hidden(0));
  }
}

TEST(PlaneTable, UpdateOfATableWithoutRowsMakesTheHeader) {
  PlaneTable table;
  table.clear();
  table.g1update();
  ASSERT_EQ(table.row_count(), 1);
  EXPECT_EQ(table.cell(0, PlaneTable::kFuel), "Fuel %");
}

TEST(PlaneTable, ShowAllAndShowSelectionsTakeTurns) {
  PlaneTable table;
  table.set_cell(3, PlaneTable::kSide, "German");
  table.g1update();
  table.switch_view();
  EXPECT_EQ(table.shown_slots().size(), 30u);
  EXPECT_TRUE(table.shows_all);
  table.switch_view();
  EXPECT_EQ(table.shown_slots(), std::vector<int>{3});
  EXPECT_FALSE(table.shows_all);
}

TEST(PlaneTable, ClearingTheSelectedRowKeepsItsSlotAndHidesIt) {
  PlaneTable table;
  for (int column = 1; column < PlaneTable::kColumns; ++column) {
    table.set_cell(4, column, "x");
    table.set_cell(9, column, "y");
  }
  table.select(4, 2);
  table.clear_current();
  EXPECT_EQ(table.cell(4, PlaneTable::kSlot), "P47D");
  EXPECT_FALSE(table.is_used(4));
  EXPECT_TRUE(table.is_hidden(4));
  EXPECT_TRUE(table.is_used(9));
  EXPECT_EQ(table.current_row, 4) << "what is chosen next goes into the cleared slot";
  table.clear_current();
  EXPECT_TRUE(table.is_used(9)) << "a second click clears nothing else";
  table.select(0, 0);
  const std::vector<std::string> header = table.cells(0);
  table.clear_current();
  EXPECT_EQ(table.cells(0), header) << "the header is never cleared";
}

TEST(PlaneTable, CellsCycleThroughTheirValues) {
  struct Case {
    int column;
    const char* from;
    const char* to;
  };
  const Case cases[] = {
      {PlaneTable::kFuel, "100", "75"},
      {PlaneTable::kFuel, "75", "50"},
      {PlaneTable::kFuel, "50", "25"},
      {PlaneTable::kFuel, "25", "100"},
      {PlaneTable::kFuel, " 1e2 ", "75"},
      {PlaneTable::kFuel, "25.0", "100"},
      {PlaneTable::kFuel, "+100", "75"},
      {PlaneTable::kFuel, "1E+2", "75"},
      {PlaneTable::kFuel, "1000e-1", "75"},
      {PlaneTable::kFuel, "80", "80"},
      {PlaneTable::kFuel, "-50", "-50"},
      {PlaneTable::kFuel, "", ""},
      {PlaneTable::kSide, "German", "British"},
      {PlaneTable::kSide, "British", "Allied"},
      {PlaneTable::kSide, "Allied", "American"},
      {PlaneTable::kSide, "American", "German"},
      {PlaneTable::kSide, "german", "german"},
      {PlaneTable::kSide, "Britsh", "Britsh"},
      {PlaneTable::kSide, "", ""},
      {PlaneTable::kRole, "Fighter", "F/B"},
      {PlaneTable::kRole, "F/B", "Bomber"},
      {PlaneTable::kRole, "Bomber", "Fighter"},
      {PlaneTable::kRole, "bomber", "bomber"},
      {PlaneTable::kRole, "", ""},
      {PlaneTable::kFlyable, "Yes", "No"},
      {PlaneTable::kFlyable, "No", "Yes"},
      {PlaneTable::kFlyable, "yes", "yes"},
      {PlaneTable::kFlyable, "", ""},
      {PlaneTable::kSlot, "P38H", "P38H"},
      {PlaneTable::kRecordNumber, "100", "100"},
      {PlaneTable::kScriptFolder, "Yes", "Yes"},
      {PlaneTable::kPlaneName, "German", "German"},
  };
  for (const Case& test : cases) {
    PlaneTable table;
    table.set_cell(1, test.column, test.from);
    table.cycle(1, test.column);
    EXPECT_EQ(table.cell(1, test.column), test.to) << "column " << test.column << " from " << test.from;
  }
}

TEST(PlaneTable, FuelThatIsNoNumberIsATypeMismatchAndStays) {
  for (const char* text : {"full", "50%", "5 0", ".", "-", "1e", "1e+", "e5", "100 percent"}) {
    PlaneTable table;
    table.set_cell(5, PlaneTable::kFuel, text);
    try {
      table.cycle(5, PlaneTable::kFuel);
      FAIL() << text;
    } catch (const ActionError& error) {
      EXPECT_EQ(error.what(),
                "Could not change the fuel in \"column Fuel % of row 5, slot P51B\": type mismatch: \"" +
                    std::string(text) + "\" is not a number");
    }
    EXPECT_EQ(table.cell(5, PlaneTable::kFuel), text);
  }
}

TEST(PlaneTable, NeverCyclesTheHeaderOrRowsThatAreNotThere) {
  PlaneTable table;
  table.set_cell(0, PlaneTable::kFlyable, "Yes");
  for (const int row : {-1, 0, 31, 1000}) table.cycle(row, PlaneTable::kFlyable);
  EXPECT_EQ(table.cell(0, PlaneTable::kFlyable), "Yes");
}

TEST(PlaneTable, RecordNumberIsTheIntegerPartRoundedDown) {
  struct Case {
    const char* text;
    int number;
  };
  const Case cases[] = {{"", 0},    {"x", 0},     {"29", 29},       {"7.9", 7},        {"12 planes", 12},
                        {"-1", -1}, {"-0.5", -1}, {"32767", 32767}, {"-32768", -32768}};
  for (const Case& test : cases) {
    PlaneTable table;
    table.set_cell(1, PlaneTable::kRecordNumber, test.text);
    EXPECT_EQ(table.record_number(1), test.number) << test.text;
  }
}

TEST(PlaneTable, RecordNumberPastSixteenBitsIsAnOverflowThatNamesCellAndValue) {
  for (const char* text : {"32768", "-32769", "1e300", "-1e300", "1e999"}) {
    PlaneTable table;
    table.set_cell(2, PlaneTable::kRecordNumber, text);
    try {
      static_cast<void>(table.record_number(2));
      FAIL() << text;
    } catch (const ActionError& error) {
      EXPECT_EQ(error.path(), "column PlnDat of row 2, slot P38J");
      EXPECT_EQ(error.reason(), "overflow: \"" + std::string(text) + "\" does not fit in 16 bits");
    }
  }
}

TEST(PlaneTable, FillingSlotsCompletesAShortTableAndKeepsItsCells) {
  PlaneTable table;
  table.clear();
  table.add_row({"Slot", "Region"});
  table.add_row({"old", "RAF"});
  table.g1update();
  table.fill_slots();
  ASSERT_EQ(table.row_count(), 31);
  EXPECT_EQ(table.cell(0, 1), "Region");
  EXPECT_EQ(table.cell(1, 0), "P38H");
  EXPECT_EQ(table.cell(1, 1), "RAF");
  EXPECT_EQ(table.cell(30, 0), "V1V1");
  EXPECT_EQ(table.shown_slots(), std::vector<int>{1});
}

TEST(PlaneTable, FillingSlotsCutsATableThatIsTooLong) {
  PlaneTable table;
  for (int row = 31; row < 40; ++row) table.add_row({"extra"});
  table.current_row = 35;
  table.fill_slots();
  EXPECT_EQ(table.row_count(), 31);
  EXPECT_EQ(table.current_row, 0);
}

TEST(PlaneTable, ClearingAllKeepsSlotsAndGroup) {
  PlaneTable table;
  table.flight_model_group = "1944";
  for (int column = 1; column < PlaneTable::kColumns; ++column) table.set_cell(12, column, "x");
  table.clear_slots();
  EXPECT_EQ(table.cell(12, PlaneTable::kSlot), "SP09");
  EXPECT_FALSE(table.is_used(12));
  EXPECT_EQ(table.cell(0, PlaneTable::kSide), "Side");
  EXPECT_EQ(table.flight_model_group, "1944");
}

}  // namespace
}  // namespace vorlund
