// What the fuzz targets share: the window object in memory, and errors that are allowed to end an action.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/action_error.h"
#include "memory_file_system.h"
#include "panes/form1.h"

namespace vorlund::fuzz {

/// The window object in the game directory "C:\Game", which is empty at first; start-up has not been run. To
/// make it anew for each input would take more time than most inputs do.
struct Surroundings {
  MemoryFileSystem files;
  Status status;
  Form1 form{files, status, Version{}};
  GameFolder game;

  Surroundings() : game{files, files.current_folder()} {
    form.desk.directory.Label16.caption = game.directory;
  }

  /// Writes a file of the game directory; the literal begins with a backslash.
  void write(std::string_view literal, std::string_view bytes) {
    files.replace_file(game.path(literal), bytes, Durability::kCached);
  }

  /// Takes a file of the game directory away, if it is there.
  void remove(std::string_view literal) {
    const std::string path = game.path(literal);
    if (files.FileExists(path)) files.remove_file(path);
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
