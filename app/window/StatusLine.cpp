// SPDX-License-Identifier: GPL-3.0-or-later
#include "StatusLine.h"

#include <algorithm>
#include <utility>

namespace tracewell {

void StatusLine::tell(Topic topic, Sentence sentence) {
  remove(topic);
  if (topic == failed) remove(happened);
  told_.insert(told_.begin(), {topic, std::move(sentence), clock_.milliseconds()});
  tellAgain();
}

void StatusLine::tellToo(Topic topic, Sentence sentence) {
  const auto last = std::find_if(told_.rbegin(), told_.rend(),
                                 [topic](const Told& told) { return told.topic == topic; });
  told_.insert(last == told_.rend() ? told_.begin() : last.base(),
               {topic, std::move(sentence), clock_.milliseconds()});
  tellAgain();
}

void StatusLine::withdraw(Topic topic) {
  remove(topic);
  tellAgain();
}

bool StatusLine::says(Topic topic) const {
  return std::ranges::any_of(told_, [topic](const Told& told) { return told.topic == topic; });
}

void StatusLine::remove(Topic topic) {
  const bool isOfUser = topic == happened;
  std::erase_if(told_, [=](const Told& told) {
    return told.topic == topic || (isOfUser && told.topic == failed);
  });
}

bool StatusLine::isOver(const Told& told) const {
  const bool isOfAMoment = told.topic == missedBySeries || told.topic == missedByOne;
  return isOfAMoment && clock_.milliseconds() - told.since > missedIsSaid;
}

/// A warning says that something is not as it looks; the others say what is being or has been done.
bool StatusLine::isWarning(const Told& told) {
  return told.topic != progress && told.topic != refused && told.topic != happened;
}

void StatusLine::tellAgain() {
  std::erase_if(told_, [this](const Told& told) { return isOver(told); });
  const auto isProgress = [](const Told& told) { return told.topic == progress; };
  const bool isAsking = std::any_of(told_.begin(), told_.end(), isProgress);
  std::string line;
  label_.sentences.clear();
  for (const Told& told : told_) {
    if (isAsking && !isProgress(told) && told.topic != refused) continue;
    const std::string said = told.sentence(words_);
    if (said.empty()) continue;
    label_.sentences.push_back({said, isWarning(told)});
    line += (line.empty() ? "" : "; ") + said;
  }
  label_.caption = line;
}

}  // namespace tracewell
