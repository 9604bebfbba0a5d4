// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <numbers>
#include <set>

#include "ElidedLabel.h"
#include "KnobWidget.h"
#include "Regions.h"
#include "SlideWidget.h"
#include "Theme.h"

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

class SlideLookTest : public LookTest, public testing::WithParamInterface<Qt::Orientation> {
 protected:
  SlideLookTest() {
    slide.setPalette(plainColours());
    slide.setAccent(Qt::red);
    slide.setOrientation(GetParam());
    slide.resize(at(400, 60).x(), at(400, 60).y());
  }
  /// Turned so that it lies across, with its low end at the left.
  QRect turned(const QRect& found) const {
    return isUpright ? QRect(399 - found.bottom(), found.x(), found.height(), found.width())
                     : found;
  }
  QPoint at(int along, int across) const {
    return isUpright ? QPoint(across, along) : QPoint(along, across);
  }
  QPoint place(double along) const {
    return at(isUpright ? 399 - qRound(along) : qRound(along), 20);
  }
  /// Where a line along the slide crosses that colour, from the low end.
  std::vector<double> crossed(QColor colour, int across) const {
    std::vector<double> found;
    const QRect line(at(0, across), QSize(at(400, 1).x(), at(400, 1).y()));
    for (const auto& [from, to] : picture.runs(colour, line))
      found.push_back(isUpright ? 399 - (from + to) / 2.0 : (from + to) / 2.0);
    std::ranges::sort(found);
    return found;
  }

  const bool isUpright = GetParam() == Qt::Vertical;
  SlideWidget slide;
  Regions picture;
};

TEST_P(SlideLookTest, ItPointsAtItsValueAmongItsMarks) {
  // The range and the value; how many marks, which one is that of zero, and what is between two.
  const std::tuple<double, double, double, int, int, double> cases[] = {
      {-4, 4, -4, 9, 4, 1},     {-4, 4, 99, 9, 4, 1},     {-2.5, 2.5, 1, 5, 2, 1},
      {-10, 10, -7, 21, 10, 1}, {-40, 60, 10, 11, 4, 10}, {0, 100, 30, 11, 0, 10}};
  for (const auto& [minimum, maximum, value, count, zero, between] : cases) {
    SCOPED_TRACE(testing::Message() << minimum << " to " << maximum << ": " << value);
    slide.setRange(minimum, maximum, between / 10);
    slide.setValue(value);
    picture = seen(slide);
    const QRect pointer = turned(picture.find(Qt::red));
    const QRect groove = turned(picture.find(Qt::green)) | pointer;
    const QRect marks = turned(picture.find(Qt::blue));
    const std::vector<double> places = crossed(Qt::blue, marks.top() + 1);
    ASSERT_EQ(places.size(), static_cast<std::size_t>(count));
    // That of zero alone is longer.
    ASSERT_EQ(crossed(Qt::blue, marks.bottom() - 1).size(), 1U);
    const double from = crossed(Qt::blue, marks.bottom() - 1)[0];
    const double unit = (places.back() - places.front()) / (count - 1) / between;
    for (int i = 0; i < count; ++i)
      EXPECT_NEAR(places[static_cast<std::size_t>(i)], from + (i - zero) * unit * between, 1.2);
    EXPECT_NEAR(pointer.center().x(), from + unit * std::min(value, maximum), 1.5);
    // The ends of the range are those of the groove, which is within the widget and below the
    // marks.
    EXPECT_NEAR(from + unit * minimum, 9, 3);
    EXPECT_NEAR(from + unit * maximum, 390, 3);
    EXPECT_TRUE(groove.left() >= 0 && groove.left() < 9 && groove.right() > 390 &&
                groove.right() < 400);
    EXPECT_TRUE(pointer.bottom() < marks.top() + 1 && pointer.width() < pointer.height());
    EXPECT_NEAR(pointer.center().y(), groove.center().y(), 1);
    QSignalSpy dragged(&slide, &SlideWidget::dragged);
    QTest::mousePress(&slide, Qt::RightButton, {}, place(200));
    QTest::mouseMove(&slide, {1, 1});
    EXPECT_TRUE(dragged.isEmpty());
    for (int i = 0; i < count; ++i) {
      QTest::mouseClick(&slide, Qt::LeftButton, {}, place(places[static_cast<std::size_t>(i)]));
      EXPECT_NEAR(dragged.last().at(0).toDouble(), (i - zero) * between, 0.11 * between);
    }
  }
}

