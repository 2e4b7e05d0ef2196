// Reads and composes plane-picture menu files.
#include "menus/picture_menu.h"

#include <algorithm>
#include <utility>

namespace vorlund {

namespace {

constexpr std::size_t kLengthSize = 4;  // the length byte and three bytes that are always 0
constexpr std::size_t kLongestName = 255;

/// Takes bytes one run after the other; past the end there are only 0 bytes.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  std::string take(std::size_t count) {
    std::string run(bytes_.substr(std::min(next_, bytes_.size()), count));
    run.resize(count, '\0');
    next_ += count;
    return run;
  }

 private:
  std::string_view bytes_;
  std::size_t next_ = 0;
};

}  // namespace

std::size_t picture_menu_limit(std::size_t entry_count) {
  return kMenuHeaderSize + entry_count * (kLengthSize + kLongestName + kMenuTrailerSize);
}

PictureMenu parse_picture_menu(std::string_view bytes, std::size_t entry_count) {
  Reader reader(bytes);
  PictureMenu menu;
  menu.header = reader.take(kMenuHeaderSize);
  for (std::size_t index = 0; index < entry_count; ++index) {
    PictureMenuEntry entry;
    entry.length = static_cast<unsigned char>(reader.take(kLengthSize).front());
    entry.name = reader.take(static_cast<std::size_t>(entry.length));
    std::erase(entry.name, '\0');
    entry.trailer = reader.take(kMenuTrailerSize);
    menu.entries.push_back(std::move(entry));
  }
  return menu;
}

std::string compose_picture_menu(const PictureMenu& menu) {
  std::string bytes = menu.header;
  for (const PictureMenuEntry& entry : menu.entries) {
    bytes += static_cast<char>(entry.length);
    bytes.append(kLengthSize - 1, '\0');
    bytes += entry.name;
    bytes += '\0';
    bytes += entry.trailer;
  }
  return bytes;
}

}  // namespace vorlund
