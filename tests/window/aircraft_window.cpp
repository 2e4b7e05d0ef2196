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

}  // namespace vorlund::test
