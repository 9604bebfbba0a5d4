// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

#include "DesktopDisk.h"
#include "DesktopProgram.h"
#include "ProgramFolder.h"
#include "ShownText.h"
#include "Termination.h"
#include "Theme.h"

int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  QApplication::setApplicationName(QStringLiteral("tracewell"));
  // The main window itself says when the program ends.
  QApplication::setQuitOnLastWindowClosed(false);
  tracewell::applyTheme(application);
  tracewell::keepLabelsPlain(application);
  tracewell::DesktopDisk disk;
  tracewell::useDisk(&disk);

  tracewell::DesktopProgram program(tracewell::programFolder());
  const tracewell::Termination termination([&] {
    program.dialogs.goOnAlone();
    program.program.main.closeForGood();
  });
  return program.start() ? QApplication::exec() : EXIT_FAILURE;
}
