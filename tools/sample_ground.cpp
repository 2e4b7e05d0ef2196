// Landscapes, seas and clouds seen from above.
#include <algorithm>
#include <array>
#include <cmath>

#include "sample_backdrops.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

constexpr Tint hex(unsigned int rgb) {
  return Tint::of(rgb);
}

QRgb* line_of(QImage& picture, int y) {
  return reinterpret_cast<QRgb*>(picture.scanLine(y));
}

using Palette = std::array<unsigned int, 6>;

Palette field_colours(Season season) {
  switch (season) {
    case Season::kSpring:
      return {0x6F8B3D, 0x88A04B, 0x9BA85C, 0x5F7D3A, 0xA68F63, 0x7C9A50};
    case Season::kSummer:
      return {0xC2A95B, 0x8C9A4A, 0xD0BB72, 0x74893F, 0xA98F55, 0x9AA353};
    case Season::kAutumn:
      return {0x9A7B4A, 0x7D6A45, 0xB08C51, 0x6B7040, 0x8A6440, 0xA99565};
    case Season::kWinter:
      return {0xDDE3E8, 0xCBD4DB, 0xE8ECEF, 0xBFC8CC, 0xD5D5D0, 0xC9D0D6};
    case Season::kDesert:
      return {0xCFAE7C, 0xC6A06B, 0xD9BC8C, 0xBB9762, 0xC9A878, 0xD2B384};
  }
  return {};
}

/// The nearest of a jittered lattice of points: which one it is and how much nearer than the next.
struct Cell {
  std::uint64_t id;
  double edge;
};

Cell cell_at(double x, double y, std::uint64_t seed) {
  const int cell_x = static_cast<int>(std::floor(x));
  const int cell_y = static_cast<int>(std::floor(y));
  double nearest = 9;
  double second = 9;
  std::uint64_t id = 0;
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) {
      const auto column = static_cast<std::uint64_t>(static_cast<std::int64_t>(cell_x + dx));
      const auto row = static_cast<std::uint64_t>(static_cast<std::int64_t>(cell_y + dy));
      const std::uint64_t drawn =
          Random(seed ^ (column * 0x9E3779B97F4A7C15u) ^ (row * 0xC2B2AE3D27D4EB4Fu)).next();
      const double off_x = cell_x + dx + 0.12 + 0.76 * static_cast<double>(drawn & 0xFFFF) / 65536 - x;
      const double off_y = cell_y + dy + 0.12 + 0.76 * static_cast<double>(drawn >> 16 & 0xFFFF) / 65536 - y;
      // Fields have straight sides: the larger of both distances rules, mixed with the round one.
      const double distance =
          0.6 * std::max(std::abs(off_x), std::abs(off_y)) + 0.4 * std::sqrt(off_x * off_x + off_y * off_y);
      if (distance < nearest) {
        second = nearest;
        nearest = distance;
        id = drawn >> 32;
      } else {
        second = std::min(second, distance);
      }
    }
  }
  return {id, second - nearest};
}

}  // namespace

void paint_fields(QImage& picture, Season season, std::uint64_t seed) {
  Random random(seed);
  const Palette palette = field_colours(season);
  const bool bare = season == Season::kDesert;
  const Tint hedge = bare ? hex(0xA98455) : season == Season::kWinter ? hex(0x8F989B) : hex(0x3E4F2A);
  const Tint wood = bare ? hex(0x9C8A55) : season == Season::kWinter ? hex(0x6E7B7C) : hex(0x33462A);
  const Tint water = season == Season::kWinter ? hex(0x9DB2C0) : hex(0x4F7387);
  const double turn = random.real(-0.6, 0.6);
  const double scale = random.real(5.5, 8.0);
  for (int y = 0; y < picture.height(); ++y) {
    QRgb* line = line_of(picture, y);
    for (int x = 0; x < picture.width(); ++x) {
      const double u = static_cast<double>(x) / picture.height();
      const double v = static_cast<double>(y) / picture.height();
      const double bend = 0.10 * (layered_noise(u * 2, v * 2, 3, seed + 1) - 0.5);
      const double a = (u + bend) * std::cos(turn) - (v + bend) * std::sin(turn);
      const double b = (u + bend) * std::sin(turn) + (v + bend) * std::cos(turn);
      const Cell cell = cell_at(a * scale * 0.8, b * scale * 1.3, seed + 2);
      const bool upright = (cell.id >> 7 & 1) != 0;
      const double furrow = std::sin((upright ? a : b) * (180 + static_cast<double>(cell.id >> 9 & 63)));
      const double fine = layered_noise(u * 60, v * 60, 3, seed + 3) - 0.5;
      Tint pixel = hex(palette[cell.id % palette.size()]);
      pixel = pixel *
              (1 + 0.035 * furrow + 0.22 * fine + 0.12 * (layered_noise(u * 4, v * 4, 3, seed + 9) - 0.5));
      pixel = mixed(hedge, pixel,
                    bare ? 0.75 + 0.25 * ramp(0.0, 0.08, cell.edge) : ramp(0.008, 0.045, cell.edge));

      const double trees = layered_noise(u * 3.4, v * 3.4, 5, seed + 4);
      if (trees > 0.585) {
        const double crowns = layered_noise(u * 75, v * 75, 2, seed + 5);
        pixel = mixed(pixel, wood * (0.60 + 0.85 * crowns), ramp(0.585, 0.605, trees));
      }

      const double road = std::abs(layered_noise(u * 1.3 + 9, v * 1.3, 2, seed + 6) - 0.47);
      pixel = mixed(hex(season == Season::kWinter ? 0xA9A8A2 : 0xD8CDB0), pixel, ramp(0.0016, 0.0034, road));
      const double river = std::abs(layered_noise(u * 1.1, v * 1.1 + 4, 4, seed + 7) - 0.5);
      pixel = mixed(mixed(water, hex(0xA9C3CC), fine + 0.3), mixed(wood, pixel, ramp(0.014, 0.022, river)),
                    ramp(0.010, 0.013, bare ? river + 0.012 : river));
      line[x] = pixel.rgb();
    }
  }
}

