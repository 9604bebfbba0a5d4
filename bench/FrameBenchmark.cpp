// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>
#include <cmath>

#include "DesktopProgram.h"
#include "GraphView.h"

namespace tracewell {
namespace {

/// A window with nothing but the graph: 900 x 600, six traces, two cursors, and all marks of the
/// larger view: flags, names, scales, the badge, an old trace.
class GraphBench {
 public:
  GraphBench() {
    view.resize(900, 600);
    view.bind(graph);
    for (int i = 0; i < WaveformRecord::sampleCount; ++i)
      x[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(i - 250);
    for (std::size_t wave = 0; wave < waves.size(); ++wave)
      for (std::size_t i = 0; i < x.size(); ++i)
        waves[wave][i] = static_cast<std::int16_t>(
            std::lround(150 * std::sin(static_cast<double>(i) / 40 + static_cast<double>(wave))));
    for (int number = 1; number <= ScopeGraph::plotCount; ++number)
      graph.plot(number).visible = true;
    for (Channel& channel : main.channels) channel.isDisplayed = true;
    main.lblChan1.caption = "500.0 mV";
    main.lblChan2.caption = "1.000 V";
    main.lblTime.caption = "500.0 us";
    main.opTime.value = true;
    graph.plot(2).pale = [] { return true; };
    graph.enlarged = true;
    view.show();
    QApplication::processEvents();
  }

  /// The data of every trace are others each time; they are made before, as a record brings them.
  void plotAll(std::size_t turn) {
    for (int number = 1; number <= ScopeGraph::plotCount; ++number)
      graph.plot(number).plotXvsY(x,
                                  waves[(turn + static_cast<std::size_t>(number)) % waves.size()]);
  }

 private:
  DesktopProgram program{"."};
  frmDSO& main = program.program.main;
  ScopeGraph& graph = main.graphDSO;
  using Samples = std::array<std::int16_t, WaveformRecord::sampleCount>;
  Samples x{};
  std::array<Samples, 64> waves{};
  /// Declared last: it lets go of the graph when it goes.
  GraphView view{nullptr};
};

/// New data in all traces, then the frame that shows them, painted into the window.
void frame(benchmark::State& state) {
  GraphBench bench;
  std::size_t turn = 0;
  for (auto _ : state) {
    bench.plotAll(turn++);
    QApplication::processEvents();
    QApplication::processEvents();
  }
}
BENCHMARK(frame)->Unit(benchmark::kMillisecond);

void moveMouse(QWidget& widget, QEvent::Type type, const QPointF& place) {
  QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

/// From a movement of the mouse that holds a control of the whole window to the pixels that follow
/// it: a full sweep to and fro, a step at a time.
void follow(benchmark::State& state, const char* name, const QList<QPointF>& sweep) {
  DesktopProgram desktop(QApplication::applicationDirPath().toStdString());
  if (!desktop.start()) return state.SkipWithError("the program did not start");
  QApplication::processEvents();
  QWidget* widget = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible()) widget = window->findChild<QWidget*>(name);
  if (widget == nullptr) return state.SkipWithError("no such control");
  const auto at = [&](qsizetype step) {
    const qsizetype turn = step % (2 * sweep.size());
    const QPointF& share = sweep[turn < sweep.size() ? turn : 2 * sweep.size() - 1 - turn];
    return QPointF(share.x() * widget->width(), share.y() * widget->height());
  };
  moveMouse(*widget, QEvent::MouseButtonPress, at(0));
  qsizetype step = 0;
  for (auto _ : state) {
    moveMouse(*widget, QEvent::MouseMove, at(++step));
    QApplication::processEvents();
    QApplication::processEvents();
  }
  moveMouse(*widget, QEvent::MouseButtonRelease, at(step));
}

/// Points of a circle around the cap of a knob, or of the groove of a slide, as shares of the size.
QList<QPointF> circle() {
  QList<QPointF> points;
  for (int i = 0; i < 60; ++i)
    points << QPointF(0.5 + 0.15 * std::cos(i * 0.08), 0.5 + 0.15 * std::sin(i * 0.08));
  return points;
}

QList<QPointF> groove() {
  QList<QPointF> points;
  for (int i = 0; i < 60; ++i) points << QPointF(0.05 + 0.015 * i, 0.05 + 0.015 * i);
  return points;
}

BENCHMARK_CAPTURE(follow, knob, "knobTime", circle())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(follow, slide, "slideTrig", groove())->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tracewell

int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  benchmark::Initialize(&argumentCount, arguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
