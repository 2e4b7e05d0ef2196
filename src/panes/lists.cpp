// Takes listings into the list controls.
#include "panes/lists.h"

namespace vorlund {

void FileList::refresh(FileSystem& files) {
  names = list_files(files, path, pattern);
  selected = -1;
  finder.clear();
}

void FolderList::open(FileSystem& files, std::string_view folder) {
  path = folder;
  names = list_folders(files, folder);
  finder.clear();
}

}  // namespace vorlund
