// The records of what is installed in the sample folder, and the set-ups its player has saved.
#include "sample_records.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/text.h"
#include "sample_aircraft.h"
#include "sample_flight_models.h"
#include "sample_game_sets.h"
#include "sample_skins.h"

namespace vorlund::sample {
namespace {

// Rows of the last group come one by one, the other groups have a row each, filled or not.
constexpr GameRow kInstalled[] = {
    {"Careers", "Harker, 611 Squadron"}, {"Sky and clouds", "Dusk and dawn"}, {"Tweaks", "Longer contrails"}};
constexpr GameRow kSpring1944[] = {
    {"Campaigns", "Over the Reich"},      {"Careers", "Lindqvist, 4th Fighter Group"},
    {"Cockpits", "Wide view Mustang"},    {"Horizons", "Alpine haze"},
    {"Music", "Big band 1944"},           {"Patches", "See farther"},
    {"Scenery", "Railways rebuilt"},      {"Sounds", "Fifty calibre"},
    {"Sky and clouds", "Clear and cold"}, {"Terrain", "Spring greens"},
    {"Tweaks", "Longer contrails"},       {"Tweaks", "Weather by the calendar"}};
constexpr GameRow kBattleOfBritain[] = {
    {"Aircraft packs", "Early war 1940"}, {"Campaigns", "Battle of Britain"},
    {"Missions", "Channel convoys"},      {"Sky and clouds", "Big summer cumulus"},
    {"Sounds", "Browning and Hispano"},   {"Targets", "Convoys with escorts"},
    {"Terrain", "Harvest and stubble"}};
constexpr GameRow kWinterNights[] = {{"Careers", "Kessler, JG 26"},         {"Cockpits", "Night panel"},
                                     {"Hangar screens", "Café du Terrain"}, {"Missions", "Night intruder"},
                                     {"Sky and clouds", "Moonlight"},       {"Terrain", "Ardennes in snow"},
                                     {"Tweaks", "Sharper gun sight"}};

/// Lines of a game-set record.
std::string game_rows(std::span<const GameRow> rows) {
  const std::vector<GameGroup> groups = all_groups();
  std::string lines = "Folder group\tFolder name\n";
  for (const GameGroup& group : groups) {
    const bool last = group.name == groups.back().name;
    std::string names;
    for (const GameRow& row : rows) {
      if (row.group == group.name) {
        names += std::string(group.name) + "\t" + std::string(row.name) + "\n";
      }
    }
    lines += names.empty() && !last ? std::string(group.name) + "\t\n" : names;
  }
  return lines;
}

/// One slot of an aircraft set: its skin by label and its fuel.
struct Slot {
  std::string_view code;
  std::string_view label;
  std::string_view fuel;
};

constexpr Slot kFlown[] = {{"p38j", "bare metal, red spinners", "100"},
                           {"p47d", "Rhine crossing", "75"},
                           {"p51b", "olive with red nose", "100"},
                           {"p51d", "blue nose", "100"},
                           {"bb17", "olive veteran", "75"},
                           {"sp09", "dawn patrol", "100"},
                           {"sp14", "chasing bombs", "100"},
                           {"typh", "Normandy stripes", "50"},
                           {"109g", "Reich defence, red band", "100"},
                           {"109k", "Große Kurfürst", "75"},
                           {"190a", "Abbeville, yellow cowl", "100"},
                           {"262a", "bare and putty", "100"}};
constexpr Slot kSummer1940[] = {{"hurr", "Kent, summer 1940", "100"},
                                {"sp2a", "Kent, summer 1940", "100"},
                                {"109e", "yellow nose, Pas-de-Calais", "75"},
                                {"110c", "Zerstörer, day", "75"},
                                {"ju87", "summer splinter", "50"},
                                {"h111", "blitz, black below", "75"}};
constexpr Slot kNightSlots[] = {
    {"mosq", "intruder", "100"}, {"110g", "night, pale", "100"}, {"j88c", "night intruder", "100"}};

std::string_view side_text(Side side) {
  switch (side) {
    case Side::kGerman:
      return "German";
    case Side::kBritish:
      return "British";
    case Side::kAmerican:
      return "American";
    case Side::kAllied:
      return "Allied";
  }
  return {};
}

std::string_view role_text(Role role) {
  return role == Role::kFighter ? "Fighter" : role == Role::kBomber ? "Bomber" : "F/B";
}

const Skin& skin_of(const Slot& slot) {
  return *std::ranges::find_if(
      skins(), [&](const Skin& skin) { return skin.code == slot.code && skin.label == slot.label; });
}

/// Lines of an aircraft-set record.
std::string aircraft_rows(std::span<const Slot> slots) {
  std::string lines(group_name(Variant::kStandard));
  lines += "\nSlot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel %\n";
  for (std::size_t record = 0; record < aircraft_types().size(); ++record) {
    const AircraftType& type = aircraft_types()[record];
    lines += to_upper(type.code);
    const auto slot = std::ranges::find(slots, type.code, &Slot::code);
    if (slot == slots.end()) {
      lines += "\t\t\t\t\t\t\t\t\t\n";
      continue;
    }
    const Skin& skin = skin_of(*slot);
    for (const std::string& cell :
         {std::string(skin.region), folder_name(skin), std::to_string(record), std::string(type.name),
          std::string(type.name), std::string(side_text(type.side)),
          std::string(type.flyable == Flyable::kYes ? "Yes" : "No"), std::string(role_text(type.role)),
          std::string(slot->fuel)}) {
      lines += "\t" + cell;
    }
    lines += "\n";
  }
  return lines;
}

void write_installed_aircraft(SampleFolder& folder) {
  for (const auto& [name, bytes] : group_files(Variant::kStandard)) {
    folder.file(name, bytes);
  }
  for (std::size_t record = 0; record < aircraft_types().size(); ++record) {
    const auto slot = std::ranges::find(kFlown, aircraft_types()[record].code, &Slot::code);
    if (slot == std::end(kFlown)) {
      continue;
    }
    folder.file(to_upper(slot->code) + ".flt", flight_file(record, Variant::kStandard));
    const Skin& skin = skin_of(*slot);
    for (const std::string& name : skin_files(skin)) {
      folder.file(name, skin_content(skin, name));
    }
  }
}

}  // namespace

void write_records(SampleFolder& folder) {
  folder.text("~Vorlund/CurrentGameSet.txt", game_rows(kInstalled));
  folder.text("~Vorlund/GameSetFiles/Spring 1944", game_rows(kSpring1944));
  folder.text("~Vorlund/GameSetFiles/Battle of Britain", game_rows(kBattleOfBritain));
  folder.text("~Vorlund/GameSetFiles/Nächte im Winter", game_rows(kWinterNights));
  folder.text("~Vorlund/CurrentPlaneSet.txt", aircraft_rows(kFlown));
  folder.text("~Vorlund/PlaneSetFiles/Spring 1944", aircraft_rows(kFlown));
  folder.text("~Vorlund/PlaneSetFiles/Battle of Britain", aircraft_rows(kSummer1940));
  folder.text("~Vorlund/PlaneSetFiles/Night", aircraft_rows(kNightSlots));
  write_installed_sets(folder, kInstalled);
  write_installed_aircraft(folder);
}

}  // namespace vorlund::sample
