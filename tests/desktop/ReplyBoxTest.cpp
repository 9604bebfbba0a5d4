// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReplyBox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

namespace tracewell {

static bool lookAlike(QPlainTextEdit& box, QPlainTextEdit& other) {
  QApplication::processEvents();
  return box.viewport()->grab().toImage() == other.viewport()->grab().toImage();
}

/// As many whole numbers in a row as have room side by side.
static QStringList rowsOf(const QString& numbers, const QPlainTextEdit& box) {
  const qreal room = box.viewport()->width() - 2 * box.document()->documentMargin();
  const qreal letter = QFontMetricsF(box.font()).horizontalAdvance('0');
  QStringList rows(1);
  for (const QString& number : numbers.chopped(1).split(QLatin1Char(','))) {
    const auto longer = static_cast<double>(rows.last().size() + number.size() + 1);
    if (longer * letter > room) rows << QString();
    rows.last() += number + QLatin1Char(',');
  }
  return rows;
}

static void takeFocus(QWidget& widget) {
  QFocusEvent in(QEvent::FocusIn);
  QApplication::sendEvent(&widget, &in);
}

TEST(ReplyBoxTest, RowsOfARecordEndBehindACommaAndShowAsWhenAllAreLaidOut) {
  QString record;
  for (int i = 0; i < 500; ++i) record += QString::number(i * 37 % 250 - 125) + ",";
  QWidget window;
  ReplyBox box(&window);
  ReplyBox whole(&window);
  for (ReplyBox* one : {&box, &whole}) {
    one->setReadOnly(true);
    one->resize(500, 90);
  }
  window.show();
  for (const QString& shown : {record, record + "\n" + record}) {
    for (ReplyBox* one : {&box, &whole}) one->setPlainText(shown);
    takeFocus(whole);
    EXPECT_TRUE(lookAlike(box, whole));
    for (const int row : {3, 24, 0}) {
      for (ReplyBox* one : {&box, &whole}) one->verticalScrollBar()->setValue(row);
      EXPECT_TRUE(lookAlike(box, whole)) << row;
    }
    const QTextLayout& layout = *box.document()->begin().layout();
    QStringList rows;
    for (int i = 0; i < layout.lineCount(); ++i)
      rows << record.mid(layout.lineAt(i).textStart(), layout.lineAt(i).textLength());
    EXPECT_EQ(rows, rowsOf(record, box));
  }
}

/// Beside an ordinary box, which lays out every row.
TEST(ReplyBoxTest, ShowsAndGivesWhatAnOrdinaryBoxDoes) {
  QString words;
  for (int i = 0; i < 300; ++i) words += QString(i % 7 + 1, QLatin1Char('w')) + " ";
  for (const QString& text : {words + "\nlast\n", words, QString("1,2\n")}) {
    QWidget window;
    ReplyBox box(&window);
    QPlainTextEdit ordinary(&window);
    for (QPlainTextEdit* one : {static_cast<QPlainTextEdit*>(&box), &ordinary}) {
      one->setReadOnly(true);
      one->resize(500, 90);
      one->setFocusPolicy(Qt::NoFocus);
    }
    window.show();
    for (const QString& shown : {text + text, text}) {
      box.setPlainText(shown);
      ordinary.setPlainText(shown);
      EXPECT_TRUE(lookAlike(box, ordinary));
    }
    const auto rows = [](QPlainTextEdit& one) { return one.document()->begin().lineCount(); };
    const auto laidOut = [](QPlainTextEdit& one) {
      return one.document()->begin().layout()->lineCount();
    };
    // The toolkit itself lays out at once what stands in place of a single paragraph.
    if (text.endsWith('\n')) {
      EXPECT_LT(laidOut(box), 10);
    }
    EXPECT_NEAR(rows(box), rows(ordinary), 2);
    for (const int row : {3, ordinary.verticalScrollBar()->maximum(), 0}) {
      box.verticalScrollBar()->setValue(row);
      ordinary.verticalScrollBar()->setValue(row);
      EXPECT_TRUE(lookAlike(box, ordinary)) << row;
    }
    box.setPlainText(text);
    for (QPlainTextEdit* one : {static_cast<QPlainTextEdit*>(&box), &ordinary}) {
      one->verticalScrollBar()->setValue(0);
      QTest::mouseClick(one->viewport(), Qt::LeftButton, {}, {3, 3});
      one->moveCursor(QTextCursor::End, QTextCursor::KeepAnchor);
    }
    EXPECT_EQ(box.textCursor().selectedText(), ordinary.textCursor().selectedText());
    EXPECT_TRUE(lookAlike(box, ordinary));
    EXPECT_EQ(box.toPlainText(), text);
  }
}

}  // namespace tracewell
