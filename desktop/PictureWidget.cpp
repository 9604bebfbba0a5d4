// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureWidget.h"

#include <QMouseEvent>
#include <QPainter>

namespace tracewell {

PictureWidget::PictureWidget(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureWidget::setPicture(const QImage& picture) {
  picture_ = picture;
  reduced_ = {};
  update();
}

QRectF PictureWidget::target() const {
  QSizeF size = picture_.size();
  if (size.width() > width() || size.height() > height())
    size.scale(QSizeF(width(), height()), Qt::KeepAspectRatio);
  return {(width() - size.width()) / 2, (height() - size.height()) / 2, size.width(),
          size.height()};
}

void PictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  if (picture_.isNull()) return;
  const QSize size = (target().size() * devicePixelRatioF()).toSize();
  if (size.width() >= picture_.width()) return painter.drawImage(target(), picture_);
  // The painter would leave out points, and thin lines with them.
  if (reduced_.size() != size)
    reduced_ = picture_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  painter.drawImage(target(), reduced_);
}

void PictureWidget::mousePressEvent(QMouseEvent* event) {
  const QRectF shown = target();
  if (event->button() != Qt::LeftButton || !shown.contains(event->position())) return;
  const QPointF point = event->position() - shown.topLeft();
  emit clicked(static_cast<int>(point.x() * picture_.width() / shown.width()),
               static_cast<int>(point.y() * picture_.height() / shown.height()));
}

}  // namespace tracewell
