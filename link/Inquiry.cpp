// SPDX-License-Identifier: GPL-3.0-or-later
#include "Inquiry.h"

#include <utility>

namespace tracewell {

Inquiry* Inquiries::current() const {
  return current_ != nullptr && !current_->isAside() ? current_ : nullptr;
}

Inquiry::Inquiry(Inquiries& all, const Property<std::string>& caption, Of items, int count)
    : Inquiry(all, std::function<std::string()>([&caption] { return caption(); }), items, count) {}

Inquiry::Inquiry(Inquiries& all, std::function<std::string()> name, Of items, int count)
    : all_(all),
      main_(all.main_),
      waits_(main_.services().standBy),
      name_(std::move(name)),
      items_(items),
      count_(count),
      outer_(std::exchange(all.current_, this)) {
  withdrawEarlier();
}

Inquiry::Inquiry(Inquiries& all, const std::string& question)
    : Inquiry(all, std::function<std::string()>([question] { return question; }), Of::oneQuestion,
              1) {
  next();
}

Inquiry::~Inquiry() {
  finishItem();
  all_.current_ = outer_;
  if (missing_ > 0) showMissed();
  if (outer_ != nullptr)
    outer_->showProgress();
  else
    main_.status.withdraw(StatusLine::progress);
}

/// Settings that are sent belong to the task that began with queries, and so does a single query
/// after them.
void Inquiry::withdrawEarlier() {
  main_.status.withdraw(StatusLine::happened);
  if (items_ == Of::settings) return;
  main_.status.withdraw(StatusLine::missedByOne);
  if (items_ == Of::questions) main_.status.withdraw(StatusLine::missedBySeries);
}

void Inquiry::showProgress() {
  main_.status.tell(StatusLine::progress, [this](const Words& words) { return progress(words); });
}

void Inquiry::showMissed() {
  const auto topic =
      items_ == Of::oneQuestion ? StatusLine::missedByOne : StatusLine::missedBySeries;
  main_.status.tellToo(topic, [missed = missed(), reason = all_.failure_](const Words& words) {
    return missed(words) + (reason.empty() ? "" : " (" + reason + ")");
  });
}

void Inquiry::next() {
  finishItem();
  ++item_;
  missedBefore_ = missing_;
  showProgress();
}

void Inquiry::finishItem() {
  const std::optional<bool> isAnswered = std::exchange(isAnswered_, std::nullopt);
  if (!isAnswered) return;
  ++(*isAnswered ? answered_ : missing_);
}

std::string Inquiry::progress(const Words& words) const {
  if (items_ == Of::oneQuestion) return words.say("Waiting for the answer to %1", {name_()});
  const std::string item = std::to_string(item_);
  const std::string count = std::to_string(count_);
  if (missedBefore_ > 0) {
    const std::string missing = std::to_string(missedBefore_);
    return items_ == Of::questions ? words.say("%1: question %2 of %3, %4 not answered",
                                               {name_(), item, count, missing})
                                   : words.say("%1: setting %2 of %3, %4 not confirmed",
                                               {name_(), item, count, missing});
  }
  return items_ == Of::questions ? words.say("%1: question %2 of %3", {name_(), item, count})
                                 : words.say("%1: setting %2 of %3", {name_(), item, count});
}

StatusLine::Sentence Inquiry::missed() const {
  const int unasked = count_ - answered_ - missing_;
  const int unanswered = isGivenUp() && items_ == Of::questions ? missing_ + unasked : missing_;
  return
      [name = name_, items = items_, isGivenUp = isGivenUp(), missing = std::to_string(unanswered),
       count = std::to_string(count_), unasked](const Words& words) {
        if (items == Of::oneQuestion)
          return isGivenUp ? words.say("%1: given up", {name()})
                           : words.say("No answer to %1", {name()});
        if (isGivenUp)
          return words.say("%1: given up, %2 of %3 not answered", {name(), missing, count});
        if (items == Of::settings)
          return words.say("%1: %2 of %3 settings not confirmed", {name(), missing, count});
        if (unasked > 0)
          return words.say("%1: no answer to %2 of %3 questions, %4 not asked",
                           {name(), missing, count, std::to_string(unasked)});
        return words.say("%1: no answer to %2 of %3 questions", {name(), missing, count});
      };
}

}  // namespace tracewell
