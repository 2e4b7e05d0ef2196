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
#include "base/action_error.h"
#include "base/plain_name.h"
#include "base/text.h"
#include "disk/copier.h"
#include "disk/patch_file.h"
#include "disk/store.h"

namespace vorlund {

namespace {

/// Files of a skin that the game reads.
constexpr std::string_view kSkinPattern = "*.3dz;*.tpc;vcg*.dat";

/// Record numbers in the order of each menu's entries: British, American, German.
const std::array<std::vector<int>, 3> kMenuRecords = {
    {{13, 11, 10, 9, 14, 12}, {5, 3, 4, 2, 0, 1}, {18, 17, 22, 23, 16, 24, 20, 19}}};

class Installation {
 public:
  Installation(const GameFolder& game, Status& status, PlaneTable& table, PilotNames& names,
               PictureMenu& menu)
      : game_(game), status_(status), table_(table), names_(names), menu_(menu), copier_(game, status) {}

  AircraftSummary run() {
    look_ahead();
    copy_all(flight_model_group_folder(game_, table_));
    write_names();
    seen_.slots = table_.shown_slots();
    write_records();
    write_loadouts();
    for (const int row : seen_.slots) {
      status_.row(row);
      copy_flight_model(row);
      copy_all(skin_folder(row));
    }
    status_.row(0);
    write_menus();
    summary_.slots = seen_.slots.size();
    summary_.copied = copier_.copied();
    summary_.unchanged = copier_.unchanged();
    summary_.records = seen_.slots.size() - seen_.without_flight_model.size();
    summary_.remarks = aircraft_remarks(game_, table_, seen_);
    if (!summary_.names) {
      summary_.remarks.emplace_back("the game folder has no pnames.str, so no names were written");
    }
    return summary_;
  }

 private:
  [[nodiscard]] std::string cell(int row, int column) const { return table_.cell(row, column); }

  void look_ahead() {
    list_ahead(flight_model_group_folder(game_, table_), "*.*");
    for (int row = 1; row < table_.row_count(); ++row) {
      if (!table_.is_used(row)) continue;
      copier_.expect(3);  // the aircraft record, the load-out and the flight model
      list_ahead(skin_folder(row), kSkinPattern);
    }
    copier_.expect(kCountries.size());
  }

  void list_ahead(const std::string& folder, std::string_view pattern) {
    if (folder.empty() || !game_.files.FolderExists(folder)) return;
    const auto [listed, first] = listed_.try_emplace(folder, game_.files, folder, pattern);
    copier_.expect(listed->second.count());
  }

  /// Copies the files of a folder that was listed ahead under their own names; none where it was not.
  void copy_all(const std::string& folder) {
    const auto listed = listed_.find(folder);
    if (listed == listed_.end()) return;
    for (const std::string& name : listed->second.names()) {
      copier_.reach(name);
      copier_.copy(folder + "\\" + name, game_.path("\\") + name);
    }
  }

  void write_names() {
    // Deliberate: without the name file the view is not refreshed either, and what it shows is installed.
    if (!game_.files.is_there(game_.path(kPilotNames))) return;
    names_.LoadPnames(game_);
    table_.g1update();
    for (const int row : table_.shown_slots()) {
      const int record = table_.record_number(row);
      if (record < 0 || record >= kPlaneCount) {
        throw ActionError("set the name of", table_.describe_cell(row, PlaneTable::kRecordNumber),
                          "subscript " + std::to_string(record) + " is not in 0 to 29");
      }
      names_.set_name(record, cell(row, PlaneTable::kPlaneName));
    }
    names_.SavePnames(game_);
    summary_.names = true;
  }

  void write_records() {
    PatchedFile planes(game_.files, game_.path(kPlanesData));
    planes.patch([&] {
      for (const int row : seen_.slots) {
        copier_.reach("Planes.dat");
        if (!OawWrite(game_, table_, row, planes)) seen_.without_flight_model.push_back(row);
      }
    });
  }

  /// Deliberate: every slot's load-out comes from the flight-model folder of the last slot. Sets are made so
  /// that their last slot's folder carries the load-outs of all.
  void write_loadouts() {
    if (seen_.slots.empty()) return;
    const std::string folder = flight_model_folder(game_, table_, seen_.slots.back());
    PatchedFile loadouts(game_.files, game_.path(kLoadoutData));
    loadouts.patch([&] {
      for (const int row : seen_.slots) {
        copier_.reach("loadout.dat");
        const LoadOutOutcome outcome = LoadOutWrite(game_, table_, row, folder, loadouts);
        seen_.loadouts = seen_.loadouts || outcome.first_area || outcome.second_area;
      }
    });
  }

  void copy_flight_model(int row) {
    const std::string name = cell(row, PlaneTable::kSlot) + ".flt";
    copier_.reach(name);
    const std::string folder = flight_model_folder(game_, table_, row);
    const std::vector<std::string> models = list_model_files(game_.files, folder, "*.flt");
    if (models.empty()) return;
    if (!stays_below(name)) {
      throw ActionError("install the flight model of", table_.describe_cell(row, PlaneTable::kSlot),
                        "\"" + name + "\" leads out of the game folder");
    }
    copier_.copy(folder + "\\" + models.front(), game_.path("\\") + name);
  }

  /// Where a row's skin lies; "" where it has none.
  [[nodiscard]] std::string skin_folder(int row) const {
    const std::string region = cell(row, PlaneTable::kRegion);
    const std::string folder = cell(row, PlaneTable::kSkinFolder);
    if (region.empty() || folder.empty() || !stays_below(region) || !stays_below(folder)) return {};
    return game_.path(kSkinStore) + "\\" + region + "\\" + folder;
  }

  void write_menus() {
    for (const Country country : kCountries) {
      copier_.reach(picture_menu_file(country).substr(1));
      pmenread(game_, country, menu_);
      // Without a name list the menus keep the names that they have.
      const std::vector<int>& records = kMenuRecords.at(static_cast<std::size_t>(country));
      for (std::size_t entry = 0; names_.were_read() && entry < records.size(); ++entry) {
        menu_.set_name(entry, names_.name(records[entry]));
      }
      if (pmenwrite(game_, country, menu_)) ++summary_.menus;
    }
  }

  const GameFolder& game_;
  Status& status_;
  PlaneTable& table_;
  PilotNames& names_;
  PictureMenu& menu_;
  Copier copier_;
  std::map<std::string, ListedAhead> listed_;  // by folder
  InstallObservations seen_;
  AircraftSummary summary_;
};

}  // namespace

std::string AircraftSummary::text() const {
  std::string text;
  const auto say = [&text](std::uint64_t count, const std::string& words) {
    if (count > 0) text.append(text.empty() ? "" : ", ").append(words);
  };
  say(slots, counted(slots, "slot", "slots"));
  say(copied, counted(copied, "file", "files") + " copied");
  say(unchanged, counted(unchanged, "file", "files") + " already in place");
  say(records, counted(records, "aircraft record", "aircraft records") + " written");
  say(menus, counted(menus, "picture menu", "picture menus") + " written");
  if (text.empty()) text = "There was nothing to install";
  say(remarks.size(), counted(remarks.size(), "remark", "remarks"));
  for (const std::string& remark : remarks) text += "\n" + remark;
  return text;
}

AircraftSummary install_aircraft_set(const GameFolder& game, Status& status, PlaneTable& table,
                                     PilotNames& names, PictureMenu& menu) {
  return Installation(game, status, table, names, menu).run();
}

}  // namespace vorlund
