// While an action runs: what is clicked and typed is dropped, and the window shows that it works.
#include <QApplication>
#include <QCloseEvent>
#include <QtTest/QTest>
#include <functional>

#include "support/forwarding_file_system.h"
#include "window/made_aircraft_game.h"
#include "window/program_window.h"

namespace vorlund::test {
namespace {

/// Does something in the midst of every copy, and of every copy that is foretold.
class Interrupted : public ForwardingFileSystem {
 public:
  using ForwardingFileSystem::ForwardingFileSystem;
  std::function<void()> in_the_midst = [] {};

  CopyOutcome copy_file(std::string_view source, std::string_view target, Durability durability) override {
    in_the_midst();
    return ForwardingFileSystem::copy_file(source, target, durability);
  }
  CopyForecast foresee_copy(std::string_view source, std::string_view target) override {
    in_the_midst();
    return ForwardingFileSystem::foresee_copy(source, target);
  }
};

class Working : public testing::Test {
 protected:
  Working() {
    make_aircraft_game(folder_);
    for (int file = 0; file < 20; ++file) {
      folder_.write("~Vorlund/GameStore/Sky/Dusk/" + std::to_string(file) + ".pal", "dusk");
    }
    folder_.write("~Vorlund/CurrentGameSet.txt", "Folder group\tFolder name\r\nSky\tDusk\r\n");
    folder_.write("Savedata/Default1.msn", "mission");
    enter_folder(folder_.path());
    window_ = std::make_unique<MainWindow>(files_, [](const QString&) { FAIL(); });
    window_->start();
    window_->resize(1200, 700);
    click("Label17");
    click("WhatsLoaded");
  }
  ~Working() override {
    window_.reset();
    std::filesystem::current_path(std::filesystem::temp_directory_path());
  }

  QWidget* widget(const char* name) { return window_->findChild<QWidget*>(name); }
  void click(const char* name) { QTest::mouseClick(widget(name), Qt::LeftButton); }

  TemporaryFolder folder_;
  std::unique_ptr<FileSystem> disk_ = make_platform_file_system();
  Interrupted files_{*disk_};
  std::unique_ptr<MainWindow> window_;
};

TEST_F(Working, ClicksAndKeysAreDropped) {
  int copies = 0;
  files_.in_the_midst = [&] {
    ++copies;
    click("Label5");
    click("DelMSN");
    QTest::keyClick(widget("ExitButton"), Qt::Key_Space);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const QPointF inside(5, 5);
      QCoreApplication::postEvent(widget("Label5"), new QMouseEvent(type, inside, inside, Qt::LeftButton,
                                                                    Qt::LeftButton, Qt::NoModifier));
    }
  };
  click("GameLoad");
  files_.in_the_midst = [] {};
  QApplication::processEvents();
  EXPECT_EQ(copies, 20);
  EXPECT_TRUE(folder_.has("19.pal")) << "\"Clean Up\" did not run after the installation";
  EXPECT_TRUE(folder_.has("Savedata/Default1.msn"));
  EXPECT_FALSE(window_->form().ended);
  click("DelMSN");
  EXPECT_FALSE(folder_.has("Savedata/Default1.msn")) << "clicks count again";
}

TEST_F(Working, TheCursorWaitsAndTheLabelsAreDimmed) {
  const QImage before = widget("Label9(0)")->grab().toImage();
  QImage meanwhile;
  Qt::CursorShape cursor = Qt::ArrowCursor;
  files_.in_the_midst = [&] {
    meanwhile = widget("Label9(0)")->grab().toImage();
    if (QApplication::overrideCursor() != nullptr) cursor = QApplication::overrideCursor()->shape();
  };
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  click("GameLoad");
  EXPECT_EQ(cursor, Qt::WaitCursor);
  EXPECT_NE(meanwhile, before);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(widget("Label9(0)")->grab().toImage(), before);
}

TEST_F(Working, EscapeLeavesALookIntoTheFolderAndNothingElse) {
  int files = 0;
  files_.in_the_midst = [&] {
    ++files;
    QTest::qSleep(30);
    if (files > 6) QTest::keyClick(window_.get(), Qt::Key_Escape);
  };
  click("Contents(0)");
  EXPECT_GT(files, 6);
  EXPECT_LT(files, 20);
  EXPECT_EQ(widget("ContentsFrame"), nullptr) << "it has never been shown";
  files = 0;
  click("GameLoad");
  EXPECT_EQ(files, 20);
  EXPECT_TRUE(folder_.has("19.pal"));
}

TEST_F(Working, ALookThatTakesLongShowsItsProgress) {
  bool shown_at_once = false;
  bool shown = false;
  int files = 0;
  files_.in_the_midst = [&] {
    if (++files == 1) shown_at_once = widget("Progress")->isVisible();
    QTest::qSleep(20);
    shown = shown || widget("Progress")->isVisible();
  };
  click("Contents(0)");
  EXPECT_FALSE(shown_at_once);
  EXPECT_TRUE(shown);
  EXPECT_TRUE(widget("ContentsFrame")->isVisible());
  EXPECT_FALSE(widget("Progress")->isVisible());
}

TEST_F(Working, TheWayToTheHelpStaysWhereItIsHoweverLongAFilesName) {
  const QRect place = widget("HelpLabel")->geometry();
  folder_.write("~Vorlund/GameStore/Sky/Dusk/" + std::string(200, 'W') + ".pal", "long");
  QRect meanwhile;
  files_.in_the_midst = [&] {
    QTest::qSleep(60);
    if (widget("Progress")->isVisible()) meanwhile = meanwhile.united(widget("HelpLabel")->geometry());
  };
  click("GameLoad");
  EXPECT_EQ(meanwhile, place);
}

TEST_F(Working, ClosingTheWindowIsDoneWhenTheActionHasEnded) {
  QString said;
  files_.in_the_midst = [&] {
    QCloseEvent close;
    QApplication::sendEvent(window_.get(), &close);
    EXPECT_FALSE(close.isAccepted());
    EXPECT_FALSE(window_->form().ended);
    said = static_cast<QLabel*>(widget("ProgressFile"))->text();
  };
  click("GameLoad");
  EXPECT_EQ(said, "Vorlund closes when this is done");
  EXPECT_TRUE(folder_.has("19.pal"));
  EXPECT_TRUE(folder_.read("~Vorlund/CurrentGameSet.txt").ends_with("Sky\tDusk\r\n"));
  EXPECT_TRUE(window_->form().ended);
}

}  // namespace
}  // namespace vorlund::test
