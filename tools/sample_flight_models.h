// The flight-model groups of the sample store.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace vorlund::sample {

/// The group that has a model of every aircraft, and that is installed.
inline constexpr char kStandardGroup[] = "Standard 2.1";

/// The 168 values of an aircraft's ".oaw" file, the first bytes of its record in Planes.dat: the first is its
/// record number, the fifth and sixth hold side, role and whether it can be flown, the 37th and 38th its
/// fuel, the last four its code.
std::vector<int> flight_model_values(std::size_t record, const std::string& group);

/// Values of a ".lo1" file: 7 or 3 records of 44.
std::vector<int> first_load_out_values(std::size_t record, const std::string& group);

/// Values of a ".lo2" file: 5 records of 12.
std::vector<int> second_load_out_values(std::size_t record, const std::string& group);

/// Bytes of the aircraft's ".flt" file.
std::string flight_file(std::size_t record, const std::string& group);

/// Files that stand in the group's folder itself: name and bytes.
std::vector<std::pair<std::string, std::string>> group_files(const std::string& group);

}  // namespace vorlund::sample
