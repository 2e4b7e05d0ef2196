// The pane that saves the game table or the plane table under a name.
#pragma once

#include <string>
#include <string_view>

#include "panes/desk.h"
#include "panes/game_pane.h"
#include "panes/lists.h"
#include "panes/plane_pane.h"

namespace vorlund {

/// State and verbs of `SaveFrame`.
class SavePane {
 public:
  SavePane(Desk& desk, const GamePane& game, const PlanePane& plane)
      : desk_(desk), game_(game), plane_(plane) {}

  enum class SaveKind { kPlaneSet = 0, kGameSet = 1 };

  SaveKind kind = SaveKind::kPlaneSet;
  Frame SaveFrame{"Save set-up", false, {5400, 1500, 6000, 6000}};
  TextBox Text2;  ///< name to save under, used exactly as typed
  Label Label22{"Existing files"};
  FileList File5;  ///< set-ups of the kind that exist already
  Label Label4{"OK"};
  Label Label39{"Cancel"};
  Label refusal{"", false};  ///< why the typed name can't be used
  Label Label11{"Save"};     ///< in the game pane: opens this pane for the game table
  Label Label14{"Save"};     ///< in the aircraft pane: opens this pane for the plane table

  /// Shows the pane for the table of that kind, with the set-ups that are there.
  void open(SaveKind save_kind);

  /// The name was typed.
  void type(std::string_view text);

  /// Takes the clicked name over, so that saving replaces that set-up.
  void take_name(int index);

  /// Saves under the typed name and hides the pane. An empty name saves nothing. A name that can't be a plain
  /// file name on Linux and on Windows is refused in the pane, which stays open.
  void save();

  void hide();

 private:
  /// Where set-ups of the kind are saved in the game directory of the moment.
  [[nodiscard]] std::string folder() const;

  /// Says so where the saved file can't spell a name of the table.
  void say_spelling();

  Desk& desk_;
  const GamePane& game_;
  const PlanePane& plane_;
};

}  // namespace vorlund
