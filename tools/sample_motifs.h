// The painters of the single motifs; each fills the whole picture.
#pragma once

#include <QImage>
#include <cstdint>

#include "sample_backdrops.h"

namespace vorlund::sample {

enum class MapKind { kFront, kRoute };

void paint_map(QImage& picture, MapKind kind, std::uint64_t seed);
void paint_logbook(QImage& picture, const QImage& photograph, std::uint64_t seed);
void paint_score(QImage& picture, std::uint64_t seed);
void paint_wave(QImage& picture, std::uint64_t seed);
void paint_bytes(QImage& picture, std::uint64_t seed);

enum class PanelLight { kDay, kNight };

void paint_dials(QImage& picture, PanelLight light, std::uint64_t seed);
void paint_sliders(QImage& picture, std::uint64_t seed);
void paint_reticle(QImage& picture, std::uint64_t seed);
void paint_hangar(QImage& picture, const Mood& mood, std::uint64_t seed);
void paint_convoy(QImage& picture, std::uint64_t seed);
void paint_railway(QImage& picture, std::uint64_t seed);
void paint_airfield(QImage& picture, std::uint64_t seed);
void paint_searchlights(QImage& picture, std::uint64_t seed);
void paint_distant_formation(QImage& picture, double x, double y, double size, int aircraft,
                             std::uint64_t seed);

}  // namespace vorlund::sample
