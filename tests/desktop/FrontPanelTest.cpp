// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QGraphicsEffect>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QWheelEvent>

#include "DesktopWindows.h"
#include "KnobWidget.h"
#include "MainFormTest.h"
#include "Numbers.h"
#include "Played.h"
#include "QtValues.h"
#include "UnreadMark.h"

namespace tracewell {

namespace {

void wheel(QWidget& widget, double notches) {
  const QPointF at = widget.rect().center();
  QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, static_cast<int>(120 * notches)},
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &event);
}

/// Takes hold of a slide somewhere and lets go at an end of it.
void dragToEnd(QWidget& slide, bool isHigh) {
  const bool isVertical = slide.height() > slide.width();
  const int along = isVertical != isHigh ? (isVertical ? slide.height() : slide.width()) : 0;
  drag(slide, slide.rect().center(),
       isVertical ? QPoint(slide.width() / 2, along) : QPoint(along, 9));
}

}  // namespace

using FrontPanelTest = MainFormTest;

TEST_F(FrontPanelTest, KnobTurnsWithTheCapAndStopsAtItsEnds) {
  KnobWidget& knob = *find<KnobWidget>("knobChan1");
  const QPoint centre = knob.centre().toPoint();
  const int reach = knob.height() / 10;
  drag(knob, centre - QPoint(reach, 0), centre - QPoint(0, reach));
  EXPECT_NEAR(main.knobChan1.value(), 3.3, 0.7);
  for (int i = 0; i < 4; ++i)
    drag(knob, centre - QPoint(0, reach), centre + QPoint(reach, reach / 4));
  EXPECT_EQ(main.knobChan1.value(), 10);
  takeWire();
  QTest::keyClick(&knob, Qt::Key_Up);
  wheel(knob, 5);
  EXPECT_TRUE(takeWire().empty());
  // The first caption of a knob stands at the lower left, outside the cap.
  QTest::mouseClick(&knob, Qt::LeftButton, {},
                    {knob.width() / 2 - knob.height() / 2 + 4, knob.height() - 6});
  EXPECT_EQ(takeWire(), Lines{":CHAN1:SCAL 2E-3"});
  // A touchpad sends pieces of a notch.
  for (int i = 0; i < 3; ++i) wheel(*find("slideCH1"), 0.5);
  EXPECT_NEAR(main.slideCH1.value(), 0.1, 1e-9);
  EXPECT_EQ(takeWire().size(), 1u);
  EXPECT_EQ(find<QLabel>("slideCH1_caption")->text(), toQt(main.slideCH1.caption()));
}

TEST_F(FrontPanelTest, KnobTakesATypedValue) {
  const std::tuple<const char*, int, const char*, int> cases[] = {
      // From a detent, what is typed, to a detent.
      {"knobChan1", 0, "500m", 7},
      {"knobChan1", 0, ".5V", 7},
      {"knobChan1", 0, "500", 7},
      {"knobChan1", 8, "2", 9},
      {"knobChan1", 4, "2", 0},
      {"knobChan1", 3, "300m", 6},
      {"knobTime", 16, "20", 12},
      {"knobTime", 3, "20", 3},
      {"knobTime", 3, "20\u03bc", 12},
      {"knobTime", 16, "20N", 3},
      {"knobTime", 5, "99s", 28},
      {"knobTime", 28, "0", 28},
      {"knobTime", 28, "..", 28},
      {"knobTime", 9, ".5m", 16},
      {"knobChan1", 3, "0,5", 7},
      {"knobChan1", 3, "1.8 V", 9},
      // No scale reads so.
      {"knobChan1", 5, "0.0001", 0},
      {"knobChan1", 5, "999999", 10},
      // No value.
      {"knobChan1", 5, "-5", 5},
      {"knobChan1", 5, "2e1", 5},
      {"knobChan1", 5, "5s", 5},
      {"knobChan1", 5, "1,5,", 5},
  };
  for (const auto& [name, from, typed, wanted] : cases) {
    SCOPED_TRACE(testing::Message() << name << " " << typed);
    auto& knob = name == std::string("knobTime") ? main.knobTime : main.knobChan1;
    knob.value = from;
    for (const QChar letter : QString::fromUtf8(typed))
      QTest::sendKeyEvent(QTest::Click, find(name), Qt::Key_unknown, letter, Qt::NoModifier);
    EXPECT_EQ(knob.value(), from);
    QTest::keyClick(find(name), Qt::Key_Return);
    EXPECT_EQ(knob.value(), wanted);
    QTest::keyClick(find(name), Qt::Key_Escape);
  }
  for (const Qt::Key givesUp : {Qt::Key_Escape, Qt::Key_Backspace}) {
    QTest::keyClick(find("knobTime"), Qt::Key_1);
    QTest::keyClick(find("knobTime"), givesUp);
    QTest::keyClick(find("knobTime"), Qt::Key_Return);
    EXPECT_EQ(main.knobTime.value(), 16);
  }
}

