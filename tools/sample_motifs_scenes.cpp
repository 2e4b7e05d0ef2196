// Motifs with a place in the world: gun sight, hangar, ships, railway yard, airfield, searchlights,
// formations.
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "sample_aircraft.h"
#include "sample_motifs.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

void draw_roof(QPainter& painter, QPointF at, QSizeF size, double angle, const QColor& tone) {
  painter.save();
  painter.translate(at);
  painter.rotate(angle);
  const QRectF roof(-size.width() / 2, -size.height() / 2, size.width(), size.height());
  painter.fillRect(roof.translated(4, 5), QColor(0, 0, 0, 90));
  painter.fillRect(QRectF(roof.left(), roof.top(), roof.width(), roof.height() / 2), tone.lighter(118));
  painter.fillRect(QRectF(roof.left(), 0, roof.width(), roof.height() / 2), tone.darker(118));
  painter.restore();
}

void draw_ship(QPainter& painter, QPointF at, double length, double angle, Random& random) {
  painter.save();
  painter.translate(at);
  painter.rotate(angle);
  QLinearGradient foam(length * 0.3, 0, -length * 1.5, 0);
  foam.setColorAt(0, QColor(240, 248, 250, 150));
  foam.setColorAt(1, QColor(240, 248, 250, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(foam);
  painter.drawPolygon(QPolygonF({{length * 0.52, 0},
                                 {-length * 1.5, length * 0.26},
                                 {-length * 0.6, length * 0.05},
                                 {-length * 1.5, 0},
                                 {-length * 0.6, -length * 0.05},
                                 {-length * 1.5, -length * 0.26}}));
  const double half = length * 0.085;
  QPainterPath hull(QPointF(length * 0.5, 0));
  hull.quadTo(length * 0.25, -half, 0, -half);
  hull.lineTo(-length * 0.44, -half * 0.9);
  hull.quadTo(-length * 0.53, 0, -length * 0.44, half * 0.9);
  hull.lineTo(0, half);
  hull.quadTo(length * 0.25, half, length * 0.5, 0);
  painter.fillPath(hull.translated(3, 4), QColor(0, 10, 20, 110));
  painter.fillPath(hull, QColor(98, 104, 106));
  painter.setBrush(QColor(150, 136, 108));
  painter.drawPath(QTransform::fromScale(0.9, 0.72).map(hull));
  for (int k = -3; k < 3; ++k) {
    painter.fillRect(QRectF(k * length * 0.13 + 2, -half * 0.45, length * 0.07, half * 0.9),
                     random.chance(0.5) ? QColor(74, 72, 66) : QColor(122, 110, 88));
  }
  painter.fillRect(QRectF(-length * 0.09, -half * 0.7, length * 0.14, half * 1.4), QColor(206, 204, 196));
  painter.setBrush(QColor(60, 54, 52));
  painter.drawEllipse(QPointF(-length * 0.03, 0), half * 0.4, half * 0.4);
  painter.restore();
  painter.setPen(Qt::NoPen);
  for (int k = 0; k < 22; ++k) {
    const double reach = 1.5 + k * length * 0.006;
    painter.setBrush(QColor(70, 68, 70, std::max(0, 34 - k * 3 / 2)));
    painter.drawEllipse(at + QPointF(k * 2.2, -k * 1.3 + 1.5 * std::sin(k * 0.7)), reach, reach * 0.8);
  }
}

}  // namespace

void paint_distant_formation(QImage& picture, double x, double y, double size, int aircraft,
                             std::uint64_t seed) {
  Random random(seed);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPainterPath outline = distant_outline(Shape::kHeavy);
  for (int k = 0; k < aircraft; ++k) {
    const int row = (k + 1) / 2;
    const double side = k % 2 == 0 ? 1 : -1;
    const QPointF at(x + side * row * size * 1.25 + random.real(-0.15, 0.15) * size,
                     y + row * size * 0.42 + random.real(-0.1, 0.1) * size);
    painter.save();
    painter.translate(at);
    painter.rotate(random.real(-3, 3));
    painter.scale(size, size);
    painter.fillPath(outline, QColor(24, 26, 38, 220));
    painter.restore();
  }
}

void paint_reticle(QImage& picture, std::uint64_t seed) {
  Random random(seed);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.save();
  painter.translate(random.real(340, 400), random.real(160, 230));
  painter.rotate(random.real(-24, 24));
  painter.scale(88, 88);
  painter.fillPath(distant_outline(random.chance(0.5) ? Shape::kTwin : Shape::kInline),
                   QColor(36, 40, 46, 235));
  painter.restore();
  const QPointF middle(320, 200);
  for (const auto& [width, opacity] : {std::pair{11.0, 0.10}, {6.0, 0.22}, {2.4, 0.95}}) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(faded(QColor(255, 178, 70), opacity), width));
    painter.drawEllipse(middle, 112, 112);
    painter.drawLine(middle - QPointF(170, 0), middle - QPointF(54, 0));
    painter.drawLine(middle + QPointF(54, 0), middle + QPointF(170, 0));
    painter.drawLine(middle + QPointF(0, 54), middle + QPointF(0, 140));
    painter.setBrush(faded(QColor(255, 178, 70), opacity));
    painter.drawEllipse(middle, 2.5, 2.5);
  }
  QPainterPath glass;
  glass.addRoundedRect(QRectF(142, 22, 356, 330), 30, 30);
  QLinearGradient tint(142, 22, 498, 352);
  tint.setColorAt(0, QColor(210, 240, 225, 56));
  tint.setColorAt(0.45, QColor(210, 240, 225, 8));
  tint.setColorAt(1, QColor(210, 240, 225, 40));
  painter.fillPath(glass, tint);
  painter.strokePath(glass, QPen(QColor(40, 44, 42, 230), 5));
  QPainterPath coaming(QPointF(0, 420));
  coaming.lineTo(0, 372);
  coaming.quadTo(320, 318, 640, 372);
  coaming.lineTo(640, 420);
  QLinearGradient shade(0, 330, 0, 420);
  shade.setColorAt(0, QColor(58, 58, 54));
  shade.setColorAt(1, QColor(14, 14, 14));
  painter.fillPath(coaming, shade);
  painter.fillRect(QRectF(276, 338, 88, 60), QColor(26, 26, 26));
  painter.setPen(QPen(QColor(34, 36, 34), 16));
  painter.drawLine(QPointF(-10, 60), QPointF(84, 380));
  painter.drawLine(QPointF(650, 60), QPointF(556, 380));
  painter.end();
  darken_corners(picture, 0.35);
}

