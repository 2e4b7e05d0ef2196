// The main window: shows the window object's state and hands events to it.
#pragma once

#include <QElapsedTimer>
#include <QPixmap>
#include <QWidget>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "disk/status.h"
#include "panes/form1.h"
#include "window/focus_keeper.h"
#include "window/pane_layout.h"
#include "window/views.h"

namespace vorlund {

class MenuView;
class StatusBar;

/// The one window of the program. Every event runs a handler of Form1 and then shows the state it left.
class MainWindow : public QWidget, private Status {
 public:
  /// `files` outlives the window. `report_error` shows an error to the user before the program ends.
  MainWindow(FileSystem& files, std::function<void(const QString&)> report_error);
  ~MainWindow() override;

  /// Runs start-up and shows the window; false when start-up failed and was reported.
  bool start();

  Form1& form() { return *form_; }

  /// Runs a handler and shows the state it left. An exception is reported, and the program ends with exit
  /// code 1. While a handler runs no other is started; what is clicked and typed while it works is dropped.
  void perform(const std::function<void()>& handler);

  /// True once an error has ended the program.
  [[nodiscard]] bool failed() const { return failed_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool focusNextPrevChild(bool next) override { return focus_.step(next); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void repaint() override;
  void progress(const Progress& progress) override;
  void pulse() override;
  bool leave_wanted() override { return leave_wanted_ || close_wanted_; }

  void add_views();
  PaneView* add(std::unique_ptr<PaneView> view);
  PaneView* add_pane(MakeView make, const Frame& shown);
  void make_late_panes();
  void add_keys();
  void place_panes();
  void apply();
  void follow_panes();
  void follow_requests();
  void report(const std::exception& error);
  void keep_alive();
  void begin_working();
  void end_working();

  std::function<void(const QString&)> report_error_;
  std::unique_ptr<Form1> form_;
  const Perform perform_ = [this](const std::function<void()>& handler) { perform(handler); };
  std::vector<std::unique_ptr<PaneView>> views_;
  MenuView* menu_ = nullptr;
  PaneView* plane_view_ = nullptr;
  PaneView* game_view_ = nullptr;
  std::vector<std::pair<PaneView*, const Frame*>> frames_;  ///< panes, each with its data
  struct LatePane {
    MakeView* make;
    const Frame* frame;
  };
  std::vector<LatePane> late_panes_;  ///< made when first shown: they would cost start-up and memory
  PaneLayout layout_;
  std::vector<int> shown_order_;
  FocusKeeper focus_{*this};
  StatusBar* status_bar_ = nullptr;
  QElapsedTimer painted_;
  QPixmap background_;
  QSize background_for_;
  bool running_ = false;
  bool working_ = false;       ///< the running handler has asked for the screen: it is a long one
  QElapsedTimer begun_;        ///< since the running handler began
  bool leave_wanted_ = false;  ///< Escape was pressed while it only read
  bool close_wanted_ = false;
  bool failed_ = false;
  bool started_ = false;
  bool pressed_ = false;
  QPointF pressed_at_;
  QPoint place_at_press_;
};

}  // namespace vorlund
