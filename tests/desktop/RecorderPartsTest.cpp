// SPDX-License-Identifier: GPL-3.0-or-later
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QWheelEvent>

#include "Doubles.h"
#include "QtValues.h"
#include "RecordStrip.h"
#include "RecorderTables.h"
#include "Regions.h"

namespace tracewell {
namespace {

const RecorderLook stripLook = {Qt::black, QColor(0, 120, 0), {Qt::red, Qt::blue}};

/// What is made of records of its own.
class RecorderPartsTest : public testing::Test {
 protected:
  /// Another sweep than those before.
  RecordStore::Number keep(int channel, int lowest, int highest, std::int64_t pause = 1200) {
    const auto before = store.end();
    record.bytes =
        makeRecord([=](int i) { return i < 2 * before || i % 2 == 0 ? lowest : highest; });
    record.sweepAt = record.fetchedAt += pause;
    const auto number = store.keep(channel, record, {record.fetchedAt, false}).value();
    view.recordKept();
    return number;
  }

  RecordStore store;
  Words words;
  RecorderView view{store, words};
  ChannelRecord record{"", {33, 1}, {0.5, 2e-3, std::nullopt, std::nullopt}, 0, 0};
};

class RecordStripTest : public RecorderPartsTest {
 protected:
  RecordStripTest() {
    strip.setLook(stripLook);
    strip.resize(1000, 140);
  }
  int columnOf(RecordStore::Number number) const { return view.timeline.columnOf(number, 1000); }
  /// What a record is drawn as.
  QRect barOf(RecordStore::Number number, QColor colour) {
    return seen(strip).find(colour, {columnOf(number) - 8, 14, 17, 109});
  }

