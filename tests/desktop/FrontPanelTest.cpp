// SPDX-License-Identifier: GPL-3.0-or-later
#include <QLabel>
#include <QWheelEvent>

#include "MainFormTest.h"
#include "QtValues.h"

namespace tracewell {

/// Mouse and keyboard on the same control must come to the same on the wire.
class FrontPanelTest : public MainFormTest {
 protected:
  void wheel(const char* name, double notches) {
    QWidget* widget = find(name);
    const QPointF at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, static_cast<int>(120 * notches)},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
  }
  /// Takes hold of a slide somewhere and lets go at an end of it: 0 low, 1 high.
  void dragToEnd(const char* name, int end) {
    QWidget* slide = find(name);
    const bool isVertical = slide->height() > slide->width();
    const QPoint low = isVertical ? QPoint(slide->width() / 2, slide->height()) : QPoint(0, 9);
    const QPoint high = isVertical ? QPoint(slide->width() / 2, 0) : QPoint(slide->width(), 9);
    QTest::mousePress(slide, Qt::LeftButton, {}, slide->rect().center());
    QTest::mouseMove(slide, end == 0 ? low : high);
    EXPECT_TRUE(port.wire.empty()) << name << " sends while it is dragged";
    QTest::mouseRelease(slide, Qt::LeftButton, {}, end == 0 ? low : high);
  }
  /// Turns the cap with the mouse; points are counted from its centre.
  void dragKnob(const char* name, QPoint from, QPoint to) {
    QWidget* knob = find(name);
    const QPoint centre = knob->rect().center();
    QTest::mousePress(knob, Qt::LeftButton, {}, centre + from);
    QTest::mouseMove(knob, centre + to);
    QTest::mouseRelease(knob, Qt::LeftButton, {}, centre + to);
  }
};

TEST_F(FrontPanelTest, MouseAndKeyboardGiveTheSameCommands) {
  main.lblChan1.caption = "1.000 V";
  main.lblChan2.caption = "2.000 V";
  main.lblTime.caption = "1.000 ms";
  enum Means { drag, turn, press };
  const std::tuple<const char*, Means, int, Qt::Key, const char*> cases[] = {
      {"slideCH1", drag, 1, Qt::Key_End, ":CHAN1:OFFS 4E0"},
      {"slideCH2", drag, 0, Qt::Key_Home, ":CHAN2:OFFS -8E0"},
      {"slideTime", drag, 1, Qt::Key_End, ":TIM:DEL 5E-3"},
      {"slideTrig", drag, 0, Qt::Key_Home, ":TRIG:LEV -5E0"},
      {"knobChan1", turn, 1, Qt::Key_Up, ":CHAN1:SCAL 5E-3"},
      {"knobChan2", turn, 3, Qt::Key_PageUp, ":CHAN2:SCAL 2E-2"},
      {"knobTime", turn, 40, Qt::Key_End, ":TIM:SCAL 5"},
      {"cbCh2", press, 0, Qt::Key_Space, ":CHAN2:DISP 1"}};
  for (const auto& [name, byMouse, amount, byKeyboard, sent] : cases) {
    for (const bool isByMouse : {true, false}) {
      for (Slide* slide : {&main.slideCH1, &main.slideCH2, &main.slideTime, &main.slideTrig})
        slide->value = 0;
      for (Knob* knob : {&main.knobChan1, &main.knobChan2, &main.knobTime}) knob->value = 0;
      main.cbCh2.value = 0;
      main.lblChan1.caption = "1.000 V";
      main.lblChan2.caption = "2.000 V";
      main.lblTime.caption = "1.000 ms";
      takeWire();
      if (!isByMouse)
        key(name, byKeyboard);
      else if (byMouse == drag)
        dragToEnd(name, amount);
      else if (byMouse == turn)
        wheel(name, amount);
      else
        click(name);
      EXPECT_EQ(takeWire(), Lines{sent}) << name << (isByMouse ? " by mouse" : " by keyboard");
    }
  }
  EXPECT_EQ(find<QLabel>("slideCH1_caption")->text(), toQt(main.slideCH1.caption()));
  // The first caption of a knob stands at the lower left, outside the cap.
  QWidget* knob = find("knobTime");
  const QPoint first(knob->width() / 2 - knob->height() / 2 + 4, knob->height() - 6);
  main.knobTime.value = 17;
  takeWire();
  QTest::mouseClick(knob, Qt::LeftButton, {}, first);
  EXPECT_EQ(takeWire(), Lines{":TIM:SCAL 2E-9"});
  port.answer("*IDN?", {"KRM-410\n"});
  QTest::keyClicks(find("txtTest"), QStringLiteral("*IDN?"));
  key("txtTest", Qt::Key_Return);
  click("cmdTest");
  EXPECT_EQ(takeWire(), (Lines{"*IDN?", "*IDN?"}));
}

