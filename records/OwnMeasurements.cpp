// SPDX-License-Identifier: GPL-3.0-or-later
#include "OwnMeasurements.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "Converter.h"
#include "Edges.h"
#include "Harmonics.h"

namespace tracewell {
namespace {

using enum Quantity;

constexpr double samplesPerDivision = 50;
/// Samples. A shorter edge or period cannot be told from one shorter still.
constexpr double fewestOfEdge = 2;
constexpr double fewestOfPeriod = 4;
/// Units. In a lower edge 10 % and 90 % are within a step of the ends.
constexpr double leastOfEdge = 8 * converter::step;

/// What a record shows, from which all quantities follow.
struct Shape {
  Levels levels;
  std::vector<Edge> edges;
  RhythmResult repeats;
  double mean = 0;
  double meanSquare = 0;
  double variance = 0;
  /// Standard deviation.
  double noise = 0;
  bool isFlat = false;

  const std::optional<Rhythm>& rhythm() const { return repeats.rhythm; }
};

/// Samples that have nothing to do with the one before, and no outliers either.
bool isNoise(const Samples& samples, double variance, double peakToPeak) {
  constexpr double shareOfWhiteNoise = 0.7;
  constexpr double widestOfNoise = 10;
  double differences = 0;
  for (std::size_t i = 1; i < samples.size(); ++i) {
    const double difference = samples[i] - samples[i - 1];
    differences += difference * difference;
  }
  differences /= static_cast<double>(samples.size() - 1);
  return differences > shareOfWhiteNoise * 2 * variance &&
         peakToPeak < widestOfNoise * std::sqrt(variance);
}

/// How far samples lie beside the straight line through their neighbours; few edges do not count.
/// It cannot be less than what the converter makes.
double noiseOf(const Samples& samples) {
  constexpr double ofConverter = 0.289 * converter::step;
  constexpr double deviationOfMedian = 1.4826;
  const auto isClipped = [](int sample) {
    return sample <= converter::lowest || sample >= converter::highest;
  };
  std::vector<int> bends;
  bends.reserve(samples.size());
  for (std::size_t i = 2; i < samples.size(); ++i)
    if (!isClipped(samples[i - 2]) && !isClipped(samples[i - 1]) && !isClipped(samples[i]))
      bends.push_back(std::abs(samples[i - 2] - 2 * samples[i - 1] + samples[i]));
  if (bends.empty()) return ofConverter;
  const auto middle = bends.begin() + static_cast<std::ptrdiff_t>(bends.size() / 2);
  std::ranges::nth_element(bends, middle);
  // A bend has the noise of three samples, that of the middle one twice.
  return std::max(ofConverter, deviationOfMedian * *middle / std::sqrt(6.0));
}

void findEdges(const Samples& samples, Shape& shape) {
  shape.edges = edgesOf(samples, shape.levels, shape.noise);
  shape.repeats = rhythmOf(shape.edges);
}

/// The ends of a sine, and its period, are known better by all of its samples than by a few.
void takeSine(const Samples& samples, Shape& shape) {
  if (!shape.rhythm()) return;
  const auto sine = sineOf(samples, shape.rhythm()->period, shape.noise);
  if (!sine) return;
  Levels& levels = shape.levels;
  if (!levels.isClippedAbove) levels.top = sine->offset + sine->amplitude;
  if (!levels.isClippedBelow) levels.base = sine->offset - sine->amplitude;
  findEdges(samples, shape);
  shape.repeats.rhythm = {sine->period, sine->error, sine->rising, sine->rising + sine->period / 2,
                          0};
  constexpr double shareOfEdge = 0.29517;
  for (Edge& edge : shape.edges)
    if (edge.duration) edge.duration = shareOfEdge * sine->period;
}

Shape shapeOf(const Samples& samples) {
  Shape shape;
  // In whole numbers, so that a level has no trace of AC.
  constexpr auto count = static_cast<std::int64_t>(WaveformRecord::sampleCount);
  std::int64_t sum = 0;
  std::int64_t squares = 0;
  for (const std::int64_t sample : samples) {
    sum += sample;
    squares += sample * sample;
  }
  shape.mean = static_cast<double>(sum) / count;
  shape.meanSquare = static_cast<double>(squares) / count;
  shape.variance = static_cast<double>(count * squares - sum * sum) / (count * count);
  shape.noise = noiseOf(samples);
  shape.levels = levelsOf(samples, shape.noise);
  const int peakToPeak = shape.levels.maximum - shape.levels.minimum;
  shape.isFlat = peakToPeak <= 2 * converter::step;
  if (shape.isFlat) return shape;
  findEdges(samples, shape);
  takeSine(samples, shape);
  shape.isFlat = !shape.rhythm() && isNoise(samples, shape.variance, peakToPeak);
  return shape;
}

OwnValue unless(bool isClipped, double value) {
  return isClipped ? OwnValue::no(NoValue::clipped) : OwnValue::of(value);
}

/// A level is one of the histogram, or the end of a signal that has been seen whole.
OwnValue level(const Shape& shape, bool isClipped, std::optional<double> state, double end) {
  if (isClipped) return OwnValue::no(NoValue::clipped);
  if (shape.isFlat) return OwnValue::no(NoValue::flat);
  if (state) return OwnValue::of(*state);
  if (shape.rhythm()) return OwnValue::of(end);
  return OwnValue::no(shape.repeats.isIrregular ? NoValue::irregular : NoValue::lessThanPeriod);
}

void measureHeights(const Shape& shape, OwnMeasurements& found) {
  const Levels& levels = shape.levels;
  const bool isClipped = levels.isClipped();
  found[maximum] = unless(levels.isClippedAbove, levels.maximum);
  if (levels.isClippedAbove) found[maximum].atLeast = levels.maximum;
  found[minimum] = unless(levels.isClippedBelow, levels.minimum);
  if (levels.isClippedBelow) found[minimum].atMost = levels.minimum;
  found[peakToPeak] = unless(isClipped, levels.maximum - levels.minimum);
  if (isClipped) found[peakToPeak].atLeast = levels.maximum - levels.minimum;
  found[mean] = unless(isClipped, shape.mean);
  found[rms] = unless(isClipped, std::sqrt(shape.meanSquare));
  found[acRms] = unless(isClipped, std::sqrt(shape.variance));
  found[top] = level(shape, levels.isClippedAbove, levels.top, levels.maximum);
  found[base] = level(shape, levels.isClippedBelow, levels.base, levels.minimum);
  found[amplitude] = found[base].value ? found[top] : found[base];
  found[overshoot] = found[amplitude];
  if (!found[amplitude].value) return;
  const double height = *found[top].value - *found[base].value;
  found[amplitude] = OwnValue::of(height);
  found[overshoot] = OwnValue::of(100 * (levels.maximum - *found[top].value) / height);
}

NoValue whyNoRhythm(const Shape& shape) {
  if (shape.isFlat) return NoValue::flat;
  if (shape.repeats.isIrregular) return NoValue::irregular;
  if (!shape.rhythm()) return NoValue::lessThanPeriod;
  return shape.rhythm()->period < fewestOfPeriod ? NoValue::tooFewSamples : NoValue::none;
}

bool isCertain(double error, double allowed) {
  constexpr double errorsOff = 2;
  return errorsOff * error <= allowed;
}

double dutyOf(const Rhythm& rhythm) {
  const double share = (*rhythm.falling - *rhythm.rising) / rhythm.period;
  return 100 * (share - std::floor(share));
}

/// The period is to be seen also in a signal that is clipped, but not where half-way is. What
/// neither edges nor samples tell to 0.1 % or half a sample, duty to a sample, is not told.
void measureRhythm(const Shape& shape, OwnMeasurements& found) {
  const NoValue reason = whyNoRhythm(shape);
  found[period] = found[frequency] = found[duty] = OwnValue::no(reason);
  if (reason != NoValue::none) return;
  const Rhythm& rhythm = *shape.rhythm();
  const bool isPeriodCertain = isCertain(rhythm.error, std::max(0.5, 0.001 * rhythm.period));
  const auto unlessIn = [](bool isDoubtful, double value) {
    return isDoubtful ? OwnValue::no(NoValue::tooFewSamples) : OwnValue::of(value);
  };
  found[period] = unlessIn(!isPeriodCertain, rhythm.period);
  found[frequency] = unlessIn(!isPeriodCertain, 1 / rhythm.period);
  found[duty] = shape.levels.isClipped()
                    ? OwnValue::no(NoValue::clipped)
                    : unlessIn(!isCertain(rhythm.shiftError, 1), dutyOf(rhythm));
}

OwnValue edgeTime(const Shape& shape, bool isRising, const OwnValue& height) {
  if (!height.value) return height;
  if (*height.value < leastOfEdge) return OwnValue::no(NoValue::tooFewSamples);
  Statistics durations;
  for (const Edge& edge : shape.edges)
    if (edge.isRising == isRising && edge.duration) durations.add(OwnValue::of(*edge.duration));
  if (durations.count() == 0) return OwnValue::no(NoValue::lessThanPeriod);
  if (*durations.mean() >= fewestOfEdge) return OwnValue::of(*durations.mean());
  return {std::nullopt, NoValue::tooFewSamples, fewestOfEdge, {}};
}

OwnMeasurements measured(const Shape& shape) {
  OwnMeasurements found;
  measureHeights(shape, found);
  measureRhythm(shape, found);
  found[riseTime] = edgeTime(shape, true, found[amplitude]);
  found[fallTime] = edgeTime(shape, false, found[amplitude]);
  found[phase] = found[delay] = OwnValue::no(NoValue::otherSweep);
  return found;
}

bool isWhole(const ChannelRecord& record) {
  if (record.bytes.size() != WaveformRecord::byteCount) return false;
  // 0x8000 stands for no sample.
  for (std::size_t i = 0; i < WaveformRecord::sampleCount; ++i) {
    const std::size_t at = WaveformRecord::positionOf(i);
    if (record.bytes[at] == '\x80' && record.bytes[at + 1] == '\0') return false;
  }
  return true;
}

void scale(OwnValue& measurement, std::optional<double> factor) {
  if (!measurement.value && !measurement.atMost && !measurement.atLeast) return;
  if (!factor) {
    const bool isClipped = measurement.reason == NoValue::clipped;
    measurement = OwnValue::no(isClipped ? NoValue::clipped : NoValue::scaleNotKnown);
    return;
  }
  if (measurement.value) *measurement.value *= *factor;
  if (measurement.atMost) *measurement.atMost *= *factor;
  if (measurement.atLeast) *measurement.atLeast *= *factor;
}

/// From units and samples to volts and seconds.
void scaleAll(OwnMeasurements& found, const MadeUnder& made) {
  std::optional<double> volts;
  std::optional<double> seconds;
  std::optional<double> hertz;
  if (made.voltsPerDivision) volts = *made.voltsPerDivision / samplesPerDivision;
  if (made.secondsPerDivision) seconds = *made.secondsPerDivision / samplesPerDivision;
  if (seconds) hertz = 1 / *seconds;
  for (const QuantityName& name : quantityNames) {
    if (name.unit == QuantityUnit::volts) scale(found[name.quantity], volts);
    if (name.unit == QuantityUnit::seconds) scale(found[name.quantity], seconds);
    if (name.unit == QuantityUnit::hertz) scale(found[name.quantity], hertz);
  }
}

OwnMeasurements noneBecause(NoValue reason) {
  OwnMeasurements none;
  for (const QuantityName& name : quantityNames) none[name.quantity] = OwnValue::no(reason);
  return none;
}

NoValue whyNoDelay(const Shape& first, const Shape& second) {
  constexpr double mostDifference = 0.02;
  for (const Shape* shape : {&first, &second}) {
    const NoValue reason = whyNoRhythm(*shape);
    if (reason != NoValue::none) return reason;
    if (shape->levels.isClipped()) return NoValue::clipped;
    if (!shape->rhythm()->rising) return NoValue::lessThanPeriod;
  }
  const double period = first.rhythm()->period;
  const bool isSame = std::fabs(second.rhythm()->period - period) <= mostDifference * period;
  return isSame ? NoValue::none : NoValue::otherPeriod;
}

/// In samples and degrees.
void measureDelay(const Shape& first, const Shape& second, OwnMeasurements& found) {
  const NoValue reason = whyNoDelay(first, second);
  found[phase] = found[delay] = OwnValue::no(reason);
  if (reason != NoValue::none) return;
  const double period = (first.rhythm()->period + second.rhythm()->period) / 2;
  double turns = (*second.rhythm()->rising - *first.rhythm()->rising) / period;
  turns -= std::round(turns);
  found[delay] = OwnValue::of(turns * period);
  found[phase] = OwnValue::of(360 * turns);
}

}  // namespace

const std::array<QuantityName, quantityCount> quantityNames = {{
    {maximum, "max", "Maximum", QuantityUnit::volts},
    {minimum, "min", "Minimum", QuantityUnit::volts},
    {peakToPeak, "vpp", "Peak to peak", QuantityUnit::volts},
    {mean, "mean", "Mean", QuantityUnit::volts},
    {rms, "rms", "RMS", QuantityUnit::volts},
    {acRms, "acrms", "AC RMS", QuantityUnit::volts},
    {top, "top", "Top", QuantityUnit::volts},
    {base, "base", "Base", QuantityUnit::volts},
    {amplitude, "ampl", "Amplitude", QuantityUnit::volts},
    {overshoot, "over", "Overshoot", QuantityUnit::percent},
    {frequency, "freq", "Frequency", QuantityUnit::hertz},
    {period, "period", "Period", QuantityUnit::seconds},
    {duty, "duty", "Duty", QuantityUnit::percent},
    {riseTime, "rise", "Rise time", QuantityUnit::seconds},
    {fallTime, "fall", "Fall time", QuantityUnit::seconds},
    {phase, "phase", "Phase", QuantityUnit::degrees},
    {delay, "delay", "Delay", QuantityUnit::seconds},
}};

const QuantityName& nameOf(Quantity quantity) {
  return quantityNames[static_cast<std::size_t>(quantity)];
}

std::optional<Quantity> quantityNamed(std::string_view shortName) {
  const auto found = std::ranges::find(quantityNames, shortName, &QuantityName::shortName);
  return found == quantityNames.end() ? std::nullopt : std::optional(found->quantity);
}

std::string_view unitText(QuantityUnit unit) {
  constexpr std::array<std::string_view, 5> texts = {"V", "s", "Hz", "%", "deg"};
  return texts[static_cast<std::size_t>(unit)];
}

std::string_view reasonText(NoValue reason) {
  constexpr std::array<std::string_view, 10> texts = {"",
                                                      "no whole record",
                                                      "scale not known",
                                                      "clipped",
                                                      "flat",
                                                      "less than a period",
                                                      "irregular",
                                                      "too few samples",
                                                      "not of one sweep",
                                                      "not of one period"};
  return texts[static_cast<std::size_t>(reason)];
}

OwnMeasurements measureSamples(const Samples& samples) {
  return measured(shapeOf(samples));
}

OwnMeasurements measure(const ChannelRecord& record) {
  if (!isWhole(record)) return noneBecause(NoValue::incomplete);
  OwnMeasurements found = measureSamples(decodeSamples(record.bytes, 0));
  scaleAll(found, record.madeUnder);
  return found;
}

OwnMeasurements measure(const ChannelRecord& record, const ChannelRecord& second) {
  if (!isWhole(record) || !isWhole(second) || !areOfOneSweep(record.madeUnder, second.madeUnder))
    return measure(record);
  const Shape shape = shapeOf(decodeSamples(record.bytes, 0));
  OwnMeasurements found = measured(shape);
  measureDelay(shape, shapeOf(decodeSamples(second.bytes, 0)), found);
  scaleAll(found, record.madeUnder);
  return found;
}

void Statistics::add(const OwnValue& measurement) {
  if (!measurement.value) return;
  const double value = *measurement.value;
  lowest_ = count_ == 0 ? value : std::min(lowest_, value);
  highest_ = count_ == 0 ? value : std::max(highest_, value);
  ++count_;
  const double before = value - mean_;
  mean_ += before / static_cast<double>(count_);
  squares_ += before * (value - mean_);
}

std::optional<double> Statistics::mean() const {
  return count_ == 0 ? std::nullopt : std::optional(mean_);
}

std::optional<double> Statistics::standardDeviation() const {
  if (count_ < 2) return std::nullopt;
  return std::sqrt(squares_ / static_cast<double>(count_ - 1));
}

std::optional<double> Statistics::lowest() const {
  return count_ == 0 ? std::nullopt : std::optional(lowest_);
}

std::optional<double> Statistics::highest() const {
  return count_ == 0 ? std::nullopt : std::optional(highest_);
}

}  // namespace tracewell
