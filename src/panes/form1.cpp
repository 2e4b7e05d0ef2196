// Start-up, the main menu, the command labels, and what crosses from one pane to another.
#include "panes/form1.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "aircraft/plane_record.h"
#include "aircraft/skin_list.h"
#include "base/plain_name.h"
#include "base/text.h"
#include "disk/store.h"
#include "gamesets/clean_up.h"
#include "gamesets/game_record.h"
#include "panes/installed_sets.h"
#include "panes/set_actions.h"

namespace vorlund {

namespace {

constexpr int kMenuLeft = 450;
constexpr int kMenuWidth = 3300;
constexpr int kMenuTop = 1500;
constexpr int kLabelStep = 500;
constexpr int kLabelHeight = 420;
constexpr int kTwoLineHeight = 690;

/// So long a start waits for the action of another program.
constexpr std::chrono::seconds kStartWaits{2};

std::string joined_and(const std::string& one, const std::string& other) {
  return one + (one.empty() || other.empty() ? "" : " and ") + other;
}

void place_label(Label& label, int top) {
  label.place = {kMenuLeft, top, kMenuWidth, kLabelHeight};
}

}  // namespace

Form1::Form1(FileSystem& files, Status& observer, Version version)
    : desk(files, observer), version_(version) {
  int top = kMenuTop;
  for (Label& entry : Label9) place_label(entry, std::exchange(top, top + kLabelStep));
  top += 300;
  for (Label* label :
       {&WhatsLoaded, &Label18, &contents.Contents[0], &Label5, &Label7, &ExitButton, &DelMSN}) {
    place_label(*label, std::exchange(top, top + kLabelStep));
  }
  DelMSN.place.height = kTwoLineHeight;
}

void Form1::Form_Load() {
  FileSystem& files = desk.files;
  const FileSystem::Action action(files);
  desk.directory.start();
  const GameFolder folder = desk.game();
  const FolderLocks locks = files.lock_folders(written_folders(folder, game.G2), kStartWaits);
  selection.Frame3.place.left = 0;
  selection.Frame3.place.top = 0;
  plane.List2.items.clear();
  background.picture = load_picture(files, folder.path(kWindowPicture));
  load_pane.Image2.place = {0, 0, load_pane.Frame2.place.width, load_pane.Frame2.place.height};
  load_pane.Image2.picture = load_picture(files, folder.path(kFormPicture));
  selection.Image3.picture = load_pane.Image2.picture;
  for (Label& label : selection.Label1) {
    label.visible = false;
    label.text_colour = kWhite;
  }
  SavDatFile.path = folder.path(kSavedata);
  SavDatFile.pattern = kDefaultMissions;
  SavDatFile.refresh(files);
  const std::string plane_record = folder.path(kCurrentPlaneSet);
  if (files.FileExists(plane_record)) {
    plane.load(plane_record);
    WhatsLoaded.visible = true;
  }
  const std::string game_record = folder.path(kCurrentGameSet);
  if (files.FileExists(game_record)) {
    game.load(game_record);
    WhatsLoaded.visible = true;
  }
  load_pane.list();
  if (locks.in_use().empty()) MakeSkinList(folder);
  Label26.caption = "Version " + std::to_string(version_.major) + "." + std::to_string(version_.minor) + "." +
                    std::to_string(version_.revision);
  desk.say("Confirm the game folder, then choose from the menu on the left");
  if (!locks.in_use().empty()) {
    desk.say_too("The list of skins was left as it is: another program is at work in \"" + locks.in_use() +
                 "\"");
  }
  say_unseen();
  history_.begin();
}

void Form1::open_directory(int index) {
  desk.directory.open_folder(index);
  desk.say("The game folder is now " + quoted(desk.directory.Label16.caption));
  say_of_directory();
}

void Form1::confirm_directory() {
  desk.directory.confirm();
  desk.say("Choose from the menu on the left");
  say_of_directory();
}

void Form1::say_of_directory() {
  const GameFolder folder = desk.game();
  if (!folder.files.is_there(folder.path(kGameProgram))) {
    desk.say_too("There is no \"eaw.exe\" in it: it is no folder of the game");
  }
  if (!folder.files.FolderExists(folder.path(kStore))) {
    desk.say_too("There is no \"~Vorlund\" in it: there is nothing to choose from");
  }
}

void Form1::press_label(const MouseEvent& event) {
  if (event.button == MouseButton::kRight) drag_.press(event);
}

bool Form1::dragged(const MouseEvent& event, Label& label) {
  if (event.button != MouseButton::kRight) return false;
  drag_.release(event, label.place);
  return true;
}

void Form1::release(Label& label, const MouseEvent& event, void (Form1::*command)()) {
  if (!dragged(event, label) && event.button == MouseButton::kLeft) (this->*command)();
}

void Form1::release_frame(Frame& frame, const MouseEvent& event) {
  drag_.release(event, frame.place);
  desk.bring_to_front(frame);
}

void Form1::release_menu_entry(int index, const MouseEvent& event) {
  Label& entry = Label9.at(static_cast<std::size_t>(index));
  desk.labels.FolderLabel.visible = false;
  selection.Label41.visible = false;
  if (Label6.visible) hide_title();
  if (event.shift == MouseEvent::kShiftKey) {
    entry.visible = false;
    return desk.say(quoted(entry.caption) + " is hidden until the next start");
  }
  if (dragged(event, entry)) return;
  if (index == 3) return open_set_ups();
  if (event.button != MouseButton::kLeft) return;
  selection.remove_group_labels();
  selection.work_on(static_cast<PaneMode>(index));
  switch (selection.mode) {
    case PaneMode::kAircraftSet:
      return open_aircraft_work();
    case PaneMode::kGameSet:
      return open_game_work();
    case PaneMode::kFlightModelGroup:
      return open_flight_model_choice();
  }
}

void Form1::open_set_ups() {
  selection.remove_group_labels();
  load_pane.open();
}

void Form1::open_aircraft_work() {
  desk.directory.Dir4.open(desk.files, desk.directory.Label16.caption);
  browser.DoFM();
  selection.Label41.visible = true;
  desk.labels.Label2.visible = true;
  say_next(selection.Dir1, kSkinStore, "Choose a group of skins, then a skin");
  if (!plane.G1.flight_model_group.empty()) return;
  desk.say_too(
      "No flight-model group is set: the flight models are the folders of \"~Vorlund\\FlightModels\" itself");
}

void Form1::open_game_work() {
  selection.Dir1.open(desk.files, desk.game().path(kGameStore));
  selection.make_group_labels(selection.Dir1.names);
  game.G2.g2update();
  selection.Label41.visible = true;
  desk.labels.Label2.visible = true;
  say_next(selection.Dir1, kGameStore, "Choose a group, then one of its folders");
}

void Form1::open_flight_model_choice() {
  selection.Dir5.open(desk.files, desk.game().path(kFlightModels));
  selection.make_group_labels(selection.Dir5.names);
  selection.mark_flight_model_group();
  say_next(selection.Dir5, kFlightModels, "Choose the group that all flight models are taken from");
}

void Form1::say_next(const FolderList& groups, std::string_view store, std::string_view next) {
  const std::string folder(store.substr(1));
  const bool there = !groups.names.empty() || desk.files.FolderExists(groups.path);
  if (!there) return desk.say("There is no folder " + quoted(folder));
  if (groups.names.empty()) return desk.say("There is nothing to choose from in " + quoted(folder));
  desk.say(next);
}

void Form1::start_game() {
  desk.files.start_program(desk.game().path(kGameProgram), desk.directory.Label16.caption);
  minimise();
  desk.say("The game was started");
}

void Form1::delete_mission_files() {
  desk.status.repaint();
  const GameFolder folder = desk.game();
  const std::uint64_t deleted = delete_default_missions(folder);
  SavDatFile.path = folder.path(kSavedata);
  SavDatFile.refresh(desk.files);
  if (deleted == 0) return desk.say("There is no \"Default\" mission file in \"Savedata\"");
  desk.say(counted(deleted, "\"Default\" mission file", "\"Default\" mission files") + " deleted");
}

void Form1::hide_title() {
  Label6.visible = false;
  Label26.visible = false;
}

void Form1::show_what_is_loaded() {
  plane.show();
  game.show();
  desk.say(what_is_installed(desk.game(), game.G2, plane.G1));
}

void Form1::Label10_Click(int index) {
  if (index == 0) plane.hide();
  if (index == 1) game.hide();
  if (index == 2) selection.hide_for_table();
  const std::string& shows = desk.labels.Label2.caption;
  if (shows.empty()) return desk.say("");
  desk.say(quoted(shows) + " brings it back");
}

void Form1::G1_MouseDown(int row, int column, const MouseEvent& event) {
  if (event.button != MouseButton::kLeft) return;
  change_tables([&] {
    if (plane.click_cell(row, column)) possible_skins.FillPossibleSkins();
  });
}

void Form1::install_aircraft() {
  plane.install(menu_editor.menu);
  menu_editor.select_country(Country::kGerman);
  menu_editor.refresh(Country::kGerman);
  save_pane.SaveFrame.visible = false;
}

void Form1::load_set_ups() {
  const Working working(desk, load_pane.Label19);
  const bool shows = load_pane.Check1.checked;
  const bool loads_planes = !load_pane.Label20.caption.empty();
  const bool loads_games = !load_pane.Label21.caption.empty();
  std::string said;
  if (loads_planes) {
    plane.load(load_pane.plane_set());
    shows ? plane.show() : install_aircraft();
    if (!shows) said = desk.status_line.caption;
  }
  if (loads_games) {
    game.load(load_pane.game_set());
    shows ? game.show() : game.install();
    if (!shows && loads_planes) desk.say(said + "\n" + desk.status_line.caption);
  }
  const std::string loaded = joined_and(loads_planes ? quoted(load_pane.Label20.caption) : "",
                                        loads_games ? quoted(load_pane.Label21.caption) : "") +
                             " loaded into the tables";
  history_.note(loaded);
  load_pane.Frame2.visible = false;
  if (!loads_planes && !loads_games) return desk.say("Nothing was loaded: no set-up was chosen");
  if (shows) desk.say(loaded);
  // Without a running work "Label2" would bring no table back: then it is that of the set-up last loaded.
  if (!desk.labels.Label2.caption.empty() || selection.shows_groups()) return;
  selection.work_on(loads_games ? PaneMode::kGameSet : PaneMode::kAircraftSet);
}

void Form1::choose_possible_skin() {
  possible_skins.choose();
  browser.apply_matched_skin();
}

void Form1::look_into_folder() {
  contents.look({game.G2, plane.G1, plane.pilot_names, menu_editor.menu});
}

void Form1::act(const std::function<void()>& action) {
  const FolderLocks locks =
      desk.files.lock_folders(written_folders(desk.game(), game.G2), std::chrono::milliseconds(0));
  if (!locks.in_use().empty()) {
    desk.say("Nothing was done: another program is at work in \"" + locks.in_use() + "\"");
    return;
  }
  static_cast<void>(desk.files.take_unseen());  // what was looked at before is no part of it
  change_tables(action);
  if (!locks.without_locks().empty() && !std::exchange(told_of_locks_, true)) {
    desk.say_too("The disk of \"" + locks.without_locks() +
                 "\" knows no locks: nothing keeps other programs from working there at the same time");
  }
  say_unseen();
}

void Form1::say_unseen() {
  const std::vector<std::string> unseen = desk.files.take_unseen();
  if (unseen.empty()) return;
  desk.say_too("Taken for missing, for want of the right to look: " + first_of(unseen));
}

void Form1::change_tables(const std::function<void()>& change) {
  const std::string home_before = careers_home_name(game.G2);
  history_.note({});  // the slots that opening the aircraft settings has added, say
  change();
  history_.note(desk.outcome());
  if (game.GameFrame.visible) game.mark_rows();
  selection.ShowSelected();
  const std::string home = careers_home_name(game.G2);
  if (home == home_before) return;
  const std::size_t saves = count_career_saves(desk.game());
  if (saves == 0) return;
  std::string told = saves == 1 ? "The career save" : "The " + grouped(saves) + " career saves";
  told += " in \"Savedata\" would now ";
  told += home.empty() ? "stay there: no row names their home" : "go home to " + home + " at \"Clean Up\"";
  desk.say_too(told);
}

void Form1::take_back() {
  change_tables([this] {
    const std::string what = history_.take_back();
    if (what.empty()) return desk.say("There is nothing to take back");
    desk.say("Taken back: " + what);
  });
}

void Form1::do_again() {
  change_tables([this] {
    const std::string what = history_.do_again();
    if (what.empty()) return desk.say("There is nothing to do again");
    desk.say("Done again: " + what);
  });
}

void Form1::clean_up() {
  desk.status.repaint();
  const GameFolder folder = desk.game();
  const CleanUpSummary summary = clean_up_sets(folder, desk.status, game.G2, plane.G1);
  SavDatFile.path = folder.path(kSavedata);
  SavDatFile.refresh(desk.files);
  plane.show_emptied();
  save_pane.SaveFrame.visible = false;
  desk.labels.Label2.visible = false;
  selection.remove_group_labels();
  desk.say(summary.sentence());
  history_.begin();
}

}  // namespace vorlund
