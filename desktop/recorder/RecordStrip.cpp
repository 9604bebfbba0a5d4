// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordStrip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "DesktopWords.h"
#include "QtValues.h"
#include "ShownText.h"

namespace tracewell {
namespace {

constexpr int topRoom = 14;
constexpr int bottomRoom = 17;
constexpr int laneGap = 3;
/// Units, above and below the zero of a lane.
constexpr double reach = 256;
constexpr double zoomStep = 0.8;

}  // namespace

RecordStrip::RecordStrip(RecorderView& view, QWidget* parent) : QWidget(parent), view_(view) {
  setObjectName(QStringLiteral("recordStrip"));
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RecordStrip::setLook(const RecorderLook& look) {
  look_ = look;
  update();
}

QRect RecordStrip::lane(int channel) const {
  const QRect all = rect().adjusted(0, topRoom, 0, -bottomRoom);
  if (view_.channel() != 0) return all;
  const int height = (all.height() - laneGap) / 2;
  return {all.left(), channel == 1 ? all.top() : all.bottom() + 1 - height, all.width(), height};
}

void RecordStrip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), look_.ground);
  const RecordTimeline::Picture picture = view_.timeline.picture(width());
  paintMarks(painter, picture);
  paintTimes(painter, picture);
  for (const int channel : {1, 2})
    if (view_.channel() == 0 || view_.channel() == channel) paintLane(painter, picture, channel);
  paintSelected(painter);
  if (!hasFocus()) return;
  painter.setPen(palette().color(QPalette::Highlight));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void RecordStrip::paintLane(QPainter& painter, const RecordTimeline::Picture& picture,
                            int channel) {
  const QRect lane = this->lane(channel);
  const QColor& colour = look_.channels.at(static_cast<std::size_t>(channel - 1));
  const double perUnit = lane.height() / (2 * reach);
  const auto height = [&](int units) {
    return lane.center().y() - static_cast<int>(std::lround(units * perUnit));
  };
  painter.setPen(look_.grid);
  painter.drawLine(lane.left(), height(0), lane.right(), height(0));
  const auto& columns = picture.columns.at(static_cast<std::size_t>(channel - 1));
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!columns[i].isAny) continue;
    const int top = std::max(height(columns[i].highest), lane.top());
    const int bottom = std::min(height(columns[i].lowest), lane.bottom());
    painter.fillRect(static_cast<int>(i) - picture.barWidth / 2, top, picture.barWidth,
                     std::max(bottom - top + 1, 1), colour);
  }
}

void RecordStrip::paintMarks(QPainter& painter, const RecordTimeline::Picture& picture) {
  const QRect lanes = rect().adjusted(0, topRoom, 0, -bottomRoom);
  if (view_.isMarked()) {
    const Stretch marked = view_.stretch();
    const int from = view_.timeline.columnOf(marked.first, width()) - picture.barWidth / 2 - 1;
    const int to = view_.timeline.columnOf(marked.end - 1, width()) + picture.barWidth / 2 + 1;
    painter.fillRect(QRect(QPoint(from, lanes.top()), QPoint(to, lanes.bottom())),
                     mixed(RecorderLook::mark, look_.ground, 0.35F));
  }
  painter.setPen(QPen(RecorderLook::gap, 1, Qt::DotLine));
  for (const auto& gap : picture.gaps) {
    const int x = gap.column - picture.barWidth / 2 - 2;
    painter.drawLine(x, lanes.top(), x, lanes.bottom());
  }
  paintPins(painter, picture.pins);
}

