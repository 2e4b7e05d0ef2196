// Event handlers of the load pane.
#include "panes/load_pane.h"

#include "disk/store.h"

namespace vorlund {

namespace {

void choose(FileList& list, int index, Label& chosen) {
  if (index < 0 || index >= static_cast<int>(list.names.size())) return;
  list.selected = index;
  chosen.caption = list.names[static_cast<std::size_t>(index)];
}

}  // namespace

void LoadPane::list() {
  File2.path = desk_.game().path(kPlaneSetFiles);
  File3.path = desk_.game().path(kGameSetFiles);
  File2.refresh(desk_.files);
  File3.refresh(desk_.files);
}

void LoadPane::open() {
  list();
  File3_visible = true;
  desk_.show_in_front(Frame2);
}

void LoadPane::choose_plane_set(int index) {
  choose(File2, index, Label20);
}

void LoadPane::choose_game_set(int index) {
  choose(File3, index, Label21);
}

}  // namespace vorlund
