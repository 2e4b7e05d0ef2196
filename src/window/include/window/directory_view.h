// The confirmation of the game directory on screen.
#pragma once

#include <string>
#include <vector>

#include "window/pane_view.h"

namespace vorlund {

/// View of GameDirectory: the path, the folder tree around it, and the label that confirms it.
class DirectoryView : public PaneView {
 public:
  DirectoryView(Form1& form, const Perform& perform, QWidget* parent);
  void apply() override;

 private:
  QWidget* parent_;
  QWidget* panel_;
  std::vector<std::string> folders_;  ///< ".." and the names
};

}  // namespace vorlund
