// Fuzzes the readers of ".lo1" and ".lo2" files. The first byte of the input chooses the record number.
#include "aircraft/loadout_data.h"
#include "disk/store.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static fuzz::Surroundings surroundings;
  static const PlaneTable slots;
  const std::string_view text = fuzz::as_bytes(data + 1, size - 1);
  surroundings.write("\\Model\\guns.lo1", text);
  surroundings.write("\\Model\\bombs.lo2", text);
  surroundings.remove(kLoadoutData);
  PlaneTable table = slots;
  table.set_cell(1, PlaneTable::kRecordNumber, std::to_string(data[0] % 34 - 1));
  fuzz::run_action([&] {
    PatchedFile loadouts(surroundings.files, surroundings.game.path(kLoadoutData));
    loadouts.patch(
        [&] { LoadOutWrite(surroundings.game, table, 1, surroundings.game.path("\\Model"), loadouts); });
  });
  return 0;
}
