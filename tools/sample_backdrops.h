// Skies, hills, seas and landscapes for the pictures of the sample folder.
#pragma once

#include <QImage>
#include <cstdint>

#include "sample_noise.h"

namespace vorlund::sample {

enum class Hour { kMorning, kNoon, kAfternoon, kDusk, kNight, kOvercast, kStorm, kFrost };

/// The light of an hour: the sky's colours, its clouds and where the sun stands (shares of width and height).
struct Mood {
  Tint zenith;
  Tint middle;
  Tint horizon;
  Tint cloud_light;
  Tint cloud_shade;
  Tint ground;   ///< land or sea close by
  double cover;  ///< share of the sky that clouds take
  double sun_x;  ///< below 0 for no sun
  double sun_y;
  double sun_size;  ///< reach of the sun's glow, share of the width
  Tint sun;
};

Mood mood_of(Hour hour);

/// Fills the picture with sky down to `horizon` (a share of the height); below it the horizon's colour goes
/// on.
void paint_sky(QImage& picture, const Mood& mood, double horizon, std::uint64_t seed);

/// Ridges one before the other from `horizon` down to the lower edge, paler the farther they are.
void paint_hills(QImage& picture, const Mood& mood, double horizon, int ridges, std::uint64_t seed);

/// Water from `horizon` down, with the light of the sun on it.
void paint_sea(QImage& picture, const Mood& mood, double horizon, std::uint64_t seed);

enum class Season { kSpring, kSummer, kAutumn, kWinter, kDesert };

/// Fields, hedges, woods, a river and roads, seen from above.
void paint_fields(QImage& picture, Season season, std::uint64_t seed);

enum class Relief { kAlps, kCoast, kDesert, kTundra };

/// Mountains and coasts seen from above, lit from the upper left.
void paint_relief(QImage& picture, Relief relief, std::uint64_t seed);

/// The sea seen from above.
void paint_sea_from_above(QImage& picture, const Tint& water, std::uint64_t seed);

/// Clouds seen from above, with their shadow on what lies below.
void paint_clouds_below(QImage& picture, double cover, std::uint64_t seed);

}  // namespace vorlund::sample
