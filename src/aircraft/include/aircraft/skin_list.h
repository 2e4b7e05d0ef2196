// The skin list: which plane every skin of the store is made for, written anew at each start.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "disk/game_folder.h"

namespace vorlund {

// "SkinList.txt" holds one line for each skin folder: skin group, backslash, skin folder, backslash, plane
// code in upper case (or nothing where the folder's files name no plane), CR LF, in the code page. Lines
// stand in the order of the groups by name and, within a group, of the folders by name.

/// Replaces the skin list by what the skin store holds now. Only the first shape file of a folder counts, and
/// its first texture file where that named no plane. Without a skin store nothing is written. Each folder is
/// read once. The list is made anew at each start, so it is not flushed to the disk.
/// Opens no FileSystem::Action of its own: it is one step of start-up.
void MakeSkinList(const GameFolder& game);

/// The entries "group\folder" whose line ends in `slot`, four characters compared with exact case: the list
/// writes codes in upper case, so a slot in lower case finds nothing. `list` is the decoded text of a skin
/// list. Lines too short to hold more than a code (hand-edited ones) are passed over.
std::vector<std::string> skins_for_slot(std::string_view list, std::string_view slot);

}  // namespace vorlund
