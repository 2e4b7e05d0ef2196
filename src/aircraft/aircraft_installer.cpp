// Works through the shown slots of the plane table, one step for all slots after the other.
#include "aircraft/aircraft_installer.h"

#include <algorithm>
#include <array>
#include <map>

#include "aircraft/aircraft_remarks.h"
#include "aircraft/flight_model_folder.h"
#include "aircraft/loadout_data.h"
#include "aircraft/plane_codes.h"
#include "aircraft/planes_data.h"
#include "core/action_error.h"
#include "core/copier.h"
#include "core/patch_file.h"
#include "core/plain_name.h"
#include "core/store.h"

namespace vorlund {

namespace {

/// Files of a skin that the game reads.
constexpr std::string_view kSkinPattern = "*.3dz;*.tpc;vcg*.dat";

/// Record numbers in the order of each menu's entries: British, American, German.
const std::array<std::vector<int>, 3> kMenuRecords = {
    {{13, 11, 10, 9, 14, 12}, {5, 3, 4, 2, 0, 1}, {18, 17, 22, 23, 16, 24, 20, 19}}};
constexpr std::array<std::string_view, 3> kMenus = {kBritishPictureMenu, kAmericanPictureMenu,
                                                    kGermanPictureMenu};

class Installation {
 public:
  Installation(Environment& environment, PlaneTable& table, PilotNames& names, MenuEditor& menu_editor)
      : environment_(environment),
        table_(table),
        names_(names),
        menu_editor_(menu_editor),
        copier_(environment) {}

  AircraftSummary run() {
    look_ahead();
    copy_all(flight_model_group_folder(environment_, table_), "*.*");
    write_names();
    seen_.slots = table_.shown_slots();
    summary_.slots = seen_.slots.size();
    write_records();
    write_loadouts();
    for (const int row : seen_.slots) {
      copy_flight_model(row);
      if (const std::string folder = skin_folder(row); !folder.empty()) copy_all(folder, kSkinPattern);
    }
    write_menus();
    summary_.copied = copier_.copied();
    summary_.unchanged = copier_.unchanged();
    summary_.records = seen_.slots.size() - seen_.without_flight_model.size();
    summary_.remarks = aircraft_remarks(environment_, table_, seen_);
    if (!summary_.names) {
      summary_.remarks.emplace_back("the game folder has no pnames.str, so no names were written");
    }
    return summary_;
  }

 private:
  const std::string& cell(int row, int column) const { return table_.G1.cell(row, column); }

  void look_ahead() {
    list_ahead(flight_model_group_folder(environment_, table_), "*.*");
    for (int row = 1; row < table_.G1.row_count(); ++row) {
      if (!table_.is_used(row)) continue;
      copier_.expect(3);  // the aircraft record, the load-out and the flight model
      list_ahead(skin_folder(row), kSkinPattern);
    }
    copier_.expect(kMenus.size());
  }

  void list_ahead(const std::string& folder, std::string_view pattern) {
    if (folder.empty() || !environment_.files.FolderExists(folder)) return;
    const auto [listed, first] = listed_.try_emplace(folder, environment_.files, folder, pattern);
    copier_.expect(listed->second.count());
  }

  /// Copies the files of a folder that was listed ahead under their own names.
  void copy_all(const std::string& folder, std::string_view pattern) {
    selected_.path = folder;
    selected_.pattern = pattern;
    const auto listed = listed_.find(folder);
    if (listed == listed_.end()) return;
    for (const std::string& name : listed->second.names()) {
      copier_.reach(name);
      copier_.copy(folder + "\\" + name, environment_.game.path("\\") + name);
    }
  }

  void write_names() {
    // Deliberate: without the name file the view is not refreshed either, and what it shows is installed.
    if (!is_there(environment_.files, environment_.game.path(kPilotNames))) return;
    names_.LoadPnames(environment_);
    table_.g1update();
    for (const int row : table_.shown_slots()) {
      const int record = table_.record_number(row);
      if (record < 0 || record >= kPlaneCount) {
        throw ActionError("set the name of", table_.describe_cell(row, PlaneTable::kRecordNumber),
                          "subscript " + std::to_string(record) + " is not in 0 to 29");
      }
      names_.set_name(record, cell(row, PlaneTable::kPlaneName));
    }
    names_.SavePnames(environment_);
    summary_.names = true;
  }

