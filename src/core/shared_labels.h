// The labels that several panes show, fill and hide.
#pragma once

#include "core/controls.h"

namespace vorlund {

/// Labels outside any one pane's keeping.
struct SharedLabels {
  Label Label2{"", false};                         ///< brings the hidden table of the running work back
  Label GroupLabel{"", false};                     ///< group of the selection that is shown
  Label FolderLabel{"", false};                    ///< folder of the selection that is shown
  Label Label42{"", false};                        ///< heading of the selection pane
  Label Label43{"", false};                        ///< skin group that the slot of the shown skin holds now
  Label Label44{"Current Slot Selection", false};  ///< heading of Label43 and Label45
  Label Label45{"", false};                        ///< skin folder that the slot of the shown skin holds now
  Label SkinLab2{"", false};                       ///< skin code of the viewed skin
  Label SkinLab3;                                  ///< plane number of the viewed skin, 0 to 29, as text

  /// What every "Hide" label (`Label10`) does after hiding its pane: the table can be brought back and
  /// nothing of the selection is shown any more.
  void pane_hidden() {
    Label2.visible = true;
    for (Label* label : {&FolderLabel, &GroupLabel}) {
      label->caption.clear();
      label->visible = false;
    }
    hide_slot_labels();
    Label42.visible = false;
  }

  /// Hides what tells which skin a slot holds.
  void hide_slot_labels() {
    for (Label* label : {&Label43, &Label44, &Label45}) label->visible = false;
  }
};

}  // namespace vorlund
