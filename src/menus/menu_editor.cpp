// State and events of the menu editor pane.
#include "menus/menu_editor.h"

#include <algorithm>
#include <utility>

#include "core/code_page.h"
#include "core/patch_file.h"
#include "core/store.h"
#include "core/text.h"
#include "menus/picture_menu.h"

namespace vorlund {

namespace {

constexpr std::size_t kGerman = 2;
constexpr std::array<std::string_view, 3> kFiles = {kBritishPictureMenu, kAmericanPictureMenu,
                                                    kGermanPictureMenu};

/// Entries of a country's file; fixed by the game, never taken from the file.
std::size_t entry_count(std::size_t country) {
  return country == kGerman ? 11 : 9;
}

/// The value of each byte in decimal, a blank before each.
std::string byte_numbers(std::string_view bytes) {
  std::string numbers;
  for (const char byte : bytes) numbers.append(" ").append(std::to_string(static_cast<unsigned char>(byte)));
  return numbers;
}

}  // namespace

std::size_t MenuEditor::selected_country() const {
  const auto checked = [](const Choice& button) { return button.checked; };
  const auto selected = std::find_if(CountryBut.begin() + 1, CountryBut.end(), checked);
  return selected == CountryBut.end() ? 0 : static_cast<std::size_t>(selected - CountryBut.begin());
}

std::string MenuEditor::selected_path() const {
  return environment_.game.path(kFiles[selected_country()]);
}

void MenuEditor::CountryBut_Click(int index) {
  for (Choice& button : CountryBut) button.checked = false;
  CountryBut.at(static_cast<std::size_t>(index)).checked = true;
}

void MenuEditor::pmenread() {
  for (std::size_t index = 0; index < kEntries; ++index) {
    set_name(static_cast<int>(index), "");
    trailers_[index].clear();
    position[index].caption.clear();
  }
  hedlab.caption.clear();
  const std::string path = selected_path();
  if (!is_there(environment_.files, path)) return;
  const std::size_t count = entry_count(selected_country());
  const PictureMenu menu =
      parse_picture_menu(environment_.files.read_file(path, picture_menu_limit(count)), count);
  menu_header_ = menu.header;
  hedlab.caption = byte_numbers(menu.header);
  for (std::size_t index = 0; index < count; ++index) {
    const PictureMenuEntry& entry = menu.entries[index];
    // The length first, then the name: a name that is not empty sets its own length, so that a 0 byte inside
    // it is not counted. An empty name leaves the length as the file has it, 0 included.
    mlen[index].caption = std::to_string(entry.length);
    set_name(static_cast<int>(index), decode_text(entry.name));
    trailers_[index] = entry.trailer;
    position[index].caption = byte_numbers(entry.trailer);
  }
}

void MenuEditor::pmenwrite() {
  const std::string path = selected_path();
  if (!environment_.files.FileExists(path)) return;
  PictureMenu menu;
  menu.header = menu_header_;
  for (std::size_t index = 0; index < entry_count(selected_country()); ++index) {
    const int length = static_cast<int>(leading_number(mlen[index].caption));
    menu.entries.push_back({length, encode_text(bmnutb[index].text), trailers_[index]});
  }
  // Deliberate: what followed the last entry in the old file is not kept. The game reads no further.
  environment_.files.replace_file(path, compose_picture_menu(menu), Durability::kCached);
}

void MenuEditor::set_name(int index, std::string_view text) {
  std::string& name = bmnutb.at(static_cast<std::size_t>(index)).text;
  std::string cut = characters(text.substr(0, text.find('\0')), 0, kLongestName);
  if (cut == name) return;
  name = std::move(cut);
  bmnutb_Change(index);
}

void MenuEditor::bmnutb_Change(int index) {
  const std::size_t at = static_cast<std::size_t>(index);
  mlen.at(at).caption = std::to_string(character_count(bmnutb.at(at).text) + 1);
}

void MenuEditor::show() {
  if (menu_header_.empty()) pmenread();
  PMenFrame.visible = true;
  environment_.frames.bring_to_front(PMenFrame);
}

void MenuEditor::PMenFrame_Click() {
  PMenFrame.visible = false;
}

}  // namespace vorlund
