// Keeps the keyboard with what the user sees: no covered control has the focus or can be reached.
#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <vector>

namespace vorlund {

/// True when at least half of the control can be seen in its window, other panes in front of it reckoned
/// with. Of a control that is scrolled, the scrolled area counts.
bool is_seen(const QWidget& control);

/// Moves the focus when panes of a window open and close.
class FocusKeeper {
 public:
  explicit FocusKeeper(QWidget& window) : window_(window) {}

  /// Takes over which panes are shown now, from back to front. A pane that has come to the front gets the
  /// focus; when it is gone again the focus goes back to where it was. A covered control loses it.
  void follow(const std::vector<QWidget*>& shown);

  /// Moves the focus to the next control that is seen, or to the one before; false where there is none.
  bool step(bool forward);

 private:
  [[nodiscard]] QWidget* first_in(const QWidget& pane) const;

  QWidget& window_;
  std::vector<QWidget*> shown_;
  std::map<const QWidget*, QPointer<QWidget>> focus_before_;  ///< by pane, from when it came to the front
};

}  // namespace vorlund
