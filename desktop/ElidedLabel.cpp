// SPDX-License-Identifier: GPL-3.0-or-later
#include "ElidedLabel.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "BannerPainter.h"

namespace tracewell {

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

/// Letters of a fixed width take the most room.
QFont ElidedLabel::fontThatFits() const {
  constexpr int leastStretch = 70;
  const int room = contentsRect().width();
  if (!property("cell").toBool() || neededWidth() <= room) return font();
  QFont narrow = QApplication::font();
  narrow.setPixelSize(QFontInfo(font()).pixelSize());
  // Letters of whole pixels do not become narrower by just what they should.
  for (int stretch = 100; stretch >= leastStretch; stretch -= 6) {
    narrow.setStretch(stretch);
    if (QFontMetrics(narrow).horizontalAdvance(text()) <= room) break;
  }
  return narrow;
}

bool ElidedLabel::isCut() const {
  const int room = contentsRect().width();
  if (!sentences_.empty()) return neededWidth() > room;
  return QFontMetrics(fontThatFits()).horizontalAdvance(text()) > room;
}

QRect ElidedLabel::paintSentence(QPainter& painter, const Sentence& sentence, QRect room) const {
  const qreal side = fontMetrics().ascent() * 1.15;
  // Of a sentence a few letters at least.
  const bool isRoom = room.width() > 3 * signWidth();
  if (isRoom) {
    paintWeightSign(painter, {room.left() + 0.5, room.center().y() - side / 2 + 0.5, side, side},
                    sentence.isWarning, warningColour_, palette().color(QPalette::Window));
    room.setLeft(room.left() + signWidth());
  }
  const QString all = isRoom ? sentence.text : QString(QChar(0x2026));
  const QString line = fontMetrics().elidedText(all, Qt::ElideRight, room.width());
  painter.setPen(sentence.isWarning ? warningColour_ : palette().color(QPalette::WindowText));
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line);
  if (line != sentence.text) return {};
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
  for (const Sentence& sentence : sentences_) {
    if (sentence.text.isEmpty() || room.isEmpty()) return;
    room = paintSentence(painter, sentence, room);
  }
}

/// The whole text, where it is not to be seen.
bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !isCut()) return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
  return true;
}

}  // namespace tracewell
