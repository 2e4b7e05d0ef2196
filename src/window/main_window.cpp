// Applies state after every event, shows progress while an action runs, and ends the program.
#include "window/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "version.h"
#include "window/accessibility.h"
#include "window/action_label.h"
#include "window/contents_view.h"
#include "window/directory_view.h"
#include "window/game_pane_view.h"
#include "window/group_labels_view.h"
#include "window/help_view.h"
#include "window/load_pane_view.h"
#include "window/menu_editor_view.h"
#include "window/menu_view.h"
#include "window/picture_view.h"
#include "window/plane_pane_view.h"
#include "window/possible_skins_view.h"
#include "window/save_pane_view.h"
#include "window/selection_pane_view.h"
#include "window/theme.h"

namespace vorlund {

namespace {

constexpr int kStatusHeight = 34;
constexpr int kAroundStatus = 16;  // pixels above and below a status of several lines
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

}  // namespace

MainWindow::MainWindow(FileSystem& files, std::function<void(const QString&)> report_error)
    : report_error_(std::move(report_error)),
      form_(new Form1(files, *this, Version{kVersionMajor, kVersionMinor, kVersionRevision})) {
  setObjectName("Form1");
  setWindowTitle("Vorlund");
  setMinimumSize(kSmallestSize);
  speak_to_assistive_tools();
  add_views();
  add_status_bar();
  add_keys();
}

void MainWindow::add_status_bar() {
  status_bar_ = new QWidget(this);
  status_bar_->setStyleSheet("background: #111820;");
  status_bar_->setAttribute(Qt::WA_StyledBackground);
  status_text_ = new QLabel(status_bar_);
  status_text_->setObjectName("StatusLine");
  status_text_->setTextFormat(Qt::PlainText);
  status_text_->setWordWrap(true);
  status_text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  progress_text_ = new QLabel(status_bar_);
  progress_text_->setObjectName("ProgressFile");
  progress_text_->setTextFormat(Qt::PlainText);
  progress_bar_ = new QProgressBar(status_bar_);
  progress_bar_->setObjectName("Progress");
  progress_bar_->setAccessibleName("Progress");
  progress_bar_->setRange(0, 1000);
  progress_bar_->setTextVisible(false);
  progress_bar_->setFixedSize(240, 14);
  auto* layout = new QHBoxLayout(status_bar_);
  layout->setContentsMargins(18, 0, 18, 0);
  layout->addWidget(status_text_, 1);
  layout->addWidget(progress_text_);
  layout->addWidget(progress_bar_);
  layout->addWidget(help_ = new ActionLabel("HelpLabel", ActionLabel::Look::kRow, status_bar_));
  help_->setToolTip("Explains mouse, keys and columns on one page (F1)");
  help_->on_release = [this](const MouseEvent&) { perform([this] { form_->HelpLabel_Click(); }); };
  progress_bar_->hide();
  progress_text_->hide();
}

MainWindow::~MainWindow() {
  // The base class would hide its tables only after the grids they show are gone.
  hide();
}

void MainWindow::add_views() {
  const Perform perform = [this](const std::function<void()>& handler) { this->perform(handler); };
  const auto add = [this](auto view) {
    auto* raw = view.get();
    views_.push_back(std::move(view));
    return raw;
  };
  const auto add_pane = [&](auto view, const Frame& shown) {
    PaneView* pane = add(std::move(view));
    frames_.emplace_back(pane, &shown);
    return pane;
  };
  menu_ = add(std::make_unique<MenuView>(*form_, perform, this));
  add(std::make_unique<GroupLabelsView>(*form_, perform, this));
  add(std::make_unique<DirectoryView>(*form_, perform, this));
  add_pane(std::make_unique<SelectionPaneView>(*form_, perform, this), form_->selection.Frame3);
  game_view_ = add_pane(std::make_unique<GamePaneView>(*form_, perform, this), form_->game.GameFrame);
  plane_view_ = add_pane(std::make_unique<PlanePaneView>(*form_, perform, this), form_->plane.Frame1);
  add_pane(std::make_unique<PossibleSkinsView>(*form_, perform, this), form_->possible_skins.Frame4);
  add_pane(std::make_unique<LoadPaneView>(*form_, perform, this), form_->load_pane.Frame2);
  add_pane(std::make_unique<SavePaneView>(*form_, perform, this), form_->save_pane.SaveFrame);
  add_pane(std::make_unique<MenuEditorView>(*form_, perform, this), form_->menu_editor.PMenFrame);
  add_late_pane<ContentsView>(form_->contents.ContentsFrame);
  add_late_pane<HelpView>(form_->help.HelpFrame);
}

template <class View>
void MainWindow::add_late_pane(const Frame& shown) {
  late_panes_.push_back({&shown, [this] {
                           return std::make_unique<View>(
                               *form_, [this](const std::function<void()>& handler) { perform(handler); },
                               this);
                         }});
}

void MainWindow::make_late_panes() {
  for (LatePane& late : late_panes_) {
    if (!late.make || !late.frame->visible) continue;
    views_.push_back(std::exchange(late.make, nullptr)());
    frames_.emplace_back(views_.back().get(), late.frame);
  }
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
    progress_bar_->hide();
    progress_text_->hide();
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
  status_text_->setText(QString::fromStdString(form_->desk.status_line.caption));
  status_text_->setVisible(progress_bar_->isHidden());
  help_->apply(form_->help.HelpLabel);
  place_status_bar();
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

/// As high as its text needs, up to half of the window; what has no room then is in the tooltip.
void MainWindow::place_status_bar() {
  const QMargins margins = status_bar_->layout()->contentsMargins();
  const int room = width() - margins.left() - margins.right() - help_->sizeHint().width() -
                   status_bar_->layout()->spacing();
  const int wanted = status_text_->isHidden() ? 0 : status_text_->heightForWidth(room) + kAroundStatus;
  const int high = std::clamp(wanted, kStatusHeight, std::max(kStatusHeight, height() / 2));
  status_text_->setToolTip(wanted > high ? theme::literal(status_text_->text()) : QString());
  status_bar_->setGeometry(0, height() - high, width(), high);
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
  if (progress_bar_->isVisible() && painted_.elapsed() < kPaintEveryMilliseconds) return;
  status_text_->hide();
  progress_bar_->setValue(static_cast<int>(progress.fraction * 1000));
  progress_bar_->show();
  progress_text_->setText(
      close_wanted_ ? QStringLiteral("Vorlund closes when this is done")
                    : QString::fromUtf8(progress.file.data(), static_cast<qsizetype>(progress.file.size())));
  progress_text_->show();
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
    progress_text_->setText("Vorlund closes when this is done");
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
