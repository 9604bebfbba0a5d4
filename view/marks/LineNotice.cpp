// SPDX-License-Identifier: GPL-3.0-or-later
#include "LineNotice.h"

#include "TraceMarks.h"

namespace tracewell {
namespace {

/// Whether it has happened again and again, or nothing else has since; not long ago.
bool isLasting(const LineReport::Tally& tally, const LineReport& report, std::int64_t now) {
  constexpr std::int64_t longAgo = 15000;
  if (tally.lastAt && now - *tally.lastAt > longAgo) return false;
  return tally.inLastMinute > 1 || (tally.inLastMinute == 1 && tally.lastAt > report.lastRecordAt);
}

std::string lineTrouble(const frmDSO& main, const Words& words) {
  const LineReport report = main.services().port.report();
  std::string text;
  const auto say = [&text](const std::string& sentence) {
    text += (text.empty() ? "" : "; ") + sentence;
  };
  const auto times = [](const LineReport::Tally& tally) {
    return std::to_string(tally.inLastMinute);
  };
  // What has stopped the acquisition says why itself.
  if (!report.failure.empty() && !main.status.says(StatusLine::stoppedByError))
    say(words.say("The connection is lost: %1", {report.failure}));
  if (report.unaskedBytes.inLastMinute > 0)
    say(words.say("Bytes that nobody asked for: %1 in a minute", {times(report.unaskedBytes)}));
  if (isLasting(report.shortRecords, report, main.services().clock.milliseconds()))
    say(words.say("Records stay short: %1 of %2 bytes came",
                  {std::to_string(report.cameOfRecord), std::to_string(report.lengthOfRecord)}));
  if (report.lateRecords.inLastMinute > 0)
    say(words.say("Records that came too late: %1 in a minute", {times(report.lateRecords)}));
  if (report.endlessReplies.inLastMinute > 0)
    say(words.say("Answers that did not end in time: %1 in a minute",
                  {times(report.endlessReplies)}));
  // The graph itself says that none comes at all.
  if (!millisecondsWithoutRecord(main) && report.missingRecords.inLastMinute > 1)
    say(words.say("Records that did not come: %1 in a minute", {times(report.missingRecords)}));
  return text;
}

}  // namespace

void showLineNotice(frmDSO& main) {
  if (lineTrouble(main, main.services().words).empty())
    main.status.withdraw(StatusLine::lineTrouble);
  else if (main.status.says(StatusLine::lineTrouble))
    main.status.tellAgain();
  else
    main.status.tell(StatusLine::lineTrouble,
                     [&main](const Words& words) { return lineTrouble(main, words); });
}

}  // namespace tracewell
