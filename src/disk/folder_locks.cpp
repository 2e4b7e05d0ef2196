// Takes several locks as one.
#include "disk/folder_locks.h"

#include <algorithm>
#include <set>
#include <thread>
#include <utility>

namespace vorlund {

namespace {

constexpr std::chrono::milliseconds kStep{20};

}  // namespace

FolderLock::FolderLock(std::string path, std::string identity)
    : path_(std::move(path)), identity_(std::move(identity)) {}

FolderLocks::FolderLocks(std::vector<std::unique_ptr<FolderLock>> locks, std::chrono::milliseconds wait)
    : locks_(std::move(locks)) {
  using Clock = std::chrono::steady_clock;
  std::set<std::string> seen;
  std::erase_if(locks_, [&seen](const auto& lock) { return !seen.insert(lock->identity()).second; });

  const Clock::time_point end = Clock::now() + wait;
  while (!take_all() && Clock::now() < end) {
    std::this_thread::sleep_until(std::min<Clock::time_point>(end, Clock::now() + kStep));
  }
  if (!in_use_.empty()) locks_.clear();
  for (const auto& lock : locks_) lock->delete_left_overs();
}

/// Those that were taken before one in use was met are given up again: two programs that each hold what the
/// other one waits for would wait for ever.
bool FolderLocks::take_all() {
  in_use_.clear();
  for (auto at = locks_.begin(); at != locks_.end();) {
    switch ((*at)->take()) {
      case FolderLock::Outcome::kTaken:
        ++at;
        break;
      case FolderLock::Outcome::kNoLocks:
        if (without_locks_.empty()) without_locks_ = (*at)->path();
        at = locks_.erase(at);
        break;
      case FolderLock::Outcome::kInUse:
        in_use_ = (*at)->path();
        std::for_each(locks_.begin(), at, [](const auto& lock) { lock->let_go(); });
        return false;
    }
  }
  return true;
}

}  // namespace vorlund
