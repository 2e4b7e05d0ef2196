// Finds names by what was typed: words, in any part of a name, whatever their case and accents.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorlund {

/// The text as names are searched: in upper case, letters without their accents, the sharp s as SS, ligatures
/// as the letters they join, combining marks left out. Latin, Greek and Cyrillic letters are taken; any other
/// character, and a byte that is no valid UTF-8, stays as it is.
[[nodiscard]] std::string searched_form(std::string_view text);

/// A name matches when each of the words that were typed stands somewhere in it; their order is free. Blanks
/// part the words, and with no word every name matches.
class NameFilter {
 public:
  NameFilter() = default;
  explicit NameFilter(std::string_view typed);

  [[nodiscard]] bool matches(std::string_view name) const;

 private:
  std::vector<std::string> words_;
};

/// The indices of the names that match, in ascending order.
template <class Names, class NameOf>
[[nodiscard]] std::vector<int> matching_indices(const NameFilter& filter, const Names& names,
                                                NameOf name_of) {
  std::vector<int> indices;
  int index = 0;
  for (const auto& entry : names) {
    if (filter.matches(name_of(entry))) indices.push_back(index);
    ++index;
  }
  return indices;
}

}  // namespace vorlund
