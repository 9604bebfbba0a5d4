// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QStringList>
#include <QWidget>

#include "WheelTravel.h"

namespace tracewell {

/// A rotary switch. The user turns it by dragging around it, with the wheel, the arrow, Page, Home
/// and End keys, by a click on the caption of a detent, or by typing a value and Enter.
class KnobWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QColor accent READ accent WRITE setAccent)
  Q_PROPERTY(QString unit READ unit WRITE setUnit)

 public:
  explicit KnobWidget(QWidget* parent = nullptr);

  void setDetents(const QStringList& captions);
  /// Rounded to a detent; emits nothing.
  void setValue(double value);
  int value() const { return value_; }
  int lastDetent() const { return static_cast<int>(captions_.size()) - 1; }
  /// As the user does; beyond the ends to the end.
  void turnTo(int detent);
  /// What the captions count in: "V".
  QString unit() const { return unit_; }
  void setUnit(const QString& unit) { unit_ = unit; }
  /// The value with its unit: "500 mV" for ".5"; or what is being typed.
  QString inWords() const;
  QColor accent() const { return accent_; }
  void setAccent(const QColor& accent);
  /// Removes its colour: a dimmed colour would be unreadable.
  void setPale(bool isPale);

  /// Middle of the cap.
  QPointF centre() const { return centre_; }
  /// Middle of the gap below the cap, between the first detent and the last.
  QPointF gap() const;

  QSize sizeHint() const override { return {168, 150}; }
  QSize minimumSizeHint() const override { return {128, 116}; }

 signals:
  /// The user has turned it, perhaps to the same detent.
  void turned(int detent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  /// Takes a key of a typed value. False for any other key.
  bool takeTyped(const QKeyEvent& event);
  void setTyped(const QString& typed);
  void paintTyped(QPainter& painter);
  /// The factor by which it is drawn larger than usual, captions included.
  qreal scale() const;
  QFont captionFont() const;
  /// What it takes up around its centre, with a cap of that radius: all captions, whichever is
  /// chosen. The room of a mark in the gap counts where `hasMark`.
  QRectF extent(qreal radius, bool hasMark) const;
  QRectF captionPlace(int detent, const QPointF& centre, qreal radius) const;
  /// Of the captions in their font, measured when that or they have changed.
  void measureCaptions();
  /// As large as it can be, in the middle of its room.
  void takePlace();
  qreal radius() const { return radius_; }
  /// Direction of a detent from the centre, in degrees counter-clockwise from three o'clock.
  qreal angleOf(int detent) const;
  QPointF pointAt(qreal angle, qreal distance) const;
  /// The angle of a point from the centre, as in angleOf.
  qreal angleAt(const QPointF& position) const;
  int nearestDetent(const QPointF& position) const;
  bool hasCaption(int detent) const;
  /// Colour of the mark at the value.
  QColor mark() const;
  void paintDetents(QPainter& painter);
  void paintCap(QPainter& painter);

  QStringList captions_{QString()};
  QStringList measured_;
  QFont measuredFont_;
  QList<QSizeF> captionSizes_;
  QString unit_;
  QColor accent_{Qt::white};
  bool isPale_ = false;
  int value_ = 0;
  QPointF centre_;
  qreal radius_ = 0;
  /// The typed text, shown on the cap until Enter takes it or the user gives it up. Enter does
  /// nothing while it is no value.
  QString typed_;
  bool isRefused_ = false;
  WheelTravel wheel_;
  /// State of a drag: its first detent, the last angle, and degrees turned to the right.
  int draggedFrom_ = 0;
  qreal dragAngle_ = 0;
  qreal dragTravel_ = 0;
};

}  // namespace tracewell
