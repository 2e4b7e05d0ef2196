// Takes the files apart as their writers compose them.
#include "aircraft/own_files.h"

#include <algorithm>
#include <array>
#include <map>

#include "aircraft/loadout_data.h"
#include "aircraft/pilot_names.h"
#include "aircraft/plane_codes.h"
#include "base/action_error.h"
#include "base/code_page.h"
#include "base/text.h"

namespace vorlund {

namespace {

constexpr std::size_t kPlanesHeader = 4;
constexpr std::size_t kRecord = 216;
constexpr std::size_t kFlags = 4;
constexpr std::size_t kSide = 5;
constexpr std::size_t kFuel = 36;
constexpr std::size_t kSlotCode = 164;
constexpr std::size_t kSlotLength = 4;
constexpr std::size_t kSecondArea = 7928;
constexpr std::size_t kSecondBlock = 60;

/// Bytes of a block, zeros past the end of the file.
std::string block(std::string_view bytes, std::size_t begin, std::size_t length) {
  std::string taken(bytes.substr(std::min(begin, bytes.size()), length));
  taken.resize(length, '\0');
  return taken;
}

std::size_t count_differences(std::string_view a, std::string_view b) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < a.size(); ++at) count += a[at] == b[at] ? 0 : 1;
  return count;
}

std::string bytes_differ(std::size_t count, std::string_view other) {
  return std::to_string(count).append(other).append(count == 1 ? " byte differs" : " bytes differ");
}

void add(std::string& state, const std::string& difference) {
  state.append(state.empty() ? "" : "; ").append(difference);
}

/// One record of Planes.dat as far as the program gives its bytes a meaning.
class PlaneRecord {
 public:
  explicit PlaneRecord(std::string bytes) : bytes_(std::move(bytes)) {}

  [[nodiscard]] std::string slot() const { return decode_text(bytes_.substr(kSlotCode, kSlotLength)); }
  [[nodiscard]] std::string side() const {
    if ((byte(kFlags) & 0x80) != 0) return "German";
    const int code = byte(kSide) & 3;
    return code == 2 ? "American" : code == 3 ? "Allied" : "British";
  }
  [[nodiscard]] std::string role() const {
    constexpr std::array<std::string_view, 4> kRoles = {"none", "Fighter", "Bomber", "F/B"};
    return std::string(kRoles[static_cast<std::size_t>(byte(kFlags) & 3)]);
  }
  [[nodiscard]] std::string flyable() const { return (byte(kFlags) & 4) != 0 ? "Yes" : "No"; }
  [[nodiscard]] std::string fuel() const { return std::to_string(byte(kFuel) + 256 * byte(kFuel + 1)); }

  /// The bytes without those that the functions above tell of.
  [[nodiscard]] std::string others() const {
    std::string kept = bytes_;
    for (std::size_t at = 0; at < kSlotLength; ++at) kept[kSlotCode + at] = '\0';
    kept[kFuel] = kept[kFuel + 1] = '\0';
    kept[kFlags] = static_cast<char>(byte(kFlags) & 0x78);
    kept[kSide] = static_cast<char>(byte(kSide) & 0xFC);
    return kept;
  }

  [[nodiscard]] const std::string& bytes() const { return bytes_; }

 private:
  [[nodiscard]] int byte(std::size_t at) const { return static_cast<unsigned char>(bytes_[at]); }

  std::string bytes_;
};

std::string difference(const PlaneRecord& today, const PlaneRecord& then, const std::string& chosen_side) {
  if (today.bytes() == then.bytes()) return {};
  std::string state;
  const auto compare = [&state](const char* what, const std::string& is, const std::string& chosen) {
    if (is != chosen)
      add(state, std::string(what).append(" is ").append(is).append(", chosen ").append(chosen));
  };
  compare("slot", today.slot(), then.slot());
  // The side byte of British aircraft carries their role: what was chosen is what the table says.
  if (today.side() != then.side())
    compare("side", today.side(), chosen_side.empty() ? then.side() : chosen_side);
  compare("role", today.role(), then.role());
  compare("flyable", today.flyable(), then.flyable());
  compare("fuel", today.fuel(), then.fuel());
  const std::size_t others = count_differences(today.others(), then.others());
  if (others > 0 || state.empty())
    add(state, bytes_differ(std::max<std::size_t>(others, 1), state.empty() ? "" : " other"));
  return state;
}

