// Makes a sample game folder: game files of the right names and layouts, and a store that has been lived in.
#include <QCoreApplication>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <iostream>

#include "sample_flight_models.h"
#include "sample_folder.h"
#include "sample_game_files.h"
#include "sample_game_sets.h"
#include "sample_pictures.h"
#include "sample_records.h"
#include "sample_skins.h"

namespace {

using namespace vorlund::sample;

void make(SampleFolder& folder) {
  std::vector<PictureJob> pictures;
  for (const char* name : {"Savedata", "Music", "~Vorlund/GameStore", "~Vorlund/SkinStore",
                           "~Vorlund/FlightModels", "~Vorlund/GameSetFiles", "~Vorlund/PlaneSetFiles"}) {
    folder.folder(name);
  }
  write_game_files(folder);
  write_game_store(folder, pictures);
  write_flight_models(folder);
  write_skins(folder, pictures);
  write_records(folder);
  pictures.push_back({"~Vorlund/Fr2Pic", paint_window_background});
  pictures.push_back({"~Vorlund/FormPic", paint_pane_background});
  pictures.push_back({"~Vorlund/SelPic", paint_no_picture});
  write_pictures(folder, pictures);
}

}  // namespace

int main(int argument_count, char** arguments) {
  const QCoreApplication application(argument_count, arguments);  // lets Qt find its picture formats
  const QStringList words = QCoreApplication::arguments();
  if (words.size() != 2 || words[1].startsWith('-')) {
    std::cerr << "Usage: make_sample_game FOLDER\n"
                 "Makes FOLDER, which must not exist yet or must be empty, a sample game folder.\n";
    return 2;
  }
  try {
    const std::u16string name = words[1].toStdU16String();
    const std::filesystem::path root(name);
    if (std::filesystem::exists(root) &&
        (!std::filesystem::is_directory(root) || !std::filesystem::is_empty(root))) {
      std::cerr << "make_sample_game: " << words[1].toStdString()
                << " is there already and not an empty folder; nothing was written.\n";
      return 1;
    }
    const auto start = std::chrono::steady_clock::now();
    SampleFolder folder(root);
    make(folder);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    std::cout << "Made " << folder.files() << " files, " << folder.bytes() / 1'000'000 << " MB, in "
              << std::round(taken.count() * 10) / 10 << " s.\n";
  } catch (const std::exception& error) {
    std::cerr << "make_sample_game: " << error.what() << "\n";
    return 1;
  }
  return 0;
}
