// The selection pane on screen: the folders of a group, and the picture and description of one of them.
#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <vector>

#include "ui/form1.h"
#include "ui/window/action_label.h"
#include "ui/window/pane_frame.h"
#include "ui/window/pane_view.h"
#include "ui/window/picture_view.h"

namespace vorlund {

/// View of SelectionPane's `Frame3`.
class SelectionPaneView : public PaneView {
 public:
  SelectionPaneView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;
  PaneFrame& frame() { return *frame_; }

 private:
  void lay_out();
  void apply_selection_labels();
  QLabel* add_text(const QString& name, double size);

  Form1& form_;
  Perform perform_;
  PaneFrame* frame_;
  PictureView* backdrop_;
  QWidget* left_;
  QWidget* right_;
  QLabel* heading_;
  QScrollArea* list_;
  QWidget* list_board_;
  std::vector<ActionLabel*> selections_;
  QLabel* advice_;
  QLabel* group_;
  QLabel* folder_;
  QLabel* skin_code_;
  QLabel* slot_heading_;
  QLabel* slot_group_;
  QLabel* slot_folder_;
  PictureView* picture_;
  QLabel* picture_hint_;
  QPlainTextEdit* description_;
  ActionLabel* hide_picture_;
  ActionLabel* toggle_details_;
  ActionLabel* hide_;
  QLabel* hide_hint_;
};

}  // namespace vorlund
