// SPDX-License-Identifier: GPL-3.0-or-later
#include "ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>
#include <algorithm>

#include "BannerPainter.h"

namespace tracewell {
namespace {

QString broken(const QString& text, const QFont& font, int width) {
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  QStringList lines;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    lines << text.mid(line.textStart(), line.textLength()).trimmed();
  }
  layout.endLayout();
  return lines.join(QLatin1Char('\n'));
}

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setTextFormat(Qt::PlainText);
}

void ElidedLabel::setSentences(const std::vector<Sentence>& sentences) {
  if (sentences == sentences_) return;
  sentences_ = sentences;
  updateGeometry();
  update();
}

/// As high as the letters, and a gap.
int ElidedLabel::signWidth() const {
  return fontMetrics().ascent() * 3 / 2;
}

int ElidedLabel::gapWidth() const {
  return fontMetrics().ascent();
}

int ElidedLabel::neededWidth() const {
  if (sentences_.empty()) return fontMetrics().horizontalAdvance(text());
  int width = -gapWidth();
  for (const Sentence& sentence : sentences_)
    width += gapWidth() + signWidth() + fontMetrics().horizontalAdvance(sentence.text);
  return width;
}

QSize ElidedLabel::minimumSizeHint() const {
  const int least = sentences_.empty() ? 0 : 12 * fontMetrics().averageCharWidth();
  return {std::min(least, sizeHint().width()), QLabel::sizeHint().height()};
}

/// By the longest result and the narrowest column, so that all cells look the same.
QFont ElidedLabel::fontThatFits() const {
  if (text().isEmpty() || property("kind").toString() != QLatin1String("cell")) return font();
  static const QString longest = QStringLiteral("Duty Cycle(2): 50.00 %");
  constexpr int leastStretch = 65;
  int room = contentsRect().width();
  for (const ElidedLabel* cell :
       parentWidget()->findChildren<ElidedLabel*>(QString(), Qt::FindDirectChildrenOnly))
    room = std::min(room, cell->contentsRect().width());
  const auto hasRoom = [room](const QFont& letters) {
    return QFontMetrics(letters).horizontalAdvance(longest) <= room;
  };
  if (hasRoom(font())) return font();
  QFont narrow = font();
  narrow.setPixelSize(QFontInfo(font()).pixelSize() - 1);
  // Letters of whole pixels do not shrink by exactly the factor that they are given.
  for (int stretch = 100; stretch >= leastStretch && !hasRoom(narrow); stretch -= 5)
    narrow.setStretch(stretch);
  return narrow;
}

bool ElidedLabel::isCut() const {
  const int room = contentsRect().width();
  if (!sentences_.empty()) return neededWidth() > room;
  return QFontMetrics(fontThatFits()).horizontalAdvance(text()) > room;
}

int ElidedLabel::keptFor(std::size_t done) const {
  const int least = 10 * fontMetrics().averageCharWidth();
  int width = 0;
  for (; done < sentences_.size(); ++done)
    if (sentences_[done].isWarning)
      width += gapWidth() + signWidth() +
               std::min(least, fontMetrics().horizontalAdvance(sentences_[done].text));
  return width;
}

QRect ElidedLabel::paintSentence(QPainter& painter, const Sentence& sentence, QRect room,
                                 int kept) const {
  const qreal side = fontMetrics().ascent() * 1.15;
  // Of a sentence a few letters at least.
  const bool isRoom = room.width() > 3 * signWidth();
  if (isRoom) {
    paintWeightSign(painter, {room.left() + 0.5, room.center().y() - side / 2 + 0.5, side, side},
                    sentence.isWarning, warningColour_, palette().color(QPalette::Window));
    room.setLeft(room.left() + signWidth());
  }
  const QString all = isRoom ? sentence.text : QString(QChar(0x2026));
  const QString line = fontMetrics().elidedText(all, Qt::ElideRight, room.width() - kept);
  painter.setPen(sentence.isWarning ? warningColour_ : palette().color(QPalette::WindowText));
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line);
  if (line != sentence.text && kept == 0) return {};
  room.setLeft(room.left() + fontMetrics().horizontalAdvance(line) + gapWidth());
  return room;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  QRect room = contentsRect();
  if (sentences_.empty()) {
    painter.setFont(fontThatFits());
    const QString line = painter.fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
    painter.drawText(room, static_cast<int>(alignment()) | Qt::TextSingleLine, line);
  }
  for (std::size_t i = 0; i < sentences_.size(); ++i) {
    if (sentences_[i].text.isEmpty() || room.isEmpty()) return;
    const int own = 2 * signWidth();
    const int kept = std::min(keptFor(i + 1), std::max(room.width() - own, 0));
    // Of several that are cut, the warnings alone are left.
    if (kept < keptFor(i + 1) && !sentences_[i].isWarning) continue;
    room = paintSentence(painter, sentences_[i], room, kept);
  }
}

/// Tips are plain here, and break no line of plain text.
QString ElidedLabel::wholeText() const {
  const int widest = 90 * fontMetrics().averageCharWidth();
  if (sentences_.empty()) return broken(text(), font(), widest);
  QStringList lines;
  for (const Sentence& sentence : sentences_) lines << broken(sentence.text, font(), widest);
  return lines.join(QLatin1Char('\n'));
}

/// Shows the whole text as a tip where it is cut. Sets the letters' size as soon as it is told, so
/// that no letters of another size are loaded first.
bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::DynamicPropertyChange &&
      static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName() == "pixels") {
    QFont letters = font();
    letters.setPixelSize(property("pixels").toInt());
    setFont(letters);
  }
  if (event->type() != QEvent::ToolTip || !isCut()) return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), wholeText(), this);
  return true;
}

}  // namespace tracewell
