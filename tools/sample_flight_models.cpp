// Writes the flight-model groups of the sample store.
#include "sample_flight_models.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "sample_data.h"
#include "sample_folder.h"
#include "sample_random.h"

namespace vorlund::sample {
namespace {

struct Group {
  const char* name;
  const char* suffix;  ///< of its folders' names
  std::size_t step;    ///< every how manieth aircraft has a model: the later groups grew by and by
  std::size_t first;
};

constexpr Group kGroups[] = {
    {kStandardGroup, "", 1, 0}, {"Historical 1944", " 1944", 3, 2}, {"Relaxed weekend", "", 7, 3}};

std::string seed_of(std::size_t record, std::string_view kind, const std::string& group) {
  return group + "/" + aircraft_types().at(record).code + std::string(kind);
}

int place_in(const std::array<const char*, 4>& names, const std::string& name) {
  return static_cast<int>(std::ranges::find(names, name) - names.begin());
}

/// Lines of one number each below a title. Some of the store's authors wrote a word behind the number.
std::string value_lines(const std::string& title, const std::vector<int>& values, bool remarks = false) {
  std::string lines = title + "\n";
  for (std::size_t index = 0; index < values.size(); ++index) {
    const bool remarkable = index == 4 || index == 5 || index == 36 || index == 37;
    lines += std::to_string(values[index]);
    lines += remarks && remarkable ? "\tvalue " + std::to_string(index + 1) + "\n" : "\n";
  }
  return lines;
}

/// Records of load-outs: each begins with the aircraft's number, and half of the rest is 0.
std::vector<int> load_out_values(std::size_t record, const std::string& seed, int records, int size) {
  Random random(seed);
  std::vector<int> values;
  for (int index = 0; index < records * size; ++index) {
    values.push_back(index % size == 0 ? static_cast<int>(record) : std::max(0, random.between(-60, 60)));
  }
  return values;
}

void write_model(SampleFolder& folder, std::size_t record, const Group& group) {
  const AircraftType& type = aircraft_types()[record];
  const std::string path =
      "~Vorlund/FlightModels/" + std::string(group.name) + "/" + type.name + group.suffix + "/" + type.file;
  std::string lines = value_lines(type.name, flight_model_values(record, group.name), record % 5 == 0);
  if (record % 4 == 1) {
    lines += "Notes: climb checked at 10,000 ft, stall a little early.\n";
  }
  folder.text(path + (record % 3 == 0 ? ".OAW" : ".oaw"), lines);
  folder.text(path + ".lo1",
              value_lines("Load-outs of " + type.name, first_load_out_values(record, group.name)));
  folder.text(path + (record % 2 == 0 ? ".lo2" : ".LO2"),
              value_lines("Stations of " + type.name, second_load_out_values(record, group.name)));
  folder.file(path + ".flt", flight_file(record, group.name));
}

}  // namespace

std::vector<int> flight_model_values(std::size_t record, const std::string& group) {
  const AircraftType& type = aircraft_types().at(record);
  Random random(seed_of(record, ".oaw", group));
  std::vector<int> values;
  // Most of a record are small numbers and pairs of low and high bytes.
  while (values.size() < 168) {
    values.push_back(random.between(0, values.size() % 2 == 0 ? 255 : 40));
  }
  values[0] = static_cast<int>(record);
  values[4] = (type.side == "German" ? 128 : 0) + 8 * random.between(0, 9) + (type.flyable == "Yes" ? 4 : 0) +
              place_in({"", "Fighter", "Bomber", "F/B"}, type.role);
  values[5] = 4 * random.between(0, 12) + place_in({"German", "British", "American", "Allied"}, type.side);
  const int fuel = group == kStandardGroup ? type.fuel : type.fuel * 6 / 5;
  values[36] = fuel % 256;
  values[37] = fuel / 256;
  std::ranges::transform(type.code, values.end() - 4, [](unsigned char letter) { return letter; });
  return values;
}

std::vector<int> first_load_out_values(std::size_t record, const std::string& group) {
  return load_out_values(record, seed_of(record, ".lo1", group), aircraft_types().at(record).load_outs, 44);
}

std::vector<int> second_load_out_values(std::size_t record, const std::string& group) {
  return load_out_values(record, seed_of(record, ".lo2", group), 5, 12);
}

std::string flight_file(std::size_t record, const std::string& group) {
  return made_content(seed_of(record, ".flt", group), 1100);
}

std::vector<std::pair<std::string, std::string>> group_files(const std::string& group) {
  std::vector<std::pair<std::string, std::string>> files;
  for (const char* name : {"GUNS.DAT", "weapons.dat", "Drag.bin"}) {
    files.emplace_back(name, made_content(group + "/" + name, 12000));
  }
  files.emplace_back("FMnotes.txt",
                     group + "\r\nCommon tables of guns, weapons and drag for all models of this group.\r\n");
  return files;
}

void write_flight_models(SampleFolder& folder) {
  for (const Group& group : kGroups) {
    for (const auto& [name, bytes] : group_files(group.name)) {
      folder.file("~Vorlund/FlightModels/" + std::string(group.name) + "/" + name, bytes);
    }
    for (std::size_t record = group.first; record < aircraft_types().size(); record += group.step) {
      write_model(folder, record, group);
    }
  }
}

}  // namespace vorlund::sample
