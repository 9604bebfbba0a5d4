// SPDX-License-Identifier: GPL-3.0-or-later
#include "LinePort.h"

#include <gtest/gtest.h>

#include "Doubles.h"
#include "PacedChannel.h"

namespace tracewell {
namespace {

constexpr int recordBytes = 1014;

/// A record that only its own channel sends, with line ends inside to look like replies.
std::string recordOf(char channel) {
  std::string record(recordBytes, channel);
  for (std::size_t i = 3; i < record.size(); i += 50) record[i] = '\n';
  return record;
}

class LinePortTest : public testing::Test {
 protected:
  LinePortTest() {
    farEnd.answer = [](const std::string& line) -> std::string {
      if (line == ":ACQ1:POIN") return recordOf('1');
      if (line == ":ACQ2:POIN") return recordOf('2');
      return line.ends_with('?') ? "reply to " + line + "\r\n" : "";
    };
    port.dataReady = [this](const std::string& data) {
      records.emplace_back(port.tag, data);
      port.reset();
    };
  }

  void request(const std::string& channel) {
    port.textMode = false;
    port.prepare();
    port.write(":ACQ" + channel + ":POIN\r\n");
    port.tag = channel;
    port.beginRead(recordBytes);
  }

  void send(const std::string& line) {
    port.textMode = true;
    port.prepare();
    port.write(line + "\r\n");
  }

  std::string ask(const std::string& query) {
    send(query);
    std::string reply;
    try {
      reply = port.read();
    } catch (const Error& error) {
      reply = std::to_string(error.number());
    }
    port.reset();
    return reply;
  }

  /// Every record is the one that its tag says, whole.
  void expectCleanRecords() {
    for (const auto& [tag, data] : records) EXPECT_EQ(data, recordOf(tag.at(0)));
  }

