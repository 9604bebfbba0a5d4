// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderPicture.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "Graph.h"
#include "Numbers.h"
#include "OwnMeasurements.h"
#include "RecorderWords.h"

namespace tracewell {
namespace {

constexpr double unitsPerDivision = Graph::unitsPerDivision;
/// Of time, from the middle of the screen on.
constexpr double divisionsAside = 5;
/// Above and below the channel's zero; more where the signal needs more.
constexpr double divisionsUp = 4;

std::size_t indexOf(int channel) {
  return static_cast<std::size_t>(channel - 1);
}

std::vector<double> inDivisions(const Samples& samples) {
  std::vector<double> values(samples.size());
  std::ranges::transform(samples, values.begin(),
                         [](std::int16_t sample) { return sample / unitsPerDivision; });
  return values;
}

std::vector<double> times(double perDivision) {
  std::vector<double> x(WaveformRecord::sampleCount);
  for (std::size_t i = 0; i < x.size(); ++i)
    x[i] = (static_cast<double>(i) / unitsPerDivision - divisionsAside) * perDivision;
  return x;
}

void scaleBy(std::vector<double>& values, double factor) {
  for (double& value : values) value *= factor;
}

RecorderAxis axisOf(std::optional<double> perDivision, std::string_view unit, double divisions) {
  const double step = perDivision.value_or(1);
  return {perDivision ? std::string(unit) : "div", -divisions * step, divisions * step, step};
}

/// The time base of all of them, if they have one and it is known.
std::optional<double> timeBaseOf(const RecordStore& store, std::span<const DrawnRecords> channels) {
  std::optional<double> longest;
  for (const DrawnRecords& drawn : channels) {
    const auto one = store.facts(drawn.numbers[0]).madeUnder.secondsPerDivision;
    if (!one) return std::nullopt;
    longest = std::max(longest.value_or(0), *one);
  }
  return longest;
}

/// Lowest, highest and mean of a channel's records, sample by sample; divisions.
struct Together {
  std::vector<double> lowest, highest, mean;
};

Together together(const std::vector<std::vector<double>>& records) {
  Together result{records[0], records[0], records[0]};
  for (std::size_t r = 1; r < records.size(); ++r) {
    for (std::size_t i = 0; i < result.mean.size(); ++i) {
      result.lowest[i] = std::min(result.lowest[i], records[r][i]);
      result.highest[i] = std::max(result.highest[i], records[r][i]);
      result.mean[i] += records[r][i];
    }
  }
  scaleBy(result.mean, 1 / static_cast<double>(records.size()));
  return result;
}

double divisionsNeeded(const Together& all) {
  const double lowest = *std::ranges::min_element(all.lowest);
  const double highest = *std::ranges::max_element(all.highest);
  return std::max(divisionsUp, std::ceil(std::max(-lowest, highest)));
}

/// Of one channel, in the order of painting.
class TraceCurves {
 public:
  TraceCurves(const RecordStore& store, const DrawnRecords& drawn, const RecorderChoice& choice)
      : drawn_(drawn), choice_(choice) {
    const std::size_t count =
        choice.hasEnvelope || choice.hasMean || choice.isFading ? drawn.numbers.size() : 1;
    for (std::size_t i = 0; i < count; ++i)
      records_.push_back(inDivisions(store.samples(drawn.numbers[i])));
    together_ = together(records_);
  }

  double divisions() const { return divisionsNeeded(together_); }

  void addTo(RecorderPicture& picture, const std::vector<double>& x, double perDivision) const {
    const auto add = [&](RecorderCurve::Kind kind, int age, std::vector<double> y) {
      scaleBy(y, perDivision);
      picture.curves.push_back({kind, drawn_.channel, age, x, std::move(y)});
    };
    if (choice_.isFading)
      for (std::size_t i = std::min<std::size_t>(records_.size() - 1, RecorderChoice::mostFading);
           i > 0; --i)
        add(RecorderCurve::behind, static_cast<int>(i), records_[i]);
    if (choice_.hasEnvelope) {
      add(RecorderCurve::lowest, 0, together_.lowest);
      add(RecorderCurve::highest, 0, together_.highest);
    }
    add(RecorderCurve::record, 0, records_[0]);
    if (choice_.hasMean) add(RecorderCurve::mean, 0, together_.mean);
  }