TEST_P(SlideLookTest, ItsLookSaysWhetherItIsKnownUsableAndFocused) {
  slide.setPale(true);
  EXPECT_TRUE(seen(slide).find(Qt::red).isEmpty());
  slide.setPale(false);
  slide.setEnabled(false);
  EXPECT_TRUE(seen(slide).find(Qt::red, slide.rect(), 0.9).isEmpty());
  slide.setEnabled(true);
  focus(slide);
  EXPECT_TRUE(seen(slide).find(Qt::yellow).contains(seen(slide).find(Qt::red)));
  if (!isUpright) return;
  // A number beside each mark; the track keeps to the middle.
  slide.setNumbered(true);
  slide.setRange(-4, 4, 0.1);
  slide.resize(slide.sizeHint().width(), 400);
  picture = seen(slide);
  EXPECT_NEAR(picture.find(Qt::red).center().x(), slide.width() / 2.0, 8);
  const int right = slide.width() / 2 + 16;
  EXPECT_EQ(picture.runs(Qt::blue, {right, 0, slide.width() - right, 400}).size(), 9);
}

INSTANTIATE_TEST_SUITE_P(Both, SlideLookTest, testing::Values(Qt::Vertical, Qt::Horizontal));

TEST_F(LookTest, SentencesFollowEachOtherWithTheSignsOfTheirWeight) {
  ElidedLabel line;
  line.setPalette(plainColours());
  line.setProperty("warningColour", QColor(Qt::red));
  line.setText(QStringLiteral("wwww wwww wwww"));
  line.setSentences({{QStringLiteral("wwww"), true}, {QStringLiteral("wwww wwww"), false}});
  const int letter = line.fontMetrics().ascent();
  const auto tip = [&] {
    QHelpEvent event(QEvent::ToolTip, {5, 5}, {5, 5});
    QToolTip::hideText();
    QApplication::sendEvent(&line, &event);
    return QToolTip::text();
  };
  line.resize(300, 20);
  const Regions picture = seen(line);
  const QRect told = picture.find(Qt::blue);
  const QRect disc = picture.find(QColor(0x2e, 0x75, 0x50));
  const QRect warned = picture.find(Qt::red);
  const QRect triangle = picture.find(Qt::red, {0, 0, letter * 5 / 4, 20});
  EXPECT_TRUE(triangle.left() < 3 && triangle.height() >= letter - 1);
  EXPECT_LT(picture.find(Qt::red, {0, triangle.top() + 1, triangle.width(), 2}).width(), 6);
  EXPECT_NEAR(warned.width() - letter * 3 / 2, (told.width() - 4) / 2, 3);
  EXPECT_NEAR(disc.left() - warned.right(), letter, 3);
  EXPECT_NEAR(disc.width(), disc.height(), 1);
  EXPECT_TRUE(told.left() > disc.right() && told.left() < disc.right() + 8);
  EXPECT_EQ(tip(), QString());
  // What has no room ends in dots, and is told by the tip.
  for (const auto& [width, colour] : {std::pair(told.right() - 6, Qt::blue),
                                      {disc.right(), Qt::blue},
                                      {warned.right() - 4, Qt::red}}) {
    line.resize(width, 20);
    EXPECT_EQ(tip(), line.text());
    const int end = seen(line).find(colour).right();
    EXPECT_TRUE(end < width && end > width - 2 * letter) << width;
  }
}

}  // namespace
}  // namespace tracewell
