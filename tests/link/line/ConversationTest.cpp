// SPDX-License-Identifier: GPL-3.0-or-later
#include "Conversation.h"

#include <algorithm>

#include "PacedChannel.h"
#include "Played.h"
#include "PortUser.h"

namespace tracewell {
namespace {

/// A port, and an instrument at the far end of its line whose answers tell what they answer. Both
/// do as a script says (tests/scripts/line.txt); what they do is written down with its
/// milliseconds.
class LineScript : OnALine<PacedOpener> {
 public:
  LineScript() {
    user_.timeOut = 300;
    farEnd.answer = [this](const std::string& line) {
      note("> " + line);
      return answer(line);
    };
    port.lost = [this] { note("lost"); };
    port.dataReady = [this](const LineRecord& record) {
      const std::string channel = std::to_string(record.channel);
      const auto own = std::ranges::count(record.bytes, channel.at(0));
      const bool isWhole = record.bytes.size() == WaveformRecord::byteCount;
      note("record " + channel + " " + std::to_string(own) + (isWhole ? "" : "?") + under(record));
    };
  }

  std::string play(const std::string& script) {
    for (const std::string& step : split(script, ", ")) {
      const std::size_t equals = step.find('=');
      act(step.substr(0, equals), equals == std::string::npos ? "" : step.substr(equals + 1));
    }
    std::string text = std::to_string(farEnd.opened) + " opened";
    for (const std::string& event : events_) text += "; " + event;
    return text;
  }

 private:
  void act(const std::string& name, const std::string& value) {
    const double number = std::atof(value.c_str());
    if (name == "send") attempt(value, [&] { user_.send(value); });
    if (name == "tell") user_.send(value, SerialPort::Reply::unread);
    if (name.ends_with('?')) ask(name);
    if (name == "ask")
      for (int i = 1; i <= number; ++i) ask("Q" + std::to_string(i) + "?");
    if (name == "record") user_.request(static_cast<std::int16_t>(number));
    if (name == "stamp") user_.stamp = std::stoll(value);
    if (name == "run") clock.run(static_cast<int>(number));
    if (name == "sleep") clock.sleep(static_cast<int>(number));
    if (name == "reset") port.abandon();
    if (name == "port") port.settings.portNumber = static_cast<std::int16_t>(number);
    if (name == "parity") port.settings.parity = static_cast<std::int16_t>(number);
    if (name == "time") user_.timeOut = static_cast<int>(number);
    if (name == "thought") farEnd.thought = number;
    if (name == "byte") farEnd.byteTime = number;
    if (name == "pause behind") farEnd.pauseBehind = static_cast<std::size_t>(number);
    if (name == "pause") farEnd.pause = number;
    if (name == "blanks") blanks_ = static_cast<std::size_t>(number);
    if (name == "free") farEnd.lineFreeAt = 0;
    if (name == "hang up") farEnd.hangUpAfter = value.empty() ? std::string::npos : 0;
    if (name == "behind") behind_ = toLine(value);
    if (name == "give up") {
      burst_.emplace(standBy);
      clock.callAfter(static_cast<int>(number), [this] { standBy.giveUp(); });
    }
    if (name == "go on") burst_.reset();
    if (name == "again") again_ = static_cast<int>(number);
    if (name == "report") report();
    if (name == "looks") note("looks " + std::to_string(farEnd.looks));
    if (name == "unasked")
      for (int i = 0; i < number; ++i) farEnd.unasked += i % 10 == 9 ? '\n' : '5';
    if (name == "refuse") farEnd.isDeaf = number != 0;
    if (name == "ignored") ignored_ = static_cast<int>(number);
    if (name == "length") length_ = static_cast<std::size_t>(number);
    if (name == "bytes") bytes_ = value.empty() ? "" : std::string(length_, 'x') + "\n";
    if (name == "answer") bytes_ = toLine(value);
  }

  static std::string toLine(std::string text) {
    for (char& byte : text) byte = byte == '^' ? '\n' : byte == '<' ? '\r' : byte == '_' ? 0 : byte;
    return text;
  }

  /// The stamp, if there is one, and the line.
  std::string under(const LineRecord& record) const {
    if (record.stamp == 0) return "";
    return " of " + std::to_string(record.stamp) + " on " + std::to_string(port.openPort()) + "/" +
           std::to_string(port.openings());
  }

