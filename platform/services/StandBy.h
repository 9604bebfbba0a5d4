// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>

#include "Clock.h"
#include "Gate.h"

namespace tracewell {

/// How a handler waits for the instrument: the window is painted and answers the desktop, the end
/// of the session and Escape are obeyed, and no handler, tick or record runs inside.
class StandBy {
 public:
  /// Whoever waits calls turn at least so often. Milliseconds.
  static constexpr int longestGap = 40;

  StandBy(Clock& clock, Gate& gate) : clock_(clock), gate_(gate) {}
  StandBy(const StandBy&) = delete;

  /// Lets the desktop have its turn, if the last one is longestGap ago. Throws ProgramEnded when
  /// the end of the program has been asked for meanwhile.
  void turn();

  /// The waits that a handler does one after the other. Giving up ends all of them.
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

  /// Told at each turn: what grows old does so while a handler waits. It may raise no event.
  std::function<void()> meanwhile;

  bool isInBurst() const { return bursts_ > 0; }
  /// The user does not want to wait any longer. Without a burst it does nothing.
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
