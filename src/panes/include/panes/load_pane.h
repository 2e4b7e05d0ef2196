// The pane that loads saved set-ups into the tables and installs them.
#pragma once

#include <array>
#include <string>

#include "panes/desk.h"
#include "panes/lists.h"
#include "panes/picture.h"

namespace vorlund {

/// State and verbs of `Frame2`.
class LoadPane {
 public:
  explicit LoadPane(Desk& desk) : desk_(desk) {}

  Frame Frame2{"Load saved set-ups", false, {4800, 1200, 8400, 7200}};
  std::array<Label, 2> Label22{{{"Gamesets"}, {"Planesets"}}};
  FileList File3;  ///< saved game sets
  FileList File2;  ///< saved plane sets
  bool File3_visible = true;
  Label Label20;          ///< name of the chosen plane set, "" for none
  Label Label21;          ///< name of the chosen game set, "" for none
  Choice Check1{"View"};  ///< checked: load into the tables and show them; unchecked: install at once
  Choice Check2{"View"};  ///< shown, never consulted
  Label Label19{"Load"};
  Label Label40{"Cancel"};
  Label Label12{"Load"};  ///< in the game pane: opens this pane
  Label Label13{"Load"};  ///< in the aircraft pane: opens this pane
  Picture Image2;         ///< background of the pane

  /// Points both lists at their folders and lists them.
  void list();

  /// Lists both folders again and shows the pane.
  void open();
  void hide();

  void choose_plane_set(int index);
  void choose_game_set(int index);

  /// Takes the choice back: nothing of that kind will be loaded.
  void take_back_plane_set() { take_back(File2, Label20); }
  void take_back_game_set() { take_back(File3, Label21); }

  /// Paths of the chosen set-ups.
  [[nodiscard]] std::string plane_set() const { return File2.path + "\\" + Label20.caption; }
  [[nodiscard]] std::string game_set() const { return File3.path + "\\" + Label21.caption; }

 private:
  void choose(FileList& list, int index, Label& chosen);
  void take_back(FileList& list, Label& chosen);

  Desk& desk_;
};

}  // namespace vorlund