  /// What the account of the line says.
  void report() {
    const LineReport report = port.report();
    std::string text = "report";
    const auto tell = [&text](const char* what, const LineReport::Tally& tally, std::string more) {
      if (!tally.lastAt) return;
      text += std::string(" ") + what + " " + std::to_string(tally.inLastMinute) + more + " at " +
              std::to_string(*tally.lastAt);
    };
    tell("unasked", report.unaskedBytes, "");
    tell("short", report.shortRecords,
         " " + std::to_string(report.cameOfRecord) + "/" + std::to_string(report.lengthOfRecord));
    tell("missing", report.missingRecords, "");
    tell("late", report.lateRecords, "");
    tell("endless", report.endlessReplies, " " + std::to_string(report.bytesOfEndlessReply));
    if (report.noRecordSince) text += " none since " + std::to_string(*report.noRecordSince);
    if (report.unansweredInRow > 1) text += " unanswered " + std::to_string(report.unansweredInRow);
    if (!report.failure.empty()) text += " lost: " + report.failure;
    if (report.lastRecordAt) text += " last " + std::to_string(*report.lastRecordAt);
    std::string unsure;
    for (int i = 1; i <= port.lastReply(); ++i)
      if (!port.isSure(i)) unsure += " " + std::to_string(i);
    if (!unsure.empty()) text += " unsure" + unsure;
    if (report.sureAt) text += " until " + std::to_string(*report.sureAt);
    note(text);
  }

  void ask(const std::string& query) {
    attempt(query, [&] {
      std::string reply = user_.ask(query);
      if (reply == query + "\n") reply = "right";
      if (reply == std::to_string(portReadTimeOut)) reply = "none";
      if (reply.ends_with('\n')) reply.back() = '^';
      std::ranges::replace(reply, '\0', '_');
      note(query + " " + (reply.size() > 60 ? std::to_string(reply.size()) : reply));
    });
  }
  void attempt(const std::string& line, const std::function<void()>& act) {
    try {
      act();
    } catch (const Error& error) {
      note(line + " " + error.description());
    }
  }

  std::string answer(const std::string& line) {
    const std::string bytes = firstAnswer(line);
    if (again_ > 0 && !bytes.empty())
      clock.callAfter(again_, [this, bytes] { farEnd.unasked += bytes; });
    return bytes.empty() ? bytes : bytes + behind_;
  }

  std::string firstAnswer(const std::string& line) {
    const bool isRecord = line.ends_with("POIN");
    if (!isRecord && line.find('?') == std::string::npos) return "";
    if (ignored_ > 0 && ++asked_ % ignored_ == 0) return "";
    if (!bytes_.empty()) return bytes_;
    return isRecord ? std::string(length_ - blanks_, line[4]) + std::string(blanks_, '\0')
                    : line + "\n";
  }

  void note(const std::string& event) {
    events_.push_back(std::to_string(clock.milliseconds()) + " " + event);
  }

  FarEnd& farEnd = opener.farEnd;
  PortUser user_{port};
  Lines events_;
  int ignored_ = 0;
  int asked_ = 0;
  std::optional<StandBy::Burst> burst_;
  std::size_t length_ = 1014;
  /// The last bytes of a record that are 0.
  std::size_t blanks_ = 0;
  std::string bytes_;
  std::string behind_;
  /// After so many milliseconds each answer comes once more.
  int again_ = 0;
};

TEST(LineScriptTest, ComesToWhatStandsBelowIt) {
  playFile("line.txt", [](const std::string& script) { return LineScript().play(script); });
}

/// The screen has its turn, and nothing of the program runs.
TEST(ConversationTest, WaitKeepsTheDesktopAliveAndTheProgramStill) {
  OnALine<PacedOpener> line;
  PortUser user(line.port);
  line.opener.farEnd.answer = [](const std::string&) { return ""; };
  const auto timed = [&line](const std::function<void()>& act) {
    const std::int64_t start = line.clock.milliseconds();
    act();
    return line.clock.milliseconds() - start;
  };
  int handled = 0;
  int turns = 0;
  line.clock.meanwhile = [&] {
    ++turns;
    line.dispatcher.dispatch([&] { ++handled; });
  };
  user.ask("A?");
  EXPECT_GE(turns, 2000 / 100);
  EXPECT_EQ(handled, 0);
  line.clock.meanwhile = {};
  line.dispatcher.dispatch([&] { ++handled; });
  EXPECT_EQ(handled, 1);

  // Giving up ends the waits of the burst, and no others.
  line.clock.run(Conversation::longestThought + 1000);
  {
    const StandBy::Burst burst(line.standBy);
    line.clock.callAfter(500, [&] { line.standBy.giveUp(); });
    const auto askMany = [&] {
      for (int i = 0; i < 10; ++i) EXPECT_EQ(user.ask("A?"), std::to_string(portReadTimeOut));
    };
    EXPECT_LE(timed(askMany), 600);
  }
  line.standBy.giveUp();
  EXPECT_FALSE(line.standBy.isGivenUp());
}

}  // namespace
}  // namespace tracewell
