// Motifs on metal panels: dials, sliders and cells of bytes.
#include <QPainter>
#include <cmath>
#include <numbers>

#include "sample_motifs.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

QRgb* line_of(QImage& picture, int y) {
  return reinterpret_cast<QRgb*>(picture.scanLine(y));
}

void paint_brushed(QImage& picture, const Tint& tone, std::uint64_t seed) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const double grain = layered_noise(x * 0.02, y * 0.9, 3, seed) - 0.5;
      const double broad = layered_noise(x * 0.004, y * 0.004, 2, seed + 1) - 0.5;
      line_of(picture, y)[x] = (tone * (1 + 0.22 * grain + 0.5 * broad)).rgb();
    }
  }
}

void draw_screw(QPainter& painter, QPointF at, double angle) {
  QRadialGradient head(at - QPointF(2, 2), 9);
  head.setColorAt(0, QColor(190, 190, 186));
  head.setColorAt(1, QColor(52, 52, 50));
  painter.setPen(QPen(QColor(0, 0, 0, 150), 1));
  painter.setBrush(head);
  painter.drawEllipse(at, 6.0, 6.0);
  painter.setPen(QPen(QColor(20, 20, 20), 1.6));
  const QPointF arm(4.4 * std::cos(angle), 4.4 * std::sin(angle));
  painter.drawLine(at - arm, at + arm);
}

void draw_dial(QPainter& painter, QPointF at, double radius, const QColor& ink, bool glowing,
               Random& random) {
  QRadialGradient bezel(at - QPointF(radius * 0.4, radius * 0.5), radius * 2.0);
  bezel.setColorAt(0, glowing ? QColor(70, 74, 76) : QColor(150, 150, 146));
  bezel.setColorAt(0.6, QColor(34, 34, 34));
  bezel.setColorAt(1, QColor(12, 12, 12));
  painter.setPen(QPen(QColor(0, 0, 0, 180), 1.5));
  painter.setBrush(bezel);
  painter.drawEllipse(at, radius * 1.14, radius * 1.14);
  QRadialGradient face(at, radius);
  face.setColorAt(0, glowing ? QColor(16, 20, 20) : QColor(38, 38, 38));
  face.setColorAt(1, QColor(10, 10, 11));
  painter.setBrush(face);
  painter.drawEllipse(at, radius, radius);

  const double from = random.real(2.0, 2.7);
  const double sweep = random.real(4.2, 5.3);
  const int ticks = 10 * random.between(3, 6);
  const auto point = [&](double angle, double reach) {
    return at + QPointF(std::cos(angle), std::sin(angle)) * radius * reach;
  };
  painter.setBrush(Qt::NoBrush);
  if (random.chance(0.6)) {
    const QColor arcs[] = {QColor(70, 150, 80), QColor(214, 170, 60), QColor(190, 56, 44)};
    double start = sweep * random.real(0.3, 0.5);
    for (const QColor& arc : arcs) {
      const double length = sweep * random.real(0.10, 0.16);
      painter.setPen(QPen(arc, radius * 0.05, Qt::SolidLine, Qt::FlatCap));
      const double r = radius * 0.93;
      painter.drawArc(QRectF(at.x() - r, at.y() - r, 2 * r, 2 * r),
                      static_cast<int>(-(from + start) * 2880 / std::numbers::pi),
                      static_cast<int>(-length * 2880 / std::numbers::pi));
      start += length;
    }
  }
  for (int k = 0; k <= ticks; ++k) {
    const double angle = from + sweep * k / ticks;
    const bool major = k % 5 == 0;
    painter.setPen(QPen(ink, major ? radius * 0.035 : radius * 0.016));
    painter.drawLine(point(angle, major ? 0.72 : 0.79), point(angle, 0.88));
    if (k % 10 == 0) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(ink);
      painter.drawEllipse(point(angle, 0.60), radius * 0.035, radius * 0.035);
      painter.setBrush(Qt::NoBrush);
    }
  }
  const double needle = from + sweep * random.real(0.1, 0.85);
  painter.setPen(QPen(ink.lighter(118), radius * 0.045, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(point(needle, -0.20), point(needle, 0.74));
  if (random.chance(0.4)) {
    const double second = from + sweep * random.real(0.1, 0.9);
    painter.setPen(QPen(ink, radius * 0.06, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(at, point(second, 0.45));
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(28, 28, 28));
  painter.drawEllipse(at, radius * 0.09, radius * 0.09);
  QLinearGradient glass(point(3.9, 1), point(0.8, 1));
  glass.setColorAt(0, QColor(255, 255, 255, glowing ? 26 : 66));
  glass.setColorAt(0.5, QColor(255, 255, 255, 0));
  painter.setBrush(glass);
  painter.drawEllipse(at, radius, radius);
}

}  // namespace

void paint_dials(QImage& picture, PanelLight light, std::uint64_t seed) {
  Random random(seed);
  const bool night = light == PanelLight::kNight;
  const Tint panels[] = {Tint(0.20, 0.21, 0.20), Tint(0.24, 0.29, 0.25), Tint(0.27, 0.28, 0.31),
                         Tint(0.17, 0.17, 0.18)};
  paint_brushed(picture, panels[seed % 4] * (night ? 0.42 : 1.0), seed);
  const QColor inks[] = {QColor(150, 240, 170), QColor(255, 150, 90), QColor(150, 205, 255)};
  const QColor ink = night ? inks[seed / 4 % 3] : QColor(238, 234, 220);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 4; ++column) {
      const double radius = random.real(54, 66) - (row == 0 ? 0 : 8);
      const QPointF at(86 + column * 156 + random.real(-5, 5), 118 + row * 182 + random.real(-6, 6));
      if (night) {
        QRadialGradient glow(at, radius * 1.8);
        glow.setColorAt(0, faded(ink, 0.30));
        glow.setColorAt(1, faded(ink, 0));
        painter.fillRect(picture.rect(), glow);
      }
      draw_dial(painter, at, radius, ink, night, random);
      draw_screw(painter, at + QPointF(radius * 0.98, radius * 0.98), random.real(0, 3));
      draw_screw(painter, at + QPointF(-radius * 0.98, -radius * 0.98), random.real(0, 3));
    }
  }
  for (int k = 0; k < 9; ++k) {
    const QPointF at(70 + k * 62.0, 388);
    const QColor lamp = k % 4 == 1   ? QColor(200, 60, 40)
                        : k % 4 == 3 ? QColor(80, 170, 90)
                                     : QColor(70, 70, 66);
    QRadialGradient bulb(at - QPointF(2, 3), 10);
    bulb.setColorAt(0, lamp.lighter(180));
    bulb.setColorAt(1, lamp.darker(190));
    painter.setPen(QPen(QColor(8, 8, 8), 2.5));
    painter.setBrush(bulb);
    painter.drawEllipse(at, 9, 9);
  }
  painter.end();
  darken_corners(picture, night ? 0.7 : 0.5);
}

