// SPDX-License-Identifier: GPL-3.0-or-later
#include "Waiting.h"

#include <limits>
#include <stdexcept>

#include "Bench.h"
#include "PacedChannel.h"

namespace tracewell {

TEST(Waiting, DelayLetsEventsRunAndLastsAtLeastOneMillisecondLonger) {
  Bench bench;
  bench.program.lifecycle.TestChar = 65;
  bench.main.tmTest.enabled = true;
  Delay(bench.main, 3000);
  EXPECT_EQ(bench.clock.milliseconds(), 3001);
  EXPECT_EQ(bench.main.lblTest.caption(), "66:B");
  // The tick count wraps during the next.
  bench.clock.jumpTo(std::numeric_limits<std::int32_t>::max() - 100);
  EXPECT_THROW(Delay(bench.main, 1000), Error);
}

namespace {

/// The program on a slow instrument that writes down what it hears, in a folder where nothing may
/// be left behind.
struct EndingBench : BenchOf<OnALine<PacedOpener>> {
  EndingBench() {
    opener.farEnd.thought = 60;
    opener.farEnd.answer = [this](const std::string& line) {
      heard.push_back(line);
      if (line.ends_with("POIN")) return makeRecord([](int i) { return i; });
      return std::string(line.ends_with('?') ? "1\n" : "");
    };
    std::filesystem::current_path(folder.path());
    program.start();
    main.txtTest.type("*IDN?");
    setRow(2, {"1", "1"});
    windows.opened = [](Window& window) {
      for (Control* control : window.controls())
        if (control->name() == "cmdOK") dynamic_cast<Button&>(*control).press();
    };
  }

  ~EndingBench() { std::filesystem::current_path(before); }

  void end() {
    if (std::exchange(hasEnded, true)) return;
    heardBefore = heard.size();
    endedAt = clock.milliseconds();
    main.closeForGood();
  }

  /// Nothing but the release of the panel after the end, however long one waits.
  void expectTheEnd(const std::string& what) {
    EXPECT_LE(clock.milliseconds() - endedAt, 50) << what;
    clock.run(5000);
    const Lines after(heard.begin() + static_cast<std::ptrdiff_t>(heardBefore), heard.end());
    EXPECT_TRUE(after.empty() || after == Lines{":SYST:UNL"}) << what << ": " << after.size();
    EXPECT_FALSE(main.isLoaded()) << what;
    EXPECT_TRUE(dialogs.runTimeErrors.empty()) << what;
  }

  std::filesystem::path before = std::filesystem::current_path();
  Lines heard;
  std::size_t heardBefore = 0;
  std::int64_t endedAt = 0;
  bool hasEnded = false;
};

/// Begins one task after the other, on a program of its own each: whatever has a button.
void forEachTask(
    const std::function<void(const std::function<void(EndingBench&)>&, const std::string&)>& act) {
  const Bench named;
  for (std::size_t i = 0; i < named.main.controls().size(); ++i)
    if (dynamic_cast<Button*>(named.main.controls()[i]) != nullptr)
      act([i](EndingBench& bench) { dynamic_cast<Button&>(*bench.main.controls()[i]).press(); },
          named.main.controls()[i]->name());
}

}  // namespace

/// Whatever the program waits for, and at whichever moment of it.
TEST(Waiting, EndInTheMiddleOfAnythingIsTheEnd) {
  forEachTask([](const auto& begin, const std::string& what) {
    bool hasEnded = true;
    for (int chance = 0; hasEnded; chance += 1 + chance / 2) {
      EndingBench bench;
      int chances = 0;
      bench.clock.meanwhile = [&] {
        if (chances++ >= chance) bench.end();
      };
      begin(bench);
      hasEnded = bench.hasEnded;
      if (hasEnded) bench.expectTheEnd(what + " " + std::to_string(chance));
    }
  });
}

/// A session ends while a window, a box or a file dialog is open.
TEST(Waiting, EndBehindAnOpenWindowIsTheEnd) {
  forEachTask([](const auto& begin, const std::string& what) {
    for (const bool isDialog : {false, true}) {
      EndingBench bench;
      bench.main.Ch1Raw = makeRecord([](int i) { return i; });
      bench.program.exchange.SendDSOCmd(":Run");
      (isDialog ? bench.dialogs.meanwhile : bench.windows.meanwhile) = [&] { bench.end(); };
      const auto files = [] { return std::distance(std::filesystem::directory_iterator("."), {}); };
      const auto before = files();
      begin(bench);
      if (!bench.hasEnded) continue;
      bench.expectTheEnd(what);
      EXPECT_EQ(files(), before) << what;
    }
  });
}

TEST(Waiting, BeginsWithABlueLampAndAForeignExceptionIsABox) {
  Bench bench;
  bench.program.start();
  EXPECT_EQ(bench.main.spConnect.fillColour(), (Colour{0, 0, 255}));
  bench.dispatcher.dispatch([] { throw std::length_error("too long"); });
  EXPECT_EQ(bench.dialogs.runTimeErrors, Lines{"5 too long"});
}

/// A screen reader acts on any widget, also below a dialog and in one that is closed.
TEST(Waiting, NobodyReachesAWindowThatIsClosedOrBelowAnother) {
  Bench bench;
  bench.program.start();
  frmAcq& acquire = bench.program.acquire;
  Lines sent;
  bench.windows.user["frmAcq"] = [&] {
    bench.takeWire();
    bench.main.cmdRunStop.press();
    acquire.cmdCancel.press();
    acquire.cmdOK.press();
    sent = bench.takeWire();
  };
  bench.main.cmdAcq.press();
  EXPECT_EQ(sent, Lines());
  EXPECT_EQ(acquire.outcome, Outcome::cancelled);
  bench.main.cmdRunStop.press();
  EXPECT_NE(bench.takeWire(), Lines());
}

}  // namespace tracewell