void paint_relief(QImage& picture, Relief relief, std::uint64_t seed) {
  struct Step {
    double height;
    unsigned int colour;
  };
  static constexpr std::array<std::array<Step, 6>, 4> kSteps = {{
      {{{0.30, 0x4D6B3C},
        {0.44, 0x6B7F4A},
        {0.52, 0x7C7660},
        {0.58, 0x8C8782},
        {0.64, 0xE6EBF0},
        {0.80, 0xFFFFFF}}},
      {{{0.40, 0x1F4E70},
        {0.495, 0x4F90A6},
        {0.503, 0xE0D2A4},
        {0.52, 0x7E9450},
        {0.62, 0x56743C},
        {0.75, 0x8A8560}}},
      {{{0.30, 0xB98E57},
        {0.45, 0xCFA868},
        {0.55, 0xDDBD83},
        {0.62, 0xB98A5B},
        {0.70, 0x996B48},
        {0.85, 0xE2CBA0}}},
      {{{0.36, 0x5F7F92},
        {0.45, 0x8FA7A8},
        {0.50, 0x98917A},
        {0.56, 0xB4B2A0},
        {0.62, 0xDCE2E4},
        {0.80, 0xFFFFFF}}},
  }};
  const auto& steps = kSteps[static_cast<std::size_t>(relief)];
  const auto height_at = [&](double u, double v) {
    double height = layered_noise(u * 2.1 + 3, v * 2.1, 7, seed);
    if (relief == Relief::kAlps || relief == Relief::kTundra) {
      const double crease = 1 - std::abs(2 * layered_noise(u * 2.6, v * 2.6, 6, seed + 8) - 1);
      height = 0.45 * height + 0.55 * (0.16 + 0.56 * crease * crease);
    }
    return height;
  };
  const double step = 1.0 / picture.height();
  const double steepness = relief == Relief::kDesert ? 16 : relief == Relief::kCoast ? 14 : 20;
  for (int y = 0; y < picture.height(); ++y) {
    QRgb* line = line_of(picture, y);
    double left = height_at(-step, y * step);
    for (int x = 0; x < picture.width(); ++x) {
      const double height = height_at(x * step, y * step);
      const double above = height_at(x * step, (y - 1) * step);
      Tint pixel = hex(steps.front().colour);
      for (std::size_t k = 1; k < steps.size(); ++k) {
        pixel = mixed(pixel, hex(steps[k].colour), ramp(steps[k - 1].height, steps[k].height, height));
      }
      const bool under_water = relief == Relief::kCoast && height < 0.497;
      const double slope = ((height - left) + (height - above)) * steepness;
      const double light = std::clamp(1.0 + slope * (under_water ? 0.15 : 1.0), 0.45, 1.4);
      line[x] = (pixel * light).rgb();
      left = height;
    }
  }
}

void paint_sea_from_above(QImage& picture, const Tint& water, std::uint64_t seed) {
  for (int y = 0; y < picture.height(); ++y) {
    QRgb* line = line_of(picture, y);
    for (int x = 0; x < picture.width(); ++x) {
      const double u = static_cast<double>(x) / picture.height();
      const double v = static_cast<double>(y) / picture.height();
      const double swell = layered_noise(u * 9 + v * 4, v * 26 - u * 7, 5, seed);
      const double broad = layered_noise(u * 1.5, v * 1.5, 3, seed + 1);
      Tint pixel = water * (0.72 + 0.32 * swell + 0.36 * broad);
      const double crest = layered_noise(u * 40 + v * 10, v * 95, 3, seed + 2);
      pixel = mixed(pixel, Tint(0.92, 0.96, 0.97), ramp(0.70, 0.80, crest) * ramp(0.45, 0.65, swell) * 0.7);
      line[x] = pixel.rgb();
    }
  }
}

void paint_clouds_below(QImage& picture, double cover, std::uint64_t seed) {
  const double threshold = 0.70 - 0.42 * cover;
  for (int y = 0; y < picture.height(); ++y) {
    QRgb* line = line_of(picture, y);
    for (int x = 0; x < picture.width(); ++x) {
      const double u = static_cast<double>(x) / picture.height();
      const double v = static_cast<double>(y) / picture.height();
      const double thick = layered_noise(u * 2.5, v * 2.5, 6, seed);
      const double caster = layered_noise((u - 0.05) * 2.5, (v - 0.07) * 2.5, 4, seed);
      const double toward_light =
          thick <= threshold ? 0 : layered_noise((u - 0.02) * 2.5, (v - 0.028) * 2.5, 5, seed);
      const Tint below = Tint::of(line[x]) * (1 - 0.36 * ramp(threshold, threshold + 0.15, caster));
      const double lit = std::clamp(0.80 + (thick - toward_light) * 3.4, 0.35, 1.0);
      const Tint cloud = mixed(hex(0xA9B5C4), hex(0xFFFFFF), lit);
      line[x] = mixed(below, cloud, ramp(threshold, threshold + 0.20, thick) * 0.95).rgb();
    }
  }
}

}  // namespace vorlund::sample
