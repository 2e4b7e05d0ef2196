// The save pane on screen: the name to save under and the set-ups that exist already.
#pragma once

#include "window/pane_view.h"

namespace vorlund {

/// View of SavePane's `SaveFrame`.
class SavePaneView : public PaneView {
 public:
  SavePaneView(Form1& form, const Perform& perform, QWidget* parent);
};

}  // namespace vorlund
