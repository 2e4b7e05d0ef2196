// A store of skins for the benchmarks of the skin list and of start-up.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace vorlund::bench {

/// A store of skin folders, 20 to a group, 6 files in each, removed at the end.
class SkinStore {
 public:
  static constexpr int kFoldersOfGroup = 20;

  explicit SkinStore(int folders)
      : folder_(std::filesystem::temp_directory_path() /
                ("vorlund skins " + std::to_string(folders) + " " + std::to_string(std::random_device()()))) {
    for (int index = 0; index < folders; ++index) {
      const std::filesystem::path skin = store() / ("Group " + std::to_string(index / kFoldersOfGroup)) /
                                         ("Skin " + std::to_string(index % kFoldersOfGroup));
      std::filesystem::create_directories(skin);
      for (const char* name :
           {"psp09.3dz", "psp09n.3dz", "psp09.tpc", "vcgsp09.dat", "mypic", "contents.txt"}) {
        std::ofstream(skin / name) << "x";
      }
    }
  }
  ~SkinStore() { std::filesystem::remove_all(folder_); }
  SkinStore(const SkinStore&) = delete;
  SkinStore& operator=(const SkinStore&) = delete;

  std::filesystem::path store() const { return folder_ / "~Vorlund" / "SkinStore"; }
  std::string game_directory() const { return folder_.string(); }

 private:
  std::filesystem::path folder_;
};

}  // namespace vorlund::bench
