// The game's own files in the sample folder.
#include "sample_game_files.h"

#include <array>
#include <vector>

#include "core/code_page.h"
#include "sample_aircraft.h"
#include "sample_flight_models.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

void add_16_bits(std::string& bytes, std::size_t value) {
  bytes += static_cast<char>(value & 0xFF);
  bytes += static_cast<char>(value >> 8 & 0xFF);
}

/// Planes.dat: a header of 4 bytes and 30 records of 216.
std::string planes_data() {
  std::string bytes("\x1E\0\0\0", 4);
  for (std::size_t record = 0; record < aircraft_types().size(); ++record) {
    const std::array<int, kFlightModelValues> values = flight_model_values(record, Variant::kStandard);
    for (const int value : values) {
      bytes += static_cast<char>(value);
    }
    Random random("Planes.dat " + std::to_string(record));
    while (bytes.size() < 4 + 216 * (record + 1)) {
      bytes += static_cast<char>(random.between(0, 255));
    }
  }
  return bytes;
}

/// loadout.dat: a header of 4 bytes, records of 44 bytes (7 or 3 an aircraft), and from 7928 on 5 records of
/// 12 bytes an aircraft. The first byte of every record is the aircraft's record number.
std::string loadout_data() {
  constexpr std::size_t kSecondArea = 7928;
  std::string bytes("\x1E\0\0\0", 4);
  for (std::size_t record = 0; record < aircraft_types().size(); ++record) {
    for (const int value : first_load_out_values(record, Variant::kStandard)) {
      bytes += static_cast<char>(value);
    }
  }
  bytes.resize(kSecondArea, '\0');
  for (std::size_t record = 0; record < aircraft_types().size(); ++record) {
    for (const int value : second_load_out_values(record, Variant::kStandard)) {
      bytes += static_cast<char>(value);
    }
  }
  return bytes;
}

/// pnames.str: length of what follows the first 8 bytes, number of names, a table of positions, and the
/// names.
std::string pilot_names() {
  std::string table;
  std::string names;
  for (const AircraftType& type : aircraft_types()) {
    add_16_bits(table, 120 + names.size());
    add_16_bits(table, 0);
    names += encode_text(type.name);
    names += '\0';
  }
  std::string bytes;
  add_16_bits(bytes, table.size() + names.size());
  add_16_bits(bytes, 0);
  add_16_bits(bytes, aircraft_types().size());
  add_16_bits(bytes, 0);
  return bytes + table + names;
}

/// A menu of aircraft pictures: a header of 35 bytes, then for each entry the length of its name with the
/// closing zero in 32 bits, the name, the zero, and a trailer of 15 bytes.
std::string picture_menu(std::string_view seed, const std::vector<std::size_t>& records,
                         const std::vector<std::string_view>& further) {
  Random random(seed);
  std::string bytes;
  while (bytes.size() < 35) {
    bytes += static_cast<char>(random.between(0, 255));
  }
  std::vector<std::string_view> names;
  for (const std::size_t record : records) {
    names.push_back(aircraft_types().at(record).name);
  }
  names.insert(names.end(), further.begin(), further.end());
  int place = 0;
  for (const std::string_view name : names) {
    const std::string spelled = encode_text(name);
    bytes += static_cast<char>(spelled.size() + 1);
    bytes.append(3, '\0');
    bytes += spelled + '\0';
    std::string trailer;
    add_16_bits(trailer, static_cast<std::size_t>(40));
    add_16_bits(trailer, static_cast<std::size_t>(60 + 34 * place));
    add_16_bits(trailer, static_cast<std::size_t>(220));
    add_16_bits(trailer, static_cast<std::size_t>(30));
    trailer += static_cast<char>(++place);
    trailer.resize(15, '\0');
    bytes += trailer;
  }
  return bytes;
}

}  // namespace

std::string game_program() {
  constexpr std::size_t kSize = 1'712'128;
  Random random(std::string_view("eaw.exe"));
  std::string bytes = "MZ";
  bytes.resize(0x3C, '\0');
  bytes.append(4, '\xFF');  // the place of the Windows header: far outside, so that nothing tries to run this
  bytes += "A file made for trying things out. It holds no program.";
  bytes.resize(0x1000, '\0');
  while (bytes.size() < kSize) {
    // Stretches as of code, of tables and of nothing.
    const int kind = random.between(0, 3);
    const auto value = static_cast<char>(random.between(0, 255));
    for (int count = random.between(64, 1024); count > 0; --count) {
      bytes += kind < 2                      ? static_cast<char>(random.next() & 0xFF)
               : kind == 2 && count % 4 != 0 ? value
                                             : '\0';
    }
  }
  bytes.resize(kSize);
  return bytes;
}

void write_game_files(SampleFolder& folder) {
  folder.file("eaw.exe", game_program());
  folder.file("Planes.dat", planes_data());
  folder.file("loadout.dat", loadout_data());
  folder.file("pnames.str", pilot_names());
  folder.file("picplnb.mnu",
              picture_menu("picplnb", {13, 11, 10, 9, 14, 12}, {"Any aircraft", "Squadron's own", "Back"}));
  folder.file("picplna.mnu",
              picture_menu("picplna", {5, 3, 4, 2, 0, 1}, {"Any aircraft", "Group's own", "Back"}));
  folder.file("picplng.mnu", picture_menu("picplng", {18, 17, 22, 23, 16, 24, 20, 19},
                                          {"Any aircraft", "Staffel's own", "Back"}));
  for (const char* name : {"HOF.DAT", "DSG.ICO", "EXTRA.SPT", "aces.str", "eaw.ini", "Credits.smk"}) {
    folder.file(name, made_content(name, "game"));
  }
  folder.text("CHATLINE.TXT",
              "Bandits, twelve o'clock high!\nBreak left!\nCheck your six.\nI'm hit, going home.\n"
              "Form up on me.\nGood shooting.\nLow on fuel.\nSplash one!\n");
  for (const char* name : {"eawdata.cdf", "EAWMAPS.CDF", "eawsnd.cdf", "eawtex1.cdf", "EAWTEX2.CDF"}) {
    folder.file(name, made_content(name, "game"));
  }
  for (const char* name : {"Default.msn", "DEFAULT1.MSN", "Default2.msn", "config.sav", "PILOTS.LST",
                           "Sunday.MSN", "quick1.MSN", "Training.msn"}) {
    folder.file("Savedata/" + std::string(name), made_content(name, "game"));
  }
  for (const char* name : {"theme.bgm", "Menu.bgm", "Debrief.BGM"}) {
    folder.file("Music/" + std::string(name), made_content(name, "game"));
  }
}

}  // namespace vorlund::sample
