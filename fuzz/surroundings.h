// What the fuzz targets share: a pane's surroundings in memory, and errors that are allowed to end an action.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/action_error.h"
#include "core/environment.h"
#include "memory_file_system.h"

namespace vorlund::fuzz {

/// An environment whose game directory is "C:\Game", empty at first.
struct Surroundings {
  MemoryFileSystem files;
  GameDirectory game{files};
  Status status;
  FrameOrder frames;
  SharedLabels labels;
  Environment environment{files, game, status, frames, labels};

  Surroundings() { game.start(); }

  /// Writes a file of the game directory; the literal begins with a backslash.
  void write(std::string_view literal, std::string_view bytes) {
    files.replace_file(game.path(literal), bytes, Durability::kCached);
  }
};

/// The fuzzer's input as bytes.
inline std::string_view as_bytes(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Runs an action that may end with its one defined error; every other exception ends the fuzzer.
template <typename ActionToRun>
void run_action(ActionToRun action) {
  try {
    action();
  } catch (const ActionError&) {
  }
}

/// Ends the fuzzer when something that must always hold does not.
inline void require(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace vorlund::fuzz