 private:
  const DrawnRecords& drawn_;
  const RecorderChoice& choice_;
  std::vector<std::vector<double>> records_;
  Together together_;
};

void noteScales(RecorderPicture& picture, const RecordStore& store,
                std::span<const DrawnRecords> channels, const Words& words) {
  if (picture.x.unit == "div")
    picture.notes.push_back(words.say("Divisions across: the time base is not known"));
  for (const DrawnRecords& drawn : channels) {
    const MadeUnder& made = store.facts(drawn.numbers[0]).madeUnder;
    const std::string name = channelName(drawn.channel);
    if (made.mathEntry)
      picture.notes.push_back(words.say("%1 in divisions: math has no volts", {name}));
    else if (!made.voltsPerDivision)
      picture.notes.push_back(words.say("%1 in divisions: its scale is not known", {name}));
  }
}

/// Fewer than were wanted.
void noteBehind(RecorderPicture& picture, std::span<const DrawnRecords> channels,
                const RecorderChoice& choice, const Words& words) {
  for (const DrawnRecords& drawn : channels) {
    const auto wanted = static_cast<std::size_t>(choice.behind);
    if (drawn.numbers.size() - 1 < wanted)
      picture.notes.push_back(
          words.say("%1: earlier records under these scales: %2",
                    {channelName(drawn.channel), std::to_string(drawn.numbers.size() - 1)}));
  }
}

std::string_view nameOf(RecorderCurve::Kind kind) {
  switch (kind) {
    case RecorderCurve::lowest:
      return " lowest";
    case RecorderCurve::highest:
      return " highest";
    case RecorderCurve::mean:
      return " mean";
    default:
      return "";
  }
}

}  // namespace

RecorderPicture tracePicture(const RecordStore& store, std::span<const DrawnRecords> channels,
                             const RecorderChoice& choice, const Words& words) {
  RecorderPicture picture;
  const auto longest = timeBaseOf(store, channels);
  picture.secondsPerDivision = longest;
  picture.x = axisOf(longest, "s", divisionsAside);
  for (const DrawnRecords& drawn : channels) {
    const MadeUnder& made = store.facts(drawn.numbers[0]).madeUnder;
    const TraceCurves curves(store, drawn, choice);
    const auto volts = made.voltsPerDivision;
    picture.y.at(indexOf(drawn.channel)) = axisOf(volts, "V", curves.divisions());
    picture.voltsPerDivision.at(indexOf(drawn.channel)) = volts;
    curves.addTo(picture, times(longest ? *made.secondsPerDivision : 1), volts.value_or(1));
  }
  noteScales(picture, store, channels, words);
  noteBehind(picture, channels, choice, words);
  return picture;
}

RecorderPicture xyPicture(const RecordStore& store, std::span<const DrawnRecords> channels,
                          const Words& words) {
  RecorderPicture picture;
  picture.mode = RecorderMode::xy;
  const bool isOfOneSweep =
      channels.size() == 2 && areOfOneSweep(store.facts(channels[0].numbers[0]).madeUnder,
                                            store.facts(channels[1].numbers[0]).madeUnder);
  std::array<std::vector<double>, 2> values;
  for (const DrawnRecords& drawn : channels) {
    const RecordStore::Number number = drawn.numbers[0];
    const auto volts = store.facts(number).madeUnder.voltsPerDivision;
    std::vector<double>& own = values.at(indexOf(drawn.channel));
    own = inDivisions(store.samples(number));
    const RecorderAxis axis = axisOf(volts, "V", divisionsNeeded({own, own, own}));
    picture.voltsPerDivision.at(indexOf(drawn.channel)) = volts;
    scaleBy(own, volts.value_or(1));
    if (drawn.channel == 1)
      picture.x = axis;
    else
      picture.y[1] = axis;
  }
  if (isOfOneSweep) {
    picture.curves.push_back({RecorderCurve::record, 2, 0, values[0], values[1]});
    noteScales(picture, store, channels, words);
    std::erase_if(picture.notes, [&](const std::string& note) {
      return note == words.say("Divisions across: the time base is not known");
    });
  } else {
    picture.notes = {words.say(
        "X-Y needs both channels of one sweep: display both, press Run/Stop, and wait for both")};
  }
  return picture;
}

std::string tableOf(const RecorderPicture& picture) {
  constexpr int digits = 7;
  std::vector<const RecorderCurve*> columns;
  for (const RecorderCurve& curve : picture.curves)
    if (curve.kind != RecorderCurve::behind) columns.push_back(&curve);
  if (columns.empty()) return "";
  const std::string across = picture.mode == RecorderMode::trace      ? "Time"
                             : picture.mode == RecorderMode::spectrum ? "Frequency"
                                                                      : "CH1";
  std::string text;
  // Those of another time base have their times beside them.
  const auto isNew = [&](std::size_t i) { return i == 0 || columns[i]->x != columns[i - 1]->x; };
  std::size_t rows = 0;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const RecorderCurve& curve = *columns[i];
    rows = std::max(rows, curve.x.size());
    if (i > 0) text += "\t";
    if (isNew(i)) text += across + " (" + picture.x.unit + ")\t";
    const auto& axis = picture.y.at(indexOf(curve.channel));
    text += channelName(curve.channel) + std::string(nameOf(curve.kind)) + " (" +
            (axis ? axis->unit : "") + ")";
  }
  text += "\n";
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const RecorderCurve& curve = *columns[i];
      const bool isThere = row < curve.x.size();
      if (i > 0) text += "\t";
      if (isNew(i)) text += (isThere ? shortNumberText(curve.x[row], digits) : "") + "\t";
      if (isThere) text += shortNumberText(curve.y[row], digits);
    }
    text += "\n";
  }
  return text;
}

}  // namespace tracewell
