// Fuzzes the reader of the plane-picture menus and the pane that edits them.
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
    fuzz::require(compose_picture_menu(menu).size() <= picture_menu_limit(count));
  }
  fuzz::Surroundings surroundings;
  for (const std::string_view file : {kBritishPictureMenu, kAmericanPictureMenu, kGermanPictureMenu}) {
    surroundings.write(file, bytes);
  }
  MenuEditor editor(surroundings.environment);
  for (const int country : {0, 1, 2}) {
    fuzz::run_action([&] {
      editor.CountryBut_Click(country);
      editor.pmenread();
      editor.set_name(0, bytes.substr(0, 300));
      editor.pmenwrite();
    });
  }
  return 0;
}
