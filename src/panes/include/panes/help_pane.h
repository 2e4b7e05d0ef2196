// The pane that explains the program on one screen.
#pragma once

#include "panes/desk.h"

namespace vorlund {

/// State and verbs of `HelpFrame`, a pane of the window's own.
class HelpPane {
 public:
  explicit HelpPane(Desk& desk) : desk_(desk) {}

  Frame HelpFrame{"Help", false, {4200, 900, 13200, 9000}};
  Label HelpLabel{"Help"};  ///< in the status line: shows the pane, or hides it again
  Label HelpHide{"Hide"};

  void show_or_hide();
  void hide() { HelpFrame.visible = false; }

 private:
  Desk& desk_;
};

}  // namespace vorlund
