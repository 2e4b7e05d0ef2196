// The few things that all panes do at their desk.
#include "panes/desk.h"

#include <utility>

#include "base/code_page.h"
#include "base/text.h"

namespace vorlund {

void SharedLabels::pane_hidden() {
  Label2.visible = true;
  for (Label* label : {&FolderLabel, &GroupLabel}) {
    label->caption.clear();
    label->visible = false;
  }
  hide_slot_labels();
  Label42.visible = false;
}

void SharedLabels::hide_slot_labels() {
  for (Label* label : {&Label43, &Label44, &Label45}) label->visible = false;
}

void Desk::say_too(std::string_view text) {
  status_line.caption.append(status_line.caption.empty() ? "" : "\n").append(text);
}

void Desk::say_spelling(std::string_view name) {
  if (can_spell(name)) return;
  say_too("No record can spell " + quoted(name) + ": it will be remembered as " +
          quoted(decode_text(encode_text(name))) + " and not found at the next start");
}

void Desk::show_in_front(Frame& frame) {
  frame.visible = true;
  bring_to_front(frame);
}

Working::Working(Desk& desk, Label& label)
    : desk_(desk), label_(label), caption_(std::exchange(label.caption, kWorkingCaption)) {
  desk_.status.repaint();
}

Working::~Working() {
  label_.caption = caption_;
}

}  // namespace vorlund
