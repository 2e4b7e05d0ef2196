// Works through the shown slots of the plane table, one step for all slots after the other.
#include "aircraft/aircraft_installer.h"

#include <algorithm>
#include <array>

#include "aircraft/aircraft_remarks.h"
#include "aircraft/flight_model_folder.h"
#include "aircraft/loadout_data.h"
#include "aircraft/plane_codes.h"
#include "aircraft/planes_data.h"
#include "core/action_error.h"
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

/// A stretch of the whole work, for the progress shown.
struct Stretch {
  double from;
  double to;
};
constexpr Stretch kGroupFiles = {0, 0.3};
constexpr Stretch kRecords = {0.3, 0.4};
constexpr Stretch kLoadouts = {0.4, 0.5};
constexpr Stretch kSlotFiles = {0.5, 0.95};
constexpr Stretch kMenuFiles = {0.95, 1};

class Installation {
 public:
  Installation(Environment& environment, PlaneTable& table, PilotNames& names, MenuEditor& menu_editor)
      : environment_(environment), table_(table), names_(names), menu_editor_(menu_editor) {}

  AircraftSummary run() {
    copy_group_files();
    write_names();
    seen_.slots = table_.shown_slots();
    summary_.slots = seen_.slots.size();
    write_records();
    write_loadouts();
    for (std::size_t index = 0; index < seen_.slots.size(); ++index) {
      copy_flight_model(index);
      copy_skin(index);
    }
    write_menus();
    summary_.records = seen_.slots.size() - seen_.without_flight_model.size();
    summary_.remarks = aircraft_remarks(environment_, table_, seen_);
    if (!summary_.names) {
      summary_.remarks.emplace_back("the game folder has no pnames.str, so no names were written");
    }
    return summary_;
  }

 private:
  void report(std::string_view file, Stretch stretch, std::size_t index, std::size_t count) const {
    const double share = static_cast<double>(index) / static_cast<double>(count);
    environment_.status.progress({file, stretch.from + (stretch.to - stretch.from) * share});
  }

  const std::string& cell(int row, int column) const { return table_.G1.cell(row, column); }

  void copy(const std::string& source, const std::string& name) {
    const CopyOutcome outcome =
        environment_.files.copy_file(source, environment_.game.path("\\") + name, Durability::kCached);
    ++(outcome == CopyOutcome::kWritten ? summary_.copied : summary_.unchanged);
  }

  /// Lists the folder and copies its matching files under their own names.
  void copy_all(const std::string& folder, std::string_view pattern, Stretch stretch) {
    selected_.path = folder;
    list_pattern(environment_.files, selected_, pattern);
    const std::vector<std::string>& found = selected_.names;
    for (std::size_t index = 0; index < found.size(); ++index) {
      report(found[index], stretch, index, found.size());
      copy(folder + "\\" + found[index], found[index]);
    }
  }

  void copy_group_files() { copy_all(flight_model_group_folder(environment_, table_), "*.*", kGroupFiles); }

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
      report("Planes.dat", kRecords, index, seen_.slots.size());
      const int row = seen_.slots[index];
      const OawOutcome outcome = OawWrite(environment_, table_, row, selected_);
      if (outcome == OawOutcome::kNoFlightModel) seen_.without_flight_model.push_back(row);
    }
  }

  /// Deliberate: every slot's load-out comes from the folder of the last slot, which the records' step has
  /// left selected. Sets are made so that their last slot's folder carries the load-outs of all.
  void write_loadouts() {
    for (std::size_t index = 0; index < seen_.slots.size(); ++index) {
      report("loadout.dat", kLoadouts, index, seen_.slots.size());
      const LoadOutOutcome outcome = LoadOutWrite(environment_, table_, seen_.slots[index], selected_);
      seen_.loadouts = seen_.loadouts || outcome.first_area || outcome.second_area;
    }
  }

  Stretch stretch_of_slot(std::size_t index) const {
    const double share = (kSlotFiles.to - kSlotFiles.from) / static_cast<double>(seen_.slots.size());
    const double from = kSlotFiles.from + share * static_cast<double>(index);
    return {from, from + share};
  }

  void copy_flight_model(std::size_t index) {
    const int row = seen_.slots[index];
    selected_.path = flight_model_folder(environment_, table_, row);
    list_pattern(environment_.files, selected_, "*.flt");
    if (selected_.names.empty()) return;
    const std::string name = cell(row, PlaneTable::kSlot) + ".flt";
    if (!is_plain_name(name)) {
      throw ActionError("install the flight model of", table_.describe_cell(row, PlaneTable::kSlot),
                        "\"" + name + "\" can't be the name of a file in the game folder");
    }
    report(name, stretch_of_slot(index), 0, 1);
    copy(selected_.path + "\\" + selected_.names.front(), name);
  }

  void copy_skin(std::size_t index) {
    const std::string& region = cell(seen_.slots[index], PlaneTable::kRegion);
    const std::string& folder = cell(seen_.slots[index], PlaneTable::kSkinFolder);
    if (!is_plain_name(region) || !is_plain_name(folder)) return;
    copy_all(environment_.game.path(kSkinStore) + "\\" + region + "\\" + folder, kSkinPattern,
             stretch_of_slot(index));
  }

  void write_menus() {
    for (std::size_t country = 0; country < kMenus.size(); ++country) {
      report(kMenus[country].substr(1), kMenuFiles, country, kMenus.size());
      menu_editor_.CountryBut_Click(static_cast<int>(country));
      menu_editor_.pmenread();
      int entry = 0;
      for (const int record : kMenuRecords[country]) menu_editor_.set_name(entry++, names_.name(record));
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
  AircraftSummary summary_;
};

std::string counted(std::uint64_t count, std::string_view one, std::string_view many) {
  return std::to_string(count) + " " + std::string(count == 1 ? one : many);
}

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
  const FileSystem::Action action(
      environment.files, [&] { environment.status.pulse(); }, environment.game.path(kStore));
  return Installation(environment, table, names, menu_editor).run();
}

}  // namespace vorlund
