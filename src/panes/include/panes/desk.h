// What every pane works at: the game folder, the status line, the order of panes, the labels they share.
#pragma once

#include <string>
#include <string_view>

#include "disk/game_folder.h"
#include "disk/status.h"
#include "panes/controls.h"
#include "panes/game_directory.h"

namespace vorlund {

/// What is said after a row was cleared.
inline constexpr std::string_view kFilesStay = "Its files stay in the game folder until \"Clean Up\".";

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
  void pane_hidden();

  /// Hides what tells which skin a slot holds.
  void hide_slot_labels();
};

/// The surroundings of the panes. It is owned by the window object and outlives them.
struct Desk {
  /// `observer` is told of repaints and progress while an action runs.
  Desk(FileSystem& disk, Status& observer) : files(disk), status(observer), directory(disk) {}

  FileSystem& files;
  Status& status;
  GameDirectory directory;
  SharedLabels labels;
  Label status_line;  ///< what the last action has come to, in plain words

  /// The game folder of this moment.
  [[nodiscard]] GameFolder game() const { return {files, directory.Label16.caption}; }

  /// Puts a text into the status line; further lines are separated by "\n".
  void say(std::string_view text) {
    status_line.caption = text;
    outcome_ = text;
  }

  /// What was said last, without what was added to it.
  [[nodiscard]] const std::string& outcome() const { return outcome_; }

  /// Adds a sentence to what the status line says, in the same line.
  void say_on(std::string_view text) { status_line.caption.append(". ").append(text); }

  /// Adds a line to what the status line says.
  void say_too(std::string_view text);

  /// Where a record can't spell a name that was chosen or saved: adds what it will read at the next start.
  void say_spelling(std::string_view name);

  void bring_to_front(Frame& frame) { frame.depth = ++front_; }

  /// Shows a pane in front of the others.
  void show_in_front(Frame& frame);

 private:
  std::string outcome_;
  int front_ = 0;
};

/// The span of a long action: its label says "..working!" meanwhile, and what it said before afterwards.
class Working {
 public:
  Working(Desk& desk, Label& label);
  ~Working();
  Working(const Working&) = delete;
  Working& operator=(const Working&) = delete;

 private:
  Desk& desk_;
  Label& label_;
  std::string caption_;
};

}  // namespace vorlund
