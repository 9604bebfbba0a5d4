// SPDX-License-Identifier: GPL-3.0-or-later
#if __has_include(<malloc.h>)
#include <malloc.h>
#endif
#include <ctime>

#include "Bench.h"
#include "Recorder.h"
#include "RecorderView.h"

namespace tracewell {
namespace {

/// Bytes that are allocated now; 0 where the system does not tell.
std::size_t allocated() {
#ifdef __GLIBC__
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
#else
  return 0;
#endif
}

}  // namespace

class LongRunTest : public ProgramTest {
 protected:
  LongRunTest() {
    recorder.kept = [this](RecordStore::Number) {
      view.recordKept();
      view.measureMore(20);
    };
    main.tmDSO.enabled = true;
  }

  /// Tells how much processor time an hour of records of both channels has taken, in seconds.
  double runAnHour() {
    constexpr int records = 3000;
    const std::clock_t begin = std::clock();
    for (int i = 0; i < records; ++i) {
      for (const std::int16_t channel : {std::int16_t{1}, std::int16_t{2}}) {
        clock.run(600);
        ++sweeps;
        port.deliver(channel, makeRecord([this](int sample) {
                       return sweeps % 199 - 99 + (sample == sweeps % 500 ? 1 : 0);
                     }));
      }
      recorder.tick();
      view.picture();
      // What the double writes down.
      takeWire();
      port.prepared.resize(1);
    }
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  }

  Recorder recorder{main};
  RecorderView view{recorder.store(), words};
  int sweeps = 0;
};

/// With the recorder's window open and a log. Once the store is full nothing grows or becomes
/// slower.
TEST_F(LongRunTest, TwelveHoursTakeTheMemoryOfTheStoreAndNoMore) {
  clock.run(2000);
  recorder.startLog(folder.path() / "hours.csv", {{Quantity::maximum, Quantity::frequency}, {}},
                    {});
  const std::size_t before = allocated();
  if (before == 0) GTEST_SKIP() << "nothing tells what is allocated";
  double early = 1e9;
  double late = 1e9;
  std::size_t full = 0;
  for (int hour = 1; hour <= 12; ++hour) {
    const double seconds = runAnHour();
    if (hour == 2) full = allocated();
    if (hour > 2 && hour <= 7) early = std::min(early, seconds);
    if (hour > 7) late = std::min(late, seconds);
  }
  EXPECT_EQ(sweeps, 2 * 36000);
  EXPECT_EQ(recorder.store().size(), RecordStore::capacity);
  EXPECT_EQ(recorder.log()->rows(), 2 * 36000U);
  EXPECT_LT(full - before, 10'000'000U);
  EXPECT_LT(allocated(), full + 20'000);
  EXPECT_LT(late, 1.5 * early);
  RecordProperty("bytes", std::to_string(full - before));
}

}  // namespace tracewell
