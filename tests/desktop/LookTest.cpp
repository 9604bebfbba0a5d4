// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <numbers>
#include <set>

#include "ButtonSigns.h"
#include "Drawn.h"
#include "ElidedLabel.h"
#include "KnobWidget.h"
#include "LampWidget.h"
#include "LineWidget.h"
#include "Regions.h"
#include "SlideWidget.h"
#include "Theme.h"
#include "UnreadMark.h"

namespace tracewell {
namespace {

/// The panel's own widgets, in colours that tell their parts apart.
class LookTest : public testing::Test {
 protected:
  LookTest() { qApp->setStyleSheet(QString()); }
  ~LookTest() override { applyTheme(*qApp, Theme::light); }

  static void focus(QWidget& widget) {
    widget.show();
    widget.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
    widget.setFocus();
  }
  /// Give or take so many pixels each way.
  static void expectNear(QPointF place, QPointF wanted, double pixels) {
    EXPECT_NEAR(place.x(), wanted.x(), pixels);
    EXPECT_NEAR(place.y(), wanted.y(), pixels);
  }
};

class KnobLookTest : public LookTest {
 protected:
  using Detents = std::set<int>;

  KnobLookTest() {
    knob.setPalette(plainColours());
    knob.setAccent(Qt::red);
  }
  void paint(QSize size, int detents) {
    knob.resize(size);
    knob.setDetents(QStringList(detents, QStringLiteral("8")));
    picture = seen(knob);
    ring = picture.find(Qt::magenta);
    radius = ring.width() / 2.0;
  }
  /// From a quarter past seven to a quarter to five.
  double stepOf(int count) const { return 1.5 * std::numbers::pi / (count - 1); }
  QPoint at(int detent, int count, double distance) const {
    const double angle = 1.25 * std::numbers::pi - detent * stepOf(count);
    return (knob.centre() + QPointF(std::cos(angle), -std::sin(angle)) * distance).toPoint();
  }
  /// The detents on whose rays that colour lies so far from the centre; -1 for what lies beside.
  Detents detents(QColor colour, double from, double to, double beside) const {
    Detents found;
    const double step = stepOf(knob.lastDetent() + 1);
    for (const QPoint& pixel : picture.pixels(colour, knob.rect())) {
      const QPointF place = pixel + QPointF(0.5, 0.5) - knob.centre();
      const double distance = std::hypot(place.x(), place.y());
      if (distance < from || distance > to) continue;
      const double upright = std::atan2(place.x(), -place.y());
      const double detent = (upright + 0.75 * std::numbers::pi) / step;
      const double aside = distance * std::sin((detent - std::round(detent)) * step);
      found.insert(std::fabs(aside) < beside ? static_cast<int>(std::lround(detent)) : -1);
    }
    return found;
  }

