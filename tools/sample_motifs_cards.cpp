// Motifs on paper: maps, log-books, music, and the traces of sounds.
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

#include "sample_aircraft.h"
#include "sample_motifs.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

QRgb* line_of(QImage& picture, int y) {
  return reinterpret_cast<QRgb*>(picture.scanLine(y));
}

void paint_paper(QImage& picture, const Tint& tone, std::uint64_t seed) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const double stain = layered_noise(x * 0.006, y * 0.006, 4, seed) - 0.5;
      const double fibre = layered_noise(x * 0.12, y * 0.30, 2, seed + 1) - 0.5;
      line_of(picture, y)[x] = (tone * (1 + 0.16 * stain + 0.05 * fibre)).rgb();
    }
  }
}

}  // namespace

void paint_map(QImage& picture, MapKind kind, std::uint64_t seed) {
  Random random(seed);
  const auto land_at = [&](double x, double y) { return layered_noise(x * 0.0052, y * 0.0052, 6, seed + 4); };
  paint_paper(picture, Tint(0.93, 0.88, 0.74), seed);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const double height = land_at(x, y);
      Tint pixel = Tint::of(line_of(picture, y)[x]);
      const double shelf = std::fmod(height * 60, 1.0);
      if (height < 0.46) {
        pixel = mixed(pixel, Tint(0.55, 0.70, 0.74), 0.62 + (shelf < 0.12 ? 0.15 : 0.0));
      } else {
        pixel = mixed(pixel, Tint(0.72, 0.76, 0.52), 0.45 * ramp(0.60, 0.46, height));
        pixel = mixed(pixel, Tint(0.70, 0.52, 0.34), 0.50 * ramp(0.54, 0.72, height));
        pixel = shelf < 0.09 ? pixel * 0.93 : pixel;
      }
      pixel = mixed(Tint(0.24, 0.30, 0.34), pixel, ramp(0.0, 0.0028, std::abs(height - 0.46)) * 0.75 + 0.25);
      line_of(picture, y)[x] = pixel.rgb();
    }
  }
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(90, 70, 50, 60), 1));
  for (int k = 0; k < 12; ++k) {
    painter.drawLine(QPointF(k * 64 + 20, 0), QPointF(k * 64 + 8, picture.height()));
    painter.drawLine(QPointF(0, k * 64 + 30), QPointF(picture.width(), k * 64 + 22));
  }
  std::vector<QPointF> towns;
  for (int attempt = 0; attempt < 400 && towns.size() < 17; ++attempt) {
    const QPointF at(random.real(30, picture.width() - 30.0), random.real(30, picture.height() - 30.0));
    if (land_at(at.x(), at.y()) > 0.475) {
      towns.push_back(at);
    }
  }
  painter.setPen(QPen(QColor(120, 70, 50, 120), 1.3));
  for (std::size_t k = 1; k < towns.size(); ++k) {
    if (QLineF(towns[k - 1], towns[k]).length() < 210) {
      painter.drawLine(towns[k - 1], towns[k]);
    }
  }
  for (const QPointF& town : towns) {
    painter.setPen(QPen(QColor(50, 40, 34), 1.4));
    painter.setBrush(QColor(244, 236, 214));
    painter.drawEllipse(town, 3.4, 3.4);
  }

  if (kind == MapKind::kFront) {
    for (const int offset : {0, 7}) {
      QPainterPath front;
      for (int y = -10; y <= picture.height() + 10; y += 6) {
        const double x =
            picture.width() * (0.52 + 0.5 * (layered_noise(y * 0.008, 1, 4, seed + 6) - 0.5)) + offset;
        y < 0 ? front.moveTo(x, y) : front.lineTo(x, y);
      }
      painter.setBrush(Qt::NoBrush);
      painter.setPen(QPen(offset == 0 ? QColor(40, 70, 130, 220) : QColor(170, 40, 36, 220), 4.5));
      painter.drawPath(front);
    }
    for (int k = 0; k < 5; ++k) {
      const bool blue = k % 2 == 0;
      const double y = 50 + 80.0 * k + random.real(-15, 15);
      const double x = picture.width() * (blue ? random.real(0.22, 0.34) : random.real(0.70, 0.80));
      const double reach = (blue ? 1 : -1) * random.real(70, 110);
      QPainterPath arrow(QPointF(x, y));
      arrow.quadTo(x + reach * 0.5, y - 26, x + reach, y);
      painter.setPen(
          QPen(blue ? QColor(40, 70, 130, 200) : QColor(170, 40, 36, 200), 7, Qt::SolidLine, Qt::FlatCap));
      painter.drawPath(arrow);
      painter.setPen(Qt::NoPen);
      painter.setBrush(blue ? QColor(40, 70, 130, 220) : QColor(170, 40, 36, 220));
      const double sign = reach > 0 ? 1 : -1;
      painter.drawPolygon(QPolygonF(
          {{x + reach + sign * 17, y + 11}, {x + reach - sign * 9, y + 9}, {x + reach + sign * 5, y - 14}}));
      painter.setBrush(Qt::NoBrush);
    }
  } else {
    QPolygonF route;
    const double base_y = random.real(0.55, 0.80);
    for (int k = 0; k < 6; ++k) {
      route << QPointF(picture.width() * (0.10 + 0.15 * k),
                       picture.height() * (base_y - 0.11 * k + random.real(-0.10, 0.10)));
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(150, 30, 34), 3, Qt::DashLine));
    painter.drawPolyline(route);
    for (int k = 0; k < 6; ++k) {
      painter.setPen(QPen(QColor(150, 30, 34), 2.4));
      painter.setBrush(QColor(250, 244, 226));
      if (k == 5) {
        painter.drawEllipse(route[k], 13, 13);
        painter.setBrush(QColor(150, 30, 34));
        painter.drawEllipse(route[k], 5, 5);
      } else if (k == 0) {
        painter.drawRect(QRectF(route[k] - QPointF(8, 8), QSizeF(16, 16)));
      } else {
        painter.drawPolygon(
            QPolygonF({route[k] + QPointF(0, -10), route[k] + QPointF(9, 7), route[k] + QPointF(-9, 7)}));
      }
    }
    painter.save();
    painter.translate(route[2] * 0.5 + route[3] * 0.5);
    painter.rotate(90 - QLineF(route[2], route[3]).angle());
    painter.scale(62, 62);
    painter.fillPath(outline_from_above(Shape::kInline), QColor(30, 34, 44, 235));
    painter.restore();
  }
  painter.translate(picture.width() - 58, 62);
  painter.setPen(QPen(QColor(70, 52, 40, 200), 1.3));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(QPointF(0, 0), 32, 32);
  painter.drawEllipse(QPointF(0, 0), 27, 27);
  for (int k = 0; k < 8; ++k) {
    const double reach = k % 2 == 0 ? 38 : 22;
    painter.setBrush(QColor(70, 52, 40, 220));
    painter.drawPolygon(QPolygonF({{0, -reach}, {4.5, -5}, {0, 0}}));
    painter.setBrush(QColor(240, 228, 200, 220));
    painter.drawPolygon(QPolygonF({{0, -reach}, {-4.5, -5}, {0, 0}}));
    painter.rotate(45);
  }
  painter.end();
  darken_corners(picture, 0.35);
}

