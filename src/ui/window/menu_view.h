// The main window's own labels: title, menu, commands, and the labels that bring the tables back.
#pragma once

#include <QLabel>
#include <vector>

#include "ui/form1.h"
#include "ui/window/action_label.h"
#include "ui/window/pane_view.h"

namespace vorlund {

/// View of the labels that stand on the main window itself.
class MenuView : public PaneView {
 public:
  MenuView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;

  /// The labels that must stay reachable in front of the selection pane.
  void raise_table_labels();

 private:
  using Release = void (Form1::*)(const MouseEvent&);
  ActionLabel* add(const QString& name, const Label& label);
  void place_table_labels();

  struct Shown {
    ActionLabel* widget;
    const Label* label;
  };

  Form1& form_;
  Perform perform_;
  QWidget* parent_;
  std::vector<Shown> placed_;  ///< labels that stand where the model places them
  QLabel* title_;
  QLabel* version_;
  ActionLabel* show_table_;
  ActionLabel* raise_table_;
};

}  // namespace vorlund
