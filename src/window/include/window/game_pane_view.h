// The game pane on screen: the game table and its commands.
#pragma once

#include "window/pane_view.h"

namespace vorlund {

/// View of GamePane, with the labels that open the save and load panes from it.
class GamePaneView : public PaneView {
 public:
  GamePaneView(Form1& form, const Perform& perform, QWidget* parent);
};

}  // namespace vorlund
