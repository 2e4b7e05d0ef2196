// The skin store of the sample folder: some seventy skins by region.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sample_aircraft.h"
#include "sample_folder.h"
#include "sample_pictures.h"

namespace vorlund::sample {

/// Which files a skin folder holds besides its description and picture.
enum class SkinFiles {
  kFull,          ///< a shape, textures and the cockpit's data
  kTexturesOnly,  ///< textures alone, as most repaints are
  kForeignShape,  ///< a shape whose name holds no code of the game, and textures that do
  kNameless,      ///< no file that names an aircraft: an unfinished skin
};

struct Skin {
  std::string_view region;
  std::string_view code;
  std::string_view label;  ///< follows the aircraft's name in the folder's name
  Paint paint;
  std::string_view description;
  std::string_view picture;  ///< name of the picture file, "" for none
  SkinFiles files = SkinFiles::kFull;
};

std::span<const Skin> skins();

/// Name of the skin's folder.
std::string folder_name(const Skin& skin);

/// Names of the game files of a skin folder.
std::vector<std::string> skin_files(const Skin& skin);

/// Bytes of one of them.
std::string skin_content(const Skin& skin, const std::string& name);

/// Writes the skin folders but for their pictures, which are added to `pictures`.
void write_skins(SampleFolder& folder, std::vector<PictureJob>& pictures);

}  // namespace vorlund::sample