  RecordStrip strip{view, nullptr};
};

TEST_F(RecordStripTest, EachRecordStandsAtItsTimeFromItsLowestToItsHighestValue) {
  for (int i = 0; i < 10; ++i) keep(1 + i % 2, -100, 100, 3000);
  const auto low = keep(1, -200, -100, 3000);
  const auto high = keep(2, 100, 200, 3000);
  const auto whole = keep(1, -256, 256, 3000);
  const auto wide = keep(2, -256, 256, 3000);
  const auto beyond = keep(1, -500, 900, 3000);
  view.select(0);
  const QRect one = barOf(whole, Qt::red);
  const QRect two = barOf(wide, Qt::blue);
  // Channel 1 above channel 2, each in half of the height between pins and times.
  EXPECT_TRUE(one.top() < 18 && one.bottom() < two.top() && two.bottom() > 118);
  EXPECT_TRUE(one.height() == two.height() && two.top() < one.bottom() + 6);
  EXPECT_NEAR(barOf(beyond, Qt::red).height(), one.height(), 2);
  for (const auto& [bar, lane, middle] :
       {std::tuple(barOf(low, Qt::red), one, 0.79), {barOf(high, Qt::blue), two, 0.21}}) {
    EXPECT_NEAR(bar.height(), lane.height() * 0.2, 2.5);
    EXPECT_NEAR(bar.center().y(), lane.top() + lane.height() * middle, 2.5);
  }
  EXPECT_LE(std::abs(one.center().x() - columnOf(whole)), 1);
  const Regions picture = seen(strip);
  for (const int zero : {one.center().y(), two.center().y()})
    EXPECT_GT(picture.find(stripLook.grid, {0, zero - 2, 1000, 5}).width(), 985);
  view.show(1);
  EXPECT_GT(barOf(whole, Qt::red).height(), 100);
  EXPECT_TRUE(seen(strip).find(Qt::blue).isEmpty());
}

TEST_F(RecordStripTest, WhatIsPointedAtMarkedPinnedOrBehindAGapIsMarked) {
  for (int i = 0; i < 20; ++i) keep(1, -10, 10, i == 12 ? 9000 : 3000);
  view.mark(3, 6);
  view.select(11);
  store.pin(2, "wwww");
  const Regions picture = seen(strip);
  const QRect marked = picture.find(RecorderLook::mark, {0, 16, 1000, 20}, 0.3);
  EXPECT_TRUE(marked.left() < columnOf(3) - 3 && marked.left() > columnOf(3) - 12);
  EXPECT_TRUE(marked.right() > columnOf(6) + 3 && marked.right() < columnOf(6) + 12);
  // A line with a point at its upper end.
  const QRect pointer = picture.find(Qt::white, {columnOf(11) - 9, 0, 19, 140}, 0.95);
  EXPECT_TRUE(pointer.top() < 9 && pointer.bottom() > 118 && pointer.width() > 6);
  EXPECT_NEAR(pointer.center().x(), columnOf(11), 1);
  EXPECT_EQ(picture.find(Qt::white, {columnOf(11) - 9, 18, 19, 90}, 0.95).width(), 1);
  const QRect gap = picture.find(RecorderLook::gap);
  EXPECT_TRUE(gap.width() == 1 && gap.right() < columnOf(12) && gap.left() > columnOf(12) - 12);
  EXPECT_GT(picture.runs(RecorderLook::gap, {gap.left(), 14, 1, 109}).size(), 20);
  const auto above = [&](int from, int to) {
    return seen(strip).find(RecorderLook::text, {from, 0, to - from, 13}, 0.6);
  };
  const int pin = columnOf(2);
  EXPECT_TRUE(above(pin - 6, pin + 6).contains(pin, 7) && above(pin - 6, pin + 6).width() < 9);
  const QRect name = above(pin + 7, pin + 90);
  EXPECT_TRUE(name.width() > 20 && name.left() < pin + 12);
  // What has no room for its name goes without; those that touch share a dot.
  store.pin(3, "wwwwwwwwwwwwwwwwwwww");
  EXPECT_LT(above(pin + 7, columnOf(3) - 5).right(), columnOf(3) - 7);
  store.pin(4, "w");
  EXPECT_FALSE(above(columnOf(4) + 7, columnOf(4) + 30).isEmpty());
  // Times stand below their lines.
  const auto times = view.timeline.picture(1000).times;
  ASSERT_GT(times.size(), 3U);
  for (std::size_t i = 1; i + 1 < times.size(); ++i) {
    const int column = times[i].column;
    EXPECT_GT(picture.find(stripLook.grid, {column, 14, 1, 112}).height(), 108);
    const QRect text = picture.find(RecorderLook::text, {column - 40, 120, 81, 20}, 0.5);
    EXPECT_TRUE(text.top() > 124 && text.width() > 30);
    EXPECT_NEAR(text.center().x(), column, 2);
  }
}

TEST_F(RecordStripTest, MouseAndKeysPointMarkAndZoom) {
  for (int i = 0; i < 40; ++i) keep(1 + i % 2, -10, 10, 3000);
  const QSignalSpy used(&strip, &RecordStrip::used);
  const auto click = [&](RecordStore::Number at, Qt::KeyboardModifiers with = {}) {
    QTest::mouseClick(&strip, Qt::LeftButton, with, {columnOf(at) + 1, 60});
    EXPECT_EQ(view.selected(), at);
  };
  click(7);
  click(12, Qt::ShiftModifier);
  QTest::mouseMove(&strip, {columnOf(20), 60});
  EXPECT_TRUE(view.selected() == 12 && view.isMarked());
  click(5);
  EXPECT_FALSE(view.isMarked());
  // The record that is pointed at then, and what is marked.
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, int, Stretch> keys[] = {
      {Qt::Key_Right, {}, 6, {0, 40}},
      {Qt::Key_PageDown, {}, 16, {0, 40}},
      {Qt::Key_Left, Qt::ShiftModifier, 15, {15, 17}},
      {Qt::Key_PageUp, Qt::ShiftModifier, 5, {5, 17}},
      {Qt::Key_Left, {}, 4, {5, 17}},
      {Qt::Key_Home, Qt::ShiftModifier, 0, {0, 5}},
      {Qt::Key_End, {}, 39, {0, 5}}};
  for (const auto& [key, with, pointed, marked] : keys) {
    const auto before = used.size();
    QTest::keyClick(&strip, key, with);
    EXPECT_TRUE(view.selected() == pointed && used.size() == before + 1);
    EXPECT_TRUE(view.stretch().first == marked.first && view.stretch().end == marked.end)
        << pointed;
  }
  click(10);
  const int place = columnOf(10);
  // A turn of the wheel or a key, how many pixels it moves, and by which factor it spreads them.
  const auto wheel = [&](QPoint turned, Qt::KeyboardModifiers with = {}) {
    QWheelEvent event(QPointF(place, 60), {}, {}, turned, Qt::NoButton, with, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&strip, &event);
  };
  const std::tuple<std::function<void()>, int, double> zooms[] = {
      {[&] {
         wheel({0, 240});
       },
       0, 1.5625},
      {[&] {
         wheel({-120, 0});
       },
       -100, 1},
      {[&] {
         wheel({0, -120}, Qt::ShiftModifier);
       },
       -100, 1},
      {[&] {
         wheel({120, 0});
       },
       100, 1},
      {[&] {
         wheel({0, 120}, Qt::ShiftModifier);
       },
       100, 1},
      {[&] { QTest::keyClick(&strip, Qt::Key_Plus); }, 0, 1.25},
      {[&] { QTest::keyClick(&strip, Qt::Key_Minus); }, 0, 0.8}};
  for (const auto& [zoom, by, factor] : zooms) {
    const int before = columnOf(10);
    const int distance = columnOf(20) - before;
    zoom();
    EXPECT_NEAR(columnOf(10), before + by, 2);
    EXPECT_NEAR(columnOf(20) - columnOf(10), distance * factor, 3);
  }
  QTest::mouseDClick(&strip, Qt::LeftButton, {}, {500, 60});
  EXPECT_TRUE(view.timeline.showsAll());
}

TEST_F(RecorderPartsTest, TablesSayWhatIsMeasured) {
  for (int i = 0; i < 3; ++i) keep(1, -100, 100);
  RecorderTables tables(view, nullptr);
  const auto rows = [&](const char* name) {
    auto& table = *tables.findChild<QTableWidget*>(QLatin1String(name));
    Lines found;
    for (int row = -1; row < table.rowCount(); ++row) {
      QStringList cells;
      for (int column = 0; column < table.columnCount(); ++column) {
        const auto* cell = row < 0 ? table.horizontalHeaderItem(column) : table.item(row, column);
        cells << (cell == nullptr ? QString() : cell->text());
      }
      found.push_back(fromQt(cells.join(QLatin1Char('|'))));
    }
    return found;
  };
  const auto chosen = [&] { return tables.findChild<QTableWidget*>("values")->currentRow(); };
  tables.showState();
  EXPECT_EQ(rows("values").at(1), "Maximum|1.000 V");
  while (view.measureMore(10)) continue;
  tables.showState();
  EXPECT_EQ(rows("statistics"), (Lines{"Peak to peak|CH1", "Count|3", "Mean|2.000 V",
                                       "Std deviation|0 V", "Lowest|2.000 V", "Highest|2.000 V"}));
  // Another channel is another column, also of what both have to do with.
  keep(2, -50, 50);
  tables.showState();
  const Lines values = rows("values");
  EXPECT_EQ(values.at(0), "Measurement|CH1|CH2");
  EXPECT_EQ(values.at(1), "Maximum|1.000 V|500.0 mV");
  auto& table = *tables.findChild<QTableWidget*>("values");
  for (int row = 0; row < table.rowCount(); ++row)
    EXPECT_EQ(table.columnSpan(row, 1), row < static_cast<int>(Quantity::phase) ? 1 : 2);
  EXPECT_EQ(chosen(), static_cast<int>(Quantity::peakToPeak));
  EXPECT_EQ(table.selectedItems().size(), 3);
  table.setCurrentCell(0, 0);
  QTest::keyClick(&table, Qt::Key_Tab);
  EXPECT_EQ(table.currentItem(), table.item(0, 0));
  EXPECT_EQ(rows("statistics").at(0), "Maximum|CH1|CH2");
  Lines told;
  for (const QLabel* label : tables.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
    told.push_back(fromQt(label->text()));
  EXPECT_EQ(told, (Lines{"CH2  00:00:04.800  record 4 of 4",
                         "CH1: 500.0 mV/div, 2.000 ms/div\nCH2: 500.0 mV/div, 2.000 ms/div",
                         "CH1: 3 records, 00:00:01 to 00:00:03\nCH2: 1 record, 00:00:04 to "
                         "00:00:04 (0 measured so far)"}));
  EXPECT_LT(table.rowHeight(0), table.fontMetrics().height() + 8);
}

}  // namespace
}  // namespace tracewell
