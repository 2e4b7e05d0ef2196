// The frame that is never shown, with the listings that the program works with.
#pragma once

#include <string>
#include <vector>

#include "ui/form1.h"
#include "ui/window/list_view.h"
#include "ui/window/pane_view.h"

namespace vorlund {

/// View of `InviFrame`.
class InvisibleFrameView : public PaneView {
 public:
  InvisibleFrameView(Form1& form, QWidget* parent);

  void apply() override;

 private:
  void add(const char* name, const std::vector<std::string>& names);

  Form1& form_;
  QWidget* frame_;
  std::vector<ListView*> lists_;
};

}  // namespace vorlund