/// Row of the slot that a record number was chosen for, the last of several.
std::map<int, int> slots_by_record(const PlaneTable& table) {
  std::map<int, int> slots;
  for (const int row : table.shown_slots()) {
    if (!table.is_used(row)) continue;
    try {
      slots[table.record_number(row)] = row;
    } catch (const ActionError&) {
      continue;  // what is no record number is told of where the installation stops
    }
  }
  return slots;
}

std::string record_name(const PlaneTable& table, const std::map<int, int>& slots, int record) {
  const auto chosen = slots.find(record);
  std::string name = "record " + std::to_string(record);
  if (chosen != slots.end()) name += ", slot " + table.cell(chosen->second, PlaneTable::kSlot);
  return name;
}

std::string name_difference(const std::string& today, const std::string& then) {
  if (today == then) return {};
  return "is " + quoted(today) + ", chosen " + quoted(then);
}

}  // namespace

std::vector<OwnFileEntry> compare_planes_data(std::string_view today, std::string_view then,
                                              const PlaneTable& table) {
  std::vector<OwnFileEntry> entries;
  const std::map<int, int> slots = slots_by_record(table);
  for (int record = 0; record < kPlaneCount; ++record) {
    const std::size_t begin = kPlanesHeader + kRecord * static_cast<std::size_t>(record);
    const auto chosen = slots.find(record);
    const std::string side =
        chosen == slots.end() ? std::string() : table.cell(chosen->second, PlaneTable::kSide);
    const std::string state =
        difference(PlaneRecord(block(today, begin, kRecord)), PlaneRecord(block(then, begin, kRecord)), side);
    if (chosen != slots.end() || !state.empty())
      entries.push_back({record_name(table, slots, record), state});
  }
  return entries;
}

std::vector<OwnFileEntry> compare_loadout_data(std::string_view today, std::string_view then,
                                               const PlaneTable& table) {
  std::vector<OwnFileEntry> entries;
  const std::map<int, int> slots = slots_by_record(table);
  for (int record = 0; record < kPlaneCount; ++record) {
    const auto index = static_cast<std::size_t>(record);
    const auto begin = static_cast<std::size_t>(kLoadoutOffsets[index] - 1);
    const std::size_t end =
        record + 1 < kPlaneCount ? static_cast<std::size_t>(kLoadoutOffsets[index + 1] - 1) : kSecondArea;
    const std::size_t second = kSecondArea + kSecondBlock * index;
    const std::size_t count =
        count_differences(block(today, begin, end - begin), block(then, begin, end - begin)) +
        count_differences(block(today, second, kSecondBlock), block(then, second, kSecondBlock));
    if (!slots.contains(record) && count == 0) continue;
    entries.push_back({record_name(table, slots, record), count == 0 ? "" : bytes_differ(count, "")});
  }
  return entries;
}

std::vector<OwnFileEntry> compare_pilot_names(std::string_view today, std::string_view then) try {
  std::vector<OwnFileEntry> entries;
  const std::vector<std::string> is = parse_pilot_names(today, "pnames.str");
  const std::vector<std::string> chosen = parse_pilot_names(then, "pnames.str");
  for (std::size_t index = 0; index < chosen.size(); ++index) {
    entries.push_back({"name " + std::to_string(index), name_difference(is[index], chosen[index])});
  }
  return entries;
} catch (const ActionError& error) {
  return {{"the whole file", error.what()}};
}

std::vector<OwnFileEntry> compare_picture_menu(std::string_view today, std::string_view then,
                                               Country country) {
  PictureMenu is;
  PictureMenu chosen;
  parse_picture_menu(today, country, is);
  parse_picture_menu(then, country, chosen);
  std::vector<OwnFileEntry> entries;
  for (std::size_t index = 0; index < picture_menu_entries(country); ++index) {
    entries.push_back({"entry " + std::to_string(index + 1),
                       name_difference(is.entries[index].name, chosen.entries[index].name)});
  }
  return entries;
}

}  // namespace vorlund
