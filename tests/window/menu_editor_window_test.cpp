// The menu editor pane under mouse and keyboard.
#include <QAbstractButton>
#include <QLineEdit>

#include "window/aircraft_window.h"

namespace vorlund::test {
namespace {

class MenuEditorWindow : public AircraftWindow {
 protected:
  MenuEditorWindow() {
    open_aircraft_pane();
    click("PictureMenus");
  }
};

TEST_F(MenuEditorWindow, TheButtonInTheAircraftPaneShowsTheSelectedMenu) {
  ASSERT_TRUE(sees("PMenFrame"));
  EXPECT_EQ(text("bmnutb(0)"), "One");
  EXPECT_EQ(text("mlen(0)"), "4");
  EXPECT_EQ(text("position(0)"), " 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9");
  EXPECT_EQ(text("bmnutb(8)"), "Nine");
  EXPECT_EQ(text("bmnutb(10)"), "");
  EXPECT_TRUE(text("hedlab").startsWith(" 7 7 7"));
  EXPECT_TRUE(static_cast<QAbstractButton*>(widget("CountryBut(0)"))->isChecked());
}

TEST_F(MenuEditorWindow, TheLengthFollowsATypedName) {
  auto* name = static_cast<QLineEdit*>(widget("bmnutb(3)"));
  click("bmnutb(3)");
  name->selectAll();
  type("bmnutb(3)", "Twelve chars");
  EXPECT_EQ(text("mlen(3)"), "13");
  name->selectAll();
  press_key("bmnutb(3)", Qt::Key_Delete);
  EXPECT_EQ(text("mlen(3)"), "1");
}

TEST_F(MenuEditorWindow, ANameTakes254CharactersAndNoMore) {
  static_cast<QLineEdit*>(widget("bmnutb(0)"))->selectAll();
  type("bmnutb(0)", QString(300, QChar('n')));
  EXPECT_EQ(text("bmnutb(0)"), QString(254, QChar('n')));
  EXPECT_EQ(text("mlen(0)"), "255");
}

TEST_F(MenuEditorWindow, ACountryButtonReadsAndWritesNothing) {
  const auto before = folder.tree();
  type("bmnutb(1)", "!");
  click("CountryBut(2)");
  EXPECT_TRUE(static_cast<QAbstractButton*>(widget("CountryBut(2)"))->isChecked());
  EXPECT_FALSE(static_cast<QAbstractButton*>(widget("CountryBut(0)"))->isChecked());
  EXPECT_EQ(text("bmnutb(1)"), "Two!");
  EXPECT_EQ(folder.tree(), before);
}

TEST_F(MenuEditorWindow, AClickOnWhatStandsInThePaneLeavesItOpen) {
  for (const char* name : {"MnuFrame", "MnuFrameCaption", "hedlab", "mlen(0)", "position(0)"}) {
    click_at(widget(name), QPoint(2, 2));
    EXPECT_TRUE(sees("PMenFrame")) << name;
  }
}

TEST_F(MenuEditorWindow, AClickOnTheFreeAreaHidesThePane) {
  click_at(widget("PMenFrame"), QPoint(400, 10));
  EXPECT_FALSE(sees("PMenFrame"));
  EXPECT_TRUE(sees("Frame1"));
}

}  // namespace
}  // namespace vorlund::test
