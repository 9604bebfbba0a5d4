// SPDX-License-Identifier: GPL-3.0-or-later
#include "Conversation.h"

#include <algorithm>

#include "AbandonedRecords.h"
#include "Doubles.h"
#include "PacedChannel.h"

namespace tracewell {
namespace {

/// Answers that tell what they answer.
std::string echo(const std::string& line) {
  return line.ends_with('?') ? line + "\n" : "";
}

class ConversationTest : public testing::Test, protected OnALine<PacedOpener> {
 protected:
  ConversationTest() {
    farEnd.answer = echo;
    port.readTimeOut = timeOut;
  }

  /// "Q1?", "Q2?" and so on; the replies without their line ends, or the numbers of the errors.
  Lines askMany(int count) {
    Lines replies;
    for (int i = 1; i <= count; ++i) {
      std::string reply = user.ask("Q" + std::to_string(i) + "?");
      if (reply.ends_with('\n')) reply.pop_back();
      replies.push_back(reply);
    }
    return replies;
  }
  std::int64_t elapsed() {
    return clock.milliseconds() - std::exchange(start_, clock.milliseconds());
  }

  static constexpr int timeOut = 300;
  static constexpr const char* none = "30312";
  FarEnd& farEnd = opener.farEnd;
  PortUser user{port};

