// SPDX-License-Identifier: GPL-3.0-or-later
#include "Edges.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

#include "Converter.h"

namespace tracewell {
namespace {

/// Shares of the way from one state to the other.
constexpr double edgeBegins = 0.25;
constexpr double edgeEnds = 0.75;
constexpr double durationBegins = 0.1;
constexpr double durationEnds = 0.9;
/// So far noise may carry a sample back over the limits of the duration.
constexpr double noiseAllowed = 0.05;

/// The record as shares of the way that an edge goes: 0 where it comes from, 1 where it leads.
class Way {
 public:
  Way(const Samples& samples, const Levels& levels, bool isRising)
      : samples_(samples),
        from_(isRising ? levels.low() : levels.high()),
        length_(isRising ? levels.height() : -levels.height()) {}

  double at(std::size_t sample) const { return (samples_[sample] - from_) / length_; }
  /// When it goes from below a level to it, between a sample and the next.
  bool reaches(double level, std::size_t sample) const {
    return at(sample) < level && at(sample + 1) >= level;
  }
  double reachedAt(double level, std::size_t sample) const {
    return static_cast<double>(sample) + (level - at(sample)) / (at(sample + 1) - at(sample));
  }

 private:
  const Samples& samples_;
  double from_;
  double length_;
};

/// The samples between which an edge goes.
struct Span {
  bool isRising;
  /// The last one not above edgeBegins, and the first one not below edgeEnds.
  std::size_t first;
  std::size_t last;
};

std::vector<Span> spansOf(const Samples& samples, const Levels& levels) {
  const Way up(samples, levels, true);
  std::vector<Span> spans;
  std::optional<bool> isUp;
  std::size_t left = 0;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double share = up.at(i);
    if (share > edgeBegins && share < edgeEnds) continue;
    const bool isUpNow = share >= edgeEnds;
    if (isUp && *isUp != isUpNow) spans.push_back({isUpNow, left, i});
    isUp = isUpNow;
    left = i;
  }
  return spans;
}

/// When the straight line that fits the samples from `first` to `last` best is at a level; noise
/// has less to say there than in the two samples around it. None where that is not between them.
std::optional<double> reachedByLine(const Way& way, double level, std::size_t first,
                                    std::size_t last) {
  constexpr std::size_t fewest = 4;
  const std::size_t count = last + 1 - first;
  if (last < first || count < fewest) return std::nullopt;
  const double middle = static_cast<double>(first + last) / 2;
  double sum = 0;
  double products = 0;
  double squares = 0;
  for (std::size_t i = first; i <= last; ++i) {
    const double time = static_cast<double>(i) - middle;
    sum += way.at(i);
    products += way.at(i) * time;
    squares += time * time;
  }
  if (products <= 0) return std::nullopt;
  const double fromMiddle = (level - sum / static_cast<double>(count)) * squares / products;
  const bool isInside = 2 * std::fabs(fromMiddle) <= static_cast<double>(count);
  return isInside ? std::optional(middle + fromMiddle) : std::nullopt;
}

struct Middle {
  double at;
  double error;
};
/// `noise` is a share of the way.
Middle middleOf(const Way& way, const Span& span, double noise) {
  // Of a time that is anywhere between two samples.
  constexpr double errorBetween = 0.289;
  const auto length = static_cast<double>(span.last - span.first);
  const double ofNoise = noise * length / (way.at(span.last) - way.at(span.first));
  const auto fitted = reachedByLine(way, 0.5, span.first + 1, span.last - 1);
  if (fitted) return {*fitted, ofNoise / std::sqrt(length - 1)};
  std::size_t i = span.first;
  while (!way.reaches(0.5, i)) ++i;
  return {way.reachedAt(0.5, i), std::max(ofNoise, length > 1 ? 0 : errorBetween)};
}

/// When a limit of the duration is reached. Where noise carries a slow edge over it more than once
/// that is in the middle between the first and the last time. `begin` and `end` are samples.
std::optional<double> limitReached(const Way& way, double level, std::size_t begin,
                                   std::size_t end) {
  std::optional<double> first;
  double last = 0;
  for (std::size_t i = begin; i < end; ++i) {
    if (!way.reaches(level, i)) continue;
    last = way.reachedAt(level, i);
    if (!first) first = last;
  }
  return first ? std::optional((*first + last) / 2) : std::nullopt;
}

/// The same by the samples around, for an edge that has so many.
double refined(const Way& way, double level, double reached, const Span& span, std::size_t end) {
  // Of the span; the signal is straight for as long.
  constexpr double straight = 0.2;
  const double reach = straight * static_cast<double>(span.last - span.first);
  const double first = std::max(0.0, std::ceil(reached - reach));
  const double last = std::min(static_cast<double>(end), std::floor(reached + reach));
  return reachedByLine(way, level, static_cast<std::size_t>(first), static_cast<std::size_t>(last))
      .value_or(reached);
}

/// `begin` and `end` are the samples between which no other edge is.
std::optional<double> durationOf(const Way& way, const Span& span, std::size_t begin,
                                 std::size_t end) {
  // Faster ones are over before noise can do much, and it is not to be looked at beside them.
  constexpr std::size_t slowest = 4;
  const bool isSlow = span.last - span.first > slowest;
  const double margin = isSlow ? noiseAllowed : 0;
  std::size_t before = span.first;
  while (before > begin && way.at(before) > durationBegins - margin) --before;
  std::size_t behind = span.last;
  while (behind < end && way.at(behind) < durationEnds + margin) ++behind;
  const auto from = limitReached(way, durationBegins, before, span.last);
  const auto to = limitReached(way, durationEnds, span.first, behind);
  if (!from || !to) return std::nullopt;
  return refined(way, durationEnds, *to, span, end) -
         refined(way, durationBegins, *from, span, end);
}

/// Least squares of instants that should be first + i * period.
struct Line {
  double meanIndex = 0;
  double meanInstant = 0;
  double products = 0;
  double squares = 0;

