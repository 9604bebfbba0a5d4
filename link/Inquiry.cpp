// SPDX-License-Identifier: GPL-3.0-or-later
#include "Inquiry.h"

#include <utility>

#include "StatusLine.h"

namespace tracewell {

Inquiry::Inquiry(frmDSO& main, CommandExchange& exchange, std::string name, Of items, int count)
    : main_(main),
      exchange_(exchange),
      waits_(main.services().standBy),
      name_(std::move(name)),
      items_(items),
      count_(count),
      outer_(std::exchange(exchange.inquiry_, this)),
      statusBefore_(main.lblStatus.caption()) {
  forgetComplaint();
  shown_ = statusBefore_;
}

Inquiry::Inquiry(frmDSO& main, CommandExchange& exchange, const std::string& question)
    : Inquiry(main, exchange, question, Of::oneQuestion, 1) {
  next();
}

/// Whatever another handler has said meanwhile stays.
Inquiry::~Inquiry() {
  finishItem();
  exchange_.inquiry_ = outer_;
  const std::string& now = main_.lblStatus.caption();
  const std::string& kept = now == shown_ ? statusBefore_ : now;
  if (missing_ == 0) {
    showStatus(main_, kept);
    return;
  }
  exchange_.complaint_ = (kept.empty() ? "" : kept + "; ") + complaint();
  exchange_.isComplaintOfOne_ = items_ == Of::oneQuestion;
  showStatus(main_, exchange_.complaint_);
}

/// Settings that are sent belong to the task that has begun with questions, and so does a single
/// question behind them.
void Inquiry::forgetComplaint() {
  const bool isOver =
      items_ == Of::questions || (items_ == Of::oneQuestion && exchange_.isComplaintOfOne_);
  if (!isOver || exchange_.complaint_.empty()) return;
  if (statusBefore_ == exchange_.complaint_) statusBefore_.clear();
  exchange_.complaint_.clear();
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
  if (items_ == Of::oneQuestion) return "Waiting for the answer to " + name_;
  return name_ + (items_ == Of::questions ? ": question " : ": setting ") + std::to_string(item_) +
         " of " + std::to_string(count_);
}

std::string Inquiry::complaint() const {
  const std::string& failure = exchange_.failure_;
  return missed() + (failure.empty() ? "" : " (" + failure + ")");
}

std::string Inquiry::missed() const {
  if (items_ == Of::oneQuestion) return "No answer to " + name_;
  const std::string share = std::to_string(missing_) + " of " + std::to_string(count_);
  return name_ + (items_ == Of::questions ? ": no answer to " + share + " questions"
                                          : ": " + share + " settings not confirmed");
}

}  // namespace tracewell
