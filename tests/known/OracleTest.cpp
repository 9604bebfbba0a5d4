// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <cstdlib>
#include <iostream>

#include "Bench.h"
#include "PacedChannel.h"
#include "TrueInstrument.h"

namespace tracewell {
namespace {

/// An instrument at the end of a cable; of an unplugged one nothing comes back.
struct Plugged {
  FarEnd end;
  std::shared_ptr<TrueInstrument> instrument;
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
    if (std::exchange(number_, settings.portNumber) != settings.portNumber)
      plugged[settings.portNumber]->instrument->setUpAnew();
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
        : PacedChannel(ports.line->end, ports.clock_), owner(ports), kept(ports.line) {
      ports.open_ = this;
    }
    ~Channel() override {
      if (owner.open_ == this) owner.open_ = nullptr;
    }
    Ports& owner;
    std::shared_ptr<Plugged> kept;
  };
  VirtualClock& clock_;
  Channel* open_ = nullptr;
  std::int16_t number_ = 3;
};

/// "-1.25 mV" in the plain unit.
double plain(const std::string& text) {
  const std::size_t blank = text.find(' ');
  const char prefix = blank + 2 < text.size() ? text[blank + 1] : ' ';
  const std::map<char, double> factors = {{'n', 1e-9}, {'u', 1e-6}, {'m', 1e-3},
                                          {'k', 1e3},  {'M', 1e6},  {'G', 1e9}};
  const auto factor = factors.find(prefix);
  return std::atof(text.c_str()) * (factor == factors.end() ? 1 : factor->second);
}

bool isNear(double shown, double truth, double within) {
  return std::fabs(shown - truth) <= within * 1.0001 + 1e-6 * std::fabs(truth);
}

/// The whole program in the hands of somebody who knows the truth.
class Oracle : public BenchOf<OnALine<Ports>> {
 public:
  using Sweep = TrueInstrument::Sweep;

  template <class Limit>
  Limit below(Limit limit) {
    return static_cast<Limit>(history_.random() % static_cast<unsigned>(limit));
  }

  explicit Oracle(unsigned seed) {
    history_.random.seed(seed);
    history_.held = [this](int channel) {
      const Sweep* sweep = sweepOf(main.channels.at(static_cast<std::size_t>(channel)));
      return sweep == nullptr ? -1 : sweep->number;
    };
    program.start();
    setRow(0, {"19200", "8", "1", "None", "3"});
    port.settings.portNumber = 3;
    for (int row = 2; row <= 5; ++row) setRow(row, {"1", "0", "1", "0", "0", "1", "0", "0"});
    for (const int number : {3, 4}) plugIn(static_cast<std::int16_t>(number), nullptr);
    playDialogs();
    clock.meanwhile = [this] { whileTimePasses(); };
    clipboard.told = [this](const std::string& table, const Image&) { lookAtTable(table); };
  }

  void act() {
    ++actions;
    const auto acts = actsOf();
    const auto& [name, doIt] = acts[below(std::size(acts))];
    acted_.push_back(name);
    if (acted_.size() > 25) acted_.pop_front();
    ++depth_;
    doIt();
    --depth_;
    look();
  }

  int actions = 0;
  long looks = 0;
  std::map<std::string, long> violations;
  std::map<std::string, std::string> firsts;

 private:
  bool oneIn(int chances) { return below(chances) == 0; }
  void run(int milliseconds) { clock.run(milliseconds); }

  // ---- the truth

  void plugIn(std::int16_t number, std::shared_ptr<TrueInstrument> instrument) {
    auto plugged = std::make_shared<Plugged>();
    plugged->instrument = instrument ? instrument : std::make_shared<TrueInstrument>(history_);
    if (!plugged->instrument->isStopped) plugged->instrument->sweep();
    plugged->end.answer = [this, &end = plugged->end, its = plugged->instrument.get()](
                              const std::string& line) { return answer(end, *its, line); };
    opener.plugged[number] = plugged;
    last_[number] = plugged->instrument;
  }

