// The pane of the plane table, its commands and the lists beside it.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "aircraft/picture_menu.h"
#include "aircraft/pilot_names.h"
#include "aircraft/plane_table.h"
#include "panes/desk.h"

namespace vorlund {

/// What a click in the plane table or in the list of flight models does: the index of the option button.
/// There is no button of index 1.
enum class PlaneOption { kMatchSkin = 0, kEditMode = 2, kFindFlightModel = 3 };

/// State and verbs of `Frame1`.
class PlanePane {
 public:
  /// Of the first columns of `G1`, in twips; the further ones have the window's own width.
  static constexpr std::array<int, 5> kColumnWidths = {800, 1500, 3000, 800, 1200};

  explicit PlanePane(Desk& desk);

  Frame Frame1{"Skin and flight model table", false, {4200, 900, 14400, 8400}};
  PlaneTable G1;                           ///< the thirty slots
  PilotNames pilot_names;                  ///< the name list `PNameList`
  Finder found_names;                      ///< what was typed to find one of them
  Label Label8{"Process!"};                ///< installs the aircraft set
  Label Label3{"Clear the selected row"};  ///< takes the current row out of the set
  Label Label30;  ///< switches between all slots and used ones; says which comes next
  Label Label24{"Current flight model:"};  ///< beside the flight-model group
  std::array<Label, 2> Label25;            ///< the current flight-model group, shown twice
  Label Label10{"Hide"};                   ///< element 0 of the "Hide" labels
  std::array<Choice, 4> Option1;           ///< option buttons by index; element 1 is not used
  ListBox List2;                           ///< flight-model folders of the current flight-model group
  ListBox List3{{}, -1, false};            ///< the 30 plane codes in upper case, shown in edit mode

  /// Sets one option button, clears the others and shows the list that belongs to it. None is set at start.
  void set_option(PlaneOption option);

  /// What a click on one does.
  void choose_option(PlaneOption option);
  [[nodiscard]] bool is_set(PlaneOption option) const {
    return Option1[static_cast<std::size_t>(option)].checked;
  }

  /// Installs the aircraft set, writes the record and says what was done: the first line sums up, each
  /// further line is a remark in plain words. The pane is hidden and stays so. `menu` is left holding the
  /// German picture menu. A failure ends the action with an ActionError; what was written before stays, and
  /// the record is then not rewritten.
  void install(PictureMenu& menu);

  /// Clears the current row and says so.
  void clear_selected_row();

  /// Shows all slots, or those in use alone.
  void switch_view();

  /// Makes a cell current.
  void select_cell(int row, int column);

  /// Makes a cell current as a click does. In edit mode it shows the plane codes and cycles "Side",
  /// "Flyable", "Role" and "Fuel %"; true for a "Region" or "SkinFolder", for which skins are to be offered.
  /// The header row is never edited.
  [[nodiscard]] bool click_cell(int row, int column);

  /// Makes this the flight-model group, and shows it.
  void set_flight_model_group(const std::string& group);

  /// Refills the table from a file: the record, or a saved set-up.
  void load(std::string_view path);

  /// Shows the table after the clean-up has emptied it. The group stays but is not shown.
  void show_emptied();

  /// Shows what was put into the table from outside, with this row the current one.
  void show_changed(int row);

  /// Makes the table's captions say what it holds, after something else has changed it.
  void refresh();

  void show_flight_models();
  void show_plane_codes();
  void hide();
  void show() { desk_.show_in_front(Frame1); }

 private:
  Desk& desk_;
};

}  // namespace vorlund
