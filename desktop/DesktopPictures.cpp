// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopPictures.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <QtMath>
#include <algorithm>
#include <cmath>

#include "Graph.h"
#include "GraphView.h"
#include "PictureFormats.h"
#include "PictureGuard.h"
#include "QtImages.h"
#include "QtValues.h"
#include "ShownText.h"

namespace tracewell {
namespace {

/// Readable on the dark graticule and on a light picture.
const QColor noteColour(255, 235, 59);
const QColor noteShadow(0, 0, 0, 160);

/// Takes the same share of every picture, whatever the screen's resolution was.
QFont fontIn(const QImage& picture, int partOfWidth, double smallest) {
  QFont font;
  font.setPixelSize(qMax(qRound(smallest), picture.width() / partOfWidth));
  return font;
}

QFont noteFont(const QImage& picture) {
  QFont font = fontIn(picture, 50, 16);
  font.setBold(true);
  return font;
}

/// No larger than what can be loaded again in every format; a line of some is filled up to an even
/// number of pixels.
QImage fitted(const QImage& picture) {
  constexpr double most = std::min(largestPictureArea, largestPcxLines / 3);
  const double area = double{1} * (picture.width() + picture.width() % 2) * picture.height();
  const double longest = qMax(picture.width(), picture.height());
  const double share = qMin(std::sqrt(most / area), largestPictureSide / longest);
  if (share >= 1) return picture;
  return picture.scaled(2 * qFloor(picture.width() * share / 2), qFloor(picture.height() * share),
                        Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

Image DesktopPictures::graphImage(const Graph& graph, const std::string& footnote) {
  auto* view = qobject_cast<GraphView*>(windows_.widgetOf(graph));
  if (view == nullptr) throw Error(invalidProcedureCall, "Tracewell", "The graph is not shown");
  QImage shown = view->picture().toImage();
  const QFont font = fontIn(shown, 75, 15 * shown.devicePixelRatio());
  // From here on a pixel is a pixel.
  shown.setDevicePixelRatio(1);
  const int lineHeight = QFontMetrics(font).height() + 8;
  const QStringList lines = toQt(footnote).split(u'\n');
  QImage picture(shown.width(), shown.height() + lineHeight * static_cast<int>(lines.size()),
                 QImage::Format_RGB888);
  picture.fill(view->palette().color(QPalette::Window));
  QPainter painter(&picture);
  painter.drawImage(0, 0, shown);
  painter.setFont(font);
  painter.setPen(view->palette().color(QPalette::WindowText));
  QRect place(8, shown.height(), shown.width() - 16, lineHeight);
  for (const QString& line : lines) {
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft, shownText(fromQt(line), roomOfLine));
    place.translate(0, lineHeight);
  }
  painter.end();
  return fromQt(fitted(picture));
}

Image DesktopPictures::withText(const Image& image, const std::string& text, int x, int y) {
  QImage picture = toQt(image);
  QPainter painter(&picture);
  painter.setFont(noteFont(picture));
  const QRect place(x, y, picture.width(), picture.height());
  const QString note = shownText(text, roomOfParagraph);
  painter.setPen(noteShadow);
  painter.drawText(place.translated(1, 1), Qt::AlignLeft | Qt::AlignTop, note);
  painter.setPen(noteColour);
  painter.drawText(place, Qt::AlignLeft | Qt::AlignTop, note);
  painter.end();
  return fromQt(picture);
}

std::string DesktopPictures::encode(const Image& image, int format) {
  return encodePicture(image, format);
}

Image DesktopPictures::load(const std::filesystem::path& path) {
  return loadPicture(path);
}

}  // namespace tracewell