/// A user with real windows: by mouse, or by keyboard. What there is no simple way for with either,
/// such as a slide's exact value, the control does by itself.
class Hands : public Played {
 public:
  explicit Hands(bool areOnKeys) : areOnKeys_(areOnKeys) {
    desktop_.show(main);
    watchNotice();
    watchGraph();
  }

 private:
  void opened(Window& window) override {
    QTimer::singleShot(0, &timer_, [this, &window] {
      playIn(window);
      // The script leaves it open.
      if (window.isVisible()) desktop_.hide(window);
    });
    desktop_.showModal(window);
  }
  void hidden(Window& window) override { desktop_.hide(window); }
  void unloaded(Window& window) override { desktop_.unload(window); }

  QWidget& formOf(const Window& window) {
    return *desktop_.widgetOf(*window.controls().back())->window();
  }
  void close(Window& window) override {
    if (areOnKeys_)
      QTest::keyClick(&formOf(window), Qt::Key_Escape);
    else
      formOf(window).close();
  }

  void use(Control& control, const std::string& value) override {
    QWidget* widget = desktop_.widgetOf(control);
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
      press(*button);
    else if (auto* box = qobject_cast<QComboBox*>(widget);
             box != nullptr && box->isEditable() && !value.starts_with('#'))
      write(*box->lineEdit(), value, Qt::Key_Tab);
    else if (auto* slide = dynamic_cast<Slide*>(&control); slide != nullptr && isEnd(*slide, value))
      moveToEnd(*widget, value.starts_with('-'));
    else if (auto* knob = dynamic_cast<Knob*>(&control))
      turn(*widget, *knob, std::stoi(value));
    else if (auto* line = qobject_cast<QLineEdit*>(widget); line != nullptr && value.ends_with('~'))
      write(*line, value.substr(0, value.size() - 1), Qt::Key_Return);
    else if (qobject_cast<QLabel*>(widget) != nullptr)
      QTest::mouseDClick(widget, Qt::LeftButton);
    else if (auto* action = formOf(main).findChild<QAction*>(toQt(control.objectName())))
      action->trigger();
    else
      Played::use(control, value);
  }

  /// The caption of a slide, otherwise the widget itself; none while there is no form.
  QWidget* placeOfMark(const Control& control) const {
    QWidget* widget = desktop_.widgetOf(control);
    const QString caption = toQt(control.objectName()) + "_caption";
    QWidget* label = widget == nullptr ? nullptr : widget->window()->findChild<QLabel*>(caption);
    return label == nullptr ? widget : label;
  }
  bool looksUnread(const Control& control) const override {
    const QWidget* widget = placeOfMark(control);
    if (widget == nullptr) return Played::looksUnread(control);
    const auto* mark = widget->findChild<UnreadMark*>({}, Qt::FindDirectChildrenOnly);
    return mark != nullptr && mark->isVisibleTo(widget);
  }
  bool looksStale(const Control& control) const override {
    const QWidget* widget = placeOfMark(control);
    if (widget == nullptr) return Played::looksStale(control);
    const bool isPale = widget->graphicsEffect() != nullptr;
    EXPECT_EQ(desktop_.widgetOf(control)->graphicsEffect() != nullptr, isPale);
    return isPale;
  }

