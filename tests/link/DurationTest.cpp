// SPDX-License-Identifier: GPL-3.0-or-later
#include <iomanip>
#include <iostream>

#include "Doubles.h"
#include "SimulatedChannel.h"
#include "Waiting.h"

namespace tracewell {
namespace {

/// The built-in instrument.
class BuiltInOpener : public ChannelOpener {
 public:
  explicit BuiltInOpener(Clock& clock) : clock_(clock) {}
  std::unique_ptr<ByteChannel> open(const LineSettings& settings) override {
    return std::make_unique<SimulatedChannel>(instrument, clock_, settings);
  }
  Instrument instrument;

 private:
  Clock& clock_;
};

struct TimedBench : BenchOf<OnALine<BuiltInOpener>> {
  explicit TimedBench(int baudRate) {
    program.start();
    setRow(0, {std::to_string(baudRate), "8", "1", "None", "0"});
    main.cmdStart.press();
    for (int row = 2; row <= 5; ++row) setRow(row, Lines(row < 4 ? 8 : 7, "1"));
    windows.user["frmTrig"] = [&] { opened(program.trigger.cmdOK); };
    windows.user["frmChannel"] = [&] { opened(program.channelDialog.cmdOK); };
    windows.user["frmDisplay"] = [&] { opened(program.display.cmdOK); };
    windows.user["frmAcq"] = [&] { opened(program.acquire.cmdOK); };
    windows.user["frmVMeasure"] = [&] { opened(program.measurementChoice.cmdOK); };
    clock.run(20000);
  }

  void opened(Button& button) {
    openedAt = clock.milliseconds();
    button.press();
  }

  std::int64_t openedAt = 0;
};

struct Task {
  const char* what;
  Button frmDSO::*button;
  /// Questions before the dialog, and afterwards, in the worst case; seconds of settling.
  int before;
  int after;
  int settling;
};

constexpr Task tasks[] = {{"trigger", &frmDSO::cmdTrig, 6, 18, 18},
                          {"channel", &frmDSO::cmdCh1, 5, 13, 12},
                          {"display", &frmDSO::cmdDisplay, 2, 2, 2},
                          {"acquisition", &frmDSO::cmdAcq, 0, 0, 0},
                          {"measurement, all 30", &frmDSO::cmdVMeasure, 0, 120, 0},
                          {"autoset", &frmDSO::cmdAutoset, 0, 1, 10}};

}  // namespace

/// What a dialog may take: the time-outs of its questions, one drain, and the rest of the record
/// that it has interrupted. Prints the table of docs/performance.md.
TEST(Faults, TasksTakeNoLongerThanTheirQuestions) {
  for (const int baudRate : {1200, 19200}) {
    for (const auto& [name, fault] :
         {std::pair{"healthy", "OFF 0"}, {"slow", "SLOW 1000"}, {"silent", "SILENT 1"}}) {
      std::cout << "| " << baudRate << " | " << name;
      for (const Task& task : tasks) {
        TimedBench bench(baudRate);
        bench.opener.instrument.setFault(fault);
        bench.clock.run(10000);
        const int timeOut = bench.port.readTimeOut;
        const int shortTimeOut = 2 * ShortReplyTimeout(bench.main);
        const auto start = bench.clock.milliseconds();
        bench.openedAt = start;
        (bench.main.*task.button).press();
        const auto total = bench.clock.milliseconds() - start;
        const auto reading = bench.openedAt - start;
        std::cout << std::fixed << std::setprecision(1) << " | "
                  << static_cast<double>(reading) / 1000 << " + "
                  << static_cast<double>(total - reading) / 1000;
        const auto record = 2 * 1014 * 10 * 1000 / baudRate + Conversation::restMargin;
        const auto drain = std::max(timeOut + 1000, 3000);
        if (std::string_view(name) != "silent") continue;
        EXPECT_LE(reading, task.before * timeOut + drain + record) << task.what;
        EXPECT_LE(total - reading,
                  task.after * shortTimeOut + 1000 * task.settling + drain + record)
            << task.what;
      }
      std::cout << " |\n";
    }
  }
}

}  // namespace tracewell
