// The text form of the game table: the record of what is installed, and saved game sets.
#pragma once

#include <string_view>

#include "disk/game_folder.h"
#include "gamesets/game_table.h"

namespace vorlund {

// One line a row from the header row on: group, TAB, folder name, CR LF, in the code page. Nothing is quoted.

/// Replaces the file by the table's text form.
void write_game_set(FileSystem& files, std::string_view path, const GameTable& table);

/// Refills the table from a file: each line becomes a row, the header line row 0. A line without a TAB gives
/// a row without a folder name; what follows a second TAB is dropped. Then the table is refreshed.
void read_game_set(FileSystem& files, std::string_view path, GameTable& table);

/// Writes the record of the installed game set.
void SaveGS(const GameFolder& game, const GameTable& table);

}  // namespace vorlund
