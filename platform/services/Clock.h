// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace tracewell {

/// Time and the event queue. Implemented by desktop/DesktopClock on the Qt event loop, and by
/// tests/VirtualClock, where time passes only inside pumpEvents and sleep.
class Clock {
 public:
  virtual ~Clock() = default;

  /// Milliseconds since an arbitrary start. Never steps back, whatever the time of day does.
  virtual std::int64_t milliseconds() const = 0;

  /// Runs the events that are waiting, and waits a millisecond, so that a loop around it burns no
  /// processor. An event's own errors never come out of here.
  virtual void pumpEvents() = 0;

  /// Lets what is to be painted be painted and the desktop get its answers, at once. Actions that
  /// are due run, too: for use while the gate is held. What the user does meanwhile is kept.
  virtual void breathe() = 0;

  /// Waits without running any event.
  virtual void sleep(int milliseconds) = 0;

  /// Has the event loop run `action` once, not earlier than after `delay` milliseconds and never
  /// from inside this call. It cannot be cancelled: whoever may be gone by then guards the action.
  virtual void callAfter(int delay, std::function<void()> action) = 0;

  /// Date and time as shown in log lines, always in the form "2026-03-15 14:29:05".
  virtual std::string dateAndTime() const = 0;
};

}  // namespace tracewell
