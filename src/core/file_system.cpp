// What all file systems share: the span of an action and the name of a file that is being written.
#include "core/file_system.h"

#include <utility>

#include "core/text.h"

namespace vorlund {

FileSystem::Action::Action(FileSystem& files, Pulse pulse, std::string_view staging) : files_(files) {
  files_.begin_action(std::move(pulse), staging);
}

FileSystem::Action::~Action() {
  files_.end_action();
}

std::string_view neighbour_name(std::string_view target) {
  constexpr std::string_view kUsual = "~vorlund.bak";
  constexpr std::string_view kOther = "~vorlund2.bak";
  return same_name(target, kUsual) ? kOther : kUsual;
}

}  // namespace vorlund
