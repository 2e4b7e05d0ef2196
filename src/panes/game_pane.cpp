// Verbs of the game pane.
#include "panes/game_pane.h"

#include "base/text.h"
#include "gamesets/game_record.h"
#include "panes/set_actions.h"

namespace vorlund {

void GamePane::select_row(int row) {
  G2.select(row);
  desk_.say("");
}

void GamePane::install() {
  const Working working(desk_, GameLoad);
  const GameSetSummary summary = process_game_set(desk_.game(), desk_.status, G2);
  GameFrame.visible = false;
  desk_.labels.Label2.visible = true;
  desk_.say(summary.text());
}

void GamePane::clear_selected_row(std::optional<std::string_view> last_group) {
  if (G2.current_row == 0) {
    desk_.say("Nothing was cleared: first select a row");
    return;
  }
  const std::string cleared = G2.current_in_words();
  G2.clear_current(last_group);
  desk_.say(cleared + " was cleared");
  desk_.say_on(kFilesStay);
}

void GamePane::move_selected_row_to_end() {
  G2.move_current_to_end();
  if (G2.current_row == 0) return desk_.say("Nothing was moved: first select a row");
  desk_.say(G2.current_in_words() + " now stands at the end and is loaded last");
}

void GamePane::mark_rows() {
  const FileSystem::Action action(desk_.files);
  overlaps_ = RowOverlaps(desk_.game(), G2);
}

std::string GamePane::mark(int row) const {
  const int shared = G2.current_row == 0 ? 0 : overlaps_.shared_files(row, G2.current_row);
  std::string text;
  if (shared > 0) text = (row > G2.current_row ? "\u25B2 " : "\u25BD ") + std::to_string(shared);
  if (overlaps_.could_go(row)) text += text.empty() ? "could go" : "  could go";
  return text;
}

std::string GamePane::mark_in_words(int row) const {
  const int shared = G2.current_row == 0 ? 0 : overlaps_.shared_files(row, G2.current_row);
  const std::string files = counted(static_cast<std::uint64_t>(shared), "file", "files");
  std::string text;
  if (shared > 0) {
    text = row > G2.current_row ? "This row replaces " + files + " of the selected row."
                                : "The selected row replaces " + files + " of this row.";
  }
  if (overlaps_.could_go(row)) {
    text += std::string(text.empty() ? "" : "\n") + "Later rows replace every file of this row: it could go.";
  }
  return text;
}

void GamePane::show() {
  mark_rows();
  desk_.show_in_front(GameFrame);
}

void GamePane::load(std::string_view path) {
  read_game_set(desk_.files, path, G2);
}

void GamePane::hide() {
  GameFrame.visible = false;
  desk_.labels.pane_hidden();
}

}  // namespace vorlund