void paint_hangar(QImage& picture, const Mood& mood, std::uint64_t seed) {
  Random random(seed);
  QImage outside(picture.size(), QImage::Format_RGB32);
  paint_sky(outside, mood, 0.62, seed);
  paint_hills(outside, mood, 0.55, 3, seed + 3);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const Tint warm = mixed(mood.horizon, Tint(0.55, 0.42, 0.28), 0.55);
  QLinearGradient wall(0, 0, 0, 420);
  wall.setColorAt(0, QColor::fromRgb((warm * 0.13).rgb()));
  wall.setColorAt(1, QColor::fromRgb((warm * 0.34).rgb()));
  painter.fillRect(picture.rect(), wall);
  QPainterPath door(QPointF(110, 318));
  door.lineTo(110, 150);
  door.quadTo(320, 40, 530, 150);
  door.lineTo(530, 318);
  door.closeSubpath();
  painter.save();
  painter.setClipPath(door);
  painter.drawImage(QPointF(0, -20), outside);
  painter.restore();

  QLinearGradient floor(0, 318, 0, 420);
  floor.setColorAt(0, QColor::fromRgb((mood.horizon * 0.62).rgb()));
  floor.setColorAt(1, QColor::fromRgb((warm * 0.20).rgb()));
  painter.fillRect(QRectF(0, 318, 640, 102), floor);
  painter.setPen(QPen(QColor(0, 0, 0, 70), 1.4));
  for (int k = -9; k <= 9; ++k) {
    painter.drawLine(QPointF(320 + k * 26, 318), QPointF(320 + k * 92, 420));
  }
  for (const double y : {330.0, 346.0, 370.0, 402.0}) {
    painter.drawLine(QPointF(0, y), QPointF(640, y));
  }
  for (int k = 0; k < 5; ++k) {
    const double grow = 1 + k * 0.30;
    QPainterPath rib(QPointF(320 - 224 * grow, 340));
    rib.lineTo(320 - 224 * grow, 318 - 176 * grow);
    rib.quadTo(320, 318 - 306 * grow, 320 + 224 * grow, 318 - 176 * grow);
    rib.lineTo(320 + 224 * grow, 340);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor::fromRgb((warm * (0.34 - 0.04 * k)).rgb()), 5 + 2.5 * k));
    painter.drawPath(rib);
  }
  const int aircraft = random.between(1, 2);
  for (int k = 0; k < aircraft; ++k) {
    painter.save();
    painter.translate(aircraft == 1 ? 320 : 200 + k * 240, 268);
    const double size = aircraft == 1 ? 300 : 215;
    painter.save();
    painter.translate(0, size * 0.20);
    painter.scale(size, size * 0.08);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 110));
    painter.drawEllipse(QPointF(0, 0), 0.45, 0.5);
    painter.restore();
    painter.scale(size, size);
    const QColor metal(40, 44, 46);
    painter.setPen(Qt::NoPen);
    painter.setBrush(metal);
    painter.drawPolygon(
        QPolygonF({{-0.5, -0.07}, {0, 0.02}, {0.5, -0.07}, {0.5, -0.055}, {0, 0.07}, {-0.5, -0.055}}));
    painter.drawRect(QRectF(-0.20, -0.06, 0.40, 0.012));
    painter.drawRect(QRectF(-0.007, -0.22, 0.014, 0.16));
    QRadialGradient cowl(QPointF(-0.02, -0.03), 0.11);
    cowl.setColorAt(0, QColor(124, 130, 132));
    cowl.setColorAt(1, QColor(34, 38, 40));
    painter.setBrush(cowl);
    painter.drawEllipse(QPointF(0, 0), 0.078, 0.086);
    painter.setBrush(QColor(150, 180, 196));
    painter.drawEllipse(QPointF(0, -0.095), 0.034, 0.032);
    painter.setBrush(QColor(20, 20, 22));
    for (const double angle : {20.0, 140.0, 260.0}) {
      painter.save();
      painter.rotate(angle);
      painter.drawEllipse(QPointF(0, -0.10), 0.011, 0.095);
      painter.restore();
    }
    painter.setBrush(QColor(196, 160, 60));
    painter.drawEllipse(QPointF(0, 0), 0.022, 0.022);
    for (const double side : {-1.0, 1.0}) {
      painter.fillRect(QRectF(side * 0.13 - 0.006, 0.02, 0.012, 0.15), metal);
      painter.setBrush(QColor(16, 16, 16));
      painter.drawEllipse(QPointF(side * 0.13, 0.175), 0.014, 0.032);
    }
    painter.restore();
  }
  QLinearGradient beam(320, 60, 320, 420);
  beam.setColorAt(0, faded(QColor::fromRgb(mood.sun.rgb()), 0.20));
  beam.setColorAt(1, faded(QColor::fromRgb(mood.sun.rgb()), 0.02));
  painter.setPen(Qt::NoPen);
  painter.setBrush(beam);
  painter.drawPolygon(QPolygonF({{200, 90}, {440, 90}, {610, 420}, {60, 420}}));
  painter.end();
  add_grain(picture, 0.03, seed);
  darken_corners(picture, 0.55);
}

