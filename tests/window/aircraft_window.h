// The real window on a made game folder: for tests of the aircraft panes.
#pragma once

#include "window/program_window.h"

namespace vorlund::test {

/// The program, started in the folder that `make_aircraft_game` fills.
class AircraftWindow : public ProgramWindow {
 protected:
  AircraftWindow();

  /// Chooses the flight-model group "Standard", opens the aircraft work and shows the plane table.
  void open_aircraft_pane();

  /// Stores a second skin for the first slot and opens the list of both.
  void open_two_possible_skins();
};

}  // namespace vorlund::test
