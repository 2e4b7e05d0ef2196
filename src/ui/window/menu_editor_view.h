// The menu editor pane on screen: the names of one plane-picture menu and the bytes carried unchanged.
#pragma once

#include <QGridLayout>
#include <QLineEdit>
#include <array>

#include "ui/form1.h"
#include "ui/window/choice_view.h"
#include "ui/window/list_view.h"
#include "ui/window/pane_frame.h"
#include "ui/window/pane_view.h"
#include "ui/window/text_label.h"

namespace vorlund {

/// View of MenuEditor's `PMenFrame` with `MnuFrame` in it, and of the list of display names.
class MenuEditorView : public PaneView {
 public:
  MenuEditorView(Form1& form, const Perform& perform, QWidget* parent);

  void apply() override;
  PaneFrame& frame() { return *frame_; }

 private:
  struct Entry {
    QLineEdit* name;
    TextLabel* length;
    TextLabel* trailer;
  };

  void add_countries(const Perform& perform);
  void add_entries(const Perform& perform);
  void add_heading(QGridLayout* grid, int column, const QString& text);
  void lay_out();

  Form1& form_;
  PaneFrame* frame_;
  QWidget* menu_frame_;
  TextLabel* menu_caption_;
  std::array<OptionButton*, 3> countries_{};
  TextLabel* header_;
  QWidget* board_;
  std::array<Entry, MenuEditor::kEntries> entries_{};
  ListView* plane_names_;
};

}  // namespace vorlund
