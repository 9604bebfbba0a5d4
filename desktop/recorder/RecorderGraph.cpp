// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderGraph.h"

#include <qcustomplot.h>

#include <QFontDatabase>
#include <QVBoxLayout>
#include <cmath>

#include "DesktopWords.h"
#include "FreePlace.h"
#include "QtValues.h"
#include "RecorderWords.h"
#include "TrueNumbers.h"

namespace tracewell {
namespace {

/// How much of their colour the newest and the oldest of the records behind have.
constexpr float newestShare = 0.6F;
constexpr float oldestShare = 0.15F;
constexpr qreal grabDistance = 8;

/// Suits the larger end; none for a unit without prefixes.
const UnitPrefix& prefixOf(const RecorderAxis& axis) {
  const bool hasPrefix = axis.unit == "V" || axis.unit == "s" || axis.unit == "Hz";
  const double most = std::max(std::fabs(axis.low), std::fabs(axis.high));
  const UnitPrefix* fitting = &unitPrefixes[3];
  if (!hasPrefix) return *fitting;
  fitting = &unitPrefixes.front();
  for (const UnitPrefix& prefix : unitPrefixes)
    if (scaled(most, -prefix.exponent) >= 1 - 1e-9) fitting = &prefix;
  return *fitting;
}

/// As many as every multiple of the step needs: one for 2.5.
int decimalsOf(double step) {
  constexpr int most = 6;
  int decimals = 0;
  for (; decimals < most; ++decimals, step *= 10)
    if (std::fabs(step - std::round(step)) < 1e-6 * step) break;
  return decimals;
}

QVector<double> scaledBy(const std::vector<double>& values, double factor) {
  QVector<double> result(static_cast<qsizetype>(values.size()));
  std::ranges::transform(values, result.begin(), [factor](double v) { return v * factor; });
  return result;
}

QCPItemText* makeText(QCustomPlot& plot, Qt::Alignment alignment) {
  auto* const text = new QCPItemText(&plot);
  text->setPositionAlignment(alignment);
  text->setTextAlignment(Qt::AlignLeft);
  text->setPadding(QMargins(4, 2, 4, 2));
  text->setClipToAxisRect(false);
  text->setVisible(false);
  return text;
}

void placeInCorner(QCPItemText& text, double x, double y) {
  text.position->setType(QCPItemPosition::ptAxisRectRatio);
  text.position->setCoords(x, y);
}

QString lines(const std::vector<std::string>& texts) {
  QStringList list;
  for (const std::string& text : texts) list << toQt(text);
  return list.join(QLatin1Char('\n'));
}

}  // namespace

RecorderGraph::RecorderGraph(QWidget* parent) : QWidget(parent), plot_(*new QCustomPlot) {
  setObjectName(QStringLiteral("recorderGraph"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&plot_);
  plot_.setAttribute(Qt::WA_TransparentForMouseEvents);
  plot_.setPlottingHints(QCP::phFastPolylines | QCP::phCacheLabels);
  plot_.setAutoAddPlottableToLegend(false);
  plot_.axisRect()->setupFullAxesBox();
  for (QCPAxis* axis : plot_.axisRect()->axes()) {
    axis->setTicker(QSharedPointer<QCPAxisTickerFixed>::create());
    axis->setNumberFormat(QStringLiteral("f"));
    axis->setSubTicks(false);
    axis->setTickLengthIn(0);
    axis->setLabelPadding(2);
  }
  // Axes stay as they are when those beside them take a range.
  disconnect(plot_.xAxis, nullptr, plot_.xAxis2, nullptr);
  disconnect(plot_.yAxis, nullptr, plot_.yAxis2, nullptr);
  curve_ = new QCPCurve(plot_.xAxis, plot_.yAxis);
  for (std::size_t i = 0; i < cursorLines_.size(); ++i) {
    cursorLines_[i] = new QCPItemLine(&plot_);
    for (QCPItemPosition* end : {cursorLines_[i]->start, cursorLines_[i]->end})
      end->setType(QCPItemPosition::ptAxisRectRatio);
    cursorNames_[i] = makeText(plot_, Qt::AlignLeft | Qt::AlignTop);
    cursorNames_[i]->position->setType(QCPItemPosition::ptAxisRectRatio);
    cursorNames_[i]->setText(QStringLiteral("P%1").arg(i + 1));
  }
  badge_ = makeText(plot_, Qt::AlignRight | Qt::AlignTop);
  placeInCorner(*badge_, 0.995, 0.01);
  for (QCPItemText*& list : peakLists_) {
    list = makeText(plot_, Qt::AlignRight | Qt::AlignTop);
    list->position->setType(QCPItemPosition::ptAbsolute);
  }
  note_ = makeText(plot_, Qt::AlignLeft | Qt::AlignBottom);
  placeInCorner(*note_, 0.005, 0.99);
  // Where a peak is on the screen is known only then.
  connect(&plot_, &QCustomPlot::afterLayout, this, &RecorderGraph::showLabels);
}

void RecorderGraph::setLook(const RecorderLook& look) {
  look_ = look;
  plot_.setBackground(look.ground);
  QFont small = font();
  for (QCPAxis* axis : plot_.axisRect()->axes()) {
    axis->setTickPen(QPen(look.grid));
    axis->setTickLabelFont(small);
    axis->setLabelFont(small);
    axis->grid()->setPen(QPen(look.grid));
    axis->grid()->setZeroLinePen(QPen(look.grid.lighter(150)));
  }
  const QColor ground = QColor(look.ground.red(), look.ground.green(), look.ground.blue(), 215);
  for (QCPItemText* text : {badge_, note_}) {
    text->setFont(small);
    text->setBrush(ground);
  }
  for (QCPItemText* name : cursorNames_) name->setBrush(ground);
  badge_->setPen(QPen(look.grid));
  badge_->setColor(RecorderLook::cursor);
  note_->setColor(RecorderLook::gap);
  showFocus(hasFocus());
}

QPixmap RecorderGraph::picture() {
  showFocus(false);
  QPixmap picture = plot_.toPixmap(width(), height());
  showFocus(hasFocus());
  return picture;
}

/// By a frame and at the active cursor.
void RecorderGraph::showFocus(bool isFocused) {
  const QPen pen = isFocused ? QPen(palette().color(QPalette::Highlight), 2) : QPen(look_.grid);
  for (QCPAxis* axis : plot_.axisRect()->axes()) axis->setBasePen(pen);
  for (std::size_t i = 0; i < cursorLines_.size(); ++i) {
    const QColor colour = cursorNames_.at(i)->color();
    cursorLines_.at(i)->setPen(QPen(colour, isFocused && i == active_ ? 2 : 1, Qt::DashLine));
  }
}

QCPAxis& RecorderGraph::axisOf(int channel) const {
  return channel == 2 && hasOwnAxes_ ? *plot_.yAxis2 : *plot_.yAxis;
}

void RecorderGraph::showPicture(const RecorderPicture& picture, const RecorderCursors& cursors,
                                const std::vector<std::string>& texts) {
  hasOwnAxes_ = picture.mode == RecorderMode::trace && picture.y[0] && picture.y[1];
  const bool isXY = picture.mode == RecorderMode::xy;
  const QString across = picture.mode == RecorderMode::spectrum ? panelText("Frequency")
                         : isXY                                 ? QStringLiteral("CH1")
                                                                : panelText("Time");
  acrossFactor_ = showAxis(*plot_.xAxis, picture.x, across,
                           isXY ? look_.channels[0] : QColor(RecorderLook::text))
                      .factor;
  // An axis on which nothing is drawn has no numbers.
  plot_.xAxis->setTickLabels(!picture.x.unit.empty());
  plot_.yAxis->setTickLabels(picture.y[0] || picture.y[1]);
  plot_.yAxis->setLabel(QString());
  plot_.yAxis2->setTickLabels(hasOwnAxes_);
  plot_.yAxis2->setLabel(QString());
  const bool isShared = picture.mode == RecorderMode::spectrum && picture.y[0] && picture.y[1];
  for (std::size_t i = 0; i < picture.y.size(); ++i) {
    if (!picture.y.at(i)) continue;
    const int channel = static_cast<int>(i) + 1;
    upFactors_.at(i) = showAxis(axisOf(channel), *picture.y.at(i),
                                isShared ? panelText("Level") : QStringLiteral("CH%1").arg(channel),
                                isShared ? QColor(RecorderLook::text) : look_.channels.at(i))
                           .factor;
  }
  showCurves(picture);
  showXY(picture);
  showCursors(cursors, texts);
  peaks_ = picture.labels;
  note_->setColor(picture.mode == RecorderMode::spectrum ? RecorderLook::text : RecorderLook::gap);
  showNotes(picture.notes);
  plot_.replot(QCustomPlot::rpQueuedRefresh);
}

RecorderGraph::Scale RecorderGraph::showAxis(QCPAxis& axis, const RecorderAxis& shown,
                                             const QString& name, const QColor& colour) {
  const UnitPrefix& prefix = prefixOf(shown);
  const double factor = scaled(1, -prefix.exponent);
  auto ticker = axis.ticker().staticCast<QCPAxisTickerFixed>();
  ticker->setTickStep(shown.step * factor);
  axis.setNumberPrecision(decimalsOf(shown.step * factor));
  axis.setRange(shown.low * factor, shown.high * factor);
  const QString unit = toQt(std::string(prefix.text) + shown.unit);
  axis.setLabel(shown.unit.empty() ? QString() : QStringLiteral("%1 (%2)").arg(name, unit));
  axis.setLabelColor(colour);
  axis.setTickLabelColor(colour);
  return {factor};
}

void RecorderGraph::showCurves(const RecorderPicture& picture) {
  int ages = 1;
  for (const RecorderCurve& curve : picture.curves) ages = std::max(ages, curve.age);
  const bool isXY = picture.mode == RecorderMode::xy;
  const std::size_t count = isXY ? 0 : picture.curves.size();
  while (graphs_.size() < count) graphs_.push_back(plot_.addGraph());
  for (std::size_t i = 0; i < count; ++i)
    showCurve(i, picture.curves[i], axisOf(picture.curves[i].channel), ages);
  for (std::size_t i = 0; i < graphs_.size(); ++i) graphs_[i]->setVisible(i < count);
}

void RecorderGraph::showCurve(std::size_t index, const RecorderCurve& curve, QCPAxis& axis,
                              int ages) {
  QCPGraph& graph = *graphs_[index];
  const auto channel = static_cast<std::size_t>(curve.channel - 1);
  const QColor& own = look_.channels.at(channel);
  graph.setValueAxis(&axis);
  graph.setData(scaledBy(curve.x, acrossFactor_), scaledBy(curve.y, upFactors_.at(channel)), true);
  graph.setAntialiased(curve.kind == RecorderCurve::record || curve.kind == RecorderCurve::mean);
  switch (curve.kind) {
    case RecorderCurve::behind: {
      const float age = static_cast<float>(curve.age) / static_cast<float>(ages);
      const float share = newestShare + age * (oldestShare - newestShare);
      graph.setPen(QPen(mixed(own, look_.ground, share), 1));
      break;
    }
    case RecorderCurve::lowest:
    case RecorderCurve::highest:
      graph.setPen(QPen(own, 1, Qt::DotLine));
      break;
    case RecorderCurve::mean:
      graph.setPen(QPen(mixed(own, Qt::white, 0.4F), 1.4));
      break;
    case RecorderCurve::record:
      graph.setPen(QPen(own, 1.4));
      break;
  }
}

void RecorderGraph::showXY(const RecorderPicture& picture) {
  const bool isXY = picture.mode == RecorderMode::xy && !picture.curves.empty();
  curve_->setVisible(isXY);
  if (!isXY) return;
  const RecorderCurve& curve = picture.curves[0];
  curve_->setPen(QPen(look_.channels[1], 1.4));
  curve_->setData(scaledBy(curve.x, acrossFactor_), scaledBy(curve.y, upFactors_[1]));
}

/// Each peak has its number, and its line in the list of its channel.
void RecorderGraph::showLabels() {
  for (QCPItemText* label : labels_) label->setVisible(false);
  const QFontMetrics metrics(font());
  std::vector<QRectF> taken;
  std::array<QStringList, 2> lists;
  for (std::size_t i = 0; i < peaks_.size(); ++i) {
    const auto& label = peaks_[i];
    const auto channel = static_cast<std::size_t>(label.channel - 1);
    QStringList& list = lists.at(channel);
    const QString number = QString::number(list.size() + 1);
    const QStringList said = toQt(label.text).split(QLatin1Char('\n'));
    list << QStringLiteral("%1: %2 %3").arg(number).arg(said.value(0), 9).arg(said.value(1), 10);
    if (i == labels_.size()) labels_.push_back(makeText(plot_, Qt::AlignLeft | Qt::AlignTop));
    const QPointF place(plot_.xAxis->coordToPixel(label.x * acrossFactor_),
                        axisOf(label.channel).coordToPixel(label.y * upFactors_.at(channel)));
    const QRectF room = roomBeside(place, metrics.size(0, number), plot_.axisRect()->rect(), taken);
    if (room.isEmpty()) continue;
    taken.push_back(room);
    labels_[i]->setPadding({});
    labels_[i]->position->setType(QCPItemPosition::ptAbsolute);
    labels_[i]->position->setCoords(room.topLeft());
    labels_[i]->setFont(font());
    labels_[i]->setColor(look_.channels.at(channel));
    labels_[i]->setText(number);
    labels_[i]->setVisible(true);
  }
  showPeakLists(lists);
}

/// At the right, where the badge of the cursors leaves room; digits below each other.
void RecorderGraph::showPeakLists(const std::array<QStringList, 2>& lists) {
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  fixed.setPixelSize(QFontInfo(font()).pixelSize());
  const int line = QFontMetrics(fixed).lineSpacing();
  const QRect inside = plot_.axisRect()->rect();
  int top = inside.top() + 5 + (cursors_.kind == RecorderCursors::off ? 0 : 4 * line);
  for (std::size_t i = 0; i < lists.size(); ++i) {
    QCPItemText& item = *peakLists_.at(i);
    item.setVisible(!lists.at(i).isEmpty());
    item.setText(lists.at(i).join(QLatin1Char('\n')));
    item.setFont(fixed);
    item.setColor(look_.channels.at(i));
    item.setBrush(badge_->brush());
    item.position->setCoords(inside.right() - 4, top);
    top += static_cast<int>(lists.at(i).size()) * line + (lists.at(i).isEmpty() ? 0 : 8);
  }
}

void RecorderGraph::showCursors(const RecorderCursors& cursors,
                                const std::vector<std::string>& texts) {
  cursors_ = cursors;
  const bool isOn = cursors.kind != RecorderCursors::off && !texts.empty();
  const bool isAcross = cursors.kind == RecorderCursors::across;
  for (std::size_t i = 0; i < cursorLines_.size(); ++i) {
    cursorLines_.at(i)->setVisible(isOn);
    cursorNames_.at(i)->setVisible(isOn);
    const double share = cursors.at().at(i);
    const QColor colour =
        i == active_ ? QColor(RecorderLook::cursor).lighter(125) : QColor(RecorderLook::cursor);
    cursorNames_.at(i)->setColor(colour);
    cursorLines_.at(i)->start->setCoords(isAcross ? share : 0, isAcross ? 0 : 1 - share);
    cursorLines_.at(i)->end->setCoords(isAcross ? share : 1, isAcross ? 1 : 1 - share);
    cursorNames_.at(i)->position->setCoords(isAcross ? share : 0, isAcross ? 0 : 1 - share);
  }
  showFocus(hasFocus());
  badge_->setVisible(isOn);
  badge_->setText(lines(texts));
}

void RecorderGraph::showNotes(const std::vector<std::string>& notes) {
  note_->setVisible(!notes.empty());
  note_->setText(lines(notes));
}

double RecorderGraph::shareAt(const QPointF& place) const {
  const QRect inside = plot_.axisRect()->rect();
  return cursors_.kind == RecorderCursors::across
             ? (place.x() - inside.left()) / std::max(1, inside.width())
             : (inside.bottom() - place.y()) / std::max(1, inside.height());
}

std::optional<std::size_t> RecorderGraph::cursorAt(const QPointF& place) const {
  if (cursors_.kind == RecorderCursors::off) return std::nullopt;
  const QRect inside = plot_.axisRect()->rect();
  const int length = cursors_.kind == RecorderCursors::across ? inside.width() : inside.height();
  const auto distance = [&](std::size_t cursor) {
    return std::fabs(cursors_.at().at(cursor) - shareAt(place)) * length;
  };
  const std::size_t nearest = distance(0) < distance(1) ? 0 : 1;
  return distance(nearest) <= grabDistance ? std::optional(nearest) : std::nullopt;
}

void RecorderGraph::mousePressEvent(QMouseEvent* event) {
  grabbed_ = cursorAt(event->position());
  if (grabbed_) active_ = *grabbed_;
}

void RecorderGraph::mouseMoveEvent(QMouseEvent* event) {
  if (grabbed_ && event->buttons().testFlag(Qt::LeftButton))
    emit cursorMoved(*grabbed_, shareAt(event->position()));
  const bool isNear = grabbed_ || cursorAt(event->position());
  const auto shape =
      cursors_.kind == RecorderCursors::across ? Qt::SizeHorCursor : Qt::SizeVerCursor;
  setCursor(isNear ? shape : Qt::ArrowCursor);
}

void RecorderGraph::mouseReleaseEvent(QMouseEvent* /*event*/) {
  grabbed_.reset();
}

void RecorderGraph::keyPressEvent(QKeyEvent* event) {
  constexpr double small = 1.0 / 500;
  const bool isAcross = cursors_.kind == RecorderCursors::across;
  const double by = event->modifiers().testFlag(Qt::ShiftModifier) ? 10 * small : small;
  const int back = isAcross ? Qt::Key_Left : Qt::Key_Down;
  const int ahead = isAcross ? Qt::Key_Right : Qt::Key_Up;
  const bool isOn = cursors_.kind != RecorderCursors::off;
  if (isOn && event->key() == Qt::Key_C && event->modifiers() == Qt::NoModifier) {
    active_ = 1 - active_;
    emit cursorMoved(active_, cursors_.at().at(active_));
  } else if (isOn && (event->key() == back || event->key() == ahead)) {
    const double from = cursors_.at().at(active_);
    emit cursorMoved(active_, event->key() == ahead ? from + by : from - by);
  } else {
    emit keyLeft(event);
  }
}

void RecorderGraph::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  showFocus(true);
  plot_.replot(QCustomPlot::rpQueuedRefresh);
}

void RecorderGraph::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  showFocus(false);
  plot_.replot(QCustomPlot::rpQueuedRefresh);
}

}  // namespace tracewell
