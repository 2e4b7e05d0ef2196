// Skies, hills and seas as seen from the ground or from a low-flying aircraft.
#include "sample_backdrops.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vorlund::sample {
namespace {

constexpr Tint hex(unsigned int rgb) {
  return Tint::of(rgb);
}

QRgb* line_of(QImage& picture, int y) {
  return reinterpret_cast<QRgb*>(picture.scanLine(y));
}

}  // namespace

Mood mood_of(Hour hour) {
  switch (hour) {
    case Hour::kMorning:
      return {hex(0x5E8FC4), hex(0xB9CFE0), hex(0xF7E2C2), hex(0xFFF6E6), hex(0xA9A9BD), hex(0x5C6B4A),
              0.42,          0.24,          0.50,          0.36,          hex(0xFFF0C8)};
    case Hour::kNoon:
      return {hex(0x2A69B4), hex(0x6FA8DC), hex(0xCFE5F2), hex(0xFFFFFF), hex(0x9FB2C6), hex(0x4C6B35),
              0.40,          0.70,          0.10,          0.26,          hex(0xFFFBE8)};
    case Hour::kAfternoon:
      return {hex(0x3F74B5), hex(0x94BBDD), hex(0xF3E6CC), hex(0xFFF8E8), hex(0x9C9FB0), hex(0x6A6A38),
              0.46,          0.80,          0.30,          0.34,          hex(0xFFE9B8)};
    case Hour::kDusk:
      return {hex(0x25335F), hex(0x8A6A8C), hex(0xF5A45C), hex(0xFFC58A), hex(0x574A6B), hex(0x2B2A35),
              0.48,          0.64,          0.58,          0.44,          hex(0xFFD08A)};
    case Hour::kNight:
      return {hex(0x060B1C), hex(0x101B36), hex(0x26345A), hex(0x3B4768), hex(0x131A2E), hex(0x0A0E18),
              0.36,          0.20,          0.18,          0.20,          hex(0xC6D2F0)};
    case Hour::kOvercast:
      return {hex(0x7F8A96), hex(0xA3ADB6), hex(0xCFD3D3), hex(0xD8DCDF), hex(0x7C8590), hex(0x586049),
              0.78,          -1.0,          0.0,           0.1,           hex(0xFFFFFF)};
    case Hour::kStorm:
      return {hex(0x2C343F), hex(0x55606B), hex(0xB4AE96), hex(0x8B929A), hex(0x262C36), hex(0x3C4433),
              0.80,          0.30,          0.74,          0.30,          hex(0xE8D9A0)};
    case Hour::kFrost:
      return {hex(0x6F95C0), hex(0xB5CCDF), hex(0xF0E6E2), hex(0xFBFBFD), hex(0x9FAEC2), hex(0xC9D3DC),
              0.44,          0.26,          0.56,          0.34,          hex(0xFFEFD6)};
  }
  return {};
}

void paint_sky(QImage& picture, const Mood& mood, double horizon, std::uint64_t seed) {
  const int width = picture.width();
  const int height = picture.height();
  const double aspect = static_cast<double>(width) / height;
  const double threshold = 0.68 - 0.40 * mood.cover;
  for (int y = 0; y < height; ++y) {
    const double level = std::min(1.0, y / (horizon * height));  // 0 zenith, 1 horizon
    const Tint clear = level < 0.6 ? mixed(mood.zenith, mood.middle, ramp(0, 0.6, level))
                                   : mixed(mood.middle, mood.horizon, ramp(0.6, 1.0, level));
    const double depth = 1 / (1.10 - level);  // how far away the layer of clouds is along this line of sight
    QRgb* line = line_of(picture, y);
    for (int x = 0; x < width; ++x) {
      const double u = (static_cast<double>(x) / width - 0.5) * aspect;
      double light = 0;
      if (mood.sun_x >= 0) {
        const double dx = u - (mood.sun_x - 0.5) * aspect;
        const double dy = static_cast<double>(y) / height - mood.sun_y;
        const double distance = std::sqrt(dx * dx + dy * dy) / mood.sun_size;
        light = std::exp(-distance * distance * 3) * 0.70 +
                0.55 * ramp(0.10, 0.045, distance * mood.sun_size * 2.2);
      }
      Tint pixel = mixed(clear, mood.sun, std::min(light, 1.0));
      pixel = mixed(pixel, Tint(1, 1, 0.97), ramp(1.0, 1.25, light) * 0.75);
      if (level < 1) {
        const double cloud_x = u * depth * 2.1 + 40;
        const double cloud_y = depth * 2.6 + 11;
        const double thick = layered_noise(cloud_x, cloud_y, 6, seed);
        const double opacity = ramp(threshold, threshold + 0.17, thick) * ramp(1.02, 0.72, level);
        const double toward_light =
            opacity <= 0 ? 0
                         : layered_noise(cloud_x + (mood.sun_x - 0.5 - u) * 0.22, cloud_y - 0.20, 4, seed);
        const double lit =
            std::clamp(0.62 + (thick - toward_light) * 3.2 - (thick - threshold) * 1.1, 0.0, 1.0);
        const Tint cloud = mixed(mixed(mood.cloud_shade, mood.cloud_light, lit), mood.sun, light * 0.5);
        pixel = mixed(pixel, mixed(cloud, clear, ramp(0.55, 1.05, level) * 0.7), opacity * 0.94);
      }
      line[x] = pixel.rgb();
    }
  }
}