  std::string answer(FarEnd& end, TrueInstrument& instrument, const std::string& line) {
    instrument.now = clock.milliseconds();
    std::string bytes = instrument.receive(line);
    end.thought = std::max<double>(3 + below(15), static_cast<double>(busyUntil_ - instrument.now));
    if (below(100) < late_) end.thought = std::min(end.thought + 100 + below(2700), 9900.0);
    // A question is answered within three seconds or never.
    const double from = std::max(end.lineFreeAt, static_cast<double>(instrument.now) + end.thought);
    const bool isTooLate = bytes.size() < 1000 && from > static_cast<double>(instrument.now) + 2900;
    if (isTooLate || below(100) < lost_) bytes.clear();
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
    if (channel.record.bytes.size() != 1014) return nullptr;
    return &history_.sweeps.at(
        static_cast<std::size_t>(std::atoi(channel.record.bytes.substr(2, 12).c_str())));
  }

  // ---- what is compared

  void expect(bool isTrue, const std::string& cause, const std::string& shown = "") {
    if (isTrue) return;
    ++violations[cause];
    std::string& first = firsts[cause];
    if (!first.empty()) return;
    first = shown + " | action " + std::to_string(actions) + " at " +
            std::to_string(clock.milliseconds()) + ":";
    for (const char* name : acted_) first += std::string(" ") + name;
  }

  static bool holds(const Control& control) {
    return !control.trust || control.trust() == Trust::holds;
  }

  void look() {
    ++looks;
    const TrueInstrument* is = truth();
    lookAtLines(is);
    if (is != nullptr && is->isOfOwnPanel) return;
    for (Channel& channel : main.channels) lookAtChannel(is, channel);
    const auto holdsWith = [&](const Control& control, auto isTrue, const char* cause,
                               const std::string& shown = "") {
      if (holds(control)) expect(is != nullptr && isTrue(), cause, shown);
    };
    holdsWith(
        main.lblTime, [&] { return main.lblTime.caption() == is->text(is->seconds, "s"); },
        "lblTime", main.lblTime.caption());
    holdsWith(
        main.knobTime,
        [&] {
          return isNear(is->step(2e-9, static_cast<int>(main.knobTime.value())), is->seconds, 0);
        },
        "knobTime");
    holdsWith(
        main.cbMath, [&] { return is->math == (main.cbMath.listIndex() + 1) % 4; }, "cbMath",
        main.cbMath.text());
    holdsWith(
        main.cmdLock, [&] { return is->isLocked == main.cmdLock.value(); }, "cmdLock",
        main.cmdLock.value() ? "in" : "out");
    const std::size_t caption = main.shownMessages.cmdRunStop;
    if (caption != 0)
      holdsWith(
          main.cmdRunStop, [&] { return is->isStopped == (caption == 5); }, "cmdRunStop");
    if (!main.slideTime.isHeld())
      lookAtSlide(is, main.slideTime, is ? is->delay / is->seconds : 0, "slideTime");
    if (!main.slideTrig.isHeld()) lookAtSlide(is, main.slideTrig, is ? is->level : 0, "slideTrig");
    lookAtGraph(is);
    lookAtResults(is);
  }

  void lookAtSlide(const TrueInstrument* is, const Slide& slide, double truth, const char* cause) {
    if (!holds(slide) || slide.isHeld()) return;
    const std::string caption = slide.caption();
    expect(is != nullptr && isNear(slide.value(), truth, 0.005), cause, caption);
    if (main.slidesWithValue.contains(const_cast<Slide*>(&slide)))
      expect(isNear(std::atof(caption.c_str() + caption.find(':') + 1), truth, 0.01), cause,
             caption);
  }

