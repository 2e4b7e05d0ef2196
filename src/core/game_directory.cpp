// Start, change and confirmation of the game directory.
#include "core/game_directory.h"

namespace vorlund {

namespace {

std::string parent_of(const std::string& folder) {
  const std::size_t separator = folder.find_last_of("\\/");
  if (separator == std::string::npos || separator + 1 == folder.size()) return folder;
  const bool root = separator == 0 || folder[separator - 1] == ':';
  return folder.substr(0, root ? separator + 1 : separator);
}

}  // namespace

GameDirectory::GameDirectory(FileSystem& files) : files_(files) {
  Label17.caption = "Please confirm your EAW directory:";
}

std::string GameDirectory::path(std::string_view literal) const {
  return Label16.caption + std::string(literal);
}

void GameDirectory::start() {
  Dir6.open(files_, files_.current_folder());
  Dir6.visible = true;
  Label16.caption = Dir6.path;
}

void GameDirectory::Dir6_DblClick(int index) {
  std::string opened = Dir6.path;
  if (index == -2) {
    opened = parent_of(Dir6.path);
  } else if (index >= 0 && index < static_cast<int>(Dir6.names.size())) {
    if (opened.find_last_of("\\/") + 1 != opened.size()) opened += '\\';
    opened += Dir6.names[static_cast<std::size_t>(index)];
  }
  Dir6.open(files_, opened);
  Dir6_Change();
}

void GameDirectory::Dir6_Change() {
  Label16.caption = Dir6.path;
  Dir4.open(files_, Label16.caption);
}

void GameDirectory::Label17_Click() {
  Label17.visible = false;
  Label16.visible = false;
  Dir6.visible = false;
}

}  // namespace vorlund
