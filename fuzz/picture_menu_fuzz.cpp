// Fuzzes the reader of the plane-picture menus and what edits and writes them.
#include "aircraft/picture_menu.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::as_bytes(data, size);
  static fuzz::Surroundings surroundings;
  // The American menu has the British one's form.
  for (const Country country : {Country::kBritish, Country::kGerman}) {
    surroundings.write(picture_menu_file(country), bytes);
    PictureMenu menu;
    pmenread(surroundings.game, country, menu);
    menu.set_name(0, bytes.substr(0, 300));
    fuzz::require(pmenwrite(surroundings.game, country, menu));
    const std::string written =
        surroundings.files.read_file(surroundings.game.path(picture_menu_file(country)));
    fuzz::require(written.size() <= 35 + picture_menu_entries(country) * 274);
    PictureMenu again;
    parse_picture_menu(written, country, again);
    fuzz::require(again.header == menu.header);
  }
  return 0;
}
