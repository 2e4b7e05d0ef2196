// Mouse and keyboard of the window tests.
#include "window/program_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QtTest/QTest>
#include <algorithm>
#include <filesystem>

namespace vorlund::test {

void enter_folder(std::string path) {
#ifndef _WIN32
  std::replace(path.begin(), path.end(), '\\', '/');
#endif
  std::filesystem::current_path(std::filesystem::path(std::u8string(path.begin(), path.end())));
}

ProgramWindow::~ProgramWindow() {
  window_.reset();
  std::filesystem::current_path(std::filesystem::temp_directory_path());
  EXPECT_EQ(error, "");
}

void ProgramWindow::restart() {
  enter_folder(folder.path());
  window_ =
      std::make_unique<MainWindow>(*files_, [this](const QString& text) { error = text.toStdString(); });
  if (!window_->start()) throw std::runtime_error("the window does not start: " + error);
  window_->resize(1200, 620);
  click("Label17");
}

QWidget* ProgramWindow::widget(const QString& name) {
  auto* found = window_->findChild<QWidget*>(name);
  if (found == nullptr) throw std::runtime_error("there is no widget " + name.toStdString());
  return found;
}

bool ProgramWindow::sees(const QString& name) {
  const ShownElement element = find_element(*window_, name);
  if (element.list == nullptr) return widget(name)->isVisible();
  return element.list->isVisible() && element.list->entries().row_of(element.index).isValid();
}

QString ProgramWindow::text(const QString& name) {
  const ShownElement element = find_element(*window_, name);
  if (element.list != nullptr) return element.list->entries().row_of(element.index).data().toString();
  QWidget* found = widget(name);
  if (auto* label = qobject_cast<QLabel*>(found)) return label->text();
  if (auto* button = qobject_cast<QAbstractButton*>(found)) return button->text();
  if (auto* edit = qobject_cast<QLineEdit*>(found)) return edit->text();
  throw std::runtime_error(name.toStdString() + " shows no text");
}

QString ProgramWindow::label_of(const char* array, const QString& caption) {
  const auto* list = dynamic_cast<ListView*>(widget(array));
  for (int row = 0; list != nullptr && row < list->entries().rowCount(); ++row) {
    const QModelIndex index = list->entries().index(row);
    if (index.data().toString() == caption) return element_name(array, list->entries().entry(index));
  }
  throw std::runtime_error("no label says " + caption.toStdString());
}

void ProgramWindow::double_click(const QString& name) {
  click(name);
  const ShownElement element = find_element(*window_, name);
  QTest::mouseDClick(element.list->viewport(), Qt::LeftButton, Qt::NoModifier,
                     element.list->reach(element.index).center());
  QApplication::processEvents();
}

void ProgramWindow::click(const QString& name, Qt::MouseButton button) {
  if (const ShownElement element = find_element(*window_, name); element.list != nullptr) {
    const QRect place = element.list->reach(element.index);
    ASSERT_TRUE(place.isValid()) << name.toStdString() << " is not shown";
    return click_at(element.list->viewport(), place.center(), button);
  }
  QWidget* target = widget(name);
  for (QWidget* parent = target->parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(parent)) area->ensureWidgetVisible(target);
  }
  click_at(target, target->rect().center(), button);
}

void ProgramWindow::click_at(QWidget* target, const QPoint& point, Qt::MouseButton button) {
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

void ProgramWindow::click_cell(int row, int column) {
  auto* view = static_cast<GridView*>(widget("G1"));
  const int shown = view->grid_model().table_row(row);
  ASSERT_GE(shown, 0) << "row " << row << " is hidden";
  const QModelIndex index = view->grid_model().index(shown, column);
  view->scrollTo(index);
  click_at(view->viewport(), view->visualRect(index).center());
}

void ProgramWindow::click_entry(const QString& list, int index) {
  auto* view = static_cast<ListView*>(widget(list));
  const QModelIndex entry = view->model()->index(index, 0);
  ASSERT_TRUE(entry.isValid()) << list.toStdString() << " has no entry " << index;
  view->scrollTo(entry);
  click_at(view->viewport(), view->visualRect(entry).center());
}

void ProgramWindow::type(const QString& name, const QString& text) {
  QTest::keyClicks(widget(name), text);
}

void ProgramWindow::press_key(const QString& name, Qt::Key key) {
  QTest::keyClick(widget(name), key);
}

void ProgramWindow::drag(const QString& name, const QPoint& from, const QPoint& by, Qt::MouseButton button) {
  QWidget* target = widget(name);
  QTest::mousePress(target, button, Qt::NoModifier, from);
  const QPoint there = target->mapToGlobal(from + by);
  QMouseEvent move(QEvent::MouseMove, QPointF(from + by), QPointF(there), button, button, Qt::NoModifier);
  QApplication::sendEvent(target, &move);
  // The widget has followed the pointer, as far as it can be dragged.
  QMouseEvent release(QEvent::MouseButtonRelease, QPointF(target->mapFromGlobal(there)), QPointF(there),
                      button, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(target, &release);
  QApplication::processEvents();
}

}  // namespace vorlund::test
