// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TruthBench.h"

namespace tracewell {

/// "-1.25 mV" in the plain unit.
inline double plain(const std::string& text) {
  constexpr std::string_view prefixes = "num kMG";
  const std::size_t blank = text.find(' ');
  const std::size_t prefix = blank + 2 < text.size() ? prefixes.find(text[blank + 1]) : 3;
  const double power = prefix > prefixes.size() ? 0 : 3 * static_cast<double>(prefix) - 9;
  return std::atof(text.c_str()) * std::pow(10, power);
}

inline bool isNear(double shown, double truth, double within = 0) {
  return std::fabs(shown - truth) <= within * 1.0001 + 1e-6 * std::fabs(truth);
}

std::vector<std::string> partsOf(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream words(text);
  for (std::string part; std::getline(words, part, separator);) parts.push_back(part);
  return parts;
}

/// What is drawn, and what is said at the cursors and copied, held against the sweep that it is of.
class TracesHeld : public TruthBench {
 protected:
  void expectNear(double shown, double truth, double within, const char* cause,
                  const std::string& text = "") {
    expect(isNear(shown, truth, within), cause, text);
  }

  void lookAtTrace(Channel& channel, const GraphMarks& marks) {
    const Sweep* const sweep = traceOf(channel);
    if (sweep == nullptr) return;
    expect(channel.record.bytes[1] == '0' + channel.number, "trace of the other channel");
    const std::size_t place = channel.index();
    int sample = 0;
    const std::optional<double> zero = zeroOf(channel, &sample);
    for (const GraphMarks::Side& side : marks.sides)
      if (side.plot == channel.number && side.direction == GraphMarks::Side::here && zero)
        expect(isNear(side.height, *zero, 0.01), "flag at the trace", side.text);
    const auto named = std::ranges::find(marks.names, channel.number, &GraphMarks::Text::plot);
    const std::string name = named == marks.names.end() ? "" : named->text;
    const std::size_t math = sweep->isMath(place) ? static_cast<std::size_t>(sweep->math) : 0;
    const std::string truth = std::array{"", "1+2", "1-2", "2-1"}[math];
    expect(name.empty() || name == truth, "name of math", name);
    if (sweep->isOfOwnPanel) return;
    if (!channel.plot.isPale()) {
      expect(isThere_ && sweep->instrument == is_->id, "bright: instrument");
      expect(math != 0 || isNear(sweep->volts(place), is_->channels[place].volts), "bright: volts");
      expect(isNear(sweep->seconds, is_->seconds), "bright: seconds");
      expect(name == truth, "bright: math", name + " for " + truth);
    }
    if (zero) lookAtPointer(channel, *sweep, sample, *zero);
  }

  /// At a sample of the trace, and two divisions away from its zero.
  void lookAtPointer(Channel& channel, const Sweep& sweep, int sample, double zero) {
    const double volts = sweep.volts(channel.index());
    for (const double x : {sample - 250.0, 100.0}) {
      const double units = x == 100 ? 100 : sweep.counts(channel.index(), sample);
      for (const auto& [plot, text] : main.graphDSO.valuesAt(x, zero + units)) {
        if (plot == 0)
          expectNear(plain(text), x / 50 * sweep.seconds, sweep.seconds / 100, "pointer: seconds",
                     text);
        if (plot == channel.number)
          expectNear(plain(text), units / 50 * volts, volts / 100, "pointer: volts", text);
      }
    }
  }

  /// Where the zero of the trace is drawn; none where it cannot be seen.
  std::optional<double> zeroOf(Channel& channel, int* sample = nullptr) {
    const Sweep& sweep = *sweepOf(channel);
    const auto& y = channel.plot.y();
    for (int i = 1 + below(300), end = i + 199; i < end; ++i) {
      const int before = sweep.counts(channel.index(), i - 1);
      const int counts = sweep.counts(channel.index(), i);
      const double drawn = y.at(static_cast<std::size_t>(i));
      // What does not fit is drawn as the sample before it.
      if (drawn - y[static_cast<std::size_t>(i - 1)] != counts - before) continue;
      if (counts == before && std::abs(counts) > 1000) continue;
      if (sample) *sample = i;
      return drawn - counts;
    }
    return std::nullopt;
  }

