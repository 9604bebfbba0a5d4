// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "StandBy.h"
#include "frmDSO.h"

namespace tracewell {

class Inquiry;

/// What all questions to the instrument share. CommandExchange owns it and tells it how each
/// exchange ended.
class Inquiries {
 public:
  explicit Inquiries(frmDSO& main) : main_(main) {}

  /// The innermost series of the handler that runs, or null.
  Inquiry* current() const;
  /// Why the last exchange failed, in the port's words; empty after a success and after silence.
  void noteFailure(const std::string& reason) { failure_ = reason; }

 private:
  friend class Inquiry;
  frmDSO& main_;
  Inquiry* current_ = nullptr;
  std::string failure_;
};

/// A series of questions to the instrument, as long as it lives. The status line counts them while
/// they are put, and says at the end how many had no answer; Escape ends the waits that are left.
/// What it says goes with the next series of questions; what a single question left, with the next.
/// What the user has had done before it is no longer said.
class Inquiry {
 public:
  enum class Of { oneQuestion, questions, settings };

  /// The status line calls it by `caption`, which stays the caller's and outlives the sentences;
  /// `count` items follow.
  Inquiry(Inquiries& all, const Property<std::string>& caption, Of items, int count);
  /// A single question.
  Inquiry(Inquiries& all, const std::string& question);
  ~Inquiry();
  Inquiry(const Inquiry&) = delete;

  /// The next item begins.
  void next();
  /// How an exchange for the present item ended; of several the last one counts.
  void note(bool isAnswered) { isAnswered_ = isAnswered; }
  /// The user does not want to wait any longer.
  bool isGivenUp() const { return waits_.isGivenUp(); }
  /// Other handlers run meanwhile.
  bool isAside() const { return waits_.isAside(); }

 private:
  Inquiry(Inquiries& all, std::function<std::string()> name, Of items, int count);
  void withdrawEarlier();
  void finishItem();
  void showProgress();
  void showMissed();
  std::string progress(const Words& words) const;
  /// What had no answer.
  StatusLine::Sentence missed() const;

  Inquiries& all_;
  frmDSO& main_;
  StandBy::Burst waits_;
  std::function<std::string()> name_;
  Of items_;
  int count_;
  int item_ = 0;
  int missing_ = 0;
  /// Of the items before the present one.
  int missedBefore_ = 0;
  int answered_ = 0;
  /// None where nothing of the present item has been asked.
  std::optional<bool> isAnswered_;
  Inquiry* outer_;
};

}  // namespace tracewell
