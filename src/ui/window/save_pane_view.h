// The save pane on screen: the name to save under and the set-ups that exist already.
#pragma once

#include <QLineEdit>

#include "ui/form1.h"
#include "ui/window/action_label.h"
#include "ui/window/list_view.h"
#include "ui/window/pane_frame.h"
#include "ui/window/pane_view.h"
#include "ui/window/text_label.h"

namespace vorlund {

/// View of SavePane's `SaveFrame`.
class SavePaneView : public PaneView {
 public:
  SavePaneView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;
  PaneFrame& frame() { return *frame_; }

 private:
  void lay_out();

  Form1& form_;
  PaneFrame* frame_;
  QLabel* prompt_;
  QLineEdit* name_;
  QLabel* refusal_;
  TextLabel* heading_;
  ListView* existing_;
  ActionLabel* ok_;
  ActionLabel* cancel_;
};

}  // namespace vorlund
