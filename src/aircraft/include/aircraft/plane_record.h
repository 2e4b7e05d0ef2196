// The text form of an aircraft set: the record of what is installed, and saved plane sets.
#pragma once

#include <string>
#include <string_view>

#include "aircraft/plane_table.h"
#include "disk/game_folder.h"

namespace vorlund {

// Lines end in CR LF and are in the code page. Line 1 is the flight-model group; lines 2 to 32 are the
// table's rows 0 (the header) to 30, ten cells each with one TAB between them. Nothing is quoted.

/// The file's bytes. Rows that the table does not have are written with empty cells.
std::string compose_plane_set(const PlaneTable& table);

/// Refills the table from the file's bytes: line 1 becomes the flight-model group, each further line a row.
/// Cells that a line lacks are empty, an eleventh and later ones are dropped. Then the view is refreshed.
void parse_plane_set(std::string_view bytes, PlaneTable& table);

/// Replaces the file by the table's text form; it is on the disk itself when the call returns.
void write_plane_set(FileSystem& files, std::string_view path, const PlaneTable& table);

/// Refills the table from a file.
void read_plane_set(FileSystem& files, std::string_view path, PlaneTable& table);

/// Writes the record of the installed aircraft set. The window hides `SaveFrame` afterwards.
void SavePS(const GameFolder& game, const PlaneTable& table);

}  // namespace vorlund
