// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

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

  /// A handler's waits, one after the other. Giving up ends all of them, those of the bursts around
  /// it too, but for a burst that has gone aside.
  class Burst {
   public:
    explicit Burst(StandBy& standBy)
        : standBy_(standBy),
          around_(std::exchange(standBy.innermost_, this)),
          asides_(standBy.asides_),
          isGivenUp_(isOneWithAround() && around_->isGivenUp_) {}
    ~Burst() {
      standBy_.innermost_ = around_;
      if (isOneWithAround()) around_->isGivenUp_ = isGivenUp_;
    }
    Burst(const Burst&) = delete;
    bool isGivenUp() const { return isGivenUp_; }
    bool isAside() const { return asides_ != standBy_.asides_; }

   private:
    friend StandBy;
    bool isOneWithAround() const { return around_ != nullptr && around_->asides_ == asides_; }

    StandBy& standBy_;
    Burst* around_;
    int asides_;
    bool isGivenUp_;
  };

  /// As long as it lives other handlers run. Each of them waits in a burst of its own; while none
  /// of them does, giving up is for the burst that has gone aside.
  class Aside {
   public:
    explicit Aside(StandBy& standBy) : standBy_(standBy) { ++standBy_.asides_; }
    ~Aside() { --standBy_.asides_; }
    Aside(const Aside&) = delete;

   private:
    StandBy& standBy_;
  };

  /// Called at each turn, so that ages go on while a handler waits. It must not raise events.
  std::function<void()> meanwhile;

  bool isInBurst() const { return innermost_ != nullptr; }
  /// The user gives up the wait. Without a burst it does nothing.
  void giveUp() {
    if (isInBurst()) innermost_->isGivenUp_ = true;
  }
  /// Whether the burst that waits now is given up.
  bool isGivenUp() const { return isInBurst() && !innermost_->isAside() && innermost_->isGivenUp_; }

 private:
  Clock& clock_;
  Gate& gate_;
  std::int64_t lastTurn_ = 0;
  Burst* innermost_ = nullptr;
  int asides_ = 0;
};

}  // namespace tracewell
