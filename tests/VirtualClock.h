// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <utility>

#include "Clock.h"

namespace tracewell {

/// Time that passes only when it is asked to: a millisecond a pump, and in sleep. Ten seconds of
/// the program take as long as their events do.
class VirtualClock : public Clock {
 public:
  std::int64_t milliseconds() const override { return now_; }

  void pumpEvents() override {
    ++now_;
    turn();
  }

  void breathe() override { turn(); }

  void sleep(int milliseconds) override { now_ += milliseconds; }

  void callAfter(int delay, std::function<void()> action) override {
    due_.emplace(now_ + delay, std::move(action));
  }

  std::string dateAndTime() const override { return "2026-03-15 14:29:05"; }

  /// Lets events happen for so long.
  void run(int milliseconds) {
    const std::int64_t end = now_ + milliseconds;
    while (now_ < end) pumpEvents();
  }

  /// Steps the count without running anything.
  void jumpTo(std::int64_t milliseconds) { now_ = milliseconds; }

  /// Happens whenever events may.
  std::function<void()> meanwhile;

 private:
  void turn() {
    if (meanwhile) meanwhile();
    while (!due_.empty() && due_.begin()->first <= now_) {
      const std::function<void()> action = std::move(due_.begin()->second);
      due_.erase(due_.begin());
      action();
    }
  }

  std::int64_t now_ = 0;
  /// Of equal times the first in is the first out.
  std::multimap<std::int64_t, std::function<void()>> due_;
};

}  // namespace tracewell
