// Group labels, selection labels, and what choosing a selection puts into the tables.
#include "models/selection_pane.h"

#include "aircraft/plane_codes.h"
#include "core/code_page.h"
#include "core/plain_name.h"
#include "core/store.h"
#include "core/text.h"
#include "models/skin_code.h"

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

SelectionPane::SelectionPane(Environment& environment, GamePane& game, PlanePane& plane,
                             FlightModelLists& lists)
    : environment_(environment), game_(game), plane_(plane), lists_(lists) {
  Label1.push_back({"", false, {kGroupLeft, kGroupTop, 2800, 420}});
  SelLab.push_back({"", false, {0, 0, 4200, 420}});
  Text1.visible = false;
  Image1.visible = false;
}

void SelectionPane::work_on(PaneMode work) {
  mode = work;
  environment_.labels.Label2.caption = work == PaneMode::kAircraftSet ? "Show Plane Table"
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
  for (std::size_t index = 0; index < names.size(); ++index) {
    if (index > 0) Label1Make();
    Label1.back().caption = names[index];
    Label1.back().visible = true;
  }
}

void SelectionPane::remove_group_labels() {
  Label1.resize(1);
  Label1.front().visible = false;
}

std::optional<std::string_view> SelectionPane::last_group() const {
  if (Label1.size() == 1 && !Label1.front().visible) return std::nullopt;
  return Label1.back().caption;
}

void SelectionPane::Label1_Click(int index) {
  const std::string group = Label1.at(static_cast<std::size_t>(index)).caption;
  if (mode == PaneMode::kFlightModelGroup) {
    current_group = group;
    plane_.table.set_flight_model_group(group);
    for (Label& label : Label1) label.visible = false;
    environment_.status.outcome("The flight models are now taken from \"" + group + "\"");
    return;
  }
  Frame3.place = screen;
  Image3.place = screen;
  Text1.visible = false;
  Text1.text.clear();
  Image1.visible = false;
  shows_selection_ = false;
  list_group(group);
  environment_.labels.Label42.caption = group;
  environment_.labels.Label42.visible = true;
  environment_.labels.Label2.visible = true;
  Frame3.visible = true;
  environment_.frames.bring_to_front(Frame3);
  plane_.Frame1.visible = false;
  game_.GameFrame.visible = false;
  ShowSelected();
}

void SelectionPane::list_group(const std::string& group) {
  current_group = group;
  SelLab.resize(1);
  RegionDir.path = group_folder();
  RegionDir.names.clear();
  if (stays_below(group)) RegionDir.open(environment_.files, RegionDir.path);
  for (std::size_t index = 0; index < RegionDir.names.size(); ++index) {
    if (index > 0) {
      SelLab.push_back(SelLab.back());
      SelLab.back().place.top += kSelectionStep;
    }
    SelLab.back().caption = RegionDir.names[index];
    SelLab.back().visible = true;
  }
}

