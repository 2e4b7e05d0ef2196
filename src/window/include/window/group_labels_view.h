// The group labels on screen: columns beside the main menu, scrolled where there are more than fit.
#pragma once

#include "window/pane_view.h"

namespace vorlund {

/// View of the label array `Label1`.
class GroupLabelsView : public PaneView {
 public:
  GroupLabelsView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;

 private:
  QWidget* parent_;
  ListView* labels_;
  PaneMode mode_ = PaneMode::kAircraftSet;
};

}  // namespace vorlund
