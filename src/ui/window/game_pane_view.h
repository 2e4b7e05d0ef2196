// The game pane on screen: the game table and its commands.
#pragma once

#include "ui/form1.h"
#include "ui/window/action_label.h"
#include "ui/window/grid_view.h"
#include "ui/window/pane_frame.h"
#include "ui/window/pane_view.h"

namespace vorlund {

/// View of GamePane, with the labels that open the save and load panes from it.
class GamePaneView : public PaneView {
 public:
  GamePaneView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;
  PaneFrame& frame() { return *frame_; }

 private:
  Form1& form_;
  PaneFrame* frame_;
  GridView* table_;
  ActionLabel* process_;
  ActionLabel* clear_;
  ActionLabel* move_;
  ActionLabel* save_;
  ActionLabel* load_;
  ActionLabel* hide_;
};

}  // namespace vorlund