TEST_F(FrontPanelTest, EachDialogOpensByMouseKeyboardAndMenu) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"cmdCh1", "mnbCh1", "frmChannel"}, {"cmdCh2", "mnbCh2", "frmChannel"},
      {"cmdTrig", "mnbTrig", "frmTrig"},  {"cmdGraph", "mnbGraph", "frmGraph"},
      {"cmdTime", nullptr, "frmTimeDiv"}, {"cmdChannel1", nullptr, "frmChDiv"}};
  for (const auto& [button, entry, window] : cases) {
    click(button);
    key(button, Qt::Key_Space);
    Lines expected = {window, window};
    if (entry != nullptr) {
      find<QAction>(entry)->trigger();
      expected.emplace_back(window);
    }
    EXPECT_EQ(std::exchange(windows.shown, {}), expected) << button;
  }
  QTest::mouseDClick(find("lblDSOCmd"), Qt::LeftButton);
  EXPECT_EQ(windows.shown, Lines{"frmErrLog"});
}

TEST_F(FrontPanelTest, KnobTurnsWithTheCapAndStopsAtItsEnds) {
  const int reach = find("knobChan1")->height() / 10;
  dragKnob("knobChan1", {-reach, 0}, {0, -reach});
  EXPECT_NEAR(main.knobChan1.value(), 3.3, 0.7);
  for (int i = 0; i < 4; ++i) dragKnob("knobChan1", {0, -reach}, {reach, reach / 4});
  EXPECT_EQ(main.knobChan1.value(), 10);
  takeWire();
  key("knobChan1", Qt::Key_Up);
  wheel("knobChan1", 5);
  EXPECT_TRUE(takeWire().empty());
  // A touchpad sends pieces of a notch.
  const double before = main.slideCH1.value();
  for (int i = 0; i < 3; ++i) wheel("slideCH1", 0.5);
  EXPECT_NEAR(main.slideCH1.value(), before + 0.1, 1e-9);
  EXPECT_EQ(takeWire().size(), 1u);
}

TEST_F(FrontPanelTest, LanguageInUseKeepsItsTickWhenItIsChosenAgain) {
  auto* english = find<QAction>("mnbLA1");
  english->trigger();
  EXPECT_TRUE(english->isChecked());
}

TEST_F(FrontPanelTest, TabGoesThroughTheWindowAsTheEyeReads) {
  const Lines wanted = {"cmdStart", "cmdRunStop", "cbCh1",    "knobChan1", "slideCH1", "cmdCh1",
                        "cbCh2",    "knobChan2",  "knobTime", "slideTime", "slideTrig"};
  find("cmdStart")->setFocus();
  Lines order;
  for (int i = 0; i < 80; ++i) {
    const QWidget* focus = form->focusWidget();
    order.push_back(focus->objectName().toStdString());
    if (i > 0 && order.back() == "cmdStart") break;
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
  }
  auto from = order.begin();
  for (const std::string& name : wanted) {
    from = std::find(from, order.end(), name);
    EXPECT_NE(from, order.end()) << name << " is out of order or out of reach";
  }
}

}  // namespace tracewell