void paint_logbook(QImage& picture, const QImage& photograph, std::uint64_t seed) {
  Random random(seed);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const double ring = layered_noise(x * 0.004, y * 0.05, 5, seed);
      const double grain = 0.5 + 0.5 * std::sin(ring * 40 + y * 0.02);
      line_of(picture, y)[x] =
          (mixed(Tint(0.26, 0.15, 0.09), Tint(0.45, 0.28, 0.16), grain) * (0.8 + ring * 0.4)).rgb();
    }
  }
  QPainter painter(&picture);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  const auto lay = [&](const QImage& sheet, QPointF at, double angle) {
    painter.save();
    painter.translate(at);
    painter.rotate(angle);
    for (int k = 7; k > 0; --k) {
      painter.fillRect(
          QRectF(-sheet.width() / 2.0 + k + 3, -sheet.height() / 2.0 + k + 3, sheet.width(), sheet.height()),
          QColor(0, 0, 0, 22));
    }
    painter.drawImage(QPointF(-sheet.width() / 2.0, -sheet.height() / 2.0), sheet);
    painter.restore();
  };
  QImage page(400, 330, QImage::Format_RGB32);
  paint_paper(page, Tint(0.93, 0.90, 0.80), seed + 2);
  {
    QPainter lines(&page);
    lines.setRenderHint(QPainter::Antialiasing);
    lines.setPen(QPen(QColor(90, 120, 160, 130), 1));
    for (int y = 42; y < page.height(); y += 20) {
      lines.drawLine(0, y, page.width(), y);
    }
    lines.setPen(QPen(QColor(180, 70, 60, 150), 1.2));
    for (const int x : {58, 118, 300, 348}) {
      lines.drawLine(x, 24, x, page.height());
    }
    for (int y = 42; y < page.height() - 70; y += 20) {
      for (const auto& [from, to] :
           {std::pair{10, 48}, {66, 106}, {128, random.between(190, 286)}, {310, 336}}) {
        QPainterPath hand(QPointF(from, y - 5));
        for (double x = from; x < to; x += random.real(3, 6)) {
          hand.quadTo(x + 1, y - random.real(5, 15), x + 3, y - random.real(3, 6));
        }
        lines.setPen(QPen(QColor(34, 42, 84, 205), 1.3));
        lines.drawPath(hand);
      }
    }
  }
  lay(page, QPointF(258, 206), random.real(-5, 0));
  QImage print(300, 206, QImage::Format_RGB32);
  print.fill(QColor(242, 238, 226));
  {
    QPainter mount(&print);
    mount.setRenderHint(QPainter::SmoothPixmapTransform);
    mount.drawImage(QRectF(11, 11, 278, 184), photograph.convertToFormat(QImage::Format_Grayscale8));
    mount.fillRect(QRectF(11, 11, 278, 184), QColor(150, 110, 50, 56));
  }
  lay(print, QPointF(462, 262), random.real(3, 9));
  painter.save();
  painter.translate(450, 72);
  painter.rotate(random.real(-14, -6));
  const QColor ribbons[3][3] = {{QColor(90, 60, 130), QColor(236, 232, 220), QColor(90, 60, 130)},
                                {QColor(40, 90, 140), QColor(190, 50, 44), QColor(224, 190, 80)},
                                {QColor(60, 110, 70), QColor(220, 160, 60), QColor(60, 110, 70)}};
  for (int k = 0; k < 3; ++k) {
    painter.fillRect(QRectF(k * 56 - 80, -10, 54, 26), QColor(0, 0, 0, 90));
    for (int j = 0; j < 9; ++j) {
      painter.fillRect(QRectF(k * 56 - 82 + j * 6, -14, 6, 26),
                       ribbons[(k + static_cast<int>(seed % 3)) % 3][j % 3]);
    }
  }
  painter.restore();
  painter.end();
  darken_corners(picture, 0.5);
}

