// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsBurst.h"

#include "Inquiry.h"
#include "ShownReplies.h"
#include "Waiting.h"

namespace tracewell {

void SettingsBurst::writeAndVerify(const Property<std::string>& caption,
                                   std::span<const std::string_view> stems, int row, int first) {
  main_.refresh();
  const Sending sending(*this, row);
  const ShortTimeOut shortTimeOut(main_.state, exchange_);
  main_.txtMsg.text = "";
  // A setup that is loaded during the burst counts for the next one.
  const SetupTable chosen = main_.gridMeasure;
  const int count = static_cast<int>(stems.size());
  Inquiry inquiry(exchange_.inquiries(), caption, Inquiry::Of::settings, count - first);
  for (int i = first; i < count; ++i) {
    inquiry.next();
    bool isDone = false;
    for (int attempt = 0; attempt < attempts && !isDone; ++attempt) {
      const bool isRight = isAccepted(std::string(stems[static_cast<std::size_t>(i)]),
                                      chosen.text(row, SetupTable::columnOf(i)));
      inquiry.note(isRight);
      isDone = isRight || inquiry.isGivenUp();
    }
  }
}

bool SettingsBurst::isSending(int row, const Property<std::string>& caption) const {
  if (!rows_.contains(row)) return false;
  main_.status.tell(StatusLine::refused, [&caption](const Words& words) {
    return words.say("%1: wait until the settings have been sent", {caption()});
  });
  return true;
}

bool SettingsBurst::isAccepted(const std::string& stem, const std::string& value) {
  const std::string command = stem + " " + value;
  exchange_.SendDSOCmd(command);
  echoLine(main_, command);
  Delay(main_, settlingTime);
  return exchange_.SendDSOCmd(stem + "?") == value;
}

}  // namespace tracewell