  void press(QAbstractButton& button) {
    const bool isPush = qobject_cast<QPushButton*>(&button) != nullptr;
    const QPoint place = isPush ? button.rect().center() : QPoint(8, button.height() / 2);
    // In the console Enter sends the line.
    const bool isDefault = button.objectName() == QLatin1String("cmdOK") &&
                           button.window()->objectName() != QLatin1String("frmCmd");
    if (!areOnKeys_)
      QTest::mouseClick(&button, Qt::LeftButton, {}, place);
    else if (isDefault)
      QTest::keyClick(button.window(), Qt::Key_Return);
    else
      QTest::keyClick(&button, Qt::Key_Space);
  }
  static bool isEnd(const Slide& slide, const std::string& value) {
    const Slide::Range& range = slide.range();
    return value == numberText(range.minimum) || value == numberText(range.maximum);
  }
  void moveToEnd(QWidget& slide, bool isLow) {
    if (areOnKeys_)
      QTest::keyClick(&slide, isLow ? Qt::Key_Home : Qt::Key_End);
    else
      dragToEnd(slide, !isLow);
  }

  void turn(QWidget& widget, Knob& knob, int detent) {
    const double steps = detent - knob.value();
    const std::map<double, Qt::Key> keys = {
        {1, Qt::Key_Up}, {-1, Qt::Key_Down}, {3, Qt::Key_PageUp}, {-3, Qt::Key_PageDown}};
    if (!areOnKeys_)
      wheel(widget, steps);
    else if (detent == 0 || detent + 1 == std::ssize(knob.detents()))
      QTest::keyClick(&widget, detent == 0 ? Qt::Key_Home : Qt::Key_End);
    else if (keys.contains(steps))
      QTest::keyClick(&widget, keys.at(steps));
    else
      Played::use(knob, std::to_string(detent));
  }

  static void write(QLineEdit& line, const std::string& text, Qt::Key end) {
    line.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(line.window()));
    line.setFocus();
    line.selectAll();
    QWidget* const focused = line.window()->focusWidget();
    QTest::keyClick(focused, Qt::Key_Backspace);
    QTest::keyClicks(focused, toQt(text));
    QTest::keyClick(focused, end);
  }

  bool areOnKeys_;
  QObject timer_;
  DesktopWindows desktop_{folder.path()};
};

class HandsTest : public testing::TestWithParam<std::tuple<const char*, bool>> {};

TEST_P(HandsTest, RealWidgetsComeToTheSame) {
  const auto& [file, areOnKeys] = GetParam();
  playFile(file, [areOnKeys = areOnKeys](const std::string& script) {
    return Hands(areOnKeys).play(script);
  });
}

INSTANTIATE_TEST_SUITE_P(Files, HandsTest,
                         testing::Combine(testing::Values("link.txt", "panel.txt", "view.txt",
                                                          "files.txt", "truth.txt"),
                                          testing::Bool()));

/// It gets the release of the button.
TEST_F(FrontPanelTest, DialogThatOpensTakesASlideOutOfTheHand) {
  QWidget& slide = *find("slideCH1");
  QTest::mousePress(&slide, Qt::LeftButton, {}, {slide.width() / 2, 0});
  EXPECT_TRUE(main.slideCH1.isHeld());
  takeWire();
  QDialog dialog(form.get());
  dialog.open();
  QApplication::processEvents();
  EXPECT_FALSE(main.slideCH1.isHeld());
  EXPECT_TRUE(takeWire().empty());
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
