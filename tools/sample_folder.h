// Writes the files of the sample folder.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vorlund::sample {

/// A folder under construction. Names are relative to it, UTF-8, with slashes; the folders that a file needs
/// are made with it. Throws std::filesystem::filesystem_error or std::runtime_error when the disk refuses.
class SampleFolder {
 public:
  explicit SampleFolder(std::filesystem::path root) : root_(std::move(root)) {}

  void file(std::string_view name, std::string_view bytes);

  /// Writes UTF-8 text with LF line ends as the game's world spells it: Windows-1252 with CR LF.
  void text(std::string_view name, std::string_view lines);

 private:
  std::filesystem::path root_;
};

void write_game_files(SampleFolder& folder);
void write_flight_models(SampleFolder& folder);

/// Writes game sets, skins, background pictures, records and saved set-ups.
void write_store(SampleFolder& folder);

/// Writes into the game folder what the records of the current sets say is installed.
void write_installed(SampleFolder& folder);

/// Content made up for a file, 200 to `most` bytes; always the same for the same seed.
std::string made_content(std::string_view seed, int most);

}  // namespace vorlund::sample
