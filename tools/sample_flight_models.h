// The flight-model groups of the sample store.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "sample_folder.h"

namespace vorlund::sample {

/// Number of values in a ".oaw" file, the first 168 bytes of an aircraft's record in Planes.dat.
inline constexpr std::size_t kFlightModelValues = 168;

/// The three groups, which differ in their values.
enum class Variant { kStandard, kHistorical, kRelaxed };

/// Name of the group's folder.
std::string_view group_name(Variant variant);

/// The values of an aircraft, each 0 to 255: the first is its record number, the fifth and sixth hold side,
/// role and whether it can be flown, the 37th and 38th its fuel, the last four its code.
std::array<int, kFlightModelValues> flight_model_values(std::size_t record, Variant variant);

/// Values of a ".lo1" file: 7 or 3 records of 44.
std::vector<int> first_load_out_values(std::size_t record, Variant variant);

/// Values of a ".lo2" file: 5 records of 12.
std::vector<int> second_load_out_values(std::size_t record, Variant variant);

/// Bytes of the aircraft's ".flt" file.
std::string flight_file(std::size_t record, Variant variant);

/// Files that stand in the group's folder itself: name and bytes.
std::vector<std::pair<std::string, std::string>> group_files(Variant variant);

void write_flight_models(SampleFolder& folder);

}  // namespace vorlund::sample
