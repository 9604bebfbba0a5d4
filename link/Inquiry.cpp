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
  // What the last one complained of is over with this one.
  if (statusBefore_ == std::exchange(exchange_.complaint_, "")) statusBefore_.clear();
}

Inquiry::Inquiry(frmDSO& main, CommandExchange& exchange, const std::string& question)
    : Inquiry(main, exchange, question, Of::questions, 1) {
  next();
}

Inquiry::~Inquiry() {
  finishItem();
  exchange_.inquiry_ = outer_;
  if (missing_ > 0) exchange_.complaint_ = complaint();
  showStatus(main_, missing_ > 0 ? exchange_.complaint_ : statusBefore_);
}

void Inquiry::next() {
  finishItem();
  ++item_;
  showStatus(main_, progress());
}

void Inquiry::finishItem() {
  if (std::exchange(isMissing_, false)) ++missing_;
}

std::string Inquiry::progress() const {
  if (count_ == 1) return "Waiting for the answer to " + name_;
  return name_ + (items_ == Of::questions ? ": question " : ": setting ") + std::to_string(item_) +
         " of " + std::to_string(count_);
}

std::string Inquiry::complaint() const {
  if (count_ == 1) return "No answer to " + name_;
  const std::string share = std::to_string(missing_) + " of " + std::to_string(count_);
  return name_ + (items_ == Of::questions ? ": no answer to " + share + " questions"
                                          : ": " + share + " settings not confirmed");
}

}  // namespace tracewell
