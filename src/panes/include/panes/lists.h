// List controls that hold the files or folders of a folder.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "disk/listing.h"
#include "panes/finder.h"

namespace vorlund {

/// A list control that holds the files of a folder (`SavDatFile`, `File2`, ...).
struct FileList {
  std::string path;
  std::string pattern = "*.*";
  std::vector<std::string> names;
  int selected = -1;  ///< index of the selected name, -1 for none
  Finder finder{};

  /// Takes the listing again; the selection is lost.
  void refresh(FileSystem& files);
};

/// A list control that holds the folders of a folder (`Dir1`, `Dir6`, ...).
struct FolderList {
  std::string path;
  std::vector<std::string> names;
  bool visible = false;
  Finder finder{};

  /// Points the list at a folder and lists it.
  void open(FileSystem& files, std::string_view folder);
};

}  // namespace vorlund
