// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReplyBox.h"

#include <QAccessible>
#include <QEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

namespace tracewell {

/// Lays out the rows of a paragraph that there is room for. For the scroll bar the others count as
/// if they were as long.
class ReplyBox::Rows : public QPlainTextDocumentLayout {
 public:
  Rows(QTextDocument& document, const ReplyBox& box)
      : QPlainTextDocumentLayout(&document), box_(box) {}

  QRectF blockBoundingRect(const QTextBlock& block) const override {
    QTextBlock paragraph = block;
    if (block.layout()->lineCount() == 0 && (!isAllWanted() || isOfNumbers(block.text())))
      layOut(paragraph, isAllWanted() ? endless : box_.viewport()->height());
    return QPlainTextDocumentLayout::blockBoundingRect(block);
  }

  /// Now, and when those that are left out are asked for.
  void layOutAll() {
    if (!isPart_) return;
    isPart_ = false;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
      if (isWhole(block)) continue;
      block.clearLayout();
      layOut(block, endless);
    }
  }

 private:
  static constexpr qreal endless = 1e9;

  /// A screen reader may ask for the place of any character.
  bool isAllWanted() const { return box_.hasFocus() || QAccessible::isActive(); }

  static int laidOut(const QTextBlock& block) {
    const QTextLayout& rows = *block.layout();
    if (rows.lineCount() == 0) return 0;
    const QTextLine last = rows.lineAt(rows.lineCount() - 1);
    return last.textStart() + last.textLength();
  }
  static bool isWhole(const QTextBlock& block) {
    return block.layout()->lineCount() == 0 || laidOut(block) >= block.length() - 1;
  }

  /// One row more than has room in that height shows that the text goes on.
  void layOut(QTextBlock& block, qreal height) const {
    const qreal margin = document()->documentMargin();
    const qreal width = box_.viewport()->width() - 2 * margin;
    const QString text = block.text();
    const bool hasNumbers = isOfNumbers(text);
    const int columns = hasNumbers ? columnsOf(width) : 0;
    QTextOption option = document()->defaultTextOption();
    if (hasNumbers) option.setWrapMode(QTextOption::WrapAnywhere);
    QTextLayout& rows = *block.layout();
    rows.setTextOption(option);
    // Else the letters are measured anew for the cursor, and once more to be painted.
    rows.setCacheEnabled(true);
    rows.beginLayout();
    for (qreal y = 0; y <= height;) {
      QTextLine row = rows.createLine();
      if (!row.isValid()) break;
      row.setLeadingIncluded(true);
      if (hasNumbers)
        row.setNumColumns(wholeNumbers(text, row.textStart(), columns), width);
      else
        row.setLineWidth(width);
      row.setPosition(QPointF(margin, y));
      y += row.height();
    }
    rows.endLayout();
    count(block);
  }

  /// Numbers with commas between them are one word to the toolkit, which breaks it anywhere.
  static bool isOfNumbers(const QString& text) {
    return !text.isEmpty() && std::ranges::all_of(text, [](QChar character) {
      return (character >= '0' && character <= '9') || character == ',' || character == '-';
    });
  }

  /// How many letters fit side by side; all have one width.
  int columnsOf(qreal width) const {
    const qreal letter = QFontMetricsF(document()->defaultFont()).horizontalAdvance('0');
    return std::max(1, static_cast<int>(width / letter));
  }

  /// The length of the row that begins at `start`: at most `columns`, and to the end of a number if
  /// one ends there.
  static int wholeNumbers(const QString& text, int start, int columns) {
    if (start + columns >= text.size()) return columns;
    const qsizetype comma = text.lastIndexOf(QLatin1Char(','), start + columns - 1);
    return comma < start ? columns : static_cast<int>(comma) - start + 1;
  }

  void count(QTextBlock& block) const {
    const int before = document()->lineCount();
    const QTextLayout& rows = *block.layout();
    int longest = 1;
    for (int i = 0; i < rows.lineCount(); ++i)
      longest = std::max(longest, rows.lineAt(i).textLength());
    const int left = std::max(block.length() - 1 - laidOut(block), 0);
    if (left > 0) isPart_ = true;
    block.setLineCount(rows.lineCount() + (left + longest - 1) / longest);
    if (document()->lineCount() != before)
      emit const_cast<Rows*>(this)->documentSizeChanged(documentSize());
  }

  const ReplyBox& box_;
  mutable bool isPart_ = false;
};

ReplyBox::ReplyBox(QWidget* parent) : QPlainTextEdit(parent) {
  auto* document = new QTextDocument(this);
  rows_ = new Rows(*document, *this);
  document->setDocumentLayout(rows_);
  setDocument(document);
  // Letters of a fixed width need no pairs; scripts that join their letters are shaped all the
  // same.
  QFont plain = font();
  plain.setStyleStrategy(QFont::PreferNoShaping);
  // The style sheet's, or those of the panel would be loaded first, too.
  plain.setFamilies({QStringLiteral("monospace")});
  setFont(plain);
}

bool ReplyBox::event(QEvent* event) {
  if (event->type() == QEvent::FocusIn) rows_->layOutAll();
  return QPlainTextEdit::event(event);
}

bool ReplyBox::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) rows_->layOutAll();
  return QPlainTextEdit::viewportEvent(event);
}

void ReplyBox::scrollContentsBy(int dx, int dy) {
  // The bar goes back to the top when the rows turn out to be more or fewer than it was told.
  const int place = verticalScrollBar()->value();
  rows_->layOutAll();
  verticalScrollBar()->setValue(place);
  QPlainTextEdit::scrollContentsBy(dx, dy);
}

void ReplyBox::resizeEvent(QResizeEvent* event) {
  rows_->layOutAll();
  QPlainTextEdit::resizeEvent(event);
}

}  // namespace tracewell
