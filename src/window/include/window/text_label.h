// A label that only shows: cut off with dots where it has no room, then with a tooltip.
#pragma once

#include <QLabel>

#include "panes/controls.h"

namespace vorlund {

/// Shows one Label of the model in a single line. The mouse goes through to what lies behind it.
class TextLabel : public QLabel {
 public:
  enum class Tone { kPlain, kQuiet, kStrong, kHeading };

  TextLabel(const QString& name, Tone tone, QWidget* parent);

  /// Takes over caption and visibility.
  void apply(const Label& label);

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace vorlund
