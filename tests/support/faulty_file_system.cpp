// Counts operations and fails the one that was asked for.
#include "support/faulty_file_system.h"

#include <utility>

#include "base/action_error.h"
#include "support/left_over.h"

namespace vorlund::test {

namespace {

std::string_view reason(FaultKind kind) {
  if (kind == FaultKind::kNoRight) return "Permission denied";
  return kind == FaultKind::kDiskFull ? "No space left on device" : "Input/output error";
}

}  // namespace

void FaultyFileSystem::arm(const Fault& fault) {
  armed_ = true;
  fault_ = fault;
  operations_ = 0;
  failed_ = false;
  struck_operation_.clear();
}

void FaultyFileSystem::disarm() {
  armed_ = false;
}

bool FaultyFileSystem::before(const Operation& operation) {
  if (!armed_) return true;
  const bool writing = operation.effect == Effect::kWriting;
  const bool leaves_half = fault_.kind == FaultKind::kShortWrite || fault_.kind == FaultKind::kDiskFull;
  if (leaves_half && !writing) return true;
  ++operations_;
  const bool strikes =
      fault_.span == FaultSpan::kOnce ? operations_ == fault_.number : operations_ >= fault_.number;
  if (!strikes) return true;

  if (struck_operation_.empty()) struck_operation_ = operation.text;
  if (operation.effect == Effect::kQuestion && fault_.kind == FaultKind::kNoRight) return false;
  failed_ = true;
  if (leaves_half) leave_half(operation);
  throw ActionError("carry out", operation.text, reason(fault_.kind));
}

void FaultyFileSystem::begin_action(Pulse pulse, std::string_view staging) {
#ifndef _WIN32
  staging_ = staging;
#endif
  ForwardingFileSystem::begin_action(std::move(pulse), staging);
}

void FaultyFileSystem::end_action() {
  ForwardingFileSystem::end_action();
  staging_.clear();
}

void FaultyFileSystem::leave_half(const Operation& operation) {
  const bool copies = !operation.source.empty();
  const std::string bytes = copies ? inner().read_file(operation.source) : std::string(operation.bytes);
  const std::size_t name_begin = operation.target.find_last_of("\\/") + 1;
  const bool stages = copies && !staging_.empty();
  std::string neighbour = stages ? staging_ + "\\" : std::string(operation.target.substr(0, name_begin));
  neighbour += left_over_name();
  inner().replace_file(neighbour, std::string_view(bytes).substr(0, bytes.size() / 2), Durability::kCached);
}

}  // namespace vorlund::test
