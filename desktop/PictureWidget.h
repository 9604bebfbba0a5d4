// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>

namespace tracewell {

/// A picture, scaled down if it does not fit.
class PictureWidget : public QWidget {
  Q_OBJECT

 public:
  explicit PictureWidget(QWidget* parent = nullptr);
  void setPicture(const QImage& picture);
  QSize sizeHint() const override { return {480, 300}; }

 signals:
  /// A click on the picture, in pixels of the picture.
  void clicked(int x, int y);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QRectF target() const;
  QImage picture_;
  /// The picture scaled down to its place; kept, since scaling takes long.
  QImage reduced_;
};

}  // namespace tracewell
