// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QPalette>
#include <QWidget>
#include <array>
#include <cmath>
#include <utility>

namespace tracewell {

/// A picture of something painted on a ground, and where its colours are.
struct Regions {
  QImage picture;
  QColor ground = Qt::black;

  /// How much of a colour a pixel has that lies between it and the ground; none if it does not.
  double shareOf(QRgb colour, QRgb pixel) const {
    const auto parts = [](QRgb of) { return std::array{qRed(of), qGreen(of), qBlue(of)}; };
    const auto most = parts(colour), least = parts(ground.rgb()), own = parts(pixel);
    double along = 0;
    double whole = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      along += (most[i] - least[i]) * (own[i] - least[i]);
      whole += (most[i] - least[i]) * (most[i] - least[i]);
    }
    const double share = along / whole;
    for (std::size_t i = 0; i < 3; ++i)
      if (std::abs(own[i] - least[i] - share * (most[i] - least[i])) > 20) return 0;
    return share;
  }
  /// The pixels that have as much of it.
  QList<QPoint> pixels(QColor colour, QRect where, double share = 0.4) const {
    QList<QPoint> found;
    where &= picture.rect();
    for (int y = where.top(); y <= where.bottom(); ++y) {
      const auto* const row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
      for (int x = where.left(); x <= where.right(); ++x)
        if (row[x] != ground.rgb() && shareOf(colour.rgb(), row[x]) > share) found << QPoint(x, y);
    }
    return found;
  }
  /// What encloses them.
  QRect find(QColor colour) const { return find(colour, picture.rect()); }
  QRect find(QColor colour, const QRect& where, double share = 0.4) const {
    QRect found;
    for (const QPoint& pixel : pixels(colour, where, share)) found |= QRect(pixel, QSize(1, 1));
    return found;
  }
  /// Where they stand along a row of pixels, or down a column: first and last.
  QList<std::pair<int, int>> runs(QColor colour, const QRect& line, double share = 0.4) const {
    QList<std::pair<int, int>> found;
    for (const QPoint& pixel : pixels(colour, line, share)) {
      const int place = line.width() > line.height() ? pixel.x() : pixel.y();
      if (found.isEmpty() || place > found.last().second + 1) found << std::pair(place, place);
      found.last().second = place;
    }
    return found;
  }
};

/// On black, each in a colour that no mixture of the others with black has.
inline QPalette plainColours() {
  QPalette colours(Qt::black, Qt::black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    colours.setColor(role, Qt::blue);
  colours.setColor(QPalette::Mid, Qt::green);
  colours.setColor(QPalette::Shadow, Qt::magenta);
  colours.setColor(QPalette::Highlight, Qt::yellow);
  return colours;
}

inline Regions seen(QWidget& widget, QRect part = {}, QColor ground = Qt::black) {
  QApplication::processEvents();
  const QPixmap picture = part.isValid() ? widget.grab(part) : widget.grab();
  return {picture.toImage().convertToFormat(QImage::Format_RGB32), ground};
}

}  // namespace tracewell
