// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <cmath>

#include "Bench.h"
#include "WaveformRecord.h"

namespace tracewell {
namespace {

std::string sineRecord() {
  return makeRecord([](int i) { return static_cast<int>(std::lround(100 * std::sin(i / 40.0))); });
}

/// From the last byte of a record to the finished trace and text in the logic.
void recordToTrace(benchmark::State& state) {
  Bench bench;
  bench.program.start();
  const std::string record = sineRecord();
  bench.main.Ch1Pos = 1.5;
  for (auto _ : state) {
    bench.program.acquisition.WaveCount = 0;
    bench.port.deliver(1, record);
    benchmark::DoNotOptimize(bench.main.graphDSO.plot(1).y().data());
    benchmark::DoNotOptimize(bench.main.txtMsg.text().data());
  }
}
BENCHMARK(recordToTrace);

void decodeOnly(benchmark::State& state) {
  const std::string record = sineRecord();
  for (auto _ : state) benchmark::DoNotOptimize(decodeSamples(record, 75));
}
BENCHMARK(decodeOnly);

}  // namespace
}  // namespace tracewell
