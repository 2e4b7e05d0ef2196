// The menu editor pane: one plane-picture menu file as editable names beside the bytes carried unchanged.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/environment.h"

namespace vorlund {

/// State and event handlers of `PMenFrame`. The aircraft installer works through it: it selects a country
/// button, has the file read into the pane, sets names and has the file written back.
class MenuEditor {
 public:
  static constexpr std::size_t kEntries = 11;       ///< the German file has 11 entries, the others 9
  static constexpr std::size_t kLongestName = 254;  ///< characters; the length byte counts one more

  explicit MenuEditor(Environment& environment) : environment_(environment) {}

  Frame PMenFrame{"PMenFrame", false, {4200, 900, 13500, 7650}};
  Frame MnuFrame{"Select Picplnb, Picplna, or Picplng.mnu to read/edit", true, {300, 300, 6000, 900}};
  std::array<Choice, 3> CountryBut{{{"B", true}, {"A"}, {"G"}}};  ///< British, American, German menu file
  std::array<TextBox, kEntries> bmnutb;                           ///< names of the entries
  std::array<Label, kEntries> mlen;                               ///< length byte of each entry, in decimal
  std::array<Label, kEntries> position;  ///< trailer of each entry: 15 decimal numbers, a blank before each
  Label hedlab;                          ///< header of the file: 35 decimal numbers, a blank before each

  /// Sets one country button and clears the others. It only decides which file is meant next.
  void CountryBut_Click(int index);

  /// Clears the pane and reads the file of the selected country button into it. A missing file leaves the
  /// pane cleared. Names longer than 254 characters are cut.
  void pmenread();

  /// Writes what the pane holds into the file of the selected country button, which must exist: the program
  /// never creates a menu file.
  void pmenwrite();

  /// Puts a text into `bmnutb(index)`, cut to 254 characters; a text that differs from the old one sets the
  /// length of the entry.
  void set_name(int index, std::string_view text);

  /// The text of `bmnutb(index)` has changed: its length value follows, the ending 0 byte counted.
  void bmnutb_Change(int index);

  /// Shows the pane in front of the others. A pane that holds nothing yet reads the selected file first.
  void show();

  /// Hides the pane.
  void PMenFrame_Click();

 private:
  std::size_t selected_country() const;
  std::string selected_path() const;

  Environment& environment_;
  std::string menu_header_;                     ///< bytes of the header of the file last read
  std::array<std::string, kEntries> trailers_;  ///< bytes of each entry's trailer
};

}  // namespace vorlund
