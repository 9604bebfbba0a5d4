// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "MadeUnder.h"

namespace tracewell {

/// What the records of one channel prove: since when the instrument has swept for certain, and
/// whether it runs although it was taken to be stopped. A damaged record proves nothing, if the one
/// before it comes back behind it.
class FetchedSweeps {
 public:
  /// As in KnownInstrument.
  using Moment = std::int64_t;

  /// The bytes of a record against the last ones of its channel, and those before.
  enum class Bytes { same, asBefore, other };

  /// A record that has arrived on the present line, and what is known then.
  struct Fetch {
    Bytes bytes = Bytes::other;
    InstrumentLine line;
    Moment requested = 0;
    /// Since when nothing has changed that a sweep shows, and that stops or runs the instrument.
    Moment shownSince = 0;
    Moment runningSince = 0;
    bool isStopped = false;
    bool mayBeStopped = false;
    /// The instrument may have waited for its trigger; or it is known to run without.
    bool mayHaveWaited = false;
    bool isFreeRunning = false;
  };
  struct Proof {
    /// The record was swept at that moment or later: behind its request if the instrument sweeps
    /// freely, else behind the sweep before. 0 where nothing is known.
    Moment sweptSince = 0;
    /// The instrument runs that was, or may have been, stopped, and this record was made under the
    /// present settings.
    bool isRunning = false;
    /// The sweep of before is there again: the record in between was damaged.
    bool isBack = false;
    /// It may be the sweep of the record that it was compared with, as it is shown now.
    bool mayBeSame = false;
    /// It may be another sweep than the one that was fetched behind the stop before.
    bool isOther = false;
  };

  Proof take(const Fetch& fetch);

  /// Since when a sweep has come for certain on that line; 0 if none has.
  Moment since(const InstrumentLine& line) const { return last_.line == line ? last_.since : 0; }
  /// The newest sweep was there at that moment: another one that comes later was made behind it. 0
  /// if there was none on that line.
  Moment lastOn(const InstrumentLine& line) const {
    return last_.line == line ? last_.requested : 0;
  }

 private:
  struct Swept {
    InstrumentLine line;
    Moment requested = 0;
    /// How many have come one behind another under the same settings.
    int inARow = 0;
    Moment since = 0;
    /// The stop, or run, behind which another one had been fetched; 0 if none had.
    Moment otherBehind = 0;
  };

  Proof takeOther(const Fetch& fetch, Moment sweptSince);
  bool isLastBehindChange(const Fetch& fetch) const;

  Swept last_;
  Swept before_;
  /// How often one came back, with no other in between.
  int returns_ = 0;
  /// Of the newest record, whatever its bytes.
  InstrumentLine line_;
  Moment requested_ = 0;
};

}  // namespace tracewell
