// SPDX-License-Identifier: GPL-3.0-or-later
#include "StartOptions.h"

#include <cstdlib>
#include <iostream>
#include <span>
#include <string_view>

namespace tracewell {
namespace {

constexpr std::string_view help =
    "tracewell: the front panel of a KRM-410 oscilloscope on a serial line\n"
    "\n"
    "  --help            this text\n"
    "  --version         the program's version\n"
    "  -platform NAME    where the window is shown, and the other options of every Qt program\n"
    "\n"
    "Everything else is chosen in its window. Start with Connect; port 0 is a simulated\n"
    "instrument.\n";

/// The reason is given in the toolkit's own words.
void endWithoutAbort(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  std::cerr << text.trimmed().toStdString() << std::endl;
  if (type != QtFatalMsg) return;
  std::cerr << "tracewell: no window can be shown here" << std::endl;
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

bool isAnsweredWithoutWindow(int argumentCount, char** arguments) {
  for (const std::string_view word :
       std::span(arguments, static_cast<std::size_t>(argumentCount)).subspan(1)) {
    if (word == "--version") return std::cout << "tracewell " TRACEWELL_VERSION "\n", true;
    if (word == "--help" || word == "-h") return std::cout << help, true;
  }
  return false;
}

bool isRefused(const QStringList& arguments) {
  if (arguments.size() < 2) return false;
  std::cerr << "tracewell: \"" << arguments[1].toStdString() << "\" is no option (see --help)\n";
  return true;
}

std::unique_ptr<QApplication> makeApplication(int& argumentCount, char** arguments) {
  const QtMessageHandler usual = qInstallMessageHandler(endWithoutAbort);
  auto application = std::make_unique<QApplication>(argumentCount, arguments);
  qInstallMessageHandler(usual);
  return application;
}

}  // namespace tracewell
