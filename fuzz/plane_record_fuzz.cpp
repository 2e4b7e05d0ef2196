// Fuzzes the reader of aircraft records; what was read must survive being written and read again.
#include "aircraft/plane_record.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  PlaneTable table;
  parse_plane_set(fuzz::as_bytes(data, size), table);
  for (int row = 1; row < table.row_count(); ++row) {
    fuzz::run_action([&] { static_cast<void>(table.record_number(row)); });
  }
  const std::string written = compose_plane_set(table);
  PlaneTable again;
  parse_plane_set(written, again);
  fuzz::require(compose_plane_set(again) == written);
  return 0;
}
