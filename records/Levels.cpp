// SPDX-License-Identifier: GPL-3.0-or-later
#include "Levels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

#include "Converter.h"

namespace tracewell {
namespace {

/// The samples of one half of the range as their distances from the middle of the range.
using Distances = std::vector<int>;

/// How many samples there are at each distance, smoothed so widely that the steps of the converter
/// do not show.
std::vector<double> smoothedHistogram(const Distances& distances) {
  constexpr std::array<double, 7> kernel = {1, 2, 3, 4, 3, 2, 1};
  constexpr std::size_t margin = kernel.size() / 2;
  const int farthest = std::ranges::max(distances);
  std::vector<double> density(static_cast<std::size_t>(farthest) + 1 + 2 * margin);
  for (const int distance : distances)
    for (std::size_t i = 0; i < kernel.size(); ++i)
      density[static_cast<std::size_t>(distance) + i] += kernel[i];
  density.erase(density.begin(), density.begin() + margin);
  return density;
}

/// How far behind `peak` the density has fallen to half.
double outerWidth(const std::vector<double>& density, std::size_t peak) {
  const double half = density[peak] / 2;
  std::size_t i = peak;
  while (i + 1 < density.size() && density[i + 1] > half) ++i;
  const double next = i + 1 < density.size() ? density[i + 1] : 0;
  return static_cast<double>(i - peak) + (density[i] - half) / (density[i] - next);
}

struct Cluster {
  double mean = 0;
  double share = 0;
};
Cluster clusterAround(const Distances& distances, double centre, double reach) {
  double sum = 0;
  double count = 0;
  for (const int distance : distances)
    if (std::fabs(distance - centre) <= reach) {
      sum += distance;
      ++count;
    }
  return {count > 0 ? sum / count : centre, count / static_cast<double>(distances.size())};
}

/// Evenly spread samples have their mean half-way; those of a sine lie 64 % out, those of a state
/// at its end. A few outliers, as noise makes them, do not count.
bool isSpreadEvenly(Distances distances) {
  constexpr double mostOfEven = 0.56;
  constexpr double outliers = 0.02;
  const auto last = static_cast<std::size_t>(
      std::lround((1 - outliers) * static_cast<double>(distances.size() - 1)));
  std::ranges::nth_element(distances, distances.begin() + static_cast<std::ptrdiff_t>(last));
  const double end = distances[last];
  const double mean = std::accumulate(distances.begin(), distances.end(), 0.0) /
                      static_cast<double>(distances.size());
  return mean < mostOfEven * end;
}

/// The distance of the state: the mean of the samples around the peak of the histogram.
std::optional<double> stateAmong(const Distances& distances, double noise) {
  // Of the half's samples, and of its height: so many of them so close are a state, whatever else.
  constexpr double mostInLevel = 0.6;
  constexpr double heightOfLevel = 0.3;
  constexpr double someInLevel = 0.4;
  constexpr double endOfTurn = 0.7;
  constexpr double reachOfWidth = 2;
  constexpr double spreadOfNoise = 3;
  constexpr double densest = 1.5;
  const std::vector<double> density = smoothedHistogram(distances);
  const auto peak = static_cast<std::size_t>(std::ranges::max_element(density) - density.begin());
  const double width = outerWidth(density, peak);
  const double reach = std::max<double>(reachOfWidth * width, converter::step);
  const Cluster around = clusterAround(distances, static_cast<double>(peak), reach);
  const Cluster level = clusterAround(distances, around.mean, reach);
  const double height = std::ranges::max(distances);
  // Where noise does not spread them they lie closer than on a slope that is passed a few times.
  const bool isOfNoise = reach <= spreadOfNoise * noise + converter::step;
  const bool isDense = isOfNoise || level.share >= densest * 2 * reach / height;
  if (level.share >= mostInLevel && reach <= heightOfLevel * height && isDense) return level.mean;
  if (isSpreadEvenly(distances)) return std::nullopt;
  if (level.share >= someInLevel && isDense) return level.mean;
  // Where the signal only turns, it does so at its end, and more of it lies inwards than there.
  if (static_cast<double>(peak) < endOfTurn * std::ranges::max(distances)) return std::nullopt;
  return clusterAround(distances, static_cast<double>(peak), reach / reachOfWidth).mean;
}

/// Of the half above the middle, or with `sign` -1 below it; distances count in half units.
std::optional<double> state(const Samples& samples, double middle, int sign, double noise) {
  const int origin = static_cast<int>(sign > 0 ? std::ceil(middle) : std::floor(middle));
  Distances distances;
  distances.reserve(samples.size());
  for (const int sample : samples)
    if (sign * (sample - origin) >= 0) distances.push_back(sign * (sample - origin));
  if (distances.empty()) return std::nullopt;
  const auto distance = stateAmong(distances, noise);
  return distance ? std::optional(origin + sign * *distance) : std::nullopt;
}

}  // namespace

Levels levelsOf(const Samples& samples, double noise) {
  const auto [minimum, maximum] = std::ranges::minmax(samples);
  Levels levels;
  levels.minimum = minimum;
  levels.maximum = maximum;
  levels.isClippedBelow = minimum <= converter::lowest;
  levels.isClippedAbove = maximum >= converter::highest;
  const double middle = (minimum + maximum) / 2.0;
  if (!levels.isClippedBelow) levels.base = state(samples, middle, -1, noise);
  if (!levels.isClippedAbove) levels.top = state(samples, middle, 1, noise);
  return levels;
}

}  // namespace tracewell
