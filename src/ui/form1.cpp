// Start-up, the main menu, the command labels, and what crosses from one pane to another.
#include "ui/form1.h"

#include <utility>

#include "aircraft/plane_record.h"
#include "core/copier.h"
#include "core/store.h"
#include "gamesets/clean_up.h"
#include "gamesets/game_record.h"
#include "models/skin_list.h"
#include "setups/installed_sets.h"

namespace vorlund {

namespace {

constexpr int kMenuLeft = 450;
constexpr int kMenuWidth = 3300;
constexpr int kMenuTop = 1500;
constexpr int kLabelStep = 500;
constexpr int kLabelHeight = 420;
constexpr int kTwoLineHeight = 690;

void place_label(Label& label, int top) {
  label.place = {kMenuLeft, top, kMenuWidth, kLabelHeight};
}

}  // namespace

Form1::Form1(FileSystem& files, Status& window, Version version)
    : status_(status_line_, window),
      directory(files),
      environment{files, directory, status_, frames_, labels_},
      game(environment),
      menu_editor(environment),
      plane(environment, menu_editor),
      selection(environment, game, plane, lists),
      possible_skins(environment, plane, selection.Frame3, selection.Text1),
      browser(environment, plane, selection, possible_skins, lists),
      save_pane(environment, game, plane),
      load_pane(environment, game, plane),
      version_(version) {
  plane.show_plane_codes = [this] { lists.show_plane_codes(); };
  plane.fill_possible_skins = [this] { possible_skins.FillPossibleSkins(); };
  plane.hide_save_pane = [this] { save_pane.SaveFrame.visible = false; };
  Label6.caption = "Vorlund for European Air War";
  Label9[0].caption = "Make Aircraft Settings";
  Label9[1].caption = "Make Game Settings";
  Label9[2].caption = "Set the Flight Model";
  Label9[3].caption = "Load saved set-ups";
  int top = kMenuTop;
  for (Label& entry : Label9) place_label(entry, std::exchange(top, top + kLabelStep));
  top += 300;
  for (Label* label : {&WhatsLoaded, &Label18, &Label5, &Label7, &ExitButton, &DelMSN}) {
    place_label(*label, std::exchange(top, top + kLabelStep));
  }
  DelMSN.place.height = kTwoLineHeight;
}

void Form1::Form_Load() {
  const FileSystem::Action action(environment.files);
  FileSystem& files = environment.files;
  directory.start();
  selection.Frame3.place.left = 0;
  selection.Frame3.place.top = 0;
  lists.List2.items.clear();
  background.picture = load_picture(files, directory.path(kWindowPicture));
  load_pane.Image2.place = {0, 0, load_pane.Frame2.place.width, load_pane.Frame2.place.height};
  load_pane.Image2.picture = load_picture(files, directory.path(kFormPicture));
  selection.Image3.picture = load_pane.Image2.picture;
  for (Label& label : selection.Label1) {
    label.visible = false;
    label.text_colour = kWhite;
  }
  SavDatFile.path = directory.path(kSavedata);
  SavDatFile.pattern = "Default*.msn";
  SavDatFile.refresh(files);
  const std::string plane_record = directory.path(kCurrentPlaneSet);
  if (files.FileExists(plane_record)) {
    read_plane_set(files, plane_record, plane.table);
    WhatsLoaded.visible = true;
  }
  const std::string game_record = directory.path(kCurrentGameSet);
  if (files.FileExists(game_record)) {
    read_game_set(files, game_record, game.table);
    WhatsLoaded.visible = true;
  }
  load_pane.list();
  MakeSkinList(environment);
  Label26.caption = "Version " + std::to_string(version_.major) + "." + std::to_string(version_.minor) + "." +
                    std::to_string(version_.revision);
  environment.status.outcome("Confirm the game folder, then choose from the menu on the left");
}

void Form1::Label17_Click() {
  directory.Label17_Click();
  environment.status.outcome("Choose from the menu on the left");
}

void Form1::Label_MouseDown(const MouseEvent& event) {
  if (event.button == MouseButton::kRight) drag_.press(event);
}

bool Form1::dragged(const MouseEvent& event, Label& label) {
  if (event.button != MouseButton::kRight) return false;
  drag_.release(event, label.place);
  return true;
}

void Form1::Label9_MouseUp(int index, const MouseEvent& event) {
  Label& entry = Label9.at(static_cast<std::size_t>(index));
  labels_.FolderLabel.visible = false;
  selection.Label41.visible = false;
  if (Label6.visible) Label6_MouseUp();
  if (event.shift == MouseEvent::kShiftKey) {
    entry.visible = false;
    return;
  }
  if (dragged(event, entry)) return;
  if (index == 3) {
    selection.remove_group_labels();
    load_pane.open();
    environment.status.outcome("Choose a game set, an aircraft set, or both");
    return;
  }
  if (event.button != MouseButton::kLeft) return;
  selection.remove_group_labels();
  selection.work_on(static_cast<PaneMode>(index));
  switch (selection.mode) {
    case PaneMode::kAircraftSet:
      open_aircraft_work();
      break;
    case PaneMode::kGameSet:
      open_game_work();
      break;
    case PaneMode::kFlightModelGroup:
      open_flight_model_choice();
      break;
  }
}

void Form1::open_aircraft_work() {
  directory.Dir4.open(environment.files, directory.Label16.caption);
  browser.DoFM();
  selection.Label41.visible = true;
  labels_.Label2.visible = true;
  say_next(selection.Dir1, kSkinStore, "Choose a group of skins, then a skin");
  if (!plane.table.flight_model_group().empty()) return;
  environment.status.outcome(status_line_.caption +
                             "\nNo flight-model group is set: the flight models are the folders of "
                             "\"~Vorlund\\FlightModels\" itself");
}

void Form1::open_game_work() {
  selection.Dir1.open(environment.files, directory.path(kGameStore));
  selection.make_group_labels(selection.Dir1.names);
  game.table.g2update();
  selection.Label41.visible = true;
  labels_.Label2.visible = true;
  say_next(selection.Dir1, kGameStore, "Choose a group, then one of its folders");
}

void Form1::open_flight_model_choice() {
  selection.Dir5.open(environment.files, directory.path(kFlightModels));
  selection.make_group_labels(selection.Dir5.names);
  say_next(selection.Dir5, kFlightModels, "Choose the group that all flight models are taken from");
}

void Form1::say_next(const FolderList& groups, std::string_view store, std::string_view next) {
  const std::string folder(store.substr(1));
  environment.status.outcome(groups.names.empty() ? "There is nothing to choose from in \"" + folder + "\""
                                                  : std::string(next));
}

void Form1::Label18_MouseUp(const MouseEvent& event) {
  if (!dragged(event, Label18) && event.button == MouseButton::kLeft) start_game();
}

void Form1::start_game() {
  environment.files.start_program(directory.path(kGameProgram), directory.Label16.caption);
  minimise_wanted = true;
}

void Form1::DelMSN_MouseUp(const MouseEvent& event) {
  if (!dragged(event, DelMSN) && event.button == MouseButton::kLeft) delete_default_missions();
}

void Form1::delete_default_missions() {
  environment.status.repaint();
  const std::uint64_t deleted = delete_listed_missions(environment, SavDatFile);
  environment.status.outcome(deleted == 0 ? "There is no \"Default\" mission file in \"Savedata\""
                                          : std::to_string(deleted) + " \"Default\" mission " +
                                                (deleted == 1 ? "file" : "files") + " deleted");
}

void Form1::Label5_MouseUp(const MouseEvent& event) {
  if (!dragged(event, Label5) && event.button == MouseButton::kLeft) CleanUp();
}

void Form1::change_tables(const std::function<void()>& change) {
  const std::string home_before = careers_home_name(game.table);
  change();
  selection.ShowSelected();
  const std::string home = careers_home_name(game.table);
  if (home == home_before) return;
  const std::size_t saves = count_career_saves(environment);
  if (saves == 0) return;
  const std::string which = saves == 1 ? "The career save" : "The " + std::to_string(saves) + " career saves";
  environment.status.outcome(
      status_line_.caption + "\n" + which + " in \"Savedata\" would now " +
      (home.empty() ? "stay there: no row names their home" : "go home to " + home + " at \"Clean Up\""));
}

void Form1::CleanUp() {
  environment.status.repaint();
  const CleanUpSummary summary = clean_game_directory(environment, game.table, SavDatFile);
  for (int row = 1; row < game.table.G2.row_count(); ++row) {
    game.table.G2.set_cell(row, GameTable::kFolder, "");
  }
  game.table.g2update();
  game.table.select(0);
  SaveGS(environment, game.table);
  plane.table.clear_all();
  plane.table.g1update();
  SavePS(environment, plane.table);
  save_pane.SaveFrame.visible = false;
  labels_.Label2.visible = false;
  selection.remove_group_labels();
  selection.ShowSelected();
  environment.status.outcome(summary.sentence());
}

void Form1::Label7_MouseUp(const MouseEvent& event) {
  if (!dragged(event, Label7) && event.button == MouseButton::kLeft) minimise_wanted = true;
}

void Form1::ExitButton_MouseUp(const MouseEvent& event) {
  if (!dragged(event, ExitButton) && event.button == MouseButton::kLeft) ended = true;
}

void Form1::Form_MouseDown(const MouseEvent& event) {
  drag_.press(event);
}

void Form1::Form_MouseUp(const MouseEvent& event) {
  drag_.release(event, place);
}

void Form1::Label6_MouseUp() {
  Label6.visible = false;
  Label26.visible = false;
}

void Form1::WhatsLoaded_Click() {
  plane.show_in_front();
  game.show_in_front();
  environment.status.outcome(what_is_installed(environment, game.table, plane.table));
}

void Form1::Image4_Click() {
  change_tables([this] {
    possible_skins.Image4_Click();
    browser.apply_matched_skin();
  });
}

void Form1::SelLab_DblClick() {
  change_tables([this] { selection.SelLab_DblClick(); });
}

void Form1::Image1_Click() {
  change_tables([this] { selection.Image1_Click(); });
}

void Form1::Label19_Click() {
  change_tables([this] { load_pane.Label19_Click(); });
  // Without a running work "Label2" would bring no table back: then it is that of the set-up last loaded.
  if (!labels_.Label2.caption.empty() || selection.shows_groups()) return;
  if (!load_pane.Label21.caption.empty()) {
    selection.work_on(PaneMode::kGameSet);
  } else if (!load_pane.Label20.caption.empty()) {
    selection.work_on(PaneMode::kAircraftSet);
  }
}

void Form1::Label3_Click() {
  change_tables([this] { plane.Label3_Click(); });
}

void Form1::Label28_Click() {
  change_tables([this] { game.Label28_Click(selection.last_group()); });
}

void Form1::Label29_Click() {
  change_tables([this] { game.Label29_Click(); });
}

}  // namespace vorlund
