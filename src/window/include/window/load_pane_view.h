// The load pane on screen: the saved set-ups of both kinds.
#pragma once

#include "window/pane_view.h"

namespace vorlund {

/// View of LoadPane's `Frame2`.
class LoadPaneView : public PaneView {
 public:
  LoadPaneView(Form1& form, const Perform& perform, QWidget* parent);

 private:
  ActionLabel* chosen(const char* name, const Label& data, ListView& list, Click take_back);
  QLayout* column(TextLabel* heading, ListView* list, ActionLabel* chosen, CheckBox* box);
};

}  // namespace vorlund
