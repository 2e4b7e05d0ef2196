// Aircraft as seen from above.
#include <cmath>

#include "sample_aircraft.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

/// Measures of an aircraft from above, as shares of its span; y grows from nose to tail.
struct Plan {
  double nose = -0.40;
  double tail = 0.46;
  double width = 0.085;  ///< of the fuselage
  double wing = -0.07;   ///< where a quarter of the wing's depth lies
  double root = 0.25;    ///< depth of the wing at the fuselage
  double tip = 0.12;     ///< and at its tip
  double sweep = 0.02;   ///< how far the tip lies behind the root
  bool elliptical = false;
  bool blunt = false;  ///< a radial engine in the nose
  int engines = 0;     ///< pairs under the wings
  double engine_x[2] = {0, 0};
  double engine_nose = -0.27;
  double engine_tail = 0.10;
  double engine_width = 0.065;
  double tail_span = 0.33;
  double tail_root = 0.12;
  double canopy_from = -0.06;
  double canopy_to = 0.14;
  double span = 1.0;
  bool propellers = true;
};

Plan plan_of(Shape shape) {
  Plan plan;
  switch (shape) {
    case Shape::kInline:
      break;
    case Shape::kElliptical:
      plan.elliptical = true;
      plan.root = 0.265;
      plan.nose = -0.39;
      plan.tail = 0.44;
      plan.width = 0.08;
      break;
    case Shape::kRadial:
      plan.blunt = true;
      plan.width = 0.115;
      plan.root = 0.25;
      plan.tip = 0.14;
      plan.nose = -0.37;
      plan.tail = 0.45;
      break;
    case Shape::kTwinBoom:
      plan.nose = -0.27;
      plan.tail = 0.17;
      plan.width = 0.068;
      plan.wing = -0.06;
      plan.root = 0.20;
      plan.tip = 0.085;
      plan.engines = 1;
      plan.engine_x[0] = 0.165;
      plan.engine_nose = -0.31;
      plan.engine_tail = 0.43;
      plan.engine_width = 0.058;
      plan.canopy_from = -0.14;
      plan.canopy_to = 0.02;
      break;
    case Shape::kTwin:
      plan.nose = -0.34;
      plan.tail = 0.42;
      plan.width = 0.085;
      plan.root = 0.215;
      plan.tip = 0.085;
      plan.engines = 1;
      plan.engine_x[0] = 0.18;
      plan.canopy_from = -0.24;
      plan.canopy_to = -0.02;
      plan.blunt = true;
      break;
    case Shape::kHeavy:
      plan.nose = -0.32;
      plan.tail = 0.40;
      plan.width = 0.072;
      plan.wing = -0.08;
      plan.root = 0.165;
      plan.tip = 0.06;
      plan.engines = 2;
      plan.engine_x[0] = 0.145;
      plan.engine_x[1] = 0.29;
      plan.engine_nose = -0.215;
      plan.engine_tail = 0.02;
      plan.engine_width = 0.048;
      plan.tail_root = 0.10;
      plan.canopy_from = -0.20;
      plan.canopy_to = -0.11;
      plan.blunt = true;
      break;
    case Shape::kDiveBomber:
      plan.nose = -0.36;
      plan.tail = 0.42;
      plan.root = 0.20;
      plan.tip = 0.155;
      plan.sweep = 0.05;
      plan.canopy_from = -0.10;
      plan.canopy_to = 0.17;
      break;
    case Shape::kJet:
      plan.nose = -0.44;
      plan.tail = 0.42;
      plan.width = 0.095;
      plan.root = 0.20;
      plan.tip = 0.085;
      plan.sweep = 0.10;
      plan.wing = -0.08;
      plan.engines = 1;
      plan.engine_x[0] = 0.19;
      plan.engine_nose = -0.20;
      plan.engine_tail = 0.14;
      plan.engine_width = 0.072;
      plan.propellers = false;
      plan.canopy_from = -0.10;
      plan.canopy_to = 0.08;
      break;
    case Shape::kFlyingBomb:
      plan.nose = -0.46;
      plan.tail = 0.48;
      plan.width = 0.105;
      plan.span = 0.78;
      plan.root = 0.14;
      plan.tip = 0.14;
      plan.sweep = 0;
      plan.tail_span = 0.28;
      plan.propellers = false;
      plan.canopy_to = plan.canopy_from;
      break;
  }
  return plan;
}