  /// Zero of a channel on the screen: of its trace, or of now.
  std::optional<double> screenZero(Channel& channel) {
    const auto& its = is_->channels[channel.index()];
    return traceOf(channel) ? zeroOf(channel) : 50 * its.offset / its.volts;
  }

  void lookAtMarker() {
    const Cursor& marker = main.graphDSO.cursor("Triger");
    if (!marker.visible() || main.slideTrig.isHeld()) return;
    expect(isThere_ && is_->source < 2, "marker: source");
    if (!isThere_ || is_->source > 1) return;
    Channel& channel = main.channels[is_->source == 0 ? 0 : 1];
    if (traceOf(channel) && channel.plot.isPale()) return;
    const double fromZero = 50 * is_->level / is_->channels[channel.index()].volts;
    if (const auto zero = screenZero(channel))
      expect(isNear(marker.yPosition(), fromZero + *zero, 1), "marker: height");
  }

  void lookAtBadge(const GraphMarks& marks) {
    const Cursor& first = main.graphDSO.cursor("cur1");
    const Cursor& second = main.graphDSO.cursor("cur2");
    const Sweep* const sweeps[] = {traceOf(main.channels[0]), traceOf(main.channels[1])};
    bool isOfOneSweep = true;
    for (const auto& [plot, text] : marks.badge) {
      if (text.find("different sweeps") != std::string::npos) isOfOneSweep = false;
      const double shown = plain(text.substr(std::min(text.find("= ") + 2, text.size())));
      const auto compare = [&, &its = text](double units, double scale, const char* cause) {
        expectNear(shown, units / 50 * scale, scale / 100, cause, its);
      };
      for (Channel& channel : main.channels) {
        const Sweep* sweep = sweeps[channel.index()];
        if (sweep && sweep->isOfOwnPanel) continue;
        const bool isTold = plot == channel.number || (plot == 0 && isOfOneSweep);
        expect(sweep || isThere_ || !isTold, "badge: of nothing", text);
        if (!sweep && !isThere_) continue;
        if (text.starts_with("|Δt|"))
          compare(std::fabs(first.xPosition() - second.xPosition()),
                  sweep ? sweep->seconds : is_->seconds, "badge: seconds");
        if (plot != channel.number) continue;
        const std::size_t place = channel.index();
        const double volts = sweep ? sweep->volts(place) : is_->channels[place].volts;
        expect(!std::isnan(volts), "badge: math", text);
        if (text.starts_with("ΔV"))
          compare(first.yPosition() - second.yPosition(), volts, "badge: volts");
        const auto zero = screenZero(channel);
        if (text.starts_with("P") && zero)
          compare((text[1] == '1' ? first : second).yPosition() - *zero, volts, "badge: from zero");
      }
    }
    if (main.opTime.value() && sweeps[0] && sweeps[1] && isOfOneSweep)
      expect(sweeps[0] == sweeps[1], "badge: one sweep");
  }

  void lookAtTable(const std::string& table) {
    const Lines lines = partsOf(table, '\n');
    if (!lines[0].starts_with("Time")) return;
    const Lines heads = partsOf(lines[0], '\t');
    for (std::size_t line = 14; line < lines.size(); line += 97) {
      const Lines cells = partsOf(lines[line], '\t');
      const int row = static_cast<int>(line) - 1;
      std::size_t column = 1;
      for (Channel& channel : main.channels) {
        const Sweep* sweep = traceOf(channel);
        if (!sweep) continue;
        if (sweep->isOfOwnPanel) return;
        const double volts = sweep->volts(channel.index());
        const double units = sweep->counts(channel.index(), row);
        if (heads[0].ends_with("(s)"))
          expectNear(std::atof(cells[0].c_str()), (row - 250) / 50.0 * sweep->seconds, 0,
                     "table: seconds", lines[line]);
        if (heads.at(column).ends_with("(V)"))
          expectNear(std::atof(cells.at(column).c_str()), units / 50 * volts, 0, "table: volts",
                     lines[line]);
        ++column;
      }
    }
  }
};

}  // namespace tracewell
