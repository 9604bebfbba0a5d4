// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordStore.h"

#include "Doubles.h"
#include "Error.h"
#include "SamplesCsv.h"

namespace tracewell {
class RecordStoreTest : public testing::Test {
 protected:
  RecordStore store;
  ChannelRecord next{"", {33, 1}, {0.5, 1e-3, std::nullopt, std::nullopt}, 0, 0};

  static std::string level(int value) {
    return makeRecord([value](int i) { return value + i % 2; });
  }
  RecordStore::Number keep(int channel, int value, int milliseconds = 1200) {
    next.bytes = level(value);
    next.sweepAt = next.fetchedAt += milliseconds;
    return store.keep(channel, next, {next.fetchedAt, false}).value();
  }
  std::string csv(int channel, SamplesCsvResult* result = nullptr) {
    std::string text;
    const auto written = writeSamples(store, {store.first(), store.end(), channel},
                                      [&](std::string_view part) { text += part; });
    if (result != nullptr) *result = written;
    return text;
  }
};

TEST_F(RecordStoreTest, TheLastOnesAreKeptAndThePinnedOnesBeyondThem) {
  ASSERT_TRUE(store.pin(keep(1, 7), "seven"));
  EXPECT_FALSE(store.pin(5, "none"));
  for (int i = 1; i <= 10000; ++i) keep(1 + i % 2, i % 20000);
  EXPECT_EQ(store.size(), RecordStore::capacity);
  EXPECT_EQ(store.first(), 1);
  EXPECT_EQ(store.record(0).bytes, level(7));
  EXPECT_EQ(store.record(10000).bytes, level(10000));
  EXPECT_EQ(store.facts(10000).highest, 10001);
  EXPECT_EQ(store.firstSince(store.facts(4000).sweepAt - 1), 4000);
  const std::size_t whole = store.bytes();
  for (int i = 0; i < 1000; ++i) keep(1, i);
  EXPECT_EQ(store.bytes(), whole);
  EXPECT_EQ(store.newestOf(2), 10000 - 1);
  store.letGo(0);
  EXPECT_THROW(store.facts(0), Error);
}

/// Packed or not; and whatever comes, all of it takes no more than 10 MB.
TEST_F(RecordStoreTest, ComesBackToTheByteAndTakesNoMoreThanItMay) {
  const auto reaching = [](int lowest, int highest) {
    return makeRecord([=](int i) { return i % 3 ? lowest + i : highest; });
  };
  const std::string records[] = {level(-32767),
                                 reaching(-600, 3495),
                                 reaching(-600, 3496),
                                 reaching(-32767, 9999),
                                 makeRecord([](int i) { return i == 9 ? -32768 : 5; }),
                                 level(9).substr(0, 77)};
  const auto expectAll = [&](RecordStore::Number number) {
    for (const std::string& bytes : records) {
      EXPECT_EQ(store.record(number).bytes, bytes) << number;
      EXPECT_EQ(store.samples(number++), decodeSamples(bytes, 0)) << number;
    }
  };
  for (const std::string& bytes : records) {
    next.bytes = bytes;
    store.pin(*store.keep(1, next, {}), "pinned");
  }
  expectAll(0);
  for (int i = 0; i < 10000; ++i) keep(1, i);
  expectAll(0);
  for (int i = 0; i < 700; ++i) {
    next.bytes = reaching(i, 30000);
    store.keep(2, next, {});
  }
  EXPECT_EQ(store.size(), RecordStore::mostUnpacked);
  EXPECT_EQ(store.record(store.end() - 1).bytes, next.bytes);
  for (RecordStore::Number number = 0; number < 6; ++number) store.letGo(number);
  EXPECT_LT(store.bytes(), 10'000'000U);
}

TEST_F(RecordStoreTest, WhatLiesBeforeARecordIsTold) {
  keep(1, 1);
  next.madeUnder.mathEntry = 1;
  EXPECT_EQ(store.facts(keep(1, 2)).gap, RecordGap{.hasOtherScales = true});
  next.madeUnder.stop = 5;
  keep(1, 3);
  next.madeUnder.stop.reset();
  EXPECT_EQ(store.facts(keep(1, 4)).gap, RecordGap{.wasStopped = true});
  // The same bytes once more, of a line that has been opened anew.
  ++next.line.openings;
  EXPECT_EQ(store.facts(keep(1, 4)).gap, RecordGap{.wasUnplugged = true});
}

TEST_F(RecordStoreTest, RecordsOfOneStopArePartnersAndShareRowsOfTheTable) {
  keep(1, 100);
  keep(2, 200);
  EXPECT_FALSE(store.partnerOf(0));
  next.madeUnder.stop = 3;
  keep(1, 100);
  keep(2, 200);
  EXPECT_EQ(store.size(), 2U);
  EXPECT_EQ(store.partnerOf(0), 1);
  EXPECT_TRUE(csv(0).starts_with("Time (s),CH1 (V),CH2 (V)\n-0.005,1,2\n-0.00498,1.01,2.01\n"))
      << csv(0);
  next.madeUnder = {};
  keep(2, 300);
  SamplesCsvResult result;
  EXPECT_TRUE(csv(2, &result).starts_with("Time (s),CH2 (V)\n-0.005,2\n"));
  EXPECT_EQ(result.records, 1U);
  EXPECT_EQ(result.leftOut, 1U);
  next.madeUnder = {0.5, 1e-3, std::nullopt, std::nullopt};
  keep(2, 400, 2500);
  // The fourth record of the channel's, 6.1 s behind its first.
  EXPECT_NE(csv(2).find("\n6.1,4\n6.10002,4.01\n"), std::string::npos);
  // Another sweep has come behind that stop.
  store.pin(1, "pinned");
  next.madeUnder = {0.5, 1e-3, std::nullopt, 3, true};
  keep(2, 500);
  EXPECT_FALSE(store.partnerOf(0));
  EXPECT_TRUE(store.record(1).madeUnder.isOther);
}

}  // namespace tracewell
