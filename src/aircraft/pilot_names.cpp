// Composes and reads the game's name file.
#include "aircraft/pilot_names.h"

#include <algorithm>
#include <utility>

#include "aircraft/plane_codes.h"
#include "base/action_error.h"
#include "base/code_page.h"
#include "base/text.h"
#include "disk/patch_file.h"
#include "disk/store.h"

namespace vorlund {

namespace {

constexpr std::size_t kTable = 8;  // offset of the position table; positions are counted from here
constexpr std::size_t kNames = static_cast<std::size_t>(kPlaneCount);
constexpr std::size_t kFirstPosition = 4 * kNames;
static_assert(kTable + kFirstPosition == 128, "the offset of the first name in the game's own pnames.str");
constexpr int kSignedLimit = 32768;
constexpr std::uint64_t kLongestRead = 128 << 10;  // past every position that a field can hold

std::string two_bytes_padded(std::size_t value) {
  return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF), '\0', '\0'};
}

/// A 16-bit field. Bytes past the end of a short file read as 0.
int field(std::string_view bytes, std::size_t offset, std::string_view path) {
  const auto byte = [&](std::size_t at) {
    return at < bytes.size() ? static_cast<int>(static_cast<unsigned char>(bytes[at])) : 0;
  };
  const int value = byte(offset) + 256 * byte(offset + 1);
  if (value >= kSignedLimit) {
    throw ActionError("read the field at offset " + std::to_string(offset) + " of", path,
                      "overflow: " + std::to_string(value) + " does not fit in 16 signed bits");
  }
  return value;
}

}  // namespace

std::string compose_pilot_names(const std::vector<std::string>& names, std::string_view path) {
  std::string positions;
  std::string strings;
  for (std::size_t index = 0; index < kNames; ++index) {
    positions += two_bytes_padded(kFirstPosition + strings.size());
    if (index < names.size()) strings += encode_text(names[index]);
    strings += '\0';
  }
  const std::size_t length = positions.size() + strings.size();
  if (length >= kSignedLimit) {
    throw ActionError("write", path,
                      "overflow: names of " + std::to_string(length) + " bytes do not fit in 16 signed bits");
  }
  return two_bytes_padded(length) + two_bytes_padded(kNames) + positions + strings;
}

std::vector<std::string> parse_pilot_names(std::string_view bytes, std::string_view path) {
  field(bytes, 0, path);
  const auto count = static_cast<std::size_t>(field(bytes, 4, path));
  std::vector<std::string> names(kNames);
  for (std::size_t index = 0; index < std::min(count, kNames); ++index) {
    const std::size_t entry = kTable + 4 * index;
    if (entry + 2 > bytes.size()) break;
    const std::size_t start = kTable + static_cast<std::size_t>(field(bytes, entry, path));
    if (start >= bytes.size()) continue;
    names[index] = decode_text(bytes.substr(start, bytes.find('\0', start) - start));
  }
  return names;
}

std::string PilotNames::name(int record) const {
  const bool held = record >= 0 && static_cast<std::size_t>(record) < PNameList.size();
  if (!held) return {};
  return PNameList[static_cast<std::size_t>(record)];
}

void PilotNames::set_name(int record, std::string name) {
  PNameList.resize(kNames);
  PNameList.at(static_cast<std::size_t>(record)) = std::move(name);
}

void PilotNames::LoadPnames(const GameFolder& game) {
  const std::string path = game.path(kPilotNames);
  if (!game.files.is_there(path)) return;
  PNameList = parse_pilot_names(game.files.read_file(path, kLongestRead), path);
}

void PilotNames::SavePnames(const GameFolder& game) {
  const std::string path = game.path(kPilotNames);
  if (!game.files.FileExists(path)) return;
  PNameList.resize(kNames);
  for (std::string& name : PNameList) name = trimmed(name);
  game.files.replace_file(path, compose_pilot_names(PNameList, path), Durability::kFlushed);
}

}  // namespace vorlund
