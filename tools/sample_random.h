// The tool's own generator of repeatable chance: the same seed gives the same sample folder everywhere.
#pragma once

#include <cstdint>
#include <string_view>

namespace vorlund::sample {

/// SplitMix64.
class Random {
 public:
  /// Seeded by a name, so that what is made for it does not depend on what was made before: FNV-1a.
  explicit Random(std::string_view name) {
    for (const char character : name) {
      state_ = (state_ ^ static_cast<unsigned char>(character)) * 0x100000001B3u;
    }
  }

  std::uint64_t next() {
    state_ += 0x9E3779B97F4A7C15u;
    std::uint64_t value = state_;
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9u;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBu;
    return value ^ (value >> 31);
  }

  /// A whole number from `low` to `high`, both included.
  int between(int low, int high) {
    const auto range = static_cast<std::uint64_t>(static_cast<std::int64_t>(high) - low + 1);
    return low + static_cast<int>(next() % range);
  }

 private:
  std::uint64_t state_ = 0xCBF29CE484222325u;
};

}  // namespace vorlund::sample
