// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReplyBox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

namespace tracewell {

/// Empty where two boxes look the same; else what may be the reason.
static std::string difference(QPlainTextEdit& box, QPlainTextEdit& other) {
  QApplication::processEvents();
  const QImage look = box.viewport()->grab().toImage();
  const QImage others = other.viewport()->grab().toImage();
  if (look == others) return "";
  std::ostringstream told;
  for (const QPlainTextEdit* one : {&box, &other})
    told << one->viewport()->width() << "x" << one->viewport()->height() << " "
         << one->font().toString().toStdString() << " " << one->hasFocus() << one->underMouse()
         << one->verticalScrollBar()->value() << "; ";
  for (int y = 0; y < look.height(); ++y)
    for (int x = 0; x < look.width(); ++x)
      if (look.size() == others.size() && look.pixel(x, y) != others.pixel(x, y)) {
        told << "first at " << x << "," << y;
        return told.str();
      }
  return told.str();
}

/// Beside an ordinary box, which lays out every row.
TEST(ReplyBoxTest, ShowsAndGivesWhatAnOrdinaryBoxDoes) {
  QString record;
  for (int i = 0; i < 500; ++i) record += QString::number(i * 37 % 250 - 125) + ",";
  QString words;
  for (int i = 0; i < 300; ++i) words += QString(i % 7 + 1, QLatin1Char('w')) + " ";
  for (const QString& text : {record + "\n", record, words + "\nlast\n", QString("1,2\n")}) {
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
      EXPECT_EQ(difference(box, ordinary), "");
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
      EXPECT_EQ(difference(box, ordinary), "") << row;
    }
    box.setPlainText(text);
    for (QPlainTextEdit* one : {static_cast<QPlainTextEdit*>(&box), &ordinary}) {
      one->verticalScrollBar()->setValue(0);
      QTest::mouseClick(one->viewport(), Qt::LeftButton, {}, {3, 3});
      one->moveCursor(QTextCursor::End, QTextCursor::KeepAnchor);
    }
    EXPECT_EQ(box.textCursor().selectedText(), ordinary.textCursor().selectedText());
    EXPECT_EQ(difference(box, ordinary), "");
    EXPECT_EQ(box.toPlainText(), text);
  }
}

}  // namespace tracewell
