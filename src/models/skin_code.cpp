// Finds the plane code in the names of a skin's files.
#include "models/skin_code.h"

#include <algorithm>

#include "aircraft/plane_codes.h"
#include "core/listing.h"
#include "core/text.h"

namespace vorlund {

std::string first_file_code(const std::vector<FolderEntry>& entries, std::string_view pattern) {
  const std::string* first = nullptr;
  for (const FolderEntry& entry : entries) {
    if (entry.kind != EntryKind::kFile || entry.hidden || !matches_pattern(entry.name, pattern)) continue;
    if (first == nullptr || name_less(entry.name, *first)) first = &entry.name;
  }
  return first == nullptr ? std::string() : to_upper(characters(*first, 1, 4));
}

int plane_number(std::string_view code) {
  static const PlaneCodes upper_codes = [] {
    PlaneCodes codes = PlaneCodeSet();
    for (std::string& plane_code : codes) plane_code = to_upper(plane_code);
    return codes;
  }();
  const auto found = std::find(upper_codes.begin(), upper_codes.end(), to_upper(code));
  return found == upper_codes.end() ? -1 : static_cast<int>(found - upper_codes.begin());
}

}  // namespace vorlund
