// Writes the flight-model groups of the sample store.
#include "sample_flight_models.h"

#include <algorithm>
#include <string>

#include "sample_aircraft.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

constexpr Variant kVariants[] = {Variant::kStandard, Variant::kHistorical, Variant::kRelaxed};

std::string seed_of(std::size_t record, std::string_view kind, Variant variant) {
  return std::string(group_name(variant)) + "/" + std::string(aircraft_types().at(record).code) +
         std::string(kind);
}

/// Lines of one number each below a title. Some of the store's authors wrote a word behind the number.
std::string value_lines(std::string_view title, const auto& values, std::string_view remark_after) {
  std::string lines = std::string(title) + "\n";
  std::size_t index = 0;
  for (const int value : values) {
    lines += std::to_string(value);
    if (!remark_after.empty() && (index == 4 || index == 5 || index == 36 || index == 37)) {
      lines += "\t" + std::string(remark_after) + " " + std::to_string(index + 1);
    }
    lines += "\n";
    ++index;
  }
  return lines;
}

/// Whether the group has a model of the aircraft: the first has all, the others grew by and by.
bool has_model(std::size_t record, Variant variant) {
  switch (variant) {
    case Variant::kStandard:
      return true;
    case Variant::kHistorical:
      return record % 3 == 2 || record == 4;
    case Variant::kRelaxed:
      return record % 7 == 3;
  }
  return false;
}

void write_model(SampleFolder& folder, std::size_t record, Variant variant) {
  const AircraftType& type = aircraft_types()[record];
  std::string name(type.name);
  if (variant == Variant::kHistorical) {
    name += " 1944";
  }
  const std::string path = "~Vorlund/FlightModels/" + std::string(group_name(variant)) + "/" + name + "/" +
                           std::string(type.source);
  std::string lines =
      value_lines(type.name, flight_model_values(record, variant), record % 5 == 0 ? "value" : "");
  if (record % 4 == 1) {
    lines += "Notes: climb checked at 10,000 ft, stall a little early.\n";
  }
  folder.text(path + (record % 3 == 0 ? ".OAW" : ".oaw"), lines);
  folder.text(path + ".lo1", value_lines("Load-outs of " + std::string(type.name),
                                         first_load_out_values(record, variant), ""));
  folder.text(
      path + (record % 2 == 0 ? ".lo2" : ".LO2"),
      value_lines("Stations of " + std::string(type.name), second_load_out_values(record, variant), ""));
  folder.file(path + ".flt", flight_file(record, variant));
}

}  // namespace

std::string_view group_name(Variant variant) {
  switch (variant) {
    case Variant::kStandard:
      return "Standard 2.1";
    case Variant::kHistorical:
      return "Historical 1944";
    case Variant::kRelaxed:
      return "Relaxed weekend";
  }
  return {};
}

std::array<int, kFlightModelValues> flight_model_values(std::size_t record, Variant variant) {
  const AircraftType& type = aircraft_types().at(record);
  Random random(seed_of(record, ".oaw", variant));
  std::array<int, kFlightModelValues> values{};
  // Most of a record are small numbers and pairs of low and high bytes.
  for (std::size_t index = 0; index < values.size(); ++index) {
    values[index] =
        index % 2 == 0 ? random.between(0, 255) : random.between(0, random.chance(0.3) ? 120 : 20);
  }
  const int role = type.role == Role::kFighter ? 1 : type.role == Role::kBomber ? 2 : 3;
  const int flags = (type.side == Side::kGerman ? 128 : 0) + 8 * random.between(0, 9);
  values[0] = static_cast<int>(record);
  values[4] = flags + (type.flyable == Flyable::kYes ? 4 : 0) + role;
  values[5] = 4 * random.between(0, 12) + static_cast<int>(type.side);
  const int fuel = variant == Variant::kRelaxed ? std::min(65535, type.fuel * 6 / 5) : type.fuel;
  values[36] = fuel % 256;
  values[37] = fuel / 256;
  for (std::size_t k = 0; k < 4; ++k) {
    values[164 + k] = static_cast<unsigned char>(type.code[k]);
  }
  return values;
}

std::vector<int> first_load_out_values(std::size_t record, Variant variant) {
  Random random(seed_of(record, ".lo1", variant));
  std::vector<int> values;
  for (int k = 0; k < aircraft_types().at(record).load_outs * 44; ++k) {
    values.push_back(k % 44 == 0 ? static_cast<int>(record) : random.chance(0.6) ? 0 : random.between(1, 60));
  }
  return values;
}

std::vector<int> second_load_out_values(std::size_t record, Variant variant) {
  Random random(seed_of(record, ".lo2", variant));
  std::vector<int> values;
  for (int k = 0; k < 60; ++k) {
    values.push_back(k % 12 == 0          ? static_cast<int>(record)
                     : random.chance(0.5) ? 0
                                          : random.between(1, 120));
  }
  return values;
}

std::string flight_file(std::size_t record, Variant variant) {
  return made_content("model.flt", seed_of(record, ".flt", variant));
}

std::vector<std::pair<std::string, std::string>> group_files(Variant variant) {
  std::vector<std::pair<std::string, std::string>> files;
  for (const char* name : {"GUNS.DAT", "weapons.dat", "Drag.bin"}) {
    files.emplace_back(name, made_content(name, group_name(variant)));
  }
  files.emplace_back("FMnotes.txt",
                     std::string(group_name(variant)) +
                         "\r\nCommon tables of guns, weapons and drag for all models of this group.\r\n");
  return files;
}

void write_flight_models(SampleFolder& folder) {
  for (const Variant variant : kVariants) {
    for (const auto& [name, bytes] : group_files(variant)) {
      folder.file("~Vorlund/FlightModels/" + std::string(group_name(variant)) + "/" + name, bytes);
    }
    for (std::size_t record = 0; record < aircraft_types().size(); ++record) {
      if (has_model(record, variant)) {
        write_model(folder, record, variant);
      }
    }
  }
}

}  // namespace vorlund::sample
