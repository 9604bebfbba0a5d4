// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScaleStrip.h"

#include <QPainter>

#include "Graph.h"
#include "QtValues.h"
#include "ShownText.h"

namespace tracewell {
namespace {

/// In heights of the font.
constexpr qreal lineHeight = 1.75;
constexpr qreal stripPadding = 0.7;
constexpr qreal gapOfScales = 1.6;
constexpr qreal gapOfValues = 1;
/// The values change all the time and are looked at from near.
constexpr qreal sizeOfValues = 0.75;

QFont valueFont(QFont font) {
  font.setBold(false);
  font.setPixelSize(qRound(font.pixelSize() * sizeOfValues));
  return font;
}

qreal gapIn(const QFont& font) {
  return font.pixelSize() * (font.bold() ? gapOfScales : gapOfValues);
}

QString shown(const GraphMarks::Text& part) {
  return shownText(part.text, roomOfLine);
}

qreal widthOf(const ScaleStrip::Texts& row, const QFont& font) {
  const QFontMetricsF metrics(font);
  qreal width = 0;
  for (const GraphMarks::Text& part : row)
    width += metrics.horizontalAdvance(shown(part)) + gapIn(font);
  return qMax(0.0, width - gapIn(font));
}

}  // namespace

QColor markColour(const Graph& graph, int plot) {
  if (plot > 0) return toQt(graph.plot(plot).lineColour());
  const bool isDark = toQt(graph.plotAreaColour()).lightness() < 128;
  return isDark ? QColor(0xe6, 0xeb, 0xef) : QColor(0x1c, 0x22, 0x28);
}

ScaleStrip::ScaleStrip(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ScaleStrip::setGraph(const Graph* graph) {
  graph_ = graph;
  update();
}

void ScaleStrip::setScales(const Texts& scales) {
  if (scales == scales_) return;
  scales_ = scales;
  update();
}

void ScaleStrip::setValues(const Texts& values) {
  if (values == values_) return;
  values_ = values;
  update();
}

QSize ScaleStrip::sizeHint() const {
  return {0, qRound(font().pixelSize() * lineHeight)};
}

void ScaleStrip::paintEvent(QPaintEvent*) {
  if (graph_ == nullptr) return;
  QPainter painter(this);
  painter.fillRect(rect(), toQt(graph_->plotAreaColour()));
  const qreal edge = font().pixelSize() * stripPadding;
  const QFont small = valueFont(font());
  const qreal ofScales = widthOf(scales_, font());
  const qreal ofValues = widthOf(values_, small);
  const bool haveBothRoom = ofScales + gapIn(font()) + ofValues <= width() - 2 * edge;
  if (values_.empty() || haveBothRoom) paintRow(painter, scales_, edge);
  if (values_.empty()) return;
  painter.setFont(small);
  paintRow(painter, values_, qMax(edge, width() - edge - ofValues));
}

void ScaleStrip::paintRow(QPainter& painter, const Texts& row, qreal left) const {
  const QFontMetricsF metrics(painter.font());
  for (const GraphMarks::Text& part : row) {
    const QString text = shown(part);
    const qreal width = metrics.horizontalAdvance(text);
    painter.setPen(markColour(*graph_, part.plot));
    painter.drawText(QRectF(left, 0, width + 1, height()), Qt::AlignLeft | Qt::AlignVCenter, text);
    left += width + gapIn(painter.font());
  }
}

}  // namespace tracewell
