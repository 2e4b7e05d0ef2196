// Beats while the bytes of files are compared or copied, so that a long file does not stop the painting.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

namespace vorlund {

/// Calls a function each time that another 1 MiB has been worked through, across files.
class Pulse {
 public:
  static constexpr std::uint64_t kBytes = 1 << 20;

  void set(std::function<void()> beat) { beat_ = std::move(beat); }

  void worked_through(std::uint64_t bytes) {
    since_beat_ += bytes;
    if (since_beat_ < kBytes) return;
    since_beat_ = 0;
    if (beat_) beat_();
  }

 private:
  std::function<void()> beat_;
  std::uint64_t since_beat_ = 0;
};

}  // namespace vorlund
