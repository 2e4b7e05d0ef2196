// The plane table and the lists beside it under mouse and keyboard.
#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QtTest/QTest>
#include <algorithm>

#include "window/aircraft_window.h"
#include "window/made_aircraft_game.h"
#include "window/theme.h"

namespace vorlund::test {
namespace {

class PlaneTableWindow : public AircraftWindow {
 protected:
  PlaneTableWindow() {
    open_aircraft_pane();
    if (text("Label30") == "Show All") click("Label30");
    click("Option1(3)");
    click_cell(1, PlaneTable::kSlot);
    click_entry("List2", index_of("FM P38H"));
  }

  int index_of(const std::string& flight_model) {
    const auto& items = form().plane.List2.items;
    return static_cast<int>(std::find(items.begin(), items.end(), flight_model) - items.begin());
  }

  GridView* view() { return static_cast<GridView*>(widget("G1")); }

  QColor colour(int row, int column) {
    const QModelIndex index = view()->grid_model().index(view()->grid_model().table_row(row), column);
    return index.data(Qt::ForegroundRole).value<QColor>();
  }

  void hover(int row, int column) {
    const QModelIndex index = view()->grid_model().index(view()->grid_model().table_row(row), column);
    view()->scrollTo(index);
    QTest::mouseMove(view()->viewport(), view()->visualRect(index).center());
    QApplication::processEvents();
  }
};

TEST_F(PlaneTableWindow, AClickOutsideEditModeOnlyChoosesTheRow) {
  const auto before = table().cells(1);
  click_cell(1, PlaneTable::kSide);
  click_cell(1, PlaneTable::kFuel);
  EXPECT_EQ(table().cells(1), before);
  EXPECT_EQ(table().current_row, 1);
  click_cell(5, PlaneTable::kSlot);
  EXPECT_EQ(table().current_row, 5);
}

TEST_F(PlaneTableWindow, AClickInEditModeCyclesTheValue) {
  click("Option1(2)");
  EXPECT_TRUE(sees("List3"));
  EXPECT_FALSE(sees("List2"));
  click_cell(1, PlaneTable::kSide);
  EXPECT_EQ(table().cell(1, PlaneTable::kSide), "German");
  for (const char* fuel : {"75", "50", "25", "100"}) {
    click_cell(1, PlaneTable::kFuel);
    EXPECT_EQ(table().cell(1, PlaneTable::kFuel), fuel);
  }
  click_cell(2, PlaneTable::kSide);
  EXPECT_EQ(table().cell(2, PlaneTable::kSide), "") << "an empty cell stays empty";
}

TEST_F(PlaneTableWindow, TheSecondPressOfADoubleClickCyclesToo) {
  click("Option1(2)");
  click_cell(1, PlaneTable::kFuel);
  const QModelIndex index = view()->grid_model().index(0, PlaneTable::kFuel);
  QTest::mouseDClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, view()->visualRect(index).center());
  EXPECT_EQ(table().cell(1, PlaneTable::kFuel), "50") << "100, 75, 50";
}

TEST_F(PlaneTableWindow, ValuesThatAClickCyclesLookAsIfTheyDo) {
  EXPECT_NE(colour(1, PlaneTable::kSide), QColor(theme::kAccent));
  hover(1, PlaneTable::kSide);
  EXPECT_EQ(view()->viewport()->cursor().shape(), Qt::ArrowCursor);
  click("Option1(2)");
  EXPECT_EQ(colour(1, PlaneTable::kSide), QColor(theme::kAccent));
  EXPECT_NE(colour(1, PlaneTable::kPlaneName), QColor(theme::kAccent));
  EXPECT_NE(colour(2, PlaneTable::kSide), QColor(theme::kAccent)) << "an empty cell does not cycle";
  hover(1, PlaneTable::kFuel);
  EXPECT_EQ(view()->viewport()->cursor().shape(), Qt::PointingHandCursor);
  hover(1, PlaneTable::kPlaneName);
  EXPECT_EQ(view()->viewport()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(PlaneTableWindow, KeysMoveTheCurrentCellAndSpaceCyclesIt) {
  click("Option1(2)");
  click_cell(1, PlaneTable::kPlaneName);
  const auto before = table().cells(1);
  press_key("G1", Qt::Key_Down);
  EXPECT_EQ(table().current_row, 2);
  press_key("G1", Qt::Key_Up);
  press_key("G1", Qt::Key_Right);
  EXPECT_EQ(table().current_row, 1);
  EXPECT_EQ(table().current_column, PlaneTable::kSide);
  EXPECT_EQ(table().cells(1), before) << "moving changes nothing";
  press_key("G1", Qt::Key_Space);
  EXPECT_EQ(table().cell(1, PlaneTable::kSide), "German");
  press_key("G1", Qt::Key_Return);
  EXPECT_EQ(table().cell(1, PlaneTable::kSide), "British");
}

TEST_F(PlaneTableWindow, EndAndHomeGoToTheLastAndTheFirstSlotInTheSameColumn) {
  click_cell(3, PlaneTable::kSide);
  press_key("G1", Qt::Key_End);
  EXPECT_EQ(table().current_row, 30);
  EXPECT_EQ(table().current_column, PlaneTable::kSide);
  press_key("G1", Qt::Key_Home);
  EXPECT_EQ(table().current_row, 1);
  EXPECT_EQ(table().current_column, PlaneTable::kSide);
}

TEST_F(PlaneTableWindow, AClickOnTheHeaderChangesNoCell) {
  click("Option1(2)");
  std::vector<std::vector<std::string>> before;
  for (int row = 0; row < table().row_count(); ++row) before.push_back(table().cells(row));
  auto* header = view()->horizontalHeader();
  for (int column = 0; column < PlaneTable::kColumns; ++column) {
    const int x = header->sectionViewportPosition(column) + header->sectionSize(column) / 2;
    if (x >= header->viewport()->width()) continue;
    click_at(header->viewport(), QPoint(x, header->height() / 2));
  }
  for (int row = 0; row < table().row_count(); ++row) {
    EXPECT_EQ(table().cells(row), before.at(static_cast<std::size_t>(row)));
  }
  EXPECT_FALSE(sees("Frame4"));
}

TEST_F(PlaneTableWindow, APlaneCodeSetsTheRecordNumberOfTheCurrentRow) {
  click("Option1(2)");
  click_cell(1, PlaneTable::kSlot);
  click_entry("List3", 17);
  EXPECT_EQ(table().cell(1, PlaneTable::kRecordNumber), "17");
  press_key("List3", Qt::Key_Down);
  EXPECT_EQ(table().cell(1, PlaneTable::kRecordNumber), "18");
}

TEST_F(PlaneTableWindow, OnlyOneOptionButtonIsSet) {
  for (const char* name : {"Option1(0)", "Option1(2)", "Option1(3)"}) {
    click(name);
    for (const char* other : {"Option1(0)", "Option1(2)", "Option1(3)"}) {
      EXPECT_EQ(static_cast<QAbstractButton*>(widget(other))->isChecked(), std::string(name) == other);
    }
  }
  click("Option1(3)");
  click("Option1(3)");
  EXPECT_TRUE(static_cast<QAbstractButton*>(widget("Option1(3)"))->isChecked());
}

TEST_F(PlaneTableWindow, ClearingARowHidesItFromTheSelections) {
  click_cell(1, PlaneTable::kSlot);
  click("Label3");
  EXPECT_EQ(table().cell(1, PlaneTable::kSlot), "P38H");
  EXPECT_EQ(table().cell(1, PlaneTable::kScriptFolder), "");
  EXPECT_EQ(view()->grid_model().rowCount(), 0);
  click("Label30");
  EXPECT_EQ(text("Label30"), "Show Selections");
  EXPECT_EQ(view()->grid_model().rowCount(), 30);
}

TEST_F(PlaneTableWindow, AllColumnHeadersAreWholeAndTheTableNeedsNoSidewaysScrolling) {
  window().resize(1200, 620);
  QApplication::processEvents();
  int total = 0;
  for (int column = 0; column < PlaneTable::kColumns; ++column) {
    const QString header = QString::fromStdString(table().cell(0, column));
    EXPECT_GE(view()->columnWidth(column), view()->fontMetrics().horizontalAdvance(header) + 16)
        << header.toStdString();
    total += view()->columnWidth(column);
  }
  EXPECT_LE(total, view()->viewport()->width());
}

TEST_F(PlaneTableWindow, TheFreeAreaMovesThePaneAndHideHidesIt) {
  const QPoint before = widget("Frame1")->pos();
  drag("Frame1", QPoint(300, 10), QPoint(40, 25), Qt::LeftButton);
  EXPECT_EQ(widget("Frame1")->pos(), before + QPoint(40, 25));
  EXPECT_TRUE(sees("Frame1"));
  click("Label10(0)");
  EXPECT_FALSE(sees("Frame1"));
  EXPECT_TRUE(sees("Label2"));
}

TEST_F(PlaneTableWindow, AFlightModelIsMatchedWithSkinsAndTheChosenOnePutInWithIt) {
  folder.write("~Vorlund/SkinStore/Allied/FM P47D at rest/PP47D.3dz", "shape");
  click("Option1(0)");
  click_entry("List2", index_of("FM P47D"));
  ASSERT_TRUE(sees("Frame4"));
  EXPECT_FALSE(sees("Frame1"));
  EXPECT_EQ(text("Label38"), "FM P47D");
  EXPECT_EQ(text("Label34"), "Matching characters:");
  EXPECT_EQ(text("Label35"), "7");
  EXPECT_EQ(form().possible_skins.List4.items, std::vector<std::string>{"Allied\\FM P47D at rest"});
  click("Image4");
  EXPECT_TRUE(sees("Frame1"));
  EXPECT_EQ(table().cell(4, PlaneTable::kSkinFolder), "FM P47D at rest");
  EXPECT_EQ(table().cell(4, PlaneTable::kScriptFolder), "FM P47D");
  EXPECT_EQ(table().cell(4, PlaneTable::kPlaneName), "Type P47D");
}

}  // namespace
}  // namespace vorlund::test