void paint_score(QImage& picture, std::uint64_t seed) {
  Random random(seed);
  paint_paper(picture, Tint(0.95, 0.91, 0.80), seed);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ink(38, 30, 30);
  for (int staff = 0; staff < 3; ++staff) {
    const double top = 52 + staff * 126.0;
    painter.setPen(QPen(ink, 1.3));
    for (int k = 0; k < 5; ++k) {
      painter.drawLine(QPointF(30, top + k * 14), QPointF(610, top + k * 14));
    }
    for (const double x : {30.0, 238.0, 424.0, 610.0}) {
      painter.drawLine(QPointF(x, top), QPointF(x, top + 56));
    }
    QPainterPath clef(QPointF(62, top + 36));
    clef.cubicTo(50, top + 34, 52, top + 18, 64, top + 20);
    clef.cubicTo(82, top + 22, 80, top + 48, 60, top + 46);
    clef.cubicTo(40, top + 42, 42, top + 20, 60, top + 6);
    clef.cubicTo(74, top - 6, 70, top - 22, 64, top - 18);
    clef.cubicTo(54, top - 8, 64, top + 30, 68, top + 58);
    clef.cubicTo(70, top + 74, 54, top + 74, 55, top + 64);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, 3.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(clef);

    double x = 112;
    while (x < 580) {
      const int group = random.between(1, 3) == 1 ? 1 : random.between(2, 4);
      QPolygonF heads;
      for (int k = 0; k < group && x < 592; ++k) {
        heads << QPointF(x, top + 7 * random.between(1, 8));
        x += group == 1 ? 36 : 25;
      }
      const double beam_y = std::min_element(heads.begin(), heads.end(),
                                             [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); })
                                ->y() -
                            38;
      const double tilt = random.real(-5, 5);
      for (const QPointF& head : heads) {
        const double share =
            heads.size() < 2 ? 0 : (head.x() - heads[0].x()) / (heads.back().x() - heads[0].x());
        painter.setPen(QPen(ink, 1.8));
        painter.drawLine(head + QPointF(7, -2), QPointF(head.x() + 7, beam_y + tilt * share));
        painter.save();
        painter.translate(head);
        painter.rotate(-22);
        painter.setPen(QPen(ink, 2));
        painter.setBrush(heads.size() == 1 && random.chance(0.5) ? QBrush(Qt::NoBrush) : QBrush(ink));
        painter.drawEllipse(QPointF(0, 0), 7.6, 5.2);
        painter.restore();
      }
      if (heads.size() > 1) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        const double from = heads[0].x() + 6.2;
        const double to = heads.back().x() + 7.8;
        painter.drawPolygon(
            QPolygonF({{from, beam_y}, {to, beam_y + tilt}, {to, beam_y + tilt + 6}, {from, beam_y + 6}}));
      }
      x += random.real(10, 18);
    }
  }
  QRadialGradient cup(QPointF(540, 380), 74);
  for (const auto& [stop, opacity] : {std::pair{0.78, 0}, {0.83, 60}, {0.88, 22}, {0.93, 50}, {1.0, 0}}) {
    cup.setColorAt(stop, QColor(120, 78, 40, opacity));
  }
  if (seed % 2 == 0) {
    painter.fillRect(picture.rect(), cup);
  }
  painter.end();
  darken_corners(picture, 0.4);
}

