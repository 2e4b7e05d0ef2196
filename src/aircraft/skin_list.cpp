// Writes the skin list from the skin store and finds a slot's skins in it.
#include "aircraft/skin_list.h"

#include "aircraft/plane_codes.h"
#include "aircraft/skin_code.h"
#include "base/code_page.h"
#include "base/text.h"
#include "disk/listing.h"
#include "disk/store.h"

namespace vorlund {

namespace {

constexpr std::string_view kStoreName = "SkinStore";
constexpr std::size_t kCodeLength = 4;
constexpr std::size_t kTailLength = kCodeLength + 1;  // the backslash and the code

/// Code of the plane that the folder's files are made for; "" when they name none.
std::string skin_code(const std::vector<FolderEntry>& entries) {
  for (const std::string_view pattern : {kShapePattern, kTexturePattern}) {
    std::string code = first_file_code(entries, pattern);
    if (plane_code_index(code) >= 0) return code;
  }
  return {};
}

/// What follows the first "SkinStore\" of the path: deliberately the first, so a game directory that holds
/// the word itself gives names that begin inside it.
std::string_view relative_name(std::string_view path) {
  return path.substr(path.find(kStoreName) + kStoreName.size() + 1);
}

/// False for a name that would break its line in two. Only disks other than the game's allow such names.
bool fits_line(std::string_view name) {
  return name.find_first_of("\r\n") == std::string_view::npos;
}

}  // namespace

void MakeSkinList(const GameFolder& game) {
  FileSystem& files = game.files;
  const std::string store = game.path(kSkinStore);
  if (!files.FolderExists(store)) return;
  std::string list;
  for (const std::string& group : list_folders(files, store)) {
    const std::string group_path = store + "\\" + group;
    for (const std::string& folder : list_folders(files, group_path)) {
      const std::string path = group_path + "\\" + folder;
      const std::string_view name = relative_name(path);
      if (!fits_line(name)) continue;
      list.append(name).append("\\").append(skin_code(files.entries(path))).append("\r\n");
    }
  }
  files.replace_file(game.path(kSkinList), encode_text(list), Durability::kCached);
}

std::vector<std::string> skins_for_slot(std::string_view list, std::string_view slot) {
  std::vector<std::string> skins;
  for (const std::string_view line : split_lines(list)) {
    const std::size_t length = character_count(line);
    if (length <= kTailLength) continue;
    const std::string code = to_upper(last_characters(line, kCodeLength));
    if (code == slot) skins.push_back(characters(line, 0, length - kTailLength));
  }
  return skins;
}

}  // namespace vorlund
