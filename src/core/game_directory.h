// The game directory: the folder that every path of the program begins with, and the controls to confirm it.
#pragma once

#include <string>
#include <string_view>

#include "core/controls.h"
#include "core/listing.h"

namespace vorlund {

/// Holds the game directory and the controls with which it is confirmed or changed.
class GameDirectory {
 public:
  Label Label16;    ///< shows the game directory; its caption is what every path is formed from
  Label Label17;    ///< asks for confirmation; a click takes the directory as confirmed
  FolderList Dir6;  ///< folder tree at the current folder; opening a folder makes it the game directory
  FolderList Dir4;  ///< folders of the game directory

  explicit GameDirectory(FileSystem& files);

  /// The game directory followed by a literal that begins with a backslash.
  std::string path(std::string_view literal) const;

  /// Start-up: the process's current folder becomes the game directory and is offered for confirmation.
  void start();

  /// A double click on a folder of `Dir6`; index -1 is the folder itself, -2 its parent.
  void Dir6_DblClick(int index);

  /// The folder of `Dir6` has changed: it becomes the game directory. What was loaded from the folder before
  /// stays as it is.
  void Dir6_Change();

  /// Takes the directory as confirmed and hides the controls that ask for it.
  void Label17_Click();

 private:
  FileSystem& files_;
};

}  // namespace vorlund
