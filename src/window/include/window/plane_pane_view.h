// The aircraft pane on screen: the plane table, the lists beside it and their commands.
#pragma once

#include <QBoxLayout>
#include <vector>

#include "window/grid_view.h"
#include "window/pane_view.h"

namespace vorlund {

/// View of PlanePane's `Frame1` and of the two lists that its option buttons switch between.
class PlanePaneView : public PaneView {
 public:
  PlanePaneView(Form1& form, const Perform& perform, QWidget* parent);
  void apply() override;
  QSize least_size(int width) override;

 private:
  GridView* make_table();
  QLayout* lay_out_table(GridView* table);
  QLayout* lay_out_options();
  QLayout* lay_out_commands();
  /// Puts the lists beside the table where the pane is wide enough, else below it.
  void lay_out_for(int width);

  [[nodiscard]] bool acts(int row, int column) const;
  [[nodiscard]] QString advice() const;

  GridView* table_ = nullptr;
  QBoxLayout* both_ = nullptr;  ///< table and lists
  std::vector<ListView*> lists_;
};

}  // namespace vorlund
