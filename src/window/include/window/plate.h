// A see-through dark plate that keeps text readable over any background picture.
#pragma once

#include <QPainter>
#include <QWidget>

#include "window/theme.h"

namespace vorlund {

/// Carries other widgets; its own free area lets clicks through to what it stands on.
class Plate : public QWidget {
 public:
  explicit Plate(QWidget* parent, const QColor& colour = theme::kPlate) : QWidget(parent), colour_(colour) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    theme::draw_plate(painter, rect(), colour_, QColor(0, 0, 0, 0));
  }

 private:
  QColor colour_;
};

}  // namespace vorlund
