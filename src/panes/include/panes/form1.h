// The one window object and its switchboard: every given handler by its name, and the verb that it calls.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "panes/contents_pane.h"
#include "panes/desk.h"
#include "panes/flight_model_browser.h"
#include "panes/game_pane.h"
#include "panes/help_pane.h"
#include "panes/load_pane.h"
#include "panes/menu_editor.h"
#include "panes/picture.h"
#include "panes/plane_pane.h"
#include "panes/possible_skins.h"
#include "panes/save_pane.h"
#include "panes/selection_pane.h"
#include "panes/table_history.h"

namespace vorlund {

/// The version shown, major.minor.revision.
struct Version {
  int major = 0;
  int minor = 0;
  int revision = 0;
};

/// State of the main window and the handlers of all its controls, without any widget. The window that shows
/// it hands events to the handlers and applies the state after every one of them. A handler that fails throws
/// ActionError; the program then ends.
class Form1 {
 public:
  /// `observer` is told of repaints and progress while an action runs. Both outlive the object.
  Form1(FileSystem& files, Status& observer, Version version);

  Desk desk;
  GamePane game{desk};
  MenuEditor menu_editor{desk};
  PlanePane plane{desk};
  SelectionPane selection{desk, game, plane};
  PossibleSkins possible_skins{desk, plane, selection};
  FlightModelBrowser browser{desk, plane, selection, possible_skins};
  SavePane save_pane{desk, game, plane};
  LoadPane load_pane{desk};
  HelpPane help{desk};
  ContentsPane contents{desk};

  Place place{1000, 1000, 0, 0};                 ///< where the window stands on the screen
  Picture background;                            ///< picture of the main window
  Label Label6{"Vorlund for European Air War"};  ///< title; a click hides it and the version
  Label Label26;                                 ///< version
  std::array<Label, 4> Label9{{{"Make Aircraft Settings"},
                               {"Make Game Settings"},
                               {"Set the Flight Model"},
                               {"Load saved set-ups"}}};  ///< the main menu
  Label WhatsLoaded{"Whats Loaded?", false};              ///< shows both tables
  Label DelMSN{"Delete \"Default.msn\" files from \"Savedata\""};
  Label Label18{"Fly!"};
  Label Label5{"Clean Up"};
  Label Label7{"Minimise"};
  Label ExitButton{"Exit"};
  FileList SavDatFile;  ///< "Default*.msn" in "Savedata"; never shown

  bool minimise_wanted = false;  ///< the window is to be minimised once; whoever does it resets this
  bool ended = false;            ///< the program is to end

  /// Start-up: pictures, tables from the records of what is installed, listings, skin list, version.
  void Form_Load();

  // The window itself: any button drags it.
  void Form_MouseDown(const MouseEvent& event) { drag_.press(event); }
  void Form_MouseUp(const MouseEvent& event) { drag_.release(event, place); }

  // The game directory.
  void Dir6_DblClick(int index) { open_directory(index); }
  void Label17_Click() { confirm_directory(); }

  // The main menu and the command labels: the right button drags them, the left one commands.
  void Label_MouseDown(const MouseEvent& event) { press_label(event); }
  void Label9_MouseUp(int index, const MouseEvent& event) { release_menu_entry(index, event); }
  void Label18_MouseUp(const MouseEvent& event) { release(Label18, event, &Form1::start_game); }
  void DelMSN_MouseUp(const MouseEvent& event) { release(DelMSN, event, &Form1::delete_missions); }
  void Label5_MouseUp(const MouseEvent& event) { release(Label5, event, &Form1::CleanUp); }
  void Label7_MouseUp(const MouseEvent& event) { release(Label7, event, &Form1::minimise); }
  void ExitButton_MouseUp(const MouseEvent& event) { release(ExitButton, event, &Form1::end); }
  void Label6_MouseUp() { hide_title(); }
  void WhatsLoaded_Click() { show_what_is_loaded(); }
  void Label2_Click() { selection.show_table(); }
  void Label41_Click() { selection.bring_table_to_front(); }

