// Every view of the window that has nothing to say but what all views have, by the function that makes it.
#pragma once

#include <memory>

#include "window/pane_view.h"

namespace vorlund {

/// Makes a view whose widgets stand on `parent`. The form outlives it. The view's class is its source's own.
using MakeView = std::unique_ptr<PaneView>(Form1& form, const Perform& perform, QWidget* parent);

MakeView directory_view;       ///< GameDirectory: the path, the folders around it, and what confirms it
MakeView group_labels_view;    ///< the label array `Label1`, in columns beside the main menu
MakeView selection_pane_view;  ///< `Frame3`: the folders of a group, the picture and description of one
MakeView game_pane_view;       ///< `GameFrame`: the game table and its commands
MakeView plane_pane_view;      ///< `Frame1`: the plane table, the lists beside it and their commands
MakeView possible_skins_view;  ///< `Frame4`: the skins that fit, and the picture of one of them
MakeView load_pane_view;       ///< `Frame2`: the saved set-ups of both kinds
MakeView save_pane_view;       ///< `SaveFrame`: the name to save under, and the set-ups that exist already
MakeView menu_editor_view;     ///< `PMenFrame` with `MnuFrame` in it: names, and the bytes carried unchanged
MakeView contents_view;        ///< `ContentsFrame`: kinds, filter, table, and the chain of the selected file
MakeView help_view;            ///< `HelpFrame`: the page of the help

}  // namespace vorlund
