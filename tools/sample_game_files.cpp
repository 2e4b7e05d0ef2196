// The game's own files in the sample folder.
#include <string>
#include <vector>

#include "base/code_page.h"
#include "sample_data.h"
#include "sample_flight_models.h"
#include "sample_folder.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

void add_16_bits(std::string& bytes, std::size_t value) {
  bytes += static_cast<char>(value & 0xFF);
  bytes += static_cast<char>(value >> 8 & 0xFF);
}

void add_bytes(std::string& bytes, const std::vector<int>& values) {
  for (const int value : values) {
    bytes += static_cast<char>(value);
  }
}

/// Planes.dat: a header of 4 bytes and 30 records of 216.
std::string planes_data() {
  std::string bytes("\x1E\0\0\0", 4);
  for (std::size_t record = 0; record < aircraft_types().size(); ++record) {
    add_bytes(bytes, flight_model_values(record, kStandardGroup));
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
    add_bytes(bytes, first_load_out_values(record, kStandardGroup));
  }
  bytes.resize(kSecondArea, '\0');
  for (std::size_t record = 0; record < aircraft_types().size(); ++record) {
    add_bytes(bytes, second_load_out_values(record, kStandardGroup));
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
                         const std::vector<std::string>& further) {
  Random random(seed);
  std::string bytes;
  while (bytes.size() < 35) {
    bytes += static_cast<char>(random.between(0, 255));
  }
  std::vector<std::string> names;
  for (const std::size_t record : records) {
    names.push_back(aircraft_types().at(record).name);
  }
  names.insert(names.end(), further.begin(), further.end());
  for (std::size_t place = 0; place < names.size(); ++place) {
    const std::string spelled = encode_text(names[place]);
    add_16_bits(bytes, spelled.size() + 1);
    add_16_bits(bytes, 0);
    bytes += spelled + '\0';
    for (const std::size_t side : {std::size_t{40}, 60 + 34 * place, std::size_t{220}, std::size_t{30}}) {
      add_16_bits(bytes, side);
    }
    bytes += static_cast<char>(place + 1);
    bytes.append(6, '\0');
  }
  return bytes;
}

/// Begins as a Windows program does, but nothing in it can run.
std::string game_program() {
  std::string bytes = "MZ";
  bytes.resize(0x3C, '\0');
  bytes.append(4, '\xFF');  // the place of the Windows header: far outside
  bytes += "A file made for trying things out. It holds no program.";
  Random random("eaw.exe");
  constexpr std::size_t kSize = 1'712'128;
  while (bytes.size() < kSize) {
    const bool empty = random.between(0, 3) == 0;
    for (int count = random.between(64, 1024); count > 0; --count) {
      bytes += empty ? '\0' : static_cast<char>(random.next() & 0xFF);
    }
  }
  bytes.resize(kSize);
  return bytes;
}

}  // namespace

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
  folder.text("CHATLINE.TXT",
              "Bandits, twelve o'clock high!\nBreak left!\nCheck your six.\nI'm hit, going home.\n"
              "Form up on me.\nGood shooting.\nLow on fuel.\nSplash one!\n");
  for (const char* name : {"HOF.DAT",
                           "DSG.ICO",
                           "EXTRA.SPT",
                           "aces.str",
                           "eaw.ini",
                           "Credits.smk",
                           "eawdata.cdf",
                           "EAWMAPS.CDF",
                           "eawsnd.cdf",
                           "eawtex1.cdf",
                           "EAWTEX2.CDF",
                           "Savedata/Default.msn",
                           "Savedata/DEFAULT1.MSN",
                           "Savedata/Default2.msn",
                           "Savedata/config.sav",
                           "Savedata/PILOTS.LST",
                           "Savedata/Sunday.MSN",
                           "Savedata/quick1.MSN",
                           "Savedata/Training.msn",
                           "Music/theme.bgm",
                           "Music/Menu.bgm",
                           "Music/Debrief.BGM"}) {
    folder.file(name, made_content(name, 40000));
  }
}

}  // namespace vorlund::sample