  void lookAtChannel(const TrueInstrument* is, Channel& channel) {
    const auto place = static_cast<std::size_t>(channel.number - 1);
    const auto its = is ? is->channels[place] : TrueInstrument::Channel();
    if (holds(channel.scale))
      expect(is && channel.scale.caption() == is->text(its.volts, "V"), "lblChan",
             channel.scale.caption());
    if (holds(channel.knob))
      expect(is && isNear(is->step(2e-3, static_cast<int>(channel.knob.value())), its.volts, 0),
             "knobChan");
    lookAtSlide(is, channel.slide, its.offset / its.volts, "slideCH");
    if (holds(channel.display))
      expect(is && its.isDisplayed == channel.display.isChecked(), "cbCh");
    const Sweep* const sweep = sweepOf(channel);
    if (sweep == nullptr || !channel.plot.isShown()) return;
    expect(channel.record.bytes[1] == '0' + channel.number, "trace of the other channel");
    if (channel.plot.isPale() || sweep->isOfOwnPanel) return;
    expect(is && sweep->instrument == is->id, "bright: instrument");
    if (!is) return;
    expect(sweep->isMath(channel.number - 1) || isNear(sweep->volts[place], its.volts, 0),
           "bright: volts");
    expect(isNear(sweep->seconds, is->seconds, 0), "bright: seconds");
  }

  /// Where the zero of the trace is drawn; none where it cannot be seen.
  std::optional<double> zeroOf(Channel& channel, int* sample = nullptr) {
    const Sweep* sweep = sweepOf(channel);
    const auto& y = channel.plot.y();
    for (int i = 1 + below(300), end = i + 199; i < end; ++i) {
      const int before = sweep->counts(channel.number - 1, i - 1);
      const int counts = sweep->counts(channel.number - 1, i);
      const double drawn = y.at(static_cast<std::size_t>(i));
      // What does not fit is drawn as the sample before it.
      if (drawn - y[static_cast<std::size_t>(i - 1)] != counts - before) continue;
      if (counts == before && std::abs(counts) > 1000) continue;
      if (sample) *sample = i;
      return drawn - counts;
    }
    return std::nullopt;
  }

  bool hasTrace(Channel& channel) { return sweepOf(channel) && channel.plot.isShown(); }

  void lookAtGraph(const TrueInstrument* is) {
    const GraphMarks marks = main.graphDSO.marks();
    for (const GraphMarks::Text& scale : marks.scales) {
      const double truth = !is               ? 0
                           : scale.plot == 0 ? is->seconds
                                             : is->channels[scale.plot == 1 ? 0 : 1].volts;
      expect(is && scale.text.ends_with(is->text(truth, scale.plot == 0 ? "s" : "V")), "strip",
             scale.text);
    }
    for (Channel& channel : main.channels) {
      const auto place = static_cast<std::size_t>(channel.number - 1);
      const bool isTrace = hasTrace(channel);
      const std::optional<double> drawn = isTrace ? zeroOf(channel) : std::nullopt;
      for (const GraphMarks::Side& side : marks.sides)
        if (side.plot == channel.number && side.direction == GraphMarks::Side::here && drawn)
          expect(isNear(side.height, *drawn, 0.01), "flag at the trace", side.text);
      std::string name;
      for (const GraphMarks::Text& text : marks.names)
        if (text.plot == channel.number) name = text.text;
      if (!isTrace) continue;
      const Sweep& sweep = *sweepOf(channel);
      const std::string truth =
          sweep.isMath(channel.number - 1)
              ? std::array{"", "1+2", "1-2", "2-1"}[static_cast<std::size_t>(sweep.math)]
              : "";
      expect(name.empty() || name == truth, "name of math", name);
      if (!channel.plot.isPale() && !sweep.isOfOwnPanel)
        expect(name == truth, "bright: math", name + " for " + truth);
      lookAtPointer(channel, place);
    }
    lookAtMarker(is);
    lookAtBadge(is, marks);
  }

