// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>
#include <iostream>

#ifdef TRACEWELL_RECORDER
#include "RecorderHeld.h"
#else
#include "DialogsHeld.h"
#endif

namespace tracewell {
namespace {

#ifdef TRACEWELL_RECORDER
using Held = RecorderHeld;
#else
struct Held : DialogsHeld {
  void lookAtRecorder() {}
  void lookBack() {}
};
#endif

/// The whole program in the hands of somebody who knows the truth.
class Oracle : public Held {
 public:
  explicit Oracle(unsigned seed) {
    history_.random.seed(seed);
    start();
    for (int row = 2; row <= 5; ++row) setRow(row, {"1", "0", "1", "0", "0", "1", "0", "0"});
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
    lookAtRecorder();
  }

  long looks = 0;

 private:
  template <class Item>
  Item oneOf(std::initializer_list<Item> items) {
    return items.begin()[below(items.size())];
  }
  void run(int milliseconds) { clock.run(milliseconds); }

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
    lookAtReadout();
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

  void lookAtResults() {
    static const std::map<std::string, std::string> names = {
        {"VPP", "Vpp"},     {"VAMP", "Vamp"},   {"VAV", "Vavg"},     {"VRMS", "Vrms"},
        {"VHI", "Vhi"},     {"VLO", "Vlo"},     {"VMAX", "Vmax"},    {"VMIN", "Vmin"},
        {"FREQ", "Freq"},   {"PER", "Period"},  {"RIS", "Risetime"}, {"FALL", "Falltime"},
        {"PWID", "+Width"}, {"NWID", "-Width"}, {"PDUT", "Duty"}};
    for (const ValueLabel& label : main.lblMeasure) {
      const std::string& text = label.caption();
      const std::size_t end = text.rfind(' ');
      if (!holds(label) || end == std::string::npos || !std::isdigit(text[end - 1])) continue;
      const std::size_t start = text.find_last_not_of("0123456789", end - 1) + 1;
      const auto& [instrument, channel, item, signal] =
          history_.measured.at(static_cast<std::size_t>(std::atoi(text.c_str() + start)));
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
    for (Control* control : window.controls()) {
      control->changed = [control] {
        control->painted = control->trust ? control->trust() : Trust::holds;
      };
      control->changed();
    }
    lookAtDialog(window);
    if (oneIn(3)) {
      if (oneIn(4)) trouble();
      if (oneIn(5)) replugWithin();
      run(2500 + below(3000));
      lookAtDialog(window);
    }
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
        ":TIM:DEL #|:TRIG:LEV #|:TRIG:SOUR %|:TRIG:MOD %|:TRIG:MOD 2|:trig:mod "
        "2|:RUN|:Stop|:SYST:UNL|*RST|:AUT|:SELF:TEST|"
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
    slow_ = oneOf({0.0, 0.0, 0.0, 2500.0, 3300.0, 5000.0});
    if (oneIn(2)) busyUntil_ = clock.milliseconds() + 1000 + below(9000);
    if (oneIn(6)) failing_ = 1 + below(5);
  }

  void calmDown() {
    busyUntil_ = late_ = lost_ = failing_ = 0;
    slow_ = 0;
  }

  void replugWithin() {
    const std::int16_t number = oneIn(4) ? 4 : 3;
    opener.unplug(number);
    if (oneIn(2)) run(below(4000));
    plugIn(number, oneIn(2) ? last_[number] : nullptr);
  }

  void replug() {
    replugWithin();
    if (oneIn(2)) main.cmdRS232.press();
  }

  /// Somebody turns the instrument's own knobs, which only answers to all questions can tell.
  void useOwnPanel() {
    TrueInstrument* is = truth();
    if (is == nullptr || is->isLocked) return;
    is->isOfOwnPanel = true;
    is->shuffle();
    run(below(5000));
    calmDown();
    main.cmdRS232.press();
    const bool isRead = main.LinkOK;
    // What the panel never asks for.
    for (const char* query :
         {":CHAN1:DISP?", ":CHAN2:DISP?", ":TIM:DEL?", ":TRIG:LEV?", ":TRIG:SOUR?", ":TRIG:MOD?"})
      program.exchange.SendDSOCmd(query);
    is->isOfOwnPanel = !isRead || !main.LinkOK || truth() != is;
    if (!is->isStopped) is->sweep();
  }

  /// Scales under which the signals can be measured, and time for some records; perhaps of one
  /// stop.
  void recordForAWhile() {
    calmDown();
    if (!main.LinkOK) main.cmdRS232.press();
    main.cbMath.choose(3);
    for (Channel& channel : main.channels) {
      channel.knob.turn(5 + below(5));
      if (!channel.display.isChecked()) channel.display.toggle();
    }
    main.knobTime.turn(14 + below(6));
    if (!main.tmDSO.enabled()) main.cmdStart.press();
    run(below(12000));
    if (oneIn(2)) main.cmdRunStop.press();
    run(6000);
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
        {1, [this] { calmDown(); }},
        {2, [this] { recordForAWhile(); }},
        {3, [this] { replug(); }},
        {1,
         [this] {
           if (auto* is = truth()) is->isTriggered = oneIn(2);
         }},
        {1, [this] { useOwnPanel(); }}};
    acts_.insert(acts_.end(), std::begin(others), std::end(others));
  }

  std::vector<std::pair<int, std::function<void()>>> acts_;
  int depth_ = 0;
  bool isModal_ = false;
};

int numberFrom(const char* variable, int otherwise) {
  const char* const given = std::getenv(variable);
  return given ? std::atoi(given) : otherwise;
}

}  // namespace

/// TRACEWELL_ORACLE_ACTIONS makes the trial longer, TRACEWELL_ORACLE_SEED repeats one. Of each
/// cause the first look is told.
TEST(Oracle, WhatIsShownWithoutAMarkIsTrue) {
  const int total = numberFrom("TRACEWELL_ORACLE_ACTIONS", 6000 / stepsShare);
  const int seed = numberFrom("TRACEWELL_ORACLE_SEED", 1);
  Oracle oracle(static_cast<unsigned>(seed));
  while (oracle.actions < total) oracle.act();
  oracle.lookBack();
  std::cout << "seed " << seed << ": " << oracle.actions << " actions, " << oracle.looks
            << " looks\n";
  for (const auto& [cause, seen] : oracle.violations)
    ADD_FAILURE() << seen.count << " looks at " << cause << ", first " << seen.first;
}

}  // namespace tracewell
