// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <random>

#include "Bench.h"
#include "PacedChannel.h"
#include "PortUser.h"

namespace tracewell {
namespace {

/// An instrument of which each answer tells what it answers, and that errs now and then: late by up
/// to 2.9 seconds, cut, damaged, slow as honey, deaf, chattering. Errors come one at a time.
class OddInstrument {
 public:
  OddInstrument(FarEnd& end, std::mt19937& random) : end_(end), random_(random) {
    end_.answer = [this](const std::string& line) { return answer(line); };
  }

  /// Of a hundred answers.
  int errors = 0;
  double byteTime = 0.5;
  /// By how many milliseconds each answer is late, errors or not.
  std::function<int()> lateness = [] { return 0; };
  /// The last answer to each question, as it went out.
  std::map<std::string, std::string> sent;

  /// The answer of a good instrument.
  std::string rightAnswer(const std::string& line) {
    if (line.ends_with(":POIN")) return record(line[4]);
    if (line.starts_with(":Q")) return line.substr(2, 4) + "/" + line.substr(2, 4) + "\n";
    return "1.000 V\n";
  }

  /// All bytes say which channel and which of its records it is. Some are line ends, the last one
  /// may be.
  std::string record(char channel) {
    const std::string serial = std::to_string(10000 + ++records_ % 10000);
    std::string bytes;
    while (bytes.size() < 1014) bytes += std::string("R") + channel + serial + "\n";
    bytes.resize(1014);
    if (records_ % 3 == 0) bytes.back() = '\n';
    if (records_ % 4 == 0) std::ranges::replace(bytes, '\n', ' ');
    return bytes;
  }

  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

 private:
  std::string answer(const std::string& line) { return sent[line] = oddAnswer(line); }

  std::string oddAnswer(const std::string& line) {
    end_.thought = 3 + below(20) + lateness();
    end_.byteTime = byteTime;
    if (!line.ends_with('?') && !line.ends_with("POIN")) return "";
    std::string bytes = rightAnswer(line);
    if (below(100) >= errors) return bytes;
    const std::size_t place = random_() % bytes.size();
    const bool isRecord = bytes.size() == 1014;
    const int error = below(8);
    if (error == 0) return "";
    if (error == 1) bytes.resize(place);
    if (error == 2) bytes.erase(place, 1);
    if (error == 3) bytes[place] = '#';
    if (error == 4) bytes[place] = '\n';
    if (error == 5) end_.byteTime = 100;
    // More than was asked for; a record has its length and no more.
    if (error == 6 && !isRecord) bytes += "and more\n";
    if (error == 7) end_.thought = 100 + below(2700);
    return bytes;
  }

  FarEnd& end_;
  std::mt19937& random_;
  int records_ = 0;
};

/// A port, used at random at the end of such a line.
class Trial : OnALine<PacedOpener> {
 public:
  explicit Trial(unsigned seed) : random_(seed) {
    setLine();
    port.dataReady = [this](const LineRecord& record) { check(record); };
  }

  void step() {
    if (below(200) == 0) instrument_.errors = std::array{0, 3, 20, 60}[random_() % 4];
    if (below(400) == 0) setLine();
    try {
      act();
    } catch (const Error&) {
      // The line is gone.
    }
  }

  int exchanges = 0;
  int answered = 0;
  int recordsSeen = 0;

 private:
  int below(int limit) { return instrument_.below(limit); }

  void setLine() {
    const std::pair<int, double> lines[] = {{1200, 8.34}, {2400, 4.59},  {4800, 2.09},
                                            {9600, 1.25}, {14400, 0.77}, {19200, 0.53}};
    std::tie(port.settings.baudRate, instrument_.byteTime) = lines[random_() % std::size(lines)];
  }

  /// Each as often as its weight says, out of 24.
  void act() {
    const auto isSkipped = [this] { return below(6) > 0; };
    const std::pair<int, std::function<void()>> acts[] = {
        {1, [this] { port.abandon(); }},
        {6, [this] { user_.request(static_cast<std::int16_t>(1 + below(2))); }},
        {2, [this] { user_.send(":CHAN1:SCAL 1"); }},
        {1, [&] { isSkipped() ? void() : hangUpAfter(static_cast<std::size_t>(below(2000))); }},
        {1, [&] { isSkipped() ? void() : chatter(); }},
        {1, [this] { hangUpAfter(std::string::npos); }},
        {6, [this] { clock.run(below(below(3) == 0 ? 9000 : 1500)); }},
        {6, [this] { ask(); }}};
    int left = below(24);
    for (const auto& [weight, doIt] : acts)
      if ((left -= weight) < 0) return doIt();
  }

  void hangUpAfter(std::size_t bytes) { opener.farEnd.hangUpAfter = bytes; }

  /// It begins while nothing is owed: in front of an answer nobody could tell it from that.
  void chatter() {
    if (instrument_.errors == 0) return;
    port.abandon();
    clock.run(8000);
    if (opener.farEnd.lineFreeAt + 3000 > static_cast<double>(clock.milliseconds())) return;
    opener.farEnd.byteTime = instrument_.byteTime;
    opener.farEnd.unasked = std::string(static_cast<std::size_t>(below(900)), '?') + "1\n";
    user_.send(":Run");
    clock.run(50);
    opener.farEnd.unasked.clear();
  }

  void ask() {
    user_.timeOut = 300 * (1 + below(3));
    const std::string query = ":Q" + std::to_string(1000 + ++exchanges % 9000) + "?";
    instrument_.sent.clear();
    const std::string reply = user_.ask(query);
    if (!reply.ends_with('\n')) return;
    ++answered;
    // What was damaged on its way is still the answer to its question.
    EXPECT_EQ(reply, instrument_.sent[query]);
  }