  /// The "Hide" labels: of the plane table (0), the game table (1) and the selection pane (2).
  void Label10_Click(int index);

  // The game pane.
  void G2_Click(int row) { game.select_row(row); }
  void GameLoad_Click() {
    act([this] { game.install(); });
  }
  void Label28_Click() {
    change_tables([this] { game.clear_selected_row(selection.last_group()); });
  }
  void Label29_Click() {
    change_tables([this] { game.move_selected_row_to_end(); });
  }
  void Label11_Click() { save_pane.open(SavePane::SaveKind::kGameSet); }
  void Label12_Click() { load_pane.open(); }
  void GameFrame_MouseDown(const MouseEvent& event) { drag_.press(event); }
  void GameFrame_MouseUp(const MouseEvent& event) { release_frame(game.GameFrame, event); }

  // The aircraft pane.
  void G1_MouseDown(int row, int column, const MouseEvent& event = {});
  void G1_Move(int row, int column) { plane.select_cell(row, column); }
  void Label8_Click() {
    act([this] { install_aircraft(); });
  }
  void Label3_Click() {
    change_tables([this] { plane.clear_selected_row(); });
  }
  void Label30_Click() { plane.switch_view(); }
  void Option1_Click(int index) { plane.choose_option(static_cast<PlaneOption>(index)); }
  void List2_Click(int index) {
    change_tables([this, index] { browser.select_flight_model(index); });
  }
  void List3_Click(int index) {
    change_tables([this, index] { browser.select_plane_code(index); });
  }
  void Label14_Click() { save_pane.open(SavePane::SaveKind::kPlaneSet); }
  void Label13_Click() { load_pane.open(); }
  void PictureMenus_Click() { menu_editor.show(); }
  void Frame1_MouseDown(const MouseEvent& event) { drag_.press(event); }
  void Frame1_MouseUp(const MouseEvent& event) { release_frame(plane.Frame1, event); }

  // The selection pane and the group labels.
  void Label1_Click(int index) {
    change_tables([this, index] { selection.open_group(index); });
  }
  void SelLab_Click(int index) { selection.show_selection(index); }
  void SelLab_DblClick() {
    change_tables([this] { selection.DoSel(); });
  }
  void Image1_Click() {
    change_tables([this] { selection.DoSel(); });
  }
  void Frame3_Click() { selection.hide(); }
  void step_back_in_selection() { selection.step_back(); }
  void Image3_Click() { selection.hide(); }

  /// "Hide picture" (0) and "Show/hide details" (1).
  void Label27_Click(int index) { index == 0 ? selection.hide_picture() : selection.toggle_details(); }

  // The possible skins.
  void List4_Click(int index) { possible_skins.select(index); }
  void Image4_Click() {
    change_tables([this] { choose_possible_skin(); });
  }
  void Label31_Click() { possible_skins.empty_list(); }
  void Label33_Click() { possible_skins.hide(); }
  void Frame4_MouseDown(const MouseEvent& event) { drag_.press(event); }
  void Frame4_MouseUp(const MouseEvent& event) { release_frame(possible_skins.Frame4, event); }

  // Saving a set-up.
  void Text2_Change(std::string_view text) { save_pane.type(text); }
  void File5_Click(int index) { save_pane.take_name(index); }
  void Label4_Click() {
    act([this] { save_pane.save(); });
  }
  void Label39_Click() { save_pane.hide(); }
  void SaveFrame_Click() { save_pane.hide(); }

  // Loading set-ups.
  void File2_Click(int index) { load_pane.choose_plane_set(index); }
  void File3_Click(int index) { load_pane.choose_game_set(index); }
  void Check1_Click() { load_pane.Check1.checked = !load_pane.Check1.checked; }
  void Label19_Click() {
    act([this] { load_set_ups(); });
  }
  void Label20_Click() { load_pane.take_back_plane_set(); }
  void Label21_Click() { load_pane.take_back_game_set(); }
  void Label40_Click() { load_pane.hide(); }
  void Frame2_Click() { load_pane.hide(); }

