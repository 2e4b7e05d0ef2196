// The pane of the game table and its commands.
#pragma once

#include <optional>
#include <string_view>

#include "core/environment.h"
#include "gamesets/game_table.h"

namespace vorlund {

/// State and event handlers of `GameFrame`.
class GamePane {
 public:
  explicit GamePane(Environment& environment);

  Frame GameFrame{"Game Frame", false, {7350, 900, 9600, 7800}};
  GameTable table;
  Label GameLoad{"Process!"};               ///< installs the game set
  Label Label28{"Clear the selected row"};  ///< takes the current row out of the set
  Label Label29{"Move the selected row to the end ( to load last)"};
  Label Label10{"Hide"};  ///< element 1 of the "Hide" labels

  /// Installs the game set, hides the pane and writes the record.
  void GameLoad_Click();
  std::string last_outcome;  ///< what the last installation has come to, in plain words

  /// `last_group` is the caption of the last group label of the selection pane, none while there is none.
  void Label28_Click(std::optional<std::string_view> last_group);
  void Label29_Click();

  /// Makes the clicked row the current one.
  void G2_Click(int row);

  void Label10_Click();

  void GameFrame_MouseDown(const MouseEvent& event);
  void GameFrame_MouseUp(const MouseEvent& event);

  /// Shows the pane in front of the others.
  void show_in_front();

 private:
  Environment& environment_;
  DragOrigin drag_;
};

}  // namespace vorlund
