// Looks over the installed slots for what a player may not expect.
#include "aircraft/aircraft_remarks.h"

#include <algorithm>
#include <map>

#include "aircraft/flight_model_folder.h"
#include "base/plain_name.h"
#include "disk/store.h"

namespace vorlund {

namespace {

class Reviewer {
 public:
  Reviewer(const GameFolder& game, const PlaneTable& table, const InstallObservations& seen)
      : game_(game), table_(table), seen_(seen) {}

  std::vector<std::string> review() {
    const bool group_is_there = review_group();
    for (const int row : seen_.slots) {
      if (!table_.is_used(row)) continue;
      if (group_is_there) review_flight_model(row);
      review_skin(row);
      review_record_number(row);
    }
    if (seen_.loadouts && seen_.slots.size() > 1) {
      remarks_.push_back("the load-outs of all slots came from the flight model of the last, slot " +
                         cell(seen_.slots.back(), PlaneTable::kSlot));
    }
    return remarks_;
  }

 private:
  [[nodiscard]] std::string cell(int row, int column) const { return table_.cell(row, column); }

  void remark(int row, const std::string& text) {
    remarks_.push_back("slot " + cell(row, PlaneTable::kSlot) + ": " + text);
  }

  [[nodiscard]] bool is_there(const std::string& folder) const {
    return !folder.empty() && game_.files.FolderExists(folder);
  }

  bool review_group() {
    const std::string& group = table_.flight_model_group;
    const bool there = is_there(flight_model_group_folder(game_, table_));
    if (group.empty()) {
      remarks_.emplace_back(
          "no flight-model group is set, so \"~Vorlund\\FlightModels\" itself was taken for it");
    } else if (!there) {
      remarks_.push_back("there is no flight-model group \"" + group + "\", so none was installed");
    }
    return there;
  }

  void review_flight_model(int row) {
    const std::string name = cell(row, PlaneTable::kScriptFolder);
    const std::vector<int>& without = seen_.without_flight_model;
    const bool found = std::find(without.begin(), without.end(), row) == without.end();
    if (name.empty()) {
      remark(row, found ? "it has no flight model of its own, so the group's was taken"
                        : "it has no flight model");
    } else if (!is_there(flight_model_folder(game_, table_, row))) {
      remark(row, "the group has no flight-model folder \"" + name + "\"");
    } else if (!found) {
      remark(row,
             "the flight-model folder \"" + name + "\" has no .oaw file, so Planes.dat keeps its record");
    }
  }

  void review_skin(int row) {
    const std::string region = cell(row, PlaneTable::kRegion);
    const std::string name = cell(row, PlaneTable::kSkinFolder);
    if (region.empty() && name.empty()) return;
    if (region.empty() || name.empty()) {
      remark(row, "its skin is named by half, so none was installed");
      return;
    }
    const std::string folder = game_.path(kSkinStore) + "\\" + region + "\\" + name;
    if (!stays_below(region) || !stays_below(name) || !is_there(folder)) {
      remark(row, "the store has no skin folder \"" + region + "\\" + name + "\"");
    }
  }

  void review_record_number(int row) {
    if (cell(row, PlaneTable::kRecordNumber).empty()) remark(row, "it has no record number, so 0 was taken");
    const auto [earlier, first] = slot_of_record_.emplace(table_.record_number(row), row);
    if (first) return;
    remark(row, "it has the record number of slot " + cell(earlier->second, PlaneTable::kSlot) + " (" +
                    std::to_string(earlier->first) + "), whose data it replaced");
    earlier->second = row;
  }

  const GameFolder& game_;
  const PlaneTable& table_;
  const InstallObservations& seen_;
  std::vector<std::string> remarks_;
  std::map<int, int> slot_of_record_;
};

}  // namespace

std::vector<std::string> aircraft_remarks(const GameFolder& game, const PlaneTable& table,
                                          const InstallObservations& seen) {
  return Reviewer(game, table, seen).review();
}

}  // namespace vorlund
