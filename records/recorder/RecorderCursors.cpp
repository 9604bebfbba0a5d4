// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderCursors.h"

#include <algorithm>
#include <cmath>

#include "Graph.h"
#include "Numbers.h"
#include "RecorderWords.h"
#include "TrueUnits.h"

namespace tracewell {
namespace {

double valueAt(const RecorderAxis& axis, double share) {
  return axis.low + share * (axis.high - axis.low);
}

std::string plainText(double value, const std::string& unit) {
  return unit == "div" || unit.starts_with("dB") ? formatTwoDecimals(value) + " " + unit
                                                 : numberWithUnit(value, unit);
}

/// Levels count from 1 V, their difference does not.
std::string unitOfDifference(const std::string& unit) {
  return unit == "dBV" ? "dB" : unit;
}

std::vector<std::string> plainTexts(const RecorderAxis& axis, const std::array<double, 2>& at,
                                    const std::string& difference) {
  const bool isMagnitude = difference.starts_with('|');
  const double one = valueAt(axis, at[0]);
  const double other = valueAt(axis, at[1]);
  return {"P1 = " + plainText(one, axis.unit), "P2 = " + plainText(other, axis.unit),
          difference + " = " +
              plainText(isMagnitude ? std::fabs(one - other) : one - other,
                        unitOfDifference(axis.unit))};
}

}  // namespace

void RecorderCursors::move(std::size_t cursor, double to) {
  at().at(cursor) = std::clamp(to, 0.0, 1.0);
}

std::vector<std::string> cursorTexts(const RecorderCursors& cursors, const RecorderPicture& picture,
                                     int channel) {
  if (cursors.kind == RecorderCursors::off || picture.curves.empty()) return {};
  const bool isAcross = cursors.kind == RecorderCursors::across;
  const auto& own = picture.y.at(static_cast<std::size_t>(channel - 1));
  const auto& other = picture.y.at(static_cast<std::size_t>(2 - channel));
  const RecorderAxis& axis = isAcross ? picture.x : own ? *own : *other;
  const auto& at = cursors.at();
  if (picture.mode == RecorderMode::spectrum) return plainTexts(axis, at, isAcross ? "|Δf|" : "Δ");
  const auto perDivision =
      isAcross && picture.mode == RecorderMode::trace
          ? picture.secondsPerDivision
          : picture.voltsPerDivision.at(isAcross ? 0 : static_cast<std::size_t>(channel - 1));
  if (!perDivision) return plainTexts(axis, at, "Δ");
  const auto units = [&](double share) {
    return valueAt(axis, share) / *perDivision * Graph::unitsPerDivision;
  };
  if (isAcross && picture.mode == RecorderMode::trace)
    return timeBadge(*perDivision, units(at[0]), units(at[1]));
  std::vector<std::string> texts = voltageBadge(*perDivision, 0.0, units(at[0]), units(at[1]));
  // Of two axes it is that of the channel pointed at.
  if (picture.mode == RecorderMode::trace && own && other)
    texts.insert(texts.begin(), channelName(channel));
  return texts;
}

}  // namespace tracewell
