// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <memory>

class QSocketNotifier;

namespace tracewell {

/// Tells when the system wants the program to end: the session is being closed or, on Unix, one of
/// the signals SIGTERM, SIGINT and SIGHUP has come. At most one of it may live.
/// A signal that the program was started to ignore stays ignored.
class Termination : public QObject {
 public:
  /// `end` is called out of the event loop. It saves what is to be saved and ends the program.
  explicit Termination(std::function<void()> end);
  ~Termination() override;

 private:
  void watchSignals();

  std::function<void()> end_;
  /// Turns a signal into an event; none where there are no signals.
  std::unique_ptr<QSocketNotifier> arrival_;
};

}  // namespace tracewell
