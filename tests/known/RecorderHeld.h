// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RecorderGraphHeld.h"

namespace tracewell {

/// What the recorder shows of the records that it has kept, in volts, seconds and hertz.
class RecorderHeld : public RecorderGraphHeld {
 public:
  /// At the end: the rows of a log of all of them, and the statistics over what is left.
  void lookBack() {
    recorder.stopLog();
    const Lines rows = partsOf(readWholeFile(logged_, 1 << 24), '\n');
    expect(rows.size() == static_cast<std::size_t>(store.end()) + 1, "log: rows");
    std::array<Statistics, 2> maxima;
    for (Number number = store.first(); number < store.end(); ++number) {
      const std::size_t place = placeOf(store.facts(number));
      const Sweep& sweep = keptSweep(number);
      const Lines cells = partsOf(rows.at(static_cast<std::size_t>(number) + 1) + ",.", ',');
      expect(cells[1] == std::to_string(place + 1), "log: channel");
      const double volts = std::atof(cells[2].c_str());
      if (!cells[2].empty()) maxima.at(place).add(OwnValue::of(volts));
      if (cells[2].empty() || sweep.isOfOwnPanel) continue;
      expectNear(volts, store.facts(number).highest * sweep.volts(place) / 50, 0, "log: volts");
    }
    view.show(0);
    while (view.measureMore(1000)) continue;
    for (const std::size_t place : {std::size_t{0}, std::size_t{1}}) {
      const auto lines = view.statistics(Quantity::maximum, static_cast<int>(place) + 1);
      const Statistics& truth = maxima.at(place);
      expect(lines[0].value == std::to_string(truth.count()), "statistics: count");
      const auto compare = [&](std::size_t line, double value) {
        expectNear(plain(lines[line].value), value, 1e-3 * std::fabs(value), "statistics: volts");
      };
      compare(1, truth.mean().value_or(0));
      compare(3, truth.lowest().value_or(0));
      compare(4, truth.highest().value_or(0));
    }
  }

 protected:
  RecorderHeld() { recorder.startLog(logged_, {{Quantity::maximum, Quantity::frequency}, {}}, {}); }

  /// Points at a record anywhere, and at something to be shown of it.
  void lookAtRecorder() {
    if (store.size() == 0) return;
    const auto farthest = static_cast<int>(std::min<std::size_t>(store.size(), 3000));
    view.show(below(3));
    view.select(store.end() - 1 - below(oneIn(2) ? std::min(farthest, 20) : farthest));
    const Number number = view.selected().value();
    lookAtRecord(number);
    if (!view.shownOf(store.facts(number).channel)) return;
    for (const int channel : {1, 2})
      if (const auto shown = view.shownOf(channel); shown && keptSweep(*shown).isOfOwnPanel) return;
    view.choice = {static_cast<RecorderMode>(below(3)),  below(4), oneIn(2), oneIn(2), oneIn(2),
                   static_cast<SpectrumShape>(below(3)), oneIn(2)};
    const RecorderPicture picture = view.picture();
    if (picture.mode == RecorderMode::trace) lookAtTraces(picture);
    if (picture.mode == RecorderMode::xy) lookAtXY(picture);
    if (picture.mode == RecorderMode::spectrum) lookAtPeaks(picture);
    if (oneIn(4)) lookAtMeasurements();
    if (oneIn(4)) lookAtExport();
  }

 private:
  const std::filesystem::path logged_ = folder.path() / "maxima.log";

  /// Whole sines of some height, in samples that tell their frequency.
  static bool isPlain(const Sweep& sweep, std::size_t place) {
    const double samples = 50 / sweep.seconds / sweep.frequency(place);
    const double units = 50 / sweep.volts(place);
    return samples >= 8 && samples < 150 && units >= 20 && units < 250;
  }

  void lookAtPeaks(const RecorderPicture& picture) {
    std::array<bool, 2> isSeen{};
    for (const RecorderPicture::Label& label : picture.labels) {
      const auto place = static_cast<std::size_t>(label.channel - 1);
      const Sweep& sweep = keptSweep(view.shownOf(label.channel).value());
      expect(!sweep.isMath(place), "peak: of math", label.text);
      if (std::exchange(isSeen.at(place), true) || !isPlain(sweep, place)) continue;
      // Those behind it may have another frequency.
      if (view.choice.behind > 0) continue;
      const std::size_t end = label.text.find('\n');
      expectNear(plain(label.text.substr(0, end)), sweep.frequency(place), 0.05 / sweep.seconds,
                 "peak: hertz", label.text);
      const double height = plain(label.text.substr(end + 1));
      expectNear(view.choice.isInDecibels ? std::pow(10, height / 20) : height, std::sqrt(0.5),
                 0.05, "peak: volts", label.text);
    }
  }

