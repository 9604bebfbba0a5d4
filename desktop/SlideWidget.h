// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

#include "WheelTravel.h"

namespace tracewell {

/// A linear slide whose zero is marked. The user drags its pointer, turns the wheel, presses the
/// arrow, Page, Home and End keys, or returns to zero with a double click or the key 0.
class SlideWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QColor accent READ accent WRITE setAccent)
  Q_PROPERTY(bool isNumbered READ isNumbered WRITE setNumbered)
  Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)

 public:
  explicit SlideWidget(QWidget* parent = nullptr);

  void setRange(double minimum, double maximum, double step);
  /// Emits nothing. Beyond the range the pointer rests at the end.
  void setValue(double value);
  double value() const { return value_; }
  double minimum() const { return minimum_; }
  double maximum() const { return maximum_; }
  double step() const { return step_; }
  /// How the value is written beside the slide; without it, as a number.
  void setInWords(const QString& words);
  QString inWords() const;
  /// As the user does with a key: to the nearest step, and lets go.
  void stepTo(double value);
  QColor accent() const { return accent_; }
  void setAccent(const QColor& accent);
  /// Removes its colour: a dimmed colour would be unreadable.
  void setPale(bool isPale);
  /// A vertical slide has its numbers beside its marks.
  bool isNumbered() const { return isNumbered_; }
  void setNumbered(bool isNumbered);
  Qt::Orientation orientation() const { return orientation_; }
  void setOrientation(Qt::Orientation orientation);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// The user moves the pointer.
  void dragged(double to);
  /// The user has let go, or has moved it with a key or the wheel.
  void released();
  /// A window that opened in the middle of a drag has it now; the user has chosen nothing.
  void takenAway();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  int thickness() const;
  void paintNumber(QPainter& painter, double mark);
  bool isVertical() const { return orientation_ == Qt::Vertical; }
  /// Pixels along the slide.
  qreal positionOf(double value) const;
  double valueAt(const QPointF& position) const;
  QPointF pointAt(qreal along, qreal across) const;
  void moveTo(double value);

  double minimum_ = -1;
  double maximum_ = 1;
  double step_ = 0.1;
  WheelTravel wheel_;
  double value_ = 0;
  QString words_;
  QColor accent_{Qt::white};
  bool isPale_ = false;
  bool isNumbered_ = false;
  Qt::Orientation orientation_ = Qt::Vertical;
  bool isDragged_ = false;
};

}  // namespace tracewell
