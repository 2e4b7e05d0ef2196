// Start, change and confirmation of the game directory.
#include "panes/game_directory.h"

#include <string>

namespace vorlund {

namespace {

std::string parent_of(const std::string& folder) {
  const std::size_t separator = folder.find_last_of("\\/");
  if (separator == std::string::npos || separator + 1 == folder.size()) return folder;
  const bool root = separator == 0 || folder[separator - 1] == ':';
  return folder.substr(0, root ? separator + 1 : separator);
}

}  // namespace

void GameDirectory::start() {
  Dir6.open(files_, files_.current_folder());
  Dir6.visible = true;
  Label16.caption = Dir6.path;
}

void GameDirectory::open_folder(int index) {
  std::string opened = Dir6.path;
  if (index == kParent) {
    opened = parent_of(Dir6.path);
  } else if (index >= 0 && index < static_cast<int>(Dir6.names.size())) {
    if (opened.find_last_of("\\/") + 1 != opened.size()) opened += '\\';
    opened += Dir6.names[static_cast<std::size_t>(index)];
  }
  Dir6.open(files_, opened);
  take_opened_folder();
}

void GameDirectory::take_opened_folder() {
  Label16.caption = Dir6.path;
  Dir4.open(files_, Label16.caption);
}

void GameDirectory::confirm() {
  Label17.visible = false;
  Label16.visible = false;
  Dir6.visible = false;
}

}  // namespace vorlund
