// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <ctime>

#include "DesktopProgram.h"
#include "DesktopWindows.h"
#include "GraphView.h"
#include "MainFormTest.h"
#include "PictureWidget.h"
#include "QtValues.h"
#include "Theme.h"

namespace tracewell {
namespace {

using FormsTest = EveryFormTest;

TEST(DesktopWords, FollowTheLanguageInEveryWindowAndLeaveWhatIsShown) {
  const ProgramFolderCopy folder;
  DesktopProgram desktop(folder.path());
  ASSERT_TRUE(desktop.start());
  frmDSO& main = desktop.program.main;
  QApplication::processEvents();
  const auto tip = [&](const Control& control) {
    return fromQt(desktop.windows.widgetOf(control)->toolTip());
  };
  const std::string english = tip(main.opOff);
  main.txtTest.text = "typed";
  main.known.typed(":TIM:SCAL 1");
  main.slideTrig.trust = [] { return Trust::unread; };
  main.slideTrig.notifyChanged();
  main.opOff.trust = [] { return Trust::stale; };
  main.opOff.notifyChanged();
  main.mnbLA3.choose();
  desktop.windows.show(desktop.program.rs232);
  QApplication::processEvents();
  EXPECT_EQ(tip(main.opOff), "Sans curseurs");
  EXPECT_EQ(tip(desktop.program.rs232.cbRS232(4)), "Numéro du port ; 0 : instrument simulé");
  const QWidget* mark = desktop.windows.widgetOf(main.lblTime)->findChild<QWidget*>();
  EXPECT_EQ(mark->accessibleName(), QStringLiteral("incertain"));
  EXPECT_EQ(fromQt(desktop.windows.widgetOf(main.slideTrig)->accessibleDescription()),
            tip(main.slideTrig) + ". L’instrument a peut-être une autre valeur");
  EXPECT_EQ(fromQt(desktop.windows.widgetOf(main.opOff)->accessibleDescription()),
            "Sans curseurs. L’instrument a peut-être une autre valeur");
  EXPECT_EQ(main.lblPort.caption(), "port 0 - instrument simulé");
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Annuler"));
  const auto shown = [&](const Control& control) {
    return desktop.windows.widgetOf(control)->property("text").toString();
  };
  EXPECT_EQ(shown(main.opOff), QStringLiteral("Aucun"));
  EXPECT_EQ(shown(main.lblTime), QStringLiteral("Not Initialized"));
  EXPECT_EQ(shown(main.txtTest), QStringLiteral("typed"));
  main.mnbLA1.choose();
  QApplication::processEvents();
  EXPECT_EQ(tip(main.opOff), english);
  EXPECT_EQ(mark->accessibleName(), QStringLiteral("not certain"));
}

/// The platform of the tests shows no files.
TEST(ManualEntry, SaysWhereTheManualIsWhereNoProgramShowsIt) {
  const ProgramFolderCopy folder;
  DesktopProgram desktop(folder.path());
  ASSERT_TRUE(desktop.start());
  QWidget* form = desktop.windows.widgetOf(desktop.program.main.cmdStart)->window();
  form->findChild<QAction*>(QStringLiteral("manual"))->trigger();
  EXPECT_NE(desktop.program.main.lblStatus.caption().find("manual.md"), std::string::npos);
}

/// In processor time, which a busy machine does not stretch.
TEST_F(FormsTest, LanguageChangesInAnInstant) {
  for (Window* window : program.otherWindows()) window->load();
  const std::clock_t start = std::clock();
  main.mnbLA2.choose();
  EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC / 5);
}

TEST_F(FormsTest, WhatTheProgramSetsIsShown) {
  main.lblConnect.caption = "Stopped & idle";
  main.cbCh2.value.setQuietly(1);
  EXPECT_EQ(find<QLabel>("lblConnect")->text(), QStringLiteral("Stopped & idle"));
  EXPECT_TRUE(find<QAbstractButton>("cbCh2")->isChecked());
  int presses = 0;
  main.cmdNewErrors.visible = true;
  main.cmdNewErrors.click = [&presses] { ++presses; };
  find<QAbstractButton>("cmdNewErrors")->click();
  EXPECT_EQ(presses, 1);
  const auto look = [this](bool isWarning) {
    main.lblStatus.sentences = {{"told", isWarning}};
    main.lblStatus.notifyChanged();
    return find("lblStatus")->grab().toImage();
  };
  EXPECT_TRUE(look(true) != look(false));
}

TEST_F(FormsTest, PicturesOfTheGraphShowNothingThatIsForTheScreen) {
  const std::array<double, 2> level = {50, 60};
  main.graphDSO.plot(1).plotXvsY(main.XIndex, level);
  main.knobTime.turn(18);
  main.opTime.select();
  auto* view = find<GraphView>("graphDSO");
  QWidget* plot = view->findChild<QWidget*>(QStringLiteral("plot"));
  const auto screen = [view] {
    QApplication::processEvents();
    return view->grab().toImage();
  };
  const QImage picture = view->picture().toImage();
  QImage before = screen();
  const auto expectOnlyOnScreen = [&](const char* what) {
    const QImage after = screen();
    EXPECT_TRUE(after != before) << what;
    EXPECT_TRUE(view->picture().toImage() == picture) << what;
    EXPECT_TRUE(screen() == after) << what;
    before = after;
  };
  EXPECT_TRUE(before != picture);
  main.graphDSO.plot(1).pale = [] { return true; };
  main.graphDSO.plot(1).notifyChanged();
  expectOnlyOnScreen("an old trace");
  QTest::keyClick(view, Qt::Key_C);
  expectOnlyOnScreen("the active cursor");
  QTest::mouseMove(plot, QPoint(70, 70));
  expectOnlyOnScreen("the values under the pointer");
  EXPECT_EQ(plot->cursor().shape(), Qt::CrossCursor);
  QTest::mouseMove(plot, plot->rect().center());
  EXPECT_EQ(plot->cursor().shape(), Qt::SplitHCursor);
  QFocusEvent focus(QEvent::FocusIn);
  QApplication::sendEvent(view, &focus);
  expectOnlyOnScreen("the focus");
}

TEST_F(FormsTest, FocusChoosesNothing) {
  program.console.show();
  bound(program.console, [this](Window&, QWidget& dialog) {
    dialog.show();
    auto* tree = dialog.findChild<QTreeWidget*>();
    tree->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(program.console.txtCmd.text(), "");
    QTest::keyClick(tree, Qt::Key_Home);
    EXPECT_EQ(program.console.txtCmd.text(), " Channel 1");
  });
}

TEST(PictureWidget, NoLineIsLostInASmallRoom) {
  QImage grid(2000, 200, QImage::Format_RGB32);
  for (int x = 0; x < grid.width(); ++x)
    for (int y = 0; y < grid.height(); ++y) grid.setPixel(x, y, x % 10 == 0 ? 0 : 0xffffff);
  PictureWidget widget;
  widget.resize(200, 100);
  widget.setPicture(grid);
  const QImage shown = widget.grab().toImage();
  for (int x = 0; x < 200; ++x) EXPECT_NEAR(qGray(shown.pixel(x, 50)), 230, 40) << x;
}

TEST_F(FormsTest, ErrorLogOpensAtItsNewestLine) {
  std::string lines;
  for (int i = 0; i < 200; ++i) lines += "line " + std::to_string(i) + "\r\n";
  program.errLog.txtErrLog.text = lines;
  bound(program.errLog, [](Window&, QWidget& dialog) {
    dialog.show();
    QApplication::processEvents();
    const QScrollBar* bar = dialog.findChild<QPlainTextEdit*>()->verticalScrollBar();
    EXPECT_GT(bar->maximum(), 0);
    EXPECT_EQ(bar->value(), bar->maximum());
  });
}

/// What "Average" opens is to be seen before the dialog goes; the next Enter is the dialog's. Keys
/// go to the box, which has the focus, and not to the line in it.
TEST_F(FormsTest, EnterOnATypedModeTakesItAndNoMore) {
  const auto dialog = makeForm("frmAcq", nullptr);
  frmAcq& window = program.acquire;
  bindControls(window, *dialog);
  int presses = 0;
  window.cmdOK.click = [&] { ++presses; };
  dialog->show();
  auto* mode = dialog->findChild<QComboBox*>(QStringLiteral("cbMode"));
  mode->lineEdit()->selectAll();
  QTest::keyClicks(mode, QStringLiteral("Average"));
  EXPECT_NE(window.cbMode.text(), "Average");
  QTest::keyClick(mode, Qt::Key_Return);
  EXPECT_EQ(window.cbMode.text(), "Average");
  EXPECT_TRUE(window.cbAverage.visible());
  EXPECT_EQ(presses, 0);
  QTest::keyClick(mode, Qt::Key_Return);
  EXPECT_EQ(presses, 1);
  // Tab goes to what the text has opened.
  dialog->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  for (const char* name : {"Sample", "Average"}) {
    mode->setFocus();
    mode->lineEdit()->selectAll();
    QTest::keyClicks(mode, QLatin1String(name));
    // As a new mark does.
    window.cbMode.notifyChanged();
    QTest::keyClick(mode, Qt::Key_Tab);
    EXPECT_EQ(window.cbMode.text(), name);
  }
  EXPECT_EQ(dialog->focusWidget()->objectName(), QStringLiteral("cbAverage"));
  unbindControls(window);
}

TEST_F(FormsTest, DialogBeginsWithItsFirstBoxAtEachOpening) {
  DesktopWindows screen(folder.path());
  for (int i = 0; i < 2; ++i) {
    QTimer::singleShot(0, [&] {
      QWidget* first = screen.widgetOf(program.rs232.cbRS232(0));
      EXPECT_EQ(first->window()->focusWidget(), first);
      screen.widgetOf(program.rs232.cmdCancel)->setFocus();
      screen.hide(program.rs232);
    });
    screen.showModal(program.rs232);
  }
}

/// The shortcuts of the menu work there, too, but for those that edit the line.
TEST_F(FormsTest, CommandLineKeepsTheKeysThatEditIt) {
  form->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  auto* line = find<QLineEdit>("txtTest");
  line->setFocus();
  windows.shown.clear();
  QTest::keyClick(line, Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(std::exchange(windows.shown, {}), Lines{"frmRS232"});
  // Also where there is nothing to edit: what is typed behind them belongs to the line.
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_Z, Qt::Key_X, Qt::Key_C, Qt::Key_Backspace})
    QTest::keyClick(line, key, Qt::ControlModifier);
  EXPECT_TRUE(windows.shown.empty());
  QTest::keyClicks(line, QStringLiteral("*IDN?"));
  QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(line->selectedText(), QStringLiteral("*IDN?"));
  EXPECT_TRUE(windows.shown.empty());
}

