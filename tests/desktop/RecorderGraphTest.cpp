// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderGraph.h"

#include <QSignalSpy>
#include <QTest>
#include <set>

#include "Doubles.h"
#include "Drawn.h"
#include "QtValues.h"
#include "Regions.h"
#include "Theme.h"

namespace tracewell {
namespace {

/// The grid's zero lines are lighter.
const RecorderLook graphLook = {Qt::black, QColor(0, 120, 0), {Qt::red, Qt::blue}};

class RecorderGraphTest : public testing::Test {
 protected:
  RecorderGraphTest() {
    applyTheme(*qApp, Theme::light);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    graph.setFont(font);
    graph.resize(900, 600);
    graph.setLook(graphLook);
    show();
  }
  void show(const std::vector<std::string>& texts = {}) {
    graph.showPicture(picture, cursors, texts);
    paint();
  }
  void paint() {
    drawn = seen(graph);
    inside = drawn.find(graphLook.grid);
  }
  QPoint at(double across, double up) const {
    return {qRound(inside.left() + across * inside.width()),
            qRound(inside.bottom() - up * inside.height())};
  }
  QRect find(QColor colour, QPoint corner, QPoint other) const {
    return drawn.find(colour, QRect(corner, other).normalized() & inside);
  }
  /// What is written into the graph.
  std::set<std::string> texts() const {
    std::set<std::string> found;
    for (const QObject* item : graph.findChildren<QObject*>())
      if (item->inherits("QCPItemText") && item->property("visible").toBool())
        found.insert(fromQt(item->property("text").toString()));
    return found;
  }
  /// Those at the left, below and at the right.
  QObject& axis(int type) const {
    for (QObject* found : graph.findChildren<QObject*>())
      if (found->inherits("QCPAxis") && found->property("axisType").toInt() == type) return *found;
    throw std::runtime_error("no axis");
  }

