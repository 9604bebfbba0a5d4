// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextGrowth.h"

#include <QEvent>
#include <QFontInfo>
#include <QVariant>

namespace tracewell {
namespace {

constexpr QSizeF designedSize(1280, 800);
/// Of the column, in heights of the form's font: 480 pixels in the usual one.
constexpr int columnWidth = 40;

/// A window that is only wide, or only high, has no more room for text.
qreal growthOf(const QSizeF& window) {
  return qMax(1.0,
              qMin(window.width() / designedSize.width(), window.height() / designedSize.height()));
}

}  // namespace

int pixelsOf(const QWidget& widget) {
  return QFontInfo(widget.font()).pixelSize();
}

TextGrowth::TextGrowth(QWidget& form) : QObject(&form), form_(form) {
  for (QWidget* widget : form.findChildren<QWidget*>()) {
    const int pixels = widget->property("pixels").toInt();
    const QVariant most = widget->property("mostPixels");
    if (pixels > 0) texts_.push_back({widget, pixels, most.isValid() ? most.toInt() : INT_MAX});
  }
  if (texts_.empty()) return;
  grow();
  limitColumn();
  form.installEventFilter(this);
}

bool TextGrowth::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Resize) grow();
  if (event->type() == QEvent::FontChange) limitColumn();
  return false;
}

void TextGrowth::grow() {
  const qreal growth = growthOf(form_.size());
  for (const Text& text : texts_) {
    QFont font = text.widget->font();
    font.setPixelSize(qMin(qRound(text.pixels * growth), text.mostPixels));
    text.widget->setFont(font);
  }
}

void TextGrowth::limitColumn() {
  if (auto* column = form_.findChild<QWidget*>(QStringLiteral("column")))
    column->setMaximumWidth(columnWidth * pixelsOf(form_));
}

}  // namespace tracewell