TEST_F(FormsTest, ListKeepsTheEntryThatTheProgramGoesBackTo) {
  bound(program.loadWindow, [&window = program.loadWindow](Window&, QWidget& dialog) {
    dialog.show();
    window.fileCSV.items = {"good.csv", "bad.csv"};
    window.fileCSV.click = [&] { window.fileCSV.chosen = 0; };
    auto* list = dialog.findChild<QListWidget*>(QStringLiteral("fileCSV"));
    QApplication::processEvents();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(1)).center());
    EXPECT_TRUE(list->item(0)->isSelected());
    EXPECT_FALSE(list->item(1)->isSelected());
    // Keys pass entries that the program does not take, also if the first one is such.
    Lines tried;
    window.fileCSV.items = {"bad.csv", "worse.csv", "good.csv"};
    window.fileCSV.click = [&, &files = window.fileCSV] {
      tried.push_back(files.chosenText());
      if (tried.back() != "good.csv") files.chosen = ListBox::noEntry;
    };
    window.fileCSV.chosen = ListBox::noEntry;
    list->setFocus();
    for (int i = 0; i < 3; ++i) QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Shift);
    EXPECT_EQ(tried, (Lines{"bad.csv", "worse.csv", "good.csv"}));
    // Enter is for the entry at which the keys are.
    window.cmdOK.click = [] { ADD_FAILURE() << "pressed"; };
    tried.clear();
    for (const auto key : {Qt::Key_Up, Qt::Key_Return}) QTest::keyClick(list, key);
    EXPECT_EQ(tried, (Lines{"worse.csv", "worse.csv"}));
    // A key on an empty list, and the release of one that was pressed elsewhere, choose nothing.
    window.fileCSV.click = [] { ADD_FAILURE() << "chosen"; };
    QTest::keyRelease(list, Qt::Key_Escape);
    window.fileCSV.items = {};
    QTest::keyClick(list, Qt::Key_Down);
    // Enter on a folder opens it and does no more.
    auto* folders = dialog.findChild<QListWidget*>(QStringLiteral("dirCSV"));
    int opened = 0;
    window.dirCSV.opened = [&] { ++opened; };
    window.dirCSV.items = {"..", "a"};
    folders->setFocus();
    for (const char* reached : {"..", "a"}) {
      QTest::keyClick(folders, Qt::Key_Down);
      EXPECT_EQ(window.dirCSV.chosenText(), reached);
    }
    QTest::keyClick(folders, Qt::Key_Return);
    EXPECT_EQ(opened, 1);
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    for (const auto& [key, reached] : {std::pair(Qt::Key_End, "c"), {Qt::Key_Home, ".."}}) {
      window.dirCSV.items = {"..", "b", "c"};
      QTest::keyClick(folders, key);
      EXPECT_EQ(window.dirCSV.chosenText(), reached);
      window.dirCSV.items = {reached};
      QTest::keyClick(folders, key);
      EXPECT_EQ(window.dirCSV.chosenText(), reached);
    }
  });
}

}  // namespace
}  // namespace tracewell