  /// At a sample of the trace, and two divisions away from its zero.
  void lookAtPointer(Channel& channel, std::size_t place) {
    const Sweep& sweep = *sweepOf(channel);
    int sample = 0;
    const std::optional<double> zero = zeroOf(channel, &sample);
    if (!zero || sweep.isOfOwnPanel) return;
    for (const double x : {sample - 250.0, 100.0}) {
      const double units = x == 100 ? 100 : sweep.counts(channel.number - 1, sample);
      for (const auto& value : main.graphDSO.valuesAt(x, *zero + units)) {
        if (value.plot == 0)
          expect(isNear(plain(value.text), x / 50 * sweep.seconds, sweep.seconds / 100),
                 "pointer: seconds", value.text);
        if (value.plot == channel.number)
          expect(!sweep.isMath(channel.number - 1) &&
                     isNear(plain(value.text), units / 50 * sweep.volts[place],
                            sweep.volts[place] / 100),
                 "pointer: volts", value.text);
      }
    }
  }

  /// Zero of a channel on the screen: of its trace, or of now.
  std::optional<double> screenZero(const TrueInstrument& is, Channel& channel) {
    const auto& its = is.channels[static_cast<std::size_t>(channel.number - 1)];
    return hasTrace(channel) ? zeroOf(channel) : 50 * its.offset / its.volts;
  }

  void lookAtMarker(const TrueInstrument* is) {
    const Cursor& marker = main.graphDSO.cursor("Triger");
    if (!marker.visible() || main.slideTrig.isHeld()) return;
    expect(is && is->source < 2, "marker: source");
    if (!is || is->source > 1) return;
    Channel& channel = main.channels[is->source];
    if (hasTrace(channel) && channel.plot.isPale()) return;
    const auto zero = screenZero(*is, channel);
    if (zero)
      expect(isNear(marker.yPosition(), 50 * is->level / is->channels[is->source].volts + *zero, 1),
             "marker: height");
  }

  void lookAtBadge(const TrueInstrument* is, const GraphMarks& marks) {
    const double x1 = main.graphDSO.cursor("cur1").xPosition();
    const double x2 = main.graphDSO.cursor("cur2").xPosition();
    const double y1 = main.graphDSO.cursor("cur1").yPosition();
    const double y2 = main.graphDSO.cursor("cur2").yPosition();
    bool isOfOneSweep = true;
    for (const auto& [plot, text] : marks.badge) {
      if (text.find("different sweeps") != std::string::npos) isOfOneSweep = false;
      const double shown = plain(text.substr(std::min(text.find("= ") + 2, text.size())));
      for (Channel& channel : main.channels) {
        const auto place = static_cast<std::size_t>(channel.number - 1);
        const Sweep* sweep = hasTrace(channel) ? sweepOf(channel) : nullptr;
        if (!sweep && !is)
          expect(plot != channel.number && (plot != 0 || !isOfOneSweep), "badge: of nothing", text);
        if ((!sweep && !is) || (sweep && sweep->isOfOwnPanel)) continue;
        const double seconds = sweep ? sweep->seconds : is->seconds;
        if (text.starts_with("|Δt|"))
          expect(isNear(shown, std::fabs(x1 - x2) / 50 * seconds, seconds / 100), "badge: seconds",
                 text);
        if (plot != channel.number) continue;
        const double volts = sweep ? sweep->volts[place] : is->channels[place].volts;
        expect(!sweep || !sweep->isMath(channel.number - 1), "badge: math", text);
        if (text.starts_with("ΔV"))
          expect(isNear(shown, (y1 - y2) / 50 * volts, volts / 100), "badge: volts", text);
        const auto zero = sweep ? zeroOf(channel) : screenZero(*is, channel);
        if (text.starts_with("P") && zero)
          expect(isNear(shown, ((text[1] == '1' ? y1 : y2) - *zero) / 50 * volts, volts / 100),
                 "badge: from zero", text);
      }
    }
    auto& [first, second] = main.channels;
    if (main.opTime.value() && hasTrace(first) && hasTrace(second) && isOfOneSweep)
      expect(sweepOf(first) == sweepOf(second), "badge: one sweep");
  }

