// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

#include "DesktopClock.h"
#include "DesktopDialogs.h"
#include "DesktopWindows.h"
#include "LinePort.h"
#include "PortDirectory.h"
#include "ProgramFolder.h"
#include "Theme.h"
#include "Tracewell.h"

int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  QApplication::setApplicationName(QStringLiteral("tracewell"));
  // The main window itself says when the program ends.
  QApplication::setQuitOnLastWindowClosed(false);
  tracewell::applyTheme(application);

  const std::filesystem::path folder = tracewell::programFolder();
  tracewell::DesktopClock clock;
  tracewell::DesktopDialogs dialogs;
  tracewell::EventDispatcher dispatcher(dialogs);
  tracewell::PortDirectory ports(folder, clock);
  tracewell::LinePort port(ports, clock, dispatcher);
  tracewell::DesktopWindows windows;
  tracewell::Services services{clock, dialogs, dispatcher, port, ports, windows, folder};

  tracewell::Tracewell program(services);
  try {
    program.start();
    program.main.show();
  } catch (const tracewell::Error& error) {
    dialogs.showRunTimeError(error);
    return EXIT_FAILURE;
  }
  return QApplication::exec();
}
