// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWheelEvent>

namespace tracewell {

/// Turns a wheel's small steps, such as a touchpad's, into whole notches.
class WheelTravel {
 public:
  /// Number of notches completed by this event; negative towards the user.
  int notches(const QWheelEvent& event) {
    constexpr int notch = 120;
    travel_ += event.angleDelta().y();
    const int complete = travel_ / notch;
    travel_ -= complete * notch;
    return complete;
  }

 private:
  /// Eighths of a degree.
  int travel_ = 0;
};

}  // namespace tracewell
