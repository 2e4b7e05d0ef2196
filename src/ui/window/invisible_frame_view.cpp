// Keeps the hidden listings as lists of their own.
#include "ui/window/invisible_frame_view.h"

namespace vorlund {

InvisibleFrameView::InvisibleFrameView(Form1& form, QWidget* parent)
    : form_(form), frame_(new QWidget(parent)) {
  frame_->setObjectName("InviFrame");
  frame_->hide();
  add("Dir1", form.selection.Dir1.names);
  add("Dir3", form.browser.Dir3.names);
  add("Dir4", form.directory.Dir4.names);
  add("Dir5", form.selection.Dir5.names);
  add("RegionDir", form.selection.RegionDir.names);
  add("UtilDir", form.UtilDir.names);
  add("SavDatFile", form.SavDatFile.names);
}

void InvisibleFrameView::add(const char* name, const std::vector<std::string>& names) {
  lists_.push_back(new ListView(name, name, names, frame_));
}

void InvisibleFrameView::apply() {
  frame_->setVisible(form_.InviFrame.visible);
  for (ListView* list : lists_) list->apply(-1);
}

}  // namespace vorlund
