// The group labels on screen: columns beside the main menu, scrolled where there are more than fit.
#pragma once

#include <QScrollArea>
#include <vector>

#include "panes/form1.h"
#include "window/action_label.h"
#include "window/pane_view.h"

namespace vorlund {

/// View of the label array `Label1`.
class GroupLabelsView : public PaneView {
 public:
  GroupLabelsView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;

 private:
  QWidget* parent_;
  QScrollArea* area_;
  QWidget* board_;
  std::vector<ActionLabel*> labels_;
};

}  // namespace vorlund
