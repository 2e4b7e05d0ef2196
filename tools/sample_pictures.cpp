// Puts backdrops, aircraft and motifs together into the pictures of the sample folder.
#include "sample_pictures.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <atomic>
#include <cmath>
#include <future>
#include <numbers>
#include <stdexcept>
#include <thread>

#include "core/text.h"
#include "sample_motifs.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

constexpr QSize kSize(640, 420);

/// The paint of an aircraft that only happens to be in a picture.
Paint common_paint(Random& random) {
  const Paint paints[] = {
      {Camouflage::kWaves, 0x5B6A5A, 0x6F7B82, 0xA9B2B4, 0x2E3A44, 0xB9D3D6, true, false},
      {Camouflage::kSplinter, 0x5C6468, 0x767F80, 0xA6B2B8, 0x2A2C2C, 0xD8B63C, true, false},
      {Camouflage::kMetal, 0xB4B8B8, 0xB4B8B8, 0xB4B8B8, 0xB23A30, 0xD8B63C, true, false},
      {Camouflage::kPlain, 0x5D5F44, 0x5D5F44, 0x8E969A, 0xC8C8C4, 0xECECE4, false, true},
      {Camouflage::kPatches, 0xC2A677, 0x7A6B45, 0x8FB0C4, 0xA83A2E, 0xE8E4D6, false, false},
  };
  return paints[random.between(0, 4)];
}

void draw_above(QImage& picture, QPointF at, double size, double angle, Shape shape, const Paint& paint,
                double height, std::uint64_t seed) {
  QImage shadow(picture.size(), QImage::Format_ARGB32_Premultiplied);
  shadow.fill(Qt::transparent);
  const auto place = [&](QPainter& painter, QPointF where) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(where);
    painter.rotate(angle);
    painter.scale(size, size);
  };
  {
    QPainter painter(&shadow);
    place(painter, at + QPointF(height * 0.7, height));
    painter.fillPath(outline_from_above(shape), QColor(8, 12, 20, 120));
  }
  QPainter painter(&picture);
  painter.drawImage(0, 0, blurred(shadow, 2 + static_cast<int>(height / 14)));
  place(painter, at);
  draw_from_above(painter, shape, paint, seed);
}

void draw_formation(QImage& picture, std::uint64_t seed) {
  Random random(seed);
  const Paint paint = common_paint(random);
  const Shape shapes[] = {Shape::kInline, Shape::kElliptical, Shape::kRadial,
                          Shape::kTwin,   Shape::kTwinBoom,   Shape::kHeavy};
  const Shape shape = shapes[random.between(0, 5)];
  const double angle = random.real(-55, 55);
  const double turn = angle * std::numbers::pi / 180;
  const double size = shape == Shape::kHeavy ? 200 : 160;
  const QPointF places[] = {{0, -78}, {-150, 48}, {150, 44}, {296, 150}, {-300, 160}};
  for (int k = 0; k < random.between(3, 5); ++k) {
    const QPointF at = places[k] + QPointF(random.real(-12, 12), random.real(-12, 12));
    const QPointF turned(at.x() * std::cos(turn) - at.y() * std::sin(turn),
                         at.x() * std::sin(turn) + at.y() * std::cos(turn));
    draw_above(picture, QPointF(320, 214) + turned, size, angle + random.real(-3, 3), shape, paint, 46,
               seed + static_cast<std::uint64_t>(k));
  }
}

QImage side_on_card(Shape shape, const Paint& paint, std::uint64_t seed) {
  Random random(seed);
  QImage picture(kSize, QImage::Format_RGB32);
  const unsigned int tones[] = {0xE9E3D2, 0xDDE4E6, 0xE3E0DA, 0xD9DFD2};
  const Tint tone = Tint::of(tones[random.between(0, 3)]);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const double light = 1.06 - 0.30 * ramp(0.1, 1.0, std::hypot((x - 320) / 420.0, (y - 190) / 330.0));
      reinterpret_cast<QRgb*>(picture.scanLine(y))[x] = (tone * light).rgb();
    }
  }
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(80, 74, 64, 120), 1.5));
  painter.drawRect(QRectF(16, 16, 608, 388));
  painter.save();
  painter.translate(330, 150);
  painter.scale(540, 540);
  draw_from_side(painter, shape, paint, seed);
  painter.restore();
  painter.save();
  painter.translate(206, 322);
  painter.rotate(90);
  painter.rotate(180);
  painter.scale(150, 150);
  draw_from_above(painter, shape, paint, seed);
  painter.restore();
  const unsigned int chips[] = {paint.upper, paint.second, paint.under, paint.spinner};
  for (int k = 0; k < 4; ++k) {
    const QRectF chip(370 + k * 56.0, 302, 44, 44);
    painter.setPen(QPen(QColor(40, 36, 30, 160), 1.2));
    painter.setBrush(colour(chips[k]));
    painter.drawRoundedRect(chip, 5, 5);
  }
  return picture;
}

