// Event handlers of the load pane.
#include "panes/load_pane.h"

#include <algorithm>

#include "base/text.h"
#include "disk/store.h"

namespace vorlund {

namespace {

/// Lists the folder again; the chosen name stays marked.
void list_again(FileSystem& files, FileList& list, const Label& chosen) {
  list.refresh(files);
  const auto found = std::find(list.names.begin(), list.names.end(), chosen.caption);
  if (found != list.names.end()) list.selected = static_cast<int>(found - list.names.begin());
}

}  // namespace

void LoadPane::list() {
  File2.path = desk_.game().path(kPlaneSetFiles);
  File3.path = desk_.game().path(kGameSetFiles);
  list_again(desk_.files, File2, Label20);
  list_again(desk_.files, File3, Label21);
}

void LoadPane::open() {
  list();
  File3_visible = true;
  desk_.show_in_front(Frame2);
  desk_.say("Choose a game set, an aircraft set, or both");
}

void LoadPane::hide() {
  Frame2.visible = false;
  desk_.say("");
}

void LoadPane::choose(FileList& list, int index, Label& chosen) {
  if (index < 0 || index >= static_cast<int>(list.names.size())) return;
  list.selected = index;
  chosen.caption = list.names[static_cast<std::size_t>(index)];
  desk_.say("");
}

void LoadPane::take_back(FileList& list, Label& chosen) {
  if (chosen.caption.empty()) return;
  desk_.say(quoted(chosen.caption) + " is no longer chosen");
  list.selected = -1;
  chosen.caption.clear();
}

void LoadPane::choose_plane_set(int index) {
  choose(File2, index, Label20);
}

void LoadPane::choose_game_set(int index) {
  choose(File3, index, Label21);
}

}  // namespace vorlund
