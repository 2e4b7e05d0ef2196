// Masks and order.
#include "disk/listing.h"

#include <algorithm>

#include "base/text.h"
#include "base/utf8.h"

namespace vorlund {

namespace {

constexpr std::string_view kEveryFile = "*.*";

/// True when the characters at both positions are the same without regard to case; moves past them.
bool match_one(std::string_view name, std::size_t& in_name, std::string_view mask, std::size_t& in_mask) {
  const char32_t wanted = next_character(mask, in_mask);
  const char32_t found = next_character(name, in_name);
  return wanted == U'?' || upper_character(wanted) == upper_character(found);
}

/// Each "*" first stands for nothing and takes one character more whenever what follows does not match.
bool matches_mask(std::string_view name, std::string_view mask) {
  std::size_t in_name = 0;
  std::size_t in_mask = 0;
  std::size_t after_star = std::string_view::npos;
  std::size_t star_end = 0;
  while (in_name < name.size()) {
    if (in_mask < mask.size() && mask[in_mask] == '*') {
      after_star = ++in_mask;
      star_end = in_name;
    } else if (in_mask >= mask.size() || !match_one(name, in_name, mask, in_mask)) {
      if (after_star == std::string_view::npos) return false;
      next_character(name, star_end);
      in_name = star_end;
      in_mask = after_star;
    }
  }
  return mask.find_first_not_of('*', in_mask) == std::string_view::npos;
}

template <typename Wanted>
std::vector<std::string> sorted_names(const std::vector<FolderEntry>& entries, Wanted wanted) {
  std::vector<std::string> names;
  for (const FolderEntry& entry : entries) {
    if (wanted(entry)) names.push_back(entry.name);
  }
  std::sort(names.begin(), names.end(), [](const auto& a, const auto& b) { return name_less(a, b); });
  return names;
}

}  // namespace

bool matches_pattern(std::string_view name, std::string_view pattern) {
  for (;;) {
    const std::size_t end = pattern.find(';');
    const std::string_view mask = pattern.substr(0, end);
    if (mask == kEveryFile || (!mask.empty() && matches_mask(name, mask))) return true;
    if (end == std::string_view::npos) return false;
    pattern.remove_prefix(end + 1);
  }
}

std::vector<std::string> list_files(FileSystem& files, std::string_view folder, std::string_view pattern) {
  return matching_files(files.entries(folder), pattern);
}

std::vector<std::string> matching_files(const std::vector<FolderEntry>& entries, std::string_view pattern) {
  return sorted_names(entries, [pattern](const FolderEntry& entry) {
    return entry.kind == EntryKind::kFile && !entry.hidden && matches_pattern(entry.name, pattern);
  });
}

std::vector<std::string> list_folders(FileSystem& files, std::string_view folder) {
  return sorted_names(files.entries(folder),
                      [](const FolderEntry& entry) { return entry.kind == EntryKind::kFolder; });
}

}  // namespace vorlund
