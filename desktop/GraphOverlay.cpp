// SPDX-License-Identifier: GPL-3.0-or-later
#include "GraphOverlay.h"

#include <QPainter>
#include <algorithm>

#include "BannerPainter.h"
#include "Graph.h"
#include "QtValues.h"
#include "ScaleStrip.h"
#include "ShownText.h"
#include "TextGrowth.h"

namespace tracewell {
namespace {

using Side = GraphMarks::Side;

/// Pixels, with a font of so many.
constexpr qreal usualFont = 12;
constexpr qreal flagLength = 17;
constexpr qreal flagWidth = 14;
/// Of its width.
constexpr qreal tipShare = 0.43;
constexpr qreal padding = 6;
constexpr qreal gap = 14;
constexpr int edge = 6;
/// Kept free at the right for the mark of the trigger level.
constexpr qreal roomOfTrigger = 26;
/// The badge leaves it to the names of the traces.
constexpr qreal roomOfNames = 60;
/// Of the width; a longer name is cut in its middle.
constexpr qreal mostOfWidth = 0.5;
/// Kept free at the top for the names of the cursors.
constexpr qreal roomOfCursors = 20;
/// Kept free at the bottom for the note.
constexpr qreal roomOfNote = 26;
constexpr qreal nearCursor = 10;
/// Of the warning at the lower edge.
const QColor bannerWarning(255, 171, 64);
/// Of the text's colour in the frame around it.
constexpr float borderShare = 0.27F;

/// Points to the right, or up, or down.
QPolygonF flagShape(const QRectF& place, Side::Direction direction) {
  const qreal tip = qMin(place.width(), place.height()) * tipShare;
  const qreal left = place.left();
  const qreal right = place.right();
  const qreal top = place.top();
  const qreal bottom = place.bottom();
  const QPointF centre = place.center();
  switch (direction) {
    case Side::here:
      return QPolygonF({{left, top},
                        {right - tip, top},
                        {right, centre.y()},
                        {right - tip, bottom},
                        {left, bottom}});
    case Side::above:
      return QPolygonF({{centre.x(), top},
                        {right, top + tip},
                        {right, bottom},
                        {left, bottom},
                        {left, top + tip}});
    case Side::below:
      break;
  }
  return QPolygonF({{left, top},
                    {right, top},
                    {right, bottom - tip},
                    {centre.x(), bottom},
                    {left, bottom - tip}});
}

/// The digit stands in the part behind the tip.
QRectF digitPlace(const QRectF& place, Side::Direction direction) {
  switch (direction) {
    case Side::here:
      return place.adjusted(0, 0, -4, 0);
    case Side::above:
      return place.adjusted(0, 4, 0, 0);
    case Side::below:
      break;
  }
  return place.adjusted(0, 0, 0, -4);
}

/// Moves what overlaps apart, from the top down, and back up where the bottom is reached.
void spread(std::vector<qreal>& tops, qreal height, qreal bottom) {
  for (std::size_t i = 1; i < tops.size(); ++i) tops[i] = qMax(tops[i], tops[i - 1] + height);
  qreal limit = bottom - height;
  for (std::size_t i = tops.size(); i-- > 0; limit = tops[i] - height)
    tops[i] = qMin(tops[i], limit);
}

QString shown(const std::string& text) {
  return shownText(text, roomOfLine);
}

}  // namespace

GraphOverlay::GraphOverlay(QWidget& plot, ScaleStrip& strip,
                           std::function<QPointF(double, double)> toPixels)
    : QWidget(&plot), strip_(strip), toPixels_(std::move(toPixels)) {
  setObjectName(QStringLiteral("marks"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
}

void GraphOverlay::setGraph(const Graph* graph) {
  graph_ = graph;
  update();
}

void GraphOverlay::setFocusShown(bool isShown) {
  isFocusShown_ = isShown;
  update();
}

void GraphOverlay::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (graph_ != nullptr && graph_->marks) {
    graph_->paintedMarks = graph_->marks();
    const GraphMarks& marks = graph_->paintedMarks;
    strip_.setScales(marks.scales);
    paintNames(painter, marks.names);
    paintSides(painter, marks.sides);
    paintBadge(painter, marks.badge);
    if (!marks.banner.text.empty())
      paintBanner(painter, rect().adjusted(edge, 0, -edge, -edge), marks.banner,
                  {colourOf(0), bannerWarning, toQt(graph_->plotAreaColour())});
  }
  if (!isFocusShown_) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
}

/// A flag that would cover another one stands beside it.
QRectF GraphOverlay::flagPlace(const Side& side, const QList<QRectF>& taken) const {
  const bool isHere = side.direction == Side::here;
  QRectF place(0, 0, isHere ? grown(flagLength) : grown(flagWidth),
               isHere ? grown(flagWidth) : grown(flagLength));
  place.moveLeft(1);
  if (isHere)
    place.moveTop(qBound(1.0, toPixels_(0, side.height).y() - grown(flagWidth) / 2,
                         height() - 1.0 - grown(flagWidth)));
  else
    place.moveTop(side.direction == Side::above ? 1 : height() - 1 - grown(flagLength));
  for (const QRectF& other : taken)
    if (place.intersects(other)) place.moveLeft(other.right() + 2);
  return place;
}

void GraphOverlay::paintSides(QPainter& painter, const std::vector<Side>& sides) const {
  QFont font = this->font();
  font.setBold(true);
  font.setPixelSize(qRound(grown(11)));
  painter.save();
  painter.setFont(font);
  QList<QRectF> taken;
  for (const Side& side : sides) {
    const QRectF place = flagPlace(side, taken);
    taken << place;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colourOf(side.plot));
    painter.drawPolygon(flagShape(place, side.direction));
    painter.setPen(colourOf(side.plot).lightness() < 110 ? Qt::white : Qt::black);
    painter.drawText(digitPlace(place, side.direction), Qt::AlignCenter, shown(side.text));
  }
  painter.restore();
}

/// At the right ends of their traces, which may be anywhere, one above the other. None is cut at
/// the left edge.
void GraphOverlay::paintNames(QPainter& painter, const Texts& names) const {
  struct Name {
    Texts row;
    qreal top;
  };
  const qreal rowHeight = sizeOf({}).height();
  std::vector<Name> placed;
  for (const GraphMarks::Text& name : names) {
    const Plot& plot = graph_->plot(name.plot);
    const qreal top = toPixels_(0, plot.y().back()).y() - rowHeight / 2;
    const QString text =
        QFontMetricsF(font()).elidedText(shown(name.text), Qt::ElideMiddle, mostOfWidth * width());
    placed.push_back(
        {{{name.plot, fromQt(text)}}, qBound(grown(roomOfCursors), top, height() - rowHeight)});
  }
  std::ranges::stable_sort(placed, {}, &Name::top);
  std::vector<qreal> tops;
  tops.reserve(placed.size());
  for (const Name& name : placed) tops.push_back(name.top);
  spread(tops, rowHeight + 1, height() - grown(roomOfNote));
  for (std::size_t i = 0; i < placed.size(); ++i) {
    const Texts& row = placed[i].row;
    const QSizeF size = sizeOf(row);
    const qreal end = toPixels_(graph_->plot(row[0].plot).x().back(), 0).x();
    const qreal right = qMin(end, width() - grown(roomOfTrigger));
    paintRow(painter, row, {QPointF(qMax(right - size.width(), 0.0), tops[i]), size});
  }
}

void GraphOverlay::paintBadge(QPainter& painter, const Texts& lines) const {
  if (lines.empty()) return;
  const QFontMetricsF metrics(font());
  qreal widest = 0;
  for (const GraphMarks::Text& line : lines)
    widest = qMax(widest, metrics.horizontalAdvance(shown(line.text)));
  const QSizeF size(widest + 2 * grown(padding),
                    metrics.height() * static_cast<qreal>(lines.size()) + grown(padding));
  const QRectF place(badgePlace(size), size);
  paintGround(painter, place);
  qreal top = place.top() + grown(padding) / 2;
  for (const GraphMarks::Text& line : lines) {
    painter.setPen(colourOf(line.plot));
    painter.drawText(QRectF(place.left() + grown(padding), top, widest, metrics.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, shown(line.text));
    top += metrics.height();
  }
}

/// Behind the right one of two upright lines, below the lower one of two level lines; on the other
/// side of the other line where there is no room.
QPointF GraphOverlay::badgePlace(const QSizeF& size) const {
  const Cursor& cur1 = graph_->cursor("cur1");
  const Cursor& cur2 = graph_->cursor("cur2");
  const QPointF first = toPixels_(cur1.xPosition(), cur1.yPosition());
  const QPointF second = toPixels_(cur2.xPosition(), cur2.yPosition());
  const qreal mostLeft = width() - grown(roomOfTrigger) - grown(roomOfNames) - size.width();
  const qreal mostTop = height() - grown(roomOfNote) - size.height();
  if (cur1.style() == CursorStyle::verticalLine) {
    qreal left = qMax(first.x(), second.x()) + grown(nearCursor);
    if (left > mostLeft) left = qMin(first.x(), second.x()) - grown(nearCursor) - size.width();
    return {qBound<qreal>(edge, left, mostLeft), grown(roomOfCursors)};
  }
  qreal top = qMax(first.y(), second.y()) + grown(nearCursor);
  if (top > mostTop) top = qMin(first.y(), second.y()) - grown(nearCursor) - size.height();
  return {mostLeft, qBound(grown(roomOfCursors), top, mostTop)};
}

QSizeF GraphOverlay::sizeOf(const Texts& row) const {
  const QFontMetricsF metrics(font());
  qreal width = 2 * grown(padding) - grown(gap);
  for (const GraphMarks::Text& part : row)
    width += metrics.horizontalAdvance(shown(part.text)) + grown(gap);
  return {width, metrics.height() + 4};
}

void GraphOverlay::paintRow(QPainter& painter, const Texts& row, const QRectF& place) const {
  paintGround(painter, place);
  const QFontMetricsF metrics(font());
  qreal left = place.left() + grown(padding);
  for (const GraphMarks::Text& part : row) {
    const QString text = shown(part.text);
    const qreal width = metrics.horizontalAdvance(text);
    painter.setPen(colourOf(part.plot));
    painter.drawText(QRectF(left, place.top(), width + 1, place.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, text);
    left += width + grown(gap);
  }
}

/// Opaque: what shines through takes longer to paint than the text, and makes it harder to read.
void GraphOverlay::paintGround(QPainter& painter, const QRectF& place) const {
  const QColor ground = toQt(graph_->plotAreaColour());
  const QRect outside = place.toRect();
  painter.fillRect(outside, mixed(colourOf(0), ground, borderShare));
  painter.fillRect(outside.adjusted(1, 1, -1, -1), ground);
}

QColor GraphOverlay::colourOf(int plot) const {
  return markColour(*graph_, plot);
}

qreal GraphOverlay::grown(qreal pixels) const {
  return pixels * pixelsOf(*this) / usualFont;
}

}  // namespace tracewell
