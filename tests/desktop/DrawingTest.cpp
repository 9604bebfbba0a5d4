// SPDX-License-Identifier: GPL-3.0-or-later
#include <QLabel>
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

  void expect(QWidget& shown, const std::string& section) {
    QTest::qWait(1);
    expectDrawn(shown, section, {}, ground);
  }

  Graph& graph = main.graphDSO;
  GraphMarks marks;
  GraphView view;
  const QColor ground = toQt(graph.plotAreaColour());
  QWidget& area = *view.findChild<QWidget*>(QStringLiteral("plot"));
};

TEST_F(DrawingTest, TracesLieWhereTheirPointsAre) {
  for (int number = 1; number <= 6; ++number)
    draw(number, {{-200, 200 - 60.0 * number}, {100, 200 - 60.0 * number}});
  expect(area, "traces");
  for (Plot& plot : graph.plots()) plot.pointStyle = Plot::dotPoints;
  expect(area, "traces of dots");
  // Data alone, as a record brings them: that trace moves and the others stay.
  for (const int number : {2, 1}) draw(number, {{-100, -50.0 * number}, {200, -50.0 * number}});
  expect(area, "new records");
  for (const int number : {1, 4}) {
    graph.plot(number).pale = [] { return true; };
    graph.plot(number).notifyChanged();
  }
  graph.note = "NOTE";
  marks.banner = {"No record", false};
  expect(area, "old traces");
  QLabel picture;
  picture.setAlignment(Qt::AlignTop);
  const auto expectPicture = [&](const char* section) {
    picture.setPixmap(view.picture());
    picture.resize(picture.pixmap().size());
    expect(picture, section);
  };
  expectPicture("picture of old traces");
  for (Plot& plot : graph.plots()) plot.pointStyle = Plot::noPoints;
  for (Axis& axis : graph.axes()) axis.gridColour = fromQt(QColor(0, 100, 0));
  place("cur1", CursorStyle::horizontalLine, 100);
  view.resize(2402, view.height());
  expectPicture("large picture");
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
      expect(area, section + std::string(isLarge ? ", large" : ""));
    }
  }
}

TEST_F(DrawingTest, CursorsFollowTheMouseAndTheArrowKeys) {
  // Where they are and what they are, and the shape of the pointer.
  const auto told = [this](const QString&) {
    QStringList said;
    for (const char* name : {"cur1", "cur2", "Triger"})
      said << QStringLiteral("%1,%2")
                  .arg(graph.cursor(name).xPosition())
                  .arg(graph.cursor(name).yPosition());
    if (graph.enlarged()) said << QStringLiteral("enlarged");
    const std::map<Qt::CursorShape, const char*> shapes = {
        {Qt::CrossCursor, "cross"}, {Qt::SplitHCursor, "across"}, {Qt::SplitVCursor, "up"}};
    const auto shape = shapes.find(area.cursor().shape());
    return (said << (shape == shapes.end() ? "" : shape->second)).join(QLatin1Char(' '));
  };
  main.knobTime.turn(18);
  place("Triger", CursorStyle::marker, -100);
  for (auto* const option : {&main.opTime, &main.opVoltage}) {
    option->select();
    QTest::qWait(1);
    const std::string which = option == &main.opTime ? "upright" : "level";
    expectDrawn(view, "keys and cursors " + which, told);
    expectDrawn(area, "mouse and cursors " + which, told);
  }
  EXPECT_TRUE(graph.axis("XAxis").caption().starts_with("P1 = "));
}

TEST_F(DrawingTest, PlotHasAStripAboveAndALineBelow) {
  for (Axis& axis : graph.axes()) axis.gridColour = fromQt(QColor(0, 100, 0));
  graph.axis("XAxis").caption = "WWWW";
  marks.scales = {{1, "WW"}, {2, "WW"}};
  graph.valuesAt = [](double, double) { return std::vector<GraphMarks::Text>{{3, "ww"}}; };
  const auto expect = [this](const char* section) {
    graph.notifyChanged();
    DrawingTest::expect(view, section);
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
