// Fuzzes the reader of the skin list and the pane that shows and chooses its entries.
#include "disk/store.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Surroundings surroundings;
  surroundings.write(kSkinList, fuzz::as_bytes(data, size));
  surroundings.write("\\~Vorlund\\SkinStore\\RAF\\Spit92\\psp09.3dz", "");
  Form1& form = surroundings.form;
  PossibleSkins& pane = form.possible_skins;
  for (const int row : {1, 12, 30}) {
    form.plane.G1.select(row, PlaneTable::kRegion);
    pane.FillPossibleSkins();
    for (std::size_t entry = 0; entry < pane.List4.items.size(); ++entry) {
      form.List4_Click(static_cast<int>(entry));
    }
    form.Image4_Click();
    fuzz::require(form.plane.G1.cell(0, PlaneTable::kRegion) == "Region");
  }
  return 0;
}
