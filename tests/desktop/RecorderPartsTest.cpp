// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCheckBox>
#include <QComboBox>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>

#include "Doubles.h"
#include "Drawn.h"
#include "QtValues.h"
#include "RecordStrip.h"
#include "RecorderBar.h"
#include "RecorderTables.h"
#include "Regions.h"
#include "Theme.h"

namespace tracewell {
namespace {

QFont letters() {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(12);
  return font;
}

const RecorderLook stripLook = {Qt::black, QColor(0, 120, 0), {Qt::red, Qt::blue}};

/// What is made of records of its own.
class RecorderPartsTest : public testing::Test {
 protected:
  RecorderPartsTest() { applyTheme(*qApp, Theme::light); }
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
    strip.setFont(letters());
    strip.setPalette(plainColours());
    strip.resize(1000, 140);
  }
  int columnOf(RecordStore::Number number) const { return view.timeline.columnOf(number, 1000); }

  RecordStrip strip{view, nullptr};
};

TEST_F(RecordStripTest, RecordsStandAtTheirTimes) {
  for (int i = 0; i < 10; ++i) keep(1 + i % 2, -100, 100, 3000);
  keep(1, -200, -100, 3000);
  keep(2, 100, 200, 3000);
  keep(1, -256, 256, 3000);
  keep(2, -500, 900, 9000);
  keep(1, 0, 0, 3000);
  view.select(0);
  expectDrawn(strip, "records");
  view.mark(3, 6);
  view.select(11);
  store.pin(2, "wwww");
  expectDrawn(strip, "records that are marked");
  // What has no room for its name goes without; those that touch share a dot.
  store.pin(3, "wwwwwwwwwwwwwwwwwwww");
  store.pin(4, "w");
  view.timeline.zoom(0.3, 0.2);
  expectDrawn(strip, "records from nearer");
  view.timeline.showAll();
  view.show(1);
  strip.show();
  strip.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&strip));
  strip.setFocus();
  expectDrawn(strip, "records of one channel");
}

TEST_F(RecordStripTest, MouseAndKeysPointMarkAndZoom) {
  for (int i = 0; i < 40; ++i) keep(1 + i % 2, -10, 10, 3000);
  QSignalSpy used(&strip, &RecordStrip::used);
  // The record that is pointed at, what is marked, and where two others stand.
  expectDrawn(strip, "records under the hand", [&](const QString&) {
    const bool isUsed = !used.isEmpty();
    used.clear();
    const QString place = QString::number(view.selected().value_or(-1));
    const Stretch marked = view.stretch();
    const QString mark =
        view.isMarked() ? QStringLiteral(", %1 to %2").arg(marked.first).arg(marked.end - 1) : "";
    return (isUsed ? place : "unused, " + place) + mark +
           QStringLiteral("; %1, %2").arg(columnOf(10)).arg(columnOf(20));
  });
}

TEST_F(RecorderPartsTest, TablesSayWhatIsMeasured) {
  RecorderTables tables(view, nullptr);
  tables.setFont(letters());
  tables.resize(350, 560);
  tables.show();
  // A row, or what stands above it: cells at the right behind >, pale ones in brackets, and a star
  // behind the chosen row. Or a label, or how many rows there are.
  const auto told = [&](const QString& asked) {
    const QString name = asked.section(QLatin1Char(' '), 0, 0);
    if (const auto* label = tables.findChild<QLabel*>(name))
      return label->text().replace('\n', '/');
    const auto& table = *tables.findChild<QTableWidget*>(name);
    if (asked == name)
      return QStringLiteral("%1 rows of %2").arg(table.rowCount()).arg(table.rowHeight(0));
    const int row = asked.mid(name.size() + 1).toInt() - 1;
    QStringList cells;
    for (int column = 0; column < table.columnCount(); ++column) {
      const auto* cell = row < 0 ? table.horizontalHeaderItem(column) : table.item(row, column);
      if (cell == nullptr) continue;
      const QBrush pale = table.palette().brush(QPalette::Disabled, QPalette::Text);
      QString text =
          row >= 0 && cell->foreground() == pale ? "(" + cell->text() + ")" : cell->text();
      if (cell->textAlignment() & Qt::AlignRight) text.prepend(QLatin1String("> "));
      if (row >= 0 && table.columnSpan(row, column) > 1) text += QLatin1String(" of both");
      EXPECT_TRUE(row < 0 || cell->toolTip() == cell->text());
      cells << text;
    }
    return cells.join(QStringLiteral(" | ")) + (row >= 0 && table.currentRow() == row ? "*" : "");
  };
  const auto expect = [&](const char* section) {
    tables.showState();
    QApplication::processEvents();
    expectDrawn(tables, section, told);
  };
  expect("tables of nothing");
  for (int i = 0; i < 3; ++i) keep(1, -100, 100);
  expect("tables of one channel");
  while (view.measureMore(10)) continue;
  keep(2, -50, 50);
  expect("tables of both channels");
  auto& table = *tables.findChild<QTableWidget*>("values");
  QTest::keyClick(&table, Qt::Key_End);
  EXPECT_EQ(table.currentRow(), table.rowCount() - 1);
  QTest::keyClick(&table, Qt::Key_Home);
  QTest::keyClick(&table, Qt::Key_Tab);
  EXPECT_EQ(table.currentItem(), table.item(0, 0));
  view.show(2);
  expect("tables of the other channel");
}

TEST_F(RecorderPartsTest, BarHasWhatBelongsToWhatIsDrawn) {
  RecorderCursors cursors;
  RecorderBar bar(view, cursors, nullptr);
  QSignalSpy chosen(&bar, &RecorderBar::chosen);
  // What there is then, in brackets what is out of reach; and what has been chosen.
  expectDrawn(bar, "recorder bar", [&](const QString& asked) {
    const QString name = asked.section(QLatin1Char('='), 0, 0);
    if (auto* box = bar.findChild<QComboBox*>(name))
      box->setCurrentIndex(asked.section(QLatin1Char('='), 1).toInt());
    else
      bar.findChild<QCheckBox*>(name)->click();
    QStringList said;
    for (const QWidget* part : bar.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      EXPECT_FALSE(part->toolTip().isEmpty());
      if (!part->isVisibleTo(&bar)) continue;
      const auto* const box = qobject_cast<const QComboBox*>(part);
      EXPECT_TRUE(box == nullptr || !part->accessibleName().isEmpty());
      const QString text = box != nullptr ? box->currentText() : part->property("text").toString();
      said << (part->isEnabled() ? text : "(" + text + ")");
    }
    const RecorderChoice& choice = view.choice;
    const auto numbers =
        QStringLiteral(
            "follows %1, channel %2, mode %3, behind %4, fading %5, envelope %6, mean %7, "
            "window %8, decibels %9, cursors %10, said %11 times")
            .arg(view.isFollowing())
            .arg(view.channel())
            .arg(static_cast<int>(choice.mode))
            .arg(choice.behind)
            .arg(choice.isFading)
            .arg(choice.hasEnvelope)
            .arg(choice.hasMean)
            .arg(static_cast<int>(choice.window))
            .arg(choice.isInDecibels)
            .arg(cursors.kind)
            .arg(chosen.size());
    chosen.clear();
    return said.join(", ") + "; " + numbers;
  });
}

}  // namespace
}  // namespace tracewell
