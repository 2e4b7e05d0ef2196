// The program's actions once more, as plainly as the descriptions of the files put them.
#include "window/expected_game_folder.h"

#include <algorithm>
#include <set>

#include "window/expected_texts.h"

namespace vorlund::test {

namespace {

const std::string kStore = "~Vorlund/";

std::string text_of(const GameRows& rows) {
  std::string text = "Folder group\tFolder name\r\n";
  for (const auto& [group, folder] : rows) text += bytes_of(group) + "\t" + bytes_of(folder) + "\r\n";
  return text;
}

std::string text_of(const Aircraft& aircraft) {
  std::string text =
      bytes_of(aircraft.group) +
      "\r\nSlot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel %\r\n";
  for (const Slot& slot : aircraft.rows) {
    for (std::size_t column = 0; column < slot.size(); ++column) {
      text += (column > 0 ? "\t" : "") + bytes_of(slot[column]);
    }
    text += "\r\n";
  }
  return text;
}

void put(std::string& bytes, std::size_t offset, int byte) {
  if (bytes.size() <= offset) bytes.resize(offset + 1, '\0');
  bytes[offset] = static_cast<char>(byte);
}

unsigned byte_at(const std::string& bytes, std::size_t offset) {
  return static_cast<unsigned char>(bytes.at(offset));
}

/// Where a file of a set folder goes; "" where it stays in the store.
std::string place_of(const std::string& name) {
  for (const char* ending : {".LDR", "MYPIC", ".JPG", ".PCX", ".BMP", ".GIF", ".BAT", ".TAB", ".TXT"}) {
    if (ends_in(name, ending)) return "";
  }
  if (upper(name) == "LOADOUTOFFSETS" || upper(name).starts_with("ECA")) return "";
  if (ends_in(name, ".MSN") || ends_in(name, ".SVE")) return "Savedata/" + name;
  if (ends_in(name, ".BGM")) return "Music/" + name;
  return name;
}

/// What the clean-up deletes from the game folder.
bool is_loose(const std::string& name) {
  static const std::set<std::string> kSpared = {"DSG.ICO", "EXTRA.SPT", "CHATLINE.TXT", "HOF.DAT"};
  static const std::set<std::string> kNames = {"MYPIC", "PLANEPIC", "SKINPIC"};
  static const std::set<std::string> kEndings = {"BAT", "BGM", "SMK", "FNT", "WSD", "FSP", "PAL", "BAK",
                                                 "TCO", "PCO", "BCO", "HM",  "JPG", "PCX", "TXT", "MNU",
                                                 "DAT", "MPC", "WSP", "PIC", "SPT", "STR", "TER", "TM",
                                                 "TPC", "FLT", "3DZ", "SND", "BIL", "BIN", "CPT"};
  const std::string whole = upper(name);
  const std::size_t dot = whole.rfind('.');
  return !kSpared.contains(whole) &&
         (kNames.contains(whole) || (dot != std::string::npos && kEndings.contains(whole.substr(dot + 1))));
}

}  // namespace

std::string code_of(int record) {
  static const std::array<const char*, 30> kCodes = {
      "P38H", "P38J", "P47C", "P47D", "P51B", "P51D", "BB17", "B24A", "B26A", "HURR",
      "SP2A", "SP09", "SP14", "TYPH", "TEMP", "MOSQ", "109E", "109G", "109K", "110C",
      "110G", "M410", "190A", "190D", "262A", "J88A", "J88C", "JU87", "H111", "V1V1"};
  return kCodes.at(static_cast<std::size_t>(record));
}

ExpectedGameFolder::ExpectedGameFolder(Tree files) : files_(std::move(files)) {
  for (const auto& [name, bytes] : files_) spellings_[upper(name)] = name;
}

// The folder in memory.

std::string ExpectedGameFolder::spelled(const std::string& name) const {
  const auto found = spellings_.find(upper(name));
  return found == spellings_.end() ? "" : found->second;
}

void ExpectedGameFolder::write(const std::string& name, const std::string& bytes) {
  files_.erase(name.substr(0, name.rfind('/') + 1));  // an empty folder stands as its name and a slash
  files_.erase(spelled(name));
  files_[name] = bytes;
  spellings_[upper(name)] = name;
}

void ExpectedGameFolder::remove(const std::string& name) {
  files_.erase(spelled(name));
  spellings_.erase(upper(name));
}

template <class Wanted>
std::vector<std::string> ExpectedGameFolder::names_in(const std::string& folder, Wanted wanted) const {
  std::vector<std::string> names;
  const std::string prefix = folder.empty() ? "" : folder + "/";
  for (auto file = files_.lower_bound(prefix); file != files_.end() && file->first.starts_with(prefix);
       ++file) {
    const std::string name = file->first.substr(prefix.size());
    if (!name.empty() && name.find('/') == std::string::npos && wanted(name)) names.push_back(name);
  }
  std::sort(names.begin(), names.end(), [](const auto& a, const auto& b) { return upper(a) < upper(b); });
  return names;
}

std::vector<std::string> ExpectedGameFolder::folders_in(const std::string& folder) const {
  std::set<std::string> found;
  const std::string prefix = folder + "/";
  for (auto file = files_.lower_bound(prefix); file != files_.end() && file->first.starts_with(prefix);
       ++file) {
    const std::string name = file->first.substr(prefix.size());
    if (name.find('/') != std::string::npos) found.insert(name.substr(0, name.find('/')));
  }
  std::vector<std::string> names(found.begin(), found.end());
  std::sort(names.begin(), names.end(), [](const auto& a, const auto& b) { return upper(a) < upper(b); });
  return names;
}

std::vector<std::string> ExpectedGameFolder::named(const std::string& folder,
                                                   const std::string& ending) const {
  return names_in(folder, [&ending](const std::string& name) { return ends_in(name, ending); });
}

// What the store offers.

std::string ExpectedGameFolder::skin_code(const std::string& folder) const {
  for (const char* ending : {".3dz", ".tpc"}) {
    const auto names = names_in(folder, [ending](const std::string& name) {
      return upper(name).starts_with("P") && ends_in(name, ending);
    });
    if (names.empty()) continue;
    const std::string code = upper(names.front().substr(1, 4));
    for (int record = 0; record < 30; ++record) {
      if (code_of(record) == code) return code;
    }
  }
  return "";
}

Slot ExpectedGameFolder::slot(const std::string& flight_models, int record) const {
  const std::string code = code_of(record);
  Slot slot;
  slot[0] = code;
  slot[3] = std::to_string(record);
  slot[9] = "100";
  const std::string skins = kStore + "SkinStore";
  for (const std::string& region : folders_in(skins)) {
    for (const std::string& skin : folders_in(skins + "/" + region)) {
      if (!slot[1].empty() || skin_code(skins + "/" + region + "/" + skin) != code) continue;
      slot[1] = region;
      slot[2] = skin;
    }
  }
  const std::string models = kStore + "FlightModels/" + flight_models;
  for (const std::string& model : folders_in(models)) {
    const std::string folder = models + "/" + model;
    const auto names = named(folder, ".oaw");
    if (names.empty() || !upper(names.front()).starts_with(code)) continue;
    const std::vector<std::string> lines = lines_of(read(folder + "/" + names.front()));
    const int flags = number_in(lines.at(5));
    const std::array<const char*, 4> roles = {"", "Fighter", "Bomber", "F/B"};
    const std::array<const char*, 4> sides = {"", "British", "American", "Allied"};
    slot[4] = model;
    slot[5] = utf8_of(lines.at(0));
    slot[6] = flags > 127 ? "German" : sides[static_cast<std::size_t>(number_in(lines.at(6)) % 4)];
    slot[7] = flags % 8 > 3 ? "Yes" : "No";
    slot[8] = roles[static_cast<std::size_t>(flags % 4)];
  }
  return slot;
}

bool ExpectedGameFolder::has_shapes(const Slot& slot) const {
  return !named(kStore + "SkinStore/" + slot[1] + "/" + slot[2], ".3dz").empty();
}

std::string ExpectedGameFolder::description(const std::string& store_folder) const {
  const std::string name = kStore + store_folder + "/contents.txt";
  return has(name) ? utf8_of(read(name)) : "";
}

// The actions.

void ExpectedGameFolder::start() {
  std::string list;
  const std::string skins = kStore + "SkinStore";
  for (const std::string& region : folders_in(skins)) {
    for (const std::string& skin : folders_in(skins + "/" + region)) {
      list += bytes_of(region + "\\" + skin + "\\") + skin_code(skins + "/" + region + "/" + skin) + "\r\n";
    }
  }
  write(skins + "/SkinList.txt", list);
}

void ExpectedGameFolder::install(const GameRows& rows) {
  for (const auto& [group, set] : rows) {
    if (set.empty()) continue;
    const std::string folder = kStore + "GameStore/" + group + "/" + set;
    for (const std::string& name : names_in(folder, [](const std::string&) { return true; })) {
      if (ends_in(name, ".LDR") && has("eaw.exe")) patch_executable(read(folder + "/" + name));
      if (!place_of(name).empty()) write(place_of(name), read(folder + "/" + name));
    }
  }
  write(kStore + "CurrentGameSet.txt", text_of(rows));
}

void ExpectedGameFolder::patch_executable(const std::string& patch) {
  std::string program = read("eaw.exe");
  std::size_t at = 0;
  while (at + 6 <= patch.size()) {
    const auto offset = [&](std::size_t first) {
      return byte_at(patch, first) + 256U * byte_at(patch, first + 1) + 65536U * byte_at(patch, first + 2);
    };
    const std::size_t first = offset(at);
    const std::size_t last = offset(at + 3);
    const std::size_t count = last < first ? 0 : last - first + 1;
    if (at + 6 + count > patch.size()) break;
    for (std::size_t index = 0; index < count; ++index) {
      put(program, first + index, static_cast<int>(byte_at(patch, at + 6 + index)));
    }
    at += 6 + count;
  }
  write("eaw.exe", program);
}

void ExpectedGameFolder::install(const Aircraft& aircraft) {
  const std::string models = kStore + "FlightModels/" + aircraft.group;
  for (const std::string& name : names_in(models, [](const std::string&) { return true; })) {
    write(name, read(models + "/" + name));
  }
  std::vector<std::string> names(30);
  if (has("pnames.str")) {
    const std::string& old = read("pnames.str");
    for (std::size_t name = 0; name < 30; ++name) {
      const std::size_t start = 8 + byte_at(old, 8 + 4 * name) + 256 * byte_at(old, 9 + 4 * name);
      names[name] = old.substr(start, old.find('\0', start) - start);
    }
    for (const Slot& slot : aircraft.rows)
      names[static_cast<std::size_t>(number_in(slot[3]))] = bytes_of(slot[5]);
    std::string table;
    std::string texts;
    const auto add_16_bits = [](std::string& bytes, std::size_t value) {
      bytes += {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8), '\0', '\0'};
    };
    for (std::string& name : names) {
      name = trimmed(name);
      add_16_bits(table, 120 + texts.size());
      texts += name + '\0';
    }
    std::string file;
    add_16_bits(file, table.size() + texts.size());
    add_16_bits(file, 30);
    write("pnames.str", file + table + texts);
  }
  for (const Slot& slot : aircraft.rows) write_aircraft_record(models + "/" + slot[4], slot);
  // Every load-out comes from the folder of the last slot.
  for (const Slot& slot : aircraft.rows) {
    write_load_outs(models + "/" + aircraft.rows.back()[4], number_in(slot[3]));
  }
  for (const Slot& slot : aircraft.rows) {
    const std::string model = models + "/" + slot[4];
    const auto flights = named(model, ".flt");
    if (!flights.empty()) write(slot[0] + ".flt", read(model + "/" + flights.front()));
    const std::string skin = kStore + "SkinStore/" + slot[1] + "/" + slot[2];
    const auto skin_files = names_in(skin, [](const std::string& name) {
      return ends_in(name, ".3dz") || ends_in(name, ".tpc") ||
             (upper(name).starts_with("VCG") && ends_in(name, ".dat"));
    });
    for (const std::string& name : skin_files) write(name, read(skin + "/" + name));
  }
  write_menu("picplnb.mnu", 9, {13, 11, 10, 9, 14, 12}, names);
  write_menu("picplna.mnu", 9, {5, 3, 4, 2, 0, 1}, names);
  write_menu("picplng.mnu", 11, {18, 17, 22, 23, 16, 24, 20, 19}, names);
  write(kStore + "CurrentPlaneSet.txt", text_of(aircraft));
}

