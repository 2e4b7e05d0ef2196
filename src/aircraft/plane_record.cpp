// Writes and reads the text form of an aircraft set.
#include "aircraft/plane_record.h"

#include <algorithm>
#include <vector>

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
  const std::string text = decode_text(bytes);
  const std::vector<std::string_view> lines = split_lines(text);
  const std::string_view group = lines.empty() ? std::string_view() : lines.front();
  table.flight_model_group = group;
  table.clear();
  for (std::size_t index = 1; index < lines.size(); ++index) {
    const std::vector<std::string_view> cells = split_cells(lines[index]);
    const std::size_t kept = std::min<std::size_t>(cells.size(), PlaneTable::kColumns);
    table.add_row({cells.begin(), cells.begin() + static_cast<std::ptrdiff_t>(kept)});
  }
  table.g1update();
}

void write_plane_set(FileSystem& files, std::string_view path, const PlaneTable& table) {
  files.replace_file(path, compose_plane_set(table), Durability::kFlushed);
}

void read_plane_set(FileSystem& files, std::string_view path, PlaneTable& table) {
  parse_plane_set(files.read_file(path), table);
}

void SavePS(const GameFolder& game, const PlaneTable& table) {
  write_plane_set(game.files, game.path(kCurrentPlaneSet), table);
}

}  // namespace vorlund
