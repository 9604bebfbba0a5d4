// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"

namespace tracewell {

using LineNoticeTest = ProgramTest;

TEST_F(LineNoticeTest, SaysWhatIsWrongOnTheLineAsLongAsItIs) {
  const std::int64_t then = clock.milliseconds();
  const LineReport::Tally once{1, then};
  const LineReport::Tally often{3, then};
  const struct {
    std::function<void(LineReport&)> change;
    const char* expected;
  } cases[] = {
      {[&](LineReport& report) { report.unaskedBytes = once; },
       "Bytes that nobody asked for: 1 in a minute"},
      {[&](LineReport& report) {
         report.shortRecords = once;
         report.cameOfRecord = 1013;
         report.lengthOfRecord = 1014;
       },
       "Records stay short: 1013 of 1014 bytes came"},
      {[&](LineReport& report) {
         report.shortRecords = once;
         report.lastRecordAt = then + 1;
       },
       ""},
      {[&](LineReport& report) {
         report.shortRecords = often;
         report.lastRecordAt = then + 1;
       },
       "Records stay short: 0 of 0 bytes came"},
      {[&](LineReport& report) { report.lateRecords = often; },
       "Records that came too late: 3 in a minute"},
      {[&](LineReport& report) { report.endlessReplies = often; },
       "Answers without a line end: 3 in a minute"},
      {[&](LineReport& report) { report.missingRecords = once; }, ""},
      {[&](LineReport& report) {
         report.missingRecords = often;
         report.unaskedBytes = often;
       },
       "Bytes that nobody asked for: 3 in a minute; Records that did not come: 3 in a minute"},
      // Nobody asks for records.
      {[&](LineReport& report) { report.noRecordSince = then - 30000; }, ""},
      {[](LineReport&) {}, ""}};
  for (const auto& [change, expected] : cases) {
    port.lineReport = {};
    change(port.lineReport);
    clock.run(1100);
    EXPECT_EQ(main.lblStatus.caption(), expected);
  }

  // It is said in its place: what has been told since stays in front, and seconds go on.
  main.tmDSO.enabled = true;
  port.lineReport.noRecordSince = clock.milliseconds();
  clock.run(3000);
  EXPECT_EQ(main.lblStatus.caption(), "");
  clock.run(2500);
  EXPECT_EQ(main.lblStatus.caption(), "No record for 5 s");
  main.status.tell(StatusLine::happened, [](const Words&) { return "Copied"; });
  clock.run(2000);
  EXPECT_EQ(main.lblStatus.caption(), "Copied; No record for 7 s");
  main.tmDSO.enabled = false;
  clock.run(600);
  EXPECT_EQ(main.lblStatus.caption(), "Copied");
}

}  // namespace tracewell
