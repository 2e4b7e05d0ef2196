// Keeps the log of operations.
#include "support/recording_file_system.h"

#include <utility>

namespace vorlund::test {

void RecordingFileSystem::clear() {
  log_.clear();
  changes_.clear();
}

bool RecordingFileSystem::before(const Operation& operation) {
  log_.push_back(operation.text);
  if (operation.effect == Effect::kWriting || operation.effect == Effect::kChanging) {
    changes_.push_back(operation.text);
  }
  return true;
}

void RecordingFileSystem::begin_action(Pulse pulse, std::string_view staging) {
  log_.emplace_back("begin action");
  ForwardingFileSystem::begin_action(std::move(pulse), staging);
}

void RecordingFileSystem::end_action() {
  log_.emplace_back("end action");
  ForwardingFileSystem::end_action();
}

}  // namespace vorlund::test
