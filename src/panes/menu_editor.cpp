// Derives the pane's captions from the menu.
#include "panes/menu_editor.h"

#include <algorithm>
#include <string>

namespace vorlund {

namespace {

/// The value of each byte in decimal, a blank before each.
std::string byte_numbers(std::string_view bytes) {
  std::string numbers;
  for (const char byte : bytes) numbers.append(" ").append(std::to_string(static_cast<unsigned char>(byte)));
  return numbers;
}

}  // namespace

Country MenuEditor::selected_country() const {
  const auto selected =
      std::find_if(CountryBut.begin(), CountryBut.end(), [](const Choice& button) { return button.checked; });
  return static_cast<Country>(selected - CountryBut.begin());
}

void MenuEditor::select_country(Country country) {
  for (Choice& button : CountryBut) button.checked = false;
  CountryBut.at(static_cast<std::size_t>(country)).checked = true;
}

void MenuEditor::set_name(int index, std::string_view text) {
  menu.set_name(static_cast<std::size_t>(index), text);
  show_bytes();
}

void MenuEditor::refresh(Country country) {
  MenuShown.caption = std::string(menu.header.empty() ? "There is no " : "Shown: ")
                          .append(kMenuNames[static_cast<std::size_t>(country)]);
  show_bytes();
}

void MenuEditor::show_bytes() {
  hedlab.caption = byte_numbers(menu.header);
  for (std::size_t index = 0; index < PictureMenu::kEntries; ++index) {
    const PictureMenu::Entry& entry = menu.entries[index];
    bmnutb[index].text = entry.name;
    mlen[index].caption.clear();
    if (entry.length) mlen[index].caption = std::to_string(*entry.length);
    position[index].caption = byte_numbers(entry.trailer);
  }
}

void MenuEditor::show() {
  if (menu.header.empty()) {
    pmenread(desk_.game(), selected_country(), menu);
    refresh(selected_country());
  }
  desk_.show_in_front(PMenFrame);
  desk_.say("");
}

void MenuEditor::hide() {
  PMenFrame.visible = false;
  desk_.say("");
}

}  // namespace vorlund
