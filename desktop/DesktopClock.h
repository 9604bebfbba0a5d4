// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>

#include "Clock.h"

namespace tracewell {

/// Clock on the Qt event loop and the system's monotonic time.
class DesktopClock : public Clock {
 public:
  DesktopClock();

  std::int64_t milliseconds() const override;
  void pumpEvents() override;
  void breathe() override;
  void sleep(int milliseconds) override;
  void callAfter(int delay, std::function<void()> action) override;
  std::string dateAndTime() const override;

 private:
  QElapsedTimer sinceStart_;
  /// Drops the actions that are still due when the clock is destroyed.
  QObject context_;
};

}  // namespace tracewell
