// SPDX-License-Identifier: GPL-3.0-or-later
#include "TraceMarks.h"

#include <algorithm>

namespace tracewell {
namespace {

/// A trace is old after so many periods without a record.
constexpr int oldAfter = 3;
/// Longer is counted in minutes. Milliseconds.
constexpr std::int64_t countedInSeconds = 120000;
/// Of a trace that is left as it is only the tens of seconds are counted from then on.
/// Milliseconds.
constexpr std::int64_t countedExactly = 10000;

std::int64_t now(const frmDSO& main) {
  return main.services().clock.milliseconds();
}

/// Whole seconds, from two minutes on whole minutes.
struct Passed {
  std::string number;
  bool isInMinutes;
};

Passed passedSince(std::int64_t then, std::int64_t now) {
  const std::int64_t seconds = (now - then) / 1000;
  const bool isInMinutes = now - then >= countedInSeconds;
  return {std::to_string(isInMinutes ? seconds / 60 : seconds), isInMinutes};
}

/// Since when nothing has kept the fetch from going on. What was missed before is no fault.
std::int64_t fetchingSince(const frmDSO& main) {
  return std::max(main.tmDSO.enabledAt(), main.doneAt);
}

bool isKnownAndSame(std::optional<double> made, std::optional<double> present) {
  return made && made == present;
}

bool isCountedExactly(const Channel& channel, std::int64_t now) {
  return now - channel.record.fetchedAt < countedExactly;
}

/// Each change wakes the program and the screen.
std::string restingAge(const Words& words, const Channel& channel, std::int64_t now) {
  const std::int64_t age = now - channel.record.fetchedAt;
  if (isCountedExactly(channel, now) || age >= countedInSeconds)
    return ageText(words, channel, now);
  return words.say("%1: last record over %2 s ago",
                   {channel.display.caption(), std::to_string(age / countedExactly * 10)});
}

std::string traceAge(const frmDSO& main, const Channel& channel) {
  const Words& words = main.services().words;
  const std::string& name = channel.display.caption();
  if (channel.record.bytes.empty()) return words.say("%1: no record yet", {name});
  if (!main.tmDSO.enabled() || !isOfThisLine(main, channel))
    return restingAge(words, channel, now(main));
  if (isOld(main, channel)) return ageText(words, channel, now(main));
  if (channel.record.sweepAt != channel.record.fetchedAt)
    return unchangedText(words, channel, now(main));
  // Nothing live comes of an instrument that is taken to be stopped.
  const bool isLive = !channel.record.madeUnder.stop && !main.known.isStopped();
  return isLive ? words.say("%1: live", {name}) : ageText(words, channel, now(main));
}

}  // namespace

bool isOfThisLine(const frmDSO& main, const Channel& channel) {
  return !channel.record.bytes.empty() && channel.record.line == main.known.presentLine();
}

bool isOld(const frmDSO& main, const Channel& channel) {
  return now(main) - channel.record.fetchedAt > oldAfter * recordPeriod(main);
}

bool isLate(const frmDSO& main, const Channel& channel) {
  return main.tmDSO.enabled() && isOld(main, channel) &&
         now(main) - fetchingSince(main) > oldAfter * recordPeriod(main);
}

std::string ageText(const Words& words, const Channel& channel, std::int64_t now) {
  const std::string& name = channel.display.caption();
  const Passed passed = passedSince(channel.record.fetchedAt, now);
  return passed.isInMinutes ? words.say("%1: last record %2 min ago", {name, passed.number})
                            : words.say("%1: last record %2 s ago", {name, passed.number});
}

int changeInterval(const frmDSO& main) {
  if (main.services().port.report().sureAt) return 1000;
  const auto hasJustCome = [&main](const Channel& channel) {
    return channel.isDisplayed && isCountedExactly(channel, now(main));
  };
  return main.tmDSO.enabled() || std::ranges::any_of(main.channels, hasJustCome) ? 1000 : 2000;
}

std::string unchangedText(const Words& words, const Channel& channel, std::int64_t now) {
  const std::string& name = channel.display.caption();
  const Passed passed = passedSince(channel.record.sweepAt, now);
  return passed.isInMinutes ? words.say("%1: unchanged for %2 min", {name, passed.number})
                            : words.say("%1: unchanged for %2 s", {name, passed.number});
}

std::optional<std::int64_t> millisecondsWithoutRecord(const frmDSO& main) {
  const std::optional<std::int64_t> since = main.services().port.report().noRecordSince;
  if (!main.tmDSO.enabled() || !since) return std::nullopt;
  const std::int64_t passed = now(main) - std::max(*since, fetchingSince(main));
  return passed > oldAfter * recordPeriod(main) ? std::optional(passed) : std::nullopt;
}

bool hasTrace(const Channel& channel) {
  return channel.plot.isShown() && !channel.record.bytes.empty();
}

std::optional<double> voltsOfTrace(const frmDSO& main, const Channel& channel) {
  const std::optional<double> present = main.known.voltsPerDivision(channel.number);
  if (!hasTrace(channel)) return present;
  const bool isOfNow = isOfThisLine(main, channel) &&
                       isKnownAndSame(channel.record.madeUnder.voltsPerDivision, present);
  return isOfNow ? present : std::nullopt;
}

std::optional<double> secondsOfTraces(const frmDSO& main) {
  const std::optional<double> present = main.known.secondsPerDivision();
  for (const Channel& channel : main.channels) {
    if (!hasTrace(channel)) continue;
    const bool isOfNow = isOfThisLine(main, channel) &&
                         isKnownAndSame(channel.record.madeUnder.secondsPerDivision, present);
    if (!isOfNow) return std::nullopt;
  }
  return present;
}

std::optional<double> zeroOf(const frmDSO& main, const Channel& channel) {
  // That of another instrument lies elsewhere on its screen.
  if (hasTrace(channel) && !isOfThisLine(main, channel)) return std::nullopt;
  if (hasTrace(channel)) return channel.drawnShift;
  const auto position = main.known.number(ofChannel(Setting::position1, channel.number));
  return position ? std::optional(*position * Graph::unitsPerDivision) : std::nullopt;
}

std::int64_t recordPeriod(const frmDSO& main) {
  const LineSettings& line = main.services().port.settings;
  const int record = static_cast<int>(line.timeOf(WaveformRecord::byteCount));
  const auto channels = std::ranges::count(main.channels, true, &Channel::isDisplayed);
  return std::max<std::int64_t>(channels, 1) * std::max(record, frmDSO::tickInterval);
}

namespace {

/// The math in the channel's place, as a record of now would have it.
std::optional<double> mathInPlaceOf(const frmDSO& main, const Channel& channel) {
  const bool isMath = main.known.mathChannel() == channel.number;
  return isMath ? main.known.number(Setting::math) : std::nullopt;
}

}  // namespace

bool isPale(const frmDSO& main, const Channel& channel) {
  if (!hasTrace(channel)) return false;
  const MadeUnder& made = channel.record.madeUnder;
  if (!isOfThisLine(main, channel) || isOld(main, channel)) return true;
  if (!isKnownAndSame(made.secondsPerDivision, main.known.secondsPerDivision())) return true;
  if (made.mathEntry != mathInPlaceOf(main, channel)) return true;
  // Math has no volts in any case.
  const auto present = main.known.voltsPerDivision(channel.number);
  return !made.mathEntry && !isKnownAndSame(made.voltsPerDivision, present);
}

const Channel& channelOfReadout(const frmDSO& main) {
  return main.channel(main.cbCurChan.text() == "1" ? 1 : 2);
}

std::string referenceText(const Words& words, const std::string& label, const std::string& scale) {
  return scale.empty() ? words.say("%1: scale not known", {label})
                       : words.say("%1: made at %2", {label, scale});
}

const ValueLabel& scaleOfReadout(const frmDSO& main) {
  return main.opTime.value() ? main.lblTime : channelOfReadout(main).scale;
}

/// Before one has been counted the axis has its name.
bool isReadOut(const frmDSO& main) {
  return !main.opOff.value() && main.graphDSO.axis("XAxis").caption() != nameOfTimeAxis;
}

bool isReadoutOfOtherScale(const frmDSO& main) {
  const ValueLabel& scale = scaleOfReadout(main);
  return isReadOut(main) &&
         (main.readout.scale != &scale || main.readout.caption != scale.caption());
}

bool isReadoutPale(const frmDSO& main) {
  if (!isReadOut(main)) return false;
  if (isReadoutOfOtherScale(main) || scaleOfReadout(main).trust() != Trust::holds) return true;
  if (main.opTime.value()) return !secondsOfTraces(main);
  return !voltsOfTrace(main, channelOfReadout(main));
}

bool areOfOneSweep(const frmDSO& main) {
  return areOfOneSweep(main.channels[0].record.madeUnder, main.channels[1].record.madeUnder);
}

std::string traceAges(const frmDSO& main) {
  std::string text;
  for (const Channel& channel : main.channels) {
    const bool isExpected = main.Initialised || isOfThisLine(main, channel);
    if (channel.isDisplayed && isExpected)
      text += (text.empty() ? "" : "    ") + traceAge(main, channel);
  }
  return text;
}

std::string simulatedNote(const frmDSO& main) {
  const std::string mark = main.services().words.say("SIMULATED");
  std::string names;
  bool isAll = true;
  for (const Channel& channel : main.channels) {
    if (!hasTrace(channel)) continue;
    const bool isSimulated = channel.record.line.portNumber == PortList::simulatedPort;
    isAll = isAll && isSimulated;
    if (isSimulated) names += channel.display.caption() + " ";
  }
  if (names.empty()) return "";
  return isAll ? mark : names + mark;
}

}  // namespace tracewell