void paint_hills(QImage& picture, const Mood& mood, double horizon, int ridges, std::uint64_t seed) {
  const int width = picture.width();
  const int height = picture.height();
  for (int ridge = 0; ridge < ridges; ++ridge) {
    const double near = ridges == 1 ? 1.0 : static_cast<double>(ridge) / (ridges - 1);
    const double base = horizon + (1.02 - horizon) * near * 0.72;
    const double rise = 0.05 + 0.11 * (0.4 + near);
    const auto ridge_seed = seed + static_cast<std::uint64_t>(ridge) * 71 + 5;
    const Tint haze = mixed(mood.horizon, mood.middle, 0.35);
    const Tint land = mixed(haze, mood.ground * (0.9 - 0.35 * near), 0.25 + 0.72 * near);
    for (int x = 0; x < width; ++x) {
      const double u = static_cast<double>(x) / height;
      const double crest =
          base - rise * (layered_noise(u * (2.6 - 0.9 * near), ridge * 9.7, 6, ridge_seed) - 0.35) * 1.7;
      const int top = std::max(0, static_cast<int>(crest * height));
      for (int y = top; y < height; ++y) {
        const double below = static_cast<double>(y - top) / height;
        const double texture =
            layered_noise(u * 26, static_cast<double>(y) / height * 60, 3, ridge_seed + 3) - 0.5;
        const Tint lit = mixed(land * 1.12, haze, ramp(0.0, 0.30, below) * (1 - near) * 0.75);
        line_of(picture, y)[x] = (lit * (1 + texture * (0.10 + 0.28 * near))).rgb();
      }
    }
  }
}

void paint_sea(QImage& picture, const Mood& mood, double horizon, std::uint64_t seed) {
  const int width = picture.width();
  const int height = picture.height();
  const double aspect = static_cast<double>(width) / height;
  for (int y = static_cast<int>(horizon * height); y < height; ++y) {
    const double near = (static_cast<double>(y) / height - horizon) / (1 - horizon);
    const double distance = 1 / (near + 0.035);
    QRgb* line = line_of(picture, y);
    for (int x = 0; x < width; ++x) {
      const double u = (static_cast<double>(x) / width - 0.5) * aspect;
      const double wave = layered_noise(u * distance * 2.4, distance * 9, 5, seed);
      const Tint water =
          mixed(mixed(mood.horizon, mood.zenith, 0.45), mood.zenith * 0.62, ramp(0, 0.8, near));
      Tint pixel = water * (0.80 + 0.45 * wave);
      if (mood.sun_x >= 0) {
        const double off = (u - (mood.sun_x - 0.5) * aspect) / (0.10 + 0.34 * near);
        const double glitter = std::exp(-off * off * 2.2) * ramp(0.40, 0.66, wave);
        pixel = mixed(pixel, mood.sun, glitter * 0.85);
      }
      line[x] = pixel.rgb();
    }
  }
}

}  // namespace vorlund::sample
