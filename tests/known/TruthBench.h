// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>

#include "Bench.h"
#include "PacedChannel.h"
#include "TrueInstrument.h"

namespace tracewell {

/// An instrument at the end of a cable; of an unplugged one nothing comes back.
struct Plugged {
  FarEnd end;
  std::shared_ptr<TrueInstrument> instrument;
  /// What it sends behind each record.
  std::string recordEnd;
};

/// Ports with instruments. Unplugging is told to whoever has opened the line.
class Ports : public ChannelOpener {
 public:
  explicit Ports(VirtualClock& clock) : clock_(clock) {}

  std::map<std::int16_t, std::shared_ptr<Plugged>> plugged;
  /// The line that was opened last.
  std::shared_ptr<Plugged> line;

  std::unique_ptr<ByteChannel> open(const LineSettings& settings) override {
    if (!plugged[settings.portNumber]) throw Error(deviceError, "RS232", "no such port");
    // What another panel may have left at it nobody can know here.
    const bool isOther = std::exchange(number_, settings.portNumber) != settings.portNumber;
    TrueInstrument& instrument = *plugged[settings.portNumber]->instrument;
    if (opened_.insert(instrument.id).second && isOther) instrument.setUpAnew();
    line = plugged[settings.portNumber];
    line->end.byteTime = 10000.0 / settings.baudRate;
    line->end.lineFreeAt = 0;
    return std::make_unique<Channel>(*this);
  }
  void unplug(std::int16_t number) {
    if (const auto gone = std::exchange(plugged[number], nullptr)) gone->end.isAway = true;
    clock_.callAfter(5, [this] {
      if (open_ != nullptr && open_->readable) std::function<void()>(open_->readable)();
    });
  }

 private:
  struct Channel : PacedChannel {
    explicit Channel(Ports& ports)
        : PacedChannel(ports.line->end, ports.clock_), open(ports.open_), kept(ports.line) {
      open = this;
    }
    ~Channel() override {
      if (open == this) open = nullptr;
    }
    Channel*& open;
    std::shared_ptr<Plugged> kept;
  };
  VirtualClock& clock_;
  Channel* open_ = nullptr;
  std::int16_t number_ = 3;
  /// Instruments by their id.
  std::set<int> opened_;
};

/// The whole program on lines at whose ends the truth can be seen.
class TruthBench : public BenchOf<OnALine<Ports>> {
 public:
  using Sweep = TrueSweep;
  int actions = 0;
  struct Cause {
    long count = 0;
    std::string first;
  };
  std::map<std::string, Cause> violations;

 protected:
  template <class Limit>
  Limit below(Limit limit) {
    return static_cast<Limit>(history_.random() % static_cast<unsigned>(limit));
  }
  bool oneIn(int chances) { return below(chances) == 0; }

  void start() {
    history_.held = [this](std::size_t channel) {
      const Sweep* sweep = sweepOf(main.channels.at(channel));
      return sweep == nullptr ? -1 : sweep->number;
    };
    program.start();
    setRow(0, {"19200", "8", "1", "None", "3"});
    port.settings.portNumber = 3;
    for (const std::int16_t number : {std::int16_t{3}, std::int16_t{4}}) plugIn(number, nullptr);
  }

  void plugIn(std::int16_t number, std::shared_ptr<TrueInstrument> instrument) {
    auto plugged = std::make_shared<Plugged>();
    plugged->instrument = instrument ? instrument : std::make_shared<TrueInstrument>(history_);
    if (!plugged->instrument->isStopped) plugged->instrument->sweep();
    if (oneIn(3)) plugged->recordEnd = "\n";
    plugged->end.answer = [this, its = plugged.get()](const std::string& line) {
      return answer(*its, line);
    };
    opener.plugged[number] = plugged;
    last_[number] = plugged->instrument;
  }

  std::string answer(Plugged& plugged, const std::string& line) {
    auto& [end, its, recordEnd] = plugged;
    TrueInstrument& instrument = *its;
    instrument.now = clock.milliseconds();
    const auto now = static_cast<double>(instrument.now);
    std::string bytes = instrument.receive(line);
    if (bytes.size() >= 1000) bytes += recordEnd;
    end.thought = std::max({3.0 + below(15), slow_, static_cast<double>(busyUntil_) - now});
    if (below(100) < late_) end.thought = std::min(end.thought + 100 + below(2700), 9900.0);
    // A question is answered within three seconds or never, or within nine and then always.
    if (slow_ > 0) losesFrom_ = now + 12000;
    if (now < losesFrom_) end.thought = std::min(end.thought, 8000.0);
    const double from = std::max(end.lineFreeAt, now + end.thought);
    const bool isTooLate = bytes.size() < 1000 && from > now + 2900;
    if (now >= losesFrom_ && (isTooLate || below(100) < lost_)) bytes.clear();
    if (failing_ > 0 && --failing_ == 0) {
      end.isAway = true;
      throw Error(deviceError, "RS232", "gone in the middle");
    }
    return bytes;
  }

  /// What is on the line that the panel uses; none where it has not been opened.
  TrueInstrument* truth() const {
    const bool isOpen = opener.line && port.openPort() == port.settings.portNumber;
    return isOpen ? opener.line->instrument.get() : nullptr;
  }

  Sweep* sweepOf(const Channel& channel) {
    const std::string& bytes = channel.record.bytes;
    if (bytes.size() != 1014) return nullptr;
    return &history_.sweeps.at(static_cast<std::size_t>(std::atoi(bytes.substr(2, 12).c_str())));
  }
  /// What is drawn of a channel.
  Sweep* traceOf(const Channel& channel) {
    return channel.plot.isShown() ? sweepOf(channel) : nullptr;
  }

  void expect(bool isTrue, const std::string& cause, const std::string& shown = "") {
    if (isTrue) return;
    auto& [count, first] = violations[cause];
    if (++count == 1) first = shown + " at action " + std::to_string(actions);
  }

  TrueHistory history_;
  std::map<std::int16_t, std::shared_ptr<TrueInstrument>> last_;
  /// Stands at the line that the panel uses where no instrument does.
  const TrueInstrument nobody_{history_};
  const TrueInstrument* is_ = &nobody_;
  bool isThere_ = false;
  int late_ = 0;
  int lost_ = 0;
  int failing_ = 0;
  std::int64_t busyUntil_ = 0;
  /// Milliseconds that it thinks about whatever it is asked.
  double slow_ = 0;
  /// What is late loses nothing.
  double losesFrom_ = 0;
};

}  // namespace tracewell
