// The pane of possible skins under mouse and keyboard.
#include <QApplication>
#include <QMouseEvent>
#include <QtTest/QTest>

#include "window/aircraft_window.h"
#include "window/made_aircraft_game.h"

namespace vorlund::test {
namespace {

class PossibleSkinsWindow : public AircraftWindow {
 protected:
  PossibleSkinsWindow() { open_two_possible_skins(); }
};

TEST_F(PossibleSkinsWindow, TheCellOfASlotListsTheSkinsMadeForIt) {
  ASSERT_TRUE(sees("Frame4"));
  EXPECT_EQ(text("Label38"), "P38H");
  EXPECT_EQ(form().possible_skins.List4.items,
            (std::vector<std::string>{"Allied\\Wings P38H", "Axis\\Captured P38H"}));
  EXPECT_EQ(text("Label31"), "Allied");
  EXPECT_EQ(text("Label32"), "Wings P38H");
  EXPECT_TRUE(sees("Image4"));
}

TEST_F(PossibleSkinsWindow, MouseAndKeysViewAnEntryAndThePictureChoosesIt) {
  click_entry("List4", 1);
  EXPECT_EQ(text("Label31"), "Axis");
  EXPECT_EQ(text("Label32"), "Captured P38H");
  press_key("List4", Qt::Key_Up);
  EXPECT_EQ(text("Label32"), "Wings P38H");
  press_key("List4", Qt::Key_Down);
  click("Image4");
  EXPECT_FALSE(sees("Frame4"));
  EXPECT_TRUE(sees("Frame1"));
  EXPECT_EQ(table().cell(1, PlaneTable::kRegion), "Axis");
  EXPECT_EQ(table().cell(1, PlaneTable::kSkinFolder), "Captured P38H");
  EXPECT_EQ(table().cell(1, PlaneTable::kRecordNumber), "0");
}

TEST_F(PossibleSkinsWindow, TheGroupLabelEmptiesTheListAndTheHelpTextHidesThePane) {
  click("Label31");
  EXPECT_TRUE(sees("Frame4"));
  EXPECT_EQ(static_cast<ListView*>(widget("List4"))->model()->rowCount(), 0);
  click("Label33");
  EXPECT_FALSE(sees("Frame4"));
  EXPECT_TRUE(sees("Frame1"));
  EXPECT_EQ(table().cell(1, PlaneTable::kSkinFolder), "");
}

TEST_F(PossibleSkinsWindow, TheSecondPressOfTheClickThatOpenedThePaneDoesNotChoose) {
  QWidget* picture = widget("Image4");
  const QPoint middle = picture->rect().center();
  QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(middle), QPointF(picture->mapToGlobal(middle)),
                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(picture, &second);
  QTest::mouseRelease(picture, Qt::LeftButton, Qt::NoModifier, middle);
  EXPECT_TRUE(sees("Frame4"));
  EXPECT_EQ(table().cell(1, PlaneTable::kSkinFolder), "");
}

TEST_F(PossibleSkinsWindow, ASlotWithoutSkinsOpensThePaneEmpty) {
  folder.write("~Vorlund/SkinStore/SkinList.txt", "");
  click("Label33");
  click_cell(2, PlaneTable::kRegion);
  EXPECT_TRUE(sees("Frame4"));
  EXPECT_EQ(text("Label38"), "P38J");
  EXPECT_EQ(static_cast<ListView*>(widget("List4"))->model()->rowCount(), 0);
  EXPECT_FALSE(sees("Image4"));
}

TEST_F(PossibleSkinsWindow, TheFreeAreaMovesThePane) {
  const QPoint before = widget("Frame4")->pos();
  drag("Frame4", QPoint(300, 10), QPoint(30, 45), Qt::LeftButton);
  EXPECT_EQ(widget("Frame4")->pos(), before + QPoint(30, 45));
  EXPECT_TRUE(sees("Frame4"));
}

}  // namespace
}  // namespace vorlund::test
