// SPDX-License-Identifier: GPL-3.0-or-later
#include <QTest>
#include <QWheelEvent>

#include "KnobWidget.h"
#include "MainFormTest.h"
#include "SlideWidget.h"

namespace tracewell {
namespace {

using Lines = std::vector<std::string>;

/// Mouse and keyboard on the same control must come to the same on the wire.
class FrontPanelTest : public MainFormTest {
 protected:
  void key(const char* name, Qt::Key code) { QTest::keyClick(find(name), code); }
  void click(const char* name) { QTest::mouseClick(find(name), Qt::LeftButton); }
  void wheel(const char* name, int notches) {
    QWidget* widget = find(name);
    const QPointF at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
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
    EXPECT_TRUE(bench.port.wire.empty()) << name << " sends while it is dragged";
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
  bench.main.lblChan1.caption = "1.000 V";
  bench.main.lblChan2.caption = "2.000 V";
  bench.main.lblTime.caption = "1.000 ms";
  const struct {
    const char* what;
    std::function<void()> byMouse;
    std::function<void()> undo;
    std::function<void()> byKeyboard;
    Lines wire;
  } cases[] = {
      {"slideCH1",
       [&] { dragToEnd("slideCH1", 1); },
       [&] { bench.main.slideCH1.value = 0; },
       [&] { key("slideCH1", Qt::Key_End); },
       {":CHAN1:OFFS 4E0"}},
      {"slideCH2",
       [&] { dragToEnd("slideCH2", 0); },
       [&] { bench.main.slideCH2.value = 0; },
       [&] { key("slideCH2", Qt::Key_Home); },
       {":CHAN2:OFFS -8E0"}},
      {"slideTime",
       [&] { dragToEnd("slideTime", 1); },
       [&] { bench.main.slideTime.value = 0; },
       [&] { key("slideTime", Qt::Key_End); },
       {":TIM:DEL 5E-3"}},
      {"slideTrig",
       [&] { dragToEnd("slideTrig", 0); },
       [&] { bench.main.slideTrig.value = 0; },
       [&] { key("slideTrig", Qt::Key_Home); },
       {":TRIG:LEV -5E0"}},
      {"knobChan1",
       [&] { wheel("knobChan1", 1); },
       [&] { bench.main.knobChan1.value = 0; },
       [&] { key("knobChan1", Qt::Key_Up); },
       {":CHAN1:SCAL 5E-3"}},
      {"knobChan2",
       [&] { wheel("knobChan2", 3); },
       [&] { bench.main.knobChan2.value = 0; },
       [&] { key("knobChan2", Qt::Key_PageUp); },
       {":CHAN2:SCAL 2E-2"}},
      {"knobTime",
       [&] { wheel("knobTime", 40); },
       [&] { bench.main.knobTime.value = 0; },
       [&] { key("knobTime", Qt::Key_End); },
       {":TIM:SCAL 5"}},
      {"cbCh2",
       [&] { click("cbCh2"); },
       [&] { bench.main.cbCh2.value = 0; },
       [&] { key("cbCh2", Qt::Key_Space); },
       {":CHAN2:DISP 1"}},
  };
  for (const auto& c : cases) {
    takeWire();
    c.byMouse();
    EXPECT_EQ(takeWire(), c.wire) << c.what << " by mouse";
    c.undo();
    takeWire();
    c.byKeyboard();
    EXPECT_EQ(takeWire(), c.wire) << c.what << " by keyboard";
  }
}

TEST_F(FrontPanelTest, EachDialogOpensByMouseKeyboardAndMenu) {
  const struct {
    const char* button;
    const char* entry;
    const char* window;
  } cases[] = {{"cmdCh1", "mnbCh1", "frmChannel"}, {"cmdCh2", "mnbCh2", "frmChannel"},
               {"cmdTrig", "mnbTrig", "frmTrig"},  {"cmdGraph", "mnbGraph", "frmGraph"},
               {"cmdTime", nullptr, "frmTimeDiv"}, {"cmdChannel1", nullptr, "frmChDiv"}};
  for (const auto& c : cases) {
    click(c.button);
    key(c.button, Qt::Key_Space);
    Lines expected = {c.window, c.window};
    if (c.entry != nullptr) {
      find<QAction>(c.entry)->trigger();
      expected.emplace_back(c.window);
    }
    EXPECT_EQ(std::exchange(bench.windows.shown, {}), expected) << c.button;
  }
}

TEST_F(FrontPanelTest, KnobTurnsWithTheCapAndStopsAtItsEnds) {
  const int reach = find("knobChan1")->height() / 10;
  dragKnob("knobChan1", {-reach, 0}, {0, -reach});
  const double quarter = bench.main.knobChan1.value();
  EXPECT_NEAR(quarter, 3.3, 0.7);
  for (int i = 0; i < 4; ++i) dragKnob("knobChan1", {0, -reach}, {reach, reach / 4});
  EXPECT_EQ(bench.main.knobChan1.value(), 10);
  takeWire();
  key("knobChan1", Qt::Key_Up);
  wheel("knobChan1", 5);
  EXPECT_TRUE(takeWire().empty());
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

}  // namespace
}  // namespace tracewell
