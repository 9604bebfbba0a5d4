// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"

#include <atomic>
#include <ctime>
#include <fstream>
#include <random>

#include "Places.h"

namespace tracewell {

namespace fs = std::filesystem;

Answer RecordingDialogs::answerYesNo(const std::string& prompt, const std::string& title, Answer) {
  told.raise("? " + title + ": " + prompt);
  if (meanwhile) meanwhile();
  return answer;
}

void RecordingDialogs::showRunTimeError(const Error& error) {
  runTimeErrors.push_back(std::to_string(error.number()) + " " + error.description());
  told.raise("error " + runTimeErrors.back());
}

fs::path RecordingDialogs::fileToOpen(const FileDialog& dialog) {
  fileDialogs.push_back(dialog);
  told.raise("pick " + dialog.title + "|" + dialog.fileName + "|" + dialog.filter);
  if (meanwhile) meanwhile();
  return pickedFile.empty() ? fs::path(dialog.fileName) : pickedFile;
}

Image RecordingPictures::withText(const Image& image, const std::string& text, int x, int y) {
  return {image.width, image.height,
          image.pixels + "|" + text + "@" + std::to_string(x) + "," + std::to_string(y)};
}

bool RecordingPrinter::printPage(const GraphPage& page) {
  std::string text = "page " + page.title;
  for (const std::string& caption : page.captions) text += "|" + caption;
  for (const GraphPage::Trace& trace : page.traces)
    text += "|" + std::to_string(trace.number) + " " + trace.name;
  told.raise(text);
  if (isOutOfPaper) throw Error(deviceError, "Printer", "Out of paper");
  return !isDeclined;
}

void ScriptedWindows::showModal(Window& window) {
  shown.push_back(window.name());
  if (meanwhile) meanwhile();
  opened.raise(window);
  if (user.contains(window.name())) user[window.name()]();
}

void ScriptedPort::answerLikeAnInstrument() {
  answer(":CHAN1:SCAL?", {"500.0 mV\n"});
  answer(":CHAN2:SCAL?", {"1.000 V\n"});
  answer(":TIM:SCAL?", {"500.0 us\n"});
  answer("CHAN1:OFFS?", {"750.0 mV\n"});
  answer("CHAN2:OFFS?", {"-2.00 V\n"});
}

/// A record that nobody has requested counts as requested last.
void ScriptedPort::deliver(std::int16_t channel, const std::string& record) {
  LineRecord delivered = {.channel = channel, .stamp = requested.stamp, .bytes = record};
  if (const auto request = stamps.extract(channel)) delivered.stamp = request.mapped();
  dataReady.raise(delivered);
}

void ScriptedPort::prepareLine() {
  prepared.push_back(settings);
  if (faults > 0) {
    --faults;
    told.raise("fails");
    throw Error(deviceError, "RS232", "no such device");
  }
}

std::string ScriptedPort::write(std::string_view line, const std::string& toldToo) {
  EXPECT_TRUE(line.ends_with("\r\n"));
  wire.emplace_back(line.substr(0, line.size() - 2));
  told.raise(wire.back() + toldToo);
  if (std::exchange(isBreaking, false)) {
    ++timesOpened;
    throw Error(deviceError, "RS232", "gone");
  }
  return wire.back();
}

std::string ScriptedPort::query(std::string_view line, int timeOut) {
  const std::string asked = write(line, timeOut == 600 ? "" : " @" + std::to_string(timeOut));
  std::deque<std::string>& lines = replies[asked];
  if (lines.empty()) throw Error(portReadTimeOut, "RS232", "silence");
  ++returned;
  std::string reply = lines.front();
  if (lines.size() > 1) lines.pop_front();
  return reply;
}

void ScriptedPort::request(LineRecord record) {
  requested = record;
  stamps[record.channel] = record.stamp;
  write(record.request, "");
}

void ScriptedPort::abandon() {
  ++abandoned;
  if (isStuck) throw Error(deviceError, "RS232", "stuck");
}

ProgramFolderCopy::ProgramFolderCopy() {
  static std::atomic<int> count = 0;
  path_ = fs::temp_directory_path() / ("tracewell-test-" + std::to_string(std::random_device()()) +
                                       "-" + std::to_string(count++));
  fs::copy(dataFolder, path_, fs::copy_options::recursive);
}

ProgramFolderCopy::~ProgramFolderCopy() {
  std::error_code ignored;
  fs::permissions(path_, fs::perms::owner_all, ignored);
  fs::remove_all(path_, ignored);
}

std::string errorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& error) {
    return std::to_string(error.number()) + " " + error.description();
  }
  return "";
}

namespace {

/// Of this process: now ("VmRSS:"), or the most since the last call of forgetPeak ("VmHWM:").
long residentMegabytes(const std::string& which) {
  std::ifstream status("/proc/self/status");
  std::string word;
  long kilobytes = 0;
  while (status >> word)
    if (word == which) status >> kilobytes;
  return kilobytes / 1024;
}

void forgetPeak() {
  std::ofstream("/proc/self/clear_refs") << 5;
}

}  // namespace

void expectCheap(const std::function<void()>& action, double seconds, long megabytes) {
#ifdef TRACEWELL_SANITIZED
  seconds *= 10;
  megabytes *= 10;
#endif
  forgetPeak();
  const long before = residentMegabytes("VmRSS:");
  const std::clock_t start = std::clock();
  action();
  EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, seconds);
  EXPECT_LT(residentMegabytes("VmHWM:") - before, megabytes);
}

std::string makeRecord(const std::function<int(int)>& sample) {
  std::string record(14, '\x7F');
  for (int i = 0; i < WaveformRecord::sampleCount; ++i) {
    record += static_cast<char>((sample(i) >> 8) & 0xFF);
    record += static_cast<char>(sample(i) & 0xFF);
  }
  return record;
}

}  // namespace tracewell
