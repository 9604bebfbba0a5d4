// SPDX-License-Identifier: GPL-3.0-or-later
#include "WrittenScales.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "TraceMarks.h"
#include "TrueNumbers.h"
#include "WaveformRecord.h"

namespace tracewell {
namespace {

/// A scale that is written beside a trace, and the one under which that was made.
struct Written {
  std::string name;
  std::string caption;
  std::optional<double> made;
};

/// As the instrument writes it.
std::string captionOf(double perDivision, bool isTime) {
  const auto find = [&](const auto& captions, std::string_view unit) {
    const auto found = std::ranges::find_if(
        captions, [&](std::string_view text) { return trueScale(text, unit) == perDivision; });
    return found == captions.end() ? std::string() : std::string(*found);
  };
  return isTime ? find(TimeDivText, "s") : find(VoltDivText, "V");
}

/// A position that is written beside a trace, and the one at which that was drawn. In divisions.
struct WrittenPosition {
  std::string name;
  double written;
  double drawn;
};

/// A reader lifts the trace by what is written.
std::vector<WrittenPosition> positionsNotOfTraces(const frmDSO& main) {
  std::vector<WrittenPosition> others;
  for (const Channel& channel : main.channels) {
    const double written = channel.slide.value();
    const double units = written * Graph::unitsPerDivision - channel.drawnShift;
    if (hasTrace(channel) && std::abs(units) >= 1)
      others.push_back({channel.display.caption(), written,
                        channel.drawnShift / double{Graph::unitsPerDivision}});
  }
  return others;
}

/// Ticked channels whose samples cannot be written; then nobody's are.
std::string channelsWithoutRecord(const frmDSO& main) {
  std::string names;
  for (const Channel& channel : main.channels)
    if (channel.display.isChecked() && channel.record.bytes.size() < WaveformRecord::byteCount)
      names += (names.empty() ? "" : ", ") + channel.display.caption();
  return names;
}

void append(std::string& text, const std::string& said) {
  text += (text.empty() ? "" : "; ") + said;
}

std::string sentence(const Words& words, const Written& written) {
  const std::string made =
      written.made ? captionOf(*written.made, written.caption.ends_with('s')) : "";
  if (made.empty())
    return words.say("%1: not known whether recorded at %2", {written.name, written.caption});
  return words.say("%1: recorded at %2, not at %3", {written.name, made, written.caption});
}

}  // namespace

StatusLine::Sentence scalesNotOfTraces(const frmDSO& main) {
  std::vector<Written> others;
  const auto add = [&](const std::string& name, const ValueLabel& label, std::string_view unit,
                       std::optional<double> made) {
    const bool isOfTrace = made && trueScale(label.caption(), unit) == made;
    if (!isOfTrace) others.push_back({name, label.caption(), made});
  };
  for (const Channel& channel : main.channels) {
    if (!hasTrace(channel)) continue;
    const MadeUnder& made = channel.record.madeUnder;
    add(channel.display.caption(), channel.scale, "V", made.voltsPerDivision);
    add(channel.display.caption(), main.lblTime, "s", made.secondsPerDivision);
  }
  const bool isReadoutOther = isReadoutOfOtherScale(main);
  if (others.empty() && !isReadoutOther) return {};
  return [others, isReadoutOther](const Words& words) {
    std::string text;
    for (const Written& written : others) append(text, sentence(words, written));
    if (isReadoutOther) append(text, words.say("The cursors were read in another scale"));
    return text;
  };
}

StatusLine::Sentence setNotOfTraces(const frmDSO& main) {
  const StatusLine::Sentence scales = scalesNotOfTraces(main);
  const std::vector<WrittenPosition> others = positionsNotOfTraces(main);
  const std::string missing = channelsWithoutRecord(main);
  if (others.empty() && missing.empty()) return scales;
  return [=](const Words& words) {
    std::string text = scales ? scales(words) : "";
    for (const WrittenPosition& other : others)
      append(text, words.say("%1: drawn at position %2, not at %3",
                             {other.name, numberText(other.drawn), numberText(other.written)}));
    if (!missing.empty())
      append(text, words.say("The .csv is empty: no whole record of %1", {missing}));
    return text;
  };
}

}  // namespace tracewell
