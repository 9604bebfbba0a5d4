// SPDX-License-Identifier: GPL-3.0-or-later
#include "MeasuredSignal.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <vector>

namespace tracewell {
namespace {

/// Where the trace goes through its middle, in samples; noise near the middle counts once.
struct Edges {
  std::vector<double> rising;
  std::vector<double> falling;
};

class Levels {
 public:
  explicit Levels(const Screen::Trace& trace) : trace_(trace) {
    const auto [low, high] = std::ranges::minmax(trace);
    lowest = low;
    highest = high;
    top = plateau([&](int unit) { return unit > middle(); }, highest);
    base = plateau([&](int unit) { return unit < middle(); }, lowest);
  }

  double lowest = 0;
  double highest = 0;
  /// Where the signal rests: the mean of what is no farther from each end than 0.3 of the swing.
  double top = 0;
  double base = 0;

  double middle() const { return (lowest + highest) / 2; }
  /// Too little above the noise to have edges.
  bool isFlat() const { return highest - lowest < 0.5 * Screen::unitsPerDivision; }

 private:
  template <class Side>
  double plateau(Side isOnSide, double extreme) const {
    double sum = 0;
    int count = 0;
    for (const int unit : trace_) {
      if (isOnSide(unit) && std::fabs(unit - extreme) <= 0.3 * (highest - lowest)) {
        sum += unit;
        ++count;
      }
    }
    return count == 0 ? extreme : sum / count;
  }
  const Screen::Trace& trace_;
};

Edges findEdges(const Screen::Trace& trace, const Levels& levels) {
  Edges edges;
  const double guard = 0.15 * (levels.highest - levels.lowest);
  int side = 0;
  for (std::size_t i = 1; i < trace.size(); ++i) {
    const double unit = trace[i];
    const int now = unit > levels.middle() + guard ? 1 : unit < levels.middle() - guard ? -1 : side;
    if (side != 0 && now != side) {
      // Back to the last step through the middle itself.
      std::size_t at = i;
      const auto isBeyond = [&](std::size_t k) {
        return now > 0 ? trace[k] > levels.middle() : trace[k] < levels.middle();
      };
      while (at > 1 && isBeyond(at - 1)) --at;
      const double step = trace[at] - trace[at - 1];
      const double part = step == 0 ? 0 : (levels.middle() - trace[at - 1]) / step;
      (now > 0 ? edges.rising : edges.falling).push_back(static_cast<double>(at) - 1 + part);
    }
    side = now;
  }
  return edges;
}

/// Mean distance of edges of one kind.
std::optional<double> period(const Edges& edges) {
  for (const std::vector<double>* kind : {&edges.rising, &edges.falling})
    if (kind->size() >= 2)
      return (kind->back() - kind->front()) / static_cast<double>(kind->size() - 1);
  return std::nullopt;
}

/// Distance from an edge of one kind to the next of the other.
std::optional<double> width(const std::vector<double>& from, const std::vector<double>& to) {
  for (const double start : from)
    for (const double end : to)
      if (end > start) return end - start;
  return std::nullopt;
}

/// Samples from 10 % to 90 % around a middle crossing.
std::optional<double> transition(const Screen::Trace& trace, const Levels& levels,
                                 const std::vector<double>& edges, int direction) {
  if (edges.empty()) return std::nullopt;
  const double low = levels.base + 0.1 * (levels.top - levels.base);
  const double high = levels.base + 0.9 * (levels.top - levels.base);
  auto first = static_cast<std::ptrdiff_t>(edges.front());
  auto last = first + 1;
  const auto unit = [&](std::ptrdiff_t i) { return trace[static_cast<std::size_t>(i)]; };
  while (first > 0 && (direction > 0 ? unit(first) > low : unit(first) < high)) --first;
  while (last < std::ssize(trace) - 1 && (direction > 0 ? unit(last) < high : unit(last) > low))
    ++last;
  return static_cast<double>(last - first);
}

double rootMeanSquare(const Screen::Trace& trace) {
  double sum = 0;
  for (const int unit : trace) sum += static_cast<double>(unit) * unit;
  return std::sqrt(sum / static_cast<double>(trace.size()));
}

double mean(const Screen::Trace& trace) {
  return std::accumulate(trace.begin(), trace.end(), 0.0) / static_cast<double>(trace.size());
}

}  // namespace

std::optional<std::string> measure(const std::string& item, const Screen::Trace& trace,
                                   double voltsPerDivision, double secondsPerDivision) {
  const Levels levels(trace);
  const std::map<std::string, double> units = {{"VPP", levels.highest - levels.lowest},
                                               {"VAMP", levels.top - levels.base},
                                               {"VAV", mean(trace)},
                                               {"VRMS", rootMeanSquare(trace)},
                                               {"VHI", levels.top},
                                               {"VLO", levels.base},
                                               {"VMAX", levels.highest},
                                               {"VMIN", levels.lowest}};
  if (const auto found = units.find(item); found != units.end())
    return fourDigits(found->second / Screen::unitsPerDivision * voltsPerDivision, "V");

  const Edges edges = levels.isFlat() ? Edges{} : findEdges(trace, levels);
  const std::optional<double> positive = width(edges.rising, edges.falling);
  const std::optional<double> samples = period(edges);
  const double secondsPerSample = secondsPerDivision / Screen::unitsPerDivision;
  const auto time = [&](std::optional<double> count) {
    return count ? fourDigits(*count * secondsPerSample, "s") : "N/A";
  };
  if (item == "FREQ") return samples ? fourDigits(1 / (*samples * secondsPerSample), "Hz") : "N/A";
  if (item == "PER") return time(samples);
  if (item == "RIS") return time(transition(trace, levels, edges.rising, 1));
  if (item == "FALL") return time(transition(trace, levels, edges.falling, -1));
  if (item == "PWID") return time(positive);
  if (item == "NWID") return time(width(edges.falling, edges.rising));
  if (item == "PDUT")
    return samples && positive ? fourDigits(100 * *positive / *samples, "%") : "N/A";
  return std::nullopt;
}

}  // namespace tracewell