  void check(const LineRecord& record) {
    ++recordsSeen;
    ++exchanges;
    const std::string& raw = record.bytes;
    const char channel = static_cast<char>('0' + record.channel);
    ASSERT_EQ(raw.size(), 1014u);
    // A damaged byte or two apart, it is one record of this channel from the first byte on.
    int strange = 0;
    for (std::size_t i = 0; i < raw.size(); ++i)
      if (i % 8 < 7 && raw[i] != raw[i % 8 + 8] && raw[i] != raw[i % 8 + 16]) ++strange;
    EXPECT_LE(strange, 2);
    EXPECT_TRUE(raw[9] == channel || raw[17] == channel) << raw.substr(0, 24);
  }

  std::mt19937 random_;
  OddInstrument instrument_{opener.farEnd, random_};
  PortUser user_{port};
};

/// How late the instrument is. It answers everything, in the order in which it was asked.
struct Lateness {
  const char* what;
  /// Every so many milliseconds it is busy for so long; 0: once.
  int every;
  int pause;
  /// Of each answer.
  int steady;

  int at(int now) const {
    const int intoPause = (every > 0 ? now % every : now) - 20000;
    return steady + (intoPause >= 0 ? std::max(pause - intoPause, 0) : 0);
  }
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

/// Such an instrument, asked for the records of both channels as the program does.
class LateTrial : OnALine<PacedOpener> {
 public:
  LateTrial(int baudRate, bool isSlowFrame, const Lateness& late) {
    port.settings.baudRate = baudRate;
    port.settings.parity = isSlowFrame ? 1 : 0;
    port.settings.stopBits = isSlowFrame ? 2 : 0;
    instrument_.byteTime = (isSlowFrame ? 12000.0 : 10000.0) / baudRate;
    instrument_.lateness = [this, late] { return late.at(static_cast<int>(clock.milliseconds())); };
    port.dataReady = [this](const LineRecord& record) {
      const std::string request = ":ACQ" + std::to_string(record.channel) + ":POIN";
      ++(record.bytes == instrument_.sent[request] ? right : wrong);
    };
  }

  /// A tick each 1.2 seconds, as the program's; every so many of them a question.
  void run(int ticks, int ticksToAQuestion) {
    for (int tick = 1; tick <= ticks; ++tick) {
      user_.request(tick % 2 == 0 ? 2 : 1);
      clock.run(1200);
      if (ticksToAQuestion == 0 || tick % ticksToAQuestion != 0) continue;
      const std::string reply = user_.ask(":CHAN1:OFFS?");
      if (reply == "1.000 V\n") ++answered;
      if (reply != "1.000 V\n" && reply != std::to_string(portReadTimeOut)) ++wrong;
    }
  }

  int right = 0;
  /// Another's record, and records or parts of them in the place of an answer.
  int wrong = 0;
  int answered = 0;

 private:
  std::mt19937 random_;
  OddInstrument instrument_{opener.farEnd, random_};
  PortUser user_{port};
};

}  // namespace

/// Nothing shown is the answer to something else. TRACEWELL_EXCHANGES makes the trial longer,
/// TRACEWELL_SEED makes it another one (packaging/trials).
TEST(Faults, NoAnswerIsTakenForAnothers) {
  const char* const wanted = std::getenv("TRACEWELL_EXCHANGES");
  const char* const given = std::getenv("TRACEWELL_SEED");
  const unsigned seed = given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : 1;
  const int total = wanted ? std::atoi(wanted) : 2500 / stepsShare;
  std::cout << "seed " << seed << std::endl;
  SCOPED_TRACE("seed " + std::to_string(seed));
  Trial trial(seed);
  while (trial.exchanges < total && !testing::Test::HasFailure()) trial.step();
  std::cout << trial.exchanges << " exchanges, " << trial.answered << " answers, "
            << trial.recordsSeen << " records\n";
  EXPECT_GT(trial.answered, total / 20);
  EXPECT_GT(trial.recordsSeen, total / 40);
}

/// Neither a pause nor steady lateness beyond the longest thought draws one record for another, or
/// gives one to a question. TRACEWELL_TICKS makes each run longer, and plays all of them instead of
/// every seventh (fewer under a sanitizer).
TEST(Faults, NoLateRecordIsDrawnForAnotherOrReadAsAReply) {
  const char* const wanted = std::getenv("TRACEWELL_TICKS");
  const int ticks = wanted ? std::atoi(wanted) : 40;
  int number = 0;
  int right = 0;
  int answered = 0;
  for (const int baudRate : {1200, 2400, 4800, 9600, 19200})
    for (const bool isSlowFrame : {false, true})
      for (const Lateness& late : latenesses())
        for (const int ticksToAQuestion : {0, 3, 7}) {
          if (++number % (7 * stepsShare) != 0 && !wanted) continue;
          LateTrial trial(baudRate, isSlowFrame, late);
          trial.run(ticks, ticksToAQuestion);
          const std::string what = std::to_string(baudRate) + (isSlowFrame ? " 8E2, " : " 8N1, ") +
                                   late.what + " " + std::to_string(late.pause + late.steady) +
                                   ", " + std::to_string(ticksToAQuestion);
          EXPECT_EQ(trial.wrong, 0) << what;
          // After a single pause all is well again.
          EXPECT_TRUE(late.steady > 0 || baudRate < 4800 || trial.right > ticks / 8) << what;
          right += trial.right;
          answered += trial.answered;
          if (wanted) std::cout << what << ": " << trial.right << " right\n";
        }
  std::cout << right << " records and " << answered << " answers, all right\n";
}

}  // namespace tracewell
