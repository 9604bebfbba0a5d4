// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "DesktopProgram.h"
#include "GraphView.h"
#include "ProgramFolder.h"
#include "Theme.h"

/// start_benchmark NANOSECONDS: the time of day when it was started, as of "date +%s%N". Prints the
/// milliseconds until the main window has been painted, and the memory that the program then has.
namespace {

double millisecondsSince(long long nanoseconds) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return static_cast<double>(std::chrono::nanoseconds(now).count() - nanoseconds) / 1e6;
}

std::string residentMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmRSS")) return line.substr(line.find_first_of("0123456789"));
  return "?";
}

/// Ends the program when the frame that holds the graph's first painting is done.
class FirstFrame : public QObject {
 public:
  explicit FirstFrame(long long startedAt) : startedAt_(startedAt) {}
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint || qobject_cast<tracewell::GraphView*>(watched) == nullptr)
      return false;
    QTimer::singleShot(0, this, [this] {
      std::printf("first frame %.0f ms, resident %s\n", millisecondsSince(startedAt_),
                  residentMemory().c_str());
      std::exit(EXIT_SUCCESS);
    });
    return false;
  }

 private:
  long long startedAt_;
};

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) return EXIT_FAILURE;
  FirstFrame firstFrame(std::atoll(arguments[1]));
  QApplication application(argumentCount, arguments);
  QApplication::setApplicationName(QStringLiteral("tracewell"));
  tracewell::applyTheme(application);
  application.installEventFilter(&firstFrame);
  tracewell::DesktopProgram program(tracewell::programFolder().path);
  return program.start() ? QApplication::exec() : EXIT_FAILURE;
}
