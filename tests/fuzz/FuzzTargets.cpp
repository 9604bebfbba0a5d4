// SPDX-License-Identifier: GPL-3.0-or-later
/// One fuzz target per kind of bytes that come from outside; FUZZ_TARGET names the one to build.
/// An Error is an answer; anything else that leaves a reader is a fault.

#include "CommandFile.h"
#include "Doubles.h"
#include "LinePort.h"
#include "Messages.h"
#include "PacedChannel.h"
#include "WaveformRecord.h"
#include "WaveformSetReader.h"

namespace tracewell {
namespace {

Bench& bench() {
  static Bench* const bench = [] {
    auto* made = new Bench;
    made->program.start();
    return made;
  }();
  return *bench;
}

/// A file of the program folder with these bytes.
std::filesystem::path file(const char* name, const std::string& bytes) {
  const std::filesystem::path path = bench().folder.path() / name;
  writeWholeFile(path, bytes);
  return path;
}

[[maybe_unused]] void captions(const std::string& bytes) {
  file("dso_la1.cap", bytes);
  bench().program.captions.LoadCaptions();
}

[[maybe_unused]] void messages(const std::string& bytes) {
  file("dso_la1.msg", bytes);
  LoadMessages(bench().main);
}

[[maybe_unused]] void setup(const std::string& bytes) {
  SetupFiles& files = bench().program.setupFiles;
  const auto path = file("fuzz.dso", bytes);
  files.ReadSetupFile(path);
  files.WriteSetupFile(path);
  const std::string written = readWholeFile(path);
  files.ReadSetupFile(path);
  files.WriteSetupFile(path);
  // What has been read and written once stays as it is, but for blanks that a line loses.
  if (readWholeFile(path).size() > written.size()) std::abort();
}

[[maybe_unused]] void data(const std::string& bytes) {
  readWaveforms(bytes, "0.5", "N");
  readWaveforms(bytes, "0.5", "-1");
  readFirstColumn(bytes);
}

[[maybe_unused]] void description(const std::string& bytes) {
  readDescription(file("fuzz.inf", bytes));
}

[[maybe_unused]] void commands(const std::string& bytes) {
  frmCmd& console = bench().program.console;
  file("dso.cmd", bytes);
  console.unload();
  console.tvCmd.nodes = {};
  console.load();
  for (int node = 1; node <= std::ssize(console.tvCmd.nodes()); ++node) console.tvCmd.choose(node);
}

[[maybe_unused]] void report(const std::string& bytes) {
  file("default.sit", bytes);
  bench().program.report.unload();
  bench().main.mnbConf.choose();
}

[[maybe_unused]] void record(const std::string& bytes) {
  bench().port.tag = bytes.size() % 2 == 0 ? "1" : "2";
  bench().program.acquisition.DataReady(bytes);
  shiftSamples(bytes, 100);
}

[[maybe_unused]] void reply(const std::string& bytes) {
  static VirtualClock clock;
  static RecordingDialogs dialogs;
  static EventDispatcher dispatcher(dialogs);
  FarEnd farEnd;
  farEnd.byteTime = 0.001;
  farEnd.answer = [&](const std::string&) { return bytes; };
  PacedOpener opener(farEnd, clock);
  LinePort port(opener, clock, dispatcher);
  port.readTimeOut = 100;
  port.prepare();
  port.write("*IDN?\r\n");
  if (port.read().find('\n') == std::string::npos) std::abort();
}

}  // namespace
}  // namespace tracewell

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  try {
    tracewell::FUZZ_TARGET(std::string(bytes, bytes + size));
  } catch (const tracewell::Error&) {
    // Refused with a reason.
  }
  tracewell::bench().program.errLog.txtErrLog.text = "";
  tracewell::bench().dialogs.runTimeErrors.clear();
  return 0;
}
