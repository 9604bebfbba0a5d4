// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QStringList>

namespace tracewell {

/// Writes down what is painted: each line, shape and text with its place, pen and brush, to a tenth
/// of a pixel.
class CommandEngine : public QPaintEngine {
 public:
  CommandEngine() : QPaintEngine(AllFeatures) {}
  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void updateState(const QPaintEngineState&) override {}
  void drawPath(const QPainterPath& path) override;
  void drawRects(const QRectF* rects, int count) override;
  void drawLines(const QLineF* lines, int count) override;
  void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
  void drawTextItem(const QPointF& place, const QTextItem& text) override;
  void drawPixmap(const QRectF& place, const QPixmap&, const QRectF&) override;

  QStringList commands;

 private:
  void note(const char* what, const QString& detail, std::initializer_list<QPointF> points);
  void noteLook();
  QString look_;
};

class CommandDevice : public QPaintDevice {
 public:
  QPaintEngine* paintEngine() const override { return &engine_; }
  const QStringList& commands() const { return engine_.commands; }

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  mutable CommandEngine engine_;
};

/// All drawings of the test, as `desktop_tests --drawn` prints them: a line "= name" for each, then
/// its commands.
QStringList allDrawings();

}  // namespace tracewell
