// The aircraft pane on screen: the plane table, the lists beside it and their commands.
#pragma once

#include <vector>

#include "ui/form1.h"
#include "ui/window/action_label.h"
#include "ui/window/choice_view.h"
#include "ui/window/grid_view.h"
#include "ui/window/list_view.h"
#include "ui/window/pane_frame.h"
#include "ui/window/pane_view.h"
#include "ui/window/text_label.h"

namespace vorlund {

/// View of PlanePane's `Frame1` and of the two lists that its option buttons switch between.
class PlanePaneView : public PaneView {
 public:
  PlanePaneView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;
  PaneFrame& frame() { return *frame_; }

 private:
  struct OptionView {
    PlaneOption option;
    OptionButton* button;
  };

  void connect_table(const Perform& perform);
  void connect_lists(const Perform& perform);
  void connect_commands(const Perform& perform);
  void lay_out();
  bool acts(int row, int column) const;
  QString hint() const;

  Form1& form_;
  PaneFrame* frame_;
  TextLabel* group_heading_;
  TextLabel* group_;
  ActionLabel* show_all_;
  ActionLabel* menus_;
  std::vector<OptionView> options_;
  GridView* table_;
  TextLabel* list_heading_;
  TextLabel* list_group_;
  ListView* flight_models_;
  ListView* plane_codes_;
  QLabel* hint_;
  ActionLabel* process_;
  ActionLabel* clear_;
  ActionLabel* save_;
  ActionLabel* load_;
  ActionLabel* hide_;
};

}  // namespace vorlund
