// The game directory: the folder that every path of the program begins with, and the controls to confirm it.
#pragma once

#include "panes/controls.h"
#include "panes/lists.h"

namespace vorlund {

/// Holds the game directory and the controls with which it is confirmed or changed.
class GameDirectory {
 public:
  Label Label16;  ///< shows the game directory; its caption is what every path is formed from
  Label Label17{"Please confirm your EAW directory:"};  ///< a click takes the directory as confirmed
  FolderList Dir6;  ///< folder tree at the current folder; opening a folder makes it the game directory
  FolderList Dir4;  ///< folders of the game directory

  explicit GameDirectory(FileSystem& files) : files_(files) {}

  /// Start-up: the process's current folder becomes the game directory and is offered for confirmation.
  void start();

  static constexpr int kParent = -2;

  /// Opens a folder of `Dir6` and takes it over; index -1 is the folder itself, `kParent` its parent.
  void open_folder(int index);

  /// The folder of `Dir6` becomes the game directory. What was loaded from the folder before stays as it is.
  void take_opened_folder();

  /// Takes the directory as confirmed and hides the controls that ask for it.
  void confirm();

 private:
  FileSystem& files_;
};

}  // namespace vorlund
