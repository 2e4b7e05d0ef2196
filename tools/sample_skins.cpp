// Writes the skin store of the sample folder.
#include "sample_skins.h"

#include "core/text.h"
#include "sample_random.h"

namespace vorlund::sample {

std::string folder_name(const Skin& skin) {
  return std::string(aircraft_type(skin.code).name) + " " + std::string(skin.label);
}

std::vector<std::string> skin_files(const Skin& skin) {
  Random random(folder_name(skin) + "/files");
  const std::string code = random.chance(0.4) ? to_upper(skin.code) : std::string(skin.code);
  const std::string upper = to_upper(skin.code);
  std::vector<std::string> names;
  switch (skin.files) {
    case SkinFiles::kFull:
      names.push_back((random.chance(0.5) ? "p" : "P") + code + (random.chance(0.3) ? ".3DZ" : ".3dz"));
      names.push_back("vcg" + std::string(skin.code) + ".dat");
      break;
    case SkinFiles::kForeignShape:
      names.push_back("pxxxx.3dz");
      break;
    case SkinFiles::kTexturesOnly:
      break;
    case SkinFiles::kNameless:
      return {"sketch1.tpc", "sketch2.tpc"};
  }
  for (const char* part : {"f", "w", "t"}) {
    names.push_back((random.chance(0.3) ? "P" + upper : "p" + code) + part +
                    (random.chance(0.3) ? ".TPC" : ".tpc"));
  }
  if (random.chance(0.3)) {
    names.push_back("p" + code + "nose.tpc");
  }
  return names;
}

std::string skin_content(const Skin& skin, const std::string& name) {
  return made_content(name, std::string(skin.region) + "/" + folder_name(skin));
}

void write_skins(SampleFolder& folder, std::vector<PictureJob>& pictures) {
  for (const Skin& skin : skins()) {
    const std::string path = "~Vorlund/SkinStore/" + std::string(skin.region) + "/" + folder_name(skin) + "/";
    const AircraftType& type = aircraft_type(skin.code);
    if (!skin.description.empty()) {
      Random random(folder_name(skin));
      static constexpr std::string_view kClosings[] = {
          "Three textures and a shape. Works with every terrain.\n",
          "Painted in 16 shades, weathered lightly.\n",
          "Textures only where noted; load the aircraft pack first if you have one.\n",
          "No markings: add your own.\n",
          "Made in two evenings, mended in ten.\n",
      };
      folder.text(path + "contents.txt", std::string(type.name) + ", " + std::string(skin.label) + "\n" +
                                             std::string(skin.description) + "\n" +
                                             std::string(kClosings[random.between(0, 4)]));
    }
    for (const std::string& name : skin_files(skin)) {
      folder.file(path + name, skin_content(skin, name));
    }
    if (!skin.picture.empty()) {
      pictures.push_back({path + std::string(skin.picture), [skin] {
                            return paint_skin(aircraft_type(skin.code).shape, skin.paint,
                                              Random::seed_of(folder_name(skin)));
                          }});
    }
  }
}

}  // namespace vorlund::sample
