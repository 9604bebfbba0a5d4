// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDebug>
#include <QPainter>
#include <QTest>

#include "Bench.h"
#include "Drawn.h"
#include "GraphView.h"
#include "QtValues.h"
#include "Regions.h"
#include "Theme.h"

namespace tracewell {
namespace {

/// The graph as it is on the screen, held against graph units: each is a pixel.
class DrawingTest : public ProgramTest {
 protected:
  DrawingTest() {
    qApp->setStyleSheet(QString());
    int number = 0;
    for (const QColor colour : {Qt::red, Qt::blue, Qt::green, Qt::magenta, Qt::cyan, Qt::white})
      graph.plot(++number).lineColour = fromQt(colour);
    graph.marks = [this] { return marks; };
    graph.axis("XAxis").pale = {};
    view.setPalette(plainColours());
    view.bind(graph);
    write(12);
    clear();
    paint();
  }

  ~DrawingTest() override { applyTheme(*qApp, Theme::light); }

  /// In letters of that size.
  void write(int pixels) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    view.setFont(font);
    view.show();
    for (int i = 0; i < 2; ++i) {
      QApplication::processEvents();
      view.resize(502, 402 + view.height() - area.height());
    }
  }
  void clear() {
    for (Plot& plot : graph.plots()) plot.visible = false;
    for (Axis& axis : graph.axes()) axis.gridColour = graph.plotAreaColour();
    for (Cursor& cursor : graph.cursors()) cursor.visible = false;
    graph.note = "";
    marks = {};
    graph.notifyChanged();
  }
  void putBadge(CursorStyle style, double first, double second) {
    place("cur1", style, first);
    place("cur2", style, second);
    marks.badge = {{1, "WWWW"}, {2, "WW"}};
  }
  void place(const char* name, CursorStyle style, double position) {
    Cursor& cursor = graph.cursor(name);
    cursor.visible = true;
    cursor.style = style;
    cursor.xPosition = position;
    cursor.yPosition = position;
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

  Graph& graph = main.graphDSO;
  GraphMarks marks;
  GraphView view;
  const QColor ground = toQt(graph.plotAreaColour());
  QWidget& area = *view.findChild<QWidget*>(QStringLiteral("plot"));
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

TEST_F(DrawingTest, MarksHaveTheirPlaces) {
  using Side = GraphMarks::Side;
  using enum CursorStyle;
  const auto draw = [this](int number, std::int16_t end, double height) {
    DrawingTest::draw(number, {{-250, 0}, {end, height}});
    graph.plot(number).visible = false;
  };
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"names of traces",
       [&] {
         for (const auto& [number, end, height] :
              {std::tuple(1, 200, 120), {2, 249, -90}, {3, 200, 300}, {4, 200, 290}, {5, -245, 0}})
           draw(number, static_cast<std::int16_t>(end), height);
         marks.names = {{4, "four"}, {1, "one"}, {2, "two"}, {3, "three"}, {5, "five"}};
       }},
      {"names at the bottom",
       [&] {
         for (const int number : {1, 2}) draw(number, 200, -300);
         marks.names = {{2, "two"}, {1, "one"}};
       }},
      {"flags",
       [&] {
         marks.sides = {{1, Side::here, 70, "1"}, {2, Side::here, 66, "2"},
                        {3, Side::above, 0, "3"}, {4, Side::above, 0, "4"},
                        {5, Side::below, 0, "5"}, {6, Side::here, -130, "6"}};
       }},
      {"flags at the edges",
       [&] {
         marks.sides = {{1, Side::here, 300, "1"}, {2, Side::here, -300, "2"}};
       }},
      {"badge at the right", [&] { putBadge(verticalLine, -150, 20); }},
      {"badge at the left", [&] { putBadge(verticalLine, 220, 60); }},
      {"badge below", [&] { putBadge(horizontalLine, 40, -30); }},
      {"badge above", [&] { putBadge(horizontalLine, -180, -60); }},
      {"banner",
       [&] {
         marks.banner = {"No record", false};
       }},
      {"warning",
       [&] {
         marks.banner = {std::string(500, 'w'), true};
       }},
      {"corner",
       [&] {
         graph.note = "NOTE";
         graph.cursor("Triger").visible = true;
         graph.cursor("Triger").yPosition = 60;
       }},
      {"trigger beyond", [&] { place("Triger", marker, 900); }},
      {"cursors upright",
       [&] {
         place("cur1", verticalLine, 150);
         place("cur2", verticalLine, -60);
       }},
      {"cursors level", [&] {
         place("cur1", horizontalLine, 150);
         place("cur2", horizontalLine, -60);
       }}};
  for (const bool isLarge : {false, true}) {
    write(isLarge ? 18 : 12);
    for (const auto& [section, setUp] : cases) {
      clear();
      setUp();
      QTest::qWait(1);
      expectDrawn(area, section + std::string(isLarge ? ", large" : ""), {}, ground);
    }
  }
}

TEST_F(DrawingTest, PlotHasAStripAboveAndALineBelow) {
  for (Axis& axis : graph.axes()) axis.gridColour = fromQt(QColor(0, 100, 0));
  graph.axis("XAxis").caption = "WWWW";
  marks.scales = {{1, "WW"}, {2, "WW"}};
  graph.valuesAt = [](double, double) { return std::vector<GraphMarks::Text>{{3, "ww"}}; };
  const auto expect = [this](const char* section) {
    graph.notifyChanged();
    QTest::qWait(1);
    expectDrawn(view, section, {}, ground);
  };
  expect("graph");
  // The values under the pointer, which are looked at, take the place of scales without room.
  QTest::mouseMove(&area, {50, 50});
  expect("pointed at");
  marks.scales = {{1, std::string(100, 'W')}};
  expect("no room for scales");
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&area, &leave);
  view.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
  view.setFocus();
  expect("focused");
}

}  // namespace
}  // namespace tracewell
