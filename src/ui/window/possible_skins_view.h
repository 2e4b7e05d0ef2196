// The pane of possible skins on screen: the skins that fit, and the picture of one of them.
#pragma once

#include "ui/form1.h"
#include "ui/window/action_label.h"
#include "ui/window/list_view.h"
#include "ui/window/pane_frame.h"
#include "ui/window/pane_view.h"
#include "ui/window/picture_view.h"
#include "ui/window/text_label.h"

namespace vorlund {

/// View of PossibleSkins' `Frame4`.
class PossibleSkinsView : public PaneView {
 public:
  PossibleSkinsView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;
  PaneFrame& frame() { return *frame_; }

 private:
  void lay_out();

  Form1& form_;
  PaneFrame* frame_;
  TextLabel* wanted_;
  TextLabel* slot_heading_;
  TextLabel* slot_;
  TextLabel* number_heading_;
  TextLabel* plane_number_;
  TextLabel* match_heading_;
  TextLabel* match_;
  TextLabel* list_heading_;
  ListView* skins_;
  ActionLabel* group_;
  TextLabel* folder_;
  PictureView* picture_;
  ActionLabel* help_;
};

}  // namespace vorlund
