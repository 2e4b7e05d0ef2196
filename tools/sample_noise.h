// Smooth noise and colour arithmetic from which skies, seas and fields are made.
#pragma once

#include <QColor>
#include <QImage>
#include <algorithm>
#include <cstdint>

namespace vorlund::sample {

/// Smooth noise of about one swing per unit, 0 to 1.
double noise(double x, double y, std::uint64_t seed);

/// Noise of several octaves laid over each other, 0 to 1, mostly around a half.
double layered_noise(double x, double y, int octaves, std::uint64_t seed);

/// 0 up to `low`, 1 from `high` on, and an S between; the other way round when `high` is the smaller.
inline double ramp(double low, double high, double value) {
  const double share = std::clamp((value - low) / (high - low), 0.0, 1.0);
  return share * share * (3 - 2 * share);
}

/// A colour in linear arithmetic, each part 0 to 1.
struct Tint {
  double red = 0;
  double green = 0;
  double blue = 0;

  constexpr Tint() = default;
  constexpr Tint(double r, double g, double b) : red(r), green(g), blue(b) {}

  /// From 0xRRGGBB; whatever stands above is ignored.
  static constexpr Tint of(QRgb rgb) {
    return {(rgb >> 16 & 0xFF) / 255.0, (rgb >> 8 & 0xFF) / 255.0, (rgb & 0xFF) / 255.0};
  }

  Tint operator*(double factor) const { return {red * factor, green * factor, blue * factor}; }
  Tint operator+(const Tint& other) const {
    return {red + other.red, green + other.green, blue + other.blue};
  }

  QRgb rgb() const {
    const auto byte_of = [](double part) { return static_cast<int>(std::clamp(part, 0.0, 1.0) * 255 + 0.5); };
    return qRgb(byte_of(red), byte_of(green), byte_of(blue));
  }
};

/// `a` at 0, `b` at 1.
inline Tint mixed(const Tint& a, const Tint& b, double share) {
  return a * (1 - share) + b * share;
}

/// A colour given as 0xRRGGBB.
inline QColor colour(unsigned int rgb) {
  return QColor::fromRgb(static_cast<QRgb>(rgb));
}

/// The colour with an opacity of 0 to 1.
inline QColor faded(QColor base, double opacity) {
  base.setAlphaF(static_cast<float>(opacity));
  return base;
}

/// Softens a picture by averaging over squares of the radius, twice.
QImage blurred(QImage picture, int radius);

/// Darkens the corners a little, so that the eye stays inside.
void darken_corners(QImage& picture, double strength);

/// Lays a fine grain over the picture.
void add_grain(QImage& picture, double strength, std::uint64_t seed);

}  // namespace vorlund::sample
