// A label that acts: looks, focuses and speaks to assistive tools as a button, and can be dragged.
#pragma once

#include <QAbstractButton>
#include <QPoint>
#include <functional>

#include "panes/controls.h"

namespace vorlund {

/// The mouse event of the model that a Qt event stands for, at a position within the control.
MouseEvent to_model(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, const QPointF& position);

/// True for the keys that do what a click does: Enter and Space.
bool activates(const QKeyEvent& event);

/// Shows one Label of the model and hands its presses and releases back.
class ActionLabel : public QAbstractButton {
 public:
  enum class Look {
    kPlate,    ///< on a background picture: the main menu, group labels
    kButton,   ///< a command of a pane
    kPrimary,  ///< the main command of a pane
    kRow,      ///< one of many entries
    kHelp,     ///< a text of as many lines as it needs
  };
  enum class Drag { kNo, kRightButton };

  ActionLabel(const QString& name, Look look, QWidget* parent, Drag drag = Drag::kNo);

  /// Called for each press, and for each release that commands or ends a drag. The left button inside the
  /// label, Enter and Space command; a label that can be dragged also hands on the middle button inside it,
  /// and the right one wherever it is released. Further buttons do nothing.
  std::function<void(const MouseEvent&)> on_press;
  std::function<void(const MouseEvent&)> on_release;
  std::function<void()> on_double_click;

  /// Gives the tooltip of the moment, where it is not always the same.
  std::function<QString()> tool_tip_now;

  /// Changes the look from then on.
  void set_look(Look look);
  [[nodiscard]] Look look() const { return look_; }

  /// Shown as of no use for the moment; it acts all the same.
  void set_dimmed(bool dimmed);
  [[nodiscard]] bool is_dimmed() const { return dimmed_; }

  /// Takes over caption, colour and visibility; the place is the owner's business.
  void apply(const Label& label);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] int heightForWidth(int width) const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void command(Qt::KeyboardModifiers modifiers);
  [[nodiscard]] QColor fill() const;
  [[nodiscard]] QRect text_area() const;
  [[nodiscard]] QFont shown_font() const;
  [[nodiscard]] bool marked() const;
  [[nodiscard]] bool wraps() const;

  Look look_;
  Drag drag_;
  QColor text_colour_;
  bool dimmed_ = false;
  Qt::MouseButton held_ = Qt::NoButton;
  QPointF pressed_at_;
  QPoint place_at_press_;
};

}  // namespace vorlund
