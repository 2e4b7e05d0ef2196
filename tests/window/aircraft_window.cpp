// Starts the program in the made game folder.
#include "window/aircraft_window.h"

#include "window/made_aircraft_game.h"

namespace vorlund::test {

AircraftWindow::AircraftWindow() {
  make_aircraft_game(folder);
  restart();
}

void AircraftWindow::open_aircraft_pane() {
  click("Label9(2)");
  click("Label1(0)");
  click("Label9(0)");
  click("Label2");
}

void AircraftWindow::open_two_possible_skins() {
  folder.write("~Vorlund/SkinStore/Axis/Captured P38H/PP38H.3dz", "shape");
  restart();
  open_aircraft_pane();
  if (text("Label30") == "Show All") click("Label30");
  click("Option1(2)");
  click_cell(1, PlaneTable::kSkinFolder);
}

}  // namespace vorlund::test
