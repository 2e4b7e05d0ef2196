// The selection pane on screen: the folders of a group, and the picture and description of one of them.
#pragma once

#include <QScrollArea>
#include <vector>

#include "window/pane_view.h"

namespace vorlund {

/// View of SelectionPane's `Frame3`.
class SelectionPaneView : public PaneView {
 public:
  SelectionPaneView(Form1& form, const Perform& perform, QWidget* parent);

 private:
  QWidget* make_selections();
  QWidget* make_details();
  QLayout* make_commands();
  QWidget* make_description();
  QLabel* detail(const char* name, const Label& data, double size = 1.0);
  QLabel* label(const char* name, double size, const QString& words = {});
  void show_selection_labels();

  QWidget* selections_board_ = nullptr;
  std::vector<ActionLabel*> selections_;
};

}  // namespace vorlund
