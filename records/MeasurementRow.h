// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OwnMeasurements.h"

namespace tracewell {

/// What a value must not be, as "vpp > 1.2".
struct MeasurementLimit {
  Quantity quantity = Quantity::maximum;
  bool isUpper = true;
  /// In the quantity's unit.
  double value = 0;
  /// As it is written into rows.
  std::string text;

  /// Where there is no value, its bounds decide: a clipped maximum above the limit passes it.
  bool isPassed(const OwnMeasurements& values) const;
  /// Otherwise it may be passed or not.
  bool isDecided(const OwnMeasurements& values) const;
};

/// A short name, "<" or ">", and a number or one with its unit: "vpp > 1.2", "freq<1 kHz". None for
/// any other text.
std::optional<MeasurementLimit> limitOf(std::string_view text);

/// "vpp,freq" by short names; none where one is no name, which is then `wrong`.
std::optional<std::vector<Quantity>> quantitiesOf(std::string_view text, std::string& wrong);

/// The columns of rows of measurements, as a CSV has them:
///
///     time,channel,vpp (V),freq (Hz),limits
///     2026-03-15T14:29:05.250+01:00,1,1.24,,vpp > 1.2
///
/// A value that is not defined is empty; the last column names the limits that the values pass.
struct MeasurementColumns {
  std::vector<Quantity> quantities;
  std::vector<MeasurementLimit> limits;

  std::string heading() const;
  std::string row(std::int64_t wallTime, int channel, const OwnMeasurements& values) const;
  /// Whether it is a whole row, but for its line end. One is cut, too, where its last limit is none
  /// of these.
  bool isRow(std::string_view line) const;
  /// The limits passed, "; " between them.
  std::string passed(const OwnMeasurements& values) const;
  /// All limits are decided.
  bool areDecided(const OwnMeasurements& values) const;
};

}  // namespace tracewell
