// What every pane of the program works with.
#pragma once

#include "core/controls.h"
#include "core/file_system.h"
#include "core/game_directory.h"
#include "core/shared_labels.h"
#include "core/status.h"

namespace vorlund {

/// The surroundings of a pane: the disk, the game directory, the observer, the order of the
/// panes and the labels that several panes share.
/// It is owned by the window object and outlives the panes.
struct Environment {
  FileSystem& files;
  GameDirectory& game;
  Status& status;
  FrameOrder& frames;
  SharedLabels& labels;
};

}  // namespace vorlund