 private:
  std::int64_t start_ = 0;
};

TEST_F(ConversationTest, HoweverLateAnAnswerIsItAnswersItsOwnQuestionOrNone) {
  for (const int lateness : {100, 310, 600, 900, 1800, 2900}) {
    farEnd.thought = lateness;
    const Lines replies = askMany(12);
    for (int i = 1; i <= 12; ++i) {
      const std::string mine = "Q" + std::to_string(i) + "?";
      EXPECT_EQ(replies.at(static_cast<std::size_t>(i - 1)), lateness < timeOut ? mine : none)
          << lateness;
    }
    // An instrument that has come to itself is believed again.
    farEnd.thought = 5;
    clock.run(Conversation::longestThought);
    EXPECT_EQ(user.ask("*IDN?"), "*IDN?\n") << lateness;
  }
}

TEST_F(ConversationTest, IgnoredQuestionCostsNoOtherItsAnswer) {
  for (const int every : {2, 3, 5}) {
    int asked = 0;
    farEnd.answer = [&](const std::string& line) { return ++asked % every == 0 ? "" : echo(line); };
    elapsed();
    const Lines replies = askMany(20);
    EXPECT_EQ(std::ranges::count(replies, none), 20 / every);
    EXPECT_LE(elapsed(), 20 / every * (timeOut + Conversation::longestThought) + 20 * 50);
    clock.run(5000);
  }
}

TEST_F(ConversationTest, SilenceCostsOneDrainAndAnAnswerEndsIt) {
  farEnd.thought = 1e9;
  elapsed();
  EXPECT_EQ(askMany(11), Lines(11, none));
  EXPECT_LE(elapsed(), 11 * timeOut + Conversation::longestThought);
  // A command and the release of the panel do not wait.
  user.send(":SYST:UNL");
  EXPECT_EQ(elapsed(), 0);
  farEnd.thought = 5;
  farEnd.lineFreeAt = 0;
  clock.run(Conversation::longestThought);
  EXPECT_EQ(user.ask("*IDN?"), "30312") << "the answers of before stand in front";
}

TEST_F(ConversationTest, NothingThatIsLongerThanALineIsAReply) {
  farEnd.byteTime = 0.0001;
  farEnd.answer = [](const std::string&) { return std::string(5 << 20, 'x') + "\n"; };
  elapsed();
  EXPECT_EQ(user.ask("*IDN?"), none);
  farEnd.answer = echo;
  EXPECT_EQ(user.ask("*IDN?"), "*IDN?\n");
  EXPECT_LE(elapsed(), timeOut + 2 * Conversation::longestThought);
  // Once at rest, the line is trusted again as soon as a late answer is there.
  farEnd.byteTime = 0.5;
  farEnd.thought = timeOut + 100;
  EXPECT_EQ(user.ask("A?"), none);
  farEnd.thought = 5;
  elapsed();
  EXPECT_EQ(user.ask("B?"), "B?\n");
  EXPECT_LE(elapsed(), 200);
}

/// One line of chatter every 100 ms, for good.
TEST_F(ConversationTest, ChatterIsNoAnswerAndHoldsNobodyForLong) {
  farEnd.byteTime = 10;
  for (int i = 0; i < 100000; ++i) farEnd.unasked += i % 10 == 9 ? '\n' : '5';
  user.send(":Run");
  clock.run(100);
  elapsed();
  EXPECT_EQ(askMany(6), Lines(6, none));
  EXPECT_LE(elapsed(), 2 * Conversation::longestThought + 6 * timeOut);
}

TEST_F(ConversationTest, TricklingRecordHoldsAQueryNoLongerThanItsBytesAllow) {
  farEnd.answer = [](const std::string& line) {
    return line.ends_with("POIN") ? std::string(1014, '\n') : echo(line);
  };
  farEnd.byteTime = 100;
  user.request("1");
  clock.run(1000);
  elapsed();
  const double rest = 2 * 1004 * 10 / 19.2 + Conversation::restMargin;
  EXPECT_EQ(user.ask("A?"), none);
  EXPECT_LE(elapsed(), rest + 2 * Conversation::longestThought + 2);
  EXPECT_EQ(askMany(5), Lines(5, none));
  EXPECT_LE(elapsed(), 5 * timeOut + 5 * rest);
  farEnd.byteTime = 0.5;
  clock.run(110000);
  EXPECT_EQ(user.ask("A?"), "A?\n");
  EXPECT_TRUE(user.records.empty());
}

/// What was on its way when the plug was pulled may still be when it is in again.
TEST_F(ConversationTest, LineOpenedAnewIsTrustedWhenItIsQuiet) {
  farEnd.answer = [](const std::string& line) {
    return line.ends_with("POIN") ? std::string(1014, '7') : echo(line);
  };
  user.request("1");
  clock.run(100);
  farEnd.hangUpAfter = 0;
  clock.run(100);
  farEnd.hangUpAfter = std::string::npos;
  elapsed();
  EXPECT_EQ(user.ask("B?"), "B?\n");
  EXPECT_GE(elapsed(), Conversation::longestThought - 200);
  // Another port is another instrument.
  user.request("1");
  port.settings.portNumber = 5;
  elapsed();
  EXPECT_EQ(user.ask("C?"), "C?\n");
  EXPECT_LE(elapsed(), 50);
}

TEST_F(ConversationTest, RequestsTakeStrictTurnsAndWaitThreeSecondsForALostRecord) {
  Lines requests;
  farEnd.answer = [&](const std::string& line) {
    requests.push_back(line.substr(4, 1));
    return requests.size() == 3 ? "" : std::string(1014, line[4]);
  };
  farEnd.byteTime = 3;
  for (int tick = 0; tick < 20; ++tick) {
    user.request(tick % 2 == 0 ? "1" : "2");
    clock.run(1200);
  }
  ASSERT_GE(requests.size(), 7u);
  for (std::size_t i = 0; i < requests.size(); ++i)
    EXPECT_EQ(requests[i], i % 2 == 0 ? "1" : "2") << i;
  EXPECT_GE(user.records.size(), 5u);
  for (const auto& [tag, bytes] : user.records) EXPECT_EQ(bytes, std::string(1014, tag[0]));
  // What is abandoned does not come, neither the record on its way nor the request behind it.
  port.reset();
  user.records.clear();
  const std::size_t before = requests.size();
  clock.run(20000);
  EXPECT_TRUE(user.records.empty());
  EXPECT_EQ(requests.size(), before);
}

/// The screen has its turn, and nothing of the program runs.
TEST_F(ConversationTest, WaitKeepsTheDesktopAliveAndTheProgramStill) {
  farEnd.thought = 1e9;
  port.readTimeOut = 2000;
  int handled = 0;
  int turns = 0;
  clock.meanwhile = [&] {
    ++turns;
    dispatcher.dispatch([&] { ++handled; });
  };
  user.ask("A?");
  EXPECT_GE(turns, 2000 / 100);
  EXPECT_EQ(handled, 0);
  clock.meanwhile = {};
  dispatcher.dispatch([&] { ++handled; });
  EXPECT_EQ(handled, 1);

  // Giving up ends the waits of the burst, and no others.
  elapsed();
  clock.run(Conversation::longestThought + 1000);
  {
    const StandBy::Burst burst(standBy);
    clock.callAfter(500, [&] { standBy.giveUp(); });
    elapsed();
    EXPECT_EQ(askMany(10), Lines(10, none));
    EXPECT_LE(elapsed(), 600);
  }
  standBy.giveUp();
  EXPECT_FALSE(standBy.isGivenUp());

  // The end is thrown out of the wait, and runs when the waiting handler is over.
  bool hasEnded = false;
  bool isOver = false;
  clock.callAfter(200, [&] { dispatcher.dispatchEnd([&] { hasEnded = isOver; }); });
  elapsed();
  dispatcher.dispatch([&] {
    try {
      user.ask("A?");
    } catch (const ProgramEnded&) {
      isOver = true;
      throw;
    }
  });
  EXPECT_TRUE(hasEnded);
  EXPECT_LE(elapsed(), 300);
}

}  // namespace
}  // namespace tracewell
