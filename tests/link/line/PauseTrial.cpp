// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdlib>
#include <iostream>

#include "Bench.h"
#include "PacedChannel.h"
#include "PortUser.h"

namespace tracewell {
namespace {

struct LineRate {
  int baudRate;
  bool isSlowFrame;
  double byteTime() const { return (isSlowFrame ? 12000.0 : 10000.0) / baudRate; }
};

/// How late the instrument is. It answers everything, in the order in which it was asked.
struct Lateness {
  const char* what;
  /// Every so many milliseconds it is busy for so long; 0: once.
  int every;
  int pause;
  /// Of each answer.
  int steady;
};

/// An instrument that is late, asked for the records of both channels as the program does, and for
/// something else now and then. Each answer tells what it answers.
class LateInstrument : OnALine<PacedOpener> {
 public:
  LateInstrument(const LineRate& rate, const Lateness& late) : late_(late) {
    port.settings.baudRate = rate.baudRate;
    port.settings.parity = rate.isSlowFrame ? 1 : 0;
    port.settings.stopBits = rate.isSlowFrame ? 2 : 0;
    opener.farEnd.byteTime = rate.byteTime();
    opener.farEnd.answer = [this](const std::string& line) { return answer(line); };
    port.dataReady = [this](const std::string& data) {
      ++(data == lastRecord_ && data[0] == port.tag[0] ? right : wrong);
      port.reset();
    };
  }

  /// A tick each 1.2 seconds, as the program's; every so many of them a question.
  void run(int ticks, int ticksToAQuestion) {
    for (int tick = 1; tick <= ticks; ++tick) {
      user_.request(tick % 2 == 0 ? "2" : "1");
      clock.run(1200);
      if (ticksToAQuestion > 0 && tick % ticksToAQuestion == 0) ask();
    }
  }

  int right = 0;
  int wrong = 0;
  int answered = 0;
  /// Records, or parts of them, in the place of an answer.
  int confused = 0;

 private:
  void ask() {
    const std::string reply = user_.ask("Q?");
    if (reply == "1.000 V\n") ++answered;
    if (reply != "1.000 V\n" && reply != std::to_string(portReadTimeOut)) ++confused;
  }

  std::string answer(const std::string& line) {
    const auto now = static_cast<int>(clock.milliseconds());
    const int intoPause = late_.every > 0 ? now % late_.every - firstPause : now - firstPause;
    const int busy = intoPause >= 0 ? std::max(late_.pause - intoPause, 0) : 0;
    opener.farEnd.thought = 5 + late_.steady + busy;
    if (!line.ends_with("POIN")) return "1.000 V\n";
    // Every byte tells channel and sequence; some are line ends, the last one may be.
    const std::string serial = std::string(1, line[4]) + std::to_string(10000 + ++records_);
    lastRecord_.clear();
    while (lastRecord_.size() < 1014) lastRecord_ += serial + "\n";
    lastRecord_.resize(1014);
    if (records_ % 3 == 0) lastRecord_.back() = '\n';
    if (records_ % 4 == 0) std::ranges::replace(lastRecord_, '\n', ' ');
    return lastRecord_;
  }

  static constexpr int firstPause = 20000;
  Lateness late_;
  PortUser user_{port};
  std::string lastRecord_;
  int records_ = 0;
};

std::vector<Lateness> latenesses() {
  std::vector<Lateness> all;
  for (const int pause : {4000, 5000, 6000, 7000, 8500, 10000}) {
    all.push_back({"one pause", 0, pause, 0});
    all.push_back({"a pause a minute", 60000, pause, 0});
  }
  for (const int steady : {3100, 3500, 4000, 4700, 5500, 6500, 8000})
    all.push_back({"steady", 0, 0, steady});
  return all;
}

/// Neither a pause nor steady lateness beyond the longest thought draws one record for another, or
/// gives one to a question. TRACEWELL_TICKS makes each run longer.
TEST(Pauses, NoRecordIsTakenForAnothersOrForAReply) {
  const char* const wanted = std::getenv("TRACEWELL_TICKS");
  const int ticks = wanted ? std::atoi(wanted) : 40;
  int right = 0;
  int answered = 0;
  for (const int baudRate : {1200, 2400, 4800, 9600, 19200})
    for (const bool isSlowFrame : {false, true})
      for (const Lateness& late : latenesses())
        for (const int ticksToAQuestion : {0, 3, 7}) {
          LateInstrument instrument({baudRate, isSlowFrame}, late);
          instrument.run(ticks, ticksToAQuestion);
          const std::string what = std::to_string(baudRate) + (isSlowFrame ? " 8E2, " : " 8N1, ") +
                                   late.what + " " + std::to_string(late.pause + late.steady) +
                                   ", " + std::to_string(ticksToAQuestion);
          EXPECT_EQ(instrument.wrong, 0) << what;
          EXPECT_EQ(instrument.confused, 0) << what;
          // After a single pause all is well again.
          EXPECT_TRUE(late.steady > 0 || baudRate < 4800 || instrument.right > ticks / 8) << what;
          right += instrument.right;
          answered += instrument.answered;
          if (wanted)
            std::cout << what << ": " << instrument.right << " right, " << instrument.wrong
                      << " wrong, " << instrument.answered << " answered\n";
        }
  std::cout << right << " records and " << answered << " answers, all right\n";
}

}  // namespace
}  // namespace tracewell