  void lookAtResults(const TrueInstrument* is) {
    for (const ValueLabel& label : main.lblMeasure) {
      const std::string& text = label.caption();
      const std::size_t mark = text.rfind('M');
      if (!holds(label) || mark == std::string::npos || !std::isdigit(text[mark + 1])) continue;
      const auto& measured =
          history_.measured.at(static_cast<std::size_t>(std::atoi(text.c_str() + mark + 1)));
      expect(is && measured.instrument == is->id, "result: instrument", text);
      if (!is) continue;
      const std::size_t bracket = text.find('(');
      expect(bracket > 12 || text[bracket + 1] == '1' + measured.channel, "result: channel", text);
      const std::map<std::string, std::string> names = {
          {"VPP", "Vpp"},     {"VAMP", "Vamp"},   {"VAV", "Vavg"},     {"VRMS", "Vrms"},
          {"VHI", "Vhi"},     {"VLO", "Vlo"},     {"VMAX", "Vmax"},    {"VMIN", "Vmin"},
          {"FREQ", "Freq"},   {"PER", "Period"},  {"RIS", "Risetime"}, {"FALL", "Falltime"},
          {"PWID", "+Width"}, {"NWID", "-Width"}, {"PDUT", "Duty"}};
      expect(text.starts_with(names.at(measured.item)), "result: item",
             text + " is " + measured.item);
      expect(measured.signal == is->signal(measured.channel), "result: settings", text);
    }
  }

  /// Ages, and sentences about the instrument.
  void lookAtLines(const TrueInstrument* is) {
    const std::string& ages = main.lblAge.caption();
    for (Channel& channel : main.channels) {
      const std::size_t start = ages.find(channel.display.caption() + ": ");
      if (start == std::string::npos) continue;
      const std::string age = ages.substr(start, ages.find("    ", start) - start);
      const Sweep* sweep = sweepOf(channel);
      const bool isLive = age.ends_with(": live");
      const bool isUnchanged = age.find("unchanged") != std::string::npos;
      if (!isLive && !isUnchanged) continue;
      expect(is && sweep && sweep->instrument == is->id, "live: instrument", age);
      if (!is || !sweep) continue;
      const double seconds = static_cast<double>(clock.milliseconds() - sweep->at) / 1000;
      if (isUnchanged)
        expect(
            sweep->sent[static_cast<std::size_t>(channel.number - 1)] > 1 &&
                std::atof(age.c_str() + age.find("for ") + 4) * (age.ends_with("min") ? 60 : 1) <=
                    seconds + 1,
            "unchanged", age);
    }
    const bool isOther =
        main.lblStatus.caption().find("may be those of another") != std::string::npos;
    if (isOther)
      expect(!holds(main.lblChan1) || !holds(main.lblChan2) || !holds(main.lblTime),
             "sentence: another");
  }

  void lookAtTable(const std::string& table) {
    std::istringstream lines(table);
    std::string line;
    std::getline(lines, line);
    if (!line.starts_with("Time")) return;
    std::vector<std::string> heads = columnsOf(line);
    for (int row = 0; std::getline(lines, line); ++row) {
      if (row % 97 != 13) continue;
      const auto cells = columnsOf(line);
      std::size_t column = 1;
      for (Channel& channel : main.channels) {
        if (!hasTrace(channel)) continue;
        const Sweep& sweep = *sweepOf(channel);
        const auto place = static_cast<std::size_t>(channel.number - 1);
        if (sweep.isOfOwnPanel) return;
        if (heads[0].ends_with("(s)"))
          expect(isNear(std::atof(cells[0].c_str()), (row - 250) / 50.0 * sweep.seconds, 0),
                 "table: seconds", line);
        if (heads.at(column).ends_with("(V)"))
          expect(!sweep.isMath(channel.number - 1) &&
                     isNear(std::atof(cells.at(column).c_str()),
                            sweep.counts(channel.number - 1, row) / 50.0 * sweep.volts[place], 0),
                 "table: volts",
                 heads[column] + " " + cells[column] + " row " + std::to_string(row) + " sweep " +
                     std::to_string(sweep.number) + " " + std::to_string(sweep.volts[place]) + " " +
                     std::to_string(sweep.counts(channel.number - 1, row)));
        ++column;
      }
    }
  }
  static std::vector<std::string> columnsOf(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream words(line);
    for (std::string cell; std::getline(words, cell, '\t');) cells.push_back(cell);
    return cells;
  }