void paint_convoy(QImage& picture, std::uint64_t seed) {
  Random random(seed);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const double angle = random.real(-40, -12);
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 4; ++column) {
      const QPointF at(60 + column * 175.0 + row * 40 + random.real(-22, 22),
                       90 + row * 125.0 + random.real(-18, 18));
      draw_ship(painter, at, random.real(74, 108), angle + random.real(-3, 3), random);
    }
  }
}

void paint_railway(QImage& picture, std::uint64_t seed) {
  Random random(seed);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(320, 210);
  painter.rotate(random.real(-30, 30));
  QLinearGradient ballast(0, -86, 0, 86);
  ballast.setColorAt(0, QColor(104, 96, 84, 0));
  ballast.setColorAt(0.12, QColor(104, 96, 84));
  ballast.setColorAt(0.88, QColor(96, 90, 80));
  ballast.setColorAt(1, QColor(96, 90, 80, 0));
  painter.fillRect(QRectF(-420, -86, 840, 172), ballast);
  for (int track = -4; track <= 4; ++track) {
    const double y = track * 16.0;
    QPainterPath rails;
    rails.moveTo(-430, y * 0.25);
    rails.cubicTo(-330, y * 0.25, -320, y, -230, y);
    rails.lineTo(230, y);
    rails.cubicTo(320, y, 330, y * 0.25, 430, y * 0.25);
    painter.setPen(QPen(QColor(62, 50, 42), 6, Qt::CustomDashLine));
    QPen sleepers(QColor(66, 54, 46), 7);
    sleepers.setDashPattern({0.3, 0.5});
    painter.setPen(sleepers);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(rails);
    painter.setPen(QPen(QColor(176, 176, 180), 1));
    painter.drawPath(rails.translated(0, -1.8));
    painter.drawPath(rails.translated(0, 1.8));
    double x = random.real(-240, -120);
    const double end = random.real(40, 230);
    const QColor tones[] = {QColor(112, 66, 50), QColor(86, 88, 84), QColor(70, 78, 64),
                            QColor(120, 100, 76)};
    while (x < end && random.chance(0.97)) {
      painter.fillRect(QRectF(x + 2, y - 3, 24, 9), QColor(0, 0, 0, 100));
      painter.fillRect(QRectF(x, y - 4.5, 24, 9), tones[random.between(0, 3)]);
      x += 26;
    }
  }
  for (int k = 0; k < 9; ++k) {
    const double y = (k % 2 == 0 ? -1 : 1) * random.real(104, 150);
    draw_roof(painter, QPointF(-300 + k * 74.0, y), QSizeF(random.real(44, 70), random.real(24, 38)),
              random.real(-3, 3), k % 3 == 0 ? QColor(120, 76, 60) : QColor(104, 104, 100));
  }
  for (int k = 0; k < 22; ++k) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(236, 232, 226, std::max(0, 110 - k * 5)));
    painter.drawEllipse(QPointF(-120 + k * 7.0, -20 - k * 3.0 + 4 * std::sin(k)), 4 + k * 0.9, 4 + k * 0.7);
  }
}

