// The game's own files in the sample folder.
#pragma once

#include <string>

#include "sample_folder.h"

namespace vorlund::sample {

/// The bytes of eaw.exe: they begin as a Windows program does, but nothing in them can run.
std::string game_program();

/// Writes the game's own files, "Savedata" and "Music" among them.
void write_game_files(SampleFolder& folder);

}  // namespace vorlund::sample
