// SPDX-License-Identifier: GPL-3.0-or-later
#include "Theme.h"

#include <QFile>
#include <QIcon>
#include <QPalette>

#include "PanelStyle.h"

/// Qt leaves the resources of a static library out unless they are asked for, outside any
/// namespace.
static void initResources() {
  Q_INIT_RESOURCE(tracewell);
}

namespace tracewell {
namespace {

struct Colours {
  QColor window, panel, button, base, text, dimmed, outline, highlight;
};

const Colours dark = {QColor(0x1b, 0x1e, 0x22), QColor(0x24, 0x28, 0x2e), QColor(0x3a, 0x42, 0x4b),
                      QColor(0x38, 0x3f, 0x48), QColor(0xdd, 0xe3, 0xe8), QColor(0xa9, 0xb1, 0xb9),
                      QColor(0x8c, 0x95, 0x9e), QColor(0x4f, 0x9c, 0xd8)};
const Colours light = {QColor(0xe9, 0xec, 0xef), QColor(0xf7, 0xf8, 0xf9), QColor(0xdd, 0xe1, 0xe6),
                       QColor(0xff, 0xff, 0xff), QColor(0x1c, 0x22, 0x28), QColor(0x5a, 0x62, 0x6a),
                       QColor(0x78, 0x80, 0x88), QColor(0x1d, 0x6f, 0xb8)};

QPalette paletteOf(const Colours& colours) {
  QPalette palette;
  palette.setColor(QPalette::Window, colours.window);
  palette.setColor(QPalette::WindowText, colours.text);
  palette.setColor(QPalette::Base, colours.base);
  palette.setColor(QPalette::AlternateBase, colours.panel);
  palette.setColor(QPalette::Text, colours.text);
  palette.setColor(QPalette::Button, colours.button);
  palette.setColor(QPalette::ButtonText, colours.text);
  palette.setColor(QPalette::ToolTipBase, colours.panel);
  palette.setColor(QPalette::ToolTipText, colours.text);
  palette.setColor(QPalette::PlaceholderText, colours.dimmed);
  palette.setColor(QPalette::Mid, colours.outline);
  palette.setColor(QPalette::Highlight, colours.highlight);
  const bool isPale = colours.highlight.lightness() > 140;
  palette.setColor(QPalette::HighlightedText, isPale ? Qt::black : Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, colours.dimmed);
  return palette;
}

QString styleSheet(const QString& name) {
  QString sheet;
  for (const QString& part : {QStringLiteral("common"), name}) {
    QFile file(QStringLiteral(":/%1.css").arg(part));
    if (file.open(QIODevice::ReadOnly)) sheet += QString::fromUtf8(file.readAll());
  }
  return sheet;
}

}  // namespace

void applyTheme(QApplication& application) {
  initResources();
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/tracewell.png")));
  const bool isDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
  QApplication::setStyle(new PanelStyle);
  QApplication::setPalette(paletteOf(isDark ? dark : light));
  application.setStyleSheet(styleSheet(isDark ? QStringLiteral("dark") : QStringLiteral("light")));
}

}  // namespace tracewell
