// What all labels, panes and the status line of the real window have in common.
#include <QAbstractButton>
#include <QLabel>
#include <QtTest/QTest>

#include "window/aircraft_window.h"
#include "window/made_aircraft_game.h"

namespace vorlund::test {
namespace {

class Labels : public AircraftWindow {
 protected:
  /// Every acting label that is shown and can't be dragged.
  QStringList fixed_labels() {
    QStringList names;
    for (const QAbstractButton* label : window().findChildren<QAbstractButton*>()) {
      if (label->isVisible() && !label->isCheckable()) names.append(label->objectName());
    }
    for (const char* dragged : {"Label9(0)", "Label9(1)", "Label9(2)", "Label9(3)", "Label18", "Label5",
                                "DelMSN", "Label7", "ExitButton"}) {
      names.removeAll(dragged);
    }
    return names;
  }
};

TEST_F(Labels, ThatAreFixedTakeTheLeftButtonAlone) {
  folder.write("~Vorlund/CurrentGameSet.txt", "Folder group\tFolder name\r\nSounds\tLoud\r\n");
  restart();
  click("WhatsLoaded");
  window().perform([this] { form().G2_Click(1); });
  const auto before = folder.tree();
  const QStringList names = fixed_labels();
  for (const char* name : {"GameLoad", "Label8", "Label28", "Label11", "Label10(1)"}) {
    EXPECT_TRUE(names.contains(name)) << name;
  }
  for (const QString& name : names) {
    for (const Qt::MouseButton button :
         {Qt::RightButton, Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton}) {
      QTest::mouseClick(widget(name), button);
      EXPECT_EQ(folder.tree(), before) << name.toStdString();
      EXPECT_TRUE(sees("GameFrame") && sees("Frame1")) << name.toStdString();
      EXPECT_FALSE(sees("SaveFrame") || sees("Frame2")) << name.toStdString();
      EXPECT_EQ(form().game.G2.cell(1, GameTable::kFolder), "Loud") << name.toStdString();
    }
  }
  click("GameLoad");
  EXPECT_TRUE(folder.has("boom.snd")) << "the left button does act";
}

TEST_F(Labels, ThatCanBeDraggedTakeTheMiddleButtonForTheSavedSetUpsAlone) {
  folder.write("Savedata/Default1.msn", "deleted by a left click");
  restart();
  const auto before = folder.tree();
  for (const Qt::MouseButton button : {Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton}) {
    for (const char* name :
         {"Label9(0)", "Label9(1)", "Label9(2)", "Label18", "Label5", "DelMSN", "Label7", "ExitButton"}) {
      QTest::mouseClick(widget(name), button);
      EXPECT_FALSE(sees("Label1(0)")) << name;
      EXPECT_EQ(form().selection.mode, PaneMode::kAircraftSet) << name;
      EXPECT_FALSE(form().ended || form().minimise_wanted) << name;
      EXPECT_EQ(folder.tree(), before) << name;
    }
  }
  QTest::mouseClick(widget("Label9(3)"), Qt::BackButton);
  EXPECT_FALSE(sees("Frame2"));
  QTest::mouseClick(widget("Label9(3)"), Qt::MiddleButton);
  EXPECT_TRUE(sees("Frame2"));
  click("DelMSN");
  EXPECT_FALSE(folder.has("Savedata/Default1.msn"));
}

TEST_F(Labels, OfAPaneThatWasDraggedBeyondTheRimAreStillInReach) {
  folder.write("~Vorlund/CurrentGameSet.txt", "Folder group\tFolder name\r\nSounds\tLoud\r\n");
  restart();
  click("WhatsLoaded");
  const QPoint before = widget("GameFrame")->pos();
  drag("GameFrame", {30, 8}, {0, -900}, Qt::LeftButton);
  EXPECT_EQ(widget("GameFrame")->y(), 0);
  drag("GameFrame", {30, 8}, {0, 50}, Qt::LeftButton);
  EXPECT_EQ(widget("GameFrame")->pos(), QPoint(before.x(), 50));
  drag("GameFrame", {30, 8}, {5000, 0}, Qt::LeftButton);
  EXPECT_EQ(widget("GameFrame")->x(), window().width() - 80);
}

TEST_F(Labels, AnswerToThePressOfAnAssistiveTool) {
  restart();
  static_cast<QAbstractButton*>(widget("Label9(1)"))->click();
  EXPECT_TRUE(sees("Label1(0)"));
}

TEST_F(Labels, TheStatusLineGrowsWithItsText) {
  restart();
  window().perform([this] { form().desk.say("ready"); });
  const auto* status = static_cast<QLabel*>(widget("StatusLine"));
  const int one_line = status->parentWidget()->height();
  window().perform([this] { form().desk.say("1\n2\n3\n4\n5\n6\n7"); });
  EXPECT_GE(status->height(), 7 * status->fontMetrics().height());
  EXPECT_EQ(status->toolTip(), "");
  std::string endless;
  for (int line = 0; line < 100; ++line) endless += "line\n";
  window().perform([this, &endless] { form().desk.say(endless); });
  EXPECT_LE(status->parentWidget()->height(), window().height() / 2);
  EXPECT_EQ(status->toolTip().toStdString(), endless);
  window().perform([this] { form().desk.say("done"); });
  EXPECT_EQ(status->parentWidget()->height(), one_line);
}

TEST_F(Labels, TextsFromTheStoreAreShownAsTheyAreInTooltipsToo) {
  restart();
  open_aircraft_pane();
  window().perform([this] { form().plane.G1.set_cell(1, PlaneTable::kPlaneName, "<b>x</b> & y"); });
  const QModelIndex cell =
      static_cast<GridView*>(widget("G1"))->grid_model().index(0, PlaneTable::kPlaneName);
  EXPECT_EQ(cell.data(Qt::DisplayRole).toString(), "<b>x</b> & y");
  EXPECT_EQ(cell.data(Qt::ToolTipRole).toString(), "&lt;b&gt;x&lt;/b&gt; &amp; y");
}

TEST_F(Labels, APlaneRecordOfEndlessRowsAndCellsIsShown) {
  std::string record =
      "Standard\r\nSlot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel "
      "%\r\nP38H\tUSAAF\t" +
      std::string(3'000'000, 'W') + "\r\n";
  for (int row = 0; row < 100'000; ++row) record += "P38J\tAllied\tWings\r\n";
  folder.write("~Vorlund/CurrentPlaneSet.txt", record);
  restart();
  click("WhatsLoaded");
  click("Label10(1)");
  click_cell(1, PlaneTable::kRegion);
  EXPECT_EQ(table().current_row, 1);
  const auto* view = static_cast<GridView*>(widget("G1"));
  EXPECT_GT(view->columnWidth(PlaneTable::kFuel), view->fontMetrics().horizontalAdvance("Fuel %"));
}

TEST_F(Labels, GroupsStayReachableWhenTheWindowGetsLower) {
  for (int group = 10; group < 40; ++group) {
    folder.make_folder("~Vorlund/GameStore/Group " + std::to_string(group));
  }
  restart();
  window().resize(1920, 1080);
  click("Label9(1)");
  window().resize(1280, 720);
  QApplication::processEvents();
  const auto last = form().selection.Label1.size() - 1;
  click(QString("Label1(%1)").arg(last));
  EXPECT_TRUE(sees("Frame3"));
}

}  // namespace
}  // namespace vorlund::test
