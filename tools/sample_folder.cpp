// Writes the files of the sample folder and makes up the content of game files.
#include "sample_folder.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "core/code_page.h"
#include "core/text.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

std::filesystem::path as_path(std::string_view name) {
  return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

struct SizeRange {
  std::string_view extension;
  int least;
  int most;
};

constexpr SizeRange kSizes[] = {
    {".PAL", 768, 768},    {".TM", 2000, 16000},  {".HM", 1500, 9000},    {".TER", 3000, 24000},
    {".TPC", 2500, 22000}, {".3DZ", 4000, 30000}, {".SND", 6000, 60000},  {".BGM", 12000, 58000},
    {".MSN", 1200, 9000},  {".SVE", 5000, 14000}, {".PIC", 6000, 48000},  {".PCX", 4000, 18000},
    {".BIL", 400, 2400},   {".FLT", 420, 1100},   {".DAT", 300, 12000},   {".SMK", 20000, 60000},
    {".WSP", 800, 6000},   {".SPT", 500, 7000},   {".STR", 300, 2200},    {".FNT", 900, 4000},
    {".BIN", 500, 8000},   {".CPT", 2000, 26000}, {".CDF", 40000, 60000},
};

}  // namespace

void SampleFolder::folder(std::string_view name) {
  std::filesystem::create_directories(root_ / as_path(name));
}

void SampleFolder::file(std::string_view name, std::string_view bytes) {
  const std::filesystem::path path = root_ / as_path(name);
  std::filesystem::create_directories(path.parent_path());
  std::ofstream stream(path, std::ios::binary | std::ios::trunc);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  stream.close();
  if (!stream) {
    throw std::runtime_error("can't write " + std::string(name));
  }
  files_ += 1;
  bytes_ += bytes.size();
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

std::string made_content(std::string_view name, std::string_view seed, int most) {
  Random random(std::string(seed) + "/" + std::string(name));
  const std::string upper = to_upper(name);
  int least_size = 200;
  int most_size = 4000;
  for (const SizeRange& range : kSizes) {
    if (upper.ends_with(range.extension)) {
      least_size = range.least;
      most_size = range.most;
    }
  }
  most_size = std::min(most_size, most);
  const auto size = static_cast<std::size_t>(random.between(std::min(least_size, most_size), most_size));

  // Runs of like bytes between noisy stretches, as tables and compressed pictures have them.
  std::string bytes = "MADE";
  while (bytes.size() < size) {
    const auto run = static_cast<std::size_t>(random.between(4, 60));
    const auto value = static_cast<char>(random.between(0, 255));
    const bool noisy = random.chance(0.6);
    for (std::size_t i = 0; i < run; ++i) {
      bytes += noisy ? static_cast<char>(random.next() & 0xFF) : value;
    }
  }
  bytes.resize(size);
  return bytes;
}

}  // namespace vorlund::sample
