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
};

/// "-1.25 mV" in the plain unit.
double plain(const std::string& text) {
  constexpr std::string_view prefixes = "num kMG";
  const std::size_t blank = text.find(' ');
  const std::size_t prefix = blank + 2 < text.size() ? prefixes.find(text[blank + 1]) : 3;
  const double power = prefix > prefixes.size() ? 0 : 3 * static_cast<double>(prefix) - 9;
  return std::atof(text.c_str()) * std::pow(10, power);
}

bool isNear(double shown, double truth, double within = 0) {
  return std::fabs(shown - truth) <= within * 1.0001 + 1e-6 * std::fabs(truth);
}

std::vector<std::string> partsOf(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream words(text);
  for (std::string part; std::getline(words, part, separator);) parts.push_back(part);
  return parts;
}

/// The whole program in the hands of somebody who knows the truth.
class Oracle : public BenchOf<OnALine<Ports>> {
 public:
  using Sweep = TrueInstrument::Sweep;

  explicit Oracle(unsigned seed) {
    history_.random.seed(seed);
    history_.held = [this](std::size_t channel) {
      const Sweep* sweep = sweepOf(main.channels.at(channel));
      return sweep == nullptr ? -1 : sweep->number;
    };
    program.start();
    setRow(0, {"19200", "8", "1", "None", "3"});
    port.settings.portNumber = 3;
    for (int row = 2; row <= 5; ++row) setRow(row, {"1", "0", "1", "0", "0", "1", "0", "0"});
    for (const std::int16_t number : {std::int16_t{3}, std::int16_t{4}}) plugIn(number, nullptr);
    listActs();
    windows.opened = [this](Window& window) { playIn(window); };
    clock.meanwhile = [this] { whileTimePasses(); };
    clipboard.told = [this](const std::string& table, const Image&) { lookAtTable(table); };
  }

  void act() {
    ++actions;
    const auto& [chances, act] = acts_[below(acts_.size())];
    ++depth_;
    if (oneIn(chances)) act();
    --depth_;
    look();
  }

  int actions = 0;
  long looks = 0;
  struct Cause {
    long count = 0;
    std::string first;
  };
  std::map<std::string, Cause> violations;

