// The keyboard from end to end, and where the panes stand.
#include <QAbstractButton>
#include <QApplication>
#include <QtTest/QTest>

#include "window/action_label.h"
#include "window/aircraft_window.h"
#include "window/made_aircraft_game.h"

namespace vorlund::test {
namespace {

class Keys : public AircraftWindow {
 protected:
  Keys() {
    folder.write("~Vorlund/CurrentGameSet.txt", "Folder group\tFolder name\r\nSounds\tLoud\r\n");
    folder.write("~Vorlund/GameSetFiles/Night", "Folder group\tFolder name\r\nSounds\tLoud\r\n");
    restart();
    window().resize(1400, 800);
  }

  QString focused() {
    return window().focusWidget() != nullptr ? window().focusWidget()->objectName() : QString();
  }

  /// Names that Tab goes through, from a control on.
  QStringList chain(const QString& from, qsizetype count) {
    widget(from)->setFocus();
    QStringList names = {from};
    while (names.size() < count) {
      QTest::keyClick(window().focusWidget(), Qt::Key_Tab);
      names.append(focused());
    }
    return names;
  }

  QRect place(const char* name) { return widget(name)->geometry(); }
  ActionLabel& label(const char* name) { return *static_cast<ActionLabel*>(widget(name)); }
};

TEST_F(Keys, TabGoesAsTheEyeGoes) {
  const QStringList menu = {"Label9(0)", "Label9(1)", "Label9(2)", "Label9(3)"};
  EXPECT_EQ(chain("Label9(0)", 4), menu);
  const QStringList rest = {"WhatsLoaded", "Label18", "Label5", "Label7", "ExitButton", "DelMSN"};
  const QStringList met = chain("Label9(0)", 12);
  QStringList found;
  for (const QString& name : met) {
    if (rest.contains(name)) found.append(name);
  }
  EXPECT_EQ(found, rest);
  click("WhatsLoaded");
  const QStringList game = {"G2", "Label28", "Label29", "GameLoad", "Label11", "Label12"};
  EXPECT_EQ(chain("G2", 6), game);
  click("Label12");
  const QStringList load = {"File3", "File2", "Check1", "Label19", "Label40"};
  EXPECT_EQ(chain("File3", 5), load);
}

TEST_F(Keys, TheStartFocusesTheConfirmation) {
  std::string failure;
  const std::unique_ptr<FileSystem> files = make_platform_file_system();
  MainWindow started(*files, [&](const QString& text) { failure = text.toStdString(); });
  ASSERT_TRUE(started.start()) << failure;
  ASSERT_NE(started.focusWidget(), nullptr);
  EXPECT_EQ(started.focusWidget()->objectName(), "Label17");
}

TEST_F(Keys, EscapeClosesThePaneInFront) {
  const std::pair<const char*, std::function<void()>> panes[] = {
      {"HelpFrame", [this] { click("HelpLabel"); }},
      {"Frame2", [this] { click("Label9(3)"); }},
      {"GameFrame", [this] { click("Label9(1)"), click("Label2"); }},
      {"Frame1", [this] { click("Label9(0)"), click("Label2"); }},
      {"SaveFrame", [this] { click("WhatsLoaded"), click("Label11"); }},
      {"PMenFrame", [this] { click("WhatsLoaded"), click("Label10(1)"), click("PictureMenus"); }},
      {"Frame3", [this] { click("Label9(0)"), click("Label1(0)"); }},
  };
  for (const auto& [pane, open] : panes) {
    restart();
    window().resize(1400, 800);
    open();
    ASSERT_TRUE(sees(pane)) << pane;
    QTest::keyClick(window().focusWidget() != nullptr ? window().focusWidget() : &window(), Qt::Key_Escape);
    EXPECT_FALSE(sees(pane)) << pane;
  }
}

TEST_F(Keys, F1ShowsTheHelpAndHidesItAgain) {
  QTest::keyClick(&window(), Qt::Key_F1);
  EXPECT_TRUE(sees("HelpFrame"));
  QTest::keyClick(&window(), Qt::Key_F1);
  EXPECT_FALSE(sees("HelpFrame"));
}

TEST_F(Keys, DeleteClearsTheSelectedRowAndControlZBringsItBack) {
  click("WhatsLoaded");
  window().perform([this] { form().G2_Click(1); });
  press_key("G2", Qt::Key_Delete);
  EXPECT_EQ(form().game.G2.cell(1, GameTable::kFolder), "");
  QTest::keyClick(widget("G2"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(form().game.G2.cell(1, GameTable::kFolder), "Loud");
  QTest::keyClick(widget("GameLoad"), Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(form().game.G2.cell(1, GameTable::kFolder), "");
}

TEST_F(Keys, DeleteAndAClickOnTheChosenNameTakeTheChoiceBack) {
  click("Label9(3)");
  click_entry("File3", 0);
  EXPECT_EQ(text("Label21"), "Night");
  press_key("File3", Qt::Key_Delete);
  EXPECT_EQ(text("Label21"), "");
  click_entry("File3", 0);
  click("Label21");
  EXPECT_EQ(text("Label21"), "");
}

TEST_F(Keys, CleanUpSaysBeforehandWhatItWouldDo) {
  folder.write("Savedata/c1.sve", "career");
  folder.write("loose.pal", "loose");
  QHelpEvent ask(QEvent::ToolTip, QPoint(5, 5), widget("Label5")->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(widget("Label5"), &ask);
  const std::string tip = widget("Label5")->toolTip().toStdString();
  EXPECT_TRUE(tip.starts_with("Would come to: ")) << tip;
  EXPECT_TRUE(tip.ends_with(" loose files deleted; 1 career save stays, for no row names a home")) << tip;
  EXPECT_TRUE(folder.has("loose.pal"));
}

TEST_F(Keys, BothTablesStandSideBySideOrOneAboveTheOtherOrLeaveTheirTitle) {
  window().resize(1920, 1080);
  click("WhatsLoaded");
  EXPECT_FALSE(place("Frame1").intersects(place("GameFrame")));
  EXPECT_EQ(place("Frame1").top(), place("GameFrame").top()) << "side by side";
  window().resize(1366, 1000);
  QApplication::processEvents();
  EXPECT_FALSE(place("Frame1").intersects(place("GameFrame")));
  EXPECT_LT(place("Frame1").bottom(), place("GameFrame").top()) << "one above the other";
  window().resize(1024, 620);
  QApplication::processEvents();
  EXPECT_TRUE(place("Frame1").intersects(place("GameFrame")));
  click_at(widget("Frame1"), {60, 10});
  EXPECT_GT(form().plane.Frame1.depth, form().game.GameFrame.depth);
  click_at(widget("GameFrame"), {60, 10});
  EXPECT_GT(form().game.GameFrame.depth, form().plane.Frame1.depth);
}

TEST_F(Keys, WhatWasDraggedStaysWhenTheWindowIsResized) {
  click("WhatsLoaded");
  drag("GameFrame", {30, 8}, {45, 60}, Qt::LeftButton);
  const QPoint left_at = widget("GameFrame")->pos();
  window().resize(1500, 900);
  QApplication::processEvents();
  EXPECT_EQ(widget("GameFrame")->pos(), left_at);
  EXPECT_LE(place("Frame1").right(), 1500);
}

TEST_F(Keys, OnlyTheWorkAtHandIsGolden) {
  window().resize(1920, 1080);
  click("Label9(1)");
  click("WhatsLoaded");
  EXPECT_EQ(label("GameLoad").look(), ActionLabel::Look::kPrimary);
  EXPECT_EQ(label("Label8").look(), ActionLabel::Look::kButton);
  click("Label9(0)");
  click("WhatsLoaded");
  EXPECT_EQ(label("GameLoad").look(), ActionLabel::Look::kButton);
  EXPECT_EQ(label("Label8").look(), ActionLabel::Look::kPrimary);
}

TEST_F(Keys, TheFirstOfTheStripIsDimmedWhileNoTableIsCovered) {
  window().resize(1024, 620);
  click("Label9(1)");
  EXPECT_TRUE(label("Label41").is_dimmed());
  click("WhatsLoaded");
  EXPECT_TRUE(label("Label41").is_dimmed()) << "the game table is in front";
  click_at(widget("Frame1"), {60, 10});
  EXPECT_FALSE(label("Label41").is_dimmed());
  click("Label41");
  EXPECT_TRUE(label("Label41").is_dimmed());
}

}  // namespace
}  // namespace vorlund::test