  // ---- what is done

  void whileTimePasses() {
    if (oneIn(60)) look();
    if (oneIn(3000)) standBy.giveUp();
    if (depth_ == 1 && !isModal_ && !gate.isHeld() && oneIn(4000)) act();
  }

  void inDialog(const char* name, std::function<void()> user) {
    windows.user[name] = [this, user] {
      isModal_ = true;
      if (oneIn(3)) run(below(3000));
      user();
      isModal_ = false;
    };
  }

  void choose(ControlArray<OptionButton>& options) { options(below(options.size())).select(); }
  template <class Dialog>
  void end(Dialog& dialog) {
    (oneIn(3) ? dialog.cmdCancel : dialog.cmdOK).press();
  }

  void playDialogs() {
    inDialog("frmRS232", [this] {
      auto& dialog = program.rs232;
      dialog.cbRS232(4).type(oneIn(10) ? "9" : oneIn(3) ? "4" : "3");
      if (oneIn(4)) dialog.cbRS232(0).choose(1 + below(5));
      end(dialog);
    });
    inDialog("frmChannel", [this] {
      auto& dialog = program.channelDialog;
      if (oneIn(2)) dialog.cbCh(below(3)).toggle();
      if (oneIn(2)) choose(dialog.obCoupling);
      if (oneIn(2)) choose(dialog.obProbe);
      end(dialog);
    });
    inDialog("frmTrig", [this] {
      auto& dialog = program.trigger;
      for (ComboBox& box : dialog.cbTrig)
        if (oneIn(2)) box.choose(below(static_cast<int>(box.items().size())));
      end(dialog);
    });
    inDialog("frmChDiv", [this] {
      auto& dialog = program.channelScale;
      choose(dialog.opVDiv);
      if (oneIn(2)) dialog.cmdSelect.press();
      dialog.cmdClose.press();
    });
    inDialog("frmTimeDiv", [this] {
      auto& dialog = program.timeScale;
      choose(dialog.obTimeDiv);
      if (oneIn(2)) dialog.cmdOK.press();
      dialog.cmdCancel.press();
    });
    inDialog("frmAcq", [this] { end(program.acquire); });
    inDialog("frmDisplay", [this] {
      program.display.slideDataBrightness.drag(below(100));
      end(program.display);
    });
    inDialog("frmVMeasure", [this] {
      program.measurementChoice.cbV(below(16)).toggle();
      end(program.measurementChoice);
    });
    inDialog("frmFMeasure", [this] {
      program.quickMeasurementChoice.cbChan.choose(below(2));
      end(program.quickMeasurementChoice);
    });
    inDialog("frmGraph", [this] { end(program.graphStyle); });
    inDialog("frmCmd", [this] {
      program.console.txtCmd.type(typedLine());
      program.console.cmdRun.press();
      program.console.cmdOK.press();
    });
  }

  std::string typedLine() {
    const std::string n = std::to_string(1 + below(2));
    const std::string number =
        std::array{"1", "2", "5E-1", "2E-3", "0", "-5E-1", "3E-2"}[below(7u)];
    const std::string scale = std::array{"1", "2", "5E-1", "2E-3", "3E-2"}[below(5u)];
    const std::string one = below(2) ? "1" : "0";
    const Lines lines = {":CHAN" + n + ":SCAL " + scale,
                         ":trig:lev " + number,
                         ":tim:scal 1E-3",
                         ":chan" + n + ":scal " + scale,
                         ":CHANNEL" + n + ":SCALE " + scale,
                         ":CHAN" + n + ":OFFS " + number,
                         ":CHAN" + n + ":DISP " + one,
                         ":CHAN" + n + ":PROB 1",
                         ":CHAN" + n + ":COUP 2",
                         "CHAN1:MATH " + std::to_string(below(3)),
                         ":TIM:SCAL " + scale,
                         ":TIM:DEL " + number,
                         ":TRIG:LEV " + number,
                         ":TRIG:SOUR " + one,
                         ":TRIG:MOD " + one,
                         ":RUN",
                         ":Stop",
                         ":SYST:UNL",
                         "*RST",
                         ":AUT",
                         ":SELF:TEST",
                         "*IDN?",
                         ":CHAN" + n + ":SCAL?",
                         ":TRIG:LEV?",
                         ":TRIG:SOUR?",
                         ":TRIG:MOD?",
                         ":TIM:DEL?",
                         ":CHAN" + n + ":DISP?",
                         ":NONE?",
                         ":CHAN" + n + ":OFFS?"};
    std::string line = lines[below(lines.size())];
    while (oneIn(4)) line += std::array{";", "; ", "\n"}[below(3u)] + lines[below(lines.size())];
    return line;
  }

