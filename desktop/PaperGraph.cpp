// SPDX-License-Identifier: GPL-3.0-or-later
#include "PaperGraph.h"

#include <QPolygonF>
#include <array>

#include "Graph.h"
#include "ShownText.h"

namespace tracewell {
namespace {

constexpr int divisionsAcross = 10;
constexpr int divisionsUp = 8;

struct Ink {
  QColor colour;
  Qt::PenStyle line;
};

const std::array<Ink, 5> inks = {{{QColor(0x9a, 0x5b, 0x00), Qt::SolidLine},
                                  {QColor(0x00, 0x4f, 0x87), Qt::SolidLine},
                                  {QColor(0x1d, 0x6b, 0x2a), Qt::DashLine},
                                  {QColor(0x8a, 0x1c, 0x5a), Qt::DashDotLine},
                                  {QColor(0x44, 0x44, 0x44), Qt::DotLine}}};

QPen penOf(const GraphPage::Trace& trace, PaperInk kind, qreal width) {
  const Ink& ink = inks[static_cast<std::size_t>(trace.number - 1) % inks.size()];
  const int grey = qGray(ink.colour.rgb());
  return {kind == PaperInk::grey ? QColor(grey, grey, grey) : ink.colour, width, ink.line};
}

/// One millimetre or so: everything is measured by it.
qreal unitOf(const QRectF& paper) {
  return paper.width() / 280;
}

void paintGrid(QPainter& painter, const QRectF& grid, qreal unit) {
  painter.setPen(QPen(QColor(0xbd, 0xbd, 0xbd), unit * 0.15));
  for (int i = 1; i < divisionsAcross; ++i) {
    const qreal x = grid.left() + grid.width() * i / divisionsAcross;
    painter.drawLine(QPointF(x, grid.top()), QPointF(x, grid.bottom()));
  }
  for (int i = 1; i < divisionsUp; ++i) {
    const qreal y = grid.top() + grid.height() * i / divisionsUp;
    painter.drawLine(QPointF(grid.left(), y), QPointF(grid.right(), y));
  }
  painter.setPen(QPen(Qt::black, unit * 0.3));
  painter.drawRect(grid);
  painter.drawLine(QPointF(grid.center().x(), grid.top()),
                   QPointF(grid.center().x(), grid.bottom()));
  painter.drawLine(QPointF(grid.left(), grid.center().y()),
                   QPointF(grid.right(), grid.center().y()));
}

QPolygonF lineOf(const GraphPage::Trace& trace, const QRectF& grid) {
  const qreal perUnitAcross = grid.width() / (divisionsAcross * Graph::unitsPerDivision);
  const qreal perUnitUp = grid.height() / (divisionsUp * Graph::unitsPerDivision);
  QPolygonF line;
  for (std::size_t i = 0; i < trace.x.size(); ++i)
    line << QPointF(grid.center().x() + trace.x[i] * perUnitAcross,
                    grid.center().y() - trace.y[i] * perUnitUp);
  return line;
}

}  // namespace

void paintOnPaper(const GraphPage& page, QPainter& painter, const QRectF& paper, PaperInk ink) {
  const qreal unit = unitOf(paper);
  QFont font = painter.font();
  font.setPixelSize(static_cast<int>(unit * 4.5));
  painter.setFont(font);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal lineHeight = unit * 7;
  painter.drawText(QRectF(paper.left(), paper.top(), paper.width(), lineHeight), Qt::AlignLeft,
                   shownText(page.title, roomOfLine));
  const auto captionLines = static_cast<qreal>(page.captions.size() + 1);
  const QRectF grid = paper.adjusted(0, lineHeight * 1.3, 0, -lineHeight * (captionLines + 0.3));
  paintGrid(painter, grid, unit);

  painter.save();
  painter.setClipRect(grid);
  for (std::size_t i = 0; i < page.traces.size(); ++i) {
    painter.setPen(penOf(page.traces[i], ink, unit * 0.5));
    painter.drawPolyline(lineOf(page.traces[i], grid));
  }
  painter.restore();

  qreal y = grid.bottom() + lineHeight * 0.3;
  qreal x = paper.left();
  for (std::size_t i = 0; i < page.traces.size(); ++i) {
    painter.setPen(penOf(page.traces[i], ink, unit * 0.5));
    painter.drawLine(QPointF(x, y + lineHeight / 2), QPointF(x + unit * 12, y + lineHeight / 2));
    painter.drawText(QPointF(x + unit * 14, y + lineHeight * 0.72),
                     shownText(page.traces[i].name, roomOfLine));
    x += unit * 40;
  }
  painter.setPen(Qt::black);
  for (const std::string& caption : page.captions) {
    y += lineHeight;
    painter.drawText(QRectF(paper.left(), y, paper.width(), lineHeight), Qt::AlignLeft,
                     shownText(caption, roomOfLine));
  }
}

}  // namespace tracewell
