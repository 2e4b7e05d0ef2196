// Lays out the game folder whose aircraft installation is cut off.
#include "actions/aircraft_under_fire.h"

#include <array>
#include <cstddef>

namespace vorlund::test {

namespace {

using namespace std::string_literals;

constexpr char kGroup[] = "~Vorlund/FlightModels/J\u00E4ger 1944/";
constexpr char kSkins[] = "~Vorlund/SkinStore/";
constexpr char kRecord[] = "~Vorlund/CurrentPlaneSet.txt";

/// The three slots, by record number.
constexpr std::array<const char*, 3> kCodes = {"P38H", "P38J", "P47C"};
constexpr std::array<const char*, 3> kModels = {"Heavy", "Late", "Zerst\u00F6rer"};
constexpr std::array<const char*, 3> kNewNames = {"Lightning", "Droop Snoot", "J\xE4ger"};

/// A title, then one number a line.
std::string text_of(const std::string& values) {
  std::string text = "A title\r\n";
  for (const char value : values) text += std::to_string(static_cast<unsigned char>(value)) + "\r\n";
  return text;
}

/// The 168 bytes of an aircraft record whose sides, role, flyable and fuel are those of the slot's row, so
/// that the installation changes nothing but the slot code.
std::string aircraft_record(int record) {
  std::string bytes = made_bytes(40U + static_cast<std::uint32_t>(record), 168);
  bytes[4] = record == 2 ? '\x85' : '\x05';  // German from bit 7 on, flyable fighter
  bytes[5] = record == 2 ? '\x08' : '\x0A';  // bits 0 and 1: 0 German, 2 American
  return bytes;
}

/// The values with the record number as the first byte of each load-out record.
std::string numbered(std::string values, std::size_t record_size, int record) {
  for (std::size_t at = 0; at < values.size(); at += record_size) values[at] = static_cast<char>(record);
  return values;
}

std::string name_before(int record) {
  return "Name " + std::to_string(record);
}

std::string name_after(int record) {
  return record < 3 ? kNewNames[static_cast<std::size_t>(record)] : name_before(record);
}

std::string field(std::size_t value) {
  return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8), '\0', '\0'};
}

/// pnames.str with the names of 30 records.
template <class NameOf>
std::string pilot_names(NameOf name_of) {
  std::string positions;
  std::string names;
  for (int record = 0; record < 30; ++record) {
    positions += field(120 + names.size());
    names += name_of(record) + '\0';
  }
  return field(positions.size() + names.size()) + field(30) + positions + names;
}

std::string menu_entry(const std::string& name, int number) {
  return field(name.size() + 1) + name + '\0' + made_bytes(60U + static_cast<std::uint32_t>(number), 15);
}

}  // namespace

