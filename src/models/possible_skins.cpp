// Lists, shows and chooses the skins that fit a slot.
#include "models/possible_skins.h"

#include "aircraft/plane_codes.h"
#include "core/code_page.h"
#include "core/listing.h"
#include "core/plain_name.h"
#include "core/store.h"
#include "core/text.h"
#include "models/skin_code.h"
#include "models/skin_list.h"

namespace vorlund {

namespace {

// Deliberately spelt unlike the rest of the store: the game's disks do not tell the two apart.
constexpr std::string_view kSkinFolders = "\\~Vorlund\\Skinstore\\";

std::string quoted(std::string_view name) {
  std::string text = "\"";
  return text.append(name).append("\"");
}

}  // namespace

PossibleSkins::PossibleSkins(Environment& environment, PlanePane& plane, Frame& selection_frame,
                             TextBox& description)
    : environment_(environment), plane_(plane), selection_frame_(selection_frame), description_(description) {
  Image4.visible = false;
}

void PossibleSkins::FillPossibleSkins() {
  const Grid& table = plane_.table.G1;
  const std::string slot = table.cell(table.row, PlaneTable::kSlot);
  Label38.caption = slot;
  Label37.caption = std::to_string(table.row - 1);
  List4.items =
      skins_for_slot(decode_text(environment_.files.read_file(environment_.game.path(kSkinList))), slot);
  open();
  if (List4.items.empty()) environment_.status.outcome("No skin in the skin list is made for slot " + slot);
}

void PossibleSkins::open() {
  environment_.frames.bring_to_front(Frame4);
  Frame4.visible = true;
  List4.selected = List4.items.empty() ? -1 : 0;
  if (List4.items.empty()) {
    show_nothing();
  } else {
    List4_Click();
  }
}

void PossibleSkins::show_nothing() {
  Label31.caption.clear();
  Label32.caption.clear();
  Image4.picture = {};
  Image4.visible = false;
}

void PossibleSkins::List4_Click() {
  if (List4.selected < 0 || static_cast<std::size_t>(List4.selected) >= List4.items.size()) return;
  const std::string& entry = List4.items[static_cast<std::size_t>(List4.selected)];
  const std::size_t separator = entry.find('\\');
  if (separator == std::string::npos) return;
  Label31.caption = entry.substr(0, separator);
  Label32.caption = entry.substr(separator + 1);
  const std::string folder = environment_.game.path(kSkinFolders) + entry;
  environment_.labels.SkinLab2.visible = false;
  description_.text.clear();
  Image4.bordered = true;
  Image4.picture = {};
  Image4.fallback = load_picture(environment_.files, environment_.game.path(kDefaultPicture));
  const std::vector<FolderEntry> entries =
      stays_below(entry) ? environment_.files.entries(folder) : std::vector<FolderEntry>();
  const std::vector<std::string> pictures = matching_files(entries, kPicturePattern);
  if (!pictures.empty()) {
    Image4.picture = load_picture(environment_.files, folder + "\\" + pictures.front());
    selection_frame_.visible = false;
  }
  viewed_plane_ = -1;
  read_code(entries, kShapePattern);
  // Deliberate: the code of the entry viewed before still stands here when this folder has no shape file, and
  // then its texture files are not looked at.
  if (environment_.labels.SkinLab2.caption.empty()) read_code(entries, kTexturePattern);
  Image4.visible = true;
}

void PossibleSkins::read_code(const std::vector<FolderEntry>& entries, std::string_view pattern) {
  const std::string code = first_file_code(entries, pattern);
  if (code.empty()) return;
  environment_.labels.SkinLab2.caption = code;
  viewed_plane_ = plane_code_index(code);
  if (viewed_plane_ < 0) return;
  environment_.labels.SkinLab3.caption = std::to_string(viewed_plane_);
  Label37.caption = code;
}

void PossibleSkins::Image4_Click() {
  PlaneTable& table = plane_.table;
  plane_.Frame1.visible = false;
  Frame4.visible = false;
  const std::string asked_slot = table.G1.row > 0 ? table.G1.cell(table.G1.row, PlaneTable::kSlot) : "";
  List4_Click();
  const std::string& number = environment_.labels.SkinLab3.caption;
  // Deliberate: the skin goes to the plane that its files are made for; with no number yet that is the first.
  const int row = static_cast<int>(leading_number(number)) + 1;
  table.selected_slot_row = row;
  if (row < table.G1.row_count()) {
    table.G1.set_cell(row, PlaneTable::kRegion, Label31.caption);
    table.G1.set_cell(row, PlaneTable::kSkinFolder, Label32.caption);
    table.G1.set_cell(row, PlaneTable::kRecordNumber, number);
    table.g1update();
    table.select(row, table.G1.column);
  }
  last_choice_ = describe_choice(row, asked_slot);
  environment_.status.outcome(last_choice_);
  plane_.show_in_front();
}

std::string PossibleSkins::describe_choice(int row, const std::string& asked_slot) const {
  const Grid& table = plane_.table.G1;
  const std::string skin = quoted(Label32.caption);
  if (row >= table.row_count())
    return skin + " was not put anywhere: the plane table has no row for its slot";
  const std::string slot = table.cell(row, PlaneTable::kSlot);
  if (viewed_plane_ < 0) {
    return "No plane was recognised for " + skin + "; it was put into the row of slot " + slot +
           (environment_.labels.SkinLab3.caption.empty() ? ", the first" : ", as the skin viewed before it");
  }
  if (!asked_slot.empty() && slot != asked_slot) {
    return skin + " is made for slot " + slot + " and stands in that row, not in the row of " + asked_slot;
  }
  return "Slot " + slot + " now wears " + skin;
}

void PossibleSkins::Frame4_MouseDown(const MouseEvent& event) {
  drag_.press(event);
}

void PossibleSkins::Frame4_MouseUp(const MouseEvent& event) {
  drag_.release(event, Frame4.place);
  environment_.frames.bring_to_front(Frame4);
}

void PossibleSkins::Label33_Click() {
  Frame4.visible = false;
  plane_.show_in_front();
}

void PossibleSkins::Label31_Click() {
  List4.items.clear();
  List4.selected = -1;
  Frame4.visible = true;
}

}  // namespace vorlund
