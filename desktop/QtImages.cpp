// SPDX-License-Identifier: GPL-3.0-or-later
#include "QtImages.h"

namespace tracewell {

QImage toQt(const Image& image) {
  if (image.isEmpty()) return {};
  const auto* const bytes = reinterpret_cast<const uchar*>(image.pixels.data());
  // A copy of its own: the bytes here are the caller's.
  const qsizetype rowBytes = qsizetype{3} * image.width;
  return QImage(bytes, image.width, image.height, rowBytes, QImage::Format_RGB888).copy();
}

Image fromQt(const QImage& image) {
  const QImage plain = image.convertToFormat(QImage::Format_RGB888);
  Image result{plain.width(), plain.height(), {}};
  const auto rowBytes = 3 * static_cast<std::size_t>(plain.width());
  for (int row = 0; row < plain.height(); ++row)
    result.pixels.append(reinterpret_cast<const char*>(plain.constScanLine(row)), rowBytes);
  return result;
}

}  // namespace tracewell
