// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QStringList>
#include <QWidget>

#include "WheelTravel.h"

namespace tracewell {

/// A rotary switch. The user turns it by dragging around it, with the wheel, the arrow, Page, Home
/// and End keys, by a click on the caption of a detent, or by typing a value and Enter.
class KnobWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QColor accent READ accent WRITE setAccent)

 public:
  explicit KnobWidget(QWidget* parent = nullptr);

  void setDetents(const QStringList& captions);
  /// Rounded to a detent; emits nothing.
  void setValue(double value);
  int value() const { return value_; }
  QColor accent() const { return accent_; }
  void setAccent(const QColor& accent);
  /// Removes its colour: a dimmed colour would be unreadable.
  void setPale(bool isPale);

  /// Middle of the gap below the cap, between the first detent and the last.
  QPointF gap() const;

  QSize sizeHint() const override { return {168, 150}; }
  QSize minimumSizeHint() const override { return {128, 116}; }

 signals:
  /// The user has turned it, perhaps to the same detent.
  void turned(int detent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  /// Takes a key of a typed value. False for any other key.
  bool takeTyped(const QKeyEvent& event);
  void setTyped(const QString& typed);
  /// The detent nearest to the typed value; of several that read the same, the one nearest to the
  /// present.
  int typedDetent() const;
  void paintTyped(QPainter& painter);
  /// The factor by which it is drawn larger than usual, captions included.
  qreal scale() const;
  QPointF centre() const;
  qreal radius() const;
  /// Direction of a detent from the centre, in degrees counter-clockwise from three o'clock.
  qreal angleOf(int detent) const;
  QPointF pointAt(qreal angle, qreal distance) const;
  /// The angle of a point from the centre, as in angleOf.
  qreal angleAt(const QPointF& position) const;
  int nearestDetent(const QPointF& position) const;
  bool hasCaption(int detent) const;
  void turnTo(int detent);
  /// Colour of the mark at the value.
  QColor mark() const;
  void paintDetents(QPainter& painter);
  void paintCap(QPainter& painter);

  QStringList captions_{QString()};
  QColor accent_{Qt::white};
  bool isPale_ = false;
  int value_ = 0;
  /// The typed text, shown on the cap until Enter takes it or it is given up.
  QString typed_;
  WheelTravel wheel_;
  /// State of a drag: its first detent, the last angle, and degrees turned to the right.
  int draggedFrom_ = 0;
  qreal dragAngle_ = 0;
  qreal dragTravel_ = 0;
};

}  // namespace tracewell
