// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <memory>

namespace tracewell {

/// Tells when the program is told to end from outside: on Unix by one of the signals SIGTERM,
/// SIGINT and SIGHUP, on Windows at its console. At most one of it may live. A signal that the
/// program was started to ignore stays ignored.
class EndingSignals {
 public:
  /// `end` is called once, out of the event loop.
  explicit EndingSignals(std::function<void()> end);
  ~EndingSignals();
  EndingSignals(const EndingSignals&) = delete;

 private:
  std::function<void()> end_;
  /// Turns what has come into an event; none where nothing can come.
  std::unique_ptr<QObject> arrival_;
};

}  // namespace tracewell
