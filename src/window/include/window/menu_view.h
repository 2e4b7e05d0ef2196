// The main window's own labels: title, menu, commands, and the labels that bring the tables back.
#pragma once

#include "window/pane_view.h"

namespace vorlund {

/// View of the labels that stand on the main window itself.
class MenuView : public PaneView {
 public:
  MenuView(Form1& form, const Perform& perform, QWidget* parent);
  void apply() override;

  /// Shows whether "Bring the table to the front" has anything to bring.
  void show_whether_covered(bool covered) { raise_table_->set_dimmed(!covered); }

  /// The labels that must stay reachable in front of the selection pane.
  void raise_table_labels();

 private:
  QLabel* title(const char* name, const Label& data, double size);

  /// A label that the right button drags; it stands where the model places it.
  ActionLabel* dragged(const QString& name, const Label& data, const QString& tool_tip);
  ActionLabel* dragged(const char* name, const Label& data, Press release, const QString& tool_tip);

  QWidget* parent_;
  QLabel* title_;
  QLabel* version_;
  ActionLabel* show_table_;
  ActionLabel* raise_table_;
};

}  // namespace vorlund
