// The pane of the plane table and its commands.
#pragma once

#include <array>
#include <functional>

#include "aircraft/pilot_names.h"
#include "aircraft/plane_table.h"
#include "core/environment.h"
#include "menus/menu_editor.h"

namespace vorlund {

/// What a click in the plane table or in the list of flight models does: the index of the option button.
/// There is no button of index 1.
enum class PlaneOption { kMatchSkin = 0, kEditMode = 2, kFindFlightModel = 3 };

/// State and event handlers of `Frame1`.
class PlanePane {
 public:
  /// Both outlive the pane. The installer sets the names of the picture menus through the editor.
  PlanePane(Environment& environment, MenuEditor& menu_editor);

  Frame Frame1{"Skin and flight model table", false, {4200, 900, 14400, 8400}};
  PlaneTable table;
  PilotNames pilot_names;
  Label Label8{"Process!"};                ///< installs the aircraft set
  Label Label3{"Clear the selected row"};  ///< takes the current row out of the set
  Label Label24{"Current flight model:"};  ///< beside the flight-model group
  Label Label10{"Hide"};                   ///< element 0 of the "Hide" labels
  std::array<Choice, 4> Option1;           ///< option buttons by index; element 1 is not used

  // What crosses to other panes; the window object sets them.
  std::function<void()> show_plane_codes = [] {};     ///< hides `List2` and shows `List3`
  std::function<void()> fill_possible_skins = [] {};  ///< lists the skins that fit the current row
  std::function<void()> hide_save_pane = [] {};       ///< hides `SaveFrame`, after the record is written

  /// Sets one option button and clears the others. None is set at start.
  void select_option(PlaneOption option);
  bool is_set(PlaneOption option) const { return Option1[static_cast<std::size_t>(option)].checked; }

  /// Installs the aircraft set, writes the record and says in the status line what was done: the first line
  /// sums up, each further line is a remark in plain words. The pane is hidden and stays so. A failure ends
  /// the action with an ActionError; what was written before stays, and the record is then not rewritten.
  void Label8_Click();
  std::string last_outcome;  ///< what the last installation has come to, in plain words

  /// Clears the current row and says so.
  void Label3_Click();
  void Label30_Click() { table.Label30_Click(); }

  /// A press of the left button on a cell, or Enter or Space on the current one: makes the cell current. In
  /// edit mode it shows the plane codes, opens the possible skins for "Region" and "SkinFolder", and cycles
  /// "Side", "Flyable", "Role" and "Fuel %". The header row is never edited.
  void G1_MouseDown(int row, int column, const MouseEvent& event = {});

  /// Hides the pane.
  void Label10_Click();

  void Frame1_MouseDown(const MouseEvent& event);
  void Frame1_MouseUp(const MouseEvent& event);

  /// Shows the pane in front of the others.
  void show_in_front();

 private:
  Environment& environment_;
  MenuEditor& menu_editor_;
  DragOrigin drag_;
};

}  // namespace vorlund
