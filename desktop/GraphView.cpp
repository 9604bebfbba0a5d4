// SPDX-License-Identifier: GPL-3.0-or-later
#include "GraphView.h"

#include <qcustomplot.h>

#include <QHelpEvent>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include "Accessible.h"
#include "Graph.h"
#include "GraphExchange.h"
#include "GraphGestures.h"
#include "GraphOverlay.h"
#include "QtValues.h"
#include "ScaleStrip.h"
#include "ShownText.h"
#include "TextGrowth.h"

namespace tracewell {
namespace {

/// Wide enough to read from afar; a line of one pixel takes a third of the time to draw, and so the
/// loaded traces, which lie behind, are drawn.
constexpr qreal liveTraceWidth = 1.4;
constexpr qreal loadedTraceWidth = 1;
constexpr std::size_t liveTraces = 2;
const QColor cursorColour(255, 138, 128);
const QColor activeCursorColour(255, 205, 198);
constexpr qreal activeCursorWidth = 2;
/// Share of its own colour that a trace keeps when what it shows is old.
constexpr float oldShare = 0.5F;
const QColor triggerColour(129, 212, 132);
const QColor cornerNoteColour(255, 171, 64);

/// Ticks at whole divisions, five small ones between; no numbers.
QSharedPointer<QCPAxisTicker> divisionTicker() {
  auto ticker = QSharedPointer<QCPAxisTickerFixed>::create();
  ticker->setTickStep(Graph::unitsPerDivision);
  return ticker;
}

/// Of a live trace.
QString layerOf(std::size_t trace) {
  return QStringLiteral("trace %1").arg(trace + 1);
}

/// Above the traces, in the picture of the last one: a picture more would be one more to paint.
QCPItemText* makeText(QCustomPlot* plot, const QColor& colour, Qt::Alignment alignment) {
  auto* text = new QCPItemText(plot);
  text->setColor(colour);
  text->setPositionAlignment(alignment);
  text->setVisible(false);
  text->setClipToAxisRect(false);
  text->setLayer(layerOf(liveTraces - 1));
  return text;
}

}  // namespace

GraphView::GraphView(QWidget* parent)
    : QWidget(parent),
      strip_(new ScaleStrip(this)),
      plot_(new QCustomPlot(this)),
      caption_(new QLabel(this)),
      gestures_(new GraphGestures(*this, *plot_, *strip_)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(strip_);
  layout->addWidget(plot_, 1);
  layout->addWidget(caption_);
  caption_->setAlignment(Qt::AlignCenter);
  caption_->setContentsMargins(0, 2, 0, 0);
  plot_->setObjectName(QStringLiteral("plot"));
  strip_->setObjectName(QStringLiteral("scales"));
  setFocusPolicy(Qt::StrongFocus);
  plot_->setFocusPolicy(Qt::NoFocus);
  plot_->installEventFilter(this);
  connect(gestures_, &GraphGestures::activated, this, &GraphView::markDirty);
  plot_->setNoAntialiasingOnDrag(true);
  plot_->setPlottingHints(QCP::phFastPolylines | QCP::phCacheLabels);
  plot_->setAntialiasedElements(QCP::aePlottables);
  // Else it is measured at every frame, although it does not show.
  plot_->setAutoAddPlottableToLegend(false);
  makeGraticule();
  makeLayers();
  for (QCPGraph*& trace : traces_) trace = plot_->addGraph();
  for (std::size_t i = 0; i < liveTraces; ++i) traces_[i]->setLayer(layerOf(i));
  for (CursorItems& items : cursorItems_) {
    items.line = new QCPItemLine(plot_);
    items.line->setPen(QPen(cursorColour, 1, Qt::DashLine));
    items.line->setVisible(false);
    items.name = makeText(plot_, cursorColour, Qt::AlignLeft | Qt::AlignTop);
  }
  trigger_ = makeText(plot_, triggerColour, Qt::AlignRight | Qt::AlignVCenter);
  trigger_->setText(QStringLiteral("T\u25C0"));
  note_ = makeText(plot_, cornerNoteColour, Qt::AlignRight | Qt::AlignBottom);
  note_->setBrush(QColor(0, 0, 0, 170));
  note_->position->setType(QCPItemPosition::ptAxisRectRatio);
  note_->position->setCoords(0.995, 0.99);
  overlay_ =
      new GraphOverlay(*plot_, *strip_, [this](double x, double y) { return toPixels(x, y); });
  takeFont();
}

QPointF GraphView::toPixels(double x, double y) const {
  return {plot_->xAxis->coordToPixel(x), plot_->yAxis->coordToPixel(y)};
}

QPointF GraphView::toUnits(const QPointF& pixels) const {
  return {plot_->xAxis->pixelToCoord(pixels.x()), plot_->yAxis->pixelToCoord(pixels.y())};
}

GraphView::~GraphView() {
  unbind();
}

/// The live traces lie on top of those that were loaded. Everything below them is one picture; the
/// plot's own empty layers would be others.
void GraphView::makeLayers() {
  for (const char* unused : {"axes", "legend", "overlay"})
    plot_->removeLayer(plot_->layer(QLatin1String(unused)));
  for (std::size_t i = 0; i < liveTraces; ++i) {
    plot_->addLayer(layerOf(i));
    plot_->layer(layerOf(i))->setMode(QCPLayer::lmBuffered);
  }
}

void GraphView::makeGraticule() {
  QCPAxisRect* rect = plot_->axisRect();
  rect->setAutoMargins(QCP::msNone);
  rect->setMargins(QMargins(1, 1, 1, 1));
  rect->setupFullAxesBox();
  for (QCPAxis* axis : rect->axes()) {
    axis->setTickLabels(false);
    axis->setTicks(false);
    axis->setTicker(divisionTicker());
    axis->setBasePen(Qt::NoPen);
  }
  for (QCPItemLine*& line : centreLines_) line = new QCPItemLine(plot_);
}

void GraphView::bind(Graph& graph) {
  unbind();
  if (graph.letGo) graph.letGo();
  graph_ = &graph;
  overlay_->setGraph(graph_);
  strip_->setGraph(graph_);
  gestures_->setGraph(graph_);
  exchange_ = std::make_unique<GraphExchange>(*this, graph);
  graph.letGo = [this] { unbind(); };
  const auto dirty = [this] {
    strip_->update();
    markDirty();
  };
  graph.changed = [this, dirty] {
    emit enlarged(graph_->enlarged());
    dirty();
  };
  for (Axis& axis : graph.axes()) axis.changed = dirty;
  for (Cursor& cursor : graph.cursors()) cursor.changed = dirty;
  for (std::size_t i = 0; i < traces_.size(); ++i) {
    Plot& plot = graph.plots()[i];
    plot.changed = dirty;
    plot.plotted = [this, i] { markPlotted(i); };
    isDataNew_[i] = true;
  }
  markDirty();
}

void GraphView::takeFont() {
  QFont font = this->font();
  const int pixels = pixelsOf(*this);
  font.setPixelSize(pixels);
  for (QCPItemText* text : {cursorItems_[0].name, cursorItems_[1].name, trigger_, note_})
    text->setFont(font);
  overlay_->setFont(font);
  font.setPixelSize(pixels * 5 / 4);
  caption_->setFont(font);
  font.setPixelSize(pixels * 4 / 3);
  font.setBold(true);
  strip_->setFont(font);
  strip_->updateGeometry();
  if (graph_ != nullptr) markDirty();
}

void GraphView::unbind() {
  Graph* const graph = std::exchange(graph_, nullptr);
  gestures_->setGraph(nullptr);
  exchange_.reset();
  overlay_->setGraph(nullptr);
  strip_->setGraph(nullptr);
  if (graph == nullptr) return;
  graph->changed = {};
  for (Axis& axis : graph->axes()) axis.changed = {};
  for (Cursor& cursor : graph->cursors()) cursor.changed = {};
  for (Plot& plot : graph->plots()) {
    plot.changed = {};
    plot.plotted = {};
  }
  // Last: it may be what is running.
  graph->letGo = {};
}

/// The tip would cover the traces: it belongs to the line below.
bool GraphView::event(QEvent* event) {
  if (event->type() == QEvent::FontChange) takeFont();
  const bool isTip = event->type() == QEvent::ToolTip;
  if (isTip && !caption_->geometry().contains(static_cast<QHelpEvent*>(event)->pos())) return true;
  return QWidget::event(event);
}

bool GraphView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) {
    overlay_->setGeometry(plot_->rect());
    markDirty();
  }
  return QWidget::eventFilter(watched, event);
}

