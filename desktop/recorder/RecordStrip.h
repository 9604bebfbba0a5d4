// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "RecorderLook.h"
#include "RecorderView.h"

namespace tracewell {

/// All kept records along their time: of each the lowest to the highest value, a lane for each
/// channel. A click or a drag points at a record, with Shift it marks a stretch; the wheel zooms, a
/// double click shows all. Arrow keys step, Page Up and Down by ten, Home and End go to the ends;
/// with Shift they mark; + and - zoom.
class RecordStrip : public QWidget {
  Q_OBJECT

 public:
  RecordStrip(RecorderView& view, QWidget* parent);
  void setLook(const RecorderLook& look);

  QSize sizeHint() const override { return {600, 104}; }
  QSize minimumSizeHint() const override { return {200, 84}; }

 signals:
  /// The user has pointed, marked or zoomed.
  void used();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void pointTo(double x, bool isMarking);
  bool stepBy(const QKeyEvent& event);
  void zoomBy(double factor, double fraction);
  QRect lane(int channel) const;
  void paintLane(QPainter& painter, const RecordTimeline::Picture& picture, int channel);
  void paintMarks(QPainter& painter, const RecordTimeline::Picture& picture);
  void paintPins(QPainter& painter, const std::vector<RecordTimeline::Place>& pins);
  void paintTimes(QPainter& painter, const RecordTimeline::Picture& picture);
  void paintSelected(QPainter& painter);

  RecorderView& view_;
  RecorderLook look_;
  /// Where marking has begun.
  std::optional<RecordStore::Number> anchor_;
};

}  // namespace tracewell
