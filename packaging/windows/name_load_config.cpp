// Enters the section ".loadcfg" of a 64-bit Windows program in the program's directory of data, which the
// linker leaves empty: name_load_config PROGRAM. Prints the flags by which the program's libraries are looked
// for.
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

constexpr std::size_t kSignatureAt = 0x3C;
constexpr std::size_t kSections = 6;       // from the signature on
constexpr std::size_t kOptionalSize = 20;  // the same
constexpr std::size_t kOptional = 24;      // the same
constexpr std::size_t kChecksum = 64;      // from the optional header on
constexpr std::size_t kLoadConfig = 112 + 10 * 8;
constexpr std::size_t kSectionSize = 40;
constexpr std::size_t kDependentLoadFlags = 0x4E;

class Image {
 public:
  explicit Image(const std::string& path) : path_(path) {
    std::ifstream file(path, std::ios::binary);
    bytes_.assign(std::istreambuf_iterator<char>(file), {});
    signature_ = number(kSignatureAt, 4);
    if (number(signature_, 4) != 0x4550 || number(signature_ + kOptional, 2) != 0x20B) {
      throw std::runtime_error(path + " is no 64-bit Windows program");
    }
  }

  /// Enters the section; returns the flags it holds.
  std::uint32_t name_load_config() {
    const std::size_t optional = signature_ + kOptional;
    const std::size_t sections = optional + number(signature_ + kOptionalSize, 2);
    for (std::size_t index = 0; index < number(signature_ + kSections, 2); ++index) {
      const std::size_t section = sections + index * kSectionSize;
      if (bytes_.compare(section, 8, ".loadcfg") != 0) continue;
      const std::size_t content = number(section + 20, 4);
      put(optional + kLoadConfig, number(section + 12, 4));
      put(optional + kLoadConfig + 4, number(content, 4));
      put(optional + kChecksum, 0);
      put(optional + kChecksum, checksum());
      return number(content + kDependentLoadFlags, 2);
    }
    throw std::runtime_error(path_ + " has no section \".loadcfg\"");
  }

  void save() const {
    std::ofstream file(path_, std::ios::binary);
    file.write(bytes_.data(), static_cast<std::streamsize>(bytes_.size()));
    file.close();
    if (!file) throw std::runtime_error(path_ + " can't be written");
  }

 private:
  std::uint32_t number(std::size_t offset, std::size_t size) const {
    std::uint32_t value = 0;
    for (std::size_t byte = size; byte-- > 0;) {
      value = value << 8 | static_cast<unsigned char>(bytes_.at(offset + byte));
    }
    return value;
  }

  void put(std::size_t offset, std::uint32_t value) {
    for (std::size_t byte = 0; byte < 4; ++byte)
      bytes_.at(offset + byte) = static_cast<char>(value >> 8 * byte);
  }

  /// The sum of the image's words with its carries, and its size.
  std::uint32_t checksum() const {
    std::uint32_t sum = 0;
    for (std::size_t offset = 0; offset < bytes_.size(); offset += 2) {
      sum += number(offset, offset + 1 < bytes_.size() ? 2 : 1);
      sum = (sum & 0xFFFF) + (sum >> 16);
    }
    return sum + static_cast<std::uint32_t>(bytes_.size());
  }

  std::string path_;
  std::string bytes_;
  std::size_t signature_ = 0;
};

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 2) throw std::runtime_error("usage: name_load_config PROGRAM");
  Image image(argv[1]);
  const std::uint32_t flags = image.name_load_config();
  image.save();
  std::printf("DependentLoadFlags 0x%x\n", flags);
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
