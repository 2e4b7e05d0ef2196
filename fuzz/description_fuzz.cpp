// Fuzzes the reader of "contents.txt": every line is shown, ended by CR LF.
#include "core/store.h"
#include "menus/menu_editor.h"
#include "models/selection_pane.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Surroundings surroundings;
  surroundings.write("\\~Vorlund\\GameStore\\Scenery\\Winter\\contents.txt", fuzz::as_bytes(data, size));
  MenuEditor menu_editor(surroundings.environment);
  GamePane game(surroundings.environment);
  PlanePane plane(surroundings.environment, menu_editor);
  FlightModelLists lists;
  SelectionPane pane(surroundings.environment, game, plane, lists);
  pane.mode = PaneMode::kGameSet;
  pane.make_group_labels({"Scenery"});
  pane.Label1_Click(0);
  pane.SelLab_Click(0);
  fuzz::require(pane.Text1.text.empty() == (size == 0));
  fuzz::require(pane.Text1.text.empty() || pane.Text1.text.ends_with("\r\n"));
  return 0;
}
