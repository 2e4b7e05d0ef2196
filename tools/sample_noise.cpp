// Smooth noise and colour arithmetic from which skies, seas and fields are made.
#include "sample_noise.h"

#include <vector>

#include "sample_random.h"

namespace vorlund::sample {
namespace {

/// As std::floor, which is a call for processors without a rounding instruction.
std::int64_t whole_below(double value) {
  const auto whole = static_cast<std::int64_t>(value);
  return whole - (value < static_cast<double>(whole) ? 1 : 0);
}

constexpr std::size_t kLatticeSize = 256;

/// Random values on a lattice that repeats after 256 steps either way, much farther than a picture reaches.
const std::vector<float> kLattice = [] {
  std::vector<float> values(kLatticeSize * kLatticeSize);
  Random random(std::string_view("lattice"));
  for (float& value : values) {
    value = static_cast<float>(random.real(0, 1));
  }
  return values;
}();

double lattice(std::uint64_t x, std::uint64_t y) {
  return kLattice[(y % kLatticeSize) * kLatticeSize + x % kLatticeSize];
}

/// Averages along rows and turns the picture on its side, so that a second call does the columns.
QImage averaged_and_turned(const QImage& picture, int radius) {
  QImage turned(picture.height(), picture.width(), picture.format());
  const int last = picture.width() - 1;
  for (int y = 0; y < picture.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    int sum[4] = {0, 0, 0, 0};
    const auto add = [&](int x, int sign) {
      const QRgb pixel = line[std::clamp(x, 0, last)];
      sum[0] += sign * qAlpha(pixel);
      sum[1] += sign * qRed(pixel);
      sum[2] += sign * qGreen(pixel);
      sum[3] += sign * qBlue(pixel);
    };
    for (int x = -radius; x <= radius; ++x) {
      add(x, 1);
    }
    const int count = 2 * radius + 1;
    for (int x = 0; x <= last; ++x) {
      reinterpret_cast<QRgb*>(turned.scanLine(x))[y] =
          qRgba(sum[1] / count, sum[2] / count, sum[3] / count, sum[0] / count);
      add(x + radius + 1, 1);
      add(x - radius, -1);
    }
  }
  return turned;
}

}  // namespace

double noise(double x, double y, std::uint64_t seed) {
  const std::int64_t left = whole_below(x);
  const std::int64_t top = whole_below(y);
  double u = x - static_cast<double>(left);
  double v = y - static_cast<double>(top);
  u = u * u * u * (u * (u * 6 - 15) + 10);
  v = v * v * v * (v * (v * 6 - 15) + 10);
  // The seed picks the place on the lattice.
  const std::uint64_t place = seed * 0x9E3779B97F4A7C15u;
  const std::uint64_t column = static_cast<std::uint64_t>(left) + (place >> 56);
  const std::uint64_t row = static_cast<std::uint64_t>(top) + (place >> 40 & 0xFF);
  const double upper = lattice(column, row) * (1 - u) + lattice(column + 1, row) * u;
  const double lower = lattice(column, row + 1) * (1 - u) + lattice(column + 1, row + 1) * u;
  return upper * (1 - v) + lower * v;
}

double layered_noise(double x, double y, int octaves, std::uint64_t seed) {
  double sum = 0;
  double weight = 0.5;
  double total = 0;
  for (int octave = 0; octave < octaves; ++octave) {
    sum += weight * noise(x, y, seed + static_cast<std::uint64_t>(octave) * 977);
    total += weight;
    weight *= 0.5;
    // Turned by about 37 degrees each time, so that the lattice does not show.
    const double turned = 1.6 * x - 1.2 * y;
    y = 1.2 * x + 1.6 * y + 7.3;
    x = turned + 3.1;
  }
  return sum / total;
}

QImage blurred(QImage picture, int radius) {
  picture.convertTo(QImage::Format_ARGB32_Premultiplied);
  for (int pass = 0; pass < 2; ++pass) {
    picture = averaged_and_turned(averaged_and_turned(picture, radius), radius);
  }
  return picture;
}

void darken_corners(QImage& picture, double strength) {
  for (int y = 0; y < picture.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
      const double u = 2.0 * x / picture.width() - 1;
      const double v = 2.0 * y / picture.height() - 1;
      const double factor = 1 - strength * ramp(0.5, 2.0, u * u + v * v);
      line[x] = (Tint::of(line[x]) * factor).rgb();
    }
  }
}

void add_grain(QImage& picture, double strength, std::uint64_t seed) {
  for (int y = 0; y < picture.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
      const double shift = strength * (noise(x * 0.93, y * 0.93, seed) - 0.5);
      line[x] = (Tint::of(line[x]) + Tint(shift, shift, shift)).rgb();
    }
  }
}

}  // namespace vorlund::sample
