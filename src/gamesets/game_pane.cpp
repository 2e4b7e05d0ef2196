// Event handlers of the game pane.
#include "gamesets/game_pane.h"

#include <string>

#include "gamesets/game_installer.h"
#include "gamesets/game_record.h"

namespace vorlund {

GamePane::GamePane(Environment& environment) : environment_(environment) {}

void GamePane::GameLoad_Click() {
  const std::string caption = GameLoad.caption;
  GameLoad.caption = kWorkingCaption;
  environment_.status.repaint();
  const GameSetSummary summary = install_game_set(environment_, table);
  GameFrame.visible = false;
  environment_.labels.Label2.visible = true;
  SaveGS(environment_, table);
  GameLoad.caption = caption;
  last_outcome = summary.text();
  environment_.status.outcome(last_outcome);
  environment_.status.repaint();
}

void GamePane::Label28_Click(std::optional<std::string_view> last_group) {
  if (table.G2.row == 0) {
    environment_.status.outcome("Nothing was cleared: first select a row");
    return;
  }
  const std::string cleared = table.current_in_words();
  table.clear_current(last_group);
  environment_.status.outcome(cleared +
                              " was cleared. Its files stay in the game folder until \"Clean Up\".");
}

void GamePane::Label29_Click() {
  table.move_current_to_end();
  environment_.status.outcome(table.G2.row == 0
                                  ? "Nothing was moved: first select a row"
                                  : table.current_in_words() + " now stands at the end and is loaded last");
}

void GamePane::G2_Click(int row) {
  table.select(row);
}

void GamePane::Label10_Click() {
  GameFrame.visible = false;
  environment_.labels.pane_hidden();
}

void GamePane::GameFrame_MouseDown(const MouseEvent& event) {
  drag_.press(event);
}

void GamePane::GameFrame_MouseUp(const MouseEvent& event) {
  drag_.release(event, GameFrame.place);
  environment_.frames.bring_to_front(GameFrame);
}

void GamePane::show_in_front() {
  GameFrame.visible = true;
  environment_.frames.bring_to_front(GameFrame);
}

}  // namespace vorlund