void GraphView::focusInEvent(QFocusEvent* event) {
  overlay_->setFocusShown(true);
  QWidget::focusInEvent(event);
}

void GraphView::focusOutEvent(QFocusEvent* event) {
  overlay_->setFocusShown(false);
  QWidget::focusOutEvent(event);
}

void GraphView::keyPressEvent(QKeyEvent* event) {
  if (!gestures_->press(*event)) QWidget::keyPressEvent(event);
}

void GraphView::markDirty() {
  isDirty_ = true;
  paintSoon();
}

void GraphView::markPlotted(std::size_t trace) {
  isDataNew_[trace] = true;
  if (trace >= liveTraces) isDirty_ = true;
  paintSoon();
}

void GraphView::paintSoon() {
  if (isPaintDue_) return;
  isPaintDue_ = true;
  QTimer::singleShot(0, this, [this] {
    isPaintDue_ = false;
    isDirty_ ? replot() : replotLive();
    plot_->repaint();
  });
}

/// The screen is not painted meanwhile.
QPixmap GraphView::picture() {
  overlay_->hide();
  isForPicture_ = true;
  replot();
  QPixmap picture = grab(rect().adjusted(0, plot_->y(), 0, 0));
  isForPicture_ = false;
  replot();
  overlay_->show();
  return picture;
}

