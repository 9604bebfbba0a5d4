// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScreenMarks.h"

#include <algorithm>

#include "TraceBanner.h"
#include "TraceMarks.h"
#include "TrueUnits.h"

namespace tracewell {
namespace {

using Side = GraphMarks::Side;

Side::Direction directionOf(double lowest, double highest, const Axis& axis) {
  if (lowest > axis.maximum()) return Side::above;
  return highest < axis.minimum() ? Side::below : Side::here;
}

bool isPositionKnown(const frmDSO& main, const Channel& channel) {
  return main.known.isKnown(ofChannel(Setting::position1, channel.number));
}

/// The flag at the zero, and an arrow to a trace that has left the screen.
void addSides(std::vector<Side>& sides, const frmDSO& main, const Channel& channel) {
  if (!channel.isDisplayed || !channel.plot.isShown()) return;
  const Axis& axis = main.graphDSO.axis("YAxis-1");
  const std::string text = std::to_string(channel.number);
  Side::Direction zero = Side::here;
  if (const auto height = zeroOf(main, channel); height && isPositionKnown(main, channel)) {
    zero = directionOf(*height, *height, axis);
    sides.push_back({channel.number, zero, *height, text});
  }
  const auto [lowest, highest] = std::ranges::minmax(channel.plot.y());
  const Side::Direction trace = directionOf(lowest, highest, axis);
  if (trace != Side::here && trace != zero) sides.push_back({channel.number, trace, lowest, text});
}

/// At a trace that is math, and at no other.
void addMathName(std::vector<GraphMarks::Text>& names, const frmDSO& main, const Channel& channel) {
  const std::optional<int> entry = channel.record.madeUnder.mathEntry;
  if (entry && channel.isDisplayed && hasTrace(channel))
    names.push_back({channel.number, main.cbMath.items().at(static_cast<std::size_t>(*entry))});
}

void addReferenceName(std::vector<GraphMarks::Text>& names, const frmDSO& main, int number) {
  const Plot& plot = main.graphDSO.plot(number);
  if (plot.isShown())
    names.push_back({number, referenceText(main.services().words, plot.label(), plot.scale())});
}

/// A phase between two sweeps means nothing.
std::vector<std::string> timeLines(const frmDSO& main, const Cursor& cur1, const Cursor& cur2) {
  std::vector<std::string> lines;
  if (const auto scale = secondsOfTraces(main))
    lines = timeBadge(*scale, cur1.xPosition(), cur2.xPosition());
  const auto& [first, second] = main.channels;
  if (hasTrace(first) && hasTrace(second) && !areOfOneSweep(main))
    lines.push_back(main.services().words.say("%1, %2: different sweeps",
                                              {first.display.caption(), second.display.caption()}));
  return lines;
}

std::vector<std::string> voltageLines(const frmDSO& main, const Channel& channel,
                                      const Cursor& cur1, const Cursor& cur2) {
  const std::optional<double> scale = voltsOfTrace(main, channel);
  if (!scale) return {};
  const std::optional<double> zero = zeroOf(main, channel);
  std::vector<std::string> lines = voltageBadge(*scale, zero, cur1.yPosition(), cur2.yPosition());
  // The read-out below the graph counts from its centre.
  if (zero)
    lines.insert(lines.begin(),
                 main.services().words.say("from the zero of %1:", {channel.display.caption()}));
  return lines;
}

/// Volts in the colour of the channel whose scale counts.
std::vector<GraphMarks::Text> badge(const frmDSO& main) {
  if (main.opOff.value()) return {};
  const Cursor& cur1 = main.graphDSO.cursor("cur1");
  const Cursor& cur2 = main.graphDSO.cursor("cur2");
  const Channel& measured = channelOfReadout(main);
  const bool isOfTime = main.opTime.value();
  std::vector<GraphMarks::Text> badge;
  for (const std::string& line :
       isOfTime ? timeLines(main, cur1, cur2) : voltageLines(main, measured, cur1, cur2))
    badge.push_back({isOfTime ? 0 : measured.number, line});
  return badge;
}

}  // namespace

GraphMarks screenMarks(const frmDSO& main) {
  GraphMarks marks;
  for (const Channel& channel : main.channels) {
    addSides(marks.sides, main, channel);
    const Setting scale = ofChannel(Setting::scale1, channel.number);
    if (channel.isDisplayed && main.known.number(scale))
      marks.scales.push_back(
          {channel.number, channel.display.caption() + " " + *main.known.caption(scale)});
    addMathName(marks.names, main, channel);
  }
  if (main.known.secondsPerDivision())
    marks.scales.push_back({0, *main.known.caption(Setting::timeBase)});
  for (int number = ScopeGraph::firstReference; number <= ScopeGraph::plotCount; ++number)
    addReferenceName(marks.names, main, number);
  marks.badge = badge(main);
  marks.banner = traceBanner(main);
  return marks;
}

std::vector<GraphMarks::Text> valuesAt(const frmDSO& main, double x, double y) {
  std::vector<GraphMarks::Text> values;
  for (const Channel& channel : main.channels) {
    const auto scale = voltsOfTrace(main, channel);
    const auto zero = zeroOf(main, channel);
    if (channel.isDisplayed && zero && scale)
      values.push_back({channel.number, valueOf(y - *zero, *scale, "V")});
  }
  if (const auto scale = secondsOfTraces(main)) values.push_back({0, valueOf(x, *scale, "s")});
  return values;
}

}  // namespace tracewell
