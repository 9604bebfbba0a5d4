// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

#include "EndingSignals.h"

namespace tracewell {

/// Tells when the system wants the program to end: the session is being closed, or one of the
/// ending signals has come. At most one of it may live.
class Termination : public QObject {
 public:
  /// `end` is called out of the event loop. It saves what is to be saved and ends the program.
  explicit Termination(std::function<void()> end);

 private:
  std::function<void()> end_;
  EndingSignals signals_{[this] { end_(); }};
};

}  // namespace tracewell
