// The load pane on screen: the saved set-ups of both kinds.
#pragma once

#include "window/pane_view.h"

namespace vorlund {

/// View of LoadPane's `Frame2`.
class LoadPaneView : public PaneView {
 public:
  LoadPaneView(Form1& form, const Perform& perform, QWidget* parent);

 private:
  QLayout* column(TextLabel* heading, ListView* list, TextLabel* chosen, CheckBox* box);
};

}  // namespace vorlund