QImage side_in_flight(Shape shape, const Paint& paint, std::uint64_t seed) {
  Random random(seed + 9);
  QImage picture(kSize, QImage::Format_RGB32);
  const Hour hours[] = {Hour::kMorning, Hour::kNoon,  Hour::kAfternoon,
                        Hour::kDusk,    Hour::kFrost, Hour::kOvercast};
  const Mood mood = mood_of(hours[random.between(0, 5)]);
  paint_sky(picture, mood, 0.80, seed);
  paint_hills(picture, mood, 0.74, 4, seed + 1);
  QPainter painter(&picture);
  painter.translate(324, 200);
  painter.rotate(random.real(-7, 5));
  painter.scale(500, 500);
  draw_from_side(painter, shape, paint, seed);
  painter.end();
  darken_corners(picture, 0.25);
  return picture;
}

enum class PictureFormat { kJpeg, kPng, kBitmap };

PictureFormat format_of(std::string_view file) {
  if (same_name(last_characters(file, 4), ".bmp")) {
    return PictureFormat::kBitmap;
  }
  return same_name(last_characters(file, 7), "skinpic") ? PictureFormat::kPng : PictureFormat::kJpeg;
}

std::string picture_bytes(const QImage& picture, PictureFormat format) {
  QBuffer buffer;
  QImageWriter writer(&buffer, format == PictureFormat::kJpeg  ? "jpg"
                               : format == PictureFormat::kPng ? "png"
                                                               : "bmp");
  if (format == PictureFormat::kJpeg) {
    writer.setQuality(86);
  }
  if (!writer.write(picture)) {
    throw std::runtime_error("can't make a picture: " + writer.errorString().toStdString());
  }
  return buffer.data().toStdString();
}

}  // namespace

QImage paint_motif(Motif motif, Hour hour, Season season, std::uint64_t seed) {
  QImage picture(kSize, QImage::Format_RGB32);
  picture.fill(Qt::black);
  const Mood mood = mood_of(hour);
  switch (motif) {
    case Motif::kFormation:
      paint_fields(picture, season, seed);
      paint_clouds_below(picture, 0.30, seed + 1);
      draw_formation(picture, seed + 2);
      break;
    case Motif::kOverSea:
      paint_sea_from_above(picture, Tint(0.16, 0.36, 0.48), seed);
      paint_clouds_below(picture, 0.42, seed + 1);
      draw_formation(picture, seed + 2);
      break;
    case Motif::kBombers:
      paint_sky(picture, mood, 0.80, seed);
      paint_hills(picture, mood, 0.78, 3, seed + 1);
      paint_distant_formation(picture, 360, 110, 62, 7, seed + 2);
      paint_distant_formation(picture, 150, 96, 26, 9, seed + 3);
      darken_corners(picture, 0.3);
      break;
    case Motif::kFront:
      paint_map(picture, MapKind::kFront, seed);
      break;
    case Motif::kRoute:
      paint_map(picture, MapKind::kRoute, seed);
      break;
    case Motif::kLogbook: {
      Random random(seed);
      const Paint paint = common_paint(random);
      const Shape shapes[] = {Shape::kInline, Shape::kRadial, Shape::kElliptical, Shape::kTwin};
      paint_logbook(picture, side_in_flight(shapes[random.between(0, 3)], paint, seed + 1), seed);
      break;
    }
    case Motif::kDials:
      paint_dials(picture, PanelLight::kDay, seed);
      break;
    case Motif::kNightDials:
      paint_dials(picture, PanelLight::kNight, seed);
      break;
    case Motif::kReticle:
      paint_sky(picture, mood, 0.92, seed);
      paint_reticle(picture, seed);
      break;
    case Motif::kHangar:
      paint_hangar(picture, mood, seed);
      break;
    case Motif::kHorizon:
      paint_sky(picture, mood, 0.62, seed);
      paint_hills(picture, mood, 0.56, 5, seed + 1);
      darken_corners(picture, 0.25);
      break;
    case Motif::kSky:
      paint_sky(picture, mood, 0.74, seed);
      paint_sea(picture, mood, 0.74, seed + 1);
      darken_corners(picture, 0.25);
      break;
    case Motif::kFields:
      paint_fields(picture, season, seed);
      paint_clouds_below(picture, 0.12, seed + 1);
      darken_corners(picture, 0.3);
      break;
    case Motif::kMountains:
      paint_relief(picture,
                   season == Season::kDesert   ? Relief::kDesert
                   : season == Season::kWinter ? Relief::kTundra
                                               : Relief::kAlps,
                   seed);
      darken_corners(picture, 0.3);
      break;
    case Motif::kCoast:
      paint_relief(picture, Relief::kCoast, seed);
      paint_clouds_below(picture, 0.15, seed + 1);
      darken_corners(picture, 0.3);
      break;
    case Motif::kScore:
      paint_score(picture, seed);
      break;
    case Motif::kWave:
      paint_wave(picture, seed);
      break;
    case Motif::kBytes:
      paint_bytes(picture, seed);
      break;
    case Motif::kConvoy:
      paint_sea_from_above(picture, Tint(0.14, 0.32, 0.42), seed);
      paint_convoy(picture, seed);
      paint_clouds_below(picture, 0.10, seed + 2);
      break;
    case Motif::kRailway:
      paint_fields(picture, season, seed);
      paint_railway(picture, seed);
      darken_corners(picture, 0.35);
      break;
    case Motif::kAirfield:
      paint_fields(picture, season, seed);
      paint_airfield(picture, seed);
      darken_corners(picture, 0.3);
      break;
    case Motif::kSearchlights:
      paint_sky(picture, mood_of(Hour::kNight), 0.95, seed);
      paint_searchlights(picture, seed);
      break;
    case Motif::kSliders:
      paint_sliders(picture, seed);
      break;
  }
  return picture;
}

