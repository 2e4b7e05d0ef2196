// Mouse and keyboard of the aircraft window tests.
#include "window/aircraft_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QtTest/QTest>
#include <algorithm>
#include <filesystem>

#include "window/made_aircraft_game.h"

namespace vorlund::test {

namespace {

void enter_folder(std::string path) {
#ifndef _WIN32
  std::replace(path.begin(), path.end(), '\\', '/');
#endif
  std::filesystem::current_path(std::filesystem::path(std::u8string(path.begin(), path.end())));
}

}  // namespace

AircraftWindow::AircraftWindow() {
  make_aircraft_game(folder);
  restart();
}

AircraftWindow::~AircraftWindow() {
  window_.reset();
  std::filesystem::current_path(std::filesystem::temp_directory_path());
  EXPECT_EQ(error, "");
}

void AircraftWindow::restart() {
  enter_folder(folder.path());
  window_ =
      std::make_unique<MainWindow>(*files_, [this](const QString& text) { error = text.toStdString(); });
  if (!window_->start()) throw std::runtime_error("the window does not start: " + error);
  window_->resize(1200, 620);
  click("Label17");
}

QWidget* AircraftWindow::widget(const QString& name) {
  auto* found = window_->findChild<QWidget*>(name);
  if (found == nullptr) throw std::runtime_error("there is no widget " + name.toStdString());
  return found;
}

QString AircraftWindow::text(const QString& name) {
  QWidget* found = widget(name);
  if (auto* label = qobject_cast<QLabel*>(found)) return label->text();
  if (auto* button = qobject_cast<QAbstractButton*>(found)) return button->text();
  if (auto* edit = qobject_cast<QLineEdit*>(found)) return edit->text();
  throw std::runtime_error(name.toStdString() + " shows no text");
}

void AircraftWindow::click(const QString& name, Qt::MouseButton button) {
  QWidget* target = widget(name);
  click_at(target, target->rect().center(), button);
}

void AircraftWindow::click_at(QWidget* target, const QPoint& point, Qt::MouseButton button) {
  QApplication::processEvents();
  const QPoint spot = target->mapTo(window_.get(), point);
  QWidget* hit = window_->childAt(spot);
  const std::string name = target->objectName().toStdString();
  ASSERT_TRUE(target->isVisible()) << name << " is hidden";
  ASSERT_TRUE(window_->rect().contains(spot)) << name << " lies outside the window";
  ASSERT_TRUE(hit == target || target->isAncestorOf(hit))
      << name << " is covered by " << (hit ? hit->objectName().toStdString() : "nothing");
  QTest::mouseClick(target, button, Qt::NoModifier, point);
  QApplication::processEvents();
}

void AircraftWindow::click_cell(int row, int column) {
  auto* view = static_cast<GridView*>(widget("G1"));
  const int shown = view->grid_model().table_row(row);
  ASSERT_GE(shown, 0) << "row " << row << " is hidden";
  const QModelIndex index = view->grid_model().index(shown, column);
  view->scrollTo(index);
  click_at(view->viewport(), view->visualRect(index).center());
}

void AircraftWindow::click_entry(const QString& list, int index) {
  auto* view = static_cast<ListView*>(widget(list));
  const QModelIndex entry = view->model()->index(index, 0);
  ASSERT_TRUE(entry.isValid()) << list.toStdString() << " has no entry " << index;
  view->scrollTo(entry);
  click_at(view->viewport(), view->visualRect(entry).center());
}

void AircraftWindow::type(const QString& name, const QString& text) {
  QTest::keyClicks(widget(name), text);
}

void AircraftWindow::press_key(const QString& name, Qt::Key key) {
  QTest::keyClick(widget(name), key);
}

void AircraftWindow::drag(const QString& name, const QPoint& from, const QPoint& by, Qt::MouseButton button) {
  QWidget* target = widget(name);
  QTest::mousePress(target, button, Qt::NoModifier, from);
  // The widget follows the pointer, so that the release lies where the press lay within it.
  QMouseEvent move(QEvent::MouseMove, QPointF(from + by), QPointF(target->mapToGlobal(from + by)), button,
                   button, Qt::NoModifier);
  QApplication::sendEvent(target, &move);
  QTest::mouseRelease(target, button, Qt::NoModifier, from);
  QApplication::processEvents();
}

void AircraftWindow::open_aircraft_pane() {
  click("Label9(2)");
  click("Label1(0)");
  click("Label9(0)");
  click("Label2");
}

}  // namespace vorlund::test