void ExpectedGameFolder::write_aircraft_record(const std::string& folder, const Slot& slot) {
  const std::vector<std::string> lines = lines_of(read(folder + "/" + named(folder, ".oaw").front()));
  std::string planes = has("Planes.dat") ? read("Planes.dat") : "";
  const std::size_t base = 4 + 216 * static_cast<std::size_t>(number_in(slot[3]));
  for (std::size_t byte = 0; byte < 168; ++byte) put(planes, base + byte, number_in(lines.at(byte + 1)));

  const bool german = slot[6] == "German";
  int code = slot[8] == "Fighter" ? 1 : slot[8] == "Bomber" ? 2 : slot[8] == "F/B" ? 3 : 0;
  if (slot[7] == "Yes") code += 4;
  int flags = number_in(lines.at(5));
  if (flags > 127 && !german) flags -= 128;
  if (flags < 127 && german) flags += 128;
  put(planes, base + 4, flags / 8 * 8 + code);
  // A British row carries its role and flyable code on.
  const int side = german ? 0 : slot[6] == "American" ? 2 : slot[6] == "Allied" ? 3 : code;
  put(planes, base + 5, number_in(lines.at(6)) / 4 * 4 + side);
  const int fuel = (number_in(lines.at(37)) + 256 * number_in(lines.at(38))) * number_in(slot[9]) / 100;
  put(planes, base + 36, fuel % 256);
  put(planes, base + 37, fuel / 256);
  for (std::size_t letter = 0; letter < 4; ++letter) put(planes, base + 164 + letter, slot[0][letter]);
  write("Planes.dat", planes);
}

