// Applies state after every event, shows progress while an action runs, and ends the program.
#include "window/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "version.h"
#include "window/accessibility.h"
#include "window/menu_view.h"
#include "window/picture_view.h"
#include "window/status_bar.h"
#include "window/theme.h"
#include "window/views.h"

namespace vorlund {

namespace {

constexpr int kPaintEveryMilliseconds = 50;
constexpr int kShownAfterMilliseconds = 100;  // what only reads shows its progress if it takes longer
constexpr QSize kUsualSize{1800, 980};        // so large that both tables have room
constexpr QSize kSmallestSize{960, 560};
constexpr QSize kMostSkins{1320, 1000};
constexpr QSize kMostLoad{560, 480};
constexpr QSize kMostSave{400, 400};
constexpr QSize kMostMenus{1080, 700};
constexpr QSize kMostHelp{1000, 640};
constexpr QSize kMostContents{1500, 1000};
constexpr auto kClosesAfterwards = "Vorlund closes when this is done";

}  // namespace

MainWindow::MainWindow(FileSystem& files, std::function<void(const QString&)> report_error)
    : report_error_(std::move(report_error)),
      form_(new Form1(files, *this, Version{kVersionMajor, kVersionMinor, kVersionRevision})) {
  setObjectName("Form1");
  setWindowTitle("Vorlund");
  setMinimumSize(kSmallestSize);
  speak_to_assistive_tools();
  add_views();
  status_bar_ = new StatusBar(this);
  status_bar_->help().on_release = [this](const MouseEvent&) {
    perform([this] { form_->HelpLabel_Click(); });
  };
  add_keys();
}

MainWindow::~MainWindow() {
  // The base class would hide its tables only after the grids they show are gone.
  hide();
}

PaneView* MainWindow::add(std::unique_ptr<PaneView> view) {
  views_.push_back(std::move(view));
  return views_.back().get();
}

PaneView* MainWindow::add_pane(MakeView make, const Frame& shown) {
  PaneView* pane = add(make(*form_, perform_, this));
  frames_.emplace_back(pane, &shown);
  return pane;
}

void MainWindow::add_views() {
  auto menu = std::make_unique<MenuView>(*form_, perform_, this);
  menu_ = menu.get();
  add(std::move(menu));
  add(group_labels_view(*form_, perform_, this));
  add(directory_view(*form_, perform_, this));
  add_pane(selection_pane_view, form_->selection.Frame3);
  game_view_ = add_pane(game_pane_view, form_->game.GameFrame);
  plane_view_ = add_pane(plane_pane_view, form_->plane.Frame1);
  add_pane(possible_skins_view, form_->possible_skins.Frame4);
  add_pane(load_pane_view, form_->load_pane.Frame2);
  add_pane(save_pane_view, form_->save_pane.SaveFrame);
  add_pane(menu_editor_view, form_->menu_editor.PMenFrame);
  late_panes_ = {{contents_view, &form_->contents.ContentsFrame}, {help_view, &form_->help.HelpFrame}};
}

void MainWindow::make_late_panes() {
  std::erase_if(late_panes_, [this](const LatePane& late) {
    if (late.frame->visible) add_pane(late.make, *late.frame);
    return late.frame->visible;
  });
}

void MainWindow::add_keys() {
  const auto on = [this](const QKeySequence& keys, void (Form1::*handler)()) {
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, this,
            [this, handler] { perform([&] { std::invoke(handler, *form_); }); });
  };
  on(Qt::CTRL | Qt::Key_Z, &Form1::take_back);
  on(Qt::CTRL | Qt::Key_Y, &Form1::do_again);
  on(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &Form1::do_again);
  on(Qt::Key_F1, &Form1::HelpLabel_Click);
}

/// Escape closes the pane in front.
void MainWindow::keyPressEvent(QKeyEvent* event) {
  const auto behind = [](const auto& a, const auto& b) {
    return std::pair(a.second->visible, a.second->depth) < std::pair(b.second->visible, b.second->depth);
  };
  const auto front = std::max_element(frames_.begin(), frames_.end(), behind);
  if (event->key() == Qt::Key_Escape && front->second->visible) {
    front->first->close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

bool MainWindow::start() {
  const QRect room = screen()->availableGeometry();
  const QPoint corner = theme::pixels(form_->place).topLeft() + room.topLeft();
  resize(kUsualSize.boundedTo(room.size() - QSize(2 * 66, 100)).expandedTo(kSmallestSize));
  move(corner);
  started_ = true;
  perform([this] { form_->Form_Load(); });
  if (failed_) return false;
  show();
  findChild<QWidget*>("Label17")->setFocus();
  return true;
}

void MainWindow::perform(const std::function<void()>& handler) {
  if (running_ || failed_ || form_->ended) return;
  running_ = true;
  leave_wanted_ = false;
  painted_.start();
  begun_.start();
  try {
    handler();
    status_bar_->end_progress();
    end_working();
    apply();
    if (close_wanted_) form_->ended = true;
    running_ = false;
    follow_requests();
  } catch (const std::exception& error) {
    end_working();
    report(error);
  }
  running_ = false;
}

/// Shows that clicks and keys do nothing for the moment, and drops them.
void MainWindow::begin_working() {
  if (working_ || !running_) return;
  working_ = true;
  setProperty(theme::kWorkingProperty, true);
  QApplication::setOverrideCursor(Qt::WaitCursor);
  qApp->installEventFilter(this);
}

void MainWindow::end_working() {
  if (!working_) return;
  QGuiApplication::sync();  // so that what was clicked until now arrives, and is dropped
  qApp->removeEventFilter(this);
  QApplication::restoreOverrideCursor();
  setProperty(theme::kWorkingProperty, false);
  working_ = false;
}

bool MainWindow::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::KeyPress && form_->contents.is_reading) {
    leave_wanted_ = leave_wanted_ || static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
  }
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::ContextMenu:
      return true;
    default:
      return false;
  }
}

