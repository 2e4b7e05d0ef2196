// The pane that loads saved set-ups into the tables and installs them.
#pragma once

#include <array>

#include "aircraft/plane_pane.h"
#include "core/environment.h"
#include "core/listing.h"
#include "core/picture.h"
#include "gamesets/game_pane.h"

namespace vorlund {

/// State and event handlers of `Frame2`.
class LoadPane {
 public:
  LoadPane(Environment& environment, GamePane& game, PlanePane& plane);

  Frame Frame2{"Load saved set-ups", false, {4800, 1200, 8400, 7200}};
  std::array<Label, 2> Label22{{{"Gamesets"}, {"Planesets"}}};
  FileList File3;  ///< saved game sets
  FileList File2;  ///< saved plane sets
  bool File3_visible = true;
  Label Label20;          ///< name of the chosen plane set, "" for none
  Label Label21;          ///< name of the chosen game set, "" for none
  Choice Check1{"View"};  ///< checked: load into the tables and show them; unchecked: install at once
  Choice Check2{"View"};  ///< shown, never consulted
  Label Label19{"Load"};
  Label Label40{"Cancel"};
  Label Label12{"Load"};  ///< in the game pane: opens this pane
  Label Label13{"Load"};  ///< in the aircraft pane: opens this pane
  Picture Image2;         ///< background of the pane

  /// Points both lists at their folders and lists them.
  void list();

  /// Lists both folders again and shows the pane.
  void open();
  void Label12_Click() { open(); }
  void Label13_Click() { open(); }

  void File2_Click(int index);
  void File3_Click(int index);

  /// Loads the chosen set-ups into the tables, the plane set first, and installs each unless "View" is
  /// checked. A set-up that can't be opened ends the action with an ActionError that names it. The names stay
  /// chosen.
  void Label19_Click();

  void Label40_Click();
  void Frame2_Click();

 private:
  Environment& environment_;
  GamePane& game_;
  PlanePane& plane_;
};

}  // namespace vorlund