  explicit Line(std::span<const double> instants) {
    const auto count = static_cast<double>(instants.size());
    meanIndex = (count - 1) / 2;
    for (const double instant : instants) meanInstant += instant / count;
    for (std::size_t i = 0; i < instants.size(); ++i) {
      const double index = static_cast<double>(i) - meanIndex;
      products += index * (instants[i] - meanInstant);
      squares += index * index;
    }
  }
  double first(double period) const { return meanInstant - meanIndex * period; }
};

/// The standard error of an edge: as each of them has it, or as they miss their times.
double errorOf(const std::vector<Edge>& edges, double misses) {
  // Of fewer the misses tell nothing: period and two instants have been fitted to them.
  constexpr std::size_t fewest = 6;
  constexpr double fitted = 3;
  double squares = 0;
  for (const Edge& edge : edges) squares += edge.error * edge.error;
  const auto count = static_cast<double>(edges.size());
  const double own = squares / count;
  if (edges.size() < fewest) return std::sqrt(own);
  return std::sqrt(std::max(own, misses / (count - fitted)));
}

double squaredMisses(std::span<const double> instants, double first, double period) {
  double sum = 0;
  for (std::size_t i = 0; i < instants.size(); ++i) {
    const double miss = instants[i] - first - static_cast<double>(i) * period;
    sum += miss * miss;
  }
  return sum;
}

double largestMiss(std::span<const double> instants, double first, double period) {
  double largest = 0;
  for (std::size_t i = 0; i < instants.size(); ++i)
    largest = std::max(largest, std::fabs(instants[i] - first - static_cast<double>(i) * period));
  return largest;
}

}  // namespace

std::vector<Edge> edgesOf(const Samples& samples, const Levels& levels, double noise) {
  if (levels.height() <= 0) return {};
  // Where a signal has no states its ends are the levels, whatever noise has made of them.
  const double ofLevels = levels.base && levels.top ? 0.289 * converter::step : 0;
  const std::vector<Span> spans = spansOf(samples, levels);
  std::vector<Edge> edges;
  for (std::size_t i = 0; i < spans.size(); ++i) {
    const Way way(samples, levels, spans[i].isRising);
    const std::size_t begin = i == 0 ? 0 : spans[i - 1].last;
    const std::size_t end = i + 1 == spans.size() ? samples.size() - 1 : spans[i + 1].first;
    const double slowness = static_cast<double>(spans[i].last - spans[i].first) /
                            (way.at(spans[i].last) - way.at(spans[i].first)) / levels.height();
    const Middle middle = middleOf(way, spans[i], noise / levels.height());
    edges.push_back({spans[i].isRising, middle.at, middle.error, slowness * ofLevels,
                     durationOf(way, spans[i], begin, end)});
  }
  return edges;
}

RhythmResult rhythmOf(const std::vector<Edge>& edges) {
  // Of a period, by how much an edge may miss its time.
  constexpr double mostMissed = 0.2;
  std::vector<double> rising;
  std::vector<double> falling;
  for (const Edge& edge : edges) (edge.isRising ? rising : falling).push_back(edge.middle);
  if (rising.size() < 2 && falling.size() < 2) return {};
  const Line up(rising);
  const Line down(falling);
  const double period = (up.products + down.products) / (up.squares + down.squares);
  const double error = errorOf(edges, squaredMisses(rising, up.first(period), period) +
                                          squaredMisses(falling, down.first(period), period));
  // The middle moves with both levels, to the one side for edges that rise, to the other for
  // others.
  double ofLevels = 0;
  for (const Edge& edge : edges)
    ofLevels += std::numbers::sqrt2 * edge.ofLevels / static_cast<double>(edges.size());
  Rhythm rhythm{period, error / std::sqrt(up.squares + down.squares), std::nullopt, std::nullopt,
                std::hypot(error * std::sqrt(4 / static_cast<double>(edges.size())), ofLevels)};
  if (!rising.empty()) rhythm.rising = up.first(period);
  if (!falling.empty()) rhythm.falling = down.first(period);
  const double missed = std::max(largestMiss(rising, up.first(period), period),
                                 largestMiss(falling, down.first(period), period));
  if (missed > mostMissed * period) return {std::nullopt, true};
  return {rhythm, false};
}

}  // namespace tracewell
