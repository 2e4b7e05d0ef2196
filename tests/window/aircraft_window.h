// The real window on a made game folder, used with mouse and keyboard: for tests of the aircraft panes.
#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QWidget>
#include <memory>
#include <string>

#include "support/temporary_folder.h"
#include "ui/window/grid_view.h"
#include "ui/window/list_view.h"
#include "ui/window/main_window.h"

namespace vorlund::test {

/// Starts the program's window inside a made folder. What a user could not reach with the mouse (hidden,
/// covered, off the window) fails the test.
class AircraftWindow : public ::testing::Test {
 protected:
  AircraftWindow();
  ~AircraftWindow() override;

  /// Ends the window and starts it anew, as the next run of the program.
  void restart();

  Form1& form() { return window_->form(); }
  MainWindow& window() { return *window_; }
  const Grid& table() { return form().plane.table.G1; }

  /// The widget of that object name, which must exist.
  QWidget* widget(const QString& name);
  bool sees(const QString& name) { return widget(name)->isVisible(); }
  QString text(const QString& name);

  void click(const QString& name, Qt::MouseButton button = Qt::LeftButton);
  void click_at(QWidget* target, const QPoint& point, Qt::MouseButton button = Qt::LeftButton);

  /// Clicks a cell of `G1`, scrolled to first; the row must be shown.
  void click_cell(int row, int column);

  /// Clicks an entry of a list, scrolled to first.
  void click_entry(const QString& list, int index);

  void type(const QString& name, const QString& text);
  void press_key(const QString& name, Qt::Key key);

  /// Presses at one place of a widget and releases at another.
  void drag(const QString& name, const QPoint& from, const QPoint& by, Qt::MouseButton button);

  /// Chooses the flight-model group "Standard", opens the aircraft work and shows the plane table.
  void open_aircraft_pane();

  TemporaryFolder folder;
  std::string error;  ///< what the program reported before it ended, "" while all is well

 private:
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
  std::unique_ptr<MainWindow> window_;
};

}  // namespace vorlund::test
