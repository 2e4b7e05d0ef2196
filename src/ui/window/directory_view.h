// The confirmation of the game directory on screen.
#pragma once

#include <QLabel>
#include <QListWidget>

#include "ui/form1.h"
#include "ui/window/action_label.h"
#include "ui/window/pane_frame.h"
#include "ui/window/pane_view.h"

namespace vorlund {

/// View of GameDirectory: the path, the folder tree around it, and the label that confirms it.
class DirectoryView : public PaneView {
 public:
  DirectoryView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;

 private:
  Form1& form_;
  QWidget* parent_;
  QWidget* panel_;
  ActionLabel* confirm_;
  QLabel* path_;
  QListWidget* folders_;
};

}  // namespace vorlund
