// Verbs of the aircraft pane.
#include "panes/plane_pane.h"

#include "aircraft/plane_record.h"
#include "base/text.h"
#include "panes/set_actions.h"

namespace vorlund {

PlanePane::PlanePane(Desk& desk) : desk_(desk) {
  Option1[static_cast<std::size_t>(PlaneOption::kFindFlightModel)].caption = "Find FM for selected slot";
  Option1[static_cast<std::size_t>(PlaneOption::kEditMode)].caption = "Edit Mode";
  Option1[static_cast<std::size_t>(PlaneOption::kMatchSkin)].caption = "Match skin to selected FM";
  refresh();
}

void PlanePane::set_option(PlaneOption option) {
  for (Choice& choice : Option1) choice.checked = false;
  Option1[static_cast<std::size_t>(option)].checked = true;
  option == PlaneOption::kEditMode ? show_plane_codes() : show_flight_models();
}

void PlanePane::choose_option(PlaneOption option) {
  set_option(option);
  desk_.say("");
}

void PlanePane::install(PictureMenu& menu) {
  const Working working(desk_, Label8);
  Frame1.visible = false;
  const AircraftSummary summary = process_aircraft_set(desk_.game(), desk_.status, G1, pilot_names, menu);
  refresh();
  desk_.say(summary.text());
}

void PlanePane::clear_selected_row() {
  if (G1.current_row == 0) {
    desk_.say("Nothing was cleared: first select a slot");
    return;
  }
  G1.clear_current();
  refresh();
  desk_.say("Slot " + G1.cell(G1.current_row, PlaneTable::kSlot) +
            " was cleared and is still the selected one");
  desk_.say_on(kFilesStay);
}

void PlanePane::switch_view() {
  G1.switch_view();
  refresh();
  const std::size_t shown = G1.shown_slots().size();
  if (G1.shows_all) return desk_.say("All slots are shown");
  if (shown == 0) return desk_.say("No slot is in use");
  desk_.say(counted(shown, "slot that is in use is shown", "slots that are in use are shown"));
}

void PlanePane::select_cell(int row, int column) {
  G1.select(row, column);
  desk_.say("");
}

bool PlanePane::click_cell(int row, int column) {
  const bool edits = is_set(PlaneOption::kEditMode);
  if (edits) show_plane_codes();
  select_cell(row, column);
  if (!edits) return false;
  G1.selected_slot_row = G1.current_row;
  if (G1.current_row == 0) return false;
  if (column == PlaneTable::kRegion || column == PlaneTable::kSkinFolder) return true;
  const std::string before = G1.cell(row, column);
  G1.cycle(row, column);
  if (G1.cell(row, column) != before) {
    desk_.say(G1.cell(0, column) + " of slot " + G1.cell(row, PlaneTable::kSlot) + " is now " +
              G1.cell(row, column));
  }
  return false;
}

void PlanePane::set_flight_model_group(const std::string& group) {
  G1.flight_model_group = group;
  for (Label& label : Label25) label.caption = group;
}

void PlanePane::load(std::string_view path) {
  read_plane_set(desk_.files, path, G1);
  set_flight_model_group(G1.flight_model_group);
  refresh();
}

void PlanePane::show_emptied() {
  for (Label& label : Label25) label.caption.clear();
  refresh();
}

void PlanePane::show_changed(int row) {
  if (!G1.shows_all) G1.g1update();
  G1.select(row, G1.current_column);
  refresh();
}

void PlanePane::refresh() {
  Label30.caption = G1.shows_all ? "Show Selections" : "Show All";
}

void PlanePane::show_flight_models() {
  List2.visible = true;
  List3.visible = false;
}

void PlanePane::show_plane_codes() {
  List2.visible = false;
  List3.visible = true;
}

void PlanePane::hide() {
  Frame1.visible = false;
  desk_.labels.SkinLab2.visible = false;
  desk_.labels.pane_hidden();
}

}  // namespace vorlund
