// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "Bench.h"
#include "PacedChannel.h"

namespace tracewell {
namespace {

/// The whole program on a line of its own time, at whose far end an instrument can go wrong.
struct FaultyBench : BenchOf<OnALine<PacedOpener>> {
  FaultyBench() {
    farEnd.answer = healthy;
    program.start();
  }

  static std::string healthy(const std::string& line) {
    if (line.ends_with("SCAL?")) return line.starts_with(":T") ? "500.0 us\n" : "1.000 V\n";
    if (line.ends_with("OFFS?")) return "1.000 V\n";
    if (line == "*IDN?") return "KRM-410\n";
    return line == ":ACQ1:POIN" ? makeRecord([](int i) { return i; }) : "";
  }

  void mend() {
    farEnd.isAway = false;
    farEnd.hangUpAfter = std::string::npos;
    farEnd.thought = 5;
    farEnd.byteTime = 0.5;
    farEnd.answer = healthy;
    // What is still on its way comes.
    clock.run(20000);
  }
  std::string ask(const std::string& query) {
    main.txtTest.type(query);
    main.txtTest.pressKey(TextBox::enterKey);
    return main.txtMsg.text();
  }
  /// Connected or started again as a user does it, with a right reply and a right trace.
  void expectWell(const std::string& what) {
    EXPECT_EQ(ask("*IDN?"), "KRM-410") << what;
    for (int press = 0; press < 2 && !main.tmDSO.enabled(); ++press) main.cmdStart.press();
    const auto before = program.acquisition.WaveCount;
    clock.run(4000);
    ASSERT_GE(program.acquisition.WaveCount, before + 2) << what;
    EXPECT_EQ(main.graphDSO.plot(1).y()[10], 60) << what;
    EXPECT_EQ(main.graphDSO.plot(1).y()[499], 549) << what;
  }

  FarEnd& farEnd = opener.farEnd;
};

/// An instrument that gives the same answer to everything.
std::function<void(FarEnd&)> alwaysAnswering(const std::string& bytes) {
  return [bytes](FarEnd& end) {
    end.byteTime = std::min(0.5, 500.0 / static_cast<double>(bytes.size() + 1));
    end.answer = [bytes](const std::string&) { return bytes; };
  };
}

/// One whose answers arrive changed.
std::function<void(FarEnd&)> changing(const std::function<void(std::string&)>& change) {
  return [change](FarEnd& end) {
    end.answer = [change](const std::string& line) {
      std::string bytes = FaultyBench::healthy(line);
      change(bytes);
      return bytes;
    };
  };
}

const struct {
  const char* what;
  std::function<void(FarEnd&)> harm;
  /// What a connect that meets it says in the log; without a line the window says message 9.
  const char* loggedAtConnect;
} faults[] = {
    {"silence", alwaysAnswering(""), ""},
    {"replies later than their time-out", [](FarEnd& end) { end.thought = 2500; }, ""},
    {"half of everything", changing([](std::string& bytes) { bytes.resize(bytes.size() / 2); }),
     ""},
    {"garbage, as at a wrong baud rate", changing([](std::string& bytes) {
       for (char& byte : bytes) byte = static_cast<char>(byte * 73 + 0x81);
     }),
     ""},
    {"empty lines", alwaysAnswering("\n"), "InitDSO : Overflow"},
    {"lines of text", alwaysAnswering("what do you want?\n"), "InitDSO : Overflow"},
    {"a megabyte without an end", alwaysAnswering(std::string(1 << 20, 'x')), ""},
    {"no such port, a port in use, no permission", [](FarEnd& end) { end.isAway = true; },
     "SendDSOCmd : no such port"},
};

TEST(Faults, NeitherConnectNorAcquisitionHangsAndBothLaterSucceed) {
  for (const auto& fault : faults) {
    FaultyBench bench;
    fault.harm(bench.farEnd);
    const std::int64_t start = bench.clock.milliseconds();
    bench.main.cmdStart.press();
    EXPECT_LT(bench.clock.milliseconds() - start, 60000) << fault.what;
    const std::string& log = bench.program.errLog.txtErrLog.text();
    EXPECT_NE(log.find(fault.loggedAtConnect), std::string::npos) << fault.what << ": " << log;
    EXPECT_EQ(log.empty(), *fault.loggedAtConnect == 0) << fault.what << ": " << log;
    EXPECT_TRUE(bench.main.LinkOK || bench.main.lblConnect.caption() == bench.main.state.Msg[9]);
    bench.mend();
    bench.main.cmdRS232.press();
    bench.expectWell(fault.what);

    // And now while the acquisition runs.
    bench.program.errLog.txtErrLog.text = "";
    fault.harm(bench.farEnd);
    bench.clock.run(700);
    bench.ask(":CHAN1:COUP?");
    bench.main.knobTime.turn(20);
    bench.clock.run(6000);
    EXPECT_LE(std::ranges::count(log, '\n'), 4) << fault.what << ": one for each, not at each tick";
    bench.mend();
    bench.expectWell(fault.what);
    EXPECT_TRUE(bench.dialogs.runTimeErrors.empty()) << fault.what;
  }
}

}  // namespace
}  // namespace tracewell
