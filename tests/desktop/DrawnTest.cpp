// SPDX-License-Identifier: GPL-3.0-or-later
#include <qcustomplot.h>

#include <QCryptographicHash>
#include <QProcess>
#include <cmath>
#include <fstream>

#include "BannerPainter.h"
#include "Drawn.h"
#include "ElidedLabel.h"
#include "KnobWidget.h"
#include "LampWidget.h"
#include "LineWidget.h"
#include "MainFormTest.h"
#include "Places.h"
#include "QtValues.h"
#include "SlideWidget.h"
#include "UnreadMark.h"
#ifdef TRACEWELL_RECORDER
#include "RecordStrip.h"
#include "RecorderGraph.h"
#include "RecorderWords.h"
#endif

namespace tracewell {
namespace {

/// What each widget paints, and after what the user has done to it.
class Drawings {
 public:
  QStringList list;

  void add(const std::string& name, const std::function<void(QPaintDevice&)>& paint) {
    CommandDevice device;
    paint(device);
    list << toQt("= " + name) << device.commands();
  }
  void add(const std::string& name, QWidget& widget) {
    QApplication::processEvents();
    add(name, [&](QPaintDevice& device) { widget.render(&device, {}, {}, QWidget::DrawChildren); });
  }
  void add(const std::string& name, QCustomPlot& plot) {
    QApplication::processEvents();
    plot.replot();
    add(name, [&](QPaintDevice& device) {
      QCPPainter painter(&device);
      painter.setModes(QCPPainter::pmVectorized | QCPPainter::pmNoCaching);
      plot.toPainter(&painter, plot.width(), plot.height());
    });
  }
};

void place(QWidget& widget, int width, int height) {
  widget.resize(width, height);
  widget.show();
  widget.activateWindow();
  QApplication::processEvents();
}

void drawKnobs(Drawings& drawings) {
  KnobWidget knob;
  knob.setAccent(Qt::yellow);
  knob.setUnit(QStringLiteral("s"));
  for (const bool isTime : {false, true}) {
    QStringList detents(isTime ? 29 : 11);
    for (qsizetype i = 0; i < detents.size(); ++i)
      detents[i] =
          QStringLiteral("%1%2").arg(i % 3 == 0 ? 5 : i % 3).arg(QStringLiteral("num")[i / 10]);
    knob.setDetents(detents);
    for (const QSize size : {QSize(128, 116), QSize(260, 230), QSize(500, 400)}) {
      place(knob, size.width(), size.height());
      knob.setValue(isTime ? 14 : 7);
      knob.setPale(size.width() == 260);
      drawings.add("knob", knob);
    }
  }
  QObject::connect(&knob, &KnobWidget::turned, &knob, &KnobWidget::setValue);
  UnreadMark::show(knob, true);
  QTest::keyClicks(&knob, QStringLiteral("20m"));
  drawings.add("knob, typed", knob);
  QTest::keyClick(&knob, Qt::Key_Return);
  drawings.add("knob, entered", knob);
  const QPoint centre = knob.centre().toPoint();
  QTest::mouseClick(&knob, Qt::LeftButton, {}, centre + QPoint(150, 70));
  drawings.add("knob, clicked", knob);
  QTest::mousePress(&knob, Qt::LeftButton, {}, centre + QPoint(0, -40));
  for (const QPoint to : {QPoint(30, -30), QPoint(40, 10), QPoint(0, 40)}) {
    QMouseEvent move(QEvent::MouseMove, centre + to, knob.mapToGlobal(centre + to), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(&knob, &move);
  }
  drawings.add("knob, dragged", knob);
}

void drawSlides(Drawings& drawings) {
  for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal})
    for (const bool isPlain : {false, true}) {
      SlideWidget slide;
      slide.setOrientation(orientation);
      slide.setAccent(Qt::cyan);
      slide.setNumbered(!isPlain);
      slide.setPale(isPlain);
      slide.setRange(isPlain ? -40 : -4, isPlain ? 40 : 4, 0.25);
      place(slide, slide.sizeHint().width() + 90, slide.sizeHint().height() + 90);
      QObject::connect(&slide, &SlideWidget::dragged, &slide, &SlideWidget::setValue);
      for (const double value : {1.5, -99.0}) {
        slide.setValue(value);
        drawings.add("slide", slide);
      }
      UnreadMark::show(slide, true);
      for (const Qt::Key key : {Qt::Key_0, Qt::Key_PageUp, Qt::Key_Up})
        QTest::keyClick(&slide, key);
      drawings.add("slide, by keys", slide);
      QTest::mouseClick(&slide, Qt::LeftButton, {}, {20, 30});
      drawings.add("slide, clicked", slide);
    }
}

void drawSigns(Drawings& drawings) {
  LampWidget lamp;
  place(lamp, 40, 30);
  lamp.setColour(Qt::green);
  drawings.add("lamp", lamp);
  LineWidget line;
  place(line, 110, 24);
  for (const bool isDotted : {false, true}) {
    line.setLine(Qt::magenta, isDotted);
    drawings.add("line", line);
  }
  QLabel label(QStringLiteral("1.000 V"));
  for (const int width : {60, 200}) {
    place(label, width, 30);
    UnreadMark::show(label, true);
    drawings.add("unread label", label);
  }
  ElidedLabel status;
  for (const int width : {500, 130}) {
    place(status, width, 24);
    status.setSentences({{QStringLiteral("No record"), true}, {QStringLiteral("Saved"), false}});
    drawings.add("status", status);
  }
  for (const bool isWarning : {false, true})
    drawings.add("banner", [isWarning](QPaintDevice& device) {
      QPainter painter(&device);
      paintBanner(painter, {10, 20, 300, 200}, {"No record for 5 s", isWarning},
                  {Qt::white, Qt::yellow, Qt::black});
    });
}

GraphMarks allMarks() {
  using Side = GraphMarks::Side;
  GraphMarks marks;
  marks.sides = {{1, Side::here, 70, "1"},
                 {2, Side::here, 75, "2"},
                 {2, Side::above, 250, "2"},
                 {1, Side::below, -300, "1"}};
  marks.names = {{1, "1+2"}, {3, "Load1: made at 1.000 V"}};
  marks.scales = {{1, "CH1 500.0 mV"}, {2, "CH2 1.000 V"}, {0, "500.0 us"}};
  marks.badge = {{0, "P1 = 250 mV"}, {0, "1/T = 2.00 kHz"}};
  marks.banner = {"No record for 5 s", true};
  return marks;
}

void drawGraph(Drawings& drawings) {
  struct MainForm : MainFormTest {
    void TestBody() override {}
    using MainFormTest::find;
    using MainFormTest::main;
  } form;
  Graph& graph = form.main.graphDSO;
  graph.marks = allMarks;
  graph.valuesAt = [](double x, double y) {
    return std::vector<GraphMarks::Text>{{1, numberText(x)}, {2, numberText(y)}};
  };
  graph.note = "SIMULATED";
  const std::vector<std::int16_t> x = {-250, -100, 0, 249};
  for (const int number : {1, 2, 3}) {
    graph.plot(number).visible = true;
    graph.plot(number).plotXvsY(x, std::vector<double>{0, 50.0 * number, -150, 20.0 + number});
  }
  graph.plot(2).pointStyle = Plot::dotPoints;
  graph.plot(3).pale = [] { return true; };
  auto* const plot = form.find<QCustomPlot>("plot");
  for (const auto style : {CursorStyle::verticalLine, CursorStyle::horizontalLine}) {
    for (const char* name : {"cur1", "cur2", "Triger"}) {
      Cursor& cursor = graph.cursor(name);
      cursor.visible = true;
      cursor.style = name[0] == 'T' ? CursorStyle::marker : style;
      cursor.xPosition = 30.0 * name[3];
      cursor.yPosition = name[3] == '1' ? -60 : 110;
    }
    QTest::mouseMove(plot, {200, 150});
    QTest::qWait(1);
    for (const char* part : {"marks", "scales"}) drawings.add(part, *form.find<>(part));
    drawings.add("graph", *plot);
    QTest::keyClick(form.find<>("graphDSO"),
                    style == CursorStyle::verticalLine ? Qt::Key_Left : Qt::Key_Up);
    QTest::keyClick(form.find<>("graphDSO"), Qt::Key_C);
  }
}

#ifdef TRACEWELL_RECORDER
std::string waveOf(int period, int height) {
  return makeRecord([=](int i) {
    return static_cast<int>(std::lround(height * std::sin(2 * 3.14159265 * i / period)));
  });
}

/// Made by hand: what a transform leaves of nothing is not the same everywhere.
RecorderPicture spectrum() {
  RecorderPicture picture;
  picture.mode = RecorderMode::spectrum;
  picture.x = {"Hz", 0, 12500, 2000};
  for (const int channel : {1, 2}) {
    picture.y.at(static_cast<std::size_t>(channel - 1)) = {"dBV", -80, 0, 20};
    picture.curves.push_back({.channel = channel, .x = {0, 4000, 4100}, .y = {-70, -3, -60}});
    for (const double x : {4000.0, 4050.0, 4100.0, 12500.0})
      picture.labels.push_back({channel, x, -3.0 * channel, "4.00 kHz\n-3.0 dBV"});
  }
  picture.notes = {"1.00 kHz per line", "clipped"};
  return picture;
}

void drawRecorder(Drawings& drawings) {
  RecordStore store;
  Words words;
  RecorderView view(store, words);
  ChannelRecord next{"", {33, 1}, {0.5, 2e-3, std::nullopt, std::nullopt}, 0, 0};
  for (int i = 0; i < 24; ++i) {
    const int channel = 1 + i % 2;
    next.bytes = waveOf(20 + 5 * channel, 60 + 10 * (i / 2));
    next.madeUnder.voltsPerDivision = channel == 1 ? 0.5 : 20e-3;
    next.sweepAt = next.fetchedAt += i == 11 ? 90000 : 600;
    store.keep(channel, next, {next.fetchedAt, false});
    view.recordKept();
  }
  store.pin(7, "as found");
  const RecorderLook look{Qt::black, Qt::darkGray, {Qt::yellow, Qt::cyan}};
  RecordStrip strip(view, nullptr);
  strip.setLook(look);
  place(strip, 600, 104);
  strip.setFocus();
  drawings.add("strip", strip);
  const auto by = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&strip, key, modifiers);
    drawings.add("strip, by key " + std::to_string(key & 0xFF), strip);
  };
  by(Qt::Key_PageUp);
  by(Qt::Key_Left);
  by(Qt::Key_Right, Qt::ShiftModifier);
  by(Qt::Key_Plus);
  by(Qt::Key_Plus);
  by(Qt::Key_Minus);
  QTest::mouseClick(&strip, Qt::LeftButton, {}, {200, 50});
  drawings.add("strip, clicked", strip);
  QTest::mouseClick(&strip, Qt::LeftButton, Qt::ShiftModifier, {330, 50});
  drawings.add("strip, marked", strip);
  QTest::mouseDClick(&strip, Qt::LeftButton, {}, {450, 50});
  view.show(2);
  drawings.add("strip of one", strip);
  for (const QPoint turn : {QPoint(0, 120), QPoint(-120, 0), QPoint(0, -240)}) {
    QWheelEvent wheel({150, 50}, {150, 50}, {}, turn, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&strip, &wheel);
    drawings.add("strip, by wheel", strip);
  }
  view.show(0);
  RecorderGraph graph(nullptr);
  graph.setLook(look);
  place(graph, 640, 360);
  RecorderCursors cursors;
  QObject::connect(&graph, &RecorderGraph::cursorMoved, &graph,
                   [&](std::size_t cursor, double to) { cursors.move(cursor, to); });
  const auto draw = [&](const char* name) {
    const RecorderPicture picture = view.picture();
    graph.setLook(look);
    graph.showPicture(picture, cursors, cursorTexts(cursors, picture, 1));
    drawings.add(name, static_cast<QCustomPlot&>(graph));
  };
  view.choice.behind = 5;
  view.choice.hasEnvelope = view.choice.hasMean = true;
  draw("record");
  for (const auto kind : {RecorderCursors::across, RecorderCursors::up}) {
    cursors.kind = kind;
    draw("record, cursors");
    graph.setFocus();
    for (const Qt::Key key :
         {Qt::Key_Left, Qt::Key_Up, Qt::Key_C, Qt::Key_Right, Qt::Key_Right, Qt::Key_Down}) {
      QTest::keyClick(&graph, key, key == Qt::Key_Left ? Qt::ShiftModifier : Qt::NoModifier);
      draw("record, cursors by keys");
    }
    const QRect inside = graph.axisRect()->rect();
    const QPoint from =
        kind == RecorderCursors::across
            ? QPoint(inside.left() + static_cast<int>(cursors.at()[0] * inside.width()) + 6, 100)
            : QPoint(200,
                     inside.bottom() - static_cast<int>(cursors.at()[0] * inside.height()) - 6);
    QTest::mousePress(&graph, Qt::LeftButton, {}, from);
    const QPoint to = from + QPoint(40, 25);
    QMouseEvent move(QEvent::MouseMove, to, graph.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     {});
    QApplication::sendEvent(&graph, &move);
    QTest::mouseRelease(&graph, Qt::LeftButton, {}, to);
    draw("record, cursor dragged");
  }
  view.choice.mode = RecorderMode::xy;
  draw("one channel across");
  for (const auto kind : {RecorderCursors::across, RecorderCursors::off}) {
    cursors.kind = kind;
    graph.showPicture(spectrum(), cursors, {"4.00 kHz"});
    drawings.add("spectrum", static_cast<QCustomPlot&>(graph));
  }
}
#endif

