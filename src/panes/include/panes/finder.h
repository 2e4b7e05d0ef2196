// Finding entries by typing: what was typed into a list, a sheet or the group labels.
#pragma once

#include <string>
#include <string_view>

namespace vorlund {

/// Filters what is shown of a list, as `NameFilter` says; the entries keep their indices.
struct Finder {
  std::string typed;

  void add(std::string_view text) { typed += text; }

  /// Takes the last character back.
  void erase_last();

  /// Everything is shown again; true when something had been typed.
  bool clear();
};

}  // namespace vorlund
