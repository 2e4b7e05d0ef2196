// Writes the files of the sample folder and makes up the content of game files.
#include "sample_folder.h"

#include <fstream>
#include <stdexcept>

#include "base/code_page.h"
#include "sample_random.h"

namespace vorlund::sample {
void SampleFolder::file(std::string_view name, std::string_view bytes) {
  const std::filesystem::path path = root_ / std::u8string(name.begin(), name.end());
  std::filesystem::create_directories(path.parent_path());
  std::ofstream stream(path, std::ios::binary | std::ios::trunc);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  stream.close();
  if (!stream) {
    throw std::runtime_error("can't write " + std::string(name));
  }
}

void SampleFolder::text(std::string_view name, std::string_view lines) {
  std::string spelled;
  for (const char character : lines) {
    if (character == '\n') {
      spelled += '\r';
    }
    spelled += character;
  }
  file(name, encode_text(spelled));
}

std::string made_content(std::string_view seed, int most) {
  Random random(seed);
  const auto size = static_cast<std::size_t>(random.between(200, most));
  // Runs of like bytes between noisy stretches, as tables and compressed pictures have them.
  std::string bytes = "MADE";
  while (bytes.size() < size) {
    const auto value = static_cast<char>(random.between(0, 255));
    const bool noisy = random.between(0, 9) < 6;
    for (int left = random.between(4, 60); left > 0; --left) {
      bytes += noisy ? static_cast<char>(random.next() & 0xFF) : value;
    }
  }
  bytes.resize(size);
  return bytes;
}

}  // namespace vorlund::sample