void paint_wave(QImage& picture, std::uint64_t seed) {
  Random random(seed);
  const double hue = random.real(0, 1);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient dark(0, 0, 0, picture.height());
  dark.setColorAt(0, QColor::fromHslF(static_cast<float>(hue), 0.35F, 0.09F));
  dark.setColorAt(0.5, QColor::fromHslF(static_cast<float>(hue), 0.45F, 0.16F));
  dark.setColorAt(1, QColor::fromHslF(static_cast<float>(hue), 0.35F, 0.07F));
  painter.fillRect(picture.rect(), dark);
  const QColor tone = QColor::fromHslF(static_cast<float>(hue), 0.75F, 0.66F);
  painter.setPen(QPen(faded(tone, 0.10), 1));
  for (int k = 0; k < 17; ++k) {
    painter.drawLine(k * 40, 0, k * 40, picture.height());
    painter.drawLine(0, k * 40 + 10, picture.width(), k * 40 + 10);
  }
  const int bursts = random.between(2, 6);
  for (int x = 8; x < picture.width() - 6; x += 5) {
    const double t = static_cast<double>(x) / picture.width();
    const double beat = std::pow(std::abs(std::sin(t * std::numbers::pi * bursts)), 0.6) *
                        std::exp(-std::fmod(t * bursts, 1.0) * 1.4);
    const double loud = 8 + 170 * beat * (0.35 + layered_noise(x * 0.09, 3, 3, seed));
    QLinearGradient bar(0, 210 - loud, 0, 210 + loud);
    bar.setColorAt(0, tone.lighter(130));
    bar.setColorAt(0.5, tone.darker(180));
    bar.setColorAt(1, tone.lighter(110));
    painter.setPen(Qt::NoPen);
    painter.setBrush(faded(tone, 0.10));
    painter.drawRoundedRect(QRectF(x - 4, 210 - loud - 6, 11, 2 * loud + 12), 5, 5);
    painter.setBrush(bar);
    painter.drawRoundedRect(QRectF(x - 1.5, 210 - loud, 3.4, 2 * loud), 1.6, 1.6);
  }
  painter.end();
  darken_corners(picture, 0.5);
}

}  // namespace vorlund::sample
