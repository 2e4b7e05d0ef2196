// Fuzzes the reader of the skin list and the pane that shows and chooses its entries.
#include "core/store.h"
#include "menus/menu_editor.h"
#include "models/possible_skins.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Surroundings surroundings;
  surroundings.write(kSkinList, fuzz::as_bytes(data, size));
  surroundings.write("\\~Vorlund\\SkinStore\\RAF\\Spit92\\psp09.3dz", "");
  MenuEditor menu_editor(surroundings.environment);
  PlanePane plane(surroundings.environment, menu_editor);
  Frame selection_frame;
  TextBox description;
  PossibleSkins pane(surroundings.environment, plane, selection_frame, description);
  plane.table.fill_slots();
  for (const int row : {1, 12, 30}) {
    plane.table.select(row, PlaneTable::kRegion);
    pane.FillPossibleSkins();
    for (std::size_t entry = 0; entry < pane.List4.items.size(); ++entry) {
      pane.List4.selected = static_cast<int>(entry);
      pane.List4_Click();
    }
    pane.Image4_Click();
    fuzz::require(plane.table.G1.cell(0, PlaneTable::kRegion) == "Region");
  }
  return 0;
}