/// A wing or tailplane, both halves.
QPainterPath surface(double span, double root, double tip, double y, double sweep, bool elliptical) {
  constexpr int kSteps = 36;
  QPolygonF points;
  const auto depth_at = [&](double t) {
    if (elliptical) {
      return root * std::pow(1 - std::pow(t, 2.3), 0.55);
    }
    const double rounding = t > 0.88 ? std::sqrt(std::max(0.0, 1 - std::pow((t - 0.88) / 0.12, 2.0))) : 1.0;
    return (root + (tip - root) * t) * (0.25 + 0.75 * rounding) * (t >= 1 ? 0.0 : 1.0);
  };
  for (int k = -kSteps; k <= kSteps; ++k) {
    const double t = std::abs(static_cast<double>(k)) / kSteps;
    points << QPointF(k * span / 2 / kSteps, y + sweep * t - 0.32 * depth_at(t));
  }
  for (int k = kSteps; k >= -kSteps; --k) {
    const double t = std::abs(static_cast<double>(k)) / kSteps;
    points << QPointF(k * span / 2 / kSteps, y + sweep * t + 0.68 * depth_at(t));
  }
  QPainterPath path;
  path.addPolygon(points);
  path.closeSubpath();
  return path;
}

/// A body of revolution around the line x.
QPainterPath body(double x, double nose, double tail, double width, bool blunt, double end) {
  constexpr int kSteps = 40;
  QPolygonF right;
  QPolygonF left;
  for (int k = 0; k <= kSteps; ++k) {
    const double s = static_cast<double>(k) / kSteps;
    const double front =
        blunt ? std::min(1.0, std::pow(s / 0.07, 0.42)) : std::min(1.0, std::pow(s / 0.30, 0.55));
    const double back = s < 0.42 ? 1.0 : 1 - (1 - end) * std::pow((s - 0.42) / 0.58, 1.4);
    const double half = width / 2 * front * back * (k == kSteps ? 0.5 : 1.0);
    const double y = nose + (tail - nose) * s;
    right << QPointF(x + half, y);
    left.prepend(QPointF(x - half, y));
  }
  QPainterPath path;
  path.addPolygon(right + left);
  path.closeSubpath();
  return path;
}

struct Parts {
  QPainterPath wing;
  QPainterPath tailplane;
  QPainterPath fuselage;
  QPainterPath engines;
};

Parts parts_of(Shape shape) {
  const Plan plan = plan_of(shape);
  Parts parts;
  parts.wing = surface(plan.span, plan.root, plan.tip, plan.wing, plan.sweep, plan.elliptical);
  parts.fuselage = body(0, plan.nose, plan.tail, plan.width, plan.blunt, 0.16);
  const double tail_y = (shape == Shape::kTwinBoom ? plan.engine_tail : plan.tail) - plan.tail_root * 0.62;
  parts.tailplane = surface(plan.tail_span + (shape == Shape::kTwinBoom ? 0.06 : 0.0), plan.tail_root * 0.9,
                            plan.tail_root * 0.6, tail_y, 0.015, plan.elliptical);
  for (int k = 0; k < plan.engines; ++k) {
    for (const double x : {plan.engine_x[k], -plan.engine_x[k]}) {
      parts.engines.addPath(body(x, plan.engine_nose + 0.02 * k, plan.engine_tail, plan.engine_width,
                                 shape == Shape::kHeavy || shape == Shape::kJet, 0.3));
    }
  }
  return parts;
}

