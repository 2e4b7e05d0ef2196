// Event handlers of the game pane.
#include "gamesets/game_pane.h"

#include <string>

#include "gamesets/game_installer.h"
#include "gamesets/game_record.h"

namespace vorlund {

GamePane::GamePane(Environment& environment) : environment_(environment) {}

void GamePane::GameLoad_Click() {
  const std::string caption = GameLoad.caption;
  GameLoad.caption = "..working!";
  environment_.status.repaint();
  const GameSetSummary summary = install_game_set(environment_, table);
  GameFrame.visible = false;
  environment_.labels.Label2.visible = true;
  SaveGS(environment_, table);
  GameLoad.caption = caption;
  last_outcome = summary.sentence();
  environment_.status.outcome(last_outcome);
  environment_.status.repaint();
}

void GamePane::Label28_Click(std::string_view last_group) {
  table.clear_current(last_group);
}

void GamePane::Label29_Click() {
  table.move_current_to_end();
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
