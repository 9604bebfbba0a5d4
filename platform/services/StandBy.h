// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>

#include "Clock.h"
#include "Gate.h"

namespace tracewell {

/// Lets a handler wait for the instrument. The window is painted and replies to the desktop; the
/// end of the session and Escape are obeyed; no handler, tick or record runs inside.
class StandBy {
 public:
  /// A waiting handler calls turn at least this often. Milliseconds.
  static constexpr int longestGap = 40;

  StandBy(Clock& clock, Gate& gate) : clock_(clock), gate_(gate) {}
  StandBy(const StandBy&) = delete;

  /// Lets the desktop run, if the last turn is longestGap ago. Throws ProgramEnded if the program
  /// is to end.
  void turn();

  /// A handler's waits, one after the other. Giving up ends all of them.
  class Burst {
   public:
    explicit Burst(StandBy& standBy) : standBy_(standBy) {
      if (standBy_.bursts_++ == 0) standBy_.isGivenUp_ = false;
    }
    ~Burst() {
      if (--standBy_.bursts_ == 0) standBy_.isGivenUp_ = false;
    }
    Burst(const Burst&) = delete;
    bool isGivenUp() const { return standBy_.isGivenUp_; }

   private:
    StandBy& standBy_;
  };

  /// Called at each turn, so that ages go on while a handler waits. It must not raise events.
  std::function<void()> meanwhile;

  bool isInBurst() const { return bursts_ > 0; }
  /// The user gives up the wait. Without a burst it does nothing.
  void giveUp() { isGivenUp_ = isInBurst(); }
  bool isGivenUp() const { return isGivenUp_; }

 private:
  Clock& clock_;
  Gate& gate_;
  std::int64_t lastTurn_ = 0;
  int bursts_ = 0;
  bool isGivenUp_ = false;
};

}  // namespace tracewell
