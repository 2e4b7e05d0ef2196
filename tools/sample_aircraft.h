// The thirty aircraft types of the sample folder, their paint, and how they are drawn.
#pragma once

#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cstdint>
#include <string_view>

#include "sample_noise.h"

namespace vorlund::sample {

enum class Shape { kInline, kElliptical, kRadial, kTwinBoom, kTwin, kHeavy, kDiveBomber, kJet, kFlyingBomb };

enum class Side { kGerman, kBritish, kAmerican, kAllied };
enum class Role { kFighter, kBomber, kFighterBomber };
enum class Flyable { kNo, kYes };

/// One aircraft slot of the game; its index in the table is its record number.
struct AircraftType {
  std::string_view code;    ///< the game's four characters, lower case
  std::string_view name;    ///< display name, also the stem of folder names
  std::string_view source;  ///< the code's file stem as the modellers of the store spell it
  Side side;
  Role role;
  Flyable flyable;
  Shape shape;
  int fuel;       ///< quantity in the game's unit
  int load_outs;  ///< records in the first area of loadout.dat: 7 or 3
};

const std::array<AircraftType, 30>& aircraft_types();

/// The type of a code; every code of the sample folder is in the table.
const AircraftType& aircraft_type(std::string_view code);

enum class Camouflage { kPlain, kSplinter, kWaves, kMottle, kPatches, kMetal };

/// Colours and pattern of an aircraft, free of any markings.
struct Paint {
  Camouflage camouflage;
  unsigned int upper;   ///< 0xRRGGBB, like all of them
  unsigned int second;  ///< second colour of the upper sides
  unsigned int under;
  unsigned int spinner;
  unsigned int band;  ///< fuselage band and fin tip
  bool banded;        ///< whether the band is there
  bool stripes;       ///< black and white recognition stripes on wings and fuselage
};

/// Draws the aircraft from above, nose up, wing span 1, its middle at the origin.
void draw_from_above(QPainter& painter, Shape shape, const Paint& paint, std::uint64_t seed);

/// The outline of the same.
QPainterPath outline_from_above(Shape shape);

/// Draws the aircraft from its left side, nose to the left, length 1, its middle at the origin.
void draw_from_side(QPainter& painter, Shape shape, const Paint& paint, std::uint64_t seed);

/// The outline of a small aircraft far away as seen from behind and below, span 1, for formations.
QPainterPath distant_outline(Shape shape);

/// Lays the paint's pattern over the area of the clip, for both views.
void draw_camouflage(QPainter& painter, const Paint& paint, const QPainterPath& area, std::uint64_t seed);

/// A closed path through the points with its corners rounded.
QPainterPath smooth_path(const QPolygonF& points);

}  // namespace vorlund::sample
