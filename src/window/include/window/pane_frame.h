// A pane of the main window: a panel with a title that its free area moves or hides.
#pragma once

#include <QVBoxLayout>
#include <QWidget>
#include <functional>

#include "panes/controls.h"

namespace vorlund {

/// Shows one Frame of the model. Its content is laid out below the title.
class PaneFrame : public QWidget {
 public:
  /// What a press and release on the free area does.
  enum class FreeArea { kMoves, kHides };

  PaneFrame(const QString& name, FreeArea free_area, QWidget* parent);

  /// Called with the free area's presses and releases: those that move the pane, or of a click that hides it.
  std::function<void(const MouseEvent&)> on_press;
  std::function<void(const MouseEvent&)> on_release;
  /// Called for Escape where the pane does more about it than to close; null otherwise.
  std::function<void()> on_escape;

  /// Layout that the content goes into.
  [[nodiscard]] QVBoxLayout* content() const { return content_; }

  /// The least size at which nothing of the content is cut.
  QSize least_size();

  /// What lies below the title.
  [[nodiscard]] QRect body() const { return rect().adjusted(1, title_height() + 1, -1, -1); }

  /// Takes over caption, visibility and place. A pane never hangs out of its parent at the right or the
  /// bottom with its title out of reach.
  void apply(const Frame& frame);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QPoint within_reach(const QPoint& corner, int width) const;
  [[nodiscard]] QPoint dragged_to(const QMouseEvent& event) const;

  [[nodiscard]] int title_height() const;

  FreeArea free_area_;
  QVBoxLayout* content_;
  QString caption_;
  bool pressed_ = false;
  QPointF pressed_at_;
  QPoint place_at_press_;
};

}  // namespace vorlund
