// What the benchmarks share: a stopwatch, the median, and how a time grows with the work.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace vorlund::bench {

inline double seconds_of(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

/// The median of the ratios of each round, so that a machine that is slow for a while is slow for both sides.
inline double median_ratio(const std::vector<double>& numerators, const std::vector<double>& denominators) {
  std::vector<double> ratios;
  std::transform(numerators.begin(), numerators.end(), denominators.begin(), std::back_inserter(ratios),
                 std::divides());
  return median(ratios);
}

/// Time of one amount of work.
struct GrowthPoint {
  int size = 0;
  double seconds = 0;  ///< median of the rounds
  double ratio = 0;    ///< to the size before; 0 for the first
};

/// Measures each size in turn, round after round. `measure` is given the index of a size and returns seconds.
inline std::vector<GrowthPoint> measure_growth(const std::vector<int>& sizes, int rounds,
                                               const std::function<double(std::size_t)>& measure) {
  std::vector<std::vector<double>> seconds(sizes.size());
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t index = 0; index < sizes.size(); ++index) seconds[index].push_back(measure(index));
  }
  std::vector<GrowthPoint> points;
  for (std::size_t index = 0; index < sizes.size(); ++index) {
    const double ratio = index == 0 ? 0 : median_ratio(seconds[index], seconds[index - 1]);
    points.push_back({sizes[index], median(seconds[index]), ratio});
  }
  return points;
}

/// Writes a line of size and seconds for each point, as plotting programs read them.
inline void write_growth(const std::string& file, const std::vector<GrowthPoint>& points) {
  std::ofstream lines(file);
  for (const GrowthPoint& point : points) lines << point.size << ' ' << point.seconds << '\n';
}

}  // namespace vorlund::bench