void paint_airfield(QImage& picture, std::uint64_t seed) {
  Random random(seed);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(320, 210);
  painter.rotate(random.real(-40, 40));
  QRadialGradient grass(QPointF(0, 0), 330);
  grass.setColorAt(0, QColor(124, 142, 84, 235));
  grass.setColorAt(0.75, QColor(116, 134, 78, 205));
  grass.setColorAt(1, QColor(116, 134, 78, 0));
  painter.fillRect(QRectF(-380, -380, 760, 760), grass);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(150, 146, 134), 9));
  painter.drawEllipse(QPointF(0, 0), 258, 158);
  for (int k = 0; k < 20; ++k) {
    const double angle = k * 0.314 + random.real(-0.08, 0.08);
    const QPointF at(std::cos(angle) * 283, std::sin(angle) * 183);
    painter.setPen(QPen(QColor(150, 146, 134), 6));
    painter.drawLine(QPointF(std::cos(angle) * 258, std::sin(angle) * 158), at);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(146, 142, 130));
    painter.drawEllipse(at, 13, 13);
    if (random.chance(0.65)) {
      painter.save();
      painter.translate(at);
      painter.rotate(angle * 57 + random.real(60, 120));
      painter.scale(22, 22);
      painter.fillPath(outline_from_above(Shape::kTwin).translated(0.09, 0.12), QColor(0, 0, 0, 90));
      painter.fillPath(outline_from_above(Shape::kTwin), QColor(70, 76, 56));
      painter.restore();
    }
  }
  for (const double angle : {8.0, 68.0, 128.0}) {
    painter.save();
    painter.rotate(angle);
    const QRectF runway(angle < 20 ? -255 : -168, angle < 20 ? 24 : -14, angle < 20 ? 510 : 336, 26);
    painter.fillRect(runway, QColor(122, 120, 114));
    painter.setPen(QPen(QColor(236, 234, 224, 190), 1.8, Qt::DashLine));
    painter.drawLine(QPointF(runway.left() + 14, runway.center().y()),
                     QPointF(runway.right() - 14, runway.center().y()));
    painter.restore();
  }
  for (int k = 0; k < 4; ++k) {
    draw_roof(painter, QPointF(-96 + k * 62.0, -104), QSizeF(50, 36), 0,
              k % 2 == 0 ? QColor(94, 104, 82) : QColor(122, 112, 92));
  }
}

