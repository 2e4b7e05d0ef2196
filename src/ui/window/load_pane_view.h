// The load pane on screen: the saved set-ups of both kinds.
#pragma once

#include <array>

#include "ui/form1.h"
#include "ui/window/action_label.h"
#include "ui/window/choice_view.h"
#include "ui/window/list_view.h"
#include "ui/window/pane_frame.h"
#include "ui/window/pane_view.h"
#include "ui/window/picture_view.h"
#include "ui/window/text_label.h"

namespace vorlund {

/// View of LoadPane's `Frame2`.
class LoadPaneView : public PaneView {
 public:
  LoadPaneView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;
  PaneFrame& frame() { return *frame_; }

 private:
  void lay_out();

  Form1& form_;
  PaneFrame* frame_;
  PictureView* backdrop_;
  QWidget* board_;
  std::array<TextLabel*, 2> headings_;
  ListView* game_sets_;
  ListView* plane_sets_;
  TextLabel* chosen_game_set_;
  TextLabel* chosen_plane_set_;
  CheckBox* view_;
  CheckBox* other_view_;
  QLabel* hint_;
  ActionLabel* load_;
  ActionLabel* cancel_;
};

}  // namespace vorlund
