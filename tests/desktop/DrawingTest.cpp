// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDebug>
#include <QLabel>
#include <QPainter>

#include "GraphView.h"
#include "MainFormTest.h"
#include "QtValues.h"
#include "Regions.h"

namespace tracewell {
namespace {

/// The graph as it is on the screen, held against graph units.
class DrawingTest : public MainFormTest {
 protected:
  DrawingTest() {
    graph.marks = [this] { return marks; };
    for (Plot& plot : graph.plots()) plot.visible = false;
    for (Axis& axis : graph.axes()) axis.gridColour = graph.plotAreaColour();
    paint();
  }

  void draw(int number, std::initializer_list<std::pair<std::int16_t, double>> points) {
    std::vector<std::int16_t> x;
    std::vector<double> y;
    for (const auto& [across, up] : points) {
      x.push_back(across);
      y.push_back(up);
    }
    graph.plot(number).visible = true;
    graph.plot(number).plotXvsY(x, y);
  }

  void paint() {
    QTest::qWait(1);
    picture = seen(view, area.geometry(), ground);
  }

  /// Ten divisions across and eight up, a margin of one pixel around them.
  QPoint at(double x, double y) const {
    return {qRound(1 + (x + 250) / 500 * (area.width() - 2)),
            qRound(1 + (200 - y) / 400 * (area.height() - 2))};
  }
  QRect around(double x, double y, int width, int height) const {
    QRect place(0, 0, width, height);
    place.moveCenter(at(x, y));
    return place.intersected(area.rect());
  }

  QRect find(QColor colour) const { return picture.find(colour); }
  QRect find(QColor colour, const QRect& where, double share = 0.4) const {
    return picture.find(colour, where, share);
  }
  QColor colourOf(int plot) const { return toQt(graph.plot(plot).lineColour()); }

  /// It reaches so many pixels around a place in graph units, give or take four at each side.
  void expectAt(QColor colour, double x, double y, int width, int height) const {
    const QRect wanted = around(x, y, width, height);
    const QRect found = find(colour);
    EXPECT_TRUE(wanted.adjusted(-4, -4, 4, 4).contains(found) &&
                found.adjusted(-4, -4, 4, 4).contains(wanted))
        << fromQt(QDebug::toString(found) + " instead of " + QDebug::toString(wanted));
  }

  /// A text has ground of its own, in a frame that leaves some room around it.
  void expectFrame(const QRect& text) const {
    const QColor mark(0xe6, 0xeb, 0xef);
    const QRect frame = find(mark, text.adjusted(-9, -9, 9, 9), 0.2);
    EXPECT_TRUE(frame.contains(text.adjusted(-3, -2, 3, 2)));
    EXPECT_TRUE(text.adjusted(-8, -8, 8, 8).contains(frame));
    EXPECT_TRUE(find(mark, frame, 0.4).isEmpty());
  }

  /// Whether the last sign of the text there is a 1, the one that has a stem from top to bottom.
  bool endsWithOne(QColor colour, QRect where) const {
    const QRect text = find(colour, where);
    EXPECT_GT(text.height(), 6);
    for (int x = text.center().x() + 1; x <= text.right(); ++x) {
      int rows = 0;
      for (int y = text.top(); y <= text.bottom(); ++y)
        if (find(colour, {x, y, 1, 1}).isValid()) ++rows;
      if (rows == text.height()) return true;
    }
    return false;
  }

