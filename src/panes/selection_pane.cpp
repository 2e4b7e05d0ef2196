// Group labels, selection labels, and what choosing a selection puts into the tables.
#include "panes/selection_pane.h"

#include <algorithm>
#include <unordered_set>

#include "aircraft/flight_model_folder.h"
#include "aircraft/plane_codes.h"
#include "aircraft/skin_code.h"
#include "base/code_page.h"
#include "base/plain_name.h"
#include "base/text.h"
#include "disk/store.h"

namespace vorlund {

namespace {

constexpr Colour kMarked = 0xFFC94D;
constexpr int kGroupLeft = 4200;
constexpr int kGroupTop = 1500;
constexpr int kGroupStep = 500;
constexpr int kGroupColumn = 3000;
constexpr int kRoomBelowGroups = 2000;
constexpr int kSelectionStep = 450;
constexpr std::uint64_t kLongestDescription = 1ULL << 20;

}  // namespace

SelectionPane::SelectionPane(Desk& desk, GamePane& game, PlanePane& plane)
    : desk_(desk), game_(game), plane_(plane) {
  Label1.push_back({"", false, {kGroupLeft, kGroupTop, 2800, 420}});
  SelLab.push_back({"", false, {0, 0, 4200, 420}});
  Text1.visible = false;
  Image1.visible = false;
}

void SelectionPane::work_on(PaneMode work) {
  mode = work;
  desk_.labels.Label2.caption = work == PaneMode::kAircraftSet ? "Show Plane Table"
                                : work == PaneMode::kGameSet   ? "Show Game Table"
                                                               : "";
}

void SelectionPane::Label1Make() {
  Label label = Label1.back();
  label.visible = true;
  label.place.top += kGroupStep;
  if (label.place.top > screen.height - kRoomBelowGroups) {
    label.place.top = kGroupTop;
    label.place.left += kGroupColumn;
  }
  Label1.push_back(label);
}

void SelectionPane::make_group_labels(const std::vector<std::string>& names) {
  found_groups.clear();
  for (std::size_t index = 0; index < names.size(); ++index) {
    if (index > 0) Label1Make();
    Label1.back().caption = names[index];
    Label1.back().visible = true;
  }
}

void SelectionPane::remove_group_labels() {
  Label1.resize(1);
  Label1.front().visible = false;
  Label1.front().text_colour = kWhite;
}

std::optional<std::string_view> SelectionPane::last_group() const {
  if (Label1.size() == 1 && !Label1.front().visible) return std::nullopt;
  return Label1.back().caption;
}

void SelectionPane::open_group(int index) {
  const std::string group = Label1.at(static_cast<std::size_t>(index)).caption;
  if (mode == PaneMode::kFlightModelGroup) {
    current_group = group;
    plane_.set_flight_model_group(group);
    for (Label& label : Label1) label.visible = false;
    desk_.say("The flight models are now taken from \"" + group + "\"");
    say_missing_models();
    desk_.say_spelling(group);
    return;
  }
  Frame3.place = screen;
  Image3.place = screen;
  Text1.visible = false;
  Text1.text.clear();
  Image1.visible = false;
  shows_selection_ = false;
  found_folders.clear();
  viewed = -1;
  list_group(group);
  desk_.labels.Label42.caption = group;
  desk_.labels.Label42.visible = true;
  desk_.labels.Label2.visible = true;
  Frame3.visible = true;
  desk_.bring_to_front(Frame3);
  plane_.Frame1.visible = false;
  game_.GameFrame.visible = false;
  ShowSelected();
  if (RegionDir.names.empty()) return desk_.say(quoted(group) + " has no folder to choose");
  desk_.say("");
}

/// Of the slots that have a flight model, those whose folder the current group does not have.
void SelectionPane::say_missing_models() {
  std::vector<std::string> models;
  const std::string folder = flight_model_group_folder(desk_.game(), plane_.G1);
  if (!folder.empty()) models = list_folders(desk_.files, folder);
  std::vector<std::string> slots;
  for (int row = 1; row < plane_.G1.row_count(); ++row) {
    const std::string wanted = plane_.G1.cell(row, PlaneTable::kScriptFolder);
    const auto is_wanted = [&wanted](const std::string& name) { return same_name(name, wanted); };
    if (wanted.empty() || std::any_of(models.begin(), models.end(), is_wanted)) continue;
    slots.push_back(plane_.G1.cell(row, PlaneTable::kSlot));
  }
  if (slots.empty()) return;
  desk_.say_too(counted(slots.size(), "slot lacks its flight model", "slots lack their flight models") +
                " in it: " + first_of(slots));
}

void SelectionPane::list_group(const std::string& group) {
  current_group = group;
  SelLab.resize(1);
  RegionDir.path = group_folder();
  RegionDir.names.clear();
  if (stays_below(group)) RegionDir.open(desk_.files, RegionDir.path);
  for (std::size_t index = 0; index < RegionDir.names.size(); ++index) {
    if (index > 0) {
      SelLab.push_back(SelLab.back());
      SelLab.back().place.top += kSelectionStep;
    }
    SelLab.back().caption = RegionDir.names[index];
    SelLab.back().visible = true;
  }
}

void SelectionPane::show_selection(int index) {
  desk_.say("");
  SharedLabels& labels = desk_.labels;
  const std::string folder = folder_of(index);
  current_selection = SelLab.at(static_cast<std::size_t>(index)).caption;
  viewed = index;
  labels.hide_slot_labels();
  labels.SkinLab2.visible = false;
  labels.Label43.caption.clear();
  Text1.text.clear();
  Image1.picture = first_picture(desk_.files, folder);
  Image1.fallback = load_picture(desk_.files, desk_.game().path(kDefaultPicture));
  const std::string description = folder + std::string(kDescription);
  if (desk_.files.FileExists(description)) {
    const std::string text = decode_text(desk_.files.read_file(description, kLongestDescription));
    for (const std::string_view line : split_lines(text)) Text1.text.append(line).append("\r\n");
  }
  if (mode == PaneMode::kAircraftSet) show_slot(folder);
  shows_selection_ = true;
  Image1.visible = true;
  for (Label& label : Label27) label.visible = true;
  labels.GroupLabel.caption = current_group;
  labels.GroupLabel.visible = true;
  labels.FolderLabel.caption = current_selection;
  labels.FolderLabel.visible = true;
}

void SelectionPane::show_slot(const std::string& folder) {
  SharedLabels& labels = desk_.labels;
  const std::vector<FolderEntry> entries = desk_.files.entries(folder);
  labels.SkinLab3.caption.clear();
  labels.SkinLab2.caption = first_file_code(entries, kShapePattern);
  if (labels.SkinLab2.caption.empty()) labels.SkinLab2.caption = first_file_code(entries, kTexturePattern);
  const int plane = plane_code_index(labels.SkinLab2.caption);
  if (plane < 0) return;
  labels.SkinLab3.caption = std::to_string(plane);
  labels.Label43.caption = plane_.G1.cell(plane + 1, PlaneTable::kRegion);
  labels.Label45.caption = plane_.G1.cell(plane + 1, PlaneTable::kSkinFolder);
  const bool holds_skin = !labels.Label43.caption.empty() || !labels.Label45.caption.empty();
  for (Label* label : {&labels.Label43, &labels.Label44, &labels.Label45}) label->visible = holds_skin;
}

void SelectionPane::DoSel() {
  if (!shows_selection_) return;
  if (mode == PaneMode::kAircraftSet) choose_skin();
  if (mode == PaneMode::kGameSet) choose_game_folder();
  ShowSelected();
  desk_.labels.hide_slot_labels();
  desk_.labels.GroupLabel.visible = false;
  desk_.labels.FolderLabel.visible = false;
}

void SelectionPane::choose_skin() {
  const std::string& number = desk_.labels.SkinLab3.caption;
  if (number.empty()) {
    desk_.say("\"" + current_selection + "\" can't be chosen: no file in it names one of the game's planes");
    return;
  }
  const int row = static_cast<int>(leading_number(number)) + 1;
  if (row >= plane_.G1.row_count()) {
    desk_.say(quoted(current_selection) + " was not put anywhere: the plane table has no row for its slot");
    return;
  }
  plane_.G1.set_cell(row, PlaneTable::kRegion, current_group);
  plane_.G1.set_cell(row, PlaneTable::kSkinFolder, current_selection);
  plane_.G1.set_cell(row, PlaneTable::kRecordNumber, number);
  plane_.G1.g1update();
  plane_.refresh();
  desk_.say("Slot " + plane_.G1.cell(row, PlaneTable::kSlot) + " now wears \"" + current_selection + "\"");
  desk_.say_spelling(current_group);
  desk_.say_spelling(current_selection);
}

void SelectionPane::choose_game_folder() {
  Frame3.visible = false;
  CellTable& table = game_.G2;
  // Deliberate: only the last group by name may own several rows, and only for it is a row added.
  bool chosen = false;
  const auto last = last_group();
  if (!last || current_group < *last) {
    for (int row = table.row_count() - 1; row > 0; --row) {
      if (table.cell(row, GameTable::kGroup) != current_group) continue;
      table.set_cell(row, GameTable::kFolder, current_selection);
      chosen = true;
    }
  } else {
    table.add_row({current_group, current_selection});
    chosen = true;
  }
  game_.G2.g2update();
  if (!chosen) {
    desk_.say("Nothing was chosen: the game table has no row for the group " + quoted(current_group));
    desk_.say_too("With the program closed, add a line " + quoted(current_group) +
                  " and a TAB to \"~Vorlund\\CurrentGameSet.txt\"");
    return;
  }
  desk_.say(quoted(current_selection) + " now stands in the game table for " + quoted(current_group));
  desk_.say_spelling(current_group);
  desk_.say_spelling(current_selection);
}

void SelectionPane::ShowSelected() {
  const bool games = mode == PaneMode::kGameSet;
  const CellTable& table = games ? static_cast<const CellTable&>(game_.G2) : plane_.G1;
  std::unordered_set<std::string> used;
  for (int row = 1; row < table.row_count(); ++row) {
    if (games) {
      used.insert(table.cell(row, GameTable::kFolder));
    } else if (table.cell(row, PlaneTable::kRegion) == current_group) {
      used.insert(table.cell(row, PlaneTable::kSkinFolder));
    }
  }
  for (Label& label : SelLab) label.text_colour = used.contains(label.caption) ? kMarked : kWhite;
}

void SelectionPane::mark_flight_model_group() {
  for (Label& label : Label1) {
    label.text_colour = label.caption == plane_.G1.flight_model_group ? kMarked : kWhite;
  }
}

std::string SelectionPane::folder_of(int index) const {
  return group_folder() + "\\" + SelLab.at(static_cast<std::size_t>(index)).caption;
}

void SelectionPane::step_back() {
  if (found_folders.clear()) return;
  if (shows_sheet()) return hide();
  Image1.visible = false;
  Text1.visible = false;
}

void SelectionPane::bring_table_to_front() {
  if (mode == PaneMode::kAircraftSet) plane_.show();
  if (mode == PaneMode::kGameSet) game_.show();
  desk_.say("");
}

void SelectionPane::show_table() {
  Image1.picture = {};
  Image1.fallback = {};
  if (mode == PaneMode::kFlightModelGroup) return;
  bring_table_to_front();
  if (mode == PaneMode::kAircraftSet) plane_.show_flight_models();
  desk_.labels.Label2.visible = false;
}

void SelectionPane::hide() {
  Frame3.visible = false;
  desk_.say("");
}

void SelectionPane::hide_for_table() {
  hide();
  desk_.labels.pane_hidden();
}

std::string SelectionPane::group_folder() const {
  return desk_.game().path(mode == PaneMode::kGameSet ? kGameStore : kSkinStore) + "\\" + current_group;
}

}  // namespace vorlund
