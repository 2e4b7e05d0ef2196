// The selection pane on screen: the folders of a group, and the picture and description of one of them.
#pragma once

#include "window/contact_sheet.h"
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
  enum class Of { kGroup, kSelection };
  QLabel* detail(const char* name, const Label& data, double size = 1.0, Of of = Of::kSelection);
  QLabel* label(const char* name, double size, const QString& words = {});
  QWidget* make_sheet();
  void show_sheet(bool shown);

  ListView* list_ = nullptr;
  ContactSheet* sheet_ = nullptr;
  bool came_from_sheet_ = false;  ///< to the shown selection, with the keyboard
};

}  // namespace vorlund
