// The pane of the game table and its commands.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "gamesets/game_table.h"
#include "gamesets/row_overlaps.h"
#include "panes/desk.h"

namespace vorlund {

/// State and verbs of `GameFrame`.
class GamePane {
 public:
  static constexpr std::array<int, 2> kColumnWidths = {3000, 5000};  ///< of `G2`, in twips

  explicit GamePane(Desk& desk) : desk_(desk) {}

  Frame GameFrame{"Game Frame", false, {7350, 900, 9600, 7800}};
  GameTable G2;                             ///< the folders that the game directory is composed of
  Label GameLoad{"Process!"};               ///< installs the game set
  Label Label28{"Clear the selected row"};  ///< takes the current row out of the set
  Label Label29{"Move the selected row to the end ( to load last)"};
  Label Label10{"Hide"};  ///< element 1 of the "Hide" labels

  /// Makes a row the current one.
  void select_row(int row);

  /// Installs the game set, hides the pane, writes the record and says what was done.
  void install();

  /// `last_group` is the caption of the last group label of the selection pane, none while there is none.
  void clear_selected_row(std::optional<std::string_view> last_group);
  void move_selected_row_to_end();

  /// Works out anew which rows win over which; to be called when the table is opened or has changed.
  void mark_rows();

  /// The mark of a row beside the selected one: "\u25B2 3" where it replaces 3 of that row's files, "\u25BD
  /// 3" where that row replaces 3 of its files, and "could go" where later rows replace all that it has.
  [[nodiscard]] std::string mark(int row) const;

  /// The same in a sentence, "" where there is no mark.
  [[nodiscard]] std::string mark_in_words(int row) const;

  /// Refills the table from a saved set-up.
  void load(std::string_view path);

  void hide();
  void show();

 private:
  Desk& desk_;
  RowOverlaps overlaps_;
};

}  // namespace vorlund