void shade_body(QPainter& painter, const QPainterPath& path) {
  for (const QPolygonF& polygon : path.toSubpathPolygons()) {
    QPainterPath single;
    single.addPolygon(polygon);
    const QRectF bounds = single.boundingRect();
    QLinearGradient light(bounds.topLeft(), bounds.topRight());
    light.setColorAt(0.0, QColor(0, 0, 0, 70));
    light.setColorAt(0.34, QColor(255, 255, 255, 75));
    light.setColorAt(0.55, QColor(255, 255, 255, 8));
    light.setColorAt(1.0, QColor(0, 0, 0, 125));
    painter.fillPath(single, light);
    painter.strokePath(single, QPen(QColor(0, 0, 0, 60), 0.003));
  }
}

void draw_panels(QPainter& painter, const Plan& plan, const QPainterPath& wing) {
  painter.save();
  painter.setClipPath(wing, Qt::IntersectClip);
  painter.setPen(QPen(QColor(0, 0, 0, 55), 0.0022));
  const double trailing = plan.wing + plan.root * 0.68;
  const double edge = plan.wing + plan.sweep + plan.tip * 0.68;
  for (const double side : {-1.0, 1.0}) {
    const double half = side * plan.span / 2;
    painter.drawLine(QPointF(half * 0.2, trailing - 0.05), QPointF(half, edge - 0.035));
    painter.drawLine(QPointF(half * 0.55, plan.wing - plan.root), QPointF(half * 0.55, trailing));
    painter.drawLine(QPointF(half * 0.33, plan.wing - plan.root), QPointF(half * 0.33, trailing));
    painter.drawLine(QPointF(half * 0.78, plan.wing - plan.root), QPointF(half * 0.78, trailing));
    painter.drawLine(QPointF(0, plan.wing + 0.01), QPointF(half, plan.wing + plan.sweep + 0.01));
  }
  painter.restore();
}

void draw_stripes(QPainter& painter, const Plan& plan, const Parts& parts) {
  painter.save();
  painter.setClipPath(parts.wing.united(parts.fuselage), Qt::IntersectClip);
  for (int k = 0; k < 5; ++k) {
    const QColor tone = k % 2 == 0 ? QColor(236, 236, 230) : QColor(30, 30, 32);
    for (const double side : {-1.0, 1.0}) {
      painter.fillRect(QRectF(side * (0.225 + 0.022 * k) - 0.011, -0.5, 0.022, 1.0), tone);
    }
    painter.fillRect(QRectF(-plan.width, plan.tail - 0.28 + 0.022 * k, plan.width * 2, 0.022), tone);
  }
  painter.restore();
}

