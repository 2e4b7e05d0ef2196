// Finds the plane code in the names of a skin's files.
#include "aircraft/skin_code.h"

#include "base/text.h"
#include "disk/listing.h"

namespace vorlund {

std::string first_file_code(const std::vector<FolderEntry>& entries, std::string_view pattern) {
  const std::string* first = nullptr;
  for (const FolderEntry& entry : entries) {
    if (entry.kind != EntryKind::kFile || entry.hidden || !matches_pattern(entry.name, pattern)) continue;
    if (first == nullptr || name_less(entry.name, *first)) first = &entry.name;
  }
  return first == nullptr ? std::string() : to_upper(characters(*first, 1, 4));
}

}  // namespace vorlund
