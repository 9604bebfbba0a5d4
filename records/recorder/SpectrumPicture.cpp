// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>

#include "Converter.h"
#include "Numbers.h"
#include "RecorderPicture.h"
#include "RecorderWords.h"
#include "Spectrum.h"

namespace tracewell {
namespace {

constexpr double decibelStep = 20;
constexpr double decibelsShown = 100;
constexpr std::size_t peaksNamed = 5;

SpectrumWindow windowOf(SpectrumShape shape) {
  if (shape == SpectrumShape::flatTop) return SpectrumWindow::flatTop;
  return shape == SpectrumShape::none ? SpectrumWindow::none : SpectrumWindow::hann;
}

/// Peaks that stand 12 dB out of the noise are named.
double leastNamed(std::vector<double> voltsRms) {
  const auto middle = voltsRms.begin() + static_cast<std::ptrdiff_t>(voltsRms.size() / 2);
  std::ranges::nth_element(voltsRms, middle);
  return 4 * *middle;
}

/// 1, 2 or 5 times a power of ten: the smallest that is no less.
double roundStep(double least) {
  const double power = std::pow(10, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0})
    if (factor * power >= least * (1 - 1e-9)) return factor * power;
  return 10 * power;
}

RecorderAxis levelAxis(double highest, bool isInDecibels) {
  constexpr double divisions = 8;
  if (isInDecibels) {
    const double top = std::ceil(Spectrum::dbv(highest) / decibelStep) * decibelStep;
    return {"dBV", top - decibelsShown, top, decibelStep};
  }
  const double step = roundStep(std::max(highest, 1e-6) / divisions);
  return {"V", 0, divisions * step, step};
}

std::string levelText(const SpectrumPeak& peak, bool isInDecibels) {
  return isInDecibels ? formatDecimals(Spectrum::dbv(peak.voltsRms), 1) + " dBV"
                      : numberWithUnit(peak.voltsRms, "V");
}

bool isClipped(const RecordStore& store, const DrawnRecords& drawn) {
  return std::ranges::any_of(drawn.numbers, [&store](RecordStore::Number number) {
    const RecordFacts& facts = store.facts(number);
    return facts.lowest <= converter::lowest || facts.highest >= converter::highest;
  });
}

}  // namespace

bool hasSpectra() {
  return true;
}

RecorderPicture spectrumPicture(const RecordStore& store, std::span<const DrawnRecords> channels,
                                const RecorderChoice& choice, const Words& words) {
  RecorderPicture picture;
  picture.mode = RecorderMode::spectrum;
  picture.x = {"Hz", 0, 1, 0.1};
  double widest = 0;
  double highest = 0;
  for (const DrawnRecords& drawn : channels) {
    std::vector<ChannelRecord> records;
    for (const RecordStore::Number number : drawn.numbers) records.push_back(store.record(number));
    const auto spectrum = spectrumOf(records, windowOf(choice.window));
    const std::string name = channelName(drawn.channel);
    if (!spectrum) {
      picture.notes.push_back(
          words.say("%1 has no spectrum: its scales are not known, or its record is cut", {name}));
      continue;
    }
    const std::string resolution = numberWithUnit(spectrum->resolution, "Hz");
    picture.notes.push_back(spectrum->records == 1
                                ? words.say("%1: %2 from line to line", {name, resolution})
                                : words.say("%1: mean of %2 spectra, %3 from line to line",
                                            {name, std::to_string(spectrum->records), resolution}));
    const bool hasNoLevels = isClipped(store, drawn);
    if (hasNoLevels)
      picture.notes.push_back(
          words.say("%1 is clipped: levels and harmonics are not the signal's own", {name}));
    RecorderCurve curve{RecorderCurve::record, drawn.channel, 0, {}, {}};
    for (std::size_t bin = 0; bin < spectrum->voltsRms.size(); ++bin) {
      const double volts = spectrum->voltsRms[bin];
      curve.x.push_back(spectrum->frequencyOf(bin));
      curve.y.push_back(choice.isInDecibels ? Spectrum::dbv(volts) : volts);
      highest = std::max(highest, volts);
    }
    widest = std::max(widest, curve.x.back());
    const double least = leastNamed(spectrum->voltsRms);
    for (const SpectrumPeak& peak : peaksOf(*spectrum, peaksNamed)) {
      if (peak.voltsRms < least) continue;
      const double level = choice.isInDecibels ? Spectrum::dbv(peak.voltsRms) : peak.voltsRms;
      const std::string told =
          hasNoLevels ? words.say("clipped") : levelText(peak, choice.isInDecibels);
      picture.labels.push_back({drawn.channel, peak.frequency, level,
                                numberWithUnit(peak.frequency, "Hz") + "\n" + told});
    }
    picture.curves.push_back(std::move(curve));
    picture.y.at(static_cast<std::size_t>(drawn.channel - 1)).emplace();
  }
  if (widest > 0) picture.x = {"Hz", 0, widest, roundStep(widest / 10)};
  for (auto& axis : picture.y)
    if (axis) axis = levelAxis(highest, choice.isInDecibels);
  return picture;
}

}  // namespace tracewell
