// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures of every window, as the manual shows them:
///
///     tracewell-screenshots FOLDER [LANGUAGE [light|dark|contrast [WIDTH HEIGHT]]]
///
/// writes frmDSO.png and the others, and a printed page, into FOLDER. LANGUAGE is a number from 1
/// to 5; the third word is the theme; WIDTH and HEIGHT are those of the main window. It is
/// connected to the simulated instrument, and every dialog is opened from it as a user does. The
/// program folder is the executable's own; a waveform is saved there and the error log is written
/// on.

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <functional>

#include "DesktopProgram.h"
#include "ProgramFolder.h"
#include "QtValues.h"
#include "ShownText.h"
#include "Theme.h"
#ifdef TRACEWELL_RECORDER
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "DesktopRecorder.h"
#include "RecorderWindow.h"
#endif

namespace tracewell {
namespace {

using Use = std::function<void(QWidget& form)>;

/// Calls `use` once with the form of that name, a moment after it has appeared.
void whenShown(const std::string& name, const Use& use) {
  auto* watch = new QTimer(qApp);
  QObject::connect(watch, &QTimer::timeout, watch, [watch, name, use] {
    for (QWidget* form : QApplication::topLevelWidgets()) {
      if (form->objectName() != toQt(name) || !form->isVisible()) continue;
      watch->deleteLater();
      watch->stop();
      QTest::qWait(150);
      use(*form);
      return;
    }
  });
  watch->start(50);
}

class Screenshots {
 public:
  Screenshots(DesktopProgram& desktop, const QDir& folder, const QSize& mainSize)
      : desktop_(desktop), program_(desktop.program), folder_(folder), mainSize_(mainSize) {}

  /// False when a picture could not be written.
  bool takeAll();

 private:
  void take(QWidget& form) {
    QTest::qWait(50);
    const QString file = folder_.filePath(form.objectName() + QStringLiteral(".png"));
    isSaved_ = form.grab().save(file) && isSaved_;
  }

  /// Opens the dialog, takes its picture after `prepare`, and goes on with `finish`, which closes
  /// it.
  void takeDialog(
      const Window& window, const std::function<void()>& open, const Use& prepare = [](QWidget&) {},
      const Use& finish = [](QWidget& form) { form.close(); }) {
    whenShown(window.name(), [this, prepare, finish](QWidget& form) {
      prepare(form);
      take(form);
      finish(form);
    });
    open();
  }

  void takeMainWindow();
  void takeSettings();
  void takeWaveforms();
  void takeTools();
  void takeErrorLog();
  void takeAutoset();
  void takeRecorder();

