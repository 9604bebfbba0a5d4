// SPDX-License-Identifier: GPL-3.0-or-later
#include "Inquiry.h"

#include <utility>

#include "StatusLine.h"

namespace tracewell {

Inquiry::Inquiry(Inquiries& all, std::string name, Of items, int count)
    : all_(all),
      main_(all.main_),
      waits_(main_.services().standBy),
      name_(std::move(name)),
      items_(items),
      count_(count),
      outer_(std::exchange(all.current_, this)),
      statusBefore_(main_.lblStatus.caption()) {
  forgetComplaint();
  shown_ = statusBefore_;
}

Inquiry::Inquiry(Inquiries& all, const std::string& question)
    : Inquiry(all, question, Of::oneQuestion, 1) {
  next();
}

/// Whatever another handler has said meanwhile stays.
Inquiry::~Inquiry() {
  finishItem();
  all_.current_ = outer_;
  const std::string& now = main_.lblStatus.caption();
  const std::string& kept = now == shown_ ? statusBefore_ : now;
  if (missing_ == 0) {
    showStatus(main_, kept == main_.LinkHint ? "" : kept);
    return;
  }
  all_.complaint_ = (kept.empty() ? "" : kept + "; ") + complaint();
  all_.isComplaintOfOne_ = items_ == Of::oneQuestion;
  showStatus(main_, all_.complaint_);
}

/// Settings that are sent belong to the task that has begun with questions, and so does a single
/// question behind them.
void Inquiry::forgetComplaint() {
  const bool isOver =
      items_ == Of::questions || (items_ == Of::oneQuestion && all_.isComplaintOfOne_);
  if (!isOver || all_.complaint_.empty()) return;
  if (statusBefore_ == all_.complaint_) statusBefore_.clear();
  all_.complaint_.clear();
}

void Inquiry::show(const std::string& text) {
  shown_ = text;
  showStatus(main_, text);
}

void Inquiry::next() {
  finishItem();
  ++item_;
  show(progress());
}

void Inquiry::finishItem() {
  if (std::exchange(isMissing_, false)) ++missing_;
}

std::string Inquiry::progress() const {
  const Words& words = main_.services().words;
  if (items_ == Of::oneQuestion) return words.say("Waiting for the answer to %1", {name_});
  const std::string item = std::to_string(item_);
  const std::string count = std::to_string(count_);
  return items_ == Of::questions ? words.say("%1: question %2 of %3", {name_, item, count})
                                 : words.say("%1: setting %2 of %3", {name_, item, count});
}

std::string Inquiry::complaint() const {
  const std::string& failure = all_.failure_;
  return missed() + (failure.empty() ? "" : " (" + failure + ")");
}

std::string Inquiry::missed() const {
  const Words& words = main_.services().words;
  if (items_ == Of::oneQuestion)
    return isGivenUp() ? words.say("%1: given up", {name_}) : words.say("No answer to %1", {name_});
  const std::string missing = std::to_string(missing_);
  const std::string count = std::to_string(count_);
  if (isGivenUp()) return words.say("%1: given up, %2 of %3 not answered", {name_, missing, count});
  return items_ == Of::questions
             ? words.say("%1: no answer to %2 of %3 questions", {name_, missing, count})
             : words.say("%1: %2 of %3 settings not confirmed", {name_, missing, count});
}

}  // namespace tracewell
