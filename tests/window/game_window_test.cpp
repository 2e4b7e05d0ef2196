// The game-set work in the real window: menu, groups, selection pane, game table and installation.
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QtTest/QTest>
#include <algorithm>

#include "window/action_label.h"
#include "window/aircraft_window.h"

namespace vorlund::test {
namespace {

class GameWindow : public AircraftWindow {
 protected:
  GameWindow() {
    store("Scenery/Winter/Snow.TM", "snow");
    store("Scenery/Winter/contents.txt", "Deep snow.\r\nFrozen rivers.\r\n");
    store("Scenery/Summer/Grass.TM", "grass");
    store("Sky/Dusk/Sky.PAL", "dusk");
    store("Tweaks/Smoke/smoke.dat", "smoke");
    store("Tweaks/Fire/fire.dat", "fire");
    folder.write("~Vorlund/CurrentGameSet.txt",
                 "Folder group\tFolder name\r\nScenery\t\r\nSky\tDusk\r\nTweaks\tSmoke\r\n");
    restart();
  }

  void store(const std::string& name, const std::string& bytes) {
    folder.write("~Vorlund/GameStore/" + name, bytes);
  }

  const CellTable& games() { return form().game.G2; }

  void open_group(const QString& group) { click(label_of("Label1", group)); }

  void click_row(int row) {
    auto* view = static_cast<GridView*>(widget("G2"));
    const QModelIndex index = view->grid_model().index(view->grid_model().table_row(row), 1);
    ASSERT_TRUE(index.isValid()) << "row " << row << " is hidden";
    view->scrollTo(index);
    click_at(view->viewport(), view->visualRect(index).center());
  }

  QString status() { return text("StatusLine"); }
};

TEST_F(GameWindow, ADescriptionOfOneEndlessLineIsShownInShortOnes) {
  const std::string line(1'000'000, 'x');
  store("Scenery/Winter/contents.txt", "\r\nShort.\r\n" + line);
  click("Label9(1)");
  open_group("Scenery");
  click(label_of("SelLab", "Winter"));
  const QStringList shown = static_cast<QPlainTextEdit*>(widget("Text1"))->toPlainText().split('\n');
  EXPECT_EQ(shown.at(0), "");
  EXPECT_EQ(shown.at(1), "Short.");
  EXPECT_TRUE(
      std::all_of(shown.begin(), shown.end(), [](const QString& part) { return part.size() <= 2000; }));
  EXPECT_EQ(shown.mid(2).join("").size(), qsizetype(line.size()));
}

TEST_F(GameWindow, AGameSetIsComposedInstalledAndShownAtTheNextStart) {
  click("Label9(1)");
  EXPECT_FALSE(sees("Label6")) << "the title vanishes at the first use of the menu";
  open_group("Scenery");
  EXPECT_TRUE(sees("Frame3"));
  click(label_of("SelLab", "Winter"));
  EXPECT_EQ(static_cast<QPlainTextEdit*>(widget("Text1"))->toPlainText(), "Deep snow.\nFrozen rivers.\n");
  EXPECT_EQ(text("FolderLabel"), "Winter");
  click("Image1");
  EXPECT_FALSE(sees("Frame3"));
  open_group("Tweaks");
  double_click(label_of("SelLab", "Fire"));
  EXPECT_FALSE(sees("Frame3"));
  click("Label2");
  EXPECT_TRUE(sees("GameFrame"));
  click_row(3);
  click("Label29");
  EXPECT_EQ(games().cell(4, GameTable::kFolder), "Smoke");
  click_row(2);
  click("Label28");
  EXPECT_EQ(games().cell(2, GameTable::kFolder), "");
  click("GameLoad");
  EXPECT_FALSE(sees("GameFrame"));
  EXPECT_EQ(status(), "3 folders, 3 files copied, 1 kept in the store");
  EXPECT_EQ(folder.read("Snow.TM"), "snow");
  EXPECT_EQ(folder.read("fire.dat"), "fire");
  EXPECT_FALSE(folder.has("Sky.PAL"));
  EXPECT_EQ(folder.read("~Vorlund/CurrentGameSet.txt"),
            "Folder group\tFolder name\r\nScenery\tWinter\r\nSky\t\r\nTweaks\tFire\r\nTweaks\tSmoke\r\n");
  restart();
  click("WhatsLoaded");
  auto* table = static_cast<GridView*>(widget("G2"));
  EXPECT_EQ(table->grid_model().rowCount(), 3);
  EXPECT_TRUE(table->isVisible());
}

TEST_F(GameWindow, ShiftClickHidesAnEntryAndARightDragMovesOneWithoutOpeningIt) {
  QTest::mouseClick(widget("Label9(1)"), Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_FALSE(sees("Label9(1)"));
  EXPECT_FALSE(sees("Label1(0)"));
  const QPoint before = widget("Label9(3)")->pos();
  drag("Label9(3)", {20, 10}, {60, 30}, Qt::RightButton);
  EXPECT_EQ(widget("Label9(3)")->pos(), before + QPoint(60, 30));
  EXPECT_FALSE(sees("Frame2"));
}

TEST_F(GameWindow, ARightClickOnACommandDoesNothing) {
  const QPoint before = widget("ExitButton")->pos();
  click("ExitButton", Qt::RightButton);
  click("Label5", Qt::RightButton);
  EXPECT_FALSE(form().ended);
  EXPECT_EQ(widget("ExitButton")->pos(), before);
}

TEST_F(GameWindow, ALeftReleaseOutsideALabelDoesNotCommand) {
  QWidget* entry = widget("ExitButton");
  QTest::mousePress(entry, Qt::LeftButton, Qt::NoModifier, {10, 10});
  QTest::mouseRelease(entry, Qt::LeftButton, Qt::NoModifier, {-50, -50});
  EXPECT_FALSE(form().ended);
}

TEST_F(GameWindow, LabelsActOnEnterAndSpaceAndSpeakTheirCaptions) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Enter}) {
    restart();
    widget("Label9(1)")->setFocus();
    press_key("Label9(1)", key);
    EXPECT_TRUE(sees("Label1(0)")) << key;
  }
  EXPECT_EQ(widget("Label9(1)")->accessibleName(), "Make Game Settings");
  EXPECT_EQ(widget("Label9(1)")->cursor().shape(), Qt::PointingHandCursor);
  EXPECT_NE(widget("Label9(1)")->focusPolicy() & Qt::TabFocus, 0);
}