AircraftUnderFire::AircraftUnderFire() {
  stay("eaw.exe", made_bytes(1, 900));
  stay("Savedata/c001.sve", made_bytes(2, 900));
  stay("untouched.3dz", made_bytes(3, 900));
  stay(kSkins + "SkinList.txt"s, "USAAF\\Silver\\P38H\r\nW\xFCste\\Sand\\P47C\r\n");

  stand("horizon.PAL", made_bytes(4, 768));
  create(kGroup + "Horizon.pal"s, "Horizon.pal", made_bytes(5, 768));
  create(kGroup + "group.dat"s, "group.dat", made_bytes(6, 150000));
  stand("same.dat", made_bytes(7, 4000));
  create(kGroup + "same.dat"s, "same.dat", made_bytes(7, 4000));

  stand("p38h.FLT", made_bytes(8, 300));
  create(kGroup + "Heavy/flight.flt"s, "P38H.flt", made_bytes(9, 400));
  create(kGroup + "Late/flight.flt"s, "P38J.flt", made_bytes(10, 400));

  stay(kSkins + "USAAF/Silver/MyPic"s, made_bytes(11, 2000));
  create(kSkins + "USAAF/Silver/PP38H.3dz"s, "PP38H.3dz", made_bytes(12, 9000));
  stand("pp38h.TPC", made_bytes(13, 70000));
  create(kSkins + "USAAF/Silver/PP38H.tpc"s, "PP38H.tpc", made_bytes(14, 60000));
  create(kSkins + "W\u00FCste/Sand/pp47c.tpc"s, "pp47c.tpc", made_bytes(15, 70000));
  create(kSkins + "W\u00FCste/Sand/vcg1.dat"s, "vcg1.dat", "");

  lay_out_records();
  lay_out_loadouts();
  lay_out_names();
  lay_out_menu("picplnb.mnu", 9, {13, 11, 10, 9, 14, 12});
  lay_out_menu("PicPlnA.mnu", 9, {5, 3, 4, 2, 0, 1});
  lay_out_menu("picplng.mnu", 11, {18, 17, 22, 23, 16, 24, 20, 19});

  const std::string rows =
      "J\xE4ger 1944\r\nSlot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel "
      "%\r\n"
      "P38H\tUSAAF\tSilver\t0\tHeavy\tLightning\tAmerican\tYes\tFighter\t100\r\n"
      "P38J\t\t\t1\tLate\tDroop Snoot\tAmerican\tYes\tFighter\t100\r\n"
      "P47C\tW\xFCste\tSand\t2\tZerst\xF6rer\tJ\xE4ger\tGerman\tYes\tFighter\t100\r\n";
  stand(kRecord, rows);
  std::string whole = rows;
  for (int slot = 3; slot < 30; ++slot) whole += "\t\t\t\t\t\t\t\t\t\r\n";
  appear(kRecord, whole);
}

/// 216 bytes a record after 4 bytes; the file is too short for the last of the three.
void AircraftUnderFire::lay_out_records() {
  std::string planes = made_bytes(20, 4 + 2 * 216);
  stand("PLANES.DAT", planes);
  for (std::size_t slot = 0; slot < kCodes.size(); ++slot) {
    const std::string bytes = aircraft_record(static_cast<int>(slot));
    stay(kGroup + std::string(kModels[slot]) + "/model.oaw", text_of(bytes));
    planes = with(planes, 4 + 216 * slot, with(bytes, 164, kCodes[slot]));
    pass("PLANES.DAT", planes);
  }
  appear("PLANES.DAT", planes);
}

/// All load-outs come from the folder of the last slot: 308 bytes an area in the first part of the file, 60
/// in the second.
void AircraftUnderFire::lay_out_loadouts() {
  const std::string folder = kGroup + std::string(kModels.back());
  const std::string first = made_bytes(30, 308);
  const std::string second = made_bytes(31, 60);
  stay(folder + "/model.lo1", text_of(first));
  stay(folder + "/model.lo2", text_of(second));
  std::string loadouts = made_bytes(21, 7900);
  stand("loadout.dat", loadouts);
  for (std::size_t slot = 0; slot < kCodes.size(); ++slot) {
    const int record = static_cast<int>(slot);
    loadouts = with(loadouts, 4 + 308 * slot, numbered(first, 44, record));
    pass("loadout.dat", loadouts);
    loadouts = with(loadouts, 7928 + 60 * slot, numbered(second, 12, record));
    pass("loadout.dat", loadouts);
  }
  appear("loadout.dat", loadouts);
}

void AircraftUnderFire::lay_out_names() {
  stand("pnames.str", pilot_names(name_before));
  appear("pnames.str", pilot_names(name_after));
}

void AircraftUnderFire::lay_out_menu(const std::string& name, int entries, const std::vector<int>& records) {
  const std::string header = made_bytes(22, 35);
  std::string before = header;
  std::string after = header;
  for (int entry = 0; entry < entries; ++entry) {
    const bool named = entry < static_cast<int>(records.size());
    before += menu_entry("Old", entry);
    after += menu_entry(named ? name_after(records[static_cast<std::size_t>(entry)]) : "Old", entry);
  }
  stand(name, before + "a tail that is dropped");
  appear(name, after);
}

}  // namespace vorlund::test
