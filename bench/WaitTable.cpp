// SPDX-License-Identifier: GPL-3.0-or-later
#include <iomanip>
#include <iostream>

#include "Bench.h"
#include "SimulatedChannel.h"

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

constexpr Button frmDSO::*tasks[] = {&frmDSO::cmdTrig, &frmDSO::cmdCh1,      &frmDSO::cmdDisplay,
                                     &frmDSO::cmdAcq,  &frmDSO::cmdVMeasure, &frmDSO::cmdAutoset};

double seconds(std::int64_t milliseconds) {
  return static_cast<double>(milliseconds) / 1000;
}

/// What a task takes until its dialog is open, and from its OK on.
void printTasks(int baudRate, const char* name, const char* fault) {
  std::cout << "| " << baudRate << " | " << name;
  for (Button frmDSO::*const button : tasks) {
    TimedBench bench(baudRate);
    bench.opener.instrument.setFault(fault);
    bench.clock.run(10000);
    const std::int64_t start = bench.clock.milliseconds();
    bench.openedAt = start;
    (bench.main.*button).press();
    std::cout << " | " << seconds(bench.openedAt - start) << " + "
              << seconds(bench.clock.milliseconds() - bench.openedAt);
  }
  std::cout << " |\n";
}

void printRecords(int baudRate, bool isSlowFrame) {
  TimedBench bench(baudRate);
  bench.port.settings.stopBits = isSlowFrame ? 2 : 0;
  bench.port.settings.parity = isSlowFrame ? 1 : 0;
  bench.main.cbCh2.toggle();
  bench.clock.run(20000);
  const int before = bench.program.acquisition.WaveCount;
  bench.clock.run(600000);
  std::cout << "| " << baudRate << (isSlowFrame ? " 8E2" : " 8N1") << " | "
            << (bench.program.acquisition.WaveCount - before) / 10.0 << " |\n";
}

}  // namespace
}  // namespace tracewell

/// The tables of what waiting costs, on the virtual clock: seconds of each task, records per minute
/// with both channels shown.
int main() {
  std::cout << std::fixed << std::setprecision(1);
  for (const int baudRate : {1200, 19200}) {
    tracewell::printTasks(baudRate, "healthy", "OFF 0");
    tracewell::printTasks(baudRate, "slow", "SLOW 1000");
    tracewell::printTasks(baudRate, "silent", "SILENT 1");
  }
  for (const int baudRate : {1200, 2400, 4800, 9600, 14400, 19200})
    tracewell::printRecords(baudRate, false);
  tracewell::printRecords(9600, true);
}
