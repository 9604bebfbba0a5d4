// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <poll.h>

#include <span>
#include <string>

#include "Instrument.h"

namespace tracewell {

/// Puts an instrument behind a pseudo-terminal, which a program opens like a serial device. POSIX.
class PseudoTerminalServer {
 public:
  struct Options {
    LineRate rate;
    /// A symbolic link to the terminal, kept while the server runs; empty for none.
    std::string link;
    /// After a hang-up: milliseconds until the terminal is back, or negative to end.
    int replugAfter = -1;
  };

  /// Raises std::system_error if there is no pseudo-terminal to be had.
  PseudoTerminalServer(Instrument& instrument, Options options);
  ~PseudoTerminalServer();
  PseudoTerminalServer(const PseudoTerminalServer&) = delete;

  /// Path of the terminal that a panel opens.
  const std::string& path() const { return path_; }

  /// Serves until a signal asks for the end or the cable is pulled for good. Lines on the standard
  /// input are faults as under ":SIM:".
  void serve();

 private:
  void plugIn();
  void pullPlug();
  int millisecondsToNextByte() const;
  /// Until one of them is ready, a signal comes or the time is over; negative for no end.
  void wait(std::span<pollfd> watched, int milliseconds) const;
  void takeBytes();
  void sendDueBytes();
  void takeFaultLines();

  Instrument& instrument_;
  Options options_;
  sigset_t duringWaits_;
  std::string path_;
  std::string faultLine_;
  bool hasStandardInput_ = true;
  int controller_ = -1;
  /// The far side, held open so that a terminal that nobody uses is no error.
  int terminal_ = -1;
};

}  // namespace tracewell
