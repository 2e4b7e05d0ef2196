// Fuzzes the two readers of ".oaw" files: the browser's and the one that writes aircraft records.
#include "aircraft/planes_data.h"
#include "core/store.h"
#include "menus/menu_editor.h"
#include "models/flight_model_browser.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Surroundings surroundings;
  surroundings.write("\\~Vorlund\\FlightModels\\Late\\Spit9\\spit9.oaw", fuzz::as_bytes(data, size));
  MenuEditor menu_editor(surroundings.environment);
  GamePane game(surroundings.environment);
  PlanePane plane(surroundings.environment, menu_editor);
  FlightModelLists lists;
  SelectionPane selection(surroundings.environment, game, plane, lists);
  PossibleSkins skins(surroundings.environment, plane, selection.Frame3, selection.Text1);
  FlightModelBrowser browser(surroundings.environment, plane, selection, skins, lists);
  plane.table.set_flight_model_group("Late");
  browser.DoFM();
  browser.Option1_Click(static_cast<int>(PlaneOption::kFindFlightModel));
  plane.table.select(12, PlaneTable::kScriptFolder);
  lists.List2.selected = 0;
  browser.List2_Click();
  fuzz::require(plane.table.G1.cell(12, PlaneTable::kScriptFolder) == "Spit9");
  fuzz::run_action([&] {
    FileList selected;
    OawWrite(surroundings.environment, plane.table, 12, selected);
    fuzz::require(surroundings.files.FileExists(surroundings.game.path(kPlanesData)));
  });
  return 0;
}
