// What every pane of the program works with.
#pragma once

#include "core/controls.h"
#include "core/file_system.h"
#include "core/game_directory.h"
#include "core/status.h"

namespace vorlund {

/// The surroundings of a pane: the disk, the game directory, the observer and the order of the panes.
/// It is owned by the window object and outlives the panes.
struct Environment {
  FileSystem& files;
  GameDirectory& game;
  Status& status;
  FrameOrder& frames;
};

}  // namespace vorlund
