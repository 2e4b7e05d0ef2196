// Event handlers of the save pane.
#include "setups/save_pane.h"

#include <string>

#include "aircraft/plane_record.h"
#include "core/plain_name.h"
#include "core/store.h"
#include "gamesets/game_record.h"

namespace vorlund {

SavePane::SavePane(Environment& environment, const GamePane& game, const PlanePane& plane)
    : environment_(environment), game_(game), plane_(plane) {}

void SavePane::Label11_Click() {
  open(SaveKind::kGameSet);
}

void SavePane::Label14_Click() {
  open(SaveKind::kPlaneSet);
}

void SavePane::open(SaveKind save_kind) {
  kind = save_kind;
  File5.path = folder();
  File5.refresh(environment_.files);
  Text2.text.clear();
  Text2.visible = true;
  refusal.visible = false;
  SaveFrame.visible = true;
  environment_.frames.bring_to_front(SaveFrame);
}

void SavePane::File5_Click(int index) {
  if (index < 0 || index >= static_cast<int>(File5.names.size())) return;
  File5.selected = index;
  Text2.text = File5.names[static_cast<std::size_t>(index)];
  refusal.visible = false;
}

std::string SavePane::folder() const {
  return environment_.game.path(kind == SaveKind::kGameSet ? kGameSetFiles : kPlaneSetFiles);
}

void SavePane::Label4_Click() {
  const std::string& name = Text2.text;
  if (!name.empty()) {
    if (!is_portable_name(name) || is_staging_name(name)) {
      refusal.caption = "This can't be a file name: please choose another";
      refusal.visible = true;
      return;
    }
    const std::string path = folder() + "\\" + name;
    if (kind == SaveKind::kGameSet) {
      write_game_set(environment_.files, path, game_.table);
    } else {
      write_plane_set(environment_.files, path, plane_.table);
    }
    environment_.status.outcome("Saved as \"" + name + "\"");
  }
  refusal.visible = false;
  SaveFrame.visible = false;
}

void SavePane::Label39_Click() {
  SaveFrame.visible = false;
}

void SavePane::SaveFrame_Click() {
  SaveFrame.visible = false;
}

}  // namespace vorlund
