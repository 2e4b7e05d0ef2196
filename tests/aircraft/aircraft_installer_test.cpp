// What the aircraft-set installer copies and patches, and in which order.
#include "aircraft/aircraft_installer.h"

#include <algorithm>

#include "aircraft/aircraft_fixture.h"
#include "aircraft/plane_codes.h"
#include "support/recording_file_system.h"

namespace vorlund {
namespace {

using namespace std::string_literals;
using test::error_of;
using test::same_values;
using test::value_text;

constexpr int kP38H = 1;
constexpr int kP51B = 5;
constexpr int kSP09 = 12;

const std::string kNoNames = "the game folder has no pnames.str, so no names were written";

class AircraftInstaller : public test::AircraftTest {
 protected:
  AircraftInstaller() { table.g1update(); }

  AircraftSummary install() { return install_aircraft_set(game, status, table, names, menu); }

  std::string install_error() {
    return error_of([&] { install(); });
  }

  void write_names(const std::vector<std::string>& texts = {}) const {
    folder.write("pnames.str", compose_pilot_names(texts, ""));
  }

  std::vector<std::string> read_names() const { return parse_pilot_names(folder.read("pnames.str"), ""); }

  /// A flight model whose values are all the same; they count below 128 so that the flags stay readable.
  void flight_model(const std::string& name, const std::string& value) const {
    model(name + "/model.oaw", value_text("title", same_values(168, value)));
  }

  void use(int row, const std::string& record, const std::string& script, const std::string& name = "") {
    fill_row(row, {record, script, name, "Allied", "Yes", "Fighter", "100"});
    table.g1update();
  }

  void wear(int row, const std::string& region, const std::string& skin) {
    table.set_cell(row, PlaneTable::kRegion, region);
    table.set_cell(row, PlaneTable::kSkinFolder, skin);
    table.g1update();
  }

  /// Names in the game folder besides the store.
  std::vector<std::string> game_names() const {
    std::vector<std::string> found = folder.names();
    std::erase(found, "~Vorlund");
    return found;
  }

