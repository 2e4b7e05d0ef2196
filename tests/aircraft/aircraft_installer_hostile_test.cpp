// Plane sets of other players: whatever a cell holds, nothing outside the game folder is written.
#include <filesystem>

#include "aircraft/aircraft_fixture.h"
#include "aircraft/aircraft_installer.h"
#include "aircraft/plane_record.h"
#include "base/plain_name.h"

namespace vorlund {
namespace {

using namespace std::string_literals;
using test::error_of;
using test::same_values;
using test::value_text;
using Tree = std::map<std::string, std::string>;

/// Names that mean another place than a folder or file of that very name.
std::vector<std::string> hostile_names() {
  std::vector<std::string> names = {".",           "..",        "...",         " ",      ". ",
                                    ".. ..",       "\t",        "\n",          "\1",     "\0"s,
                                    "..\0"s,       "C:",        "C:\\",        "c:bait", ":",
                                    "a:b",         "CON\n",     "/",           "\\",     "//",
                                    "\\\\",        "/etc",      "a\rb",        "\x7F",   "\\\\server\\share",
                                    "\\\\?\\C:\\", "\\\\.\\C:", "model::$DATA"};
  for (const char* stem : {"..", "../..", "..\\..", "outside", "../outside", "..\\..\\outside", "Model"}) {
    for (const char* before :
         {"/", "\\", "./", ".\\", "../", "..\\", "../../../", "..\\..\\..\\", "Model/../"}) {
      names.push_back(std::string(before) + stem);
    }
    for (const char* after : {"/", "\\", "/.", "\\..", ":stream", "\n"}) {
      names.push_back(std::string(stem) + after);
    }
  }
  return names;
}

class HostileCells : public ::testing::Test {
 protected:
  HostileCells() {
    bait("");
    bait("outside");
    bait("outside/outside");
    bait("game/~Vorlund");
    bait("game/~Vorlund/FlightModels");
    bait("game/~Vorlund/FlightModels/Group/Model");
    bait("game/~Vorlund/SkinStore");
    bait("game/~Vorlund/SkinStore/Region/Skin");
    folder.write("game/pnames.str", compose_pilot_names({}, ""));
    before = folder.tree();
  }

  /// Installs sets with the name in each of their places, and returns the reports of errors.
  std::vector<std::string> install_everywhere(const std::string& name) {
    return {install(name, {"P38H", "", "", "0", "Model", "", "", "", "", ""}),
            install(name, {"P38H", "", "", "0", "", "", "", "", "", ""}),
            install("Group", {"P38H", "", "", "0", name, "", "", "", "", ""}),
            install(name, {"P38H", "", "", "0", name, "", "", "", "", ""}),
            install("Missing", {"P38H", name, "Skin", "0", "", "", "", "", "", ""}),
            install("Missing", {"P38H", "Region", name, "0", "", "", "", "", "", ""}),
            install("Missing", {"P38H", name, name, "0", "", "", "", "", "", ""})};
  }

  /// Everything that an installation looks for.
  void bait(const std::string& place) const {
    const std::string start = place.empty() ? "" : place + "/";
    folder.write(start + "bait.oaw", value_text("bait", same_values(168, "1")));
    folder.write(start + "bait.lo1", value_text("bait", same_values(44, "1")));
    folder.write(start + "bait.flt", "bait");
    folder.write(start + "bait.3dz", "bait");
  }

  /// Installs a table whose only row has these cells; an error is one way for it to end.
  std::string install(const std::string& group, const std::vector<std::string>& cells) {
    PlaneTable table;
    table.flight_model_group = group;
    table.set_row(1, cells);
    table.g1update();
    PilotNames names;
    PictureMenu menu;
    return error_of([&] { install_aircraft_set(game, status, table, names, menu); });
  }

  /// Files of the game folder itself besides pnames.str, which were not there before.
  std::vector<std::string> written() const {
    std::vector<std::string> found;
    for (const auto& [name, bytes] : folder.tree()) {
      if (name == "game/pnames.str") continue;
      const auto old = before.find(name);
      if (old == before.end() || old->second != bytes) found.push_back(name);
    }
    return found;
  }

