// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "CommandExchange.h"

namespace tracewell {

/// A series of questions to the instrument, as long as it lives. The status line counts them while
/// they are put, and says at the end how many had no answer; Escape ends the waits that are left.
/// What it says goes with the next series of questions; what a single question left, with the next.
class Inquiry {
 public:
  enum class Of { oneQuestion, questions, settings };

  /// `name` is what the status line calls it, `count` how many items follow.
  Inquiry(frmDSO& main, CommandExchange& exchange, std::string name, Of items, int count);
  /// A single question.
  Inquiry(frmDSO& main, CommandExchange& exchange, const std::string& question);
  ~Inquiry();
  Inquiry(const Inquiry&) = delete;

  /// The next item begins.
  void next();
  /// How an exchange for the present item ended; of several the last one counts.
  void note(bool isAnswered) { isMissing_ = !isAnswered; }
  /// The user does not want to wait any longer.
  bool isGivenUp() const { return waits_.isGivenUp(); }

 private:
  void forgetComplaint();
  void show(const std::string& text);
  void finishItem();
  std::string progress() const;
  /// What had no answer, and why, where that is known.
  std::string complaint() const;
  std::string missed() const;

  frmDSO& main_;
  CommandExchange& exchange_;
  StandBy::Burst waits_;
  std::string name_;
  Of items_;
  int count_;
  int item_ = 0;
  int missing_ = 0;
  bool isMissing_ = false;
  Inquiry* outer_;
  std::string statusBefore_;
  /// What this one has written into the status line last.
  std::string shown_;
};

}  // namespace tracewell
