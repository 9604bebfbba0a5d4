// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>

#include "Property.h"
#include "Window.h"

namespace tracewell {

/// Ticks every `interval` milliseconds while enabled, out of the event loop. Enabling starts a full
/// interval; an interval missed while a handler was busy is not made up for.
class Timer : public Observable {
 public:
  /// Created disabled.
  Timer(Window& owner, int interval);
  virtual ~Timer() = default;

  Property<bool> enabled;
  Event<> timer;

  /// When it was last enabled, on Clock's scale.
  std::int64_t enabledAt() const { return enabledAt_; }
  /// In milliseconds; another one than before counts from now on.
  void setInterval(int interval);

 private:
  void start();
  void tick();

  Services& services_;
  int interval_;
  std::int64_t enabledAt_ = 0;
  // A call that is still due when the timer has been disabled or is gone finds this replaced.
  std::shared_ptr<const int> running_;
};

}  // namespace tracewell
