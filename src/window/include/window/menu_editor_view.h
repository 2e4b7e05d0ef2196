// The menu editor pane on screen: the names of one plane-picture menu and the bytes carried unchanged.
#pragma once

#include "window/pane_view.h"

class QGridLayout;

namespace vorlund {

/// View of MenuEditor's `PMenFrame` with `MnuFrame` in it, and of the list of display names.
class MenuEditorView : public PaneView {
 public:
  MenuEditorView(Form1& form, const Perform& perform, QWidget* parent);

 private:
  QWidget* make_countries();
  QWidget* make_entries();
  void make_entry(QGridLayout* grid, int index);
  QLayout* make_names();
};

}  // namespace vorlund