void ExpectedGameFolder::write_load_outs(const std::string& folder, int record) {
  static const std::array<std::size_t, 30> kFirstArea = {
      4,    312,  620,  928,  1236, 1544, 1852, 1984, 2116, 2248, 2556, 2864, 3172, 3480, 3788,
      4096, 4228, 4536, 4844, 5152, 5460, 5768, 5900, 6208, 6516, 6824, 6956, 7088, 7220, 7352};
  const auto number = static_cast<std::size_t>(record);
  const auto fill = [&](const std::string& ending, std::size_t start, std::size_t size) {
    const auto names = named(folder, ending);
    if (names.size() != 1) return;
    const std::vector<std::string> lines = lines_of(read(folder + "/" + names.front()));
    std::string bytes = has("loadout.dat") ? read("loadout.dat") : "";
    for (std::size_t index = 0; index + 1 < lines.size(); ++index) {
      put(bytes, start + index, index % size == 0 ? record : number_in(lines[index + 1]));
    }
    write("loadout.dat", bytes);
  };
  fill(".lo1", kFirstArea[number], 44);
  fill(".lo2", 7928 + 60 * number, 12);
}

void ExpectedGameFolder::write_menu(const std::string& name, int entries, const std::vector<int>& records,
                                    const std::vector<std::string>& names) {
  if (!has(name)) return;
  const std::string old = read(name);
  std::string menu = old.substr(0, 35);
  std::size_t at = 35;
  for (int entry = 0; entry < entries; ++entry) {
    const std::size_t length = byte_at(old, at);
    std::string text = old.substr(at + 4, length - 1);
    if (entry < static_cast<int>(records.size())) {
      text = names.at(static_cast<std::size_t>(records[static_cast<std::size_t>(entry)]));
    }
    menu += {static_cast<char>(text.size() + 1), '\0', '\0', '\0'};
    menu += text + '\0' + old.substr(at + 4 + length, 15);
    at += 19 + length;
  }
  write(name, menu);
}