  VirtualClock clock;
  RecordingDialogs dialogs;
  EventDispatcher dispatcher{dialogs};
  FarEnd farEnd;
  PacedOpener opener{farEnd, clock};
  LinePort port{opener, clock, dispatcher};
  std::vector<std::pair<std::string, std::string>> records;
};

TEST_F(LinePortTest, ReplyKeepsItsLineFeedAndLosesTheCarriageReturn) {
  EXPECT_EQ(ask("*IDN?"), "reply to *IDN?\n");
  farEnd.answer = [](const std::string&) { return " 1 \nrest"; };
  EXPECT_EQ(ask("A?"), " 1 \n");
  clock.run(50);
  farEnd.answer = [](const std::string&) { return "clean\n"; };
  EXPECT_EQ(ask("B?"), "clean\n");
}

TEST_F(LinePortTest, TimeOutIsTheSetOneAndLateReplyAnswersNothing) {
  port.readTimeOut = 300;
  farEnd.thought = 400;
  const std::int64_t start = clock.milliseconds();
  EXPECT_EQ(ask("SLOW?"), "30312");
  EXPECT_EQ(clock.milliseconds() - start, 300);
  farEnd.thought = 5;
  EXPECT_EQ(ask("NEXT?"), "reply to NEXT?\n");
}

TEST_F(LinePortTest, ReplyWithoutEndIsAFault) {
  farEnd.byteTime = 0.0001;
  farEnd.answer = [](const std::string&) { return std::string(1 << 20, 'x'); };
  EXPECT_EQ(ask("A?"), std::to_string(deviceError));
}

/// Half a record is on its way when something else wants the line.
TEST_F(LinePortTest, AbandonedRecordLeaksIntoNothing) {
  for (const double byteTime : {10.0 / 2.4, 10.0 / 9.6, 10.0 / 19.2}) {
    for (const int abandonAfter : {0, 3, 20, 200, 500}) {
      farEnd.byteTime = byteTime;
      records.clear();
      request("1");
      clock.run(abandonAfter);
      EXPECT_EQ(ask("*IDN?"), "reply to *IDN?\n") << byteTime << " " << abandonAfter;
      request("2");
      clock.run(7000);
      ASSERT_EQ(records.size(), 1u);
      expectCleanRecords();

      records.clear();
      request("1");
      clock.run(abandonAfter);
      port.reset();
      send(":CHAN1:SCAL 1");
      port.reset();
      request("2");
      clock.run(14000);
      ASSERT_EQ(records.size(), 1u);
      expectCleanRecords();
    }
  }
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
}

TEST_F(LinePortTest, CutRecordDelaysTheNextQueryByTheQuietGapOnly) {
  const auto answer = farEnd.answer;
  farEnd.answer = [](const std::string&) { return recordOf('1').substr(0, 400); };
  request("1");
  clock.run(210);
  farEnd.answer = answer;
  const std::int64_t start = clock.milliseconds();
  EXPECT_EQ(ask("*IDN?"), "reply to *IDN?\n");
  EXPECT_LE(clock.milliseconds() - start, LinePort::quietGap + 50);
}

TEST_F(LinePortTest, BothTracesRefreshWhereARecordOutlastsTheTick) {
  farEnd.byteTime = 10.0 / 2.4;
  for (int tick = 0; tick < 40; ++tick) {
    request(tick % 2 == 0 ? "1" : "2");
    clock.run(1200);
  }
  expectCleanRecords();
  const auto first = std::count_if(records.begin(), records.end(),
                                   [](const auto& record) { return record.first == "1"; });
  const auto second = std::ssize(records) - first;
  EXPECT_GE(first, 4);
  EXPECT_GE(second, 4);
}

TEST_F(LinePortTest, SilentInstrumentIsAskedAtEveryTickAndItsLateRecordsDoNoHarm) {
  const auto answer = farEnd.answer;
  farEnd.answer = [](const std::string&) { return ""; };
  for (int tick = 0; tick < 5; ++tick) {
    request("1");
    clock.run(1200);
  }
  EXPECT_EQ(farEnd.lines.size(), 5u);
  // It wakes up and answers the last question twice over.
  farEnd.answer = [](const std::string&) { return recordOf('1') + recordOf('1'); };
  request("1");
  clock.run(600);
  farEnd.answer = answer;
  EXPECT_EQ(ask("*IDN?"), "reply to *IDN?\n");
  request("2");
  clock.run(1200);
  expectCleanRecords();
  EXPECT_EQ(records.size(), 2u);
}

TEST_F(LinePortTest, CommandsDoNotWaitForARecord) {
  request("1");
  clock.run(100);
  const std::int64_t start = clock.milliseconds();
  for (int i = 0; i < 10; ++i) {
    send(":CHAN1:SCAL 1");
    port.reset();
  }
  EXPECT_EQ(clock.milliseconds(), start);
  EXPECT_EQ(farEnd.lines.size(), 11u);
}

TEST_F(LinePortTest, HangUpAtAnyByteIsAFaultOnceAndThePortComesBack) {
  for (std::size_t byte = 1; byte < recordBytes; byte += 13) {
    farEnd.hangUpAfter = byte;
    request("1");
    clock.run(1000);
    EXPECT_FALSE(port.isOpen()) << byte;
    farEnd.isAway = true;
    EXPECT_THROW(port.prepare(), Error);
    farEnd.isAway = false;
    farEnd.hangUpAfter = std::string::npos;
    EXPECT_EQ(ask("*IDN?"), "reply to *IDN?\n") << byte;
    port.settings.baudRate += 1;  // The next round counts its bytes on a new channel.
  }
  EXPECT_TRUE(records.empty());
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
}

TEST_F(LinePortTest, OpensOnceAndAnewOnlyForNewSettings) {
  ask("A?");
  ask("B?");
  EXPECT_EQ(farEnd.opened, 1);
  port.settings.portNumber = 3;
  EXPECT_EQ(farEnd.opened, 1);
  ask("C?");
  EXPECT_EQ(farEnd.opened, 2);
}

}  // namespace
}  // namespace tracewell
