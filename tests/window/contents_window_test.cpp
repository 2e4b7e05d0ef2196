// The pane of the game folder's contents in the real window.
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QtTest/QTest>

#include "window/program_window.h"

namespace vorlund::test {
namespace {

class ContentsWindow : public ProgramWindow {
 protected:
  ContentsWindow() {
    for (const char* name : {"Savedata", "Music", "~Vorlund/SkinStore", "~Vorlund/FlightModels",
                             "~Vorlund/GameSetFiles", "~Vorlund/PlaneSetFiles"}) {
      folder.make_folder(name);
    }
    folder.write("~Vorlund/GameStore/Sky/Dusk/sky.pal", "dusk");
    folder.write("~Vorlund/GameStore/Sky/Dusk/clouds.spt", "clouds of dusk");
    folder.write("~Vorlund/GameStore/Tweaks/Smoke/sky.pal", "smoke");
    folder.write("~Vorlund/CurrentGameSet.txt",
                 "Folder group\tFolder name\r\nSky\tDusk\r\nTweaks\tSmoke\r\n");
    folder.write("loose.pal", "loose");
    restart();
  }

  QTableView& lines() { return *window().findChild<QTableView*>("ContentsTable"); }
  QString cell(int row, int column) { return lines().model()->index(row, column).data().toString(); }
};

TEST_F(ContentsWindow, OpensFromTheMainWindowAndFromTheGamePane) {
  click("Contents(0)");
  EXPECT_TRUE(sees("ContentsFrame"));
  EXPECT_EQ(lines().model()->rowCount(), 3);
  EXPECT_EQ(cell(0, 0), "clouds.spt");
  click("ContentsHide");
  EXPECT_FALSE(sees("ContentsFrame"));
  click("WhatsLoaded");
  click("Contents(1)");
  EXPECT_TRUE(sees("ContentsFrame"));
}

TEST_F(ContentsWindow, IsFilteredByKindAndByTypingAndSortedByItsHeadings) {
  click("Contents(0)");
  click_entry("ContentsKinds", static_cast<int>(ContentsKind::kOverwritten));
  ASSERT_EQ(lines().model()->rowCount(), 1);
  EXPECT_EQ(cell(0, 0), "sky.pal");
  click_entry("ContentsKinds", 0);
  type("ContentsFilter", "pal");
  EXPECT_EQ(lines().model()->rowCount(), 2);
  QHeaderView* header = lines().horizontalHeader();
  const QPoint size_heading(header->sectionViewportPosition(0) + 20, header->height() / 2);
  click_at(header->viewport(), size_heading);
  EXPECT_EQ(cell(0, 0), "sky.pal");
}

TEST_F(ContentsWindow, TheKeyboardSelectsARowWhoseChainIsShownAndCopied) {
  click("Contents(0)");
  click_entry("ContentsKinds", static_cast<int>(ContentsKind::kOverwritten));
  lines().setFocus();
  press_key("ContentsTable", Qt::Key_Down);
  EXPECT_EQ(form().contents.selected(), std::vector<int>{0});
  EXPECT_EQ(form().contents.ContentsChain.items.size(), 2U);
  QTest::keyClick(&lines(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().contains("sky.pal\trow 2: Tweaks\\Smoke"));
}

TEST_F(ContentsWindow, EndAndHomeGoToTheLastAndTheFirstRow) {
  click("Contents(0)");
  const int last = lines().model()->rowCount() - 1;
  ASSERT_GT(last, 0);
  lines().setFocus();
  press_key("ContentsTable", Qt::Key_End);
  EXPECT_EQ(form().contents.selected(), std::vector<int>{last});
  press_key("ContentsTable", Qt::Key_Home);
  EXPECT_EQ(form().contents.selected(), std::vector<int>{0});
}

TEST_F(ContentsWindow, AfterProcessEverythingIsInPlace) {
  click("WhatsLoaded");
  click("GameLoad");
  click("Contents(0)");
  click_entry("ContentsKinds", static_cast<int>(ContentsKind::kWritten));
  EXPECT_EQ(lines().model()->rowCount(), 0);
  EXPECT_TRUE(text("ContentsSum").contains("would write nothing"));
}

}  // namespace
}  // namespace vorlund::test
