// What all file systems share: reading a file whole, the span of an action, and the names of files that are
// being written.
#include "disk/file_system.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <new>
#include <stdexcept>
#include <utility>

#include "base/action_error.h"
#include "disk/process_number.h"

namespace vorlund {

namespace {

constexpr std::string_view kStagingBegin = "~vorlund-";
constexpr std::string_view kStagingEnd = ".bak";

/// Hexadecimal digits of a number of 32 bits.
constexpr std::size_t kMostDigits = 8;

std::string hexadecimal(std::uint32_t number) {
  std::array<char, kMostDigits> digits{};
  char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
  return {digits.data(), end};
}

/// Takes a number as `hexadecimal` spells it off the text; false where none stands at its beginning.
bool take_hexadecimal(std::string_view& text, std::uint32_t& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
  if (error != std::errc()) return false;
  const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.data()));
  text.remove_prefix(digits.size());
  return digits == hexadecimal(number);
}

/// The process that a staging name belongs to, with the letter of its platform; false for any other name.
bool take_staging_name(std::string_view name, char& platform, std::uint32_t& process) {
  if (!name.starts_with(kStagingBegin) || !name.ends_with(kStagingEnd)) return false;
  name.remove_prefix(kStagingBegin.size());
  name.remove_suffix(std::min(kStagingEnd.size(), name.size()));
  std::uint32_t attempt = 0;
  if (name.empty() || (name.front() != 'p' && name.front() != 'w')) return false;
  platform = name.front();
  name.remove_prefix(1);
  if (!take_hexadecimal(name, process) || !name.starts_with('-')) return false;
  name.remove_prefix(1);
  return take_hexadecimal(name, attempt) && name.empty();
}

}  // namespace

std::string FileSystem::read_file(std::string_view path, std::uint64_t limit) {
  return read_rest(*open_file(path), path, limit);
}

std::string read_rest(FileReader& file, std::string_view path, std::uint64_t limit) try {
  std::string bytes;
  // One byte more than the size is asked for, so that the end of the file is met in the first read.
  std::uint64_t step = std::min(limit, file.size() + 1);
  while (bytes.size() < limit) {
    const std::size_t done = bytes.size();
    bytes.resize(done + static_cast<std::size_t>(std::min(step, limit - done)));
    const std::size_t got = file.read(bytes.data() + done, bytes.size() - done);
    const bool ended = got < bytes.size() - done;
    bytes.resize(done + got);
    if (ended) break;
    step = 64 << 10;
  }
  return bytes;
} catch (const std::bad_alloc&) {
  throw ActionError("read", path, kOutOfMemory);
} catch (const std::length_error&) {
  throw ActionError("read", path, kOutOfMemory);
}

FileSystem::Action::Action(FileSystem& files, Pulse pulse, std::string_view staging) : files_(files) {
  files_.begin_action(std::move(pulse), staging);
}

FileSystem::Action::~Action() {
  files_.end_action();
}

std::string staging_name(unsigned attempt) {
  std::string name;
  name.reserve(kStagingBegin.size() + 2 * kMostDigits + kStagingEnd.size() + 2);
  name.append(kStagingBegin).append(1, kPlatformLetter).append(hexadecimal(own_process_number()));
  return name.append("-").append(hexadecimal(attempt)).append(kStagingEnd);
}

bool is_staging_name(std::string_view name) {
  char platform = 0;
  std::uint32_t process = 0;
  return take_staging_name(name, platform, process);
}

bool is_staging_name_of_another(std::string_view name) {
  char platform = 0;
  std::uint32_t process = 0;
  return take_staging_name(name, platform, process) && platform == kPlatformLetter &&
         process != own_process_number();
}

bool is_left_over(std::string_view name) {
  char platform = 0;
  std::uint32_t process = 0;
  return take_staging_name(name, platform, process) && platform == kPlatformLetter && !process_runs(process);
}

}  // namespace vorlund