  test::TemporaryFolder folder;
  Tree before;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  GameFolder game{*files, folder.path("game")};
  test::RecordingStatus status;
};

TEST_F(HostileCells, TheBaitIsTakenWhereTheNamesArePlain) {
  EXPECT_EQ(install("Group", {"P38H", "Region", "Skin", "0", "Model", "", "", "", "", ""}), "");
  EXPECT_EQ(written(), (std::vector<std::string>{"game/P38H.flt", "game/Planes.dat", "game/bait.3dz",
                                                 "game/loadout.dat"}));
}

TEST_F(HostileCells, NamesThatLeadOutOfTheirFolderCountAsFoldersThatDoNotExist) {
  int hostile = 0;
  for (const std::string& name : hostile_names()) {
    if (stays_below(name)) continue;
    ++hostile;
    SCOPED_TRACE(testing::PrintToString(name));
    for (const std::string& report : install_everywhere(name)) EXPECT_EQ(report, "");
    ASSERT_EQ(written(), std::vector<std::string>{});
  }
  EXPECT_GE(hostile, 40);
}

TEST_F(HostileCells, WhateverANameIsNothingIsWrittenOutsideTheGameFolder) {
  const std::vector<std::string> names = hostile_names();
  ASSERT_GE(names.size(), 100u);
  for (const std::string& name : names) {
    install_everywhere(name);
    for (const std::string& file : written()) {
      ASSERT_TRUE(file.starts_with("game/") && file.rfind('/') == 4) << testing::PrintToString(name) << file;
    }
  }
}

TEST_F(HostileCells, SlotThatLeadsOutOfTheGameFolderEndsBeforeThatFileIsWritten) {
  files->remove_file(folder.path("game\\~Vorlund\\FlightModels\\Group\\Model\\bait.oaw"));
  before = folder.tree();
  int refused = 0;
  for (const std::string& name : hostile_names()) {
    SCOPED_TRACE(testing::PrintToString(name));
    const std::string report = install("Group", {name, "", "", "0", "Model", "", "", "", "", ""});
    if (stays_below(name + ".flt")) continue;  // it is written, or the platform says why not
    ++refused;
    EXPECT_NE(report.find("column Slot of row 1"), std::string::npos) << report;
    EXPECT_NE(report.find("leads out of the game folder"), std::string::npos) << report;
  }
  EXPECT_GE(refused, 20);
  for (const std::string& name : written()) {
    EXPECT_TRUE(name == "game/loadout.dat" || (name.starts_with("game/") && name.rfind('/') == 4)) << name;
  }
}

TEST_F(HostileCells, OverlongNamesAreFoldersThatDoNotExist) {
  for (const std::size_t length : {300u, 5000u, 70000u}) {
    const std::string name(length, 'x');
    EXPECT_EQ(install(name, {"P38H", name, name, "0", name, "", "", "", "", ""}), "") << length;
    EXPECT_EQ(install("Group", {"P38H", name, name, "0", name, "", "", "", "", ""}), "") << length;
    EXPECT_EQ(install("Group", {"P38H", "Region", name, "0", "", "", "", "", "", ""}), "") << length;
  }
  EXPECT_EQ(written(), std::vector<std::string>{});
}

TEST_F(HostileCells, OfARecordAreReadAndInstalledWithoutHarm) {
  std::string record = "Group\r\nheader\r\n";
  for (const std::string& name : hostile_names()) {
    record += "P38H\t" + name + "\tSkin\t0\t" + name + "\t" + name + "\t" + name + "\t" + name + "\t\t\r\n";
  }
  PlaneTable table;
  parse_plane_set(record, table);
  PilotNames names;
  PictureMenu menu;
  error_of([&] { install_aircraft_set(game, status, table, names, menu); });
  for (const auto& [name, bytes] : before) {
    if (name.starts_with("game/") && name.rfind('/') == 4) continue;
    EXPECT_EQ(folder.read(name), bytes) << name;
  }
}

#ifndef _WIN32
TEST_F(HostileCells, LinksInASetNeverLeadAWriteOutside) {
  namespace fs = std::filesystem;
  const fs::path root = fs::u8path(folder.path());
  const fs::path group = root / "game/~Vorlund/FlightModels/Group";
  fs::create_symlink(root / "outside/bait.flt", group / "Planes.dat");
  for (const char* name :
       {"Planes.dat", "loadout.dat", "P38H.flt", "bait.3dz", "picplnb.mnu", "~vorlund.bak"}) {
    fs::create_symlink(root / "outside/bait.flt", root / "game" / name);
  }
  fs::remove(root / "game/pnames.str");
  fs::create_symlink(root / "outside/bait.lo1", root / "game/pnames.str");
  EXPECT_NE(install("Group", {"P38H", "Region", "Skin", "0", "Model", "", "", "", "", ""}), "never run");
  for (const auto& [name, bytes] : before) {
    if (name.starts_with("game/")) continue;
    EXPECT_EQ(folder.read(name), bytes) << name;
  }
}
#endif

}  // namespace
}  // namespace vorlund
