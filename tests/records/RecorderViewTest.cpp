// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderView.h"

#include <cmath>
#include <numbers>

#include "Bench.h"
#include "MeasurementRow.h"
#include "PanelReference.h"
#include "Recorder.h"
#include "RecorderCursors.h"
#include "RecorderWords.h"
#include "SavedRecords.h"

namespace tracewell {
namespace {

/// 1 V high at 0.5 V/div, and 20 periods of 1 kHz at 2 ms/div.
std::string sineRecord(double amplitude = 100) {
  return makeRecord([=](int i) {
    return static_cast<int>(
        std::lround(amplitude * std::sin(2 * std::numbers::pi * (i + 0.5) / 25)));
  });
}

}  // namespace

class RecorderViewTest : public testing::Test {
 protected:
  RecordStore store;
  Words words;
  RecorderView view{store, words};
  ChannelRecord next{"", {33, 1}, {0.5, 2e-3, std::nullopt, std::nullopt}, 0, 0};

  RecordStore::Number keep(int channel, const std::string& bytes) {
    next.bytes = bytes;
    next.sweepAt = next.fetchedAt += 1200;
    const auto number = store.keep(channel, next, {next.fetchedAt, false}).value();
    view.recordKept();
    return number;
  }
  /// Flat but for one unit, so that each is another sweep.
  RecordStore::Number keepLevel(int channel, int units) {
    return keep(channel, makeRecord([=](int i) { return units + i % 2; }));
  }
  std::string value(Quantity quantity, std::size_t channel = 0) {
    for (const auto& line : view.measurements())
      if (line.quantity == quantity) return line.values.at(channel);
    return "no line";
  }
};

TEST_F(RecorderViewTest, StepsThroughTheRecordsOfTheChannelsThatAreShown) {
  EXPECT_FALSE(view.selected());
  view.step(1);
  for (int i = 0; i < 10; ++i) keepLevel(1 + i % 2, 10 * i);
  EXPECT_EQ(view.selected(), 9);
  const std::tuple<int, std::function<void()>, int> cases[] = {
      {0, [&] { view.step(-1); }, 8},
      {0, [&] { view.step(-100); }, 0},
      {0, [&] { view.step(1); }, 1},
      {2, [&] { view.step(3); }, 7},
      {1, [] {}, 6},
      {1, [&] { view.selectFirst(); }, 0},
      {1, [&] { view.selectLast(); }, 8},
      {2, [&] { view.selectFirst(); }, 1},
      {0, [&] { view.follow(true); }, 9},
      {1, [&] { view.follow(true); }, 8},
  };
  for (const auto& [channel, act, reached] : cases) {
    view.show(channel);
    act();
    EXPECT_EQ(view.selected(), reached) << channel;
  }
  {
    const RecorderView::Still still(view, RecorderView::Still::File::set);
    keepLevel(1, 500);
    EXPECT_EQ(view.selected(), 8);
    EXPECT_TRUE(still.isWhole());
  }
  EXPECT_EQ(view.selected(), 10);
}

TEST_F(RecorderViewTest, ARecordThatGoesOutOfTheStoreIsPointedAtNoLonger) {
  ASSERT_TRUE(store.pin(keepLevel(1, 1), "first"));
  const auto second = keepLevel(1, 2);
  const auto other = keepLevel(2, 3);
  using Still = RecorderView::Still;
  view.mark(0, other);
  view.show(2);
  const Still hidingFirst(view, Still::File::table);
  view.show(0);
  view.mark(0, second);
  view.select(second);
  const Still table(view, Still::File::table);
  const Still set(view, Still::File::set);
  view.select(0);
  const Still pinned(view, Still::File::set);
  view.select(second);
  for (int i = 0; store.first() < other; ++i) keepLevel(1, 10 + i % 7);
  EXPECT_TRUE(hidingFirst.isWhole());
  keepLevel(1, 9);
  EXPECT_FALSE(hidingFirst.isWhole());
  EXPECT_FALSE(table.isWhole());
  EXPECT_FALSE(set.isWhole());
  EXPECT_TRUE(pinned.isWhole());
  EXPECT_EQ(view.selected(), store.first());
  EXPECT_FALSE(view.isMarked());
  view.select(0);
  EXPECT_EQ(view.title().substr(0, 3), "CH1");
  EXPECT_TRUE(view.title().ends_with("pinned"));
  view.step(1);
  EXPECT_EQ(view.selected(), store.first());
  view.select(0);
  store.letGo(0);
  EXPECT_EQ(view.selected(), store.first());
}

TEST_F(RecorderViewTest, ARecordOfAChannelThatIsNotShownIsPointedAtNever) {
  const auto first = keepLevel(1, 1);
  view.select(first);
  view.show(2);
  EXPECT_FALSE(view.selected());
  EXPECT_EQ(view.stretch().channel, 2);
  const auto other = keepLevel(2, 2);
  view.follow(false);
  EXPECT_EQ(view.selected(), other);
  view.show(1);
  EXPECT_EQ(view.selected(), first);
  view.show(2);
  EXPECT_EQ(view.selected(), other);
  for (int i = 0; i < 10001; ++i) keepLevel(1, 10 + i % 7);
  view.recordKept();
  EXPECT_FALSE(view.selected());
  view.select(store.first());
  EXPECT_EQ(view.channel(), 0);
}

TEST_F(RecorderViewTest, NothingStandsBesideARecordOfAnotherInstrument) {
  next.line = {33, 1};
  keepLevel(1, 1);
  const auto other = keepLevel(2, 2);
  EXPECT_EQ(view.shownOf(1), 0);
  while (view.measureMore(1)) continue;
  EXPECT_TRUE(view.statisticsTitle(1).find("ports") == std::string::npos);
  next.line = {34, 2};
  keepLevel(1, 3);
  EXPECT_FALSE(view.shownOf(2));
  while (view.measureMore(1)) continue;
  EXPECT_TRUE(view.statisticsTitle(1).ends_with("(of several ports)"));
  view.select(other);
  EXPECT_EQ(view.shownOf(1), 0);
}

TEST_F(RecorderViewTest, SaysVoltsAndSecondsWhereTheScalesAreKnown) {
  keep(1, sineRecord());
  EXPECT_EQ(value(Quantity::frequency), "1.000 kHz");
  EXPECT_EQ(value(Quantity::maximum), "1.000 V");
  view.choice.hasMean = true;
  const std::string table = tableOf(view.picture());
  EXPECT_TRUE(table.starts_with("Time (s)\tCH1 (V)\tCH1 mean (V)\n-0.01\t0.13\t0.13\n")) << table;
  next.madeUnder.voltsPerDivision = 1;
  keepLevel(1, 250);
  // It reaches beyond four divisions.
  EXPECT_DOUBLE_EQ(view.picture().y[0]->high, 6);
  next.madeUnder = {std::nullopt, 2e-3, 1, std::nullopt};
  keep(2, sineRecord(50));
  EXPECT_EQ(value(Quantity::maximum, 1), "scale not known");
  view.choice.behind = 5;
  EXPECT_EQ(view.picture().notes, (Lines{"CH2 in divisions: math has no volts",
                                         "CH1: earlier records under these scales: 0",
                                         "CH2: earlier records under these scales: 0"}));
}

TEST_F(RecorderViewTest, TwoRecordsAreComparedOnlyWhereTheyAreOfOneSweep) {
  view.choice.mode = RecorderMode::xy;
  keep(1, sineRecord());
  keep(2, sineRecord(50));
  EXPECT_TRUE(view.picture().curves.empty());
  EXPECT_EQ(view.picture().notes.size(), 1U);
  EXPECT_EQ(value(Quantity::phase, 1), "not of one sweep");
  next.madeUnder.stop = 7;
  keep(2, sineRecord(60));
  keep(1, sineRecord(90));
  ASSERT_EQ(view.picture().curves.size(), 1U);
  EXPECT_EQ(view.picture().curves[0].y.size(), 500U);
  EXPECT_NEAR(view.picture().curves[0].x[6], 0.9, 0.01);
  EXPECT_NE(value(Quantity::phase, 1), "not of one sweep");
  EXPECT_EQ(view.exported().end - view.exported().first, 2);
}

TEST_F(RecorderViewTest, CursorsSayWhoseVoltsTheyAre) {
  for (const int channel : {1, 2}) keep(channel, sineRecord(100 / channel));
  RecorderCursors cursors;
  EXPECT_EQ(cursorTexts(cursors, view.picture(), 2), Lines());
  cursors.kind = RecorderCursors::up;
  cursors.move(0, 2);
  EXPECT_EQ(cursorTexts(cursors, view.picture(), 2).at(0), "CH2");
  EXPECT_EQ(cursorTexts(cursors, view.picture(), 2).at(1), "P1 = 2.00 V");
  // Levels are over one volt, their difference is not.
  RecorderPicture levels;
  levels.mode = RecorderMode::spectrum;
  levels.curves.resize(1);
  levels.y[0] = {"dBV", -100, 0, 10};
  cursors.kind = RecorderCursors::up;
  cursors.at() = {0.75, 0.5};
  EXPECT_EQ(cursorTexts(cursors, levels, 1),
            (Lines{"P1 = -25.00 dBV", "P2 = -50.00 dBV", "Δ = 25.00 dB"}));
}

TEST_F(RecorderViewTest, WhatIsClippedHasNoLevelsAndPassesALimitOnlyWhereThatIsSure) {
  view.choice.mode = RecorderMode::spectrum;
  keep(1, sineRecord(100));
  EXPECT_EQ(view.picture().labels.at(0).text, "1.000 kHz\n-3.0 dBV");
  keep(1, sineRecord(300));
  const RecorderPicture picture = view.picture();
  EXPECT_EQ(picture.labels.at(0).text, "1.000 kHz\nclipped");
  EXPECT_EQ(picture.notes.at(1), "CH1 is clipped: levels and harmonics are not the signal's own");
  const OwnMeasurements own = measure(store.record(*view.selected()));
  for (const char* const text : {"vpp > 5 V", "max > 2 V", "min < -2 V"})
    EXPECT_TRUE(limitOf(text)->isPassed(own)) << text;
  for (const char* const text : {"vpp > 7 V", "vpp < 9 V", "max < 9 V", "min > -9 V", "rms > 0 V"})
    EXPECT_FALSE(limitOf(text)->isPassed(own)) << text;
  for (const auto& [text, isDecided] : {std::pair("max > 2 V", true),
                                        {"max > 9 V", false},
                                        {"max < 1 V", true},
                                        {"freq > 1 Hz", true}})
    EXPECT_EQ(limitOf(text)->isDecided(own), isDecided) << text;
  EXPECT_EQ(value(Quantity::minimum), "clipped");
}

TEST_F(RecorderViewTest, StatisticsAreThoseOfTheStretch) {
  for (const int level : {0, 50, 100, 150, 200}) keepLevel(1, level);
  keepLevel(2, 200);
  // From the channel's own first record on, which came 7.2 s behind the epoch.
  EXPECT_NE(view.statisticsTitle(2).find(":07 to "), std::string::npos) << view.statisticsTitle(2);
  while (view.measureMore(3)) continue;
  view.mark(4, 3);
  EXPECT_EQ(view.statistics(Quantity::minimum, 1)[1].value, "1.750 V");
}

TEST_F(RecorderViewTest, TheStripShowsWhatIsPointedAt) {
  RecordTimeline& line = view.timeline;
  EXPECT_FALSE(line.at(0.5, 0));
  for (int i = 0; i < 120; ++i) keepLevel(1 + i % 2, i);
  const auto shareOf = [&](RecordStore::Number number) {
    return line.columnOf(number, 400) / 400.0;
  };
  for (const RecordStore::Number number : {0, 31, 119})
    EXPECT_EQ(line.at(shareOf(number) + 0.9 / 400, store.facts(number).channel), number);
  line.zoom(0.05, 0);
  EXPECT_EQ(line.at(0, 0), 0);
  line.reveal(119);
  EXPECT_TRUE(shareOf(119) > 0 && shareOf(119) < 1);
  line.zoom(1000, 0.5);
  EXPECT_TRUE(line.showsAll());
}

class RecorderTest : public ProgramTest {
 protected:
  Recorder recorder{main};

