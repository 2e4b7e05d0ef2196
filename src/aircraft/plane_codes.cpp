// The thirty codes in the game's order of records.
#include "aircraft/plane_codes.h"

#include "core/text.h"

namespace vorlund {

PlaneCodes PlaneCodeSet() {
  return {"p38h", "p38j", "p47c", "p47d", "p51b", "p51d", "bb17", "b24a", "b26a", "hurr",
          "sp2a", "sp09", "sp14", "typh", "temp", "mosq", "109e", "109g", "109k", "110c",
          "110g", "m410", "190a", "190d", "262a", "j88a", "j88c", "ju87", "h111", "v1v1"};
}

int plane_code_index(std::string_view code) {
  static const PlaneCodes codes = PlaneCodeSet();
  for (std::size_t index = 0; index < codes.size(); ++index) {
    if (to_upper(codes[index]) == to_upper(code)) return static_cast<int>(index);
  }
  return -1;
}

}  // namespace vorlund
