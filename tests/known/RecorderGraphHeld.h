// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RecorderCursors.h"
#include "RecorderView.h"
#include "RecordsHeld.h"

namespace tracewell {

/// What the recorder's graph draws of the records that it has kept, and what its cursors say.
class RecorderGraphHeld : public RecordsHeld {
 protected:
  RecorderView view{store, words};

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

  void lookAtChannel(const RecorderPicture& picture, int channel, int sample) {
    const auto place = static_cast<std::size_t>(channel - 1);
    const auto at = static_cast<std::size_t>(sample);
    std::vector<double> each;
    for (const RecorderCurve& curve : picture.curves) {
      if (curve.channel != channel) continue;
      const double shown = curve.y.at(at);
      const Sweep& sweep = keptSweep(before(view.shownOf(channel).value(), curve.age));
      const bool isOne = curve.kind == RecorderCurve::record || curve.kind == RecorderCurve::behind;
      if (isOne) each.push_back(shown);
      if (sweep.isOfOwnPanel) continue;
      const double volts = perDivision(*picture.y.at(place), sweep.volts(place));
      expectNear(curve.x.at(at), (sample - 250) / 50.0 * perDivision(picture.x, sweep.seconds), 0,
                 "curve: seconds");
      if (isOne) expectNear(shown, sweep.counts(place, sample) / 50.0 * volts, 0, "curve: volts");
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
      for (const std::size_t one : {0U, 1U}) cursors.move(one, below(101) / 100.0);
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
};

}  // namespace tracewell
