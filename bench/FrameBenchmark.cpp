// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QApplication>
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
    for (int i = 0; i < SharedState::sampleCount; ++i)
      x[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(i - 250);
    for (int number = 1; number <= ScopeGraph::plotCount; ++number)
      graph.plot(number).visible = true;
    main.ChanOn = {true, true};
    main.lblChan1.caption = "500.0 mV";
    main.lblChan2.caption = "1.000 V";
    main.lblTime.caption = "500.0 us";
    main.opTime.value = true;
    graph.plot(2).isOld = true;
    graph.enlarged = true;
    view.show();
    QApplication::processEvents();
  }

  void plotAll(double phase) {
    for (int number = 1; number <= ScopeGraph::plotCount; ++number) {
      for (std::size_t i = 0; i < y.size(); ++i) {
        const double wave = std::sin(static_cast<double>(i) / 40 + number + phase);
        y[i] = static_cast<std::int16_t>(std::lround(150 * wave));
      }
      graph.plot(number).plotXvsY(x, y);
    }
  }

 private:
  DesktopProgram program{"."};
  frmDSO& main = program.program.main;
  ScopeGraph& graph = main.graphDSO;
  std::array<std::int16_t, SharedState::sampleCount> x{};
  std::array<std::int16_t, SharedState::sampleCount> y{};
  /// Declared last: it lets go of the graph when it goes.
  GraphView view{nullptr};
};

/// New data in all traces, then the frame that shows them, painted into the window.
void frame(benchmark::State& state) {
  GraphBench bench;
  double phase = 0;
  for (auto _ : state) {
    bench.plotAll(phase += 0.1);
    QApplication::processEvents();
    QApplication::processEvents();
  }
}
BENCHMARK(frame)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tracewell

int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  benchmark::Initialize(&argumentCount, arguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
