// Reads and composes plane-picture menu files.
#include "aircraft/picture_menu.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/text.h"
#include "disk/patch_file.h"
#include "disk/store.h"

namespace vorlund {

namespace {

constexpr std::size_t kLengthSize = 4;          // the length byte and three bytes that are always 0
constexpr std::size_t kLongestNameBytes = 255;  // the most that a length byte can count

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

std::string_view picture_menu_file(Country country) {
  constexpr std::array<std::string_view, 3> kFiles = {kBritishPictureMenu, kAmericanPictureMenu,
                                                      kGermanPictureMenu};
  return kFiles.at(static_cast<std::size_t>(country));
}

std::size_t picture_menu_entries(Country country) {
  return country == Country::kGerman ? PictureMenu::kEntries : 9;
}

void PictureMenu::set_name(std::size_t index, std::string_view name) {
  Entry& entry = entries.at(index);
  std::string cut = characters(name.substr(0, name.find('\0')), 0, kLongestName);
  if (cut == entry.name) return;
  entry.name = std::move(cut);
  entry.length = static_cast<int>(character_count(entry.name)) + 1;
}

void PictureMenu::clear() {
  header.clear();
  for (std::size_t index = 0; index < kEntries; ++index) {
    set_name(index, "");
    entries[index].trailer.clear();
  }
}

void parse_picture_menu(std::string_view bytes, Country country, PictureMenu& menu) {
  Reader reader(bytes);
  menu.header = reader.take(PictureMenu::kHeaderSize);
  for (std::size_t index = 0; index < picture_menu_entries(country); ++index) {
    PictureMenu::Entry& entry = menu.entries[index];
    const auto length = static_cast<unsigned char>(reader.take(kLengthSize).front());
    std::string name = reader.take(length);
    std::erase(name, '\0');
    // The length first, then the name: a name that is not empty sets its own length, so that a 0 byte inside
    // it is not counted. An empty name leaves the length as the file has it, 0 included.
    entry.length = length;
    menu.set_name(index, decode_text(name));
    entry.trailer = reader.take(PictureMenu::kTrailerSize);
  }
}

std::string compose_picture_menu(const PictureMenu& menu, Country country) {
  std::string bytes = menu.header;
  for (std::size_t index = 0; index < picture_menu_entries(country); ++index) {
    const PictureMenu::Entry& entry = menu.entries[index];
    bytes += static_cast<char>(entry.length.value_or(0));
    bytes.append(kLengthSize - 1, '\0');
    bytes += encode_text(entry.name);
    bytes += '\0';
    bytes += entry.trailer;
  }
  return bytes;
}

void pmenread(const GameFolder& game, Country country, PictureMenu& menu) {
  menu.clear();
  const std::string path = game.path(picture_menu_file(country));
  if (!game.files.is_there(path)) return;
  const std::size_t longest =
      PictureMenu::kHeaderSize +
      picture_menu_entries(country) * (kLengthSize + kLongestNameBytes + PictureMenu::kTrailerSize);
  parse_picture_menu(game.files.read_file(path, longest), country, menu);
}

bool pmenwrite(const GameFolder& game, Country country, const PictureMenu& menu) {
  const std::string path = game.path(picture_menu_file(country));
  if (!game.files.FileExists(path)) return false;
  // Deliberate: what followed the last entry in the old file is not kept. The game reads no further.
  game.files.replace_file(path, compose_picture_menu(menu, country), Durability::kFlushed);
  return true;
}

}  // namespace vorlund