TEST_F(GameWindow, ThePaneFollowsItsDragAndComesToTheFront) {
  click("WhatsLoaded");
  EXPECT_GT(form().game.GameFrame.depth, form().plane.Frame1.depth);
  const QPoint before = widget("GameFrame")->pos();
  drag("GameFrame", {30, 8}, {45, 60}, Qt::LeftButton);
  EXPECT_EQ(widget("GameFrame")->pos(), before + QPoint(45, 60));
  EXPECT_TRUE(sees("GameFrame")) << "a drag is no click";
}

TEST_F(GameWindow, AClickOnTheFreeAreaHidesTheSelectionPane) {
  click("Label9(1)");
  open_group("Sky");
  click_at(widget("Frame3"), {5, 5});
  EXPECT_FALSE(sees("Frame3"));
}

TEST_F(GameWindow, DetailsAndPictureCanBeHidden) {
  click("Label9(1)");
  open_group("Scenery");
  EXPECT_FALSE(sees("Label27(0)"));
  click(label_of("SelLab", "Winter"));
  EXPECT_TRUE(sees("Image1"));
  EXPECT_FALSE(sees("Text1"));
  click("Label27(1)");
  EXPECT_TRUE(sees("Text1"));
  click("Label27(0)");
  EXPECT_FALSE(sees("Image1"));
  click("Label10(2)");
  EXPECT_FALSE(sees("Frame3"));
}

TEST_F(GameWindow, ArrowKeysMoveTheCurrentRow) {
  click("WhatsLoaded");
  click_row(2);
  press_key("G2", Qt::Key_Down);
  EXPECT_EQ(games().current_row, 3);
  press_key("G2", Qt::Key_Up);
  EXPECT_EQ(games().current_row, 2);
}

