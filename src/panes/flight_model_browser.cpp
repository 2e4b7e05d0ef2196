// Prepares the aircraft work, puts flight models into slots and matches skins to them.
#include "panes/flight_model_browser.h"

#include <cmath>
#include <utility>

#include "aircraft/flight_model_folder.h"
#include "aircraft/plane_codes.h"
#include "aircraft/value_file.h"
#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "disk/store.h"

namespace vorlund {

namespace {

constexpr std::string_view kNoSlot = "Nothing was changed: first select a slot in the plane table";
constexpr std::string_view kFolderAlone = "; only the script folder was set";

constexpr std::size_t kFlightModelLines = 169;  // the title and the 168 bytes of an aircraft record

double whole_number(double value) {
  return std::trunc(value) + 0.0;  // no minus sign before a 0
}

const char* role_of(double flags) {
  const double code = std::fmod(flags, 4);
  return code == 1 ? "Fighter" : code == 2 ? "Bomber" : code == 3 ? "F/B" : "";
}

const char* side_of(double flags, double side_bits) {
  if (flags > 127) return "German";
  const double code = std::fmod(side_bits, 4);
  return code == 1 ? "British" : code == 2 ? "American" : code == 3 ? "Allied" : "";
}

/// The title of a flight model as a cell: a TAB would end the cell when the set is saved.
std::string title_cell(std::string_view line) {
  std::string title = decode_text(line);
  for (char& character : title) {
    if (character == '\t') character = ' ';
  }
  return title;
}

}  // namespace

FlightModelBrowser::FlightModelBrowser(Desk& desk, PlanePane& plane, SelectionPane& selection,
                                       PossibleSkins& possible_skins)
    : desk_(desk), plane_(plane), selection_(selection), possible_skins_(possible_skins) {}

void FlightModelBrowser::DoFM() {
  selection_.remove_group_labels();
  selection_.Dir1.open(desk_.files, desk_.game().path(kSkinStore));
  Dir3.path = flight_model_group_folder(desk_.game(), plane_.G1);
  Dir3.names.clear();
  if (!Dir3.path.empty()) Dir3.names = list_folders(desk_.files, Dir3.path);
  selection_.make_group_labels(selection_.Dir1.names);
  plane_.List2.items = Dir3.names;
  plane_.List2.selected = -1;
  plane_.List2.finder.clear();
  plane_.List2.visible = !Dir3.names.empty();
  plane_.List3.items.clear();
  plane_.List3.selected = -1;
  plane_.List3.finder.clear();
  for (const std::string& code : PlaneCodeSet()) plane_.List3.items.push_back(to_upper(code));
  plane_.G1.fill_slots();
  plane_.pilot_names.LoadPnames(desk_.game());
}

void FlightModelBrowser::select_flight_model(int index) {
  plane_.List2.selected = index;
  use_flight_model();
}

void FlightModelBrowser::use_flight_model() {
  const std::string flight_model = selected_flight_model();
  if (flight_model.empty()) return;
  if (plane_.is_set(PlaneOption::kMatchSkin)) {
    match_skins(flight_model);
  } else if (plane_.is_set(PlaneOption::kEditMode) || plane_.is_set(PlaneOption::kFindFlightModel)) {
    desk_.say(put_into_row(flight_model));
    desk_.say_spelling(flight_model);
  } else {
    desk_.say("Nothing was changed: choose above the table what a click in the list does");
  }
}

std::string FlightModelBrowser::selected_flight_model() const {
  const ListBox& list = plane_.List2;
  const bool any = list.selected >= 0 && static_cast<std::size_t>(list.selected) < list.items.size();
  return any ? list.items[static_cast<std::size_t>(list.selected)] : "";
}

void FlightModelBrowser::select_plane_code(int index) {
  plane_.List3.selected = index;
  if (index < 0 || static_cast<std::size_t>(index) >= plane_.List3.items.size()) return;
  PlaneTable& table = plane_.G1;
  if (table.current_row == 0) {
    desk_.say(kNoSlot);
    return;
  }
  table.show_row(table.current_row);
  table.set_cell(table.current_row, PlaneTable::kRecordNumber, std::to_string(index));
  desk_.say("PlnDat of slot " + table.cell(table.current_row, PlaneTable::kSlot) + " is now " +
            std::to_string(index));
}

void FlightModelBrowser::apply_matched_skin() {
  if (possible_skins_.Label35.caption.empty()) return;
  plane_.set_option(PlaneOption::kFindFlightModel);
  if (const std::string flight_model = selected_flight_model(); !flight_model.empty()) {
    desk_.say(possible_skins_.last_choice() + "\n" + put_into_row(flight_model));
  }
  plane_.show();
  plane_.set_option(PlaneOption::kMatchSkin);
}

std::vector<FlightModelBrowser::SkinLabel> FlightModelBrowser::open_every_group() {
  std::vector<SkinLabel> skins;
  for (std::size_t index = 0; index < selection_.Label1.size(); ++index) {
    if (!selection_.Label1[index].visible) continue;
    selection_.open_group(static_cast<int>(index));
    for (const Label& label : selection_.SelLab) skins.push_back({selection_.current_group, label.caption});
  }
  return skins;
}

void FlightModelBrowser::match_skins(const std::string& flight_model) {
  const bool groups_are_gone = !selection_.shows_groups() && !selection_.Dir1.names.empty();
  if (selection_.mode != PaneMode::kAircraftSet || groups_are_gone) {
    desk_.say("Skins are matched in the aircraft settings alone: open them from the menu first");
    return;
  }
  std::vector<std::string>& found = possible_skins_.List4.items;
  found.clear();
  possible_skins_.List4.selected = -1;
  desk_.labels.SkinLab3.caption.clear();
  possible_skins_.Label38.caption = flight_model;

  // Deliberate: a group without folders leaves the first selection label as it was, and that label is
  // compared like any other. The label is blank meanwhile, so that such a group can be told before any label
  // is filled.
  std::string left_over = std::exchange(selection_.SelLab.front().caption, "");
  const std::vector<SkinLabel> skins = open_every_group();
  std::string& first_label = selection_.SelLab.front().caption;
  if (first_label.empty()) first_label = left_over;

  std::string beginning = flight_model;
  std::size_t length = character_count(beginning);
  for (;;) {
    for (const SkinLabel& skin : skins) {
      const std::string& name = skin.folder.empty() ? left_over : skin.folder;
      if (!name.empty() && name.find(beginning) != std::string::npos)
        found.push_back(skin.group + "\\" + name);
    }
    if (!found.empty() || beginning.empty()) break;
    length = character_count(beginning);
    beginning = characters(beginning, 0, length - 1);
    left_over = first_label;
  }
  possible_skins_.Image4.picture = {};
  possible_skins_.Image4.fallback = load_picture(desk_.files, desk_.game().path(kDefaultPicture));
  if (found.empty()) {
    desk_.say("The skin store has no skin to match with " + quoted(flight_model));
    return;
  }
  // Deliberate: the length before the last cut, so one more than matched unless the whole name did.
  possible_skins_.Label35.caption = std::to_string(length);
  plane_.Frame1.visible = false;
  selection_.Frame3.visible = false;
  PlaneTable& table = plane_.G1;
  table.select(table.selected_slot_row.value_or(table.current_row), PlaneTable::kPlaneName);
  desk_.say(std::to_string(found.size()) + (found.size() == 1 ? " skin has " : " skins have ") +
            quoted(beginning) + " in the name");
  possible_skins_.open();
}

std::string FlightModelBrowser::put_into_row(const std::string& flight_model) {
  PlaneTable& table = plane_.G1;
  const int row = table.current_row;
  if (row == 0) return std::string(kNoSlot);
  table.show_row(row);
  table.set_cell(row, PlaneTable::kScriptFolder, flight_model);
  const std::string folder = flight_model_folder(desk_.game(), table, row);
  if (folder.empty() || !desk_.files.FolderExists(folder)) {
    return "The flight-model group " + quoted(table.flight_model_group) + " has no folder " +
           quoted(flight_model).append(kFolderAlone);
  }
  const std::vector<std::string> models = list_files(desk_.files, folder, "*.oaw");
  if (models.empty()) return quoted(flight_model).append(" holds no \".oaw\" file").append(kFolderAlone);
  ValueFile oaw(desk_.files, folder + "\\" + models.front());
  FlightModelLines lines;
  if (!oaw.at_end()) lines.title = oaw.title();
  while (oaw.lines_read() < kFlightModelLines && !oaw.at_end()) lines.values.push_back(oaw.next_value());
  if (oaw.lines_read() < kFlightModelLines) {
    return quoted(models.front())
        .append(" has " + std::to_string(oaw.lines_read()) + " lines where ")
        .append(std::to_string(kFlightModelLines) + " are needed")
        .append(kFolderAlone);
  }
  describe(row, lines);
  return "Slot " + table.cell(row, PlaneTable::kSlot) + " now flies " + quoted(flight_model);
}

void FlightModelBrowser::describe(int row, const FlightModelLines& lines) {
  PlaneTable& table = plane_.G1;
  table.set_cell(row, PlaneTable::kPlaneName, title_cell(lines.title));
  if (table.cell(row, PlaneTable::kRecordNumber).empty()) {
    table.set_cell(row, PlaneTable::kRecordNumber, number_text(whole_number(lines.values[0])));
  }
  const double flags = whole_number(lines.values[4]);
  table.set_cell(row, PlaneTable::kSide, side_of(flags, whole_number(lines.values[5])));
  table.set_cell(row, PlaneTable::kFlyable, std::fmod(flags, 8) > 3 ? "Yes" : "No");
  table.set_cell(row, PlaneTable::kRole, role_of(flags));
  table.set_cell(row, PlaneTable::kFuel, "100");
}

}  // namespace vorlund
