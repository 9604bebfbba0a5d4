// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace tracewell {

/// Tells, on Unix, when one of the signals SIGTERM, SIGINT and SIGHUP has come. At most one of it
/// may live. A signal that the program was started to ignore stays ignored.
class EndingSignals {
 public:
  /// `end` is called once, out of the event loop.
  explicit EndingSignals(std::function<void()> end);
  ~EndingSignals();
  EndingSignals(const EndingSignals&) = delete;

 private:
  std::function<void()> end_;
  /// Turns a signal into an event; none where there are no signals.
  std::unique_ptr<QSocketNotifier> arrival_;
};

}  // namespace tracewell
