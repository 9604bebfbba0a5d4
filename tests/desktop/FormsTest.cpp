// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QAccessible>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>
#include <algorithm>

#include "GraphView.h"
#include "KnobWidget.h"
#include "MainFormTest.h"
#include "ProgramFolder.h"
#include "SlideWidget.h"
#include "Text.h"
#include "Theme.h"

namespace tracewell {
namespace {

class FormsTest : public MainFormTest {};

using Lines = std::vector<std::string>;

/// Text that its widget has no room for.
Lines cutTexts(QWidget& form) {
  Lines cut;
  for (const QWidget* widget : form.findChildren<QWidget*>()) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const auto* label = qobject_cast<const QLabel*>(widget);
    const auto* box = qobject_cast<const QGroupBox*>(widget);
    const bool isOurs = !widget->objectName().startsWith(QLatin1String("qt_"));
    if (!isOurs || !widget->isVisible() || (label != nullptr && label->wordWrap())) continue;
    const QString text = button != nullptr  ? button->text()
                         : label != nullptr ? label->text()
                         : box != nullptr   ? box->title()
                                            : QString();
    const int needed =
        qMax(widget->minimumSizeHint().width(),
             widget->fontMetrics().horizontalAdvance(text) + (box != nullptr ? 18 : 0));
    if (!text.isEmpty() && widget->width() < needed) cut.push_back(fromQt(text));
  }
  return cut;
}

TEST_F(FormsTest, EveryWindowFitsASmallScreenInEveryLanguageWithNothingCut) {
  for (MenuEntry* language : {&bench.main.mnbLA1, &bench.main.mnbLA2, &bench.main.mnbLA3,
                              &bench.main.mnbLA4, &bench.main.mnbLA5}) {
    language->choose();
    SCOPED_TRACE(language->caption());
    bench.main.lblConnect.caption = bench.main.Msg[9];
    bench.main.cmdStart.caption = bench.main.Msg[3];
    bench.main.lblTest.visible = true;
    QApplication::processEvents();
    form->resize(1280, 800);
    QApplication::processEvents();
    EXPECT_LE(form->minimumSizeHint().width(), 1280);
    EXPECT_LE(form->minimumSizeHint().height(), 800);
    EXPECT_EQ(cutTexts(*form), Lines());
    for (Window* window : bench.program.otherWindows()) {
      const auto dialog = makeForm(window->name(), nullptr);
      bindControls(*window, *dialog);
      dialog->show();
      QApplication::processEvents();
      dialog->adjustSize();
      QApplication::processEvents();
      EXPECT_EQ(cutTexts(*dialog), Lines()) << window->name();
      EXPECT_LE(dialog->height(), 760) << window->name();
      unbindControls(*window);
    }
  }
}

/// What a screen reader says of a control: its caption in the chosen language, or a name of its
/// own.
TEST_F(FormsTest, EveryControlHasANameForScreenReaders) {
  bench.main.mnbLA3.choose();
  const auto unnamed = [](Window& window, QWidget& form) {
    Lines names;
    for (Control* control : window.controls()) {
      auto* widget = form.findChild<QWidget*>(toQt(control->objectName()));
      const bool isMenu = dynamic_cast<MenuEntry*>(control) != nullptr;
      if (isMenu) continue;  // Menus and their entries are their texts.
      QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(widget);
      if (reader == nullptr || reader->text(QAccessible::Name).isEmpty())
        names.push_back(control->objectName());
    }
    return names;
  };
  EXPECT_EQ(unnamed(bench.main, *form), Lines());
  for (Window* window : bench.program.otherWindows()) {
    const auto dialog = makeForm(window->name(), nullptr);
    bindControls(*window, *dialog);
    EXPECT_EQ(unnamed(*window, *dialog), Lines()) << window->name();
    unbindControls(*window);
  }
  QAccessibleInterface* close = QAccessible::queryAccessibleInterface(find("cmdClose"));
  EXPECT_EQ(close->text(QAccessible::Name), QStringLiteral("Fermer"));
}

TEST_F(FormsTest, LanguageChangesInAnInstant) {
  for (Window* window : bench.program.otherWindows()) window->load();
  QElapsedTimer timer;
  timer.start();
  bench.main.mnbLA2.choose();
  EXPECT_LT(timer.elapsed(), 50);
}

TEST_F(FormsTest, EveryFormHasAWindowAndEveryControl) {
  Lines names = {"frmDSO"};
  for (Window* window : bench.program.otherWindows()) {
    names.push_back(window->name());
    const auto widget = makeForm(window->name(), nullptr);
    EXPECT_NO_THROW(bindControls(*window, *widget)) << window->name();
    for (Control* control : window->controls())
      EXPECT_TRUE(control->changed) << control->objectName();
    unbindControls(*window);
  }
  std::ranges::sort(names);
  EXPECT_EQ(names, formNames());
}

TEST_F(FormsTest, WhatTheProgramSetsIsShown) {
  bench.main.lblConnect.caption = "Stopped & idle";
  bench.main.cmdStart.caption = "Run & stop";
  bench.main.cbMath.text = "1-2";
  bench.main.cbCh2.value.setQuietly(1);
  bench.main.txtMsg.text = "1,2\r\n";
  EXPECT_EQ(find<QLabel>("lblConnect")->text(), QStringLiteral("Stopped & idle"));
  EXPECT_EQ(find<QAbstractButton>("cmdStart")->text(), QStringLiteral("Run && stop"));
  EXPECT_TRUE(find<QAbstractButton>("cbCh2")->isChecked());
  EXPECT_EQ(find<QPlainTextEdit>("txtMsg")->toPlainText(), QStringLiteral("1,2\n"));
  EXPECT_TRUE(takeWire().empty());
}

TEST_F(FormsTest, KnobAnswersWheelKeysMouseAndCode) {
  auto* knob = find<KnobWidget>("knobTime");
  QTest::keyClick(knob, Qt::Key_Up);
  QTest::keyClick(knob, Qt::Key_End);
  QTest::keyClick(knob, Qt::Key_Down);
  EXPECT_EQ(takeWire(), (Lines{":TIM:SCAL 5E-9", ":TIM:SCAL 5", ":TIM:SCAL 2"}));
  QWheelEvent wheel(QPointF(5, 5), knob->mapToGlobal(QPointF(5, 5)), {}, {0, -240}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(knob, &wheel);
  EXPECT_EQ(takeWire(), Lines{":TIM:SCAL 5E-1"});
  // The first caption stands at the lower left, outside the cap.
  const QPoint first(knob->width() / 2 - knob->height() / 2 + 4, knob->height() - 6);
  QTest::mouseClick(knob, Qt::LeftButton, {}, first);
  EXPECT_EQ(takeWire(), Lines{":TIM:SCAL 2E-9"});
  bench.main.knobTime.value = 17;
  EXPECT_EQ(knob->value(), 17);
  EXPECT_EQ(takeWire().size(), 1u);
}

TEST_F(FormsTest, SlideReportsDragAndReleaseOfTheUserOnly) {
  auto* slide = find<SlideWidget>("slideCH1");
  QSignalSpy dragged(slide, &SlideWidget::dragged);
  QSignalSpy released(slide, &SlideWidget::released);
  bench.main.slideCH1.value = 1.5;
  EXPECT_EQ(slide->value(), 1.5);
  EXPECT_EQ(dragged.count(), 0);
  QTest::keyClick(slide, Qt::Key_Up);
  EXPECT_NEAR(bench.main.slideCH1.value(), 1.6, 1e-9);
  QTest::mouseClick(slide, Qt::LeftButton, {}, {slide->width() / 2, 0});
  EXPECT_EQ(bench.main.slideCH1.value(), 4);
  EXPECT_EQ(released.count(), 2);
  EXPECT_EQ(find<QLabel>("slideCH1_caption")->text(), toQt(bench.main.slideCH1.caption()));
}

TEST_F(FormsTest, CursorsFollowTheMouseAndTheArrowKeys) {
  bench.main.knobTime.turn(18);
  bench.main.opTime.select();
  auto* view = find<GraphView>("graphDSO");
  QWidget* plot = view->findChild<QWidget*>();
  QApplication::processEvents();
  Cursor& cur1 = bench.main.graphDSO.cursor("cur1");
  const QPoint centre = plot->rect().center();
  QTest::mousePress(plot, Qt::LeftButton, {}, centre);
  QTest::mouseMove(plot, centre + QPoint(plot->width() / 10, 0));
  QTest::mouseRelease(plot, Qt::LeftButton, {}, centre + QPoint(plot->width() / 10, 0));
  EXPECT_NEAR(cur1.xPosition(), 50, 2);
  const double before = cur1.xPosition();
  QTest::keyClick(view, Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(cur1.xPosition(), before - 10);
  EXPECT_TRUE(bench.main.graphDSO.axis("XAxis").caption().starts_with("P1 = "));
}

TEST_F(FormsTest, CommandLineSendsWithEnterAndByButton) {
  bench.port.answer("*IDN?", {"KRM-410\n"});
  QTest::keyClicks(find("txtTest"), QStringLiteral("*IDN?"));
  QTest::keyClick(find("txtTest"), Qt::Key_Return);
  QTest::mouseClick(find("cmdTest"), Qt::LeftButton);
  EXPECT_EQ(takeWire(), (Lines{"*IDN?", "*IDN?"}));
  EXPECT_EQ(find<QPlainTextEdit>("txtMsg")->toPlainText(), QStringLiteral("KRM-410"));
}

TEST_F(FormsTest, ConsoleSendsOncePerEnterAndFocusChoosesNothing) {
  frmCmd& console = bench.program.console;
  console.load();
  const auto dialog = makeForm("frmCmd", nullptr);
  bindControls(console, *dialog);
  dialog->show();
  auto* tree = dialog->findChild<QTreeWidget*>();
  tree->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(console.txtCmd.text(), "");
  QTest::keyClick(tree, Qt::Key_Home);
  EXPECT_EQ(console.txtCmd.text(), "Channel 1");
  auto* line = dialog->findChild<QLineEdit*>(QStringLiteral("txtCmd"));
  line->clear();
  QTest::keyClicks(line, QStringLiteral(":CHAN1:OFFS -1"));
  QTest::keyClick(line, Qt::Key_Return);
  EXPECT_TRUE(takeWire().empty());
  EXPECT_EQ(bench.dialogs.messages, Lines{"Out of range"});
  EXPECT_EQ(line->text(), QStringLiteral(":CHAN1:OFFS"));
  QTest::keyClick(line, Qt::Key_Return);
  EXPECT_EQ(takeWire(), Lines{":CHAN1:OFFS"});
  unbindControls(console);
}

TEST_F(FormsTest, ListKeepsTheEntryThatTheProgramGoesBackTo) {
  frmLoad& window = bench.program.loadWindow;
  const auto dialog = makeForm("frmLoad", nullptr);
  bindControls(window, *dialog);
  dialog->show();
  window.fileCSV.items = {"good.csv", "bad.csv"};
  window.fileCSV.click = [&] { window.fileCSV.chosen = 0; };
  auto* list = dialog->findChild<QListWidget*>(QStringLiteral("fileCSV"));
  QApplication::processEvents();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualItemRect(list->item(1)).center());
  EXPECT_EQ(list->currentRow(), 0);
  EXPECT_TRUE(list->item(0)->isSelected());
  EXPECT_FALSE(list->item(1)->isSelected());
  unbindControls(window);
}

TEST(ProgramFolder, NewVersionBringsItsWordsAndLeavesTheRest) {
  const ProgramFolderCopy shipped;
  const ProgramFolderCopy parent;
  const auto users = parent.path() / "user" / "tracewell";
  fillProgramFolder(shipped.path(), users);
  const std::string words = readWholeFile(users / "dso_la3.cap");
  for (const char* file : {"dso_la3.cap", "default.dso", "dso.cmd"})
    writeWholeFile(users / file, "mine");
  std::filesystem::remove(users / "default.sit");
  fillProgramFolder(shipped.path(), users);
  EXPECT_EQ(readWholeFile(users / "dso_la3.cap"), "mine");
  EXPECT_TRUE(std::filesystem::exists(users / "default.sit"));
  writeWholeFile(users / "shipped-version", "0.0.1");
  fillProgramFolder(shipped.path(), users);
  EXPECT_EQ(readWholeFile(users / "dso_la3.cap"), words);
  EXPECT_EQ(readWholeFile(users / "default.dso"), "mine");
  EXPECT_EQ(readWholeFile(users / "dso.cmd"), "mine");
}

TEST_F(FormsTest, DoubleClickOnTheCommandTitleOpensTheLog) {
  QTest::mouseDClick(find("lblDSOCmd"), Qt::LeftButton);
  EXPECT_EQ(bench.windows.shown, Lines{"frmErrLog"});
}

}  // namespace
}  // namespace tracewell
