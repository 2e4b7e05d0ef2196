// The foot of the window: what the last action has come to, or the progress of a running one, and the way to
// the help.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

#include "window/action_label.h"
#include "window/text_label.h"

namespace vorlund {

/// Keeps its place at the foot of its parent.
class StatusBar : public QWidget {
 public:
  explicit StatusBar(QWidget* parent);

  /// The label that opens the help.
  [[nodiscard]] ActionLabel& help() const { return *help_; }

  /// Shows what an action has come to, unless progress is shown, and takes as much height as it needs, up to
  /// half of the parent's; what has no room then is in the tooltip.
  void say(const QString& text);

  /// Shows the share of an action that is done, 0 to 1, and what it is at.
  void show_progress(double fraction, const QString& words);

  /// Shows another word of a progress that is shown, if any.
  void set_progress_words(const QString& words) { progress_text_->setText(words); }

  [[nodiscard]] bool shows_progress() const { return progress_bar_->isVisible(); }

  /// From the next `say` on that is shown again.
  void end_progress();

 private:
  QLabel* text_;
  TextLabel* progress_text_;
  QProgressBar* progress_bar_;
  ActionLabel* help_;
};

}  // namespace vorlund