QImage paint_skin(Shape shape, const Paint& paint, std::uint64_t seed) {
  Random random(seed);
  const int view = random.between(0, 9);
  if (view < 3) {
    return side_on_card(shape, paint, seed);
  }
  if (view < 5) {
    return side_in_flight(shape, paint, seed);
  }
  QImage picture(kSize, QImage::Format_RGB32);
  const Season seasons[] = {Season::kSpring, Season::kSummer, Season::kAutumn, Season::kWinter,
                            Season::kDesert};
  const int ground = random.between(0, 7);
  if (ground < 5) {
    paint_fields(picture, seasons[ground], seed);
  } else if (ground == 5) {
    paint_sea_from_above(picture, Tint(0.16, 0.36, 0.48), seed);
  } else {
    paint_relief(picture, ground == 6 ? Relief::kAlps : Relief::kCoast, seed);
  }
  paint_clouds_below(picture, random.real(0.15, 0.6), seed + 1);
  draw_above(picture, QPointF(320, 214), 430, random.real(-65, 65), shape, paint, 60, seed);
  darken_corners(picture, 0.25);
  return picture;
}

QImage paint_window_background() {
  QImage picture(1920, 1080, QImage::Format_RGB32);
  Mood mood = mood_of(Hour::kDusk);
  mood.cover = 0.40;
  paint_sky(picture, mood, 0.82, 1944);
  paint_hills(picture, mood, 0.80, 5, 1945);
  paint_distant_formation(picture, 1270, 330, 54, 7, 1946);
  paint_distant_formation(picture, 1010, 420, 26, 9, 1947);
  paint_distant_formation(picture, 1560, 470, 20, 7, 1948);
  darken_corners(picture, 0.35);
  return picture;
}

QImage paint_pane_background() {
  QImage picture(1280, 720, QImage::Format_RGB32);
  Mood mood = mood_of(Hour::kDusk);
  mood.cover = 0.55;
  mood.sun_x = 0.30;
  paint_sky(picture, mood, 0.86, 1939);
  paint_hills(picture, mood, 0.84, 4, 1940);
  picture = blurred(picture, 5).convertToFormat(QImage::Format_RGB32);
  QPainter painter(&picture);
  painter.fillRect(picture.rect(), QColor(14, 16, 30, 150));
  painter.end();
  darken_corners(picture, 0.4);
  return picture;
}

QImage paint_no_picture() {
  QImage picture(kSize, QImage::Format_RGB32);
  Mood mood = mood_of(Hour::kDusk);
  paint_sky(picture, mood, 1.1, 77);
  picture = blurred(picture, 9).convertToFormat(QImage::Format_RGB32);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(picture.rect(), QColor(28, 32, 46, 190));
  painter.setPen(QPen(QColor(226, 222, 212, 70), 2, Qt::DashLine));
  painter.drawRoundedRect(QRectF(30, 30, 580, 360), 14, 14);
  painter.translate(320, 216);
  painter.rotate(-12);
  painter.scale(250, 250);
  painter.fillPath(outline_from_above(Shape::kElliptical), QColor(226, 222, 212, 46));
  painter.strokePath(outline_from_above(Shape::kElliptical), QPen(QColor(226, 222, 212, 110), 0.006));
  return picture;
}

void write_pictures(SampleFolder& folder, const std::vector<PictureJob>& pictures) {
  std::vector<std::string> painted(pictures.size());
  std::atomic<std::size_t> next = 0;
  const auto work = [&] {
    for (std::size_t index = next++; index < pictures.size(); index = next++) {
      painted[index] = picture_bytes(pictures[index].paint(), format_of(pictures[index].file));
    }
  };
  std::vector<std::future<void>> workers;
  for (unsigned int k = 0; k < std::max(1u, std::thread::hardware_concurrency()); ++k) {
    workers.push_back(std::async(std::launch::async, work));
  }
  for (std::future<void>& worker : workers) {
    worker.get();
  }
  for (std::size_t index = 0; index < pictures.size(); ++index) {
    folder.file(pictures[index].file, painted[index]);
  }
}

}  // namespace vorlund::sample
