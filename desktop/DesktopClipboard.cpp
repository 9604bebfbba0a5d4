// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "QtImages.h"
#include "QtValues.h"

namespace tracewell {

void DesktopClipboard::put(const std::string& text, const Image& picture) {
  auto* content = new QMimeData;
  if (!text.empty()) content->setText(toQt(text));
  if (!picture.isEmpty()) content->setImageData(toQt(picture));
  QGuiApplication::clipboard()->setMimeData(content);
}

}  // namespace tracewell
