// Painting of check boxes and option buttons.
#include "window/choice_view.h"

#include <QPainter>

#include "window/theme.h"

namespace vorlund {

namespace {

void paint_dot(QPainter& painter, const QRectF& mark, bool checked) {
  painter.drawEllipse(mark);
  if (!checked) return;
  const double rim = mark.width() * 0.27;
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme::kAccent);
  painter.drawEllipse(mark.adjusted(rim, rim, -rim, -rim));
}

void paint_tick(QPainter& painter, const QRectF& mark, bool checked) {
  painter.drawRoundedRect(mark, 3, 3);
  if (!checked) return;
  const auto point = [&mark](double across, double down) {
    return QPointF(mark.left() + mark.width() * across, mark.top() + mark.height() * down);
  };
  painter.setPen(QPen(theme::kAccent, mark.width() * 0.15, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF({point(0.24, 0.54), point(0.43, 0.73), point(0.77, 0.29)}));
}

}  // namespace

void paint_choice(QAbstractButton& button) {
  QPainter painter(&button);
  painter.setRenderHint(QPainter::Antialiasing);
  const int side = button.fontMetrics().height();
  const QRectF mark(1.5, (button.height() - side) / 2.0 + 0.5, side - 2, side - 2);
  const bool lit = button.isEnabled() && (button.hasFocus() || button.underMouse());
  painter.setPen(QPen(lit ? theme::kAccent : button.isEnabled() ? theme::kQuietText : theme::kEdge, 1));
  painter.setBrush(theme::kField);
  if (qobject_cast<QRadioButton*>(&button) != nullptr) {
    paint_dot(painter, mark, button.isChecked());
  } else {
    paint_tick(painter, mark, button.isChecked());
  }
  painter.setPen(button.isEnabled() ? theme::kText : theme::kEdge.lighter(130));
  painter.drawText(button.rect().adjusted(side * 3 / 2, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                   button.text());
}

}  // namespace vorlund