TEST_F(GameWindow, FiveHundredGroupsAndFoldersStayReachable) {
  for (int index = 0; index < 500; ++index) {
    folder.make_folder("~Vorlund/GameStore/Group " + std::to_string(1000 + index));
    folder.make_folder("~Vorlund/GameStore/Group 1499/Folder " + std::to_string(1000 + index));
  }
  click("Label9(1)");
  EXPECT_TRUE(static_cast<ListView*>(widget("Label1"))->horizontalScrollBar()->isVisible());
  click(label_of("Label1", "Group 1499"));
  ASSERT_EQ(form().selection.SelLab.size(), 500U);
  click("SelLab(499)");
  EXPECT_EQ(form().selection.current_selection, "Folder 1499");
}

TEST_F(GameWindow, ATableOfAHundredThousandRowsIsShownAndScrolled) {
  std::string record = "Folder group\tFolder name\r\n";
  for (int row = 0; row < 100'000; ++row) record += "Sky\tDusk " + std::to_string(row) + "\r\n";
  folder.write("~Vorlund/CurrentGameSet.txt", record);
  restart();
  click("WhatsLoaded");
  click_row(100'000);
  EXPECT_EQ(games().current_row, 100'000);
}

TEST_F(GameWindow, DamagedPicturesAreNoReasonToEnd) {
  store("Sky/Dusk/mypic", std::string("\xFF\xD8\xFF\xE0 no picture at all", 22));
  store("Sky/Dusk/zzz.bmp", "BM");
  folder.write("~Vorlund/SelPic", "neither is this");
  folder.write("~Vorlund/Fr2Pic", std::string(1000, '\xFF'));
  restart();
  click("Label9(1)");
  open_group("Sky");
  click("SelLab(0)");
  window().grab();
  EXPECT_TRUE(sees("Image1"));
}

TEST_F(GameWindow, TheDirectoryIsChangedWithADoubleClick) {
  folder.make_folder("Music");
  restart();
  form().desk.directory.Label17.visible = true;
  form().desk.directory.Dir6.visible = true;
  window().perform([] {});
  auto* list = static_cast<QListView*>(widget("Dir6"));
  const QModelIndex music = list->model()->match(list->model()->index(0, 0), Qt::DisplayRole, "Music")[0];
  const QPoint centre = list->visualRect(music).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
  EXPECT_EQ(form().desk.directory.Label16.caption, folder.path("Music"));
}

TEST_F(GameWindow, AFolderIsFoundByTypingAndOpenedWithEnter) {
  folder.make_folder("Music");
  restart();
  form().desk.directory.Label17.visible = true;
  form().desk.directory.Dir6.visible = true;
  window().perform([] {});
  auto* list = static_cast<ListView*>(widget("Dir6"));
  list->setFocus();
  QTest::keyClicks(list, "usi");
  ASSERT_EQ(list->model()->rowCount(), 1);
  EXPECT_EQ(list->model()->index(0, 0).data().toString(), "Music");
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(form().desk.directory.Label16.caption, folder.path("Music"));
  ASSERT_GT(list->model()->rowCount(), 0);
  EXPECT_EQ(list->model()->index(0, 0).data().toString(), "..");
  QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(form().desk.directory.Label16.caption, folder.path());
}

TEST_F(GameWindow, WorkShowsItsCaptionAndAProgressBarWhileItRuns) {
  for (int index = 0; index < 400; ++index) {
    store("Tweaks/Smoke/file " + std::to_string(index), std::string(4000, 'x'));
  }
  /// Looks at the window whenever it paints while the installation runs.
  class Watcher : public QObject {
   public:
    Watcher(ActionLabel* label, QProgressBar* bar, QLabel* file) : label_(label), file_(file) {
      bar->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() != QEvent::Paint) return false;
      working += label_->text() == "..working!" ? 1 : 0;
      named += file_->text().isEmpty() ? 0 : 1;
      return false;
    }
    int working = 0;
    int named = 0;

   private:
    ActionLabel* label_;
    QLabel* file_;
  };
  click("WhatsLoaded");
  Watcher watcher(static_cast<ActionLabel*>(widget("GameLoad")),
                  static_cast<QProgressBar*>(widget("Progress")),
                  static_cast<QLabel*>(widget("ProgressFile")));
  click("GameLoad");
  EXPECT_GE(watcher.working, 1);
  EXPECT_GE(watcher.named, watcher.working);
  EXPECT_FALSE(sees("Progress"));
  EXPECT_EQ(text("GameLoad"), "Process!");
}

}  // namespace
}  // namespace vorlund::test
