// Fuzzes the reader of loader patches.
#include "gamesets/loader_patch.h"
#include "support/text_reader.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Kept from run to run: filling it with zeros up to a far offset each time would take all of the time.
  static PatchedBytes executable("MZ");
  test::TextReader patch(fuzz::as_bytes(data, size));
  Status unseen;
  apply_loader_patch(patch, unseen, executable);
  fuzz::require(executable.bytes().size() <= (std::size_t{1} << 24));
  return 0;
}