void GraphView::replot() {
  isDirty_ = false;
  if (graph_ == nullptr) return;
  showAxes();
  for (std::size_t i = 0; i < traces_.size(); ++i) {
    showTrace(graph_->plots()[i], *traces_[i], i < liveTraces ? liveTraceWidth : loadedTraceWidth);
    takeData(i);
  }
  showCursors();
  showTriggerMarker();
  gestures_->showValues();
  note_->setText(shownText(graph_->note(), roomOfLine));
  note_->setVisible(!graph_->note().empty());
  plot_->replot(QCustomPlot::rpQueuedRefresh);
  tellGraph(*this);
}

void GraphView::replotLive() {
  if (graph_ == nullptr) return;
  gestures_->showValues();
  for (std::size_t i = 0; i < liveTraces; ++i) {
    if (!isDataNew_[i]) continue;
    showTrace(graph_->plots()[i], *traces_[i], liveTraceWidth);
    takeData(i);
    traces_[i]->layer()->replot();
  }
}

void GraphView::takeData(std::size_t trace) {
  if (!std::exchange(isDataNew_[trace], false)) return;
  const Plot& plot = graph_->plots()[trace];
  traces_[trace]->setData(QVector<double>(plot.x().begin(), plot.x().end()),
                          QVector<double>(plot.y().begin(), plot.y().end()), true);
}

/// A large picture is mostly looked at smaller than it is.
qreal GraphView::inPicture(qreal lineWidth) const {
  constexpr qreal usualWidth = 1200;
  return isForPicture_ ? lineWidth * qMax(1.0, width() / usualWidth) : lineWidth;
}

