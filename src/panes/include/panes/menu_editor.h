// The menu editor pane: one plane-picture menu as editable names beside the bytes carried unchanged.
#pragma once

#include <array>
#include <string_view>

#include "aircraft/picture_menu.h"
#include "panes/desk.h"

namespace vorlund {

/// State and verbs of `PMenFrame`. The menu is the working copy of the aircraft installer; what the controls
/// show is derived from it.
class MenuEditor {
 public:
  /// What the three menus are called, by country.
  static constexpr std::array<const char*, 3> kMenuNames = {
      "British menu, picplnb.mnu", "American menu, picplna.mnu", "German menu, picplng.mnu"};

  explicit MenuEditor(Desk& desk) : desk_(desk) {}

  PictureMenu menu;  ///< what the pane shows

  Frame PMenFrame{"PMenFrame", false, {4200, 900, 13500, 7650}};
  Frame MnuFrame{"Select Picplnb, Picplna, or Picplng.mnu to read/edit", true, {300, 300, 6000, 900}};
  std::array<Choice, 3> CountryBut{{{"B", true}, {"A"}, {"G"}}};  ///< British, American, German menu file
  std::array<TextBox, PictureMenu::kEntries> bmnutb;              ///< names of the entries
  std::array<Label, PictureMenu::kEntries> mlen;                  ///< length byte of each entry, in decimal
  std::array<Label, PictureMenu::kEntries> position;  ///< trailers: 15 decimal numbers, a blank before each
  Label MenuHide{"Hide"};                             ///< closes the pane; a label of the window's own
  Label MenuShown;                                    ///< says which menu was read last
  Label hedlab;                                       ///< header: 35 decimal numbers, a blank before each

  /// Sets one country button and clears the others. It only decides which file is meant next.
  void select_country(Country country);

  /// Puts a name into an entry as it was typed.
  void set_name(int index, std::string_view text);

  /// Shows the menu as it is now; `country` is whose it is.
  void refresh(Country country);

  /// Shows the pane in front of the others. A pane that holds nothing yet reads the selected file first.
  void show();
  void hide();

 private:
  /// One country button is always set.
  [[nodiscard]] Country selected_country() const;
  void show_bytes();

  Desk& desk_;
};

}  // namespace vorlund
