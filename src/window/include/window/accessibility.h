// What assistive tools are told of the program's own kinds of widgets.
#pragma once

namespace vorlund {

/// From now on panes are groups with their caption as the name, option buttons are told from check boxes, and
/// pictures that can be clicked are buttons that can be pressed.
void speak_to_assistive_tools();

}  // namespace vorlund