  void write_records() {
    for (std::size_t index = 0; index < seen_.slots.size(); ++index) {
      copier_.reach("Planes.dat");
      const int row = seen_.slots[index];
      const OawOutcome outcome = OawWrite(environment_, table_, row, selected_);
      if (outcome == OawOutcome::kNoFlightModel) seen_.without_flight_model.push_back(row);
    }
  }

  /// Deliberate: every slot's load-out comes from the folder of the last slot, which the records' step has
  /// left selected. Sets are made so that their last slot's folder carries the load-outs of all.
  void write_loadouts() {
    for (std::size_t index = 0; index < seen_.slots.size(); ++index) {
      copier_.reach("loadout.dat");
      const LoadOutOutcome outcome = LoadOutWrite(environment_, table_, seen_.slots[index], selected_);
      seen_.loadouts = seen_.loadouts || outcome.first_area || outcome.second_area;
    }
  }

  void copy_flight_model(int row) {
    const std::string name = cell(row, PlaneTable::kSlot) + ".flt";
    copier_.reach(name);
    selected_.path = flight_model_folder(environment_, table_, row);
    list_pattern(environment_.files, selected_, "*.flt");
    if (selected_.names.empty()) return;
    if (!stays_below(name)) {
      throw ActionError("install the flight model of", table_.describe_cell(row, PlaneTable::kSlot),
                        "\"" + name + "\" leads out of the game folder");
    }
    copier_.copy(selected_.path + "\\" + selected_.names.front(), environment_.game.path("\\") + name);
  }

  /// Where a row's skin lies; "" where it has none.
  std::string skin_folder(int row) const {
    const std::string& region = cell(row, PlaneTable::kRegion);
    const std::string& folder = cell(row, PlaneTable::kSkinFolder);
    if (region.empty() || folder.empty() || !stays_below(region) || !stays_below(folder)) return {};
    return environment_.game.path(kSkinStore) + "\\" + region + "\\" + folder;
  }

  void write_menus() {
    for (std::size_t country = 0; country < kMenus.size(); ++country) {
      copier_.reach(kMenus[country].substr(1));
      menu_editor_.CountryBut_Click(static_cast<int>(country));
      menu_editor_.pmenread();
      int entry = 0;
      // Without a name list the menus keep the names that they have.
      for (const int record : kMenuRecords[country]) {
        if (names_.were_read()) menu_editor_.set_name(entry, names_.name(record));
        ++entry;
      }
      if (environment_.files.FileExists(environment_.game.path(kMenus[country]))) ++summary_.menus;
      menu_editor_.pmenwrite();
    }
  }

  Environment& environment_;
  PlaneTable& table_;
  PilotNames& names_;
  MenuEditor& menu_editor_;
  InstallObservations seen_;
  FileList selected_;  // the one listing that all steps share
  Copier copier_;
  std::map<std::string, ListedAhead> listed_;  // by folder
  AircraftSummary summary_;
};

}  // namespace

std::string AircraftSummary::text() const {
  std::string text = counted(slots, "slot", "slots") + ", " + counted(copied, "file", "files") + " copied";
  if (unchanged > 0) text += ", " + std::to_string(unchanged) + " already in place";
  text += ", " + counted(records, "aircraft record", "aircraft records") + " and " +
          counted(menus, "picture menu", "picture menus") + " written";
  if (!remarks.empty()) text += ", " + counted(remarks.size(), "remark", "remarks");
  for (const std::string& remark : remarks) text += "\n" + remark;
  return text;
}

AircraftSummary install_aircraft_set(Environment& environment, PlaneTable& table, PilotNames& names,
                                     MenuEditor& menu_editor) {
  return Installation(environment, table, names, menu_editor).run();
}

}  // namespace vorlund