void draw_propeller(QPainter& painter, double x, double y, double spinner_width, unsigned int spinner) {
  QLinearGradient blur(x - 0.15, y, x + 0.15, y);
  blur.setColorAt(0, QColor(235, 240, 245, 0));
  blur.setColorAt(0.15, QColor(230, 235, 240, 95));
  blur.setColorAt(0.85, QColor(30, 30, 34, 105));
  blur.setColorAt(1, QColor(30, 30, 34, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(blur);
  painter.drawEllipse(QPointF(x, y), 0.15, 0.008);
  QPainterPath hub;
  hub.moveTo(x - spinner_width / 2, y + 0.022);
  hub.quadTo(x - spinner_width / 2, y - 0.025, x, y - 0.035);
  hub.quadTo(x + spinner_width / 2, y - 0.025, x + spinner_width / 2, y + 0.022);
  hub.closeSubpath();
  painter.fillPath(hub, colour(spinner));
  shade_body(painter, hub);
}

void draw_canopy(QPainter& painter, const Plan& plan, Shape shape) {
  if (plan.canopy_to <= plan.canopy_from) {
    painter.fillPath(body(0, plan.tail - 0.42, plan.tail + 0.02, 0.05, true, 0.8), QColor(70, 74, 72));
    return;
  }
  const QPainterPath glass =
      body(0, plan.canopy_from, plan.canopy_to, plan.width * 0.62, true, shape == Shape::kTwin ? 0.5 : 0.25);
  QLinearGradient shine(0, plan.canopy_from, 0.02, plan.canopy_to);
  shine.setColorAt(0, QColor(205, 226, 240));
  shine.setColorAt(0.4, QColor(64, 84, 102));
  shine.setColorAt(1, QColor(120, 146, 166));
  painter.fillPath(glass, shine);
  painter.save();
  painter.setClipPath(glass, Qt::IntersectClip);
  painter.setPen(QPen(QColor(40, 46, 44, 190), 0.0035));
  const double step = (plan.canopy_to - plan.canopy_from) / 4;
  for (int k = 1; k < 4; ++k) {
    const double y = plan.canopy_from + step * k;
    painter.drawLine(QPointF(-0.1, y), QPointF(0.1, y));
  }
  painter.restore();
  painter.strokePath(glass, QPen(QColor(30, 34, 32, 170), 0.003));
}

}  // namespace

QPainterPath outline_from_above(Shape shape) {
  const Parts parts = parts_of(shape);
  return parts.wing.united(parts.tailplane).united(parts.fuselage).united(parts.engines);
}

void draw_from_above(QPainter& painter, Shape shape, const Paint& paint, std::uint64_t seed) {
  const Plan plan = plan_of(shape);
  const Parts parts = parts_of(shape);
  const QPainterPath outline =
      parts.wing.united(parts.tailplane).united(parts.fuselage).united(parts.engines);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(outline, colour(paint.upper));
  draw_camouflage(painter, paint, outline, seed);

  QLinearGradient across(0, plan.wing - plan.root * 0.32, 0, plan.wing + plan.root * 0.68);
  across.setColorAt(0.0, QColor(255, 255, 255, 60));
  across.setColorAt(0.35, QColor(255, 255, 255, 0));
  across.setColorAt(1.0, QColor(0, 0, 0, 60));
  painter.fillPath(parts.wing, across);
  QLinearGradient along(-0.5, 0, 0.5, 0);
  along.setColorAt(0, QColor(255, 255, 255, 42));
  along.setColorAt(0.5, QColor(0, 0, 0, 0));
  along.setColorAt(1, QColor(0, 0, 0, 70));
  painter.fillPath(outline, along);
  draw_panels(painter, plan, parts.wing);
  if (paint.stripes) {
    draw_stripes(painter, plan, parts);
  }
  if (paint.banded && shape != Shape::kTwinBoom) {
    painter.save();
    painter.setClipPath(parts.fuselage, Qt::IntersectClip);
    painter.fillRect(QRectF(-0.2, plan.tail - 0.21, 0.4, 0.05), colour(paint.band));
    painter.restore();
  }
  painter.strokePath(parts.wing, QPen(QColor(0, 0, 0, 70), 0.0028));
  painter.strokePath(parts.tailplane, QPen(QColor(0, 0, 0, 70), 0.0028));
  shade_body(painter, parts.fuselage);
  shade_body(painter, parts.engines);

  if (shape != Shape::kTwinBoom) {
    painter.fillPath(body(0, plan.tail - 0.13, plan.tail + 0.03, 0.014, false, 0.6),
                     paint.banded ? colour(paint.band) : colour(paint.upper).darker(125));
  } else {
    for (const double x : {-plan.engine_x[0], plan.engine_x[0]}) {
      painter.fillPath(body(x, plan.engine_tail - 0.10, plan.engine_tail + 0.03, 0.014, false, 0.6),
                       colour(paint.upper).darker(135));
    }
  }
  draw_canopy(painter, plan, shape);
  if (plan.propellers) {
    for (int k = 0; k < plan.engines; ++k) {
      for (const double x : {-plan.engine_x[k], plan.engine_x[k]}) {
        draw_propeller(painter, x, plan.engine_nose + 0.02 * k, plan.engine_width * 0.55, paint.spinner);
      }
    }
    if (plan.engines == 0) {
      draw_propeller(painter, 0, plan.nose, plan.width * (plan.blunt ? 0.4 : 0.55), paint.spinner);
    }
  }
  painter.restore();
}

void draw_camouflage(QPainter& painter, const Paint& paint, const QPainterPath& area, std::uint64_t seed) {
  Random random(seed);
  painter.save();
  painter.setClipPath(area, Qt::IntersectClip);
  const QRectF bounds = area.boundingRect();
  const auto anywhere = [&] {
    return QPointF(random.real(bounds.left(), bounds.right()), random.real(bounds.top(), bounds.bottom()));
  };
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour(paint.second));
  switch (paint.camouflage) {
    case Camouflage::kPlain:
      break;
    case Camouflage::kSplinter:
      for (int k = 0; k < 9; ++k) {
        const double x = bounds.left() + bounds.width() * (k + random.real(0.0, 0.4)) / 9;
        const double lean = random.real(-0.12, 0.12);
        const double width = random.real(0.05, 0.09);
        painter.drawPolygon(QPolygonF({{x, bounds.top()},
                                       {x + width, bounds.top()},
                                       {x + width + lean, bounds.center().y()},
                                       {x + width * 0.6 - lean, bounds.bottom()},
                                       {x - lean, bounds.bottom()},
                                       {x + lean * 0.6, bounds.center().y() + 0.03}}));
      }
      break;
    case Camouflage::kWaves:
      for (int k = 0; k < 6; ++k) {
        const double x = bounds.left() + bounds.width() * (k + 0.2) / 6;
        QPolygonF wave;
        for (int j = 0; j <= 8; ++j) {
          wave << QPointF(x + random.real(-0.05, 0.05), bounds.top() + bounds.height() * j / 8);
        }
        for (int j = 8; j >= 0; --j) {
          wave << QPointF(x + 0.085 + random.real(-0.04, 0.05), bounds.top() + bounds.height() * j / 8);
        }
        painter.drawPath(smooth_path(wave));
      }
      break;
    case Camouflage::kMottle:
    case Camouflage::kPatches: {
      const bool small = paint.camouflage == Camouflage::kMottle;
      for (int k = 0; k < (small ? 190 : 42); ++k) {
        const QPointF middle = anywhere();
        const double reach = small ? random.real(0.008, 0.024) : random.real(0.03, 0.075);
        QRadialGradient blot(middle, reach);
        blot.setColorAt(0, colour(paint.second));
        blot.setColorAt(small ? 0.5 : 0.75, faded(colour(paint.second), small ? 0.75 : 0.95));
        blot.setColorAt(1, faded(colour(paint.second), 0));
        painter.setBrush(blot);
        painter.drawEllipse(middle, reach, reach);
      }
      break;
    }
    case Camouflage::kMetal:
      for (int k = 0; k < 70; ++k) {
        const QPointF corner = anywhere();
        const int tone = random.between(0, 1) == 0 ? 255 : 40;
        painter.fillRect(QRectF(corner, QSizeF(random.real(0.03, 0.11), random.real(0.02, 0.06))),
                         QColor(tone, tone, tone, random.between(8, 26)));
      }
      break;
  }
  for (int k = 0; k < 26; ++k) {
    const QPointF from = anywhere();
    painter.setPen(QPen(QColor(20, 18, 16, random.between(8, 26)), random.real(0.002, 0.008)));
    painter.drawLine(from, from + QPointF(random.real(-0.01, 0.01), random.real(0.02, 0.09)));
  }
  painter.restore();
}

}  // namespace vorlund::sample