  KnobWidget knob;
  Regions picture;
  QRect ring;
  double radius = 0;
};

TEST_F(KnobLookTest, ItPointsAtItsValueAmongAsManyCaptionsAsHaveRoom) {
  // How many detents, the chosen one, and the others with a caption.
  const std::tuple<int, int, Detents> cases[] = {{12, 5, {0, 1, 2, 3, 4, 6, 7, 8, 9, 10, 11}},
                                                 {13, 4, {0, 6, 9, 12}},
                                                 {29, 5, {0, 8, 12, 16, 20, 24, 28}}};
  for (const auto& [size, growth] : {std::pair(QSize(200, 180), 1.0), {QSize(330, 310), 1.6}}) {
    for (const auto& [count, value, named] : cases) {
      SCOPED_TRACE(testing::Message() << size.width() << ": " << value << " of " << count);
      knob.setPale(true);
      paint(size, count);
      EXPECT_TRUE(picture.find(Qt::red).isEmpty());
      knob.setPale(false);
      knob.setValue(value);
      paint(size, count);
      expectNear(QRectF(ring).center(), knob.centre(), 1);
      EXPECT_NEAR(ring.width(), ring.height(), 1);
      // A mark on the outer half of the cap, the ticks around it, the captions beyond.
      const double thick = radius / 24 + 2;
      const double end = radius + 9.2 * growth;
      const Detents chosen = {value};
      EXPECT_EQ(detents(Qt::red, 0, radius * 0.38, thick), Detents());
      EXPECT_EQ(detents(Qt::red, radius * 0.5, radius * 0.8, thick), chosen);
      EXPECT_EQ(detents(Qt::red, radius * 0.92, radius + 2, thick), Detents());
      EXPECT_EQ(detents(Qt::red, radius, end, 2), chosen);
      Detents others = detents(Qt::blue, 0, end, 2);
      EXPECT_TRUE(others.insert(value).second && *others.begin() == 0);
      EXPECT_EQ(others.size(), static_cast<std::size_t>(count));
      EXPECT_EQ(detents(Qt::red, end, 999, 9 * growth), chosen);
      EXPECT_EQ(detents(Qt::blue, end, 999, 9 * growth), named);
      const QPoint first = at(0, count, radius + 11 * growth + 5);
      EXPECT_NEAR(picture.find(Qt::blue, {first - QPoint(9, 9), QSize(19, 19)}).height(),
                  10.8 * growth, 1.5);
      // As large as it can be, with room for a question mark in the gap.
      const QRect all = picture.find(Qt::red) | picture.find(Qt::blue) | ring;
      const QRect mark = QRect(0, 0, 13, 13).translated(knob.gap().toPoint() - QPoint(6, 6));
      EXPECT_TRUE(knob.rect().contains(mark | all) && !mark.intersects(all));
      EXPECT_NEAR(mark.center().x(), ring.center().x(), 2);
      EXPECT_NEAR(all.left(), knob.width() - 1 - all.right(), 4);
      EXPECT_TRUE(all.left() < 8 || all.top() + knob.height() - mark.bottom() < 14);
    }
  }
}

TEST_F(KnobLookTest, ItsPartsHaveTheirPlaces) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(14);
  knob.setFont(font);
  const QStringList scales = {"2m",   "5m",   "10m", "20m", "50m", "100m",
                              "200m", "500m", "1",   "2",   "5"};
  knob.setUnit(QStringLiteral("V"));
  QObject::connect(&knob, &KnobWidget::turned, &knob, &KnobWidget::setValue);
  for (const QSize size : {QSize(200, 180), QSize(400, 300), QSize(120, 120)}) {
    knob.resize(size);
    knob.setDetents(scales);
    knob.setValue(5);
    expectDrawn(knob, "knob " + std::to_string(size.width()));
  }
  knob.resize(200, 180);
  QPalette colours = plainColours();
  colours.setColor(QPalette::Button, QColor(0, 100, 100));
  knob.setPalette(colours);
  expectDrawn(knob, "cap of a knob");
  knob.setPalette(plainColours());
  knob.setDetents({QStringLiteral("off"), QStringLiteral("on")});
  knob.setValue(1);
  expectDrawn(knob, "knob of two");
  knob.setDetents(scales);
  knob.setValue(5);
  focus(knob);
  expectDrawn(knob, "knob in the hand", [&](const QString&) { return knob.inWords(); });
}

TEST_F(KnobLookTest, AClickBesideTheCapChoosesAndTheCapIsOnlyTakenHoldOf) {
  paint({300, 280}, 12);
  const QSignalSpy turned(&knob, &KnobWidget::turned);
  for (int detent = 0; detent < 12; ++detent) {
    QTest::mouseClick(&knob, Qt::RightButton, {}, at(detent, 12, radius + 4));
    QTest::mouseClick(&knob, Qt::LeftButton, {}, at(detent, 12, radius - 3));
    EXPECT_EQ(turned.size(), detent);
    QTest::mouseClick(&knob, Qt::LeftButton, {}, at(detent, 12, radius + 4));
    EXPECT_EQ(turned.value(detent).value(0), detent);
  }
  focus(knob);
  EXPECT_EQ(seen(knob).find(Qt::yellow).center(), ring.center());
}

/// In the middle of the cap, in another colour where it is no value.
TEST_F(KnobLookTest, WhatIsTypedStandsOnTheCapUntilItIsGivenUp) {
  const QColor isNone(0xe5, 0x53, 0x45);
  for (const auto& [key, colour] :
       {std::pair(Qt::Key_7, QColor(Qt::yellow)), {Qt::Key_X, isNone}}) {
    QTest::keyClick(&knob, key);
    paint({300, 280}, 1);
    const QRect frame = picture.find(colour);
    const QRect text = picture.find(Qt::blue, frame);
    expectNear(frame.center(), knob.centre(), 2);
    expectNear(text.center(), frame.center(), 3);
    EXPECT_TRUE(text.width() > 4 && frame.height() < 40 && frame.width() > 4 * text.width());
  }
  QTest::keyClick(&knob, Qt::Key_Escape);
  EXPECT_TRUE(seen(knob).find(isNone).isEmpty());
}

TEST_F(LookTest, SlidesPointAtTheirValuesAndAreMoved) {
  for (const bool isUpright : {true, false}) {
    SlideWidget slide;
    slide.setPalette(plainColours());
    slide.setAccent(Qt::red);
    slide.setOrientation(isUpright ? Qt::Vertical : Qt::Horizontal);
    slide.resize(isUpright ? QSize(60, 400) : QSize(400, 60));
    // The value, and a dot when it is let go.
    QString told;
    QObject::connect(&slide, &SlideWidget::dragged, &slide, [&](double to) {
      slide.setValue(to);
      told += slide.inWords();
    });
    QObject::connect(&slide, &SlideWidget::released, &slide, [&] { told += QLatin1Char('.'); });
    const auto expect = [&](const std::string& section) {
      expectDrawn(slide, section + (isUpright ? ", upright" : ", level"),
                  [&](const QString&) { return std::exchange(told, QString()); });
    };
    const std::tuple<const char*, double, double, double, double> ranges[] = {
        {"-4 to 4", -4, 4, 0.1, -4},
        {"-2.5 to 2.5", -2.5, 2.5, 0.1, 1},
        {"-10 to 10", -10, 10, 0.1, 99},
        {"-40 to 60", -40, 60, 1, 10}};
    for (const auto& [name, minimum, maximum, step, value] : ranges) {
      slide.setRange(minimum, maximum, step);
      slide.setValue(value);
      expect(name);
    }
    slide.setPale(true);
    expect("pale");
    slide.setPale(false);
    slide.setEnabled(false);
    expect("out of reach");
    slide.setEnabled(true);
    focus(slide);
    expect("focused");
    slide.setRange(-4, 4, 0.1);
    slide.setNumbered(true);
    slide.resize(isUpright ? QSize(slide.sizeHint().width(), 400) : QSize(400, 60));
    slide.setValue(0);
    expect("numbered");
    slide.setInWords(QStringLiteral("2.5 V"));
    EXPECT_EQ(slide.inWords(), QStringLiteral("2.5 V"));
  }
}

TEST_F(LookTest, SignsStandOnButtonsAndLamps) {
  QWidget window;
  window.setPalette(plainColours());
  window.resize(300, 40);
  QPushButton sign(&window), swatch(&window);
  for (QPushButton* button : {&sign, &swatch}) button->setFlat(true);
  sign.setGeometry(0, 0, 40, 40);
  sign.setProperty("sign", "instrument");
  showSign(sign);
  sign.setIconSize({32, 32});
  swatch.setGeometry(50, 0, 60, 40);
  showSwatch(swatch, Qt::red);
  LampWidget lamp(&window);
  lamp.setGeometry(120, 0, 50, 40);
  lamp.setColour(QColor(0, 160, 0));
  LineWidget line(&window);
  line.setGeometry(180, 0, 100, 40);
  line.setLine(Qt::yellow, false);
  expectDrawn(window, "signs");
  line.setLine(Qt::yellow, true);
  sign.setPalette(QPalette(Qt::red, Qt::black));
  expectDrawn(window, "signs in another colour");
}

TEST_F(LookTest, MarksOfWhatIsNotToldStandBesideIt) {
  QWidget window;
  window.setPalette(plainColours());
  window.resize(400, 300);
  QLabel label(QStringLiteral("ww"), &window), centred(QStringLiteral("ww"), &window),
      narrow(QStringLiteral("wwwwwwww"), &window);
  centred.setAlignment(Qt::AlignCenter);
  QLineEdit line(&window);
  QPushButton button(QStringLiteral("ww"), &window), lock(QStringLiteral("ww"), &window);
  lock.setProperty("kind", "lock");
  QComboBox box(&window);
  QCheckBox tick(QStringLiteral("ww"), &window);
  KnobWidget knob(&window);
  knob.setDetents({QStringLiteral("8"), QStringLiteral("8")});
  QListWidget list(&window);
  QWidget* const parts[] = {&label, &centred, &narrow, &line, &button, &lock, &box, &tick};
  int row = 0;
  for (QWidget* part : parts) part->setGeometry(0, 30 * row++, part == &narrow ? 60 : 160, 30);
  knob.setGeometry(200, 0, 180, 180);
  list.setGeometry(200, 200, 180, 90);
  for (QWidget* part : parts) UnreadMark::show(*part, true);
  UnreadMark::show(knob, true);
  UnreadMark::show(list, true);
  expectDrawn(window, "not told");
  EXPECT_GT(button.minimumWidth(), button.sizeHint().width());
  EXPECT_EQ(line.textMargins().right(), UnreadMark::room);
}

TEST_F(LookTest, SentencesFollowEachOtherWithTheSignsOfTheirWeight) {
  ElidedLabel line;
  line.setPalette(plainColours());
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(12);
  line.setFont(font);
  line.setProperty("warningColour", QColor(Qt::red));
  line.setText(QStringLiteral("wwww wwww wwww"));
  line.setSentences({{QStringLiteral("wwww"), true}, {QStringLiteral("wwww wwww"), false}});
  const auto tip = [&] {
    QHelpEvent event(QEvent::ToolTip, {5, 5}, {5, 5});
    QToolTip::hideText();
    QApplication::sendEvent(&line, &event);
    return QToolTip::text();
  };
  // What has no room ends in dots, and is told by the tip.
  const QString wholeTip = QStringLiteral("wwww\nwwww wwww");
  for (const int width : {300, 150, 110, 50, 30}) {
    line.resize(width, 20);
    expectDrawn(line, "sentences in " + std::to_string(width));
    EXPECT_EQ(tip(), width == 300 ? QString() : wholeTip);
  }
  // A warning behind others keeps its sign.
  line.setSentences({{QStringLiteral("wwww wwww"), false},
                     {QStringLiteral("wwww"), false},
                     {QStringLiteral("wwww wwww"), true}});
  line.resize(150, 20);
  expectDrawn(line, "warning behind others");
  line.setSentences({{QStringLiteral("www <w> ").repeated(100), true}});
  tip();
  for (const QWidget* shown : QApplication::topLevelWidgets()) {
    if (shown->windowType() == Qt::ToolTip) {
      EXPECT_LT(shown->width(), shown->screen()->geometry().width());
    }
  }
  line.setSentences({});
  line.setFrameShape(QFrame::Box);
  line.resize(60, 30);
  expectDrawn(line, "line that is cut");
}

}  // namespace
}  // namespace tracewell