  DesktopProgram& desktop_;
  Tracewell& program_;
  QDir folder_;
  QSize mainSize_;
  bool isSaved_ = true;
};

bool Screenshots::takeAll() {
  takeMainWindow();
  takeSettings();
  takeWaveforms();
  takeTools();
  takeAutoset();
#ifdef TRACEWELL_RECORDER
  takeRecorder();
#endif
  takeErrorLog();
  return isSaved_;
}

void Screenshots::takeMainWindow() {
  frmDSO& main = program_.main;
  main.cbCh2.toggle();
  main.cmdStart.press();
  main.opTime.select();
  program_.measurements.cmdFMeasure_Click();
  QTest::qWait(4000);
  whenShown(main.name(), [this](QWidget& form) {
    form.resize(mainSize_);
    take(form);
  });
  QTest::qWait(500);
  desktop_.printer.printToFile(folder_.filePath(QStringLiteral("page.pdf")));
  main.cmdPrint.press();
}

void Screenshots::takeSettings() {
  frmDSO& main = program_.main;
  takeDialog(program_.rs232, [&main] { main.mnbRS232.choose(); });
  takeDialog(program_.channelDialog, [&main] { main.cmdCh1.press(); });
  takeDialog(program_.channelScale, [&main] { main.cmdChannel1.press(); });
  takeDialog(program_.timeScale, [&main] { main.cmdTime.press(); });
  takeDialog(
      program_.trigger, [&main] { main.cmdTrig.press(); },
      [this](QWidget&) { program_.trigger.cbTrig(1).type("Advance"); });
  takeDialog(
      program_.acquire, [&main] { main.cmdAcq.press(); },
      [this](QWidget&) { program_.acquire.cbMode.type("Average"); });
  takeDialog(program_.display, [&main] { main.cmdDisplay.press(); });
}

/// The set that the first dialog saves is the one that the second shows.
void Screenshots::takeWaveforms() {
  frmDSO& main = program_.main;
  frmSave& saving = program_.saveWindow;
  const auto write = [&saving](QWidget&) {
    saving.txtAuthor.type("A. Operator");
    saving.txtDes.type("Ringing of the second stage");
    saving.cbWord.toggle();
    saving.txtWord.type("ringing");
    saving.pictureTemp.clickAt(saving.pictureTemp.image().width / 2, 60);
  };
  takeDialog(
      saving, [&main] { main.cmdSave.press(); }, write,
      [&saving](QWidget&) {
        whenShown("QFileDialog", [](QWidget& form) { static_cast<QDialog&>(form).accept(); });
        saving.cmdOK.press();
      });
  takeDialog(
      program_.loadWindow, [&main] { main.cmdLoad.press(); },
      [this](QWidget&) { program_.loadWindow.fileCSV.choose(0); });
  takeDialog(program_.graphStyle, [&main] { main.cmdGraph.press(); });
}

void Screenshots::takeTools() {
  frmDSO& main = program_.main;
  takeDialog(program_.measurementChoice, [&main] { main.cmdVMeasure.press(); });
  takeDialog(program_.quickMeasurementChoice, [&main] { main.mnbFrequency.choose(); });
  takeDialog(program_.report, [&main] { main.mnbConf.choose(); });
  takeDialog(
      program_.console, [&main] { main.cmdDSOcmd.press(); },
      [this](QWidget& form) {
        constexpr int node = 2;
        program_.console.tvCmd.choose(node);
        auto& tree = *form.findChild<QTreeWidget*>();
        tree.setCurrentItem(tree.topLevelItem(0)->child(0));
      });
  takeDialog(program_.about, [&main] { main.mnbAbout.choose(); });
}

void Screenshots::takeAutoset() {
  whenShown(program_.message.name(), [this](QWidget& form) {
    QTest::qWait(4000);
    take(form);
  });
  program_.main.cmdAutoset.press();
}

#ifdef TRACEWELL_RECORDER
/// The trace with those before it, then the spectrum.
void Screenshots::takeRecorder() {
  auto& window = static_cast<DesktopRecorder&>(*desktop_.recorder).open();
  window.resize(mainSize_ - QSize(100, 40));
  window.view().choice.behind = 5;
  QTest::qWait(8000);
  const auto choose = [&window](const char* box, int entry) {
    window.findChild<QComboBox*>(QLatin1String(box))->setCurrentIndex(entry);
  };
  window.findChild<QLineEdit*>(QStringLiteral("pinName"))->setText(QStringLiteral("ringing"));
  window.findChild<QPushButton*>(QStringLiteral("pin"))->click();
  choose("cursors", RecorderCursors::across);
  choose("behind", 2);
  QTest::qWait(2500);
  window.view().follow(false);
  window.setObjectName(QStringLiteral("recorder"));
  take(window);
  choose("mode", 2);
  choose("cursors", RecorderCursors::off);
  window.setObjectName(QStringLiteral("recorder-spectrum"));
  take(window);
  window.close();
}
#endif

/// With what a port that is not there leaves in it.
void Screenshots::takeErrorLog() {
  frmDSO& main = program_.main;
  const int portColumn = SetupTable::firstValue + 4;
  main.gridMeasure.setText(SetupTable::link, portColumn, "97");
  main.cmdRS232.press();
  takeDialog(program_.errLog, [&main] { main.mnbErrLog.choose(); });
}

}  // namespace
}  // namespace tracewell

int main(int argumentCount, char** arguments) {
  using namespace tracewell;
  QApplication application(argumentCount, arguments);
  const QStringList words = QApplication::arguments();
  keepLabelsPlain(application);
  if (words.size() < 2 || !QDir().mkpath(words[1])) return EXIT_FAILURE;
  DesktopProgram desktop(programFolder().path);
  const QStringList themes = {"light", "dark", "contrast"};
  if (const auto theme = themes.indexOf(words.value(3)); theme >= 0)
    applyTheme(application, static_cast<Theme>(theme + 1));
  if (!desktop.start()) return EXIT_FAILURE;
  if (words.size() > 2) desktop.program.languageMenu.mnbLA_Click(words[2].toInt());
  const QSize size =
      words.size() > 5 ? QSize(words[4].toInt(), words[5].toInt()) : QSize(1280, 800);
  return Screenshots(desktop, QDir(words[1]), size).takeAll() ? EXIT_SUCCESS : EXIT_FAILURE;
}
