// Fuzzes the reader of "pnames.str": always thirty names, and what is written of them reads back.
#include "aircraft/pilot_names.h"
#include "base/code_page.h"
#include "base/text.h"
#include "surroundings.h"

using namespace vorlund;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::run_action([&] {
    std::vector<std::string> names = parse_pilot_names(fuzz::as_bytes(data, size), "pnames.str");
    fuzz::require(names.size() == 30);
    for (std::string& name : names) name = trimmed(name);
    fuzz::require(parse_pilot_names(compose_pilot_names(names, "pnames.str"), "pnames.str") == names);
  });
  return 0;
}
