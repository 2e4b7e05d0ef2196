// The help on screen.
#pragma once

#include "window/pane_view.h"

namespace vorlund {

/// View of HelpPane.
class HelpView : public PaneView {
 public:
  HelpView(Form1& form, const Perform& perform, QWidget* parent);
};

}  // namespace vorlund
