// Writes the store of the sample folder and installs its current sets.
#include <algorithm>
#include <string>
#include <vector>

#include "base/text.h"
#include "sample_data.h"
#include "sample_flight_models.h"
#include "sample_folder.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

constexpr std::string_view kGameStore = "GameStore/";
constexpr std::string_view kSkinStore = "SkinStore/";
constexpr char kCurrentGameSet[] = "CurrentGameSet.txt";
constexpr char kCurrentPlaneSet[] = "CurrentPlaneSet.txt";

bool ends_in(std::string_view name, std::string_view ending) {
  return same_name(last_characters(name, ending.size()), ending);
}

/// A loader patch: for each run of bytes the offsets of its first and last byte, 3 bytes each with the low
/// one first, and the bytes.
std::string loader_patch(const std::string& seed) {
  Random random(seed);
  std::string patch;
  for (int runs = random.between(1, 5); runs > 0; --runs) {
    const int first = random.between(0x4000, 0x180000);
    const int last = first + random.between(0, 23);
    for (const int offset : {first, last}) {
      for (int shift = 0; shift < 24; shift += 8) {
        patch += static_cast<char>(offset >> shift & 0xFF);
      }
    }
    for (int at = first; at <= last; ++at) {
      patch += static_cast<char>(random.between(0, 255));
    }
  }
  return patch;
}

/// What a file of a folder holds; the files of a folder of thousands are small.
std::string content_of(const StoreEntry& entry, const std::string& name) {
  const std::string seed = entry.path + "/" + name;
  if (ends_in(name, ".LDR")) {
    return loader_patch(seed);
  }
  if (ends_in(name, ".txt")) {
    return "See contents.txt. Thank you for flying.\r\n";
  }
  if (ends_in(name, ".bat")) {
    return "@echo off\r\ncopy Trail2.xpc Trail2.tpc\r\n";
  }
  return made_content(seed, entry.files.size() > 500 ? 1600 : 24000);
}

void write_folder(SampleFolder& folder, const StoreEntry& entry) {
  const std::string path = "~Vorlund/" + entry.path + "/";
  std::string description;
  for (const std::string& line : entry.lines) {
    description += line + "\n";
  }
  folder.text(path + "contents.txt", description);
  for (const std::string& name : entry.files) {
    folder.file(path + name, content_of(entry, name));
  }
  if (!entry.picture.empty()) {
    folder.file(path + entry.picture, picture_bytes(entry.motif, entry.picture));
  }
}

/// Lines of a game-set record: the rows of the last group come one by one, the others have a row each, filled
/// or not.
std::string game_rows(const StoreEntry& record) {
  std::vector<std::string> groups;
  for (const StoreEntry& entry : store_entries()) {
    const std::string below = entry.path.substr(entry.path.find('/') + 1);
    const std::string group = below.substr(0, below.find('/'));
    if (entry.is_in(kGameStore) && (groups.empty() || groups.back() != group)) {
      groups.push_back(group);
    }
  }
  std::string lines = "Folder group\tFolder name\n";
  for (const std::string& group : groups) {
    std::string rows;
    for (const std::string& chosen : record.lines) {
      if (chosen.starts_with(group + "/")) {
        rows += group + "\t" + chosen.substr(group.size() + 1) + "\n";
      }
    }
    lines += rows.empty() && group != groups.back() ? group + "\t\n" : rows;
  }
  return lines;
}

/// A line of an aircraft set: an aircraft's code, its fuel, and its folder of skins.
struct Row {
  std::string code;
  std::string fuel;
  std::string skin;
};

std::vector<Row> rows_of(const StoreEntry& record) {
  std::vector<Row> rows;
  for (const std::string& line : record.lines) {
    const std::size_t blank = line.find(' ', 5);
    rows.push_back({line.substr(0, 4), line.substr(5, blank - 5), line.substr(blank + 1)});
  }
  return rows;
}

/// Lines of an aircraft-set record.
std::string aircraft_rows(const StoreEntry& record) {
  std::string lines(kStandardGroup);
  lines += "\nSlot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel %\n";
  for (std::size_t number = 0; number < aircraft_types().size(); ++number) {
    const AircraftType& type = aircraft_types()[number];
    std::string cells(9, '\t');
    for (const Row& row : rows_of(record)) {
      if (row.code == type.code) {
        const std::size_t slash = row.skin.find('/');
        cells = "\t" + row.skin.substr(0, slash) + "\t" + row.skin.substr(slash + 1) + "\t" +
                std::to_string(number) + "\t" + type.name + "\t" + type.name + "\t" + type.side + "\t" +
                type.flyable + "\t" + type.role + "\t" + row.fuel;
      }
    }
    lines += type.code + cells + "\n";
  }
  return lines;
}

void install(SampleFolder& folder, const StoreEntry& entry) {
  static constexpr std::string_view kStays[] = {".LDR", ".PCX", ".BAT", ".TAB", ".TXT"};
  for (const std::string& name : entry.files) {
    if (std::ranges::any_of(kStays, [&](std::string_view ending) { return ends_in(name, ending); })) {
      continue;
    }
    const bool saved = ends_in(name, ".MSN") || ends_in(name, ".SVE");
    const std::string target = saved ? "Savedata/" : ends_in(name, ".BGM") ? "Music/" : "";
    folder.file(target + name, content_of(entry, name));
  }
}

}  // namespace

void write_store(SampleFolder& folder) {
  folder.file("~Vorlund/Fr2Pic", picture_bytes("window", "Fr2Pic"));
  folder.file("~Vorlund/FormPic", picture_bytes("pane", "FormPic"));
  folder.file("~Vorlund/SelPic", picture_bytes("none", "SelPic"));
  for (const StoreEntry& entry : store_entries()) {
    if (entry.is_in(kGameStore) || entry.is_in(kSkinStore)) {
      write_folder(folder, entry);
    } else {
      const bool of_game = entry.is_in("GameSetFiles/") || entry.is_in(kCurrentGameSet);
      folder.text("~Vorlund/" + entry.path, of_game ? game_rows(entry) : aircraft_rows(entry));
    }
  }
}

void write_installed(SampleFolder& folder) {
  for (const std::string& line : store_entry(kCurrentGameSet).lines) {
    install(folder, store_entry(std::string(kGameStore) + line));
  }
  for (const auto& [name, bytes] : group_files(kStandardGroup)) {
    folder.file(name, bytes);
  }
  for (const Row& row : rows_of(store_entry(kCurrentPlaneSet))) {
    const auto type = std::ranges::find(aircraft_types(), row.code, &AircraftType::code);
    const auto record = static_cast<std::size_t>(type - aircraft_types().begin());
    folder.file(row.code + ".flt", flight_file(record, kStandardGroup));
    install(folder, store_entry(std::string(kSkinStore) + row.skin));
  }
}

}  // namespace vorlund::sample
