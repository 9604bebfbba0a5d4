// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

#include "EndingSignals.h"

namespace tracewell {

/// Reports that the system wants the program to end: the session is closing or, on Unix, SIGTERM,
/// SIGINT or SIGHUP has arrived. At most one may exist. A signal that the program was started to
/// ignore stays ignored.
class Termination : public QObject {
 public:
  /// `end` is called from the event loop. It saves everything and ends the program.
  explicit Termination(std::function<void()> end);

 private:
  std::function<void()> end_;
  EndingSignals signals_{[this] { end_(); }};
};

}  // namespace tracewell