  // The menu editor.
  void CountryBut_Click(int index) { menu_editor.select_country(static_cast<Country>(index)); }
  void bmnutb_Change(int index, std::string_view text) { menu_editor.set_name(index, text); }
  void MenuHide_Click() { menu_editor.hide(); }
  void PMenFrame_Click() { menu_editor.hide(); }

  // The help.
  void HelpLabel_Click() { help.show_or_hide(); }
  void HelpFrame_Click() { help.hide(); }

  // What is in the game folder.
  void Contents_MouseUp(const MouseEvent& event) {
    release(contents.Contents[0], event, &Form1::look_into_folder);
  }
  void Contents_Click() { look_into_folder(); }
  void ContentsAgain_Click() { look_into_folder(); }
  void ContentsKinds_Click(int index) { contents.show_kind(index); }
  void ContentsFilter_Change(std::string_view typed) { contents.filter(typed); }
  void ContentsTable_Sort(int column) { contents.sort(column); }
  void ContentsTable_Select(const std::vector<int>& places) { contents.select(places); }
  void ContentsChain_Click(int index) { contents.ContentsChain.selected = index; }
  void ContentsCopy_Click() { contents.copy(); }
  void ContentsHide_Click() { contents.hide(); }
  void ContentsFrame_MouseDown(const MouseEvent& event) { drag_.press(event); }
  void ContentsFrame_MouseUp(const MouseEvent& event) { release_frame(contents.ContentsFrame, event); }

  /// Brings career saves home, deletes installed loose files and empties both tables and records.
  void CleanUp() {
    act([this] { clean_up(); });
  }

  /// Ctrl+Z and Ctrl+Y: takes the last change of the tables since the start or the clean-up back, and does it
  /// again; a thousand at most. In memory alone; files are as they were.
  void take_back();
  void do_again();

 private:
  void open_directory(int index);
  void confirm_directory();

  /// Says where the game directory holds no game, or no store.
  void say_of_directory();
  void press_label(const MouseEvent& event);
  void release_menu_entry(int index, const MouseEvent& event);

  /// A button was released on a label: the right one drags it, the left one runs its command.
  void release(Label& label, const MouseEvent& event, void (Form1::*command)());
  bool dragged(const MouseEvent& event, Label& label);
  void release_frame(Frame& frame, const MouseEvent& event);

  void open_aircraft_work();
  void open_game_work();
  void open_flight_model_choice();
  void open_set_ups();
  void start_game();
  void delete_missions() {
    act([this] { delete_mission_files(); });
  }
  void delete_mission_files();
  void clean_up();
  void minimise() { minimise_wanted = true; }
  void end() { ended = true; }
  void hide_title();
  void show_what_is_loaded();
  void install_aircraft();
  void load_set_ups();
  void choose_possible_skin();
  void look_into_folder();

  /// Says in the status line what to do next, or that the folder of the store holds nothing to do it with.
  void say_next(const FolderList& groups, std::string_view store, std::string_view next);

  /// Runs an action on the game's files as change_tables does, while no other program can run one in the same
  /// folders. Where one does so already, nothing is done, and the status line says in which folder.
  void act(const std::function<void()>& action);

  /// Says in the status line which paths count as missing for want of the right to look.
  void say_unseen();

  /// Runs what may change the tables. Then the change can be taken back, the selections in use are marked
  /// anew, and where career saves would now go home to another folder the status line says so.
  void change_tables(const std::function<void()>& change);

  Version version_;
  TableHistory history_{game, plane};
  DragOrigin drag_;
  bool told_of_locks_ = false;  ///< that a disk knows none
};

}  // namespace vorlund
