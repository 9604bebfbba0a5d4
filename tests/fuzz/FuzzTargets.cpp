// SPDX-License-Identifier: GPL-3.0-or-later
/// What reads bytes from outside, under libFuzzer: the program runs the target that it is called
/// by, fuzz_setup the setup.
#include <cstdio>

#include "Bench.h"
#include "CommandFile.h"
#include "Messages.h"
#include "PacedChannel.h"
#include "WaveformRecord.h"
#include "WaveformSetReader.h"

namespace tracewell {
namespace {

struct StartedBench : Bench {
  StartedBench() { program.start(); }
};

/// Its folder goes at the end of the process.
Bench& bench() {
  static StartedBench bench;
  return bench;
}

/// A file of the program folder with these bytes.
std::filesystem::path file(const char* name, const std::string& bytes) {
  const std::filesystem::path path = bench().folder.path() / name;
  writeWholeFile(path, bytes);
  return path;
}

void captions(const std::string& bytes) {
  file("dso_la1.cap", bytes);
  bench().program.captions.LoadCaptions();
}

void messages(const std::string& bytes) {
  file("dso_la1.msg", bytes);
  LoadMessages(bench().main);
}

void setup(const std::string& bytes) {
  SetupFiles& files = bench().program.setupFiles;
  const auto path = file("fuzz.dso", bytes);
  // Else each input would leave one.
  std::filesystem::remove(pathText(path) + ".bad");
  files.ReadSetupFile(path);
  files.WriteSetupFile(path);
  const std::string written = contentOf(path);
  files.ReadSetupFile(path);
  files.WriteSetupFile(path);
  // What has been read and written once stays as it is, but for blanks that a line loses.
  if (contentOf(path).size() > written.size()) std::abort();
}

void data(const std::string& bytes) {
  readWaveforms(bytes, "0.5", "N");
  readWaveforms(bytes, "0.5", "-1");
  readFirstColumn(bytes);
}

void description(const std::string& bytes) {
  readDescription(file("fuzz.inf", bytes));
}

void commands(const std::string& bytes) {
  frmCmd& console = bench().program.console;
  file("dso.cmd", bytes);
  console.unload();
  console.tvCmd.nodes = {};
  console.load();
  for (int node = 1; node <= std::ssize(console.tvCmd.nodes()); ++node) console.tvCmd.choose(node);
}

void report(const std::string& bytes) {
  file("default.sit", bytes);
  bench().program.report.unload();
  bench().main.mnbConf.choose();
}

void record(const std::string& bytes) {
  const std::int16_t channel = bytes.size() % 2 == 0 ? 1 : 2;
  bench().program.acquisition.DataReady({.channel = channel, .bytes = bytes});
  shiftSamples(bytes, 100);
}

void reply(const std::string& bytes) {
  OnALine<PacedOpener> line;
  line.opener.farEnd.byteTime = 0.001;
  line.opener.farEnd.answer = [&](const std::string&) { return bytes; };
  line.port.prepare();
  if (line.port.query("*IDN?\r\n", 100).find('\n') == std::string::npos) std::abort();
}

const std::map<std::string, void (*)(const std::string&)> targets = {
    {"captions", captions}, {"commands", commands}, {"data", data},   {"description", description},
    {"messages", messages}, {"record", record},     {"reply", reply}, {"report", report},
    {"setup", setup}};

void (*target)(const std::string& bytes) = nullptr;

}  // namespace
}  // namespace tracewell

extern "C" int LLVMFuzzerInitialize(int*, char*** arguments) {
  const std::string name = **arguments;
  const auto found = tracewell::targets.find(name.substr(name.rfind('_') + 1));
  if (found == tracewell::targets.end()) {
    std::fputs("Call it by the name of a target, as fuzz_setup.\n", stderr);
    std::exit(EXIT_FAILURE);
  }
  tracewell::target = found->second;
  return 0;
}

/// An Error is an answer; anything else that leaves a target is a fault.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  try {
    tracewell::target(std::string(bytes, bytes + size));
  } catch (const tracewell::Error&) {
    // Refused with a reason.
  }
  // What one input has left behind in the program is gone before the next one.
  tracewell::bench().program.errLog.txtErrLog.text = "";
  tracewell::bench().dialogs.runTimeErrors.clear();
  return 0;
}
