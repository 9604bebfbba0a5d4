// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordTimeline.h"

#include <algorithm>
#include <cmath>

#include "RecorderWords.h"

namespace tracewell {
namespace {

/// Milliseconds; fewer records do not fill the strip.
constexpr double shortestAll = 60000;
constexpr double shortestShown = 5000;

std::int64_t rounded(double milliseconds) {
  return static_cast<std::int64_t>(std::floor(milliseconds));
}

}  // namespace

RecordTimeline::Range RecordTimeline::all() const {
  if (store_.size() == 0) return {0, shortestAll};
  const auto from = static_cast<double>(store_.facts(store_.first()).sweepAt);
  const auto to = static_cast<double>(store_.facts(store_.end() - 1).sweepAt);
  // A little room beside the first and the newest.
  const double length = std::max(shortestAll, to - from) * 1.01;
  return {from - length * 0.005, from + length};
}

void RecordTimeline::keepWithin(Range range) {
  const Range whole = all();
  if (range.length() >= whole.length()) return showAll();
  const double length = std::max(range.length(), shortestShown);
  const double from = std::clamp(range.from, whole.from, whole.to - length);
  shown_ = Range{from, from + length};
}

void RecordTimeline::zoom(double factor, double fraction) {
  const Range seen = range();
  const double length = std::max(seen.length() * factor, shortestShown);
  const double fixed = seen.from + seen.length() * fraction;
  keepWithin({fixed - length * fraction, fixed + length * (1 - fraction)});
}

void RecordTimeline::pan(double share) {
  const Range seen = range();
  const double by = seen.length() * share;
  keepWithin({seen.from + by, seen.to + by});
}

void RecordTimeline::reveal(Number number) {
  if (!shown_ || !store_.isKept(number)) return;
  const auto time = static_cast<double>(store_.facts(number).sweepAt);
  const double margin = shown_->length() * 0.05;
  if (time > shown_->to - margin)
    keepWithin({time + margin - shown_->length(), time + margin});
  else if (time < shown_->from + margin)
    keepWithin({time - margin, time - margin + shown_->length()});
}

std::optional<RecordTimeline::Number> RecordTimeline::at(double fraction, int channel) const {
  const Range seen = range();
  const std::int64_t time = rounded(seen.from + seen.length() * fraction);
  const auto isWanted = [&](Number number) {
    return channel == 0 || store_.facts(number).channel == channel;
  };
  Number later = store_.firstSince(time);
  Number earlier = later - 1;
  while (later < store_.end() && !isWanted(later)) ++later;
  while (earlier >= store_.first() && !isWanted(earlier)) --earlier;
  if (later >= store_.end())
    return earlier >= store_.first() ? std::optional(earlier) : std::nullopt;
  if (earlier < store_.first()) return later;
  const bool isLaterNearer =
      store_.facts(later).sweepAt - time < time - store_.facts(earlier).sweepAt;
  return isLaterNearer ? later : earlier;
}

int RecordTimeline::columnOf(Number number, int width) const {
  const Range seen = range();
  const double share =
      (static_cast<double>(store_.facts(number).sweepAt) - seen.from) / seen.length();
  return static_cast<int>(std::floor(std::clamp(share, -1.0, 2.0) * width));
}

RecordTimeline::Picture RecordTimeline::picture(int width) const {
  Picture picture;
  for (auto& columns : picture.columns)
    columns.resize(static_cast<std::size_t>(std::max(width, 0)));
  if (width <= 0 || store_.size() == 0) return picture;
  const Range seen = range();
  const Number end = store_.firstSince(rounded(seen.to) + 1);
  // Of two channels that are fetched in turn.
  constexpr double period = 2400;
  picture.barWidth = std::clamp(static_cast<int>(period / seen.length() * width * 0.7), 1, 12);
  int gapColumn = -1;
  for (Number number = store_.firstSince(rounded(seen.from)); number < end; ++number) {
    const RecordFacts& facts = store_.facts(number);
    const int place = std::clamp(columnOf(number, width), 0, width - 1);
    Column& column = picture.columns.at(
        static_cast<std::size_t>(facts.channel - 1))[static_cast<std::size_t>(place)];
    column.lowest = column.isAny ? std::min(column.lowest, facts.lowest) : facts.lowest;
    column.highest = column.isAny ? std::max(column.highest, facts.highest) : facts.highest;
    column.isAny = true;
    if (facts.gap.isAny() && place != gapColumn) {
      gapColumn = place;
      picture.gaps.push_back({place, number, ""});
    }
  }
  for (const auto& [number, name] : store_.pinned()) {
    const int place = columnOf(number, width);
    if (place >= 0 && place < width) picture.pins.push_back({place, number, name});
  }
  addTimes(picture, width);
  return picture;
}

/// At round times of the clock on the wall, as that stood at the newest record.
void RecordTimeline::addTimes(Picture& picture, int width) const {
  constexpr double seconds[] = {1,   2,   5,    10,   15,   30,    60,    120,   300,
                                600, 900, 1800, 3600, 7200, 14400, 21600, 43200, 86400};
  constexpr int roomOfTime = 90;
  const Range seen = range();
  const double wanted = seen.length() / 1000 * roomOfTime / width;
  const auto* const found = std::ranges::lower_bound(seconds, wanted);
  const double step = 1000 * (found == std::end(seconds) ? wanted : *found);
  const RecordFacts& newest = store_.facts(store_.end() - 1);
  const double toWall = static_cast<double>(newest.wallTime - newest.sweepAt);
  for (double time = std::ceil((seen.from + toWall) / step) * step; time < seen.to + toWall;
       time += step)
    picture.times.push_back({static_cast<int>((time - toWall - seen.from) / seen.length() * width),
                             0, timeOfDay(rounded(time), false)});
}

}  // namespace tracewell
