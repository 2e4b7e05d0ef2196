// The pane of possible skins on screen: the skins that fit, and the picture of one of them.
#pragma once

#include "window/contact_sheet.h"
#include "window/pane_view.h"

namespace vorlund {

/// View of PossibleSkins' `Frame4`.
class PossibleSkinsView : public PaneView {
 public:
  PossibleSkinsView(Form1& form, const Perform& perform, QWidget* parent);

 private:
  QLayout* lay_out_list();
  QLayout* lay_out_picture();
  QWidget* make_sheet();
};

}  // namespace vorlund
