// Lists, shows and chooses the skins that fit a slot.
#include "panes/possible_skins.h"

#include "aircraft/plane_codes.h"
#include "aircraft/skin_code.h"
#include "aircraft/skin_list.h"
#include "base/code_page.h"
#include "base/plain_name.h"
#include "base/text.h"
#include "disk/listing.h"
#include "disk/store.h"

namespace vorlund {

namespace {

// Deliberately spelt unlike the rest of the store: the game's disks do not tell the two apart.
constexpr std::string_view kSkinFolders = "\\~Vorlund\\Skinstore\\";

}  // namespace

PossibleSkins::PossibleSkins(Desk& desk, PlanePane& plane, SelectionPane& selection)
    : desk_(desk), plane_(plane), selection_(selection) {
  Image4.visible = false;
}

void PossibleSkins::FillPossibleSkins() {
  const PlaneTable& table = plane_.G1;
  const std::string slot = table.cell(table.current_row, PlaneTable::kSlot);
  Label38.caption = slot;
  Label37.caption = std::to_string(table.current_row - 1);
  List4.items = skins_for_slot(decode_text(desk_.files.read_file(desk_.game().path(kSkinList))), slot);
  open();
  const std::size_t skins = List4.items.size();
  desk_.say((skins == 0 ? "No skin" : counted(skins, "skin", "skins")) + " in the skin list " +
            (skins > 1 ? "are" : "is") + " made for slot " + slot);
}

void PossibleSkins::open() {
  desk_.show_in_front(Frame4);
  List4.finder.clear();
  List4.selected = List4.items.empty() ? -1 : 0;
  if (List4.items.empty()) {
    show_nothing();
  } else {
    show_entry();
  }
}

void PossibleSkins::show_nothing() {
  Label31.caption.clear();
  Label32.caption.clear();
  Image4.picture = {};
  Image4.visible = false;
}

void PossibleSkins::select(int index) {
  List4.selected = index;
  desk_.say("");
  show_entry();
}

std::string PossibleSkins::folder_of(int index) const {
  const std::string& entry = List4.items.at(static_cast<std::size_t>(index));
  if (!stays_below(entry)) return {};
  return desk_.game().path(kSkinFolders) + entry;
}

void PossibleSkins::show_entry() {
  if (List4.selected < 0 || static_cast<std::size_t>(List4.selected) >= List4.items.size()) return;
  const std::string& entry = List4.items[static_cast<std::size_t>(List4.selected)];
  const std::size_t separator = entry.find('\\');
  if (separator == std::string::npos) return;
  Label31.caption = entry.substr(0, separator);
  Label32.caption = entry.substr(separator + 1);
  const std::string folder = desk_.game().path(kSkinFolders) + entry;
  desk_.labels.SkinLab2.visible = false;
  selection_.Text1.text.clear();
  Image4.bordered = true;
  Image4.picture = {};
  Image4.fallback = load_picture(desk_.files, desk_.game().path(kDefaultPicture));
  const std::vector<FolderEntry> entries =
      stays_below(entry) ? desk_.files.entries(folder) : std::vector<FolderEntry>();
  const std::vector<std::string> pictures = matching_files(entries, kPicturePattern);
  if (!pictures.empty()) {
    Image4.picture = load_picture(desk_.files, folder + "\\" + pictures.front());
    selection_.Frame3.visible = false;
  }
  viewed_plane_ = -1;
  read_code(entries, kShapePattern);
  // Deliberate: the code of the entry viewed before still stands here when this folder has no shape file, and
  // then its texture files are not looked at.
  if (desk_.labels.SkinLab2.caption.empty()) read_code(entries, kTexturePattern);
  Image4.visible = true;
}

void PossibleSkins::read_code(const std::vector<FolderEntry>& entries, std::string_view pattern) {
  const std::string code = first_file_code(entries, pattern);
  if (code.empty()) return;
  desk_.labels.SkinLab2.caption = code;
  viewed_plane_ = plane_code_index(code);
  if (viewed_plane_ < 0) return;
  desk_.labels.SkinLab3.caption = std::to_string(viewed_plane_);
  Label37.caption = code;
}

void PossibleSkins::choose() {
  PlaneTable& table = plane_.G1;
  plane_.Frame1.visible = false;
  Frame4.visible = false;
  const std::string asked_slot =
      table.current_row > 0 ? table.cell(table.current_row, PlaneTable::kSlot) : "";
  show_entry();
  const std::string& number = desk_.labels.SkinLab3.caption;
  // Deliberate: the skin goes to the plane that its files are made for; with no number yet that is the first.
  const int row = static_cast<int>(leading_number(number)) + 1;
  table.selected_slot_row = row;
  if (row < table.row_count()) {
    table.set_cell(row, PlaneTable::kRegion, Label31.caption);
    table.set_cell(row, PlaneTable::kSkinFolder, Label32.caption);
    table.set_cell(row, PlaneTable::kRecordNumber, number);
    table.g1update();
    plane_.refresh();
    table.select(row, table.current_column);
  }
  last_choice_ = describe_choice(row, asked_slot);
  desk_.say(last_choice_);
  desk_.say_spelling(Label31.caption);
  desk_.say_spelling(Label32.caption);
  plane_.show();
}

std::string PossibleSkins::describe_choice(int row, const std::string& asked_slot) const {
  const CellTable& table = plane_.G1;
  const std::string skin = quoted(Label32.caption);
  if (row >= table.row_count())
    return skin + " was not put anywhere: the plane table has no row for its slot";
  const std::string slot = table.cell(row, PlaneTable::kSlot);
  if (viewed_plane_ < 0) {
    return "No plane was recognised for " + skin + "; it was put into the row of slot " + slot +
           (desk_.labels.SkinLab3.caption.empty() ? ", the first" : ", as the skin viewed before it");
  }
  if (!asked_slot.empty() && slot != asked_slot) {
    return skin + " is made for slot " + slot + " and stands in that row, not in the row of " + asked_slot;
  }
  return "Slot " + slot + " now wears " + skin;
}

void PossibleSkins::hide() {
  Frame4.visible = false;
  plane_.show();
  desk_.say("");
}

void PossibleSkins::empty_list() {
  List4.items.clear();
  List4.selected = -1;
  Frame4.visible = true;
  desk_.say("The list was emptied");
}

}  // namespace vorlund
