// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

namespace tracewell {

/// Tells when the system wants the program to end: the session is being closed or, on Unix, one of
/// the signals SIGTERM, SIGINT and SIGHUP has come. At most one of it may live.
class Termination : public QObject {
 public:
  /// `end` is called out of the event loop. It saves what is to be saved and ends the program.
  explicit Termination(std::function<void()> end);
  ~Termination() override;

 private:
  void watchSignals();

  std::function<void()> end_;
};

}  // namespace tracewell
