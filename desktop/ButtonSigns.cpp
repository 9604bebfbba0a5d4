// SPDX-License-Identifier: GPL-3.0-or-later
#include "ButtonSigns.h"

#include <QEvent>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace tracewell {
namespace {

/// Pixels of its picture, which is drawn in a square of 16 units.
constexpr int side = 64;
constexpr int shownSide = 13;
constexpr qreal units = 16;

QPainterPath wave(qreal left, qreal right, qreal middle, qreal height) {
  const qreal quarter = (right - left) / 4;
  QPainterPath path({left, middle});
  path.cubicTo({left + quarter / 2, middle - height}, {left + quarter * 1.5, middle - height},
               {left + quarter * 2, middle});
  path.cubicTo({left + quarter * 2.5, middle + height}, {left + quarter * 3.5, middle + height},
               {right, middle});
  return path;
}

/// A screen and a knob.
void paintInstrument(QPainter& painter) {
  painter.drawRoundedRect(QRectF(1, 2.5, 14, 11), 1.5, 1.5);
  painter.drawPath(wave(3, 9.5, 8, 4));
  painter.drawEllipse(QPointF(12.2, 8), 1, 1);
}

void paintSign(QPushButton& button) {
  QPixmap picture(side, side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(side / units, side / units);
  painter.setPen(QPen(button.palette().color(QPalette::ButtonText), 1.5, Qt::SolidLine,
                      Qt::RoundCap, Qt::RoundJoin));
  paintInstrument(painter);
  painter.end();
  button.setIcon(QIcon(picture));
}

/// Paints it anew in the colours of another theme.
class SignOfTheme : public QObject {
 public:
  explicit SignOfTheme(QPushButton& button) : QObject(&button), button_(button) {
    button.installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::PaletteChange) paintSign(button_);
    return false;
  }

 private:
  QPushButton& button_;
};

}  // namespace

void showSign(QPushButton& button) {
  if (button.property("sign").toString() != QLatin1String("instrument")) return;
  button.ensurePolished();
  paintSign(button);
  button.setIconSize({shownSide, shownSide});
  new SignOfTheme(button);
}

void showSwatch(QPushButton& button, const QColor& colour) {
  constexpr QSize size(28, 14);
  QPixmap picture(size);
  picture.fill(colour);
  QPainter painter(&picture);
  painter.setPen(QColor(0x80, 0x88, 0x90));
  painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
  painter.end();
  button.setIconSize(size);
  button.setIcon(picture);
}

}  // namespace tracewell
