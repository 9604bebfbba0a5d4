// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "ChannelRecord.h"
#include "WaveformRecord.h"

/// OwnMeasurements out of the samples of a record, without a question to the instrument.
///
/// The definitions are those of IEEE Std 181 (transitions, pulses and related waveforms), with the
/// whole record as the waveform epoch:
/// - maximum, minimum, peakToPeak: of all samples.
/// - mean, rms: of all samples, counted from the channel's zero; acRms: of their distances from the
///   mean.
/// - top, base: the levels of the two states by the histogram method (Levels.h). A signal that has
///   none, as a triangle, has its maximum and its minimum for them.
/// - amplitude: top - base. overshoot: (maximum - top) / amplitude.
/// - period: of the instants at which the signal is half-way between base and top, by least squares
///   over all of them; frequency: its inverse; duty: the share of the period from half-way up to
///   half-way down. Not told where two standard errors of it, by noise and by edges that are faster
///   than the samples, are more than 0.1 % and half a sample; duty: more than a sample.
/// - riseTime, fallTime: from 10 % to 90 % of the amplitude, the mean of all whole edges.
/// - delay: from a rising half-way instant of the first record to the nearest of the second; phase:
///   that as a part of the period, from -180 to 180 degrees, positive where the second is later.
namespace tracewell {

enum class Quantity : std::size_t {
  maximum,
  minimum,
  peakToPeak,
  mean,
  rms,
  acRms,
  top,
  base,
  amplitude,
  overshoot,
  frequency,
  period,
  duty,
  riseTime,
  fallTime,
  /// Of two records.
  phase,
  delay
};
constexpr std::size_t quantityCount = 17;

enum class QuantityUnit { volts, seconds, hertz, percent, degrees };

struct QuantityName {
  Quantity quantity;
  /// By which it is chosen and written into files: "vpp".
  std::string_view shortName;
  std::string_view longName;
  QuantityUnit unit;
};
/// In the order of Quantity.
extern const std::array<QuantityName, quantityCount> quantityNames;
const QuantityName& nameOf(Quantity quantity);
std::optional<Quantity> quantityNamed(std::string_view shortName);
/// "V", "s", "Hz", "%", "deg"
std::string_view unitText(QuantityUnit unit);

/// Why there is no value.
enum class NoValue {
  none,
  /// The bytes are no whole record.
  incomplete,
  /// Volts or seconds per division are not known for the record.
  scaleNotKnown,
  /// A sample that matters is at an edge of the converter.
  clipped,
  /// Nothing but noise.
  flat,
  /// No edge comes again in the record, or it does not hold what is to be measured as a whole.
  lessThanPeriod,
  /// Edges come, but not after equal times.
  irregular,
  /// Of an edge or a period, or of a height in steps: they do not tell the value. What could be
  /// measured is in OwnValue::atMost.
  tooFewSamples,
  /// The two records are not known to be of one sweep.
  otherSweep,
  /// The two records do not have the same period.
  otherPeriod
};
/// In English: "less than a period".
std::string_view reasonText(NoValue reason);

struct OwnValue {
  std::optional<double> value;
  NoValue reason = NoValue::none;
  /// What is known of a value that is none: of a rise time of fewer than two samples, or of a
  /// minimum that is clipped.
  std::optional<double> atMost;
  /// Of a maximum or a peak to peak that is clipped.
  std::optional<double> atLeast;

  static OwnValue of(double value) { return {value, NoValue::none, {}, {}}; }
  static OwnValue no(NoValue reason) { return {{}, reason, {}, {}}; }
};

class OwnMeasurements {
 public:
  OwnValue& operator[](Quantity quantity) { return values_[static_cast<std::size_t>(quantity)]; }
  const OwnValue& operator[](Quantity quantity) const {
    return values_[static_cast<std::size_t>(quantity)];
  }

 private:
  std::array<OwnValue, quantityCount> values_{};
};

/// What one record tells: volts, seconds, hertz, percent. Phase and delay have no value then.
OwnMeasurements measure(const ChannelRecord& record);
/// With phase and delay to a second record, which must be known to be of the same sweep.
OwnMeasurements measure(const ChannelRecord& record, const ChannelRecord& second);

/// The same in units, samples and periods per sample, for samples that are whole.
OwnMeasurements measureSamples(const Samples& samples);

/// Over many values: mean and standard deviation by Welford's method. Values that are none do not
/// count.
class Statistics {
 public:
  void add(const OwnValue& measurement);
  std::size_t count() const { return count_; }
  /// None before the first value.
  std::optional<double> mean() const;
  /// Of the sample, with count - 1; none before the second value.
  std::optional<double> standardDeviation() const;
  std::optional<double> lowest() const;
  std::optional<double> highest() const;

 private:
  std::size_t count_ = 0;
  double mean_ = 0;
  double squares_ = 0;
  double lowest_ = 0;
  double highest_ = 0;
};

}  // namespace tracewell