  PictureMenu menu;
  PilotNames names;
};

TEST_F(AircraftInstaller, CopiesTheFilesOfTheGroupAloneReplacingWhatIsThere) {
  model("readme.txt", "text");
  model("Shared.DAT", "new");
  model("noextension", "plain");
  model("Spit9/inside.dat", "not copied");
  folder.write("shared.dat", "old");
  const AircraftSummary summary = install();
  EXPECT_EQ(game_names(), (std::vector<std::string>{"Shared.DAT", "noextension", "readme.txt"}));
  EXPECT_EQ(folder.read("Shared.DAT"), "new");
  EXPECT_EQ(summary.copied, 3u);
}

TEST_F(AircraftInstaller, MissingGroupCopiesNothingAndGoesOn) {
  table.flight_model_group = "1939";
  use(kP38H, "0", "P38");
  const AircraftSummary summary = install();
  EXPECT_TRUE(game_names().empty());
  EXPECT_EQ(
      summary.remarks,
      (std::vector<std::string>{"there is no flight-model group \"1939\", so none was installed", kNoNames}));
}

TEST_F(AircraftInstaller, WithoutANameListTheMenusKeepTheirNames) {
  std::string made_menu(35, 'h');
  for (const char* name : {"A", "B", "C", "D", "E", "F", "G", "H", "I"}) {
    made_menu += "\2\0\0\0"s + name + '\0' + std::string(15, 't');
  }
  folder.write("picplnb.mnu", made_menu + "tail");
  EXPECT_EQ(install().menus, 1u);
  EXPECT_EQ(folder.read("picplnb.mnu"), made_menu) << "read and written, what followed is dropped";
  write_names({"N0"});
  names.LoadPnames(game);
  folder.write("picplnb.mnu", made_menu);
  files->remove_file(folder.path("pnames.str"));
  install();
  EXPECT_NE(folder.read("picplnb.mnu"), made_menu) << "a list that was read since the start gives the names";
}

TEST_F(AircraftInstaller, AnEmptyGroupIsTheFolderOfAllGroups) {
  folder.write("~Vorlund/FlightModels/stray.dat", "stray");
  table.flight_model_group = "";
  const AircraftSummary summary = install();
  EXPECT_EQ(folder.read("stray.dat"), "stray");
  EXPECT_EQ(
      summary.remarks,
      (std::vector<std::string>{
          "no flight-model group is set, so \"~Vorlund\\FlightModels\" itself was taken for it", kNoNames}));
}

TEST_F(AircraftInstaller, FlightModelFileIsCopiedUnderTheSlotCode) {
  table.set_cell(kP38H, PlaneTable::kSlot, "p38h");
  use(kP38H, "0", "P38");
  use(kP51B, "4", "P51");
  use(kSP09, "11", "Spit9");
  model("P38/b.flt", "second");
  model("P38/A.FLT", "first");
  model("P51/any.flt", "mustang");
  folder.make_folder("~Vorlund/FlightModels/1944/Spit9");
  folder.write("P38H.FLT", "old");
  install();
  EXPECT_EQ(game_names(), (std::vector<std::string>{"P51B.flt", "p38h.flt"}));
  EXPECT_EQ(folder.read("p38h.flt"), "first");
  EXPECT_EQ(folder.read("P51B.flt"), "mustang");
}

TEST_F(AircraftInstaller, SkinFilesOfThreePatternsAreCopiedUnderTheirOwnNames) {
  use(kP38H, "0", "");
  wear(kP38H, "RAF", "Spit \u00E9");
  const std::string skin = "~Vorlund/SkinStore/RAF/Spit \u00E9/";
  for (const char* name : {"psp09.3DZ", "PSP09.tpc", "vcgsp09.dat", "VCG.DAT", "other.dat", "mypic",
                           "contents.txt", "skin.jpg", "avcg.dat", "x.3dzz"}) {
    folder.write(skin + name, name);
  }
  folder.write(skin + "deeper/p.3dz", "not copied");
  install();
  EXPECT_EQ(game_names(), (std::vector<std::string>{"PSP09.tpc", "VCG.DAT", "psp09.3DZ", "vcgsp09.dat"}));
}

TEST_F(AircraftInstaller, SkinNamedByHalfCopiesNothing) {
  folder.write("~Vorlund/SkinStore/RAF/stray.3dz", "stray");
  folder.write("~Vorlund/SkinStore/stray.3dz", "stray");
  folder.write("~Vorlund/SkinStore/RAF/Spit/p.3dz", "skin");
  wear(kP38H, "RAF", "");
  wear(kP51B, "", "Spit");
  wear(kSP09, "", "RAF");
  const AircraftSummary summary = install();
  EXPECT_TRUE(game_names().empty());
  const std::string half = ": its skin is named by half, so none was installed";
  EXPECT_EQ(std::count(summary.remarks.begin(), summary.remarks.end(), "slot P38H" + half), 1);
  EXPECT_EQ(std::count(summary.remarks.begin(), summary.remarks.end(), "slot P51B" + half), 1);
}

TEST_F(AircraftInstaller, LaterRowWinsWithTheSameRecordNumber) {
  write_names();
  use(kP38H, "7", "P38", "Early");
  use(kP51B, "7", "P51", "Late");
  flight_model("P38", "1");
  flight_model("P51", "2");
  model("P38/a.lo2", value_text("title", same_values(2, "30")));
  model("P51/a.lo2", value_text("title", same_values(2, "50")));
  const AircraftSummary summary = install();
  EXPECT_EQ(read_names()[7], "Late");
  EXPECT_EQ(folder.read("loadout.dat").substr(7928 + 60 * 7), std::string("\x07\x32"));
  const std::string record = folder.read("Planes.dat").substr(4 + 216 * 7);
  EXPECT_EQ(record[0], '\2');
  EXPECT_EQ(record.substr(164, 4), "P51B");
  EXPECT_EQ(summary.remarks,
            (std::vector<std::string>{
                "slot P51B: it has the record number of slot P38H (7), whose data it replaced",
                "the load-outs of all slots came from the flight model of the last, slot P51B"}));
}

TEST_F(AircraftInstaller, LoadoutsOfAllRowsComeFromTheFolderOfTheLastRow) {
  use(kP38H, "0", "P38");
  use(kP51B, "4", "P51");
  flight_model("P38", "1");
  flight_model("P51", "2");
  model("P38/own.lo1", value_text("title", same_values(2, "30")));
  model("P51/last.lo1", value_text("title", same_values(2, "50")));
  const AircraftSummary summary = install();
  const std::string loadout = folder.read("loadout.dat");
  EXPECT_EQ(loadout.size(), 1238u);
  EXPECT_EQ(loadout.substr(4, 2), "\0\62"s);
  EXPECT_EQ(loadout.substr(1236, 2), "\4\62"s);
  EXPECT_EQ(summary.remarks.front(),
            "the load-outs of all slots came from the flight model of the last, slot P51B");
}

TEST_F(AircraftInstaller, LastRowWithoutAFlightModelStillGivesItsLoadouts) {
  use(kP38H, "0", "P38");
  use(kP51B, "4", "P51");
  flight_model("P38", "1");
  model("P38/own.lo1", value_text("title", same_values(2, "30")));
  folder.make_folder("~Vorlund/FlightModels/1944/P51");
  install();
  EXPECT_TRUE(folder.has("Planes.dat"));
  EXPECT_FALSE(folder.has("loadout.dat"));
}

TEST_F(AircraftInstaller, EmptyScriptFolderTakesTheGroupsOwnFlightModel) {
  model("group.oaw", value_text("title", same_values(168, "6")));
  fill_row(kP38H, {"0", "", "Lightning"});
  table.g1update();
  const AircraftSummary summary = install();
  EXPECT_EQ(folder.read("Planes.dat")[4], '\6');
  EXPECT_EQ(folder.read("group.oaw"), value_text("title", same_values(168, "6")))
      << "copied as a group file too";
  EXPECT_EQ(summary.remarks.front(),
            "slot P38H: it has no flight model of its own, so the group's was taken");
}

TEST_F(AircraftInstaller, NamesOfUsedRowsAreSetByRecordNumberAndTheOthersKept) {
  std::vector<std::string> old(30, "Old");
  write_names(old);
  use(kP38H, "29", "", "  Lightning  ");
  use(kP51B, "", "", "Mustang");
  install();
  std::vector<std::string> expected = old;
  expected[29] = "Lightning";
  expected[0] = "Mustang";
  EXPECT_EQ(read_names(), expected);
  EXPECT_EQ(names.PNameList, expected);
}

TEST_F(AircraftInstaller, RecordNumberWithoutANameIsASubscriptError) {
  for (const char* number : {"30", "-1", "1000"}) {
    write_names();
    use(kP38H, number, "", "Nobody");
    const std::string report = install_error();
    EXPECT_NE(report.find("subscript " + std::string(number)), std::string::npos) << report;
    EXPECT_NE(report.find("column PlnDat of row 1, slot P38H"), std::string::npos) << report;
  }
}

TEST_F(AircraftInstaller, WithoutANameFileNoneIsCreatedAndTheViewIsNotRefreshed) {
  use(kP38H, "0", "P38");
  flight_model("P38", "1");
  model("group.oaw", value_text("title", same_values(168, "9")));
  table.switch_view();  // all thirty slots are shown
  const AircraftSummary summary = install();
  EXPECT_FALSE(folder.has("pnames.str"));
  EXPECT_EQ(summary.slots, 30u);
  EXPECT_EQ(table.shown_slots().size(), 30u);
  EXPECT_EQ(folder.read("Planes.dat")[4], '\11')
      << "an unused row took the group's own flight model for record 0";
  EXPECT_EQ(summary.remarks, std::vector<std::string>{kNoNames});
}

TEST_F(AircraftInstaller, WithANameFileTheViewShowsUsedRowsAndOnlyTheyAreInstalled) {
  write_names();
  use(kP38H, "0", "P38");
  flight_model("P38", "1");
  model("group.oaw", value_text("title", same_values(168, "9")));
  table.switch_view();
  const AircraftSummary summary = install();
  EXPECT_EQ(summary.slots, 1u);
  EXPECT_EQ(table.shown_slots(), std::vector<int>{kP38H});
  EXPECT_EQ(folder.read("Planes.dat")[4], '\1');
}

TEST_F(AircraftInstaller, NameFileThatTheGroupBringsIsUsed) {
  model("pnames.str", compose_pilot_names({}, ""));
  use(kP38H, "3", "", "Lightning");
  install();
  EXPECT_EQ(read_names()[3], "Lightning");
}

TEST_F(AircraftInstaller, MenusGetTheNamesOfTheirRecordsInOrder) {
  std::vector<std::string> texts;
  for (int record = 0; record < kPlaneCount; ++record) texts.push_back("N" + std::to_string(record));
  write_names(texts);
  const auto whole_menu = [](const std::vector<std::string>& entries) {
    std::string bytes(35, 'h');
    for (const std::string& entry : entries) {
      bytes += static_cast<char>(entry.size() + 1);
      bytes += "\0\0\0"s + entry + "\0"s + std::string(15, 't');
    }
    return bytes;
  };
  const std::vector<std::string> old(9, "Old");
  folder.write("picplnb.mnu", whole_menu(old) + "tail");
  folder.write("PICPLNA.MNU", whole_menu(old));
  folder.write("picplng.mnu", whole_menu(std::vector<std::string>(11, "Alt")));
  const AircraftSummary summary = install();
  EXPECT_EQ(folder.read("picplnb.mnu"),
            whole_menu({"N13", "N11", "N10", "N9", "N14", "N12", "Old", "Old", "Old"}));
  EXPECT_EQ(folder.read("PICPLNA.MNU"),
            whole_menu({"N5", "N3", "N4", "N2", "N0", "N1", "Old", "Old", "Old"}));
  EXPECT_EQ(folder.read("picplng.mnu"),
            whole_menu({"N18", "N17", "N22", "N23", "N16", "N24", "N20", "N19", "Alt", "Alt", "Alt"}));
  EXPECT_EQ(summary.menus, 3u);
}

TEST_F(AircraftInstaller, NamesTooLongForAMenuAreCut) {
  std::vector<std::string> texts(30);
  texts[13] = std::string(300, 'n');
  write_names(texts);
  folder.write("picplnb.mnu", "");
  install();
  const std::string written_menu = folder.read("picplnb.mnu");
  EXPECT_EQ(written_menu[35], '\xFF');
  EXPECT_EQ(written_menu.substr(39, 256), std::string(254, 'n') + std::string(2, '\0'));
  EXPECT_EQ(read_names()[13], std::string(300, 'n'));
}

TEST_F(AircraftInstaller, MissingMenusAreNotCreated) {
  write_names();
  EXPECT_EQ(install().menus, 0u);
  EXPECT_EQ(game_names(), std::vector<std::string>{"pnames.str"});
}

TEST_F(AircraftInstaller, ErrorStopsTheRunAndKeepsWhatWasDone) {
  write_names();
  folder.write("picplnb.mnu", "old menu");
  model("group.dat", "group");
  use(kP38H, "0", "P38", "Lightning");
  use(kP51B, "4", "P51", "Mustang");
  flight_model("P38", "1");
  model("P38/a.flt", "flight model");
  model("P51/bad.oaw", "title\r\n1\r\n300\r\n");
  const std::string report = install_error();
  EXPECT_NE(report.find("line 3 of"), std::string::npos) << report;
  EXPECT_NE(report.find("P51\\bad.oaw"), std::string::npos) << report;
  EXPECT_EQ(folder.read("group.dat"), "group");
  EXPECT_EQ(read_names()[4], "Mustang");
  EXPECT_EQ(folder.read("Planes.dat").size(), 4u + 216u * 4u + 1u)
      << "the value before the bad one was written";
  EXPECT_FALSE(folder.has("P38H.flt"));
  EXPECT_EQ(folder.read("picplnb.mnu"), "old menu");
}

TEST_F(AircraftInstaller, InstallingAgainGivesTheSameGameFolder) {
  write_names();
  use(kP38H, "0", "P38", "Lightning");
  flight_model("P38", "1");
  model("P38/a.flt", "flight model");
  model("P38/a.lo2", value_text("title", same_values(60, "5")));
  model("group.dat", "group");
  std::string made_menu(35, 'h');
  for (int entry = 0; entry < 9; ++entry) made_menu += "\1\0\0\0\0"s + std::string(15, 't');
  folder.write("picplna.mnu", made_menu);
  install();
  const auto once = folder.tree();
  const AircraftSummary summary = install();
  EXPECT_EQ(folder.tree(), once);
  EXPECT_EQ(summary.copied, 0u);
  EXPECT_EQ(summary.unchanged, 2u);
}

TEST_F(AircraftInstaller, ChangesTheDiskInTheOrderOfItsSteps) {
  write_names();
  use(kP38H, "0", "P38", "Lightning");
  use(kP51B, "4", "P51", "Mustang");
  wear(kP38H, "RAF", "Spit");
  folder.write("~Vorlund/SkinStore/RAF/Spit/p.tpc", "skin");
  model("group.dat", "group");
  for (const char* name : {"P38", "P51"}) {
    flight_model(name, "1");
    model(name + "/a.lo1"s, "title\r\n1\r\n2\r\n");
    model(name + "/a.flt"s, "flight model");
  }
  folder.write("picplng.mnu", "menu");
  test::RecordingFileSystem recording(*files);
  install_aircraft_set({recording, folder.path()}, status, table, names, menu);
  std::vector<std::string> changes = recording.changes();
  for (std::string& change : changes) change = change.substr(change.rfind('\\') + 1);
  EXPECT_EQ(changes, (std::vector<std::string>{"group.dat", "pnames.str (flushed)", "Planes.dat (flushed)",
                                               "loadout.dat (flushed)", "P38H.flt", "p.tpc", "P51B.flt",
                                               "picplng.mnu (flushed)"}));
}

TEST_F(AircraftInstaller, ProgressNeverGoesBack) {
  write_names();
  for (int row = 1; row <= 30; ++row) use(row, std::to_string(row - 1), "M" + std::to_string(row % 3));
  for (const char* name : {"M0", "M1", "M2"}) model(name + "/a.flt"s, "flight model");
  for (const char* name : {"a", "b", "c"}) model(name, "group");
  install();
  const std::vector<double>& fractions = status.fractions;
  EXPECT_GT(fractions.size(), 60u);
  EXPECT_TRUE(std::is_sorted(fractions.begin(), fractions.end()));
  EXPECT_GE(fractions.front(), 0);
  EXPECT_LE(fractions.back(), 1);
}

TEST_F(AircraftInstaller, SaysInPlainWordsWhatMayBeASurprise) {
  write_names();
  use(kP38H, "0", "Missing");
  use(kP51B, "", "P51");
  use(kSP09, "11", "");
  wear(kSP09, "RAF", "Gone");
  folder.make_folder("~Vorlund/FlightModels/1944/P51");
  EXPECT_EQ(install().text(),
            "3 slots, 6 remarks\n"
            "slot P38H: the group has no flight-model folder \"Missing\"\n"
            "slot P51B: the flight-model folder \"P51\" has no .oaw file, so Planes.dat keeps its record\n"
            "slot P51B: it has no record number, so 0 was taken\n"
            "slot P51B: it has the record number of slot P38H (0), whose data it replaced\n"
            "slot SP09: it has no flight model\n"
            "slot SP09: the store has no skin folder \"RAF\\Gone\"");
}

TEST(AircraftSummary, CountsInWords) {
  AircraftSummary summary;
  summary.slots = 1;
  summary.copied = 1;
  summary.unchanged = 2;
  summary.records = 1;
  summary.menus = 1;
  EXPECT_EQ(
      summary.text(),
      "1 slot, 1 file copied, 2 files already in place, 1 aircraft record written, 1 picture menu written");
}

}  // namespace
}  // namespace vorlund