  struct Truth {
    double value;
    double within;
  };
  /// None of what cannot be told of every sweep.
  std::optional<Truth> truthOf(Quantity quantity, std::size_t place, const Sweep& sweep,
                               const Sweep* other) {
    using enum Quantity;
    const double unit = sweep.volts(place) / 50;
    std::array<double, 500> volts{};
    double sum = 0, squares = 0;
    for (int i = 0; i < 500; ++i)
      sum += volts.at(static_cast<std::size_t>(i)) = unit * sweep.counts(place, i);
    for (const double one : volts) squares += one * one / 500;
    const auto [lowest, highest] = std::ranges::minmax(volts);
    const auto exactly = [](double value) { return Truth{value, 1e-3 * std::fabs(value)}; };
    if (quantity == maximum) return exactly(highest);
    if (quantity == minimum) return exactly(lowest);
    if (quantity == peakToPeak) return exactly(highest - lowest);
    if (quantity == mean) return Truth{sum / 500, 1e-3 * std::fabs(sum / 500) + 1e-9 * unit};
    if (quantity == rms) return exactly(std::sqrt(squares));
    const double sample = sweep.seconds / 50;
    const double turn = 1 / sweep.frequency(place);
    if (!isPlain(sweep, place)) return std::nullopt;
    if (quantity == amplitude) return Truth{2, 3 * unit};
    if (quantity == period) return Truth{turn, std::max(sample / 2, 1e-3 * turn)};
    if (quantity != delay && quantity != phase) return std::nullopt;
    expect(other == &sweep, "phase: one sweep");
    if (sweep.math != 0) return std::nullopt;
    expect(sweep.frequency(0) == sweep.frequency(1), "phase: one period");
    double turns = sweep.turns(0) - sweep.turns(1);
    turns -= std::round(turns);
    if (std::fabs(turns) > 0.49) return std::nullopt;
    return quantity == delay ? Truth{turns * turn, sample}
                             : Truth{360 * turns, 360 * sample / turn};
  }

  void lookAtMeasurements() {
    for (const RecorderView::Line& line : view.measurements()) {
      for (const std::size_t place : {std::size_t{0}, std::size_t{1}}) {
        if (!line.hasValue.at(place)) continue;
        const Sweep& sweep = keptSweep(view.shownOf(static_cast<int>(place) + 1).value());
        const auto other = view.shownOf(2 - static_cast<int>(place));
        const auto truth =
            truthOf(line.quantity, place, sweep, other ? &keptSweep(*other) : nullptr);
        if (truth)
          expectNear(plain(line.values.at(place)), truth->value, truth->within,
                     ("own measurement: " + line.name).c_str(),
                     line.values.at(place) + " is " + std::to_string(truth->value));
      }
    }
  }

  /// Some row of the table of what is drawn.
  void lookAtExport() {
    std::string table;
    const Stretch stretch = view.exported();
    if (stretch.end - stretch.first > 2) return;
    writeSamples(store, stretch, [&](std::string_view part) { table += part; });
    const Lines rows = partsOf(table, '\n');
    const Lines heads = partsOf(rows[0], ',');
    const int sample = below(499);
    for (std::size_t row = 1 + static_cast<std::size_t>(sample); row + 1 < rows.size();
         row += 500) {
      const Lines cells = partsOf(rows[row], ',');
      const Lines next = partsOf(rows[row + 1], ',');
      std::vector<int> sweeps;
      for (std::size_t column = 1; column < cells.size(); ++column) {
        if (cells[column].empty()) continue;
        const std::size_t place = heads[column][2] == '1' ? 0 : 1;
        const Sweep& sweep = keptSweep(view.shownOf(static_cast<int>(place) + 1).value());
        sweeps.push_back(sweep.number);
        expectNear(std::atof(cells[column].c_str()),
                   sweep.counts(place, sample) / 50.0 * sweep.volts(place), 0, "export: volts");
        expectNear(std::atof(next[0].c_str()) - std::atof(cells[0].c_str()), sweep.seconds / 50,
                   sweep.seconds / 500, "export: seconds");
      }
      expect(!sweeps.empty() && sweeps.front() == sweeps.back(), "export: one sweep");
    }
  }
};

}  // namespace tracewell
