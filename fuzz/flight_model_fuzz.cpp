// Fuzzes the two readers of ".oaw" files: the browser's and the one that writes aircraft records.
#include "aircraft/planes_data.h"
#include "disk/store.h"
#include "panes/flight_model_browser.h"
#include "panes/menu_editor.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::Surroundings surroundings;
  surroundings.remove(kPlanesData);
  surroundings.write("\\~Vorlund\\FlightModels\\Late\\Spit9\\spit9.oaw", fuzz::as_bytes(data, size));
  Form1& form = surroundings.form;
  PlaneTable& table = form.plane.G1;
  table.clear_slots();
  form.plane.set_flight_model_group("Late");
  form.browser.DoFM();
  form.Option1_Click(static_cast<int>(PlaneOption::kFindFlightModel));
  table.select(12, PlaneTable::kScriptFolder);
  form.List2_Click(0);
  fuzz::require(table.cell(12, PlaneTable::kScriptFolder) == "Spit9");
  fuzz::run_action([&] {
    PatchedFile planes(surroundings.files, surroundings.game.path(kPlanesData));
    planes.patch([&] { fuzz::require(OawWrite(surroundings.game, table, 12, planes)); });
    fuzz::require(surroundings.files.FileExists(planes.path()));
  });
  return 0;
}
