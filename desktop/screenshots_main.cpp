// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures of every window, as the manual shows them:
///
///     tracewell-screenshots FOLDER [LANGUAGE [dark]]
///
/// writes frmDSO.png and the others, and a printed page, into FOLDER. LANGUAGE is a number from 1
/// to 5; "dark" shows them as on a dark desktop. The main window is connected to the simulated
/// instrument; the program folder is the executable's own.

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QTest>
#include <QWidget>

#include "Binder.h"
#include "DesktopProgram.h"
#include "Forms.h"
#include "ProgramFolder.h"
#include "Text.h"
#include "Theme.h"

namespace tracewell {
namespace {

bool save(QWidget& form, const QDir& folder, const std::string& name) {
  form.show();
  QTest::qWait(150);
  return form.grab().save(folder.filePath(toQt(name) + QStringLiteral(".png")));
}

bool saveMainWindow(DesktopProgram& desktop, const QDir& folder) {
  frmDSO& main = desktop.program.main;
  main.cbCh2.toggle();
  main.cmdStart.press();
  main.opTime.select();
  desktop.program.measurements.cmdFMeasure_Click();
  QTest::qWait(4000);
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (qobject_cast<QMainWindow*>(widget) == nullptr) continue;
    widget->resize(1280, 800);
    return save(*widget, folder, main.name());
  }
  return false;
}

bool saveDialog(Window& window, const QDir& folder) {
  window.load();
  window.formActivate.raise();
  const auto form = makeForm(window.name(), nullptr);
  bindControls(window, *form);
  const bool isSaved = save(*form, folder, window.name());
  unbindControls(window);
  return isSaved;
}

}  // namespace
}  // namespace tracewell

int main(int argumentCount, char** arguments) {
  using namespace tracewell;
  QApplication application(argumentCount, arguments);
  const QStringList words = QApplication::arguments();
  if (words.value(3) == QStringLiteral("dark")) QApplication::setPalette(QColor(Qt::black));
  applyTheme(application);
  if (words.size() < 2 || !QDir().mkpath(words[1])) return EXIT_FAILURE;
  const QDir folder(words[1]);
  DesktopProgram desktop(programFolder());
  if (!desktop.start()) return EXIT_FAILURE;
  if (words.size() > 2) desktop.program.languageMenu.mnbLA_Click(words[2].toInt());
  bool isSaved = saveMainWindow(desktop, folder);
  desktop.printer.printToFile(folder.filePath(QStringLiteral("page.pdf")));
  desktop.program.printing.cmdPrint_Click();
  for (Window* window : desktop.program.otherWindows())
    isSaved = saveDialog(*window, folder) && isSaved;
  return isSaved ? EXIT_SUCCESS : EXIT_FAILURE;
}
