// SPDX-License-Identifier: GPL-3.0-or-later
#include "WrittenScales.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

#include "Numbers.h"
#include "TraceMarks.h"
#include "TrueNumbers.h"
#include "WaveformRecord.h"

namespace tracewell {
namespace {

/// A scale that is written beside a trace, and the one under which that was made.
struct Written {
  std::string name;
  std::string caption;
  /// As the instrument writes it; empty where it is not known.
  std::string made;
};

/// As the instrument writes it.
std::string captionOf(double perDivision, std::string_view unit) {
  using Captions = std::span<const std::string_view>;
  for (const Captions captions : {Captions(TimeDivText), Captions(VoltDivText)})
    for (const std::string_view text : captions)
      if (trueScale(text, unit) == perDivision) return std::string(text);
  return "";
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

/// Or it has been told since, and nothing has changed it.
bool isDrawnAsKnown(const KnownInstrument& known, const Channel& channel) {
  const Setting position = ofChannel(Setting::position1, channel.number);
  const bool isSame = known.changedAt(position) <= channel.drawnAt;
  return channel.isDrawnAsKnown || (isSame && showsKnown(channel.slide, known, position));
}

std::string sentence(const Words& words, const Written& written) {
  if (written.caption.empty()) return words.say("%1: scale not known", {written.name});
  if (written.made.empty())
    return words.say("%1: not known whether recorded at %2", {written.name, written.caption});
  return words.say("%1: recorded at %2, not at %3", {written.name, written.made, written.caption});
}

Written writtenPosition(const Slide& slide) {
  const std::string& caption = slide.caption();
  return {std::string(trimBlanks(caption.substr(0, caption.find(':')))),
          numberText(slide.value()) + " Div", ""};
}

bool isOfTrace(const ValueLabel& label, std::string_view unit, std::optional<double> made) {
  return made && trueScale(label.caption(), unit) == made;
}

using Sentences = std::vector<StatusLine::Sentence>;

void addMath(Sentences& sentences, const Channel& channel, const std::string& entry) {
  sentences.push_back([name = channel.display.caption(), entry](const Words& words) {
    return words.say("%1: not the channel, but %2", {name, entry});
  });
}

void addScalesOfTraces(Sentences& sentences, const frmDSO& main) {
  const auto add = [&](const std::string& name, const ValueLabel& label, std::string_view unit,
                       std::optional<double> made) {
    const Written written{name, label.caption(), made ? captionOf(*made, unit) : ""};
    if (label.caption().empty() && unit == "s") return;
    if (!isOfTrace(label, unit, made))
      sentences.push_back([written](const Words& words) { return sentence(words, written); });
  };
  for (const Channel& channel : main.channels) {
    if (!hasTrace(channel)) continue;
    const MadeUnder& made = channel.record.madeUnder;
    if (made.mathEntry)
      addMath(sentences, channel,
              main.cbMath.items().at(static_cast<std::size_t>(*made.mathEntry)));
    else
      add(channel.display.caption(), channel.scale, "V", made.voltsPerDivision);
    add(channel.display.caption(), main.lblTime, "s", made.secondsPerDivision);
  }
  // One blank for all.
  if (std::ranges::any_of(main.channels, hasTrace) && main.lblTime.caption().empty())
    sentences.push_back([name = main.fmTime.caption()](const Words& words) {
      return words.say("%1: scale not known", {name});
    });
}

/// Those of the window are written without traces, too.
void addScalesWithoutTrace(Sentences& sentences, const frmDSO& main) {
  const auto add = [&](const std::string& name, const ValueLabel& label) {
    if (label.trust() != Trust::holds)
      sentences.push_back(
          [name](const Words& words) { return words.say("%1: scale not known", {name}); });
  };
  for (const Channel& channel : main.channels) {
    const bool isReadOut = main.opVoltage.value() && &channelOfReadout(main) == &channel;
    if (!hasTrace(channel) && (channel.isDisplayed || isReadOut))
      add(channel.display.caption(), channel.scale);
  }
  if (std::ranges::none_of(main.channels, hasTrace)) add(main.fmTime.caption(), main.lblTime);
}

/// References were made at scales of their own.
void addReferences(Sentences& sentences, const frmDSO& main, int plots) {
  for (int number = ScopeGraph::firstReference; number <= plots; ++number) {
    const Plot& plot = main.graphDSO.plot(number);
    const bool isAsAll = std::ranges::all_of(main.channels, [&](const Channel& channel) {
      return !channel.isDisplayed || channel.scale.caption() == plot.scale();
    });
    const bool isAlone = std::ranges::none_of(main.channels, &Channel::isDisplayed);
    if (plot.isShown() && (isAlone || !isAsAll))
      sentences.push_back([label = plot.label(), scale = plot.scale()](const Words& words) {
        return referenceText(words, label, scale);
      });
  }
}

void addReadout(Sentences& sentences, const frmDSO& main) {
  if (isReadoutOfOtherScale(main))
    sentences.push_back(
        [](const Words& words) { return words.say("The cursors were read in another scale"); });
}

void addPositions(Sentences& sentences, const frmDSO& main) {
  for (const WrittenPosition& other : positionsNotOfTraces(main))
    sentences.push_back([other](const Words& words) {
      return words.say("%1: drawn at position %2, not at %3",
                       {other.name, numberText(other.drawn), numberText(other.written)});
    });
  const auto addUnknown = [&](const Slide& slide) {
    sentences.push_back([unknown = writtenPosition(slide)](const Words& words) {
      return sentence(words, unknown);
    });
  };
  for (const Channel& channel : main.channels) {
    // Where the scale is another one, that has been said, and the position is in doubt for it.
    const bool isAtItsScale =
        isOfTrace(channel.scale, "V", channel.record.madeUnder.voltsPerDivision);
    if (hasTrace(channel) && isAtItsScale && !isDrawnAsKnown(main.known, channel))
      addUnknown(channel.slide);
  }
  if (isDelayInDoubt(main)) addUnknown(main.slideTime);
}

void addMissingRecords(Sentences& sentences, const frmDSO& main) {
  const std::string missing = channelsWithoutRecord(main);
  if (!missing.empty())
    sentences.push_back([missing](const Words& words) {
      return words.say("The .csv is empty: no whole record of %1", {missing});
    });
}

StatusLine::Sentence joined(const Sentences& sentences) {
  if (sentences.empty()) return {};
  return [sentences](const Words& words) {
    std::string text;
    for (const StatusLine::Sentence& said : sentences)
      text += (text.empty() ? "" : "; ") + said(words);
    return text;
  };
}

Sentences scales(const frmDSO& main, int plots = ScopeGraph::plotCount) {
  Sentences sentences;
  addScalesOfTraces(sentences, main);
  addScalesWithoutTrace(sentences, main);
  addReferences(sentences, main, plots);
  addReadout(sentences, main);
  return sentences;
}

}  // namespace

/// It is none of the trace, and perhaps nobody has touched it.
bool isDelayInDoubt(const frmDSO& main) {
  const bool isTouched = main.known.doubt(Setting::delay) != Doubt::neverRead;
  return isTouched && main.slideTime.trust() != Trust::holds;
}

std::string positionNotKnown(const Words& words, const Slide& slide) {
  return sentence(words, writtenPosition(slide));
}

std::vector<std::string> linesNotOfTraces(const frmDSO& main, int plots) {
  std::vector<std::string> lines;
  for (const StatusLine::Sentence& said : scales(main, plots))
    lines.push_back(said(main.services().words));
  return lines;
}

StatusLine::Sentence scalesNotOfTraces(const frmDSO& main) {
  return joined(scales(main));
}

StatusLine::Sentence pageNotOfTraces(const frmDSO& main, int plots) {
  return joined(scales(main, plots));
}

StatusLine::Sentence setNotOfTraces(const frmDSO& main) {
  Sentences sentences = scales(main);
  addPositions(sentences, main);
  addMissingRecords(sentences, main);
  return joined(sentences);
}

}  // namespace tracewell
