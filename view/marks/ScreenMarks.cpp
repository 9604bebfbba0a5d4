// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScreenMarks.h"

#include <algorithm>

#include "KnownScales.h"
#include "TrueUnits.h"

namespace tracewell {
namespace {

using Side = GraphMarks::Side;

/// A channel as far as it is known.
struct ShownChannel {
  int number;
  bool isDisplayed;
  const Plot& plot;
  const ValueLabel& scale;
  const CheckBox& box;
  /// Height of its zero, in graph units.
  std::optional<double> zero;
  std::optional<double> voltsPerDivision;
};

ShownChannel channel(const frmDSO& main, int number) {
  const bool isFirst = number == 1;
  const ValueLabel& scale = isFirst ? main.lblChan1 : main.lblChan2;
  const Slide& slide = isFirst ? main.slideCH1 : main.slideCH2;
  const double position = isFirst ? main.Ch1Pos : main.Ch2Pos;
  ShownChannel shown{number,      main.ChanOn[isFirst ? 0 : 1],      main.graphDSO.plot(number),
                     scale,       isFirst ? main.cbCh1 : main.cbCh2, std::nullopt,
                     std::nullopt};
  if (!slide.isUnread() && !slide.isStale()) shown.zero = position * Graph::unitsPerDivision;
  shown.voltsPerDivision = voltsPerDivision(main, number);
  return shown;
}

Side::Direction directionOf(double lowest, double highest, const Axis& axis) {
  if (lowest > axis.maximum()) return Side::above;
  return highest < axis.minimum() ? Side::below : Side::here;
}

/// The flag at the zero, and an arrow to a trace that has left the screen.
void addSides(std::vector<Side>& sides, const ShownChannel& channel, const Axis& axis) {
  if (!channel.isDisplayed || !channel.plot.isShown()) return;
  const std::string text = std::to_string(channel.number);
  Side::Direction zero = Side::here;
  if (channel.zero) {
    zero = directionOf(*channel.zero, *channel.zero, axis);
    sides.push_back({channel.number, zero, *channel.zero, text});
  }
  const auto [lowest, highest] = std::ranges::minmax(channel.plot.y());
  const Side::Direction trace = directionOf(lowest, highest, axis);
  if (trace != Side::here && trace != zero) sides.push_back({channel.number, trace, lowest, text});
}

void addMathName(std::vector<GraphMarks::Text>& names, const frmDSO& main) {
  const int number = mathChannel(main);
  if (number != 0 && main.ChanOn[number == 1 ? 0 : 1] && main.graphDSO.plot(number).isShown())
    names.push_back({number, main.cbMath.items()[static_cast<std::size_t>(*main.MathEntry)]});
}

std::vector<std::string> timeLines(const frmDSO& main, const Cursor& cur1, const Cursor& cur2) {
  const std::optional<double> scale = secondsOfTraces(main);
  if (!scale) return {};
  return timeBadge(*scale, cur1.xPosition(), cur2.xPosition());
}

std::vector<std::string> voltageLines(const frmDSO& main, const ShownChannel& channel,
                                      const Cursor& cur1, const Cursor& cur2) {
  const std::optional<double> scale = voltsOfTrace(main, channel.number);
  if (!scale) return {};
  return voltageBadge(*scale, channel.zero, cur1.yPosition(), cur2.yPosition());
}

/// Volts in the colour of the channel whose scale counts.
std::vector<GraphMarks::Text> badge(const frmDSO& main) {
  if (main.opOff.value()) return {};
  const Cursor& cur1 = main.graphDSO.cursor("cur1");
  const Cursor& cur2 = main.graphDSO.cursor("cur2");
  const ShownChannel measured = channel(main, main.cbCurChan.text() == "1" ? 1 : 2);
  std::vector<GraphMarks::Text> badge;
  for (const std::string& line :
       main.CursorTimeMode ? timeLines(main, cur1, cur2) : voltageLines(main, measured, cur1, cur2))
    badge.push_back({main.CursorTimeMode ? 0 : measured.number, line});
  return badge;
}

}  // namespace

GraphMarks screenMarks(const frmDSO& main) {
  GraphMarks marks;
  for (const int number : {1, 2}) {
    const ShownChannel shown = channel(main, number);
    addSides(marks.sides, shown, main.graphDSO.axis("YAxis-1"));
    if (shown.isDisplayed && shown.voltsPerDivision)
      marks.scales.push_back({number, shown.box.caption() + " " + shown.scale.caption()});
  }
  if (secondsPerDivision(main)) marks.scales.push_back({0, main.lblTime.caption()});
  addMathName(marks.names, main);
  for (int number = ScopeGraph::firstReference; number <= ScopeGraph::plotCount; ++number) {
    const Plot& plot = main.graphDSO.plot(number);
    if (plot.isShown()) marks.names.push_back({number, plot.name()});
  }
  marks.badge = badge(main);
  return marks;
}

std::vector<GraphMarks::Text> valuesAt(const frmDSO& main, double x, double y) {
  std::vector<GraphMarks::Text> values;
  for (const int number : {1, 2}) {
    const ShownChannel shown = channel(main, number);
    const std::optional<double> scale = voltsOfTrace(main, number);
    if (shown.isDisplayed && shown.zero && scale)
      values.push_back({number, valueOf(y - *shown.zero, *scale, "V")});
  }
  if (const auto scale = secondsOfTraces(main)) values.push_back({0, valueOf(x, *scale, "s")});
  return values;
}

}  // namespace tracewell