  Graph& graph = main.graphDSO;
  GraphView& view = *MainFormTest::find<GraphView>("graphDSO");
  const QColor ground = toQt(graph.plotAreaColour());
  const QWidget& area = *view.findChild<QWidget*>(QStringLiteral("plot"));
  GraphMarks marks;
  Regions picture;
};

TEST_F(DrawingTest, TracesLieWhereTheirPointsAre) {
  for (int number = 1; number <= 6; ++number) {
    const double height = 200 - 60 * number;
    draw(number, {{-200, height}, {100, height}});
    for (const int style : {Plot::noPoints, Plot::dotPoints}) {
      SCOPED_TRACE(testing::Message() << number << " in style " << style);
      graph.plot(number).pointStyle = style;
      paint();
      expectAt(colourOf(number), -50, height, at(100, 0).x() - at(-200, 0).x(), 1);
      EXPECT_EQ(find(colourOf(number)).height() > 3, style == Plot::dotPoints);
    }
  }
  // Data alone, as a record brings them: that trace moves and the others stay.
  for (const int number : {2, 1}) {
    draw(number, {{-100, -60.0 * number}, {200, -60.0 * number}});
    paint();
    expectAt(colourOf(number), 50, -60 * number, at(200, 0).x() - at(-100, 0).x(), 5);
    expectAt(colourOf(3), -50, 20, at(100, 0).x() - at(-200, 0).x(), 5);
  }
}

TEST_F(DrawingTest, GridHasTenByEightDivisionsWithFiveTicksEach) {
  const QColor grid(0, 100, 0);
  for (Axis& axis : graph.axes()) axis.gridColour = fromQt(grid);
  paint();
  const auto expectLines = [&](const QRect& line, int count) {
    const auto runs = picture.runs(grid, line, 0.7);
    ASSERT_EQ(runs.size(), count);
    for (int i = 0; i < count; ++i) {
      const QPoint place = at(-200 + 50 * i, 150 - 50 * i);
      EXPECT_NEAR(runs[i].first, count == 9 ? place.x() : place.y(), 1);
      EXPECT_LT(runs[i].second - runs[i].first, 2);
    }
  };
  expectLines({at(-245, 180), at(245, 180)}, 9);
  expectLines({at(-230, 195), at(-230, -195)}, 7);
  // The middle lines, which are brighter, have ticks.
  const QPoint middle = at(0, 0);
  const QRect across(5, middle.y() - 2, area.width() - 10, 1);
  EXPECT_EQ(picture.runs(grid, across, 0.12).size(), 49);
  const QRect down(middle.x() - 2, 5, 1, area.height() - 10);
  EXPECT_EQ(picture.runs(grid, down, 0.12).size(), 39);
  EXPECT_GT(find(grid, {middle.x() - 1, 0, 3, area.height()}, 1.2).height(), area.height() - 9);
  EXPECT_TRUE(find(grid, {at(-50, 0).x(), 5, 1, 20}, 1.2).isEmpty());
}

TEST_F(DrawingTest, FocusIsAFrameAroundThePlot) {
  QFocusEvent focus(QEvent::FocusIn);
  QApplication::sendEvent(&view, &focus);
  paint();
  const QColor colour = view.palette().color(QPalette::Highlight);
  EXPECT_EQ(find(colour), area.rect());
  EXPECT_TRUE(find(colour, area.rect().adjusted(3, 3, -3, -3)).isEmpty());
}

TEST_F(DrawingTest, OldTracesArePaleOnTheScreenAlone) {
  draw(1, {{-200, 0}, {200, 0}});
  const auto strength = [&] {
    paint();
    double most = 0;
    for (const QPoint& pixel : picture.pixels(colourOf(1), area.rect(), 0.1))
      most = std::max(most, picture.shareOf(colourOf(1).rgb(), picture.picture.pixel(pixel)));
    return most;
  };
  const double usual = strength();
  graph.plot(1).pale = [] { return true; };
  graph.plot(1).notifyChanged();
  EXPECT_NEAR(strength() / usual, 0.5, 0.05);
}

TEST_F(DrawingTest, TriggerMarkPointsAtItsLevelAndStaysInside) {
  const QColor colour(129, 212, 132);
  EXPECT_EQ(find(colour), QRect());
  Cursor& marker = graph.cursor("Triger");
  marker.visible = true;
  for (const auto& [level, height] : {std::pair(60, 60), {-120, -120}, {900, 192}, {-900, -192}}) {
    SCOPED_TRACE(level);
    marker.yPosition = level;
    paint();
    const QRect found = find(colour);
    EXPECT_NEAR(found.center().y(), at(0, height).y(), 2);
    EXPECT_GT(found.left(), at(230, 0).x());
  }
}

TEST_F(DrawingTest, CursorsStandWithTheirNames) {
  const QColor active(255, 205, 198);
  const QColor other(255, 138, 128);
  for (const CursorStyle style : {CursorStyle::verticalLine, CursorStyle::horizontalLine}) {
    const bool isUpright = style == CursorStyle::verticalLine;
    const std::tuple<const char*, QColor, double, bool> cursors[] = {{"cur1", active, 150, true},
                                                                     {"cur2", other, -60, false}};
    for (const auto& [name, colour, place, isFirst] : cursors) {
      graph.cursor(name).visible = true;
      graph.cursor(name).style = style;
      (isUpright ? graph.cursor(name).xPosition : graph.cursor(name).yPosition) = place;
    }
    paint();
    for (const auto& [name, colour, place, isFirst] : cursors) {
      SCOPED_TRACE(name);
      const QRect line =
          isUpright ? around(place, 0, 3, area.height()) : around(0, place, area.width(), 3);
      const QRect found = find(colour, line);
      EXPECT_GT(isUpright ? found.height() : found.width(),
                (isUpright ? area.height() : area.width()) - 12);
      // Below the line, or behind it.
      const QPoint corner = isUpright ? at(place, 200) : at(-250, place);
      EXPECT_EQ(endsWithOne(colour, {corner + QPoint(3, 3), QSize(40, 16)}), isFirst);
    }
  }
}

TEST_F(DrawingTest, NamesAndFlagsStandAtTheHeightsOfTheirTraces) {
  draw(1, {{-200, 0}, {200, 120}});
  draw(2, {{-200, 0}, {200, -90}});
  for (const int number : {1, 2}) graph.plot(number).visible = false;
  marks.names = {{2, "two"}, {1, "one"}};
  paint();
  for (const auto& [number, height] : {std::pair(1, 120), {2, -90}}) {
    const QRect found = find(colourOf(number));
    EXPECT_NEAR(found.center().y(), at(0, height).y(), 4);
    EXPECT_NEAR(found.right(), at(200, 0).x(), 12);
    expectFrame(found);
  }
  // That of a trace which ends at the left is whole.
  const int width = find(colourOf(1)).width();
  draw(1, {{-250, 120}, {-245, 120}});
  graph.plot(1).visible = false;
  paint();
  EXPECT_NEAR(find(colourOf(1)).width(), width, 1);
  // Names stay on the screen, clear of its first and last row, and clear of each other.
  for (const double height : {0, 300, -300}) {
    for (const int number : {1, 2}) {
      draw(number, {{-200, 0}, {200, height}});
      graph.plot(number).visible = false;
    }
    paint();
    EXPECT_LT(find(colourOf(2)).bottom() + 3, find(colourOf(1)).top());
    EXPECT_GT(find(colourOf(2)).top(), 20);
    EXPECT_LT(find(colourOf(1)).bottom(), area.height() - 26);
  }
  marks = {};
  using Side = GraphMarks::Side;
  const std::tuple<Side, double> sides[] = {{{1, Side::here, 70, "1"}, 70},
                                            {{1, Side::here, -130, "1"}, -130},
                                            {{1, Side::above, 0, "1"}, 192},
                                            {{1, Side::below, 0, "1"}, -192}};
  for (const auto& [side, height] : sides) {
    SCOPED_TRACE(testing::Message() << side.direction << " " << height);
    marks.sides = {side};
    view.update();
    paint();
    const QRect found = find(colourOf(1));
    EXPECT_NEAR(found.center().y(), at(0, height).y(), 3);
    EXPECT_LT(found.right(), 20);
    // Its tip is the narrow end.
    const auto widthOf = [&](int row) { return find(colourOf(1), {0, row, 40, 1}).width(); };
    const int difference = widthOf(found.top() + 1) - widthOf(found.bottom() - 1);
    EXPECT_EQ(difference < -4, side.direction == Side::above);
    EXPECT_EQ(difference > 4, side.direction == Side::below);
  }
}

/// One that would cover another stands beside it.
TEST_F(DrawingTest, FlagsNameTheirTracesAndCoverNoOther) {
  using Side = GraphMarks::Side;
  for (const auto direction : {Side::here, Side::above, Side::below}) {
    marks.sides = {{1, direction, 50, "1"}, {2, direction, 45, "2"}};
    view.update();
    paint();
    const QRect one = find(colourOf(1));
    const QRect two = find(colourOf(2));
    EXPECT_TRUE(one.left() < 4 && two.left() > one.right() && two.left() < one.right() + 6);
    EXPECT_NEAR(one.height(), two.height(), 1);
    EXPECT_EQ(one.width() > one.height(), direction == Side::here);
    EXPECT_TRUE(area.rect().contains(one | two));
    // A black digit in its middle.
    const QRect digit = one.adjusted(3, 3, -6, -3);
    EXPECT_GT(digit.width() * digit.height() - picture.pixels(colourOf(1), digit, 0.8).size(), 8);
  }
}

TEST_F(DrawingTest, ScalesStandAboveThePlotAndTheNoteInItsCorner) {
  const QColor noteColour(255, 171, 64);
  marks.scales = {{1, "WW"}, {2, "WW"}};
  for (const bool isEnlarged : {true, false}) {
    graph.enlarged = isEnlarged;
    graph.note = "NOTE";
    paint();
    const QRect note = find(noteColour);
    EXPECT_NEAR(note.right(), area.width() - 5, 6);
    EXPECT_NEAR(note.bottom(), area.height() - 8, 8);
    const QRect strip(0, 0, area.width(), area.y());
    picture = seen(view, strip, ground);
    const QRect one = find(colourOf(1), strip);
    const QRect two = find(colourOf(2), strip);
    EXPECT_LT(one.right() + 9, two.left());
    EXPECT_TRUE(strip.marginsRemoved({6, 4, 0, 4}).contains(one | two));
    EXPECT_GT(one.height(), 10);
  }
  // Narrow, it shows the values under the pointer, which are looked at.
  graph.valuesAt = [](double, double) { return std::vector<GraphMarks::Text>{{0, "WW"}}; };
  const auto showsScales = [this](int width) {
    form->resize(width, 800);
    QApplication::processEvents();
    QTest::mouseMove(view.findChild<QWidget*>(QStringLiteral("plot")), {50, 50});
    QApplication::processEvents();
    const QRect strip(0, 0, area.width(), area.y());
    picture = seen(view, strip, ground);
    EXPECT_TRUE(find(QColor(0xe6, 0xeb, 0xef), strip).isValid());
    return find(colourOf(1), strip).isValid();
  };
  EXPECT_TRUE(showsScales(1280));
  // What is above, the plot and the line below fill the view.
  const QWidget& caption = *view.findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
  const QRect strip(0, 0, area.width(), area.y());
  EXPECT_EQ(view.findChild<QWidget*>(QStringLiteral("scales"))->geometry(), strip);
  EXPECT_EQ(caption.geometry().united(strip), view.rect());
  EXPECT_EQ(area.geometry().bottom() + 1, caption.y());
  marks.scales = {{1, std::string(100, 'W')}};
  graph.notifyChanged();
  EXPECT_FALSE(showsScales(1270));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(view.findChild<QWidget*>(QStringLiteral("plot")), &leave);
  QApplication::processEvents();
  EXPECT_TRUE(seen(view, strip, ground).find(colourOf(1)).isValid());
}

TEST_F(DrawingTest, BadgeStandsBesideTheCursors) {
  marks.badge = {{1, "WWWW"}, {2, "WWWW"}};
  // Behind the right or the lower one, where there is room.
  const std::tuple<CursorStyle, double, double> cases[] = {
      {CursorStyle::verticalLine, -150, 20},
      {CursorStyle::verticalLine, 60, 220},
      {CursorStyle::horizontalLine, 40, -30},
      {CursorStyle::horizontalLine, -60, -180}};
  for (const auto& [style, first, second] : cases) {
    for (const char* name : {"cur1", "cur2"}) {
      Cursor& cursor = graph.cursor(name);
      cursor.style = style;
      const double place = std::string(name) == "cur1" ? first : second;
      cursor.xPosition = place;
      cursor.yPosition = place;
    }
    paint();
    const QRect one = find(colourOf(1));
    const QRect two = find(colourOf(2));
    EXPECT_GT(two.top(), one.bottom());
    EXPECT_LT(two.top(), one.bottom() + 12);
    expectFrame(one | two);
    EXPECT_EQ(one.left(), two.left());
    if (style == CursorStyle::verticalLine)
      EXPECT_NEAR(first < 0 ? one.left() - at(second, 0).x() : at(first, 0).x() - one.right(), 16,
                  4);
    else
      EXPECT_NEAR(first > 0 ? one.top() - at(0, second).y() : at(0, first).y() - two.bottom(), 16,
                  6);
  }
}

TEST_F(DrawingTest, BannerStandsAtTheLowerEdgeInTheColourOfItsWeight) {
  const QColor amber(255, 171, 64);
  for (const bool isWarning : {false, true}) {
    marks.banner = {"No record", isWarning};
    graph.notifyChanged();
    paint();
    const QRect found = find(isWarning ? amber : QColor(0xe6, 0xeb, 0xef));
    EXPECT_NEAR(found.center().x(), area.width() / 2, 2);
    EXPECT_NEAR(found.bottom(), area.height() - 8, 4);
    EXPECT_TRUE(found.height() < 40 && found.width() > 60 && found.width() < 160);
    EXPECT_EQ(find(amber).isValid(), isWarning);
  }
  marks.banner.text = std::string(500, 'w');
  graph.notifyChanged();
  paint();
  EXPECT_TRUE(area.rect().adjusted(4, 0, -4, 0).contains(find(amber)));
}

}  // namespace
}  // namespace tracewell
