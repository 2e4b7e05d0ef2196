// Finds, reaches and clicks the controls of a window.
#include "hand.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QScrollArea>
#include <QTest>
#include <stdexcept>

#include "window/list_view.h"

namespace vorlund {

namespace {

constexpr int kCatchUpMilliseconds = 5;

[[noreturn]] void refuse(const QString& name, const QString& reason) {
  throw std::runtime_error(QString("%1 can't be clicked: %2").arg(name, reason).toStdString());
}

}  // namespace

Hand::Hand(QWidget& window) : window_(window) {
  QObject::connect(&error_watch_, &QTimer::timeout, [] {
    if (QWidget* box = QApplication::activeModalWidget()) box->close();
  });
  error_watch_.start(100);
  wait();
}

QWidget* Hand::find(const QString& name) const {
  for (QWidget* widget : window_.findChildren<QWidget*>(name)) {
    if (widget->isVisible()) return widget;
  }
  return nullptr;
}

void Hand::click(const QString& name) {
  if (const ShownElement element = find_element(window_, name); element.list != nullptr) {
    if (!element.list->isVisible()) refuse(name, "it is not shown");
    const QRect place = element.list->reach(element.index);
    if (!place.isValid()) refuse(name, "its list does not show it");
    return press(*element.list->viewport(), place.center(), name);
  }
  QWidget* widget = find(name);
  if (widget == nullptr) refuse(name, "it is not shown");
  press(*widget, widget->rect().center(), name);
}

void Hand::click_row(const QString& table, int row) {
  auto* view = qobject_cast<QAbstractItemView*>(find(table));
  if (view == nullptr) refuse(table, "it is no table that is shown");
  const QModelIndex cell = view->model()->index(row, 0);
  if (!cell.isValid()) refuse(table, QString("it has no row %1").arg(row));
  view->scrollTo(cell);
  press(*view->viewport(), view->visualRect(cell).center(), table);
}

void Hand::wait() const {
  QTest::qWait(kCatchUpMilliseconds);
}

void Hand::reach(QWidget& widget, const QPoint& point, const QString& name) const {
  for (QWidget* parent = widget.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(parent)) area->ensureWidgetVisible(&widget);
  }
  if (!widget.isEnabled()) refuse(name, "it is disabled");
  const QPoint in_window = widget.mapTo(&window_, point);
  QWidget* hit = window_.childAt(in_window);
  if (hit == nullptr) refuse(name, "it lies outside the window");
  if (hit != &widget && !widget.isAncestorOf(hit)) refuse(name, "it is covered by " + hit->objectName());
}

void Hand::press(QWidget& widget, const QPoint& point, const QString& name) {
  reach(widget, point, name);
  QTest::mouseMove(&widget, point);
  QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, point);
  wait();
}

}  // namespace vorlund
