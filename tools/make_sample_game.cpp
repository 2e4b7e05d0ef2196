// Makes a sample game folder: game files of the right names and layouts, and a store that has been lived in.
#include <QCoreApplication>
#include <filesystem>
#include <iostream>

#include "sample_folder.h"

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
    vorlund::sample::SampleFolder folder(root);
    write_game_files(folder);
    write_store(folder);
    write_flight_models(folder);
    write_installed(folder);
  } catch (const std::exception& error) {
    std::cerr << "make_sample_game: " << error.what() << "\n";
    return 1;
  }
  return 0;
}