  RecorderGraph graph{nullptr};
  RecorderPicture picture;
  RecorderCursors cursors;
  Regions drawn;
  QRect inside;
};

/// Whatever scale an instrument has: 2.5, 5.0, 7.5, and not 3, 5, 8.
TEST_F(RecorderGraphTest, NumbersOfAnAxisAreThoseOfItsLines) {
  const std::tuple<double, int> cases[] = {{2.5, 1}, {0.25, 2}, {0.002, 0}, {1.25, 2}, {20, 0}};
  for (const auto& [step, decimals] : cases) {
    picture.y[0] = {"V", -4 * step, 4 * step, step};
    show();
    EXPECT_EQ(axis(1).property("numberPrecision").toInt(), decimals) << step;
    const QRect column(at(0.03, 0).x(), inside.top() + 9, 1, inside.height() - 18);
    EXPECT_EQ(drawn.runs(graphLook.grid, column, 0.2).size(), 7);
  }
}

TEST_F(RecorderGraphTest, AxesSayWhatTheyCountInTheColourOfTheirChannel) {
  using Axes = std::vector<std::optional<RecorderAxis>>;
  const std::optional<RecorderAxis> none;
  const RecorderAxis volts{"V", -2, 2, 0.5}, millivolts{"V", -0.4, 0.4, 0.1}, divisions{"div"},
      seconds{"s", 0, 2e-3, 2e-4}, kilohertz{"Hz", 0, 5e4, 1e4}, hertz{"Hz", 0, 500, 100},
      level{"dBV", -100, 0, 10};
  // Across, of channel 1 and of channel 2; what is said across, at the left and at the right.
  const std::tuple<RecorderMode, Axes, Lines> cases[] = {
      {RecorderMode::trace, {seconds, volts, millivolts}, {"Time (ms)", "CH1 (V)", "CH2 (mV)"}},
      {RecorderMode::trace, {divisions, none, millivolts}, {"Time (div)", "CH2 (mV)", ""}},
      {RecorderMode::xy, {volts, none, millivolts}, {"CH1 (V)", "CH2 (mV)", ""}},
      {RecorderMode::spectrum, {kilohertz, level, level}, {"Frequency (kHz)", "Level (dBV)", ""}},
      {RecorderMode::spectrum, {hertz, level, none}, {"Frequency (Hz)", "CH1 (dBV)", ""}},
      {RecorderMode::trace,
       {RecorderAxis{"s", 0, 1e-12, 1e-13}, none, none},
       {"Time (ns)", "", ""}},
      {RecorderMode::trace, {RecorderAxis(), none, none}, {"", "", ""}}};
  for (const auto& [mode, axes, labels] : cases) {
    picture.mode = mode;
    picture.x = *axes[0];
    picture.y = {axes[1], axes[2]};
    show();
    for (const auto& [type, label] : {std::pair(8, labels[0]), {1, labels[1]}, {2, labels[2]}}) {
      SCOPED_TRACE(labels[0] + " " + label);
      EXPECT_EQ(fromQt(axis(type).property("label").toString()), label);
      EXPECT_EQ(axis(type).property("tickLabels").toBool(), !label.empty());
      const QColor colour = label.starts_with("CH1")   ? Qt::red
                            : label.starts_with("CH2") ? Qt::blue
                                                       : QColor(RecorderLook::text);
      for (const char* part : {"labelColor", "tickLabelColor"})
        EXPECT_TRUE(label.empty() || axis(type).property(part).value<QColor>() == colour);
    }
  }
}

TEST_F(RecorderGraphTest, CurvesLieWhereTheyBelongAndTellTheirKinds) {
  using Curve = RecorderCurve;
  picture.x = {"s", 0, 2e-3, 2e-4};
  picture.y = {RecorderAxis{"V", -2, 2, 0.5}, RecorderAxis{"V", -0.4, 0.4, 0.1}};
  const std::tuple<Curve::Kind, int, int, double> curves[] = {
      {Curve::behind, 1, 4, 1.8},   {Curve::behind, 1, 1, 1.4}, {Curve::lowest, 1, 0, -1.6},
      {Curve::highest, 2, 0, 0.16}, {Curve::record, 1, 0, 0.4}, {Curve::record, 2, 0, -0.08},
      {Curve::mean, 2, 0, -0.16}};
  for (const auto& [kind, channel, age, up] : curves)
    picture.curves.push_back({kind, channel, age, {0.4e-3, 1.2e-3}, {up, up}});
  show();
  expectDrawn(graph, "curves of a recorder");
  picture.curves.resize(1);
  show();
  expectDrawn(graph, "curve that is left");
  picture.mode = RecorderMode::xy;
  picture.x = {"V", -1, 1, 0.2};
  picture.y[0].reset();
  picture.curves = {{Curve::record, 2, 0, {-0.6, 0.6, 0.6}, {0.2, 0.2, -0.2}}};
  show();
  expectDrawn(graph, "one channel against the other");
  picture.curves.clear();
  show();
  expectDrawn(graph, "nothing against nothing");
}

TEST_F(RecorderGraphTest, PeaksAreNumberedAndListed) {
  picture.mode = RecorderMode::spectrum;
  picture.x = {"Hz", 0, 10000, 1000};
  picture.y[0] = picture.y[1] = {"dBV", -100, 0, 10};
  picture.labels = {{1, 2550, -56, "2 kHz\n-50 dBV"},
                    {1, 2550, -56, "10 kHz\n-5 dBV"},
                    {1, 2550, -56, "3 Hz\n-6 dBV"},
                    {2, 5550, -2, "5 kHz\n-2 dBV"},
                    {2, 7550, -66, "7 kHz\n-66 dBV"}};
  picture.notes = {"mean of 6", "short"};
  const std::set<std::string> written = {
      "1",
      "2",
      "3",
      "mean of 6\nshort",
      "1:     2 kHz    -50 dBV\n2:    10 kHz     -5 dBV\n3:      3 Hz     -6 dBV",
      "1:     5 kHz     -2 dBV\n2:     7 kHz    -66 dBV"};
  for (const auto kind : {RecorderCursors::off, RecorderCursors::across}) {
    cursors.kind = kind;
    show({"P1 = 1", "P2 = 2", "=", "="});
    graph.resize(900, 640 - 40 * kind);
    paint();
    std::set<std::string> all = written;
    if (kind != RecorderCursors::off) all.insert({"P1", "P2", "P1 = 1\nP2 = 2\n=\n="});
    EXPECT_EQ(texts(), all);
    expectDrawn(graph, kind == RecorderCursors::off ? "peaks" : "peaks and cursors");
    // Of three at a place one stands above it, one at its right, one at its left; none beyond the
    // top.
    const std::tuple<QColor, double, double, std::array<bool, 3>> peaks[] = {
        {Qt::red, 0.255, 0.44, {true, true, true}},
        {Qt::blue, 0.555, 0.98, {false, true, false}},
        {Qt::blue, 0.755, 0.34, {true, false, false}}};
    for (const auto& [colour, x, y, isThere] : peaks) {
      const QRect sides[] = {{-4, -18, 9, 12}, {5, -6, 10, 13}, {-14, -6, 10, 13}};
      for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(!drawn.find(colour, sides[i].translated(at(x, y))).isEmpty(), isThere[i])
            << x << i;
      EXPECT_TRUE(drawn.find(colour, QRect(-14, 8, 29, 12).translated(at(x, y))).isEmpty());
    }
  }
  picture = {};
  show();
  EXPECT_TRUE(texts().empty());
}

TEST_F(RecorderGraphTest, CursorsStandAtTheirSharesAndAreMovedByMouseAndKeys) {
  cursors.acrossAt = cursors.upAt = {0.3, 0.6};
  picture.y[0] = {"V", -2, 2, 0.5};
  QSignalSpy moved(&graph, &RecorderGraph::cursorMoved);
  QSignalSpy left(&graph, &RecorderGraph::keyLeft);
  const auto expectMoved = [&](std::size_t cursor, double share, double tolerance = 1e-9) {
    ASSERT_FALSE(moved.isEmpty());
    EXPECT_EQ(moved.last().at(0).value<std::size_t>(), cursor);
    EXPECT_NEAR(moved.last().at(1).toDouble(), share, tolerance);
    moved.clear();
  };
  show({"P1 = 1"});
  EXPECT_TRUE(texts().empty());
  QTest::keyClick(&graph, Qt::Key_Right);
  EXPECT_EQ(left.size(), 1);
  for (const bool isAcross : {true, false}) {
    SCOPED_TRACE(isAcross);
    cursors.kind = isAcross ? RecorderCursors::across : RecorderCursors::up;
    show({"P1 = 1"});
    const auto place = [&](double share, double aside) {
      return isAcross ? at(share, aside) : at(aside, share);
    };
    expectDrawn(graph, isAcross ? "cursors across" : "cursors up");
    const QPoint far = place(0.45, 0.5);
    const QPoint to = place(0.7, 0.5);
    const auto drag = [&](QPoint from) {
      QTest::mousePress(&graph, Qt::LeftButton, {}, from);
      QTest::mouseMove(&graph, to);
      QTest::mouseRelease(&graph, Qt::LeftButton, {}, to);
    };
    drag(far);
    EXPECT_TRUE(moved.isEmpty());
    EXPECT_EQ(graph.cursor().shape(), Qt::ArrowCursor);
    for (const std::size_t cursor : {1U, 0U}) {
      drag(place(cursor == 0 ? 0.3 : 0.6, 0.5) + QPoint(6, 6));
      expectMoved(cursor, 0.7, 0.003);
      QTest::mouseMove(&graph, place(0.3, 0.4));
      EXPECT_EQ(graph.cursor().shape(), isAcross ? Qt::SizeHorCursor : Qt::SizeVerCursor);
      EXPECT_TRUE(moved.isEmpty());
    }
    const Qt::Key ahead = isAcross ? Qt::Key_Right : Qt::Key_Up;
    const Qt::Key back = isAcross ? Qt::Key_Left : Qt::Key_Down;
    // C makes the other one active, and a second time the first one again.
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, std::size_t, double> keys[] = {
        {ahead, {}, 0, 0.302},
        {back, Qt::ShiftModifier, 0, 0.28},
        {Qt::Key_C, {}, 1, 0.6},
        {back, {}, 1, 0.598},
        {Qt::Key_C, {}, 0, 0.3}};
    for (const auto& [key, modifiers, cursor, share] : keys) {
      QTest::keyClick(&graph, key, modifiers);
      expectMoved(cursor, share);
    }
    left.clear();
    QTest::keyClick(&graph, isAcross ? Qt::Key_Up : Qt::Key_Right);
    QTest::keyClick(&graph, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(left.size() >= 2 && moved.isEmpty());
  }
}

}  // namespace
}  // namespace tracewell
