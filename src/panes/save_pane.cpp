// Event handlers of the save pane.
#include "panes/save_pane.h"

#include <algorithm>
#include <string>

#include "aircraft/plane_record.h"
#include "base/code_page.h"
#include "base/plain_name.h"
#include "base/text.h"
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
  desk_.say("Type a name, or click on one to replace it");
}

void SavePane::take_name(int index) {
  if (index < 0 || index >= static_cast<int>(File5.names.size())) return;
  File5.selected = index;
  Text2.text = File5.names[static_cast<std::size_t>(index)];
  refusal.visible = false;
  desk_.say(quoted(Text2.text) + " will be replaced");
}

void SavePane::type(std::string_view text) {
  Text2.text = text;
  refusal.visible = false;
  desk_.say("");
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
    const bool replaced = desk_.files.FileExists(path);
    if (kind == SaveKind::kGameSet) {
      write_game_set(desk_.files, path, game_.G2);
    } else {
      write_plane_set(desk_.files, path, plane_.G1);
    }
    if (replaced) {
      desk_.say(quoted(name) + " was replaced");
    } else {
      desk_.say("Saved as " + quoted(name));
    }
    say_spelling();
  } else {
    desk_.say("Nothing was saved: no name was given");
  }
  refusal.visible = false;
  SaveFrame.visible = false;
}

void SavePane::say_spelling() {
  const CellTable& table = kind == SaveKind::kGameSet ? static_cast<const CellTable&>(game_.G2) : plane_.G1;
  for (int row = 0; row < table.row_count(); ++row) {
    const std::vector<std::string> cells = table.cells(row);
    const auto cell = std::find_if_not(cells.begin(), cells.end(), can_spell);
    if (cell != cells.end()) return desk_.say_spelling(*cell);
  }
}

void SavePane::hide() {
  SaveFrame.visible = false;
  desk_.say("");
}

}  // namespace vorlund
