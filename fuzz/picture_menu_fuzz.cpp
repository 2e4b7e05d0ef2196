// Fuzzes the reader of the plane-picture menus and the pane that edits them.
#include <array>

#include "core/store.h"
#include "menus/menu_editor.h"
#include "menus/picture_menu.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::as_bytes(data, size);
  for (const std::size_t count : {std::size_t{9}, std::size_t{11}}) {
    const PictureMenu menu = parse_picture_menu(bytes, count);
    fuzz::require(menu.entries.size() == count);
    // A name without an ending 0 byte gets one.
    fuzz::require(compose_picture_menu(menu).size() <= picture_menu_limit(count) + count);
  }
  fuzz::Surroundings surroundings;
  const std::array<std::string_view, 3> paths = {kBritishPictureMenu, kAmericanPictureMenu,
                                                 kGermanPictureMenu};
  for (const std::string_view path : paths) surroundings.write(path, bytes);
  MenuEditor editor(surroundings.environment);
  for (const int country : {0, 1, 2}) {
    fuzz::run_action([&] {
      editor.CountryBut_Click(country);
      editor.pmenread();
      editor.set_name(0, bytes.substr(0, 300));
      editor.pmenwrite();
      const std::string path = surroundings.game.path(paths[static_cast<std::size_t>(country)]);
      fuzz::require(surroundings.files.read_file(path).size() <= picture_menu_limit(country == 2 ? 11 : 9));
    });
  }
  return 0;
}
