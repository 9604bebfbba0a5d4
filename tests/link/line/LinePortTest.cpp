// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "AbandonedRecords.h"
#include "Doubles.h"
#include "PacedChannel.h"

namespace tracewell {
namespace {

/// A record that only its own channel sends, with line ends inside to look like replies.
std::string recordOf(char channel) {
  std::string record(1014, channel);
  for (std::size_t i = 3; i < record.size(); i += 50) record[i] = '\n';
  return record;
}

std::string healthy(const std::string& line) {
  if (line.ends_with(":POIN")) return recordOf(line[4]);
  return line.ends_with('?') ? "reply to " + line + "\r\n" : "";
}

class LinePortTest : public testing::Test, protected OnALine<PacedOpener> {
 protected:
  LinePortTest() { farEnd.answer = healthy; }

  void answerAlways(const std::string& bytes) {
    farEnd.answer = [bytes](const std::string&) { return bytes; };
  }
  /// So many records, each the one that its tag says, whole.
  void expectCleanRecords(std::size_t count) {
    EXPECT_EQ(user.records.size(), count);
    for (const auto& [tag, data] : user.records) EXPECT_EQ(data, recordOf(tag.at(0)));
    user.records.clear();
  }

  FarEnd& farEnd = opener.farEnd;
  PortUser user{port};
};

TEST_F(LinePortTest, ReplyKeepsItsLineFeedAndLosesTheCarriageReturn) {
  EXPECT_EQ(user.ask("*IDN?"), "reply to *IDN?\n");
  answerAlways(" 1 \n\r");
  EXPECT_EQ(user.ask("A?"), " 1 \n");
  // Which half of a damaged reply would be the answer?
  answerAlways("50\n.0 mV\n");
  EXPECT_EQ(user.ask("A?"), "30312");
  farEnd.answer = healthy;
  EXPECT_EQ(user.ask("B?"), "reply to B?\n");
  EXPECT_EQ(farEnd.opened, 1);
  port.settings.portNumber = 3;
  EXPECT_EQ(farEnd.opened, 1);
  user.ask("C?");
  EXPECT_EQ(farEnd.opened, 2);
}

/// Part of a record is on its way when something else wants the line, or has not been sent yet.
TEST_F(LinePortTest, AbandonedRecordLeaksIntoNothing) {
  for (const double baudRate : {2400, 9600, 19200}) {
    for (const int abandonAfter : {0, 3, 20, 200, 500}) {
      SCOPED_TRACE(std::to_string(baudRate) + " " + std::to_string(abandonAfter));
      farEnd.byteTime = 10000 / baudRate;
      user.request("1");
      clock.run(abandonAfter);
      EXPECT_EQ(user.ask("*IDN?"), "reply to *IDN?\n");
      user.request("2");
      clock.run(7000);
      expectCleanRecords(1);
    }
  }
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
}

TEST_F(LinePortTest, CutRecordDelaysTheNextQueryUntilItsRestCannotComeAnyMore) {
  answerAlways(recordOf('1').substr(0, 400));
  user.request("1");
  clock.run(210);
  farEnd.answer = healthy;
  const std::int64_t start = clock.milliseconds();
  EXPECT_EQ(user.ask("*IDN?"), "reply to *IDN?\n");
  EXPECT_LE(clock.milliseconds() - start, Conversation::longestThought + 50);
}

/// Events do not run for a while, as when a window is made for the first time.
TEST_F(LinePortTest, StallInTheMiddleOfARecordSpoilsNone) {
  for (const int stall : {300, 600, 1300}) {
    user.request("1");
    clock.run(100);
    clock.sleep(stall);
    user.request("2");
    clock.run(3000);
    expectCleanRecords(2);
  }
}

}  // namespace
}  // namespace tracewell