void ExpectedGameFolder::save(const std::string& name, const GameRows& rows) {
  write(kStore + "GameSetFiles/" + name, text_of(rows));
}

void ExpectedGameFolder::save(const std::string& name, const Aircraft& aircraft) {
  write(kStore + "PlaneSetFiles/" + name, text_of(aircraft));
}

void ExpectedGameFolder::clean_up(GameRows& rows, Aircraft& aircraft) {
  std::string home;
  for (const auto& [group, folder] : rows) {
    if (group == "Careers") home = kStore + "GameStore/Careers/" + folder + "/";
  }
  const auto saves = names_in("Savedata", [](const std::string& name) {
    return upper(name).starts_with("C") && ends_in(name, ".sve");
  });
  for (const std::string& name : saves) {
    if (home.empty()) break;
    write(home + name, read("Savedata/" + name));
    remove("Savedata/" + name);
  }
  for (const std::string& name : names_in("", is_loose)) remove(name);
  for (auto& [group, folder] : rows) folder.clear();
  for (Slot& slot : aircraft.rows) {
    for (std::size_t column = 1; column < slot.size(); ++column) slot[column].clear();
  }
  write(kStore + "CurrentGameSet.txt", text_of(rows));
  write(kStore + "CurrentPlaneSet.txt", text_of(aircraft));
}

void ExpectedGameFolder::delete_default_missions() {
  const auto missions = names_in("Savedata", [](const std::string& name) {
    return upper(name).starts_with("DEFAULT") && ends_in(name, ".msn");
  });
  for (const std::string& name : missions) remove("Savedata/" + name);
}

}  // namespace vorlund::test