  void drag(Slide& slide) {
    const auto& range = slide.range();
    for (int i = below(3); i >= 0; --i) {
      slide.drag(range.minimum + range.step * below(static_cast<int>(
                                                  (range.maximum - range.minimum) / range.step)));
      run(below(500));
    }
    slide.release();
  }

  void trouble() {
    late_ = std::array{0, 0, 5, 30}[below(4u)];
    lost_ = std::array{0, 0, 3, 20}[below(4u)];
    if (oneIn(2)) busyUntil_ = clock.milliseconds() + 1000 + below(9000);
    if (oneIn(6)) failing_ = 1 + below(5);
  }

  void replug() {
    const std::int16_t number = oneIn(4) ? 4 : 3;
    opener.unplug(number);
    if (oneIn(2)) run(below(4000));
    plugIn(number, oneIn(2) ? last_[number] : nullptr);
    if (oneIn(2)) main.cmdRS232.press();
  }

  /// Somebody turns the instrument's own knobs, which only answers to all questions can tell.
  void useOwnPanel() {
    TrueInstrument* is = truth();
    if (is == nullptr || is->isLocked) return;
    is->isOfOwnPanel = true;
    is->shuffle();
    run(below(5000));
    busyUntil_ = late_ = lost_ = failing_ = 0;
    main.cmdRS232.press();
    // What the panel never asks for.
    for (const char* query :
         {":CHAN1:DISP?", ":CHAN2:DISP?", ":TIM:DEL?", ":TRIG:LEV?", ":TRIG:SOUR?", ":TRIG:MOD?"})
      program.exchange.SendDSOCmd(query);
    is->isOfOwnPanel = !main.LinkOK || truth() != is;
    if (!is->isStopped) is->sweep();
  }

