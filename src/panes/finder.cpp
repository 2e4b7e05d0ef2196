// Changes of what was typed.
#include "panes/finder.h"

#include "base/text.h"

namespace vorlund {

void Finder::erase_last() {
  const std::size_t count = character_count(typed);
  typed = characters(typed, 0, count > 0 ? count - 1 : 0);
}

bool Finder::clear() {
  const bool any = !typed.empty();
  typed.clear();
  return any;
}

}  // namespace vorlund