void paint_sliders(QImage& picture, std::uint64_t seed) {
  Random random(seed);
  paint_brushed(picture, Tint(0.36, 0.37, 0.36), seed);
  const QColor tones[] = {QColor(222, 160, 64), QColor(96, 168, 176), QColor(186, 92, 70),
                          QColor(150, 176, 92)};
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  for (int k = 0; k < 7; ++k) {
    const double x = 62 + k * 62.0;
    const double value = random.real(0.12, 0.88);
    painter.setPen(QPen(QColor(0, 0, 0, 160), 1));
    painter.setBrush(QColor(18, 18, 18));
    painter.drawRoundedRect(QRectF(x - 5, 54, 10, 310), 5, 5);
    const QColor tone = tones[(static_cast<std::size_t>(k) + seed) % 4];
    painter.setBrush(tone);
    painter.drawRoundedRect(QRectF(x - 3, 54 + 310 * (1 - value), 6, 310 * value - 3), 3, 3);
    for (int tick = 0; tick <= 10; ++tick) {
      painter.setPen(QPen(QColor(235, 232, 220, 170), tick % 5 == 0 ? 2 : 1));
      painter.drawLine(QPointF(x + 12, 60 + tick * 29.8),
                       QPointF(x + (tick % 5 == 0 ? 24 : 19), 60 + tick * 29.8));
    }
    QLinearGradient grip(x - 17, 0, x + 17, 0);
    grip.setColorAt(0, QColor(96, 96, 94));
    grip.setColorAt(0.4, QColor(236, 234, 226));
    grip.setColorAt(1, QColor(70, 70, 68));
    painter.setPen(QPen(QColor(0, 0, 0, 170), 1.4));
    painter.setBrush(grip);
    painter.drawRoundedRect(QRectF(x - 17, 54 + 310 * (1 - value) - 12, 34, 24), 5, 5);
    painter.fillRect(QRectF(x - 14, 54 + 310 * (1 - value) - 1.5, 28, 3), tone.darker(130));
  }
  draw_dial(painter, QPointF(556, 116), 62, QColor(240, 236, 222), false, random);
  for (int k = 0; k < 2; ++k) {
    const QPointF at(556, 248 + k * 96.0);
    QConicalGradient knob(at, random.real(0, 360));
    for (int j = 0; j <= 8; ++j) {
      knob.setColorAt(j / 8.0, j % 2 == 0 ? QColor(60, 60, 60) : QColor(120, 120, 118));
    }
    painter.setPen(QPen(QColor(0, 0, 0, 200), 2));
    painter.setBrush(knob);
    painter.drawEllipse(at, 36, 36);
    const double angle = random.real(0, 6.2);
    painter.setPen(QPen(tones[(static_cast<std::size_t>(k) + seed) % 4], 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(at + QPointF(std::cos(angle), std::sin(angle)) * 12,
                     at + QPointF(std::cos(angle), std::sin(angle)) * 31);
  }
  for (const QPointF at : {QPointF(20, 20), QPointF(620, 20), QPointF(20, 400), QPointF(620, 400)}) {
    draw_screw(painter, at, random.real(0, 3));
  }
  painter.end();
  darken_corners(picture, 0.45);
}

void paint_bytes(QImage& picture, std::uint64_t seed) {
  Random random(seed);
  paint_brushed(picture, Tint(0.10, 0.13, 0.16), seed);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const QColor changed[] = {QColor(244, 178, 74), QColor(110, 206, 190), QColor(236, 112, 96)};
  const QColor tone = changed[seed % 3];
  int run = 0;
  for (int row = 0; row < 16; ++row) {
    for (int column = 0; column < 24; ++column) {
      if (run == 0 && random.chance(0.035)) {
        run = random.between(2, 9);
      }
      const QRectF cell(24 + column * 24.8, 20 + row * 24.0, 20, 18);
      if (run > 0) {
        --run;
        painter.setBrush(faded(tone, 0.20));
        painter.drawRoundedRect(cell.adjusted(-4, -4, 4, 4), 6, 6);
        painter.setBrush(tone);
      } else {
        const double weight = random.real(0.10, 0.42) * (random.chance(0.25) ? 0.4 : 1);
        painter.setBrush(faded(QColor(150, 182, 206), weight));
      }
      painter.drawRoundedRect(cell, 3, 3);
    }
  }
  painter.end();
  darken_corners(picture, 0.55);
}

}  // namespace vorlund::sample
