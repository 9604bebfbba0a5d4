// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopDisk.h"
#include "DesktopProgram.h"
#include "KeptFiles.h"
#include "ProgramFolder.h"
#include "ShownText.h"
#include "StartOptions.h"
#include "Termination.h"

int main(int argumentCount, char** arguments) {
  if (tracewell::isAnsweredWithoutWindow(argumentCount, arguments)) return EXIT_SUCCESS;
  const std::unique_ptr<QApplication> application =
      tracewell::makeApplication(argumentCount, arguments);
  if (tracewell::isRefused(QApplication::arguments())) return EXIT_FAILURE;
  QApplication::setApplicationName(QStringLiteral("tracewell"));
  // The main window itself says when the program ends.
  QApplication::setQuitOnLastWindowClosed(false);
  tracewell::keepLabelsPlain(*application);
  tracewell::DesktopDisk disk;
  tracewell::useDisk(&disk);

  const tracewell::ProgramFolder folder = tracewell::programFolder();
  tracewell::DesktopProgram program(folder.path);
  const tracewell::Termination termination([&] {
    program.dialogs.goOnAlone();
    program.program.main.closeForGood();
  });
  if (!program.start()) return EXIT_FAILURE;
  tellOfFolder(program.program.main, folder.offered, folder.failure);
  return QApplication::exec();
}
