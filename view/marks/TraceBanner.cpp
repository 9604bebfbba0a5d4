// SPDX-License-Identifier: GPL-3.0-or-later
#include "TraceBanner.h"

#include <algorithm>
#include <functional>

#include "TraceMarks.h"

namespace tracewell {
namespace {

/// A signal of the usual kind has changed by then. Milliseconds.
constexpr std::int64_t longUnchanged = 10000;

template <class Condition>
const Channel* firstTrace(const frmDSO& main, Condition condition) {
  for (const Channel& channel : main.channels)
    if (channel.isDisplayed && hasTrace(channel) && condition(channel)) return &channel;
  return nullptr;
}

/// Seconds until replies that are not sure yet are.
std::int64_t secondsToProve(const frmDSO& main) {
  const std::int64_t now = main.services().clock.milliseconds();
  // While a record is on its way it may take longer.
  return std::max<std::int64_t>(
      (main.services().port.report().sureAt.value_or(now) - now + 999) / 1000, 1);
}

/// Such a reply has told a scale: it will be known.
bool willBeKnown(const frmDSO& main, Setting scale) {
  return main.known.doubt(scale) == Doubt::unsureAnswer && main.known.hasNumber(scale);
}

/// A trace needs a scale for which this holds.
bool isScaleLacking(const frmDSO& main, const std::function<bool(Setting)>& isLacking) {
  const auto needsIt = [&](const Channel& channel) {
    const bool needsVolts = !channel.record.madeUnder.mathEntry;
    return isLacking(Setting::timeBase) ||
           (needsVolts && isLacking(ofChannel(Setting::scale1, channel.number)));
  };
  return firstTrace(main, needsIt) != nullptr;
}

/// The button also stops what runs.
std::string toRead(const frmDSO& main, const Words& words) {
  if (main.known.isUpset()) return words.say("Autoset: the scales are not known until it is over");
  return main.tmDSO.enabled()
             ? words.say("The scales are not known: press %1 to read them, then F5 to go on",
                         {main.cmdRS232.caption()})
             : words.say("The scales are not known: press %1 to read them",
                         {main.cmdRS232.caption()});
}

/// Nothing else counts while the instrument cannot be reached.
std::string outOfReach(const frmDSO& main, const Words& words) {
  constexpr int manyQuestions = 2;
  const LineReport report = main.services().port.report();
  if (!report.failure.empty()) return words.say("The connection is lost");
  return report.unansweredInRow >= manyQuestions
             ? words.say("No answer to the last %1 questions",
                         {std::to_string(report.unansweredInRow)})
             : "";
}

/// Empty unless the traces are not what they seem to be.
std::string warning(const frmDSO& main, const Words& words) {
  if (!main.tmDSO.enabled() && main.status.says(StatusLine::stoppedByError))
    return words.say("An error has stopped the acquisition");
  if (const auto time = millisecondsWithoutRecord(main))
    return words.say("No record for %1 s", {std::to_string(*time / 1000)});
  if (firstTrace(main, [&](const Channel& channel) { return !isOfThisLine(main, channel); }))
    return words.say("These traces are of an earlier connection");
  const auto isLateNow = [&](const Channel& channel) { return isLate(main, channel); };
  if (const Channel* const late = firstTrace(main, isLateNow))
    return ageText(words, *late, main.services().clock.milliseconds());
  const auto isMissing = [&](Setting scale) { return !main.known.number(scale); };
  const auto isMissingForGood = [&](Setting scale) {
    return isMissing(scale) && !willBeKnown(main, scale);
  };
  if (isScaleLacking(main, isMissingForGood)) return toRead(main, words);
  if (isScaleLacking(main, isMissing))
    return words.say("A reply is missing: the scales are certain in %1 s",
                     {std::to_string(secondsToProve(main))});
  const auto mayBeMath = [](const Channel& channel) {
    const MadeUnder& made = channel.record.madeUnder;
    return !made.voltsPerDivision && !made.mathEntry;
  };
  if (main.known.mayMathBeOn() && firstTrace(main, mayBeMath))
    return words.say("Math may be on: choose an entry in its box to be sure");
  return "";
}

std::string notice(const frmDSO& main, const Words& words) {
  const bool hasTraces = firstTrace(main, [](const Channel&) { return true; }) != nullptr;
  if (!main.tmDSO.enabled()) {
    if (!hasTraces) return "";
    // The button may still read "Stop"; its key starts the traces all the same.
    const bool readsStart = main.shownMessages.cmdStart == frmDSO::ShownMessages::start;
    return words.say("Stopped: press %1 to go on", {readsStart ? main.cmdStart.caption() : "F5"});
  }
  if (main.known.isStopped()) {
    // A stop that was typed leaves the button as it was: pressed once, it stops again.
    const std::string button = main.cmdRunStop.caption();
    return main.shownMessages.cmdRunStop == frmDSO::ShownMessages::run
               ? words.say("The instrument is stopped: press %1", {button})
               : words.say("The instrument is stopped: press %1 twice", {button});
  }
  const std::int64_t now = main.services().clock.milliseconds();
  const Channel* const still = firstTrace(main, [&](const Channel& channel) {
    const ChannelRecord& record = channel.record;
    return record.fetchedAt != record.sweepAt && now - record.sweepAt >= longUnchanged &&
           !isOld(main, channel);
  });
  return still != nullptr ? unchangedText(words, *still, now) : "";
}

}  // namespace

GraphMarks::Banner traceBanner(const frmDSO& main) {
  const Words& words = main.services().words;
  if (std::string text = outOfReach(main, words); !text.empty()) return {std::move(text), true};
  if (main.doing) return {main.doing(words), false};
  if (std::string text = warning(main, words); !text.empty()) return {std::move(text), true};
  return {notice(main, words), false};
}

}  // namespace tracewell
