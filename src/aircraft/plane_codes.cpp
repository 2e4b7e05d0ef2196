// The thirty codes in the game's order of records.
#include "aircraft/plane_codes.h"

#include <algorithm>

#include "base/text.h"

namespace vorlund {

PlaneCodes PlaneCodeSet() {
  return {"p38h", "p38j", "p47c", "p47d", "p51b", "p51d", "bb17", "b24a", "b26a", "hurr",
          "sp2a", "sp09", "sp14", "typh", "temp", "mosq", "109e", "109g", "109k", "110c",
          "110g", "m410", "190a", "190d", "262a", "j88a", "j88c", "ju87", "h111", "v1v1"};
}

int plane_code_index(std::string_view code) {
  static const PlaneCodes upper_codes = [] {
    PlaneCodes codes = PlaneCodeSet();
    for (std::string& plane_code : codes) plane_code = to_upper(plane_code);
    return codes;
  }();
  const auto found = std::find(upper_codes.begin(), upper_codes.end(), to_upper(code));
  return found == upper_codes.end() ? -1 : static_cast<int>(found - upper_codes.begin());
}

}  // namespace vorlund
