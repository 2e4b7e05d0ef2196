// Event handlers of the save pane.
#include "panes/save_pane.h"

#include <string>

#include "aircraft/plane_record.h"
#include "base/plain_name.h"
#include "disk/store.h"
#include "gamesets/game_record.h"

namespace vorlund {

void SavePane::open(SaveKind save_kind) {
  kind = save_kind;
  File5.path = folder();
  File5.refresh(desk_.files);
  Text2.text.clear();
  Text2.visible = true;
  refusal.visible = false;
  desk_.show_in_front(SaveFrame);
}

void SavePane::take_name(int index) {
  if (index < 0 || index >= static_cast<int>(File5.names.size())) return;
  File5.selected = index;
  Text2.text = File5.names[static_cast<std::size_t>(index)];
  refusal.visible = false;
}

void SavePane::type(std::string_view text) {
  Text2.text = text;
  refusal.visible = false;
}

std::string SavePane::folder() const {
  return desk_.game().path(kind == SaveKind::kGameSet ? kGameSetFiles : kPlaneSetFiles);
}

void SavePane::save() {
  const std::string& name = Text2.text;
  if (!name.empty()) {
    if (!is_portable_name(name) || is_staging_name(name)) {
      refusal.caption = "This can't be a file name: please choose another";
      refusal.visible = true;
      return;
    }
    const std::string path = folder() + "\\" + name;
    if (kind == SaveKind::kGameSet) {
      write_game_set(desk_.files, path, game_.G2);
    } else {
      write_plane_set(desk_.files, path, plane_.G1);
    }
    desk_.say("Saved as \"" + name + "\"");
  }
  refusal.visible = false;
  SaveFrame.visible = false;
}

}  // namespace vorlund
