// Writes and reads the text form of an aircraft set.
#include "aircraft/plane_record.h"

#include "base/action_error.h"
#include "base/code_page.h"
#include "base/text.h"
#include "disk/store.h"

namespace vorlund {

std::string compose_plane_set(const PlaneTable& table) {
  std::string text = table.flight_model_group + "\r\n";
  for (int row = 0; row < PlaneTable::kRows; ++row) {
    for (int column = 0; column < PlaneTable::kColumns - 1; ++column) {
      text += table.cell(row, column);
      text += '\t';
    }
    text += table.cell(row, PlaneTable::kColumns - 1);
    text += "\r\n";
  }
  return encode_text(text);
}

void parse_plane_set(std::string_view bytes, PlaneTable& table) {
  table.flight_model_group = decode_text(take_line(bytes));
  table.clear();
  table.add_lines(bytes);
  table.g1update();
}

void write_plane_set(FileSystem& files, std::string_view path, const PlaneTable& table) {
  files.replace_file(path, compose_plane_set(table), Durability::kFlushed);
}

void read_plane_set(FileSystem& files, std::string_view path, PlaneTable& table) {
  within_memory("read", path, [&] { parse_plane_set(files.read_file(path), table); });
}

void SavePS(const GameFolder& game, const PlaneTable& table) {
  write_plane_set(game.files, game.path(kCurrentPlaneSet), table);
}

}  // namespace vorlund
