// The keyboard goes where the user looks: no state of the program lets Tab reach what is covered.
#include <QApplication>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QtTest/QTest>
#include <functional>
#include <set>

#include "window/aircraft_window.h"
#include "window/made_aircraft_game.h"

namespace vorlund::test {
namespace {

class Focus : public AircraftWindow {
 protected:
  QWidget* focused() { return window().focusWidget(); }

  /// Share of the control that the mouse would meet, asked point by point; of a scrolled one, of its area.
  double met_by_the_mouse(QWidget* control) {
    QWidget* area = control;
    for (QWidget* parent = control->parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
      if (auto* scrolled = qobject_cast<QScrollArea*>(parent)) area = scrolled->viewport();
    }
    constexpr int kSteps = 8;
    int met = 0;
    for (int point = 0; point < kSteps * kSteps; ++point) {
      const QPoint inside(area->width() * (2 * (point % kSteps) + 1) / (2 * kSteps),
                          area->height() * (2 * (point / kSteps) + 1) / (2 * kSteps));
      QWidget* hit = window().childAt(area->mapTo(&window(), inside));
      if (hit == area || area->isAncestorOf(hit)) ++met;
    }
    return static_cast<double>(met) / (kSteps * kSteps);
  }

  /// Walks the whole chain by Tab, and returns the names of the controls that had the focus.
  std::set<QString> walk() {
    std::set<QString> names;
    for (int presses = 0; presses < 400; ++presses) {
      QWidget* control = focused();
      if (control != nullptr) {
        const std::string name = control->objectName().toStdString();
        EXPECT_GE(met_by_the_mouse(control), 0.5) << name << " has the focus and is covered";
        const bool known = !names.insert(control->objectName()).second;
        if (known && presses > 0 && control->objectName() == *first_) return names;
        if (presses == 0) first_ = control->objectName();
      }
      QTest::keyClick(control != nullptr ? control : &window(), Qt::Key_Tab);
    }
    return names;
  }

  std::optional<QString> first_;
};

struct State {
  const char* name;
  std::function<void()> reach;
  const char* pane;  ///< that the focus has moved into, "" for none
  std::vector<QString> covered;
};

TEST_F(Focus, InEveryStateTheChainHoldsWhatTheUserSees) {
  folder.write("~Vorlund/GameStore/Sky/Dusk/sky.pal", "dusk");
  const std::function<void()> open_skins = [this] {
    open_aircraft_pane();
    click("Label1(0)");
  };
  const State states[] = {
      {"start", [] {}, "", {}},
      {"game groups", [this] { click("Label9(1)"); }, "", {}},
      {"skin group",
       [&] { click("Label9(0)"), click("Label1(0)"); },
       "Frame3",
       {"Label5", "Label9(0)", "Label1"}},
      {"skin shown",
       [&] {
         click("Label9(0)");
         click("Label1(0)");
         click("SelLab(0)");
         click("Label27(1)");
       },
       "Frame3",
       {"Label5", "ExitButton"}},
      {"plane table", [this] { open_aircraft_pane(); }, "Frame1", {}},
      {"plane codes", [this] { open_aircraft_pane(), click("Option1(2)"); }, "Frame1", {"List2"}},
      {"possible skins",
       [this] {
         open_aircraft_pane();
         click("Option1(2)");
         click_cell(2, 1);
       },
       "Frame4",
       {"G1", "Label8"}},
      {"save", [this] { open_aircraft_pane(), click("Label14"); }, "SaveFrame", {}},
      {"load", [this] { click("Label9(3)"); }, "Frame2", {}},
      {"menu editor", [this] { open_aircraft_pane(), click("PictureMenus"); }, "PMenFrame", {}},
      {"both tables", [this] { click("WhatsLoaded"); }, "GameFrame", {}},
  };
  for (const State& state : states) {
    SCOPED_TRACE(state.name);
    folder.write("~Vorlund/CurrentGameSet.txt", "Folder group\tFolder name\r\nSky\tDusk\r\n");
    restart();
    state.reach();
    QApplication::processEvents();
    if (*state.pane != '\0') {
      QWidget* control = focused();
      ASSERT_NE(control, nullptr);
      EXPECT_TRUE(widget(state.pane)->isAncestorOf(control)) << control->objectName().toStdString();
    }
    const std::set<QString> names = walk();
    EXPECT_GE(names.size(), 3U);
    for (const QString& name : state.covered) EXPECT_FALSE(names.contains(name)) << name.toStdString();
  }
}

TEST_F(Focus, CoveredCommandsCannotBeReachedAndNothingIsCleanedUp) {
  folder.write("Savedata/c1.sve", "career");
  folder.write("loose.pal", "loose");
  click("Label9(0)");
  click("Label1(0)");
  for (int presses = 0; presses < 60; ++presses) {
    QTest::keyClick(focused() != nullptr ? focused() : &window(), Qt::Key_Tab);
    if (focused() != nullptr) {
      EXPECT_NE(focused()->objectName(), "Label5");
    }
  }
  EXPECT_TRUE(folder.has("loose.pal"));
}

TEST_F(Focus, ClosingAPaneGivesTheFocusBackToWhereItWas) {
  open_aircraft_pane();
  widget("Label14")->setFocus();
  press_key("Label14", Qt::Key_Space);
  EXPECT_EQ(focused()->objectName(), "Text2");
  press_key("Label39", Qt::Key_Space);
  EXPECT_FALSE(sees("SaveFrame"));
  EXPECT_EQ(focused()->objectName(), "Label14");
}

TEST_F(Focus, IsSeenOnEveryControlThatHasIt) {
  open_aircraft_pane();
  QTest::keyClick(&window(), Qt::Key_Tab);
  for (const QString& name : walk()) {
    QWidget* control = widget(name);
    control->clearFocus();
    QApplication::processEvents();
    const QImage without = control->grab().toImage();
    control->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    EXPECT_NE(control->grab().toImage(), without) << name.toStdString();
  }
}

}  // namespace
}  // namespace vorlund::test
