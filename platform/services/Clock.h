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

  /// Runs the pending events and waits a millisecond, so that a loop around it burns no processor.
  /// Never lets an event's own errors through.
  virtual void pumpEvents() = 0;

  /// Paints what is due and replies to the desktop, at once. Runs actions that are due, too. For
  /// use while the gate is held; what the user does meanwhile is kept.
  virtual void breathe() = 0;

  /// Waits without running any event.
  virtual void sleep(int milliseconds) = 0;

  /// Has the event loop run `action` once, not earlier than after `delay` milliseconds and never
  /// from inside this call. It cannot be cancelled: a caller that may be gone by then guards the
  /// action.
  virtual void callAfter(int delay, std::function<void()> action) = 0;

  /// Date and time as shown in log lines, always in the form "2026-03-15 14:29:05".
  virtual std::string dateAndTime() const = 0;
};

}  // namespace tracewell
