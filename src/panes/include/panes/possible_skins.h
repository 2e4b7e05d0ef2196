// The pane of possible skins: the skins that fit a slot or a flight model, one of which can be chosen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "panes/desk.h"
#include "panes/picture.h"
#include "panes/plane_pane.h"
#include "panes/selection_pane.h"

namespace vorlund {

/// State and verbs of `Frame4`. The labels keep their last values between uses. An entry of `List4`
/// that leads out of the skin store is shown like one whose folder holds no files.
class PossibleSkins {
 public:
  PossibleSkins(Desk& desk, PlanePane& plane, SelectionPane& selection);

  Frame Frame4{"Possible skins", false, {4200, 900, 12600, 7800}};
  ListBox List4;  ///< the skins that fit, "group\folder"
  Label Label38;  ///< slot code, or the flight model that skins are matched to
  Label Label36{"Skinslot:"};
  Label Label37;  ///< the slot shown: its record number, then the plane code of the viewed skin
  Label Label31;  ///< skin group of the viewed entry; a click empties the list
  Label Label32;  ///< skin folder of the viewed entry
  Label Label34{"Matching characters:"};
  Label Label35;  ///< length of the last match of a flight model; "" until one was made
  Label Label33{
      "Single click in the list to view a picture (if any). Click the picture to select the skin listed. "
      "Click in this area to hide the pane"};
  Picture Image4;  ///< picture of the viewed skin; a click chooses the skin

  /// Lists the skins made for the current row of the plane table and shows the first. A slot code in lower
  /// case finds nothing. Where nothing is found the pane opens empty. A missing
  /// skin list is an error.
  void FillPossibleSkins();

  /// Selects an entry and shows it.
  void select(int index);

  /// The folder that an entry stands for, "" for one that leads out of the skin store.
  [[nodiscard]] std::string folder_of(int index) const;

  /// Shows the selected entry: its picture and the plane that its files are made for.
  void show_entry();

  /// Puts the viewed skin into the row of the plane that its files are made for, whatever row was clicked,
  /// and makes that row the current one. `FlightModelBrowser::apply_matched_skin` does the rest of the click.
  void choose();

  /// What the last choice came to, in plain words.
  [[nodiscard]] const std::string& last_choice() const { return last_choice_; }

  /// Hides the pane and brings the plane table back.
  void hide();

  /// Empties the list; the pane stays shown.
  void empty_list();

  /// Shows the pane in front of the others with the first entry viewed, or empty when there is none.
  void open();

 private:
  void show_nothing();
  void read_code(const std::vector<FolderEntry>& entries, std::string_view pattern);
  [[nodiscard]] std::string describe_choice(int row, const std::string& asked_slot) const;

  Desk& desk_;
  PlanePane& plane_;
  SelectionPane& selection_;
  std::string last_choice_;
  int viewed_plane_ = -1;  // plane that the viewed folder's own files are made for, -1 for none
};

}  // namespace vorlund
