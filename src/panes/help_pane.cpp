// Shows and hides the help.
#include "panes/help_pane.h"

namespace vorlund {

void HelpPane::show_or_hide() {
  HelpFrame.visible ? hide() : desk_.show_in_front(HelpFrame);
}

}  // namespace vorlund