void SelectionPane::SelLab_Click(int index) {
  SharedLabels& labels = environment_.labels;
  current_selection = SelLab.at(static_cast<std::size_t>(index)).caption;
  const std::string folder = group_folder() + "\\" + current_selection;
  labels.hide_slot_labels();
  labels.SkinLab2.visible = false;
  labels.Label43.caption.clear();
  Text1.text.clear();
  Image1.picture = {};
  Image1.fallback = load_picture(environment_.files, environment_.game.path(kDefaultPicture));
  const std::string description = folder + std::string(kDescription);
  if (environment_.files.FileExists(description)) {
    const std::string text = decode_text(environment_.files.read_file(description, kLongestDescription));
    for (const std::string_view line : split_lines(text)) Text1.text.append(line).append("\r\n");
  }
  const std::vector<std::string> pictures = list_files(environment_.files, folder, kPicturePattern);
  if (!pictures.empty()) {
    Image1.picture = load_picture(environment_.files, folder + "\\" + pictures.front());
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
  SharedLabels& labels = environment_.labels;
  const std::vector<FolderEntry> entries = environment_.files.entries(folder);
  labels.SkinLab3.caption.clear();
  labels.SkinLab2.caption = first_file_code(entries, kShapePattern);
  if (labels.SkinLab2.caption.empty()) labels.SkinLab2.caption = first_file_code(entries, kTexturePattern);
  const int plane = plane_code_index(labels.SkinLab2.caption);
  if (plane < 0) return;
  labels.SkinLab3.caption = std::to_string(plane);
  labels.Label43.caption = plane_.table.G1.cell(plane + 1, PlaneTable::kRegion);
  labels.Label45.caption = plane_.table.G1.cell(plane + 1, PlaneTable::kSkinFolder);
  const bool holds_skin = !labels.Label43.caption.empty() || !labels.Label45.caption.empty();
  for (Label* label : {&labels.Label43, &labels.Label44, &labels.Label45}) label->visible = holds_skin;
}

void SelectionPane::DoSel() {
  if (!shows_selection_) return;
  if (mode == PaneMode::kAircraftSet) choose_skin();
  if (mode == PaneMode::kGameSet) choose_game_folder();
  ShowSelected();
  environment_.labels.hide_slot_labels();
  environment_.labels.GroupLabel.visible = false;
  environment_.labels.FolderLabel.visible = false;
}

void SelectionPane::choose_skin() {
  const std::string& number = environment_.labels.SkinLab3.caption;
  if (number.empty()) {
    environment_.status.outcome("\"" + current_selection +
                                "\" can't be chosen: no file in it names one of the game's planes");
    return;
  }
  const int row = static_cast<int>(leading_number(number)) + 1;
  if (row >= plane_.table.G1.row_count()) return;
  plane_.table.G1.set_cell(row, PlaneTable::kRegion, current_group);
  plane_.table.G1.set_cell(row, PlaneTable::kSkinFolder, current_selection);
  plane_.table.G1.set_cell(row, PlaneTable::kRecordNumber, number);
  plane_.table.g1update();
  environment_.status.outcome("Slot " + plane_.table.G1.cell(row, PlaneTable::kSlot) + " now wears \"" +
                              current_selection + "\"");
}

void SelectionPane::choose_game_folder() {
  Frame3.visible = false;
  Grid& table = game_.table.G2;
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
  game_.table.g2update();
  environment_.status.outcome(
      chosen ? "\"" + current_selection + "\" now stands in the game table for \"" + current_group + "\""
             : "Nothing was chosen: the game table has no row for the group \"" + current_group + "\"");
}

void SelectionPane::ShowSelected() {
  const bool games = mode == PaneMode::kGameSet;
  const Grid& table = games ? game_.table.G2 : plane_.table.G1;
  for (Label& label : SelLab) {
    label.text_colour = kWhite;
    for (int row = 1; row < table.row_count(); ++row) {
      const bool used = games ? table.cell(row, GameTable::kFolder) == label.caption
                              : table.cell(row, PlaneTable::kRegion) == current_group &&
                                    table.cell(row, PlaneTable::kSkinFolder) == label.caption;
      if (used) label.text_colour = kMarked;
    }
  }
}

void SelectionPane::Label27_Click(int index) {
  if (index == 0) {
    Image1.visible = false;
    return;
  }
  Text1.visible = !Text1.visible;
}

void SelectionPane::Frame3_Click() {
  Frame3.visible = false;
}

void SelectionPane::Image3_Click() {
  Frame3.visible = false;
}

void SelectionPane::Label41_Click() {
  if (mode == PaneMode::kAircraftSet) {
    plane_.Frame1.visible = true;
    environment_.frames.bring_to_front(plane_.Frame1);
  } else if (mode == PaneMode::kGameSet) {
    game_.show_in_front();
  }
}

void SelectionPane::Label2_Click() {
  Image1.picture = {};
  Image1.fallback = {};
  if (mode == PaneMode::kAircraftSet) {
    plane_.Frame1.visible = true;
    environment_.frames.bring_to_front(plane_.Frame1);
    lists_.show_flight_models();
    environment_.labels.Label2.visible = false;
  } else if (mode == PaneMode::kGameSet) {
    game_.show_in_front();
    environment_.labels.Label2.visible = false;
  }
}

void SelectionPane::Label10_Click() {
  Frame3.visible = false;
  environment_.labels.pane_hidden();
}

std::string SelectionPane::group_folder() const {
  return environment_.game.path(mode == PaneMode::kGameSet ? kGameStore : kSkinStore) + "\\" + current_group;
}

}  // namespace vorlund
