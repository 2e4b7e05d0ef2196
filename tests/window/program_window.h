// The real window in a game folder of the test, used with mouse and keyboard.
#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QWidget>
#include <memory>
#include <string>

#include "support/temporary_folder.h"
#include "window/grid_view.h"
#include "window/list_view.h"
#include "window/main_window.h"

namespace vorlund::test {

/// Makes a folder the current one.
void enter_folder(std::string path);

/// Starts the program's window inside `folder`, once the test has filled it. What a user could not reach with
/// the mouse (hidden, covered, off the window) fails the test.
class ProgramWindow : public ::testing::Test {
 protected:
  ~ProgramWindow() override;

  /// Starts the program and takes the game directory as confirmed. A window that is there already is ended
  /// before, as when the program is started a second time.
  void restart();

  Form1& form() { return window_->form(); }
  MainWindow& window() { return *window_; }
  const CellTable& table() { return form().plane.G1; }

  /// The widget of that object name, which must exist.
  QWidget* widget(const QString& name);

  /// Whether a control is shown, and its text. Elements of the label arrays are addressed as all others,
  /// though a list shows them.
  bool sees(const QString& name);
  QString text(const QString& name);

  /// Name of the element of a label array with that caption, which must exist.
  QString label_of(const char* array, const QString& caption);

  /// Clicks a control, scrolled to first.
  void click(const QString& name, Qt::MouseButton button = Qt::LeftButton);
  void double_click(const QString& name);
  void click_at(QWidget* target, const QPoint& point, Qt::MouseButton button = Qt::LeftButton);

  /// Clicks a cell of `G1`, scrolled to first; the row must be shown.
  void click_cell(int row, int column);

  /// Clicks an entry of a list, scrolled to first.
  void click_entry(const QString& list, int index);

  void type(const QString& name, const QString& text);
  void press_key(const QString& name, Qt::Key key);

  /// Presses at one place of a widget and releases at another.
  void drag(const QString& name, const QPoint& from, const QPoint& by, Qt::MouseButton button);

  TemporaryFolder folder;
  std::string error;  ///< what the program reported before it ended, "" while all is well

 private:
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
  std::unique_ptr<MainWindow> window_;
};

}  // namespace vorlund::test
