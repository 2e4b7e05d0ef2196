// Fuzzes the reader of game records; what was read must survive being written and read again.
#include "gamesets/game_record.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Surroundings surroundings;
  surroundings.write("\\in.txt", fuzz::as_bytes(data, size));
  GameTable table;
  read_game_set(surroundings.files, surroundings.game.path("\\in.txt"), table);
  const std::string out = surroundings.game.path("\\out.txt");
  write_game_set(surroundings.files, out, table);
  const std::string written = surroundings.files.read_file(out);
  GameTable again;
  read_game_set(surroundings.files, out, again);
  write_game_set(surroundings.files, out, again);
  fuzz::require(surroundings.files.read_file(out) == written);
  return 0;
}
