// SPDX-License-Identifier: GPL-3.0-or-later
#include "KnownInstrument.h"

#include <algorithm>
#include <utility>

namespace tracewell {
namespace {

using enum Setting;

}  // namespace

/// Behind another port, what the panel shows is of another instrument.
KnownInstrument::BehindPort& KnownInstrument::here() const {
  BehindPort& before = ports_[port_];
  port_ = presentLine().portNumber;
  BehindPort& present = ports_[port_];
  for (std::size_t i = 0; &present != &before && i < settingCount; ++i)
    if (present.entries[i].doubt == Doubt::neverRead && before.entries[i].doubt != Doubt::neverRead)
      present.entries[i].doubt = Doubt::anotherInstrument;
  return present;
}

void KnownInstrument::sent(std::string_view command) {
  for (const WirePart& part : wireParts(command)) obey(part, true);
  tell();
}

void KnownInstrument::typed(std::string_view line) {
  for (const WirePart& part : wireParts(line)) obey(part, false);
  tell();
}

void KnownInstrument::notSent(std::string_view line, const Line& begunOn) {
  failed_ = begunOn;
  lockUncertain();
  for (const WirePart& part : wireParts(line)) {
    if (part.isQuery) continue;
    const WireEffect effect = effectOf(part);
    if (effect.isUnknown || effect.sets == math) here().isMathDoubted = true;
    if (effect.isUnknown || effect.sets == triggerMode) here().isModeOpen = true;
    if (effect.sets == running && sentValue(running, part)->number == stoppedState)
      mayHaveStopped();
    else if (effect.sets)
      doubtful(*effect.sets, Doubt::notSent);
    for (const Setting setting : effect.touches) doubtful(setting, Doubt::notSent);
  }
  failed_.reset();
  tell();
}

/// The records that it sends may be those of this moment.
void KnownInstrument::mayHaveStopped() {
  if (isStopped()) return doubtful(running, Doubt::notSent);
  stop();
  doubtful(running, Doubt::notSent);
  entry(running).number = stoppedState;
}

/// A sent command locks the instrument's panel; one that may have been sent may have locked it.
void KnownInstrument::lockUncertain() {
  if (number(lock) != 1.0) doubtful(lock, Doubt::mayHaveChanged);
}

void KnownInstrument::requested() {
  lockUncertain();
  tell();
}

/// Any command locks the instrument's own panel.
void KnownInstrument::obey(const WirePart& command, bool isTrusted) {
  takeSent(lock, {1.0});
  if (command.isQuery) return;
  const WireEffect effect = effectOf(command);
  for (const Setting setting : effect.touches) doubtful(setting, Doubt::mayHaveChanged);
  if (effect.isUnknown) here().isMathDoubted = here().isModeOpen = true;
  if (!effect.sets) return;
  const Setting setting = *effect.sets;
  const bool isPlain = setting == math || setting == running || setting == lock;
  const auto value =
      isTrusted || isPlain ? inDivisions(setting, sentValue(setting, command)) : std::nullopt;
  if (!value) return leaveOpen(setting);
  if (setting == running && value->number == stoppedState && !isStopped()) stop();
  takeSent(setting, *value);
}

void KnownInstrument::upset() {
  ++here().upsets;
  tell();
}

/// What was told or sent meanwhile may be of before.
void KnownInstrument::upsetIsOver(std::int16_t port) {
  BehindPort& there = ports_[port];
  --there.upsets;
  for (const Setting setting : effectOf({"AUT", "", false}).touches) {
    Entry& doubted = there.entries[static_cast<std::size_t>(setting)];
    if (doubted.doubt == Doubt::none || doubted.doubt == Doubt::noAnswer)
      doubted.doubt = Doubt::mayHaveChanged;
    doubted.changedAt = ++now_;
  }
  there.upsetAt = now_;
  tell();
}

/// A possible change counts wherever it makes a difference to records. The trigger may be in any
/// mode then.
void KnownInstrument::leaveOpen(Setting setting) {
  doubtful(setting, Doubt::mayHaveChanged);
  if (setting == math) here().isMathDoubted = true;
  if (setting == triggerMode) here().isModeOpen = true;
}

/// Another setting's value is what went over the line.
std::optional<WireValue> KnownInstrument::inDivisions(Setting setting,
                                                      std::optional<WireValue> value) const {
  const std::optional<Setting> scale = scaleOf(setting);
  if (!value || !scale) return value;
  const std::optional<double> perDivision = entry(*scale).number;
  if (!perDivision || toldDoubt(*scale) != Doubt::none) return std::nullopt;
  return WireValue{*value->number / *perDivision};
}

/// The same value again changes nothing.
void KnownInstrument::takeSent(Setting setting, const WireValue& value) {
  const Entry& before = entry(setting);
  const bool isSame =
      isKnown(setting) && before.number == value.number && before.caption == value.caption;
  take(setting, value);
  if (isSame) return;
  entry(setting).changedAt = ++now_;
  followed(setting);
}

void KnownInstrument::take(Setting setting, WireValue value, std::optional<int> reply) {
  leave(setting);
  if (setting == math) here().isMathDoubted = false;
  if (setting == triggerMode) here().isModeOpen = false;
  Entry& taken = entry(setting);
  taken.number = value.number;
  taken.caption = std::move(value.caption);
  taken.reply = reply;
  taken.doubt = Doubt::none;
  taken.line = presentLine();
}

/// A level that has moved by itself stays where it is.
void KnownInstrument::leave(Setting setting) {
  if (setting == triggerMode && mayMoveLevel() && entry(triggerLevel).doubt == Doubt::none)
    doubtful(triggerLevel, Doubt::mayHaveChanged);
}

void KnownInstrument::doubtful(Setting setting, Doubt reason) {
  leave(setting);
  Entry& doubted = entry(setting);
  doubted.doubt = reason;
  doubted.line = presentLine();
  doubted.changedAt = ++now_;
  followed(setting);
}

/// A position of zero is zero in any scale. One already in doubt passes the doubt on, and has
/// changed once more: the next value told is not the earlier one.
void KnownInstrument::followed(Setting setting) {
  const auto dependent = dependentOn(setting);
  if (!dependent) return;
  const bool isTold = toldDoubt(*dependent) == Doubt::none;
  if (isTold && entry(*dependent).number != 0.0) return doubtful(*dependent, Doubt::mayHaveChanged);
  if (!isKnown(*dependent)) entry(*dependent).changedAt = ++now_;
  followed(*dependent);
}

/// With several queries in a line, which one is answered is unknown.
void KnownInstrument::answered(std::string_view query, std::string_view reply, int replyNumber) {
  takeSent(lock, {1.0});
  const std::vector<WirePart> parts = wireParts(query);
  if (std::ranges::count(parts, true, &WirePart::isQuery) != 1) return notAnswered(query);
  for (const WirePart& part : parts) {
    const std::optional<Setting> setting = askedBy(part);
    if (!setting || *setting == math || *setting == running || *setting == lock) continue;
    const std::optional<WireValue> value = inDivisions(*setting, toldValue(*setting, reply));
    Entry& asked = entry(*setting);
    if (!value) {
      leaveUntold(asked);
      if (*setting == triggerMode) here().isModeOpen = true;
      continue;
    }
    if (isScale(*setting)) readOn_ = presentLine();
    // Whichever query it answers, what was known stands.
    if (isKnown(*setting) && asked.number == value->number && asked.caption == value->caption)
      continue;
    // The moment of the change is unknown: an earlier query may have asked either instrument.
    const bool wasTold = asked.line == presentLine() && (asked.number || !asked.caption.empty());
    const bool isOther =
        wasTold && (asked.number != value->number || asked.caption != value->caption);
    take(*setting, *value, replyNumber);
    if (!isOther) continue;
    asked.changedAt = ++now_;
    followed(*setting);
  }
  tell();
}

void KnownInstrument::notAnswered(std::string_view query) {
  for (const WirePart& part : wireParts(query)) {
    const std::optional<Setting> setting = askedBy(part);
    if (!setting) continue;
    leaveUntold(entry(*setting));
  }
  tell();
}

/// An earlier possible change remains possible.
void KnownInstrument::leaveUntold(Entry& asked) const {
  asked.line = presentLine();
  if (asked.doubt != Doubt::mayHaveChanged && asked.doubt != Doubt::notSent)
    asked.doubt = Doubt::noAnswer;
}

void KnownInstrument::reading() {
  for (const Setting setting : {scale1, scale2, timeBase, position1, position2}) {
    // The values of another instrument no longer matter.
    if (entry(setting).line != presentLine()) {
      entry(setting) = Entry();
      entry(setting).changedAt = ++now_;
    }
    entry(setting).doubt = Doubt::noAnswer;
    entry(setting).line = presentLine();
  }
  tell();
}

KnownInstrument::Fetched KnownInstrument::fetched(int channel, Moment requested,
                                                  FetchedSweeps::Bytes bytes) {
  FetchedSweeps& fetches = here().fetches[static_cast<std::size_t>(channel - 1)];
  const FetchedSweeps::Proof proof =
      fetches.take({bytes, presentLine(), requested, shownSince(), changedAt(running), isStopped(),
                    mayBeStopped(), mayHaveWaited(requested), isFreeRunning(requested)});
  if (proof.isRunning) take(running, {runningState});
  MadeUnder made = madeUnder(channel, requested, proof.sweptSince);
  made.isOther = proof.isOther;
  return {made, proof.isBack, proof.mayBeSame};
}

/// Math shows both channels.
KnownInstrument::Moment KnownInstrument::shownSince() const {
  return std::max({changedAt(position1), changedAt(position2), changedAt(delay),
                   changedAt(acquireLength), signalChangedAt(1), signalChangedAt(2)});
}

Doubt KnownInstrument::doubt(Setting setting) const {
  const Doubt told = toldDoubt(setting);
  if (told != Doubt::none) return told;
  Sureness least = sureness(entry(setting));
  if (const auto scale = scaleOf(setting)) {
    // Zero is zero in any scale.
    if (toldDoubt(*scale) != Doubt::none && entry(setting).number != 0.0) return toldDoubt(*scale);
    least = std::max(least, sureness(entry(*scale)));
  }
  if (least == Sureness::sure) return Doubt::none;
  return least == Sureness::notYet ? Doubt::unsureAnswer : Doubt::wrongAnswer;
}

/// As if each reply were the one to its query.
Doubt KnownInstrument::toldDoubt(Setting setting) const {
  const Entry& asked = entry(setting);
  if (asked.doubt == Doubt::neverRead) return Doubt::neverRead;
  if (isUpset() && setting != lock && asked.doubt == Doubt::none) return Doubt::mayHaveChanged;
  if (asked.line != presentLine()) return Doubt::anotherInstrument;
  // After one sweep it stops itself.
  const bool isOver = setting == running && asked.doubt == Doubt::none &&
                      asked.number == runningState &&
                      mayBeMode([](double mode) { return mode == singleMode; });
  if (isOver) return Doubt::mayHaveChanged;
  const bool isMoving = setting == triggerLevel && asked.doubt == Doubt::none && mayMoveLevel();
  return isMoving ? Doubt::mayHaveChanged : asked.doubt;
}

template <class Condition>
bool KnownInstrument::mayBeMode(Condition condition) const {
  const Entry& mode = entry(triggerMode);
  return here().isModeOpen || (mode.number && condition(*mode.number)) ||
         sureness(mode) != Sureness::sure;
}

/// In one of its modes the instrument finds the trigger level by itself. The panel does not expect
/// that level before it has been read.
bool KnownInstrument::mayMoveLevel() const {
  const Entry& mode = entry(triggerMode);
  if (mode.doubt == Doubt::neverRead || mode.doubt == Doubt::anotherInstrument) return false;
  const bool isAsTold = mode.doubt == Doubt::none || mode.doubt == Doubt::noAnswer;
  return !isAsTold || mayBeMode([](double told) { return told == autoLevel; });
}

std::optional<double> KnownInstrument::number(Setting setting) const {
  return isKnown(setting) ? entry(setting).number : std::nullopt;
}

std::optional<std::string> KnownInstrument::caption(Setting scale) const {
  return isKnown(scale) ? std::optional(entry(scale).caption) : std::nullopt;
}

std::optional<double> KnownInstrument::voltsPerDivision(int channel) const {
  return number(ofChannel(scale1, channel));
}

std::optional<double> KnownInstrument::secondsPerDivision() const {
  return number(timeBase);
}

int KnownInstrument::mathChannel() const {
  const std::optional<double>& shown = entry(math).number;
  return shown ? mathChannelOf(static_cast<std::size_t>(*shown)) : 0;
}

bool KnownInstrument::mayMathBeOn() const {
  const bool wasOn = mathChannel() != 0 && !isKnown(math);
  return wasOn || here().isMathDoubted;
}

MadeUnder whicheverHolds(const MadeUnder& a, const MadeUnder& b) {
  const auto same = [](const auto& one, const auto& other) {
    return one == other ? one : std::remove_cvref_t<decltype(one)>();
  };
  return {same(a.voltsPerDivision, b.voltsPerDivision),
          same(a.secondsPerDivision, b.secondsPerDivision), same(a.mathEntry, b.mathEntry),
          std::nullopt};
}

KnownInstrument::Moment KnownInstrument::signalChangedAt(int channel) const {
  return std::max({changedAt(ofChannel(scale1, channel)), changedAt(ofChannel(probe1, channel)),
                   changedAt(ofChannel(input1, channel)), changedAt(timeBase), changedAt(math),
                   changedAt(acquireMode), changedAt(acquireAverage)});
}

bool KnownInstrument::isStopped() const {
  return number(running) == stoppedState;
}

/// True if it was stopped behind this port and has not been told to run since.
bool KnownInstrument::mayBeStopped() const {
  return !isKnown(running) && entry(running).number == stoppedState;
}

/// A change since the last known sweep may not be in that sweep yet. If the instrument may have
/// been stopped earlier, that stop counts too.
void KnownInstrument::stop() {
  for (const int channel : {1, 2}) {
    Told& frozen = here().atStop[static_cast<std::size_t>(channel - 1)];
    Told now = toldAt(channel, sweptAt());
    if (mayBeStopped()) {
      now.made = whicheverHolds(frozen.made, now.made);
      now.voltsReplies.merge(frozen.voltsReplies);
      now.secondsReplies.merge(frozen.secondsReplies);
    }
    frozen = std::move(now);
  }
}

MadeUnder KnownInstrument::sureOf(const Told& told) const {
  const auto areSure = [this](const std::set<int>& replies) {
    return std::ranges::all_of(replies,
                               [this](int reply) { return sureness_(reply) == Sureness::sure; });
  };
  MadeUnder made = told.made;
  if (!areSure(told.voltsReplies)) made.voltsPerDivision.reset();
  if (!areSure(told.secondsReplies)) made.secondsPerDivision.reset();
  return made;
}

KnownInstrument::Told KnownInstrument::toldAt(int channel, Moment moment) const {
  const auto since = [&](Setting setting, std::set<int>& replies) -> std::optional<double> {
    if (changedAt(setting) > moment || toldDoubt(setting) != Doubt::none) return std::nullopt;
    if (entry(setting).reply) replies.insert(*entry(setting).reply);
    return entry(setting).number;
  };
  Told at;
  MadeUnder& made = at.made;
  made.voltsPerDivision = since(ofChannel(scale1, channel), at.voltsReplies);
  made.secondsPerDivision = since(timeBase, at.secondsReplies);
  const bool isMath = mathChannel() == channel;
  if (isMath || here().isMathDoubted || changedAt(math) > moment) made.voltsPerDivision.reset();
  if (isMath && isKnown(math) && changedAt(math) <= moment)
    made.mathEntry = static_cast<int>(*number(math));
  return at;
}

bool KnownInstrument::mayHaveWaited(Moment requested) const {
  return changedAt(triggerMode) > requested ||
         mayBeMode([](double mode) { return mode >= normalMode; });
}

bool KnownInstrument::isFreeRunning(Moment requested) const {
  const bool isRunning = !isStopped() && !mayBeStopped() && changedAt(running) <= requested;
  return isRunning && isKnown(triggerMode) && !mayHaveWaited(requested);
}

KnownInstrument::Moment KnownInstrument::sweptAt() const {
  const auto& [first, second] = here().fetches;
  return std::max(first.since(presentLine()), second.since(presentLine()));
}

/// The settings under which a record was made that was requested then, swept at that moment or
/// later, and arrives now. A stopped instrument made it at its stop, unless that came to nothing:
/// then what has changed behind it counts.
MadeUnder KnownInstrument::madeUnder(int channel, Moment requested, Moment sweptSince) const {
  const Moment stop = changedAt(running);
  MadeUnder made = sureOf(toldAt(channel, isStopped() ? std::min(requested, stop) : sweptSince));
  if (isStopped() || mayBeStopped() || stop > requested)
    made = whicheverHolds(sureOf(here().atStop[static_cast<std::size_t>(channel - 1)]), made);
  if (isStopped() && stop <= requested) made.stop = stop;
  return made;
}

}  // namespace tracewell
