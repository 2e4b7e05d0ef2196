// Writes the files of the sample folder and counts them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace vorlund::sample {

/// A folder under construction. Names are relative to it, UTF-8, with slashes; the folders that a file needs
/// are made with it. Throws std::filesystem::filesystem_error or std::runtime_error when the disk refuses.
class SampleFolder {
 public:
  explicit SampleFolder(std::filesystem::path root) : root_(std::move(root)) {}

  void folder(std::string_view name);

  void file(std::string_view name, std::string_view bytes);

  /// Writes UTF-8 text with LF line ends as the game's world spells it: Windows-1252 with CR LF.
  void text(std::string_view name, std::string_view lines);

  std::uint64_t files() const { return files_; }
  std::uint64_t bytes() const { return bytes_; }

 private:
  std::filesystem::path root_;
  std::uint64_t files_ = 0;
  std::uint64_t bytes_ = 0;
};

/// Content made up for a game file of that bare name, 200 bytes to 60 KB as its extension suggests; always
/// the same for the same seed. `most` caps the size.
std::string made_content(std::string_view name, std::string_view seed, int most = 60000);

}  // namespace vorlund::sample
