// The pane that saves the game table or the plane table under a name.
#pragma once

#include "aircraft/plane_pane.h"
#include "core/environment.h"
#include "core/listing.h"
#include "gamesets/game_pane.h"

namespace vorlund {

/// State and event handlers of `SaveFrame`.
class SavePane {
 public:
  SavePane(Environment& environment, const GamePane& game, const PlanePane& plane);

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

  void Label11_Click();
  void Label14_Click();

  /// Takes the clicked name over, so that saving replaces that set-up.
  void File5_Click(int index);

  /// Saves under the typed name and hides the pane. An empty name saves nothing. A name that can't be a plain
  /// file name on Linux and on Windows is refused in the pane, which stays open.
  void Label4_Click();

  void Label39_Click();
  void SaveFrame_Click();

 private:
  void open(SaveKind save_kind);

  /// Where set-ups of the kind are saved in the game directory of the moment.
  std::string folder() const;

  Environment& environment_;
  const GamePane& game_;
  const PlanePane& plane_;
};

}  // namespace vorlund
