// Event handlers of the load pane.
#include "setups/load_pane.h"

#include <string>

#include "aircraft/plane_record.h"
#include "core/store.h"
#include "gamesets/game_record.h"

namespace vorlund {

namespace {

void choose(FileList& list, int index, Label& chosen) {
  if (index < 0 || index >= static_cast<int>(list.names.size())) return;
  list.selected = index;
  chosen.caption = list.names[static_cast<std::size_t>(index)];
}

}  // namespace

LoadPane::LoadPane(Environment& environment, GamePane& game, PlanePane& plane)
    : environment_(environment), game_(game), plane_(plane) {}

void LoadPane::list() {
  File2.path = environment_.game.path(kPlaneSetFiles);
  File3.path = environment_.game.path(kGameSetFiles);
  File2.refresh(environment_.files);
  File3.refresh(environment_.files);
}

void LoadPane::open() {
  list();
  File3_visible = true;
  Frame2.visible = true;
  environment_.frames.bring_to_front(Frame2);
}

void LoadPane::File2_Click(int index) {
  choose(File2, index, Label20);
}

void LoadPane::File3_Click(int index) {
  choose(File3, index, Label21);
}

void LoadPane::Label19_Click() {
  const std::string caption = Label19.caption;
  Label19.caption = kWorkingCaption;
  environment_.status.repaint();
  std::string outcome;
  if (!Label20.caption.empty()) {
    read_plane_set(environment_.files, File2.path + "\\" + Label20.caption, plane_.table);
    if (Check1.checked) {
      plane_.show_in_front();
    } else {
      plane_.Label8_Click();
      outcome = plane_.last_outcome;
    }
  }
  if (!Label21.caption.empty()) {
    read_game_set(environment_.files, File3.path + "\\" + Label21.caption, game_.table);
    if (Check1.checked) {
      game_.show_in_front();
    } else {
      game_.GameLoad_Click();
      outcome += (outcome.empty() ? "" : "\n") + game_.last_outcome;
    }
  }
  if (!outcome.empty()) environment_.status.outcome(outcome);
  Frame2.visible = false;
  Label19.caption = caption;
  environment_.status.repaint();
}

void LoadPane::Label40_Click() {
  Frame2.visible = false;
}

void LoadPane::Frame2_Click() {
  Frame2.visible = false;
}

}  // namespace vorlund
