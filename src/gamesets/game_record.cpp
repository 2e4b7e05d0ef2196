// Writes and reads the text form of the game table.
#include "gamesets/game_record.h"

#include <string>

#include "base/action_error.h"
#include "base/code_page.h"
#include "disk/store.h"

namespace vorlund {

void write_game_set(FileSystem& files, std::string_view path, const GameTable& table) {
  std::string text;
  for (int row = 0; row < table.row_count(); ++row) {
    text += table.cell(row, GameTable::kGroup);
    text += '\t';
    text += table.cell(row, GameTable::kFolder);
    text += "\r\n";
  }
  files.replace_file(path, encode_text(text), Durability::kFlushed);
}

void read_game_set(FileSystem& files, std::string_view path, GameTable& table) {
  within_memory("read", path, [&] {
    const std::string bytes = files.read_file(path);
    table.clear();
    table.add_lines(bytes);
    table.g2update();
  });
}

void SaveGS(const GameFolder& game, const GameTable& table) {
  write_game_set(game.files, game.path(kCurrentGameSet), table);
}

}  // namespace vorlund