void GraphView::showAxes() {
  const Axis& x = graph_->axis("XAxis");
  const Axis& y = graph_->axis("YAxis-1");
  plot_->xAxis->setRange(x.minimum(), x.maximum());
  plot_->yAxis->setRange(y.minimum(), y.maximum());
  plot_->xAxis->grid()->setPen(QPen(toQt(x.gridColour()), inPicture(1)));
  plot_->yAxis->grid()->setPen(QPen(toQt(y.gridColour()), inPicture(1)));
  plot_->xAxis->grid()->setZeroLinePen(QPen(toQt(x.gridColour()).lighter(130), inPicture(1)));
  plot_->yAxis->grid()->setZeroLinePen(QPen(toQt(y.gridColour()).lighter(130), inPicture(1)));
  plot_->setBackground(QBrush(toQt(graph_->plotAreaColour())));
  showInLabel(*caption_, x.caption(), qMax(width(), minimumSizeHint().width()));
  const bool isPale = x.isPale() && !isForPicture_;
  graph_->axis("XAxis").isPaintedPale = isPale;
  caption_->setEnabled(!isPale);
  // Small ticks along the centre lines: a dotted line five units wide each way.
  const QPen ticks(toQt(x.gridColour()).lighter(130), 5, Qt::CustomDashLine, Qt::FlatCap);
  const std::array<std::array<double, 4>, 2> ends = {
      {{x.minimum(), 0, x.maximum(), 0}, {0, y.minimum(), 0, y.maximum()}}};
  for (std::size_t i = 0; i < centreLines_.size(); ++i) {
    const qreal length = i == 0 ? plot_->axisRect()->width() / (x.maximum() - x.minimum())
                                : plot_->axisRect()->height() / (y.maximum() - y.minimum());
    QPen pen = ticks;
    // Dash lengths count in pen widths: one pixel drawn, the rest of a fifth of a division not.
    const qreal spacing = length * Graph::unitsPerDivision / 5;
    pen.setDashPattern({1.0 / 5, qMax(0.2, (spacing - 1) / 5)});
    centreLines_[i]->setPen(pen);
    centreLines_[i]->start->setCoords(ends[i][0], ends[i][1]);
    centreLines_[i]->end->setCoords(ends[i][2], ends[i][3]);
  }
}

void GraphView::showTrace(Plot& plot, QCPGraph& trace, qreal lineWidth) {
  trace.setVisible(plot.visible());
  QColor colour = toQt(plot.lineColour());
  plot.isPaintedPale = plot.isPale() && !isForPicture_;
  if (plot.isPaintedPale) colour = mixed(colour, toQt(graph_->plotAreaColour()), oldShare);
  trace.setPen(QPen(colour, inPicture(lineWidth)));
  trace.setScatterStyle(plot.pointStyle() == Plot::noPoints
                            ? QCPScatterStyle(QCPScatterStyle::ssNone)
                            : QCPScatterStyle(QCPScatterStyle::ssDisc, 4));
}

void GraphView::showCursors() {
  const Axis& x = graph_->axis("XAxis");
  const Axis& y = graph_->axis("YAxis-1");
  for (std::size_t i = 0; i < cursorItems_.size(); ++i) {
    const Cursor& cursor = graph_->cursors()[i];
    CursorItems& items = cursorItems_[i];
    const bool isVertical = cursor.style() == CursorStyle::verticalLine;
    const bool standsOut = i == gestures_->activeCursor() && !isForPicture_;
    items.line->setPen(standsOut ? QPen(activeCursorColour, activeCursorWidth, Qt::DashLine)
                                 : QPen(cursorColour, inPicture(1), Qt::DashLine));
    items.name->setColor(standsOut ? activeCursorColour : cursorColour);
    items.line->setVisible(cursor.visible());
    items.name->setVisible(cursor.visible());
    // Beside the flags of the channels.
    const int indent = isVertical || isForPicture_ ? 1 : 6;
    items.name->setText(QString(indent, QLatin1Char(' ')) + QStringLiteral("P%1").arg(i + 1));
    if (isVertical) {
      items.line->start->setCoords(cursor.xPosition(), y.minimum());
      items.line->end->setCoords(cursor.xPosition(), y.maximum());
      items.name->position->setCoords(cursor.xPosition(), y.maximum());
    } else {
      items.line->start->setCoords(x.minimum(), cursor.yPosition());
      items.line->end->setCoords(x.maximum(), cursor.yPosition());
      items.name->position->setCoords(x.minimum(), cursor.yPosition());
    }
  }
}

void GraphView::showTriggerMarker() {
  const Cursor& marker = graph_->cursor("Triger");
  const Axis& y = graph_->axis("YAxis-1");
  // Half the height of the mark, so that it is never cut.
  constexpr double room = 8;
  trigger_->setVisible(marker.visible());
  trigger_->position->setCoords(graph_->axis("XAxis").maximum(),
                                qBound(y.minimum() + room, marker.yPosition(), y.maximum() - room));
}

}  // namespace tracewell
