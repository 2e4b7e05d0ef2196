// The pictures of the sample folder: which there are, and their bytes as picture files.
#pragma once

#include <QImage>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "sample_aircraft.h"
#include "sample_backdrops.h"
#include "sample_folder.h"

namespace vorlund::sample {

/// What a picture shows. Each is different for every seed.
enum class Motif {
  kFormation,     ///< aircraft over land, from above
  kOverSea,       ///< aircraft over the sea, from above
  kBombers,       ///< bombers in the distance under a sky
  kFront,         ///< a map with a front line
  kRoute,         ///< a map with a flight's way points
  kLogbook,       ///< a desk with a log-book and a photograph
  kDials,         ///< an instrument panel by day
  kNightDials,    ///< the same by its own light
  kReticle,       ///< the ring of a gun sight against the sky
  kHangar,        ///< inside a hangar
  kHorizon,       ///< ridges in the haze
  kSky,           ///< sky and sea
  kFields,        ///< fields from above
  kMountains,     ///< mountains from above
  kCoast,         ///< a coast from above
  kScore,         ///< a sheet of music
  kWave,          ///< the trace of a sound
  kBytes,         ///< cells of bytes, some of them changed
  kConvoy,        ///< ships from above
  kRailway,       ///< a marshalling yard from above
  kAirfield,      ///< runways from above
  kSearchlights,  ///< a raid at night
  kSliders,       ///< a panel of knobs and sliders
};

/// A picture of 640 by 420 pixels.
QImage paint_motif(Motif motif, Hour hour, Season season, std::uint64_t seed);

/// A picture of 640 by 420 pixels of one aircraft in its paint: on a painter's card, from the side or from
/// above.
QImage paint_skin(Shape shape, const Paint& paint, std::uint64_t seed);

/// The store's own three pictures.
QImage paint_window_background();
QImage paint_pane_background();
QImage paint_no_picture();

/// A picture still to be painted and the file it goes to.
struct PictureJob {
  std::string file;
  std::function<QImage()> paint;
};

/// Paints the pictures, several at a time, and writes them: ".BMP" as bitmaps, a bare "SkinPic" as PNG, the
/// rest as JPEG. Throws std::runtime_error when the platform can't write a format.
void write_pictures(SampleFolder& folder, const std::vector<PictureJob>& pictures);

}  // namespace vorlund::sample
