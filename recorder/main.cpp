// SPDX-License-Identifier: GPL-3.0-or-later
/// tracewell-record: records without a window.
#include <QCoreApplication>
#include <iostream>

#include "DesktopClock.h"
#include "DesktopDisk.h"
#include "EndingSignals.h"
#include "LinePort.h"
#include "PortDirectory.h"
#include "ProgramFolder.h"
#include "RecordingRun.h"
#include "SystemConsole.h"
#include "WallTime.h"

namespace {

using namespace tracewell;

/// What is said on the standard error: messages, and on a terminal how it goes.
class Console {
 public:
  explicit Console(bool showsProgress) : showsProgress_(showsProgress) {}
  ~Console() { clear(); }
  Console(const Console&) = delete;

  void say(const std::string& text) {
    clear();
    std::cerr << "tracewell-record: " << text << std::endl;
  }
  void progress(const std::string& text) {
    if (!showsProgress_) return;
    clear();
    std::cerr << text << std::flush;
    isProgressShown_ = true;
  }

 private:
  void clear() {
    if (std::exchange(isProgressShown_, false)) std::cerr << "\r\x1b[K" << std::flush;
  }

  bool showsProgress_;
  bool isProgressShown_ = false;
};

/// Nobody is there to be asked.
class ConsoleDialogs : public Dialogs {
 public:
  ConsoleDialogs(const Gate& gate, Console& console) : Dialogs(gate), console_(console) {}
  void showMessage(const std::string& text) override { console_.say(text); }
  void showRunTimeError(const Error& error) override { console_.say(error.description()); }

 private:
  Answer answerYesNo(const std::string&, const std::string&, Answer usual) override {
    return usual;
  }
  std::filesystem::path fileToOpen(const FileDialog&) override { return {}; }
  std::filesystem::path fileToSave(const FileDialog&) override { return {}; }
  Colour pickedColour(Colour initial) override { return initial; }

  Console& console_;
};

int exitStatus(RecorderEnd end) {
  return static_cast<int>(end);
}

int record(const RecorderOptions& options) {
  DesktopDisk disk;
  useDisk(&disk);
  Console console(!options.isQuiet && isTerminal(stderr));
  Gate gate;
  DesktopClock clock;
  StandBy standBy(clock, gate);
  ConsoleDialogs dialogs(gate, console);
  EventDispatcher dispatcher(gate, dialogs);
  PortDirectory ports(folderOfPorts(), clock, standBy);
  LinePort port(ports, clock, gate, dispatcher, standBy);
  RecorderOutput output(options);
  int status = exitStatus(RecorderEnd::done);
  RecordingRun recorder(options, output, port, clock, dispatcher,
                        {[&](const std::string& text) { console.say(text); },
                         [&](const std::string& text) { console.progress(text); },
                         [&](RecorderEnd end) {
                           status = exitStatus(end);
                           gate.close();
                           QCoreApplication::quit();
                         }});
  const EndingSignals endingSignals(
      [&] { dispatcher.dispatchEnd([&] { recorder.endBySignal(); }); });
  clock.callAfter(0, [&] { dispatcher.dispatch([&] { recorder.begin(); }); });
  QCoreApplication::exec();
  return status;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  prepareConsole();
  QCoreApplication application(argumentCount, arguments);
  QCoreApplication::setApplicationName(QStringLiteral("tracewell"));
  try {
    const RecorderOptions options =
        recorderOptions(wordsOf(argumentCount, arguments), wallTimeNow());
    if (options.wantsHelp) std::cout << recorderHelp();
    if (options.wantsVersion) std::cout << "tracewell-record " << TRACEWELL_VERSION << "\n";
    return options.wantsHelp || options.wantsVersion ? EXIT_SUCCESS : record(options);
  } catch (const RecorderUsageError& error) {
    std::cerr << "tracewell-record: " << error.what() << " (see --help)\n";
    return exitStatus(RecorderEnd::wrongOptions);
  }
}
