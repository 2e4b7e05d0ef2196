// Draws folders and tables.
#include "panes/made_game.h"

#include <filesystem>

namespace vorlund::test {

namespace {

using namespace std::string_literals;

constexpr const char* kGroups[] = {"Careers", "Sky", "\u00C9t\u00E9 44", "Tweaks"};
constexpr const char* kFolders[] = {"One", "Two", "Three"};
constexpr const char* kSetFiles[] = {
    "sky.pal",        "SKY.PAL",    "Clouds.spt", "clouds.SPT", "planes.dat", "mission1.msn",
    "c1.sve",         "C2.SVE",     "theme.bgm",  "readme.txt", "fix.ldr",    "more.LDR",
    "eaw.exe",        "mypic",      "ecaone.dat", "x.flt",      "HOF.DAT",    "\u00E9t\u00E9.tm",
    "\u00DCnder.3dz", "pnames.str", ".hidden.dat"};
constexpr const char* kModels[] = {"P38", "Spit", "Bf 109"};
constexpr const char* kSkins[] = {"Silver", "Green"};

}  // namespace

std::string MadeGame::bytes() {
  constexpr const char* kPool[] = {"", "a", "b", "ab", "a longer text that several files share"};
  if (!chance(4)) return one_of(kPool);
  return std::string(70'000, static_cast<char>('a' + number(2))) + (chance(50) ? "x" : "y");
}

std::string MadeGame::patch() {
  std::string text;
  for (int record = number(4); record > 0; --record) {
    const int first = number(30);
    const int length = number(5);
    const int last = first + length - 1;
    if (last < 0) continue;
    text += {static_cast<char>(first), 0, 0, static_cast<char>(last), 0, 0};
    text += std::string(static_cast<std::size_t>(length), static_cast<char>('A' + number(3)));
  }
  if (chance(10)) text += "\x01\0\0\x09\0\0cut"s;
  return text;
}

std::string MadeGame::values(int lines) {
  std::string text = "Title\r\n";
  for (int line = 1; line < lines; ++line) {
    text += chance(1) && chance(10) ? "300" : std::to_string(number(line == 38 ? 100 : 256));
    text += "\r\n";
  }
  return text;
}

std::string MadeGame::names_file() {
  std::string bytes = {static_cast<char>(150), 0, 0, 0, 30, 0, 0, 0};
  for (int name = 0; name < 30; ++name) bytes += {static_cast<char>(120 + name), 0, 0, 0};
  bytes += std::string(30, '\0');
  if (chance(5)) bytes[1] = '\x90';
  return chance(10) ? bytes.substr(0, 40) : bytes;
}

std::string MadeGame::menu() {
  std::string bytes(35, 'h');
  const bool shifts = chance(15);
  has_shifting_menu_ = has_shifting_menu_ || shifts;
  for (int entry = 0; entry < 11; ++entry) {
    const std::string name = chance(50) ? "Spitfire" : "";
    const int length = shifts && name.empty() ? 0 : static_cast<int>(name.size()) + 1;
    bytes += {static_cast<char>(length), 0, 0, 0};
    bytes += name;
    if (length > 0) bytes += '\0';
    bytes += std::string(15, static_cast<char>('0' + entry));
  }
  return bytes + (chance(20) ? "what the game does not read" : "");
}

void MadeGame::lay_out_sets(const TemporaryFolder& folder) {
  for (const char* group : kGroups) {
    for (const char* name : kFolders) {
      if (chance(15)) continue;
      const std::string set = std::string("~Vorlund/GameStore/") + group + "/" + name;
      folder.make_folder(set);
      for (int file = number(7); file > 0; --file) {
        const std::string chosen = one_of(kSetFiles);
        const bool patches = chosen.ends_with(".ldr") || chosen.ends_with(".LDR");
        folder.write(set + "/" + chosen, patches ? patch() : bytes());
      }
    }
  }
}

void MadeGame::lay_out_aircraft(const TemporaryFolder& folder) {
  const std::string group = "~Vorlund/FlightModels/1944/";
  folder.make_folder(group);
  for (const char* file : {"shared.dat", "Sky.pal"}) {
    if (chance(40)) folder.write(group + file, bytes());
  }
  for (const char* model : kModels) {
    if (chance(15)) continue;
    const std::string place = group + model + "/";
    folder.make_folder(place);
    if (chance(85)) folder.write(place + "model.oaw", values(chance(4) ? 40 : 169));
    if (chance(70)) folder.write(place + "model.flt", bytes());
    if (chance(50)) folder.write(place + "one.lo1", values(1 + number(60)));
    if (chance(20)) folder.write(place + "two.lo1", values(4));
    if (chance(40)) folder.write(place + "one.lo2", values(1 + number(60)));
  }
  for (const char* skin : kSkins) {
    const std::string place = std::string("~Vorlund/SkinStore/USAAF/") + skin + "/";
    folder.make_folder(place);
    for (const char* file : {"pp38h.3dz", "PP38H.tpc", "vcg1.dat", "contents.txt"}) {
      if (chance(60)) folder.write(place + file, bytes());
    }
  }
}

void MadeGame::lay_out_game(const TemporaryFolder& folder) {
  if (chance(85)) folder.write("eaw.exe", "0123456789ABCDEFGHIJ");
  for (const char* name : {"Savedata", "Music"}) {
    if (chance(93)) folder.make_folder(name);
  }
  for (int file = number(12); file > 0; --file) {
    const std::string name = one_of(kSetFiles);
    if (name != "eaw.exe" && name != "pnames.str") folder.write(name, bytes());
  }
  for (int save = number(4); save > 0 && folder.has("Savedata"); --save) {
    folder.write("Savedata/" + one_of(std::array{"c1.sve", "C1.sve", "c2.sve", "m1.sve", "Default1.msn"}),
                 bytes());
  }
  if (chance(70)) folder.write("pnames.str", names_file());
  for (const char* name : {"picplnb.mnu", "picplna.mnu", "PICPLNG.MNU"}) {
    if (chance(60)) folder.write(name, menu());
  }
  if (chance(60)) folder.write("Planes.dat", std::string(static_cast<std::size_t>(number(7000)), 'p'));
  if (chance(60)) folder.write("Loadout.dat", std::string(static_cast<std::size_t>(number(9000)), 'l'));
  if (chance(90)) folder.write("~Vorlund/CurrentGameSet.txt", "old");
  if (chance(20)) folder.write("~vorlund-p7fffffff-0.bak", "a left-over");
}

/// What makes an action end with an error, or names lead to one place.
void MadeGame::lay_out_hostile(const TemporaryFolder& folder) {
  namespace fs = std::filesystem;
  const fs::path root = fs::u8path(folder.path());
  if (chance(6) && !folder.has("Clouds.spt")) folder.make_folder("Clouds.spt");
  if (chance(3)) folder.make_folder("~Vorlund/CurrentPlaneSet.txt");
  if (chance(8)) {
    for (const char* name : {"sky.pal", "Planes.dat", "Savedata/c1.sve", "x.flt"}) {
      if (!folder.has(name) || chance(50)) continue;
      fs::permissions(root / name, fs::perms::owner_read);
    }
  }
#ifndef _WIN32
  if (chance(8) && !folder.has("~Vorlund/GameStore/Careers/Linked")) {
    folder.make_folder("~Vorlund/GameStore/Careers");
    fs::create_directory_symlink(chance(50) ? root / "Savedata" : root / "~Vorlund/GameStore/Sky",
                                 root / "~Vorlund/GameStore/Careers/Linked");
  }
#endif
}

void MadeGame::lay_out(const TemporaryFolder& folder) {
  folder.make_folder("~Vorlund");
  lay_out_sets(folder);
  lay_out_aircraft(folder);
  lay_out_game(folder);
  lay_out_hostile(folder);
}

void MadeGame::fill_tables(Form1& form) {
  GameTable& games = form.game.G2;
  for (int row = number(7); row > 0; --row) {
    games.add_row({one_of(kGroups), chance(90) ? one_of(kFolders) : chance(30) ? "Linked" : ""});
  }
  games.g2update();
  PlaneTable& planes = form.plane.G1;
  if (chance(95)) planes.flight_model_group = "1944";
  for (int row = 1 + number(3); row <= 30; row += 1 + number(9)) {
    if (chance(60)) {
      planes.set_cell(row, PlaneTable::kRegion, "USAAF");
      planes.set_cell(row, PlaneTable::kSkinFolder, one_of(kSkins));
    }
    planes.set_cell(row, PlaneTable::kRecordNumber,
                    chance(3) ? one_of(std::array{"30", "-1", "99999", "two"}) : std::to_string(number(30)));
    if (chance(85)) planes.set_cell(row, PlaneTable::kScriptFolder, one_of(kModels));
    planes.set_cell(row, PlaneTable::kPlaneName, "Plane " + std::to_string(row));
    planes.set_cell(row, PlaneTable::kSide, one_of(std::array{"German", "British", "Allied", "American"}));
    planes.set_cell(row, PlaneTable::kFlyable, chance(50) ? "Yes" : "No");
    planes.set_cell(row, PlaneTable::kRole, one_of(std::array{"Fighter", "F/B", "Bomber"}));
    planes.set_cell(row, PlaneTable::kFuel, chance(2) ? "900" : "75");
    if (chance(2)) planes.set_cell(row, PlaneTable::kSlot, one_of(std::array{"..\\up", "p3", "folder\\x1"}));
  }
  if (chance(80)) planes.g1update();
}

}  // namespace vorlund::test
