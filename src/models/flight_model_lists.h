// The two lists beside the plane table: flight models and plane codes, of which one is shown at a time.
#pragma once

#include "core/controls.h"

namespace vorlund {

/// The lists that the option buttons switch between.
struct FlightModelLists {
  ListBox List2;                 ///< flight-model folders of the current flight-model group
  ListBox List3{{}, -1, false};  ///< the 30 plane codes in upper case, shown in edit mode

  void show_flight_models() {
    List2.visible = true;
    List3.visible = false;
  }
  void show_plane_codes() {
    List2.visible = false;
    List3.visible = true;
  }
};

}  // namespace vorlund