/// Those that would touch share a dot, with their number; a name has the room up to the next dot.
void RecordStrip::paintPins(QPainter& painter, const std::vector<RecordTimeline::Place>& pins) {
  constexpr int distance = 8;
  constexpr int leastName = 24;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(RecorderLook::text);
  painter.setBrush(RecorderLook::text);
  for (std::size_t first = 0, end = 0; first < pins.size(); first = end) {
    const int column = pins[first].column;
    while (end < pins.size() && pins[end].column < column + distance) ++end;
    painter.drawEllipse(QPointF(column + 0.5, topRoom / 2.0), 3.0, 3.0);
    const int left = column + 8;
    const int room = (end < pins.size() ? pins[end].column - distance : width()) - left;
    const QString name = end - first == 1 ? shownText(pins[first].name, Room{.characters = 20})
                                          : QStringLiteral("×%1").arg(end - first);
    if (room < std::min(leastName, painter.fontMetrics().horizontalAdvance(name))) continue;
    painter.drawText(QPoint(left, topRoom - 3),
                     painter.fontMetrics().elidedText(name, Qt::ElideRight, room));
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
}

void RecordStrip::paintTimes(QPainter& painter, const RecordTimeline::Picture& picture) {
  for (const auto& time : picture.times) {
    painter.setPen(look_.grid);
    painter.drawLine(time.column, topRoom, time.column, height() - bottomRoom + 3);
    painter.setPen(RecorderLook::text);
    const QRect room(time.column - 45, height() - bottomRoom + 2, 90, bottomRoom - 2);
    const int half = painter.fontMetrics().horizontalAdvance(toQt(time.name)) / 2;
    if (time.column >= half && time.column + half <= width())
      painter.drawText(room, Qt::AlignCenter, toQt(time.name));
  }
}

void RecordStrip::paintSelected(QPainter& painter) {
  const auto pointed = view_.selected();
  if (!pointed) return;
  const int x = view_.timeline.columnOf(*pointed, width());
  painter.setPen(Qt::white);
  painter.drawLine(x, topRoom - 2, x, height() - bottomRoom + 2);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::white);
  painter.setPen(Qt::NoPen);
  painter.drawPolygon(QPolygonF({QPointF(x - 4.5, topRoom - 8), QPointF(x + 5.5, topRoom - 8),
                                 QPointF(x + 0.5, topRoom - 1)}));
}

void RecordStrip::pointTo(double x, bool isMarking) {
  const auto found = view_.timeline.at(x / std::max(width(), 1), view_.channel());
  if (!found) return;
  if (isMarking) {
    if (!anchor_) anchor_ = view_.selected();
    view_.mark(anchor_.value_or(*found), *found);
  }
  view_.select(*found);
  emit used();
}

/// A plain click takes the mark away.
void RecordStrip::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const bool isMarking = event->modifiers().testFlag(Qt::ShiftModifier);
  anchor_.reset();
  if (isMarking)
    anchor_ = view_.timeline.at(event->position().x() / std::max(width(), 1), view_.channel());
  else
    view_.unmark();
  pointTo(event->position().x(), isMarking);
}

void RecordStrip::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons().testFlag(Qt::LeftButton))
    pointTo(event->position().x(), event->modifiers().testFlag(Qt::ShiftModifier));
}

void RecordStrip::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
  view_.timeline.showAll();
  emit used();
}

void RecordStrip::zoomBy(double factor, double fraction) {
  view_.timeline.zoom(factor, fraction);
  emit used();
}

/// Across, or with Shift, it goes through time.
void RecordStrip::wheelEvent(QWheelEvent* event) {
  constexpr double notch = 120;
  const QPoint turned = event->angleDelta();
  const bool isAcross = turned.x() != 0 || event->modifiers().testFlag(Qt::ShiftModifier);
  if (isAcross) {
    view_.timeline.pan(-0.1 * (turned.x() != 0 ? turned.x() : turned.y()) / notch);
    emit used();
  } else {
    zoomBy(std::pow(zoomStep, turned.y() / notch), event->position().x() / std::max(width(), 1));
  }
}

bool RecordStrip::stepBy(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Left:
      view_.step(-1);
      return true;
    case Qt::Key_Right:
      view_.step(1);
      return true;
    case Qt::Key_PageUp:
      view_.step(-10);
      return true;
    case Qt::Key_PageDown:
      view_.step(10);
      return true;
    case Qt::Key_Home:
      view_.selectFirst();
      return true;
    case Qt::Key_End:
      view_.selectLast();
      return true;
    default:
      return false;
  }
}

void RecordStrip::keyPressEvent(QKeyEvent* event) {
  const auto before = view_.selected();
  const bool isMarking = event->modifiers().testFlag(Qt::ShiftModifier);
  if (stepBy(*event)) {
    if (!isMarking) anchor_.reset();
    if (isMarking && !anchor_) anchor_ = before;
    if (isMarking && anchor_ && view_.selected()) view_.mark(*anchor_, *view_.selected());
    emit used();
  } else if (event->key() == Qt::Key_Escape && view_.isMarked()) {
    view_.unmark();
    anchor_.reset();
    emit used();
  } else if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus) {
    const auto pointed = view_.selected();
    const double share =
        pointed ? view_.timeline.columnOf(*pointed, width()) / static_cast<double>(width()) : 0.5;
    zoomBy(event->key() == Qt::Key_Plus ? zoomStep : 1 / zoomStep, std::clamp(share, 0.0, 1.0));
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace tracewell