 private:
  template <class Limit>
  Limit below(Limit limit) {
    return static_cast<Limit>(history_.random() % static_cast<unsigned>(limit));
  }
  bool oneIn(int chances) { return below(chances) == 0; }
  template <class Item>
  Item oneOf(std::initializer_list<Item> items) {
    return items.begin()[below(items.size())];
  }
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
    const auto now = static_cast<double>(instrument.now);
    std::string bytes = instrument.receive(line);
    end.thought = std::max(3.0 + below(15), static_cast<double>(busyUntil_) - now);
    if (below(100) < late_) end.thought = std::min(end.thought + 100 + below(2700), 9900.0);
    // A question is answered within three seconds or never.
    const double from = std::max(end.lineFreeAt, now + end.thought);
    const bool isTooLate = bytes.size() < 1000 && from > now + 2900;
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
    const std::string& bytes = channel.record.bytes;
    if (bytes.size() != 1014) return nullptr;
    return &history_.sweeps.at(static_cast<std::size_t>(std::atoi(bytes.substr(2, 12).c_str())));
  }
  /// What is drawn of a channel.
  Sweep* traceOf(const Channel& channel) {
    return channel.plot.isShown() ? sweepOf(channel) : nullptr;
  }

  // ---- what is compared

  void expect(bool isTrue, const std::string& cause, const std::string& shown = "") {
    if (isTrue) return;
    auto& [count, first] = violations[cause];
    if (++count == 1) first = shown + " at action " + std::to_string(actions);
  }

  void expectNear(double shown, double truth, double within, const char* cause,
                  const std::string& text = "") {
    expect(isNear(shown, truth, within), cause, text);
  }

  static bool holds(const Control& control) {
    return !control.trust || control.trust() == Trust::holds;
  }

  void look() {
    ++looks;
    const TrueInstrument* present = truth();
    isThere_ = present != nullptr;
    is_ = isThere_ ? present : &nobody_;
    lookAtLines();
    if (is_->isOfOwnPanel) return;
    lookAtControls();
    const GraphMarks marks = main.graphDSO.marks();
    lookAtStrip(marks);
    for (Channel& channel : main.channels) lookAtTrace(channel, marks);
    lookAtMarker();
    lookAtBadge(marks);
    lookAtResults();
  }

  void lookAtControls() {
    const auto compare = [&](const char* cause, const Control& control, bool isTrue) {
      if (holds(control)) expect(isThere_ && isTrue, cause);
    };
    const auto compareKnob = [&](const char* cause, const Knob& knob, double first, double truth) {
      compare(cause, knob, isNear(is_->step(first, static_cast<int>(knob.value())), truth));
    };
    const auto compareSlide = [&](const char* cause, Slide& slide, double truth) {
      const std::string& caption = slide.caption();
      const double written = std::atof(caption.c_str() + caption.find(':') + 1);
      const bool isWritten = main.slidesWithValue.contains(&slide);
      if (slide.isHeld()) return;
      compare(cause, slide, isNear(slide.value(), truth, 0.005));
      compare(cause, slide, !isWritten || isNear(written, truth, 0.01));
    };
    compare("lblTime", main.lblTime, main.lblTime.caption() == is_->text(is_->seconds, "s"));
    compareKnob("knobTime", main.knobTime, 2e-9, is_->seconds);
    compareSlide("slideTime", main.slideTime, is_->delay / is_->seconds);
    compareSlide("slideTrig", main.slideTrig, is_->level);
    compare("cbMath", main.cbMath, is_->math == (main.cbMath.listIndex() + 1) % 4);
    compare("cmdLock", main.cmdLock, is_->isLocked == main.cmdLock.value());
    if (const std::size_t caption = main.shownMessages.cmdRunStop)
      compare("cmdRunStop", main.cmdRunStop, is_->isStopped == (caption == 5));
    for (Channel& channel : main.channels) {
      const auto& its = is_->channels[channel.index()];
      compare("lblChan", channel.scale, channel.scale.caption() == is_->text(its.volts, "V"));
      compareKnob("knobChan", channel.knob, 2e-3, its.volts);
      compareSlide("slideCH", channel.slide, its.offset / its.volts);
      compare("cbCh", channel.display, channel.display.isChecked() == (its.isDisplayed != 0));
    }
  }

  void lookAtStrip(const GraphMarks& marks) {
    for (const auto& [plot, text] : marks.scales) {
      const std::string scale = plot == 0 ? is_->text(is_->seconds, "s")
                                          : is_->text(is_->channels[plot == 1 ? 0 : 1].volts, "V");
      expect(isThere_ && text.ends_with(scale), "strip", text);
    }
  }

  void lookAtTrace(Channel& channel, const GraphMarks& marks) {
    const Sweep* const sweep = traceOf(channel);
    if (sweep == nullptr) return;
    expect(channel.record.bytes[1] == '0' + channel.number, "trace of the other channel");
    const std::size_t place = channel.index();
    int sample = 0;
    const std::optional<double> zero = zeroOf(channel, &sample);
    for (const GraphMarks::Side& side : marks.sides)
      if (side.plot == channel.number && side.direction == GraphMarks::Side::here && zero)
        expect(isNear(side.height, *zero, 0.01), "flag at the trace", side.text);
    const auto named = std::ranges::find(marks.names, channel.number, &GraphMarks::Text::plot);
    const std::string name = named == marks.names.end() ? "" : named->text;
    const std::size_t math = sweep->isMath(place) ? static_cast<std::size_t>(sweep->math) : 0;
    const std::string truth = std::array{"", "1+2", "1-2", "2-1"}[math];
    expect(name.empty() || name == truth, "name of math", name);
    if (sweep->isOfOwnPanel) return;
    if (!channel.plot.isPale()) {
      expect(isThere_ && sweep->instrument == is_->id, "bright: instrument");
      expect(math != 0 || isNear(sweep->volts(place), is_->channels[place].volts), "bright: volts");
      expect(isNear(sweep->seconds, is_->seconds), "bright: seconds");
      expect(name == truth, "bright: math", name + " for " + truth);
    }
    if (zero) lookAtPointer(channel, *sweep, sample, *zero);
  }

  /// At a sample of the trace, and two divisions away from its zero.
  void lookAtPointer(Channel& channel, const Sweep& sweep, int sample, double zero) {
    const double volts = sweep.volts(channel.index());
    for (const double x : {sample - 250.0, 100.0}) {
      const double units = x == 100 ? 100 : sweep.counts(channel.index(), sample);
      for (const auto& [plot, text] : main.graphDSO.valuesAt(x, zero + units)) {
        if (plot == 0)
          expectNear(plain(text), x / 50 * sweep.seconds, sweep.seconds / 100, "pointer: seconds",
                     text);
        if (plot == channel.number)
          expectNear(plain(text), units / 50 * volts, volts / 100, "pointer: volts", text);
      }
    }
  }

  /// Where the zero of the trace is drawn; none where it cannot be seen.
  std::optional<double> zeroOf(Channel& channel, int* sample = nullptr) {
    const Sweep& sweep = *sweepOf(channel);
    const auto& y = channel.plot.y();
    for (int i = 1 + below(300), end = i + 199; i < end; ++i) {
      const int before = sweep.counts(channel.index(), i - 1);
      const int counts = sweep.counts(channel.index(), i);
      const double drawn = y.at(static_cast<std::size_t>(i));
      // What does not fit is drawn as the sample before it.
      if (drawn - y[static_cast<std::size_t>(i - 1)] != counts - before) continue;
      if (counts == before && std::abs(counts) > 1000) continue;
      if (sample) *sample = i;
      return drawn - counts;
    }
    return std::nullopt;
  }

  /// Zero of a channel on the screen: of its trace, or of now.
  std::optional<double> screenZero(Channel& channel) {
    const auto& its = is_->channels[channel.index()];
    return traceOf(channel) ? zeroOf(channel) : 50 * its.offset / its.volts;
  }

  void lookAtMarker() {
    const Cursor& marker = main.graphDSO.cursor("Triger");
    if (!marker.visible() || main.slideTrig.isHeld()) return;
    expect(isThere_ && is_->source < 2, "marker: source");
    if (!isThere_ || is_->source > 1) return;
    Channel& channel = main.channels[is_->source == 0 ? 0 : 1];
    if (traceOf(channel) && channel.plot.isPale()) return;
    const double fromZero = 50 * is_->level / is_->channels[channel.index()].volts;
    if (const auto zero = screenZero(channel))
      expect(isNear(marker.yPosition(), fromZero + *zero, 1), "marker: height");
  }

  void lookAtBadge(const GraphMarks& marks) {
    const Cursor& first = main.graphDSO.cursor("cur1");
    const Cursor& second = main.graphDSO.cursor("cur2");
    const Sweep* const sweeps[] = {traceOf(main.channels[0]), traceOf(main.channels[1])};
    bool isOfOneSweep = true;
    for (const auto& [plot, text] : marks.badge) {
      if (text.find("different sweeps") != std::string::npos) isOfOneSweep = false;
      const double shown = plain(text.substr(std::min(text.find("= ") + 2, text.size())));
      const auto compare = [&, &its = text](double units, double scale, const char* cause) {
        expectNear(shown, units / 50 * scale, scale / 100, cause, its);
      };
      for (Channel& channel : main.channels) {
        const Sweep* sweep = sweeps[channel.index()];
        if (sweep && sweep->isOfOwnPanel) continue;
        const bool isTold = plot == channel.number || (plot == 0 && isOfOneSweep);
        expect(sweep || isThere_ || !isTold, "badge: of nothing", text);
        if (!sweep && !isThere_) continue;
        if (text.starts_with("|Δt|"))
          compare(std::fabs(first.xPosition() - second.xPosition()),
                  sweep ? sweep->seconds : is_->seconds, "badge: seconds");
        if (plot != channel.number) continue;
        const std::size_t place = channel.index();
        const double volts = sweep ? sweep->volts(place) : is_->channels[place].volts;
        expect(!std::isnan(volts), "badge: math", text);
        if (text.starts_with("ΔV"))
          compare(first.yPosition() - second.yPosition(), volts, "badge: volts");
        const auto zero = screenZero(channel);
        if (text.starts_with("P") && zero)
          compare((text[1] == '1' ? first : second).yPosition() - *zero, volts, "badge: from zero");
      }
    }
    if (main.opTime.value() && sweeps[0] && sweeps[1] && isOfOneSweep)
      expect(sweeps[0] == sweeps[1], "badge: one sweep");
  }

  void lookAtResults() {
    static const std::map<std::string, std::string> names = {
        {"VPP", "Vpp"},     {"VAMP", "Vamp"},   {"VAV", "Vavg"},     {"VRMS", "Vrms"},
        {"VHI", "Vhi"},     {"VLO", "Vlo"},     {"VMAX", "Vmax"},    {"VMIN", "Vmin"},
        {"FREQ", "Freq"},   {"PER", "Period"},  {"RIS", "Risetime"}, {"FALL", "Falltime"},
        {"PWID", "+Width"}, {"NWID", "-Width"}, {"PDUT", "Duty"}};
    for (const ValueLabel& label : main.lblMeasure) {
      const std::string& text = label.caption();
      const std::size_t mark = text.rfind('M');
      if (!holds(label) || mark == std::string::npos || !std::isdigit(text[mark + 1])) continue;
      const auto& [instrument, channel, item, signal] =
          history_.measured.at(static_cast<std::size_t>(std::atoi(text.c_str() + mark + 1)));
      expect(isThere_ && instrument == is_->id, "result: instrument", text);
      const std::size_t bracket = text.find('(');
      expect(bracket > 12 || text[bracket + 1] == (channel == 0 ? '1' : '2'), "result: channel",
             text);
      expect(text.starts_with(names.at(item)), "result: item", text + " is " + item);
      expect(!isThere_ || signal == is_->signal(channel), "result: settings", text);
    }
  }

  /// Ages, and sentences about the instrument.
  void lookAtLines() {
    const std::string& ages = main.lblAge.caption();
    for (Channel& channel : main.channels) {
      const std::size_t start = ages.find(channel.display.caption() + ": ");
      if (start == std::string::npos) continue;
      const std::string age = ages.substr(start, ages.find("    ", start) - start);
      const Sweep* sweep = sweepOf(channel);
      const bool isUnchanged = age.find("unchanged") != std::string::npos;
      if (!age.ends_with(": live") && !isUnchanged) continue;
      expect(isThere_ && sweep && sweep->instrument == is_->id, "live: instrument", age);
      if (!isUnchanged || !isThere_ || !sweep) continue;
      const double told =
          std::atof(age.c_str() + age.find("for ") + 4) * (age.ends_with("min") ? 60 : 1);
      const double seconds = static_cast<double>(clock.milliseconds() - sweep->at) / 1000;
      expect(sweep->sent[channel.index()] > 1 && told <= seconds + 1, "unchanged", age);
    }
    if (main.lblStatus.caption().find("may be those of another") != std::string::npos)
      expect(!holds(main.lblChan1) || !holds(main.lblChan2) || !holds(main.lblTime),
             "sentence: another");
  }

  void lookAtTable(const std::string& table) {
    const Lines lines = partsOf(table, '\n');
    if (!lines[0].starts_with("Time")) return;
    const Lines heads = partsOf(lines[0], '\t');
    for (std::size_t line = 14; line < lines.size(); line += 97) {
      const Lines cells = partsOf(lines[line], '\t');
      const int row = static_cast<int>(line) - 1;
      std::size_t column = 1;
      for (Channel& channel : main.channels) {
        const Sweep* sweep = traceOf(channel);
        if (!sweep) continue;
        if (sweep->isOfOwnPanel) return;
        const double volts = sweep->volts(channel.index());
        const double units = sweep->counts(channel.index(), row);
        if (heads[0].ends_with("(s)"))
          expectNear(std::atof(cells[0].c_str()), (row - 250) / 50.0 * sweep->seconds, 0,
                     "table: seconds", lines[line]);
        if (heads.at(column).ends_with("(V)"))
          expectNear(std::atof(cells.at(column).c_str()), units / 50 * volts, 0, "table: volts",
                     lines[line]);
        ++column;
      }
    }
  }

  // ---- what is done

  void whileTimePasses() {
    if (oneIn(60)) look();
    if (oneIn(3000)) standBy.giveUp();
    if (depth_ == 1 && !isModal_ && !gate.isHeld() && oneIn(4000)) act();
  }

  void use(Control& control) {
    if (auto* button = dynamic_cast<Button*>(&control)) return button->press();
    if (auto* entry = dynamic_cast<MenuEntry*>(&control)) return entry->choose();
    if (auto* box = dynamic_cast<CheckBox*>(&control)) return box->toggle();
    if (auto* option = dynamic_cast<OptionButton*>(&control)) return option->select();
    if (auto* slide = dynamic_cast<Slide*>(&control)) return drag(*slide);
    if (auto* knob = dynamic_cast<Knob*>(&control))
      return knob->turn(below(static_cast<int>(knob->detents().size())));
    if (auto* box = dynamic_cast<ComboBox*>(&control); box && !box->items().empty())
      box->choose(below(static_cast<int>(box->items().size())));
  }

  /// Uses some controls of a dialog, then leaves by any of its buttons.
  void playIn(Window& window) {
    isModal_ = true;
    if (oneIn(3)) run(below(3000));
    std::vector<Button*> buttons;
    for (Control* control : window.controls())
      if (auto* button = dynamic_cast<Button*>(control))
        buttons.push_back(button);
      else if (oneIn(4))
        use(*control);
    if (&window == &program.rs232) {
      program.rs232.cbRS232(0).choose(1 + below(5));
      program.rs232.cbRS232(4).type(oneIn(10) ? "9" : oneIn(3) ? "4" : "3");
    }
    program.console.txtCmd.type(typedLine());
    for (int i = below(4); i > 0 && window.isVisible() && !buttons.empty(); --i)
      buttons[below(buttons.size())]->press();
    if (window.isVisible()) window.close();
    isModal_ = false;
  }

  /// Here @ is a channel, # a number, $ a scale and % one of two.
  std::string typedLine() {
    static const Lines parts = partsOf(
        ":CHAN@:SCAL $|:trig:lev #|:tim:scal 1E-3|:chan@:scal $|:CHANNEL@:SCALE $|:CHAN@:OFFS #|"
        ":CHAN@:DISP %|:CHAN@:PROB 1|:CHAN@:COUP 2|CHAN1:MATH %|CHAN1:MATH 2|:TIM:SCAL $|"
        ":TIM:DEL #|:TRIG:LEV #|:TRIG:SOUR %|:TRIG:MOD %|:RUN|:Stop|:SYST:UNL|*RST|:AUT|:SELF:TEST|"
        "*IDN?|:CHAN@:SCAL?|:TRIG:LEV?|:TRIG:SOUR?|:TRIG:MOD?|:TIM:DEL?|:CHAN@:DISP?|:NONE?|"
        ":CHAN@:OFFS?",
        '|');
    std::string typed = parts[below(parts.size())];
    while (oneIn(4)) typed += oneOf({";", "; ", "\n"}) + parts[below(parts.size())];
    std::string line;
    for (const char c : typed)
      line += c == '@'   ? oneOf({"1", "2"})
              : c == '#' ? oneOf({"1", "2", "5E-1", "2E-3", "0", "-5E-1", "3E-2"})
              : c == '$' ? oneOf({"1", "2", "5E-1", "2E-3", "3E-2"})
              : c == '%' ? oneOf({"0", "1"})
                         : std::string(1, c);
    return line;
  }

  void moveCursor() {
    Cursor& cursor = main.graphDSO.cursor(oneIn(2) ? "cur1" : "cur2");
    main.graphDSO.dragCursor(cursor, below(500) - 250, below(400) - 200);
  }

  void drag(Slide& slide) {
    const auto& range = slide.range();
    const int steps = static_cast<int>((range.maximum - range.minimum) / range.step);
    for (int i = below(3); i >= 0; --i) {
      slide.drag(range.minimum + range.step * below(steps));
      run(below(500));
    }
    slide.release();
  }

  void trouble() {
    late_ = oneOf({0, 0, 5, 30});
    lost_ = oneOf({0, 0, 3, 20});
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
    const bool isRead = main.LinkOK;
    // What the panel never asks for.
    for (const char* query :
         {":CHAN1:DISP?", ":CHAN2:DISP?", ":TIM:DEL?", ":TRIG:LEV?", ":TRIG:SOUR?", ":TRIG:MOD?"})
      program.exchange.SendDSOCmd(query);
    is->isOfOwnPanel = !isRead || !main.LinkOK || truth() != is;
    if (!is->isStopped) is->sweep();
  }

  void listActs() {
    const Lines often = partsOf(
        "cmdStart cmdRS232 cmdRunStop cmdTest cmdChannel1 cmdChannel2 cmdTime cmdTrig cmdFMeasure "
        "knobChan1 knobChan2 knobTime slideCH1 slideCH2 slideTime slideTrig cbCh1 cbCh2 cbMath",
        ' ');
    const Lines seldom = partsOf(
        "cmdCh1 cmdCh2 cmdAcq cmdDisplay cmdAutoset cmdDSOcmd cmdVMeasure cmdGraph mnbFrequency "
        "mnbRS232 mnbLA1 mnbLA2 mnbLA3 opOff opTime opVoltage cbCurChan cbMath",
        ' ');
    for (Control* control : main.controls())
      for (const auto& [names, chances] : {std::pair(&often, 1), std::pair(&seldom, 3)})
        if (std::ranges::find(*names, control->name()) != names->end())
          acts_.emplace_back(chances, [this, control] { use(*control); });
    const std::pair<int, std::function<void()>> others[] = {
        {1, [this] { run(below(1500)); }},
        {1, [this] { run(below(6000)); }},
        {1, [this] { run(below(6000)); }},
        {1, [this] { run(below(6000)); }},
        {1, [this] { run(below(12000)); }},
        {1, [this] { main.tmDSO.enabled() ? void() : main.cmdStart.press(); }},
        {1, [this] { main.LinkOK ? void() : main.cmdRS232.press(); }},
        {1, [this] { main.cbMath.choose(3); }},
        {1, [this] { main.txtTest.type(typedLine()); }},
        {1, [this] { main.graphDSO.toggleEnlarged(); }},
        {1, [this] { main.graphDSO.copy(Graph::Copied::values); }},
        {1, [this] { moveCursor(); }},
        {1, [this] { trouble(); }},
        {1, [this] { busyUntil_ = late_ = lost_ = failing_ = 0; }},
        {3, [this] { replug(); }},
        {1,
         [this] {
           if (auto* is = truth()) is->isTriggered = oneIn(2);
         }},
        {1, [this] { useOwnPanel(); }}};
    acts_.insert(acts_.end(), std::begin(others), std::end(others));
  }

  TrueInstrument::History history_;
  std::map<std::int16_t, std::shared_ptr<TrueInstrument>> last_;
  std::vector<std::pair<int, std::function<void()>>> acts_;
  /// Stands at the line that the panel uses where no instrument does.
  const TrueInstrument nobody_{history_};
  const TrueInstrument* is_ = &nobody_;
  bool isThere_ = false;
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
/// cause the first look is told.
TEST(Oracle, WhatIsShownWithoutAMarkIsTrue) {
  const int total = numberFrom("TRACEWELL_ORACLE_ACTIONS", 6000);
  const int seed = numberFrom("TRACEWELL_ORACLE_SEED", 1);
  Oracle oracle(static_cast<unsigned>(seed));
  while (oracle.actions < total) oracle.act();
  std::cout << "seed " << seed << ": " << oracle.actions << " actions, " << oracle.looks
            << " looks\n";
  for (const auto& [cause, seen] : oracle.violations)
    ADD_FAILURE() << seen.count << " looks at " << cause << ", first " << seen.first;
}

}  // namespace tracewell
