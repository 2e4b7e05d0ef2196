// Makes the game folder of the aircraft window tests.
#include "window/made_aircraft_game.h"

#include <array>
#include <vector>

namespace vorlund::test {

namespace {

constexpr std::array<const char*, 30> kCodes = {
    "P38H", "P38J", "P47C", "P47D", "P51B", "P51D", "BB17", "B24A", "B26A", "HURR",
    "SP2A", "SP09", "SP14", "TYPH", "TEMP", "MOSQ", "109E", "109G", "109K", "110C",
    "110G", "M410", "190A", "190D", "262A", "J88A", "J88C", "JU87", "H111", "V1V1"};

/// A bitmap of one plain colour, 24 bits a pixel, 4 x 4 pixels.
std::string bitmap(int red, int green, int blue) {
  std::string bytes = "BM";
  const auto number = [&bytes](unsigned value, int count) {
    for (int index = 0; index < count; ++index) bytes += static_cast<char>((value >> (8 * index)) & 0xFF);
  };
  for (const unsigned value : {102U, 0U, 54U, 40U, 4U, 4U}) number(value, 4);
  number(1, 2);
  number(24, 2);
  for (const unsigned value : {0U, 48U, 2835U, 2835U, 0U, 0U}) number(value, 4);
  for (int pixel = 0; pixel < 16; ++pixel) {
    for (const int part : {blue, green, red}) bytes += static_cast<char>(part);
  }
  return bytes;
}

/// 169 lines: the title, the record number, then zeros but for the flags (a German flyable fighter from
/// record 16 on, else an American one) and the fuel, 1000.
std::string flight_model(int record) {
  std::string text = flight_model_title(record) + "\r\n";
  for (int line = 2; line <= 169; ++line) {
    int value = 0;
    if (line == 2) value = record;
    if (line == 6) value = record >= 16 ? 133 : 5;
    if (line == 7) value = 2;
    if (line == 38) value = 1000 % 256;
    if (line == 39) value = 1000 / 256;
    text += std::to_string(value) + "\r\n";
  }
  return text;
}

std::string pilot_names() {
  std::string bytes = {'\x96', '\0', '\0', '\0', '\x1E', '\0', '\0', '\0'};
  for (int index = 0; index < 30; ++index) {
    bytes += static_cast<char>(120 + index);
    bytes += std::string(3, '\0');
  }
  return bytes + std::string(30, '\0');
}

std::string menu(const std::vector<std::string>& names) {
  std::string bytes(35, '\x07');
  for (const std::string& name : names) {
    bytes += static_cast<char>(name.size() + 1);
    bytes += std::string(3, '\0') + name + std::string(1, '\0') + std::string(15, '\x09');
  }
  return bytes;
}

}  // namespace

std::string slot_code(int record) {
  return kCodes.at(static_cast<std::size_t>(record));
}

std::string flight_model_name(int record) {
  return "FM " + slot_code(record);
}

std::string flight_model_title(int record) {
  return "Type " + slot_code(record);
}

std::string skin_name(int record) {
  return "Wings " + slot_code(record);
}

std::string skin_group(int record) {
  return record < 16 ? "Allied" : "Axis";
}

void make_aircraft_game(const TemporaryFolder& folder) {
  const std::string group = "~Vorlund/FlightModels/Standard/";
  for (int record = 0; record < 30; ++record) {
    const std::string model = group + flight_model_name(record) + "/";
    folder.write(model + "model.oaw", flight_model(record));
    folder.write(model + "model.flt", "flight " + slot_code(record));
    const std::string skin = "~Vorlund/SkinStore/" + skin_group(record) + "/" + skin_name(record) + "/";
    folder.write(skin + "P" + slot_code(record) + ".3dz", "shape " + slot_code(record));
    folder.write(skin + "MyPic", bitmap(8 * record, 120, 255 - 8 * record));
  }
  folder.write("~Vorlund/SelPic", bitmap(90, 90, 90));
  folder.write("~Vorlund/FormPic", bitmap(20, 60, 90));
  folder.write("~Vorlund/Fr2Pic", bitmap(60, 60, 20));
  folder.make_folder("~Vorlund/PlaneSetFiles");
  folder.make_folder("~Vorlund/GameSetFiles");
  folder.write("~Vorlund/GameStore/Sounds/Loud/boom.snd", "boom");
  folder.write("Planes.dat", std::string(4 + 216 * 30, '\xEE'));
  folder.write("loadout.dat", std::string(9728, '\xEE'));
  folder.write("pnames.str", pilot_names());
  const std::vector<std::string> nine = {"One", "Two",   "Three", "Four", "Five",
                                         "Six", "Seven", "Eight", "Nine"};
  std::vector<std::string> eleven = nine;
  eleven.insert(eleven.end(), {"Ten", "Eleven"});
  folder.write("picplnb.mnu", menu(nine));
  folder.write("picplna.mnu", menu(nine));
  folder.write("picplng.mnu", menu(eleven));
}

}  // namespace vorlund::test
