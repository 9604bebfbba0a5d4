// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"
#include "Doing.h"
#include "TraceMarks.h"

namespace tracewell {

using LineNoticeTest = ProgramTest;

TEST_F(LineNoticeTest, SaysWhatIsWrongOnTheLineAsLongAsItIs) {
  const std::int64_t then = clock.milliseconds();
  const LineReport::Tally once{1, then};
  const LineReport::Tally often{2, then};
  using Report = LineReport;
  using Happened = std::vector<std::pair<Report::Tally Report::*, Report::Tally>>;
  // What has happened, and whether a record has come since.
  const std::tuple<Happened, bool, const char*> cases[] = {
      {{{&Report::unaskedBytes, once}}, false, "Bytes that nobody asked for: 1 in a minute"},
      {{{&Report::shortRecords, once}}, false, "Records stay short: 1013 of 1014 bytes came"},
      {{{&Report::shortRecords, once}}, true, ""},
      {{{&Report::shortRecords, often}}, true, "Records stay short: 1013 of 1014 bytes came"},
      {{{&Report::lateRecords, once}}, false, "Records that came too late: 1 in a minute"},
      {{{&Report::endlessReplies, once}}, false, "Answers that did not end in time: 1 in a minute"},
      {{{&Report::missingRecords, once}}, false, ""},
      {{{&Report::missingRecords, often}, {&Report::unaskedBytes, often}},
       false,
       "Bytes that nobody asked for: 2 in a minute; Records that did not come: 2 in a minute"},
      {{}, false, ""}};
  for (const auto& [happened, isOver, expected] : cases) {
    port.lineReport = {};
    for (const auto& [what, tally] : happened) port.lineReport.*what = tally;
    if (isOver) port.lineReport.lastRecordAt = then + 1;
    port.lineReport.cameOfRecord = 1013;
    port.lineReport.lengthOfRecord = 1014;
    // Nobody asks for records.
    port.lineReport.noRecordSince = then - 30000;
    clock.run(1100);
    EXPECT_EQ(main.lblStatus.caption(), expected);
  }

  // It is said in its place: what has been told since stays in front, and seconds go on.
  main.tmDSO.enabled = true;
  port.lineReport.noRecordSince = clock.milliseconds();
  clock.run(3000);
  EXPECT_EQ(main.lblStatus.caption(), "");
  clock.run(2000);
  EXPECT_EQ(main.graphDSO.marks().banner.text, "No record for 5 s");
  port.lineReport.unaskedBytes.inLastMinute = 1;
  clock.run(1000);
  main.status.tell(StatusLine::happened, [](const Words&) { return "Copied"; });
  port.lineReport.unaskedBytes.inLastMinute = 3;
  clock.run(1000);
  EXPECT_EQ(main.lblStatus.caption(), "Copied; Bytes that nobody asked for: 3 in a minute");
  EXPECT_EQ(main.graphDSO.marks().banner.text, "No record for 7 s");
  port.lineReport.unaskedBytes.inLastMinute = 0;
  main.tmDSO.enabled = false;
  clock.run(600);
  EXPECT_EQ(main.lblStatus.caption(), "Copied");
  EXPECT_EQ(main.graphDSO.marks().banner.text, "");
}

/// The dialog has stopped the fetch, so no record is missed. What stood still is not paused by it,
/// but by what was said before.
TEST_F(LineNoticeTest, SaysOverAnOpenDialogThatNobodyIsThere) {
  port.answerLikeAnInstrument();
  port.answer(":TRIG:SOUR?", {"1\n"});
  const auto banner = [this] { return main.graphDSO.marks().banner.text; };
  std::string expected;
  windows.user["frmTrig"] = [&] {
    const ComboBox& source = program.trigger.cbTrig(0);
    EXPECT_EQ(banner(), expected);
    EXPECT_FALSE(source.isUnread());
    port.lineReport.failure = "no such device";
    port.lost.raise();
    EXPECT_EQ(banner(), "The connection is lost");
    EXPECT_EQ(main.lblStatus.caption().substr(0, 38), "The connection is lost: no such device");
    EXPECT_TRUE(source.isUnread());
    port.lineReport = {};
    port.lineReport.unansweredInRow = 2;
    clock.run(1000);
    EXPECT_EQ(banner(), "No answer to the last 2 questions");
    port.lineReport = {};
    program.trigger.cmdCancel.press();
  };
  for (const bool runs : {true, false}) {
    for (const bool isMeasuring : {false, true}) {
      const std::string outer = isMeasuring ? "Measuring" : "";
      std::optional<Doing> doing;
      if (isMeasuring) doing.emplace(main, [&](const Words&) { return outer; });
      main.tmDSO.enabled = runs;
      expected = runs ? "Traces paused for Trigger" : outer;
      main.cmdTrig.press();
      EXPECT_EQ(banner(), outer);
    }
  }
}

TEST_F(LineNoticeTest, CountsMinutesFromTwoOn) {
  Channel& one = main.channels[0];
  one.record.sweepAt = one.record.fetchedAt = 60000;
  const Words& words = main.services().words;
  EXPECT_EQ(unchangedText(words, one, 179999), "CH1: unchanged for 119 s");
  EXPECT_EQ(unchangedText(words, one, 180000), "CH1: unchanged for 2 min");
  EXPECT_EQ(ageText(words, one, 180000), "CH1: last record 2 min ago");
}

}  // namespace tracewell
