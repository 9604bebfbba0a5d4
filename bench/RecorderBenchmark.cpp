// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cmath>

#include "RecordStrip.h"
#include "RecorderGraph.h"
#include "RecorderView.h"

namespace tracewell {
namespace {

const RecorderLook look{
    QColor(8, 12, 16), QColor(48, 60, 70), {QColor(255, 213, 79), QColor(77, 208, 245)}};

/// A noisy sine, another one for each number.
ChannelRecord recordOf(int number) {
  ChannelRecord record{std::string(WaveformRecord::byteCount, '\0'),
                       {0, 1},
                       {0.5, 1e-3, std::nullopt, std::nullopt},
                       number * 1200LL,
                       number * 1200LL};
  for (std::size_t i = 0; i < WaveformRecord::sampleCount; ++i) {
    const double angle = static_cast<double>(i) / 8 + number;
    const auto sample =
        static_cast<std::uint16_t>(static_cast<int>(std::lround(150 * std::sin(angle))));
    record.bytes[WaveformRecord::positionOf(i)] = static_cast<char>(sample >> 8);
    record.bytes[WaveformRecord::positionOf(i) + 1] = static_cast<char>(sample & 0xFF);
  }
  return record;
}

void fill(RecordStore& store) {
  for (int number = 0; number < static_cast<int>(RecordStore::capacity); ++number)
    store.keep(1 + number % 2, recordOf(number), {number * 1200LL, true});
}

/// A record into a full store.
void keepRecord(benchmark::State& state) {
  RecordStore store;
  fill(store);
  std::vector<ChannelRecord> records;
  for (int i = 0; i < 64; ++i) records.push_back(recordOf(20000 + i));
  int turn = 0;
  for (auto _ : state) {
    store.keep(1 + turn % 2, records[static_cast<std::size_t>(turn % 64)], {turn * 1200LL, true});
    ++turn;
  }
}
BENCHMARK(keepRecord)->Unit(benchmark::kMicrosecond);

/// The strip of a full store, and its picture.
void strip(benchmark::State& state) {
  RecordStore store;
  fill(store);
  const Words words;
  RecorderView view(store, words);
  RecordStrip shown(view, nullptr);
  shown.setLook(look);
  shown.resize(1200, 104);
  shown.show();
  QApplication::processEvents();
  for (auto _ : state) shown.repaint();
}
BENCHMARK(strip)->Unit(benchmark::kMillisecond);

/// Twenty records of persistence behind one, of each of so many channels: from the store to the
/// screen.
void graph(benchmark::State& state) {
  RecordStore store;
  fill(store);
  const Words words;
  RecorderView view(store, words);
  view.show(state.range(0) == 1 ? 1 : 0);
  view.choice.behind = 20;
  RecorderGraph shown(nullptr);
  shown.setLook(look);
  shown.resize(820, 480);
  shown.show();
  QApplication::processEvents();
  RecordStore::Number number = store.first();
  for (auto _ : state) {
    view.select(1000 + number++ % 8000);
    shown.showPicture(view.picture(), {}, {});
    shown.repaint();
  }
}
BENCHMARK(graph)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

/// All measurements of a record.
void measurements(benchmark::State& state) {
  const ChannelRecord record = recordOf(1);
  for (auto _ : state) benchmark::DoNotOptimize(measure(record));
}
BENCHMARK(measurements)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tracewell

int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  benchmark::Initialize(&argumentCount, arguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