  std::vector<std::pair<const char*, std::function<void()>>> actsOf() {
    return {
        {"start", [this] { main.cmdStart.press(); }},
        {"start",
         [this] {
           if (!main.tmDSO.enabled()) main.cmdStart.press();
         }},
        {"RS232", [this] { main.cmdRS232.press(); }},
        {"RS232",
         [this] {
           if (!main.LinkOK) main.cmdRS232.press();
         }},
        {"knob1", [this] { main.knobChan1.turn(below(11)); }},
        {"knob2", [this] { main.knobChan2.turn(below(11)); }},
        {"knobT", [this] { main.knobTime.turn(below(29)); }},
        {"slide1", [this] { drag(main.slideCH1); }},
        {"slide2", [this] { drag(main.slideCH2); }},
        {"slideT", [this] { drag(main.slideTime); }},
        {"level", [this] { drag(main.slideTrig); }},
        {"box1", [this] { main.cbCh1.toggle(); }},
        {"box2", [this] { main.cbCh2.toggle(); }},
        {"pick1", [this] { main.cmdChannel1.press(); }},
        {"pick2", [this] { main.cmdChannel2.press(); }},
        {"pickT", [this] { main.cmdTime.press(); }},
        {"channel1",
         [this] {
           if (oneIn(3)) main.cmdCh1.press();
         }},
        {"channel2",
         [this] {
           if (oneIn(3)) main.cmdCh2.press();
         }},
        {"trigger",
         [this] {
           if (oneIn(2)) main.cmdTrig.press();
         }},
        {"acquire",
         [this] {
           if (oneIn(3)) main.cmdAcq.press();
         }},
        {"display",
         [this] {
           if (oneIn(3)) main.cmdDisplay.press();
         }},
        {"math", [this] { main.cbMath.choose(oneIn(2) ? 3 : below(4)); }},
        {"autoset",
         [this] {
           if (oneIn(4)) main.cmdAutoset.press();
         }},
        {"run/stop", [this] { main.cmdRunStop.press(); }},
        {"typed",
         [this] {
           main.txtTest.type(typedLine());
           main.cmdTest.press();
         }},
        {"console",
         [this] {
           if (oneIn(3)) main.cmdDSOcmd.press();
         }},
        {"measure",
         [this] {
           if (oneIn(3)) main.cmdVMeasure.press();
         }},
        {"quick", [this] { (oneIn(2) ? main.mnbFrequency.choose() : main.cmdFMeasure.press()); }},
        {"port",
         [this] {
           if (oneIn(2)) main.mnbRS232.choose();
         }},
        {"graph",
         [this] {
           if (oneIn(4)) main.cmdGraph.press();
         }},
        {"language",
         [this] {
           if (oneIn(4)) std::array{&main.mnbLA1, &main.mnbLA2, &main.mnbLA3}[below(3u)]->choose();
         }},
        {"larger", [this] { main.graphDSO.toggleEnlarged(); }},
        {"cursors",
         [this] {
           std::array{&main.opOff, &main.opTime, &main.opVoltage}[below(3u)]->select();
           main.cbCurChan.choose(below(2));
         }},
        {"cursor",
         [this] {
           main.graphDSO.dragCursor(main.graphDSO.cursor(oneIn(2) ? "cur1" : "cur2"),
                                    below(500) - 250, below(400) - 200);
         }},
        {"copy", [this] { main.graphDSO.copy(Graph::Copied::values); }},
        {"trouble", [this] { trouble(); }},
        {"calm",
         [this] {
           late_ = lost_ = failing_ = 0;
           busyUntil_ = 0;
         }},
        {"replug",
         [this] {
           if (oneIn(3)) replug();
         }},
        {"no trigger",
         [this] {
           if (TrueInstrument* is = truth()) is->isTriggered = oneIn(2);
         }},
        {"own panel", [this] { useOwnPanel(); }},
        {"wait", [this] { run(below(1500)); }},
        {"wait", [this] { run(below(6000)); }},
        {"wait", [this] { run(below(6000)); }},
        {"wait", [this] { run(below(6000)); }},
        {"wait", [this] { run(below(12000)); }},
    };
  }

  TrueInstrument::History history_;
  std::map<std::int16_t, std::shared_ptr<TrueInstrument>> last_;
  std::deque<const char*> acted_;
  int depth_ = 0;
  bool isModal_ = false;
  int late_ = 0;
  int lost_ = 0;
  int failing_ = 0;
  std::int64_t busyUntil_ = 0;
};

int numberFrom(const char* variable, int otherwise) {
  const char* const given = std::getenv(variable);
  return given ? std::atoi(given) : otherwise;
}

}  // namespace

/// TRACEWELL_ORACLE_ACTIONS makes the trial longer, TRACEWELL_ORACLE_SEED repeats one. Of each
/// cause the first look is told, with what had been done before it.
TEST(Oracle, WhatIsShownWithoutAMarkIsTrue) {
  const int total = numberFrom("TRACEWELL_ORACLE_ACTIONS", 8000);
  const int seed = numberFrom("TRACEWELL_ORACLE_SEED", 1);
  Oracle oracle(static_cast<unsigned>(seed));
  while (oracle.actions < total) oracle.act();
  std::cout << "seed " << seed << ": " << oracle.actions << " actions, " << oracle.looks
            << " looks\n";
  for (const auto& [cause, count] : oracle.violations)
    ADD_FAILURE() << count << " looks at " << cause << ", first " << oracle.firsts[cause];
}

}  // namespace tracewell
