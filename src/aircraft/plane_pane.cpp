// Event handlers of the aircraft pane.
#include "aircraft/plane_pane.h"

#include <string>

#include "aircraft/aircraft_installer.h"
#include "aircraft/plane_record.h"

namespace vorlund {

PlanePane::PlanePane(Environment& environment, MenuEditor& menu_editor)
    : environment_(environment), menu_editor_(menu_editor) {
  Option1[static_cast<std::size_t>(PlaneOption::kFindFlightModel)].caption = "Find FM for selected slot";
  Option1[static_cast<std::size_t>(PlaneOption::kEditMode)].caption = "Edit Mode";
  Option1[static_cast<std::size_t>(PlaneOption::kMatchSkin)].caption = "Match skin to selected FM";
}

void PlanePane::select_option(PlaneOption option) {
  for (Choice& choice : Option1) choice.checked = false;
  Option1[static_cast<std::size_t>(option)].checked = true;
}

void PlanePane::Label8_Click() {
  const std::string caption = Label8.caption;
  Label8.caption = kWorkingCaption;
  environment_.status.repaint();
  Frame1.visible = false;
  const AircraftSummary summary = install_aircraft_set(environment_, table, pilot_names, menu_editor_);
  SavePS(environment_, table);
  hide_save_pane();
  Label8.caption = caption;
  last_outcome = summary.text();
  environment_.status.outcome(last_outcome);
  environment_.status.repaint();
}

void PlanePane::Label3_Click() {
  table.Label3_Click();
  const std::string& slot = table.G1.cell(table.G1.row, PlaneTable::kSlot);
  environment_.status.outcome(
      table.G1.row == 0 ? "Nothing was cleared: first select a slot"
                        : "Slot " + slot +
                              " was cleared and is still the selected one. Its files stay in the game "
                              "folder until \"Clean Up\".");
}

void PlanePane::G1_MouseDown(int row, int column, const MouseEvent& event) {
  if (event.button != MouseButton::kLeft) return;
  const bool edits = is_set(PlaneOption::kEditMode);
  if (edits) show_plane_codes();
  table.select(row, column);
  if (edits) table.selected_slot_row = table.G1.row;
  if (!edits || table.G1.row == 0) return;
  if (column == PlaneTable::kRegion || column == PlaneTable::kSkinFolder) {
    fill_possible_skins();
  } else {
    table.cycle(row, column);
  }
}

void PlanePane::Label10_Click() {
  Frame1.visible = false;
  environment_.labels.SkinLab2.visible = false;
  environment_.labels.pane_hidden();
}

void PlanePane::Frame1_MouseDown(const MouseEvent& event) {
  drag_.press(event);
}

void PlanePane::Frame1_MouseUp(const MouseEvent& event) {
  drag_.release(event, Frame1.place);
  environment_.frames.bring_to_front(Frame1);
}

void PlanePane::show_in_front() {
  Frame1.visible = true;
  environment_.frames.bring_to_front(Frame1);
}

}  // namespace vorlund