/// The sums of each drawing's commands; those of one name in one line.
std::string sumsOf(const QString& drawings) {
  QString sums;
  QString last;
  for (const QString& drawing : drawings.mid(2).split(QStringLiteral("\n= "))) {
    const QByteArray sum = QCryptographicHash::hash(drawing.toUtf8(), QCryptographicHash::Md5);
    const QString name = drawing.section(QLatin1Char('\n'), 0, 0);
    if (name != last) sums += (last.isEmpty() ? "" : "\n") + name + QLatin1Char(':');
    sums += QLatin1Char(' ') + QLatin1String(sum.toHex().left(6));
    last = name;
  }
  return fromQt(sums) + "\n";
}

}  // namespace

QStringList allDrawings() {
  QFont font;
  font.setPixelSize(13);
  QApplication::setFont(font);
  QApplication::setPalette(QPalette(QColor(60, 70, 80), QColor(30, 32, 34)));
  Drawings drawings;
  drawKnobs(drawings);
  drawSlides(drawings);
  drawSigns(drawings);
  drawGraph(drawings);
#ifdef TRACEWELL_RECORDER
  drawRecorder(drawings);
#endif
  return drawings.list;
}

/// In a process of its own, on a desktop without fonts, where every letter is a box of one size.
/// `QT_QPA_PLATFORM=minimal LC_ALL=C TZ=UTC desktop_tests --drawn` prints the commands themselves:
/// compare them to those of before, and put the new sums into drawn.txt if the difference is
/// wanted.
TEST(Drawn, IsWhatWasDrawnBefore) {
  QProcess painter;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("minimal"));
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
  environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
  painter.setProcessEnvironment(environment);
  painter.start(QApplication::applicationFilePath(), {QStringLiteral("--drawn")});
  ASSERT_TRUE(painter.waitForFinished(120000));
  EXPECT_EQ(painter.exitStatus(), QProcess::NormalExit);
  const std::string sums = sumsOf(QString::fromUtf8(painter.readAllStandardOutput()));
  // What a build without the recorder does not draw stands at the end.
  const std::string before =
      contentOf(std::filesystem::path(scriptFolder) / "../desktop/drawn.txt");
  EXPECT_EQ(before.substr(0, sums.size()), sums) << sums;
}

}  // namespace tracewell