void MainWindow::report(const std::exception& error) {
  failed_ = true;
  report_error_(QString::fromStdString(error.what()));
  QCoreApplication::exit(1);
}

void MainWindow::follow_requests() {
  if (form_->ended) QCoreApplication::exit(0);
  if (std::string text = std::exchange(form_->contents.to_copy, {}); !text.empty()) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
  }
  if (form_->minimise_wanted) {
    form_->minimise_wanted = false;
    showMinimized();
  }
}

void MainWindow::apply() {
  if (!started_) return;
  status_bar_->help().apply(form_->help.HelpLabel);
  status_bar_->say(QString::fromStdString(form_->desk.status_line.caption));
  place_panes();
  make_late_panes();
  for (const auto& view : views_) view->apply();
  follow_panes();
  menu_->show_whether_covered(table_is_covered(*form_));
  update();
}

void MainWindow::place_panes() {
  const int status = status_bar_->height();
  form_->selection.screen = {0, 0, theme::twips(width()), theme::twips(height() - status)};
  if (form_->selection.Frame3.visible) form_->selection.Frame3.place = form_->selection.screen;
  const QRect room = PaneLayout::room_in(size(), status);
  layout_.place_tables(*plane_view_, form_->plane.Frame1, *game_view_, form_->game.GameFrame, room);
  layout_.place(form_->possible_skins.Frame4, kMostSkins, room);
  layout_.place(form_->load_pane.Frame2, kMostLoad, room);
  layout_.place(form_->save_pane.SaveFrame, kMostSave, room);
  layout_.place(form_->menu_editor.PMenFrame, kMostMenus, room);
  layout_.place(form_->help.HelpFrame, kMostHelp, room);
  layout_.place(form_->contents.ContentsFrame, kMostContents, room);
}

/// Puts the panes in their order, and the focus where the user looks.
void MainWindow::follow_panes() {
  std::vector<std::pair<PaneView*, const Frame*>> sorted = frames_;
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const auto& a, const auto& b) { return a.second->depth < b.second->depth; });
  std::vector<int> order;
  std::vector<QWidget*> shown;
  for (const auto& [view, frame] : frames_) order.push_back(frame->depth);
  for (const auto& [view, frame] : sorted) {
    if (frame->visible) shown.push_back(view->frame());
  }
  if (order != shown_order_) {
    shown_order_ = order;
    for (const auto& [view, frame] : sorted) {
      view->frame()->raise();
      if (frame == &form_->selection.Frame3) menu_->raise_table_labels();
    }
    status_bar_->raise();
  }
  focus_.follow(shown);
}

void MainWindow::repaint() {
  begin_working();
  apply();
  QWidget::repaint();
  keep_alive();
}

void MainWindow::progress(const Progress& progress) {
  if (form_->contents.is_reading && begun_.elapsed() < kShownAfterMilliseconds) return;
  begin_working();
  if (status_bar_->shows_progress() && painted_.elapsed() < kPaintEveryMilliseconds) return;
  status_bar_->show_progress(
      progress.fraction,
      close_wanted_ ? QString(kClosesAfterwards)
                    : QString::fromUtf8(progress.file.data(), static_cast<qsizetype>(progress.file.size())));
  keep_alive();
}

void MainWindow::pulse() {
  if (painted_.elapsed() >= kPaintEveryMilliseconds) keep_alive();
}

void MainWindow::keep_alive() {
  painted_.restart();
  QCoreApplication::processEvents();
}

void MainWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QSize device = (QSizeF(size()) * devicePixelRatioF()).toSize();
  if (background_for_ != device) {
    background_ = decode_picture(form_->background, device, PictureFit::kCover);
    background_.setDevicePixelRatio(devicePixelRatioF());
    background_for_ = device;
  }
  painter.fillRect(rect(), theme::kPanel);
  if (background_.isNull()) return;
  const QSizeF drawn = background_.deviceIndependentSize();
  painter.drawPixmap(QPointF((width() - drawn.width()) / 2, (height() - drawn.height()) / 2), background_);
}

void MainWindow::resizeEvent(QResizeEvent*) {
  if (!running_) apply();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (running_) {
    close_wanted_ = true;
    status_bar_->set_progress_words(kClosesAfterwards);
    event->ignore();
    return;
  }
  form_->ended = true;
  event->accept();
}

void MainWindow::mousePressEvent(QMouseEvent* event) {
  pressed_ = true;
  pressed_at_ = event->globalPosition();
  place_at_press_ = pos();
  form_->place.left = theme::twips(pos().x());
  form_->place.top = theme::twips(pos().y());
  const MouseEvent pressed = to_model(event->button(), event->modifiers(), event->position());
  perform([&] { form_->Form_MouseDown(pressed); });
}

void MainWindow::mouseMoveEvent(QMouseEvent* event) {
  if (pressed_) move(place_at_press_ + (event->globalPosition() - pressed_at_).toPoint());
}

void MainWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (!pressed_) return;
  pressed_ = false;
  const QPointF moved = event->globalPosition() - pressed_at_;
  const QPointF pressed_position =
      pressed_at_ - (QPointF(place_at_press_) + QPointF(geometry().topLeft() - pos()));
  const MouseEvent released = to_model(event->button(), event->modifiers(), pressed_position + moved);
  perform([&] { form_->Form_MouseUp(released); });
  move(theme::pixels(form_->place).topLeft());
}

}  // namespace vorlund
