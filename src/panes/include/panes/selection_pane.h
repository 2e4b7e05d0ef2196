// The selection pane: browses a two-level store and puts a chosen folder into the table of the running work.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "disk/listing.h"
#include "panes/desk.h"
#include "panes/game_pane.h"
#include "panes/picture.h"
#include "panes/plane_pane.h"

namespace vorlund {

/// What the group labels of the selection pane stand for: the last main-menu entry chosen, by its index.
enum class PaneMode { kAircraftSet = 0, kGameSet = 1, kFlightModelGroup = 2 };

/// State and verbs of `Frame3`, of the group labels beside it and of the labels that bring the
/// tables back.
class SelectionPane {
 public:
  SelectionPane(Desk& desk, GamePane& game, PlanePane& plane);

  PaneMode mode = PaneMode::kAircraftSet;
  std::string current_group;      ///< caption of the group label last clicked
  std::string current_selection;  ///< caption of the selection label last clicked

  /// Room that the window has for panes, kept by the window.
  Place screen{0, 0, 19200, 10800};

  std::vector<Label> Label1;  ///< group labels; element 0 always exists
  Finder found_groups;        ///< what was typed to find one of them
  FolderList Dir1;            ///< groups of the store that is browsed
  FolderList Dir5;            ///< flight-model groups
  FolderList RegionDir;       ///< folders of the opened group
  std::vector<Label> SelLab;  ///< folders of the opened group; element 0 always exists
  Finder found_folders;       ///< what was typed to find one of them
  int viewed = -1;            ///< index of the selection label last clicked in this group, -1 for none

  Frame Frame3;
  TextBox Text1{"", false};  ///< description of the shown selection
  Picture Image1;            ///< its picture; a click chooses the selection
  Picture Image3;            ///< fills the pane; a click hides it
  std::array<Label, 2> Label27{{{"Hide picture", false}, {"Show/hide details", false}}};
  Label Label41{"Bring the table to the front", false};
  Label Label10{"Hide"};  ///< element 2 of the "Hide" labels

  /// Makes this the running work: `Label2` then brings its table back, if it has one.
  void work_on(PaneMode work);

  /// Loads the next element of `Label1`: below the one before it, or at the top of a new column.
  void Label1Make();

  /// Makes one shown group label for each name, element 0 for the first.
  void make_group_labels(const std::vector<std::string>& names);

  /// Removes all group labels but element 0.
  void remove_group_labels();

  /// True while there are group labels to click.
  [[nodiscard]] bool shows_groups() const { return Label1.front().visible; }

  /// Caption of the group label with the highest index; none while the labels are removed.
  [[nodiscard]] std::optional<std::string_view> last_group() const;

  /// True from the click on a selection until a group is opened.
  [[nodiscard]] bool shows_selection() const { return shows_selection_; }

  /// Opens group `index`, or in `kFlightModelGroup` makes it the current flight-model group.
  void open_group(int index);

  /// Lists the folders of a group of the running work's store into `SelLab` and makes it the current group.
  void list_group(const std::string& group);

  /// Shows the description, picture and slot of selection `index`.
  void show_selection(int index);

  /// Puts the shown selection into the table of the running work. While none is shown it does nothing.
  void DoSel();

  /// True while neither picture nor description of a selection is shown: their place is taken by a sheet with
  /// the pictures of all folders.
  [[nodiscard]] bool shows_sheet() const { return !Image1.visible && !Text1.visible; }

  /// The folder that selection label `index` stands for.
  [[nodiscard]] std::string folder_of(int index) const;

  /// One step back: what was typed to find a folder is emptied, else the shown selection left for the sheet,
  /// else the pane hidden.
  void step_back();

  /// Marks the group label of the current flight-model group.
  void mark_flight_model_group();

  /// Marks the selection labels whose folders are in use.
  void ShowSelected();

  void hide_picture() { Image1.visible = false; }
  void toggle_details() { Text1.visible = !Text1.visible; }
  void hide();

  /// Hides the pane, so that the table can be brought back.
  void hide_for_table();

  /// Shows the table of the running work in front; `show_table` also empties the picture.
  void bring_table_to_front();
  void show_table();

 private:
  [[nodiscard]] std::string group_folder() const;
  void show_slot(const std::string& folder);
  void say_missing_models();
  void choose_skin();
  void choose_game_folder();

  Desk& desk_;
  GamePane& game_;
  PlanePane& plane_;
  bool shows_selection_ = false;
};

}  // namespace vorlund