  void arrive(const std::string& bytes) {
    program.acquisition.DataReady({.channel = 1, .stamp = main.known.now(), .bytes = bytes});
  }
};

TEST_F(RecorderTest, KeepsWhatThePanelFetchesAndLogsEachSweepOnce) {
  const auto path = folder.path() / "log.csv";
  int rings = 0;
  recorder.ring = [&] { ++rings; };
  recorder.startLog(path, {{Quantity::period}, {*limitOf("vpp > 1 V")}}, {true, true});
  for (const double amplitude : {100.0, 100.0, 80.0}) arrive(sineRecord(amplitude));
  recorder.tick();
  EXPECT_EQ(recorder.store().size(), 2U);
  EXPECT_EQ(recorder.log()->rows(), 2U);
  EXPECT_EQ(recorder.logText(Words()).find("No rows while the traces are stopped. "), 0U);
  main.tmDSO.enabled = true;
  EXPECT_EQ(recorder.logText(Words()).find(pathText(path) + ": 0:00:00, 2 rows"), 0U);
  // No scale has been read: nothing is beyond a limit.
  EXPECT_EQ(rings, 0);
  EXPECT_TRUE(recorder.store().pinned().empty());
  EXPECT_TRUE(takeWire().empty());
}

/// Its window may be closed.
TEST_F(RecorderTest, ThePanelSaysThatRowsOfTheLogWait) {
  const auto path = folder.path() / "log.csv";
  recorder.startLog(path, {{Quantity::period}, {}}, {});
  std::error_code refused;
  if (!std::filesystem::remove(path, refused)) GTEST_SKIP() << "it stays while it is open";
  std::filesystem::create_directory(path);
  arrive(sineRecord());
  clock.run(2000);
  recorder.tick();
  EXPECT_EQ(main.lblStatus.caption().find("Recorder's log: Waiting in memory: 1 row. "), 0U)
      << main.lblStatus.caption();
  // Nobody gives them up unasked.
  dialogs.answer = Answer::No;
  program.main.close();
  EXPECT_FALSE(gate.isClosed());
  EXPECT_FALSE(recorder.stopLog());
  EXPECT_TRUE(recorder.log());
  dialogs.answer = Answer::Yes;
  EXPECT_TRUE(recorder.stopLog());
  EXPECT_FALSE(recorder.log());
  EXPECT_EQ(main.lblStatus.caption(), "");
}

TEST_F(RecorderTest, ARecordTakesTheFirstReferenceThatIsFree) {
  main.graphDSO.plot(3).visible = true;
  main.channels[0].drawnShift = 25;
  ChannelRecord record{sineRecord(), {}, {0.5, 2e-3, std::nullopt, std::nullopt}, 0, 0};
  EXPECT_TRUE(showAsReference(main, 1, record, "CH1 14:29:05"));
  EXPECT_TRUE(main.graphDSO.plot(4).isShown());
  EXPECT_EQ(main.graphDSO.plot(4).label(), "Load2 CH1 14:29:05");
  EXPECT_EQ(main.graphDSO.plot(4).scale(), "500.0 mV");
  EXPECT_DOUBLE_EQ(main.graphDSO.plot(4).y()[6], 125);
  EXPECT_TRUE(showAsReference(main, 1, record, "CH1 14:29:05"));
  EXPECT_TRUE(showAsReference(main, 1, record, "CH1 14:29:05"));
  EXPECT_FALSE(showAsReference(main, 1, record, "CH1 14:29:05"));
}

TEST_F(RecorderTest, ARecordIsSavedAsTheSaveWindowSavesTheTrace) {
  main.known.reading();
  main.known.answered(":CHAN1:SCAL?", "500.0 mV", 0);
  main.lblChan1.caption = "500.0 mV";
  main.slideCH1.value = 0.4;
  main.slideTime.value = -1.5;
  arrive(sineRecord());
  const auto old = folder.path() / "old.jpg";
  windows.user["frmSave"] = [&] {
    dialogs.pickedFile = old;
    program.saveWindow.cmdOK.press();
  };
  main.cmdSave.press();
  ASSERT_TRUE(recorder.store().pin(0, "as found"));
  RecorderView view(recorder.store(), words);
  WaveformSet set = setOfRecords(main, recorder.store(), view.saved(), words);
  EXPECT_TRUE(set.description.starts_with("as found; CH1 ")) << set.description;
  EXPECT_NE(set.description.find(", 500.0 mV/div, "), std::string::npos) << set.description;
  set.description.clear();
  EXPECT_EQ(BuildCsvText(set), contentOf(folder.path() / "old.csv"));
  EXPECT_EQ(buildInfText(set, pathText(old)), contentOf(folder.path() / "old.inf"));
  EXPECT_EQ(view.savedPicture().curves.size(), 1U);
}

}  // namespace tracewell
