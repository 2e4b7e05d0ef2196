// A hand on the real window: clicks controls by name as a user would.
#pragma once

#include <QPoint>
#include <QString>
#include <QTimer>
#include <QWidget>

namespace vorlund {

/// Sends mouse events to the widgets of a window that is shown. What a user could not click, because it is
/// hidden, disabled, covered or outside the window, is a std::runtime_error that says why; what lies in a
/// scrolled area is scrolled to first. An error report of the program is closed as soon as it shows.
class Hand {
 public:
  explicit Hand(QWidget& window);

  /// The widget of that object name; null when there is none or it is hidden.
  QWidget* find(const QString& name) const;

  /// True when the named control is shown.
  bool sees(const QString& name) const { return find(name) != nullptr; }

  void click(const QString& name);

  /// Clicks the first cell of a shown row of a table, counted from 0.
  void click_row(const QString& table, int row);

  /// Lets the window catch up with what was asked of it.
  void wait() const;

 private:
  void reach(QWidget& widget, const QPoint& point, const QString& name) const;
  void press(QWidget& widget, const QPoint& point, const QString& name);

  QWidget& window_;
  QTimer error_watch_;
};

}  // namespace vorlund
