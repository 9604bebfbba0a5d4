// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DialogsHeld.h"
#include "Recorder.h"

namespace tracewell {

/// The records that are kept, held against the sweeps that they are of.
class RecordsHeld : public DialogsHeld {
 protected:
  using Number = RecordStore::Number;

  RecordsHeld() {
    recorder.kept = [this](Number number) { lookAtArrival(number); };
  }

  const Sweep& keptSweep(Number number) {
    const std::string bytes = store.record(number).bytes;
    return history_.sweeps.at(static_cast<std::size_t>(std::atoi(bytes.substr(2, 12).c_str())));
  }
  static std::size_t placeOf(const RecordFacts& facts) {
    return static_cast<std::size_t>(facts.channel - 1);
  }
  static bool isKnown(const MadeUnder& made) {
    return made.voltsPerDivision && made.secondsPerDivision;
  }

  /// Which sweep it is, how often it has come, and what lies in front of it.
  void lookAtArrival(Number number) {
    const RecordFacts& facts = store.facts(number);
    const Sweep& sweep = keptSweep(number);
    const std::int64_t now = clock.milliseconds();
    Heard& last = heard_.at(placeOf(facts));
    const Heard before = last;
    const bool isAgain = before.sweep == sweep.number && before.line == facts.line;
    if (!isAgain) last = {sweep.number, facts.line, 0, now, 0};
    ++last.fetches;
    last.fetchedAt = now;
    expect(facts.fetches == last.fetches, "record: fetches", std::to_string(facts.fetches));
    expect(facts.fetches <= sweep.sent.at(placeOf(facts)), "record: more fetches than were sent");
    expect(facts.sweepAt == last.firstAt && facts.fetchedAt == now && sweep.at <= facts.sweepAt,
           "record: moments");
    lookAtRecord(number);
    if (isAgain || before.sweep < 0) return;
    const Sweep& earlier = history_.sweeps.at(static_cast<std::size_t>(before.sweep));
    const RecordGap& gap = facts.gap;
    const bool isOtherPort = before.line.portNumber != facts.line.portNumber;
    expect(gap.isAnotherInstrument == isOtherPort, "gap: port");
    expect(gap.wasUnplugged == (!isOtherPort && before.line != facts.line), "gap: opened anew");
    expect(gap.isAnotherInstrument || gap.wasUnplugged || earlier.instrument == sweep.instrument,
           "gap: instrument");
    expect(gap.wasSilent == (now - before.fetchedAt > 5000), "gap: silence");
    const bool wasKnown = std::exchange(isKnown_.at(placeOf(facts)), isKnown(facts.madeUnder));
    const bool isOther = !isNear(earlier.volts(placeOf(facts)), sweep.volts(placeOf(facts))) ||
                         !isNear(earlier.seconds, sweep.seconds);
    const bool isOfOwnPanel = earlier.isOfOwnPanel || sweep.isOfOwnPanel;
    if (wasKnown && isKnown(facts.madeUnder) && !isOfOwnPanel)
      expect(gap.hasOtherScales == isOther, "gap: scales");
    expect(!gap.wasStopped || earlier.stops < sweep.stops || earlier.instrument != sweep.instrument,
           "gap: stopped");
  }

  /// What it was made under, and how far it reaches.
  void lookAtRecord(Number number) {
    const RecordFacts& facts = store.facts(number);
    const std::size_t place = placeOf(facts);
    const Sweep& sweep = keptSweep(number);
    const auto [first, isNew] =
        instruments_.try_emplace({facts.line.portNumber, facts.line.openings}, sweep.instrument);
    expect(isNew || first->second == sweep.instrument, "record: instrument");
    expect(store.record(number).bytes[1] == '0' + facts.channel, "record: channel");
    expect(!facts.isSimulated, "record: simulated");
    int lowest = sweep.counts(place, 0);
    int highest = lowest;
    for (int i = 1; i < 500; ++i) {
      lowest = std::min(lowest, sweep.counts(place, i));
      highest = std::max(highest, sweep.counts(place, i));
    }
    expect(facts.lowest == lowest && facts.highest == highest, "record: ends");
    if (sweep.isOfOwnPanel) return;
    const MadeUnder& made = facts.madeUnder;
    if (made.voltsPerDivision)
      expectNear(*made.voltsPerDivision, sweep.volts(place), 0, "record: volts");
    if (made.secondsPerDivision)
      expectNear(*made.secondsPerDivision, sweep.seconds, 0, "record: seconds");
    if (made.mathEntry)
      expect(sweep.isMath(place) && (*made.mathEntry + 1) % 4 == sweep.math, "record: math");
    if (const auto partner = store.partnerOf(number))
      expect(&keptSweep(*partner) == &sweep, "record: partner");
  }

  Recorder recorder{main};
  const RecordStore& store = recorder.store();

 private:
  struct Heard {
    int sweep = -1;
    InstrumentLine line;
    int fetches = 0;
    std::int64_t firstAt = 0;
    std::int64_t fetchedAt = 0;
  };
  std::array<Heard, 2> heard_;
  std::array<bool, 2> isKnown_{};
  /// By port and opening.
  std::map<std::pair<std::int16_t, int>, int> instruments_;
};

}  // namespace tracewell