void paint_searchlights(QImage& picture, std::uint64_t seed) {
  Random random(seed);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  for (int k = 0; k < 110; ++k) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, random.between(30, 170)));
    const double reach = random.real(0.4, 1.1);
    painter.drawEllipse(QPointF(random.real(0, 640), random.real(0, 260)), reach, reach);
  }
  QRadialGradient fire(QPointF(random.real(120, 520), 400), 330);
  fire.setColorAt(0, QColor(255, 150, 60, 170));
  fire.setColorAt(0.4, QColor(200, 80, 40, 70));
  fire.setColorAt(1, QColor(120, 40, 30, 0));
  painter.fillRect(picture.rect(), fire);
  const QPointF caught(random.real(230, 420), random.real(80, 150));
  for (int k = 0; k < 6; ++k) {
    const QPointF lamp(30 + k * 116.0 + random.real(-24, 24), 402);
    const QPointF aim = k < 4 && k != 1 ? caught : QPointF(random.real(40, 600), -40);
    const QPointF ray = (aim - lamp) * 1.5;
    const double length = std::hypot(ray.x(), ray.y());
    const QPointF across(-ray.y() / length, ray.x() / length);
    QLinearGradient beam(lamp, lamp + ray);
    beam.setColorAt(0, QColor(225, 236, 255, 150));
    beam.setColorAt(0.6, QColor(205, 222, 255, 62));
    beam.setColorAt(1, QColor(205, 222, 255, 0));
    painter.setBrush(beam);
    painter.drawPolygon(QPolygonF(
        {lamp - across * 2, lamp + across * 2, lamp + ray + across * 26, lamp + ray - across * 26}));
  }
  for (int k = 0; k < 9; ++k) {
    const QPointF at = k == 0 ? caught : QPointF(random.real(60, 590), random.real(50, 210));
    painter.save();
    painter.translate(at);
    painter.rotate(60 + random.real(-8, 8));
    const double size = k == 0 ? 62 : random.real(24, 36);
    painter.scale(size, size);
    painter.fillPath(outline_from_above(Shape::kHeavy),
                     k == 0 ? QColor(232, 236, 244) : QColor(8, 10, 18, 235));
    painter.restore();
  }
  for (int k = 0; k < 15; ++k) {
    const QPointF at(random.real(60, 600), random.real(40, 230));
    QRadialGradient burst(at, random.real(5, 15));
    burst.setColorAt(0, QColor(255, 236, 190, 230));
    burst.setColorAt(0.35, QColor(255, 170, 80, 120));
    burst.setColorAt(1, QColor(255, 140, 60, 0));
    painter.setBrush(burst);
    painter.drawEllipse(at, 16, 16);
  }
  QPolygonF town({{0, 420}});
  for (double x = 0; x < 640;) {
    const double width = random.real(12, 40);
    const double top = 404 - random.real(4, 40);
    town << QPointF(x, top);
    if (random.chance(0.25)) {
      town << QPointF(x + width / 2, top - random.real(8, 26));
    }
    town << QPointF(x + width, top);
    x += width;
  }
  town << QPointF(640, 420);
  painter.setBrush(QColor(6, 8, 14));
  painter.drawPolygon(town);
  painter.end();
  add_grain(picture, 0.04, seed);
  darken_corners(picture, 0.45);
}

}  // namespace vorlund::sample
