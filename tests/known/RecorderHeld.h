// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RecorderCursors.h"
#include "RecorderView.h"
#include "RecordsHeld.h"

namespace tracewell {

/// What the recorder shows of the records that it has kept, in volts, seconds and hertz.
class RecorderHeld : public RecordsHeld {
 protected:
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

  RecorderView view{store, words};

 private:
  /// Divisions stand where a scale is not known, and it is said.
  void expectSaid(const RecorderPicture& picture, const RecorderAxis& axis, const char* said) {
    const bool isSaid = std::ranges::any_of(picture.notes, [&](const std::string& note) {
      return note.find(said) != std::string::npos;
    });
    expect((axis.unit == "div") == isSaid, "recorder: what is said of scales", said);
  }
  static double perDivision(const RecorderAxis& axis, double truth) {
    return axis.unit == "div" ? 1 : truth;
  }
  Number before(Number number, int age) {
    for (const int channel = store.facts(number).channel; age > 0;)
      if (store.facts(--number).channel == channel) --age;
    return number;
  }

  void lookAtTraces(const RecorderPicture& picture) {
    expectSaid(picture, picture.x, "Divisions across");
    double longest = 0;
    for (const int channel : {1, 2}) {
      const auto& axis = picture.y.at(static_cast<std::size_t>(channel - 1));
      if (!axis) continue;
      expectSaid(picture, *axis, channel == 1 ? "CH1 in div" : "CH2 in div");
      const Sweep& sweep = keptSweep(view.shownOf(channel).value());
      longest = std::max(longest, sweep.seconds);
      lookAtChannel(picture, channel, below(500));
    }
    if (picture.x.unit != "div") lookAtCursors(picture, longest);
  }

  void lookAtChannel(const RecorderPicture& picture, int channel, int sample) {
    const auto place = static_cast<std::size_t>(channel - 1);
    const auto at = static_cast<std::size_t>(sample);
    std::vector<double> each;
    for (const RecorderCurve& curve : picture.curves) {
      if (curve.channel != channel) continue;
      const double shown = curve.y.at(at);
      const Sweep& sweep = keptSweep(before(view.shownOf(channel).value(), curve.age));
      const double volts = perDivision(*picture.y.at(place), sweep.volts(place));
      expectNear(curve.x.at(at), (sample - 250) / 50.0 * perDivision(picture.x, sweep.seconds), 0,
                 "curve: seconds");
      if (curve.kind == RecorderCurve::record || curve.kind == RecorderCurve::behind) {
        expectNear(shown, sweep.counts(place, sample) / 50.0 * volts, 0, "curve: volts");
        each.push_back(shown);
      }
      const double high = picture.y.at(place)->high / volts;
      expect(isNear(high, std::round(high)), "axis: volts");
    }
    for (const RecorderCurve& curve : picture.curves) {
      if (curve.channel != channel || !view.choice.isFading) continue;
      const double shown = curve.y.at(at);
      double sum = 0;
      for (const double one : each) sum += one / static_cast<double>(each.size());
      if (curve.kind == RecorderCurve::lowest)
        expect(shown == std::ranges::min(each), "curve: lowest");
      if (curve.kind == RecorderCurve::highest)
        expect(shown == std::ranges::max(each), "curve: highest");
      if (curve.kind == RecorderCurve::mean)
        expectNear(shown, sum, 1e-9 * std::ranges::max(each), "curve: mean");
    }
  }

  void lookAtCursors(const RecorderPicture& picture, double seconds) {
    RecorderCursors cursors;
    const int channel = picture.y[0] ? 1 : 2;
    const auto place = static_cast<std::size_t>(channel - 1);
    const RecorderAxis& axis = *picture.y.at(place);
    const double volts = perDivision(axis, keptSweep(view.shownOf(channel).value()).volts(place));
    for (const auto kind : {RecorderCursors::across, RecorderCursors::up}) {
      cursors.kind = kind;
      for (const std::size_t one : {0, 1}) cursors.move(one, below(101) / 100.0);
      const auto& at = cursors.at();
      const bool isAcross = kind == RecorderCursors::across;
      const double scale = isAcross ? seconds : volts;
      const double divisions = isAcross ? 10 : 2 * std::round(axis.high / volts);
      for (const std::string& text : cursorTexts(cursors, picture, channel)) {
        const double shown = plain(text.substr(text.find("= ") + 2));
        const auto compare = [&](double share) {
          expectNear(shown, share * divisions * scale, scale / 100, "recorder's cursors", text);
        };
        if (text.starts_with("|Δt|")) compare(std::fabs(at[0] - at[1]));
        if (text.starts_with("Δ")) compare(at[0] - at[1]);
        if (text.starts_with("P1")) compare(at[0] - 0.5);
        if (text.starts_with("P2")) compare(at[1] - 0.5);
      }
    }
  }

  void lookAtXY(const RecorderPicture& picture) {
    if (picture.curves.empty()) return;
    const RecorderCurve& curve = picture.curves[0];
    const Sweep& sweep = keptSweep(view.shownOf(1).value());
    expect(&sweep == &keptSweep(view.shownOf(2).value()), "X-Y: one sweep");
    expectSaid(picture, picture.x, "CH1 in div");
    expectSaid(picture, *picture.y[1], "CH2 in div");
    const int sample = below(500);
    const auto at = static_cast<std::size_t>(sample);
    expectNear(curve.x.at(at),
               sweep.counts(0, sample) / 50.0 * perDivision(picture.x, sweep.volts(0)), 0,
               "X-Y: volts");
    expectNear(curve.y.at(at),
               sweep.counts(1, sample) / 50.0 * perDivision(*picture.y[1], sweep.volts(1)), 0,
               "X-Y: volts");
  }

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
    double sum = 0, squares = 0, aside = 0;
    for (int i = 0; i < 500; ++i)
      sum += volts.at(static_cast<std::size_t>(i)) = unit * sweep.counts(place, i);
    for (const double one : volts) {
      squares += one * one / 500;
      aside += (one - sum / 500) * (one - sum / 500) / 500;
    }
    const auto [lowest, highest] = std::ranges::minmax(volts);
    const auto exactly = [](double value) { return Truth{value, 1e-3 * std::fabs(value)}; };
    if (quantity == maximum) return exactly(highest);
    if (quantity == minimum) return exactly(lowest);
    if (quantity == peakToPeak) return exactly(highest - lowest);
    if (quantity == mean) return Truth{sum / 500, 1e-3 * std::fabs(sum / 500) + 1e-9 * unit};
    if (quantity == rms) return exactly(std::sqrt(squares));
    if (quantity == acRms) return Truth{std::sqrt(aside), 1e-3 * std::sqrt(aside) + 1e-9 * unit};
    const double sample = sweep.seconds / 50;
    const double turn = 1 / sweep.frequency(place);
    if (!isPlain(sweep, place)) return std::nullopt;
    const double within = std::max(sample / 2, 1e-3 * turn);
    if (quantity == top) return Truth{1, 3 * unit};
    if (quantity == base) return Truth{-1, 3 * unit};
    if (quantity == amplitude) return Truth{2, 3 * unit};
    if (quantity == period) return Truth{turn, within};
    if (quantity == frequency) return Truth{1 / turn, within / turn / turn};
    if (quantity == duty) return Truth{50, 100 * sample / turn};
    if (quantity == riseTime || quantity == fallTime)
      return Truth{0.29517 * turn, std::max(sample, 0.015 * turn)};
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
