// SPDX-License-Identifier: GPL-3.0-or-later
#include "Theme.h"

#include <QFile>
#include <QIcon>
#include <QPalette>
#include <QPixmap>
#include <cstdlib>

#include "PanelStyle.h"

/// Qt leaves the resources of a static library out unless they are asked for, outside any
/// namespace.
static void initResources() {
  Q_INIT_RESOURCE(tracewell);
}

namespace tracewell {
namespace {

struct Colours {
  QColor window, panel, button, base, text, dimmed, outline, shadow, highlight;
};

const Colours dark = {QColor(0x1b, 0x1e, 0x22), QColor(0x24, 0x28, 0x2e), QColor(0x3a, 0x42, 0x4b),
                      QColor(0x38, 0x3f, 0x48), QColor(0xdd, 0xe3, 0xe8), QColor(0xa9, 0xb1, 0xb9),
                      QColor(0x8c, 0x95, 0x9e), QColor(0x1e, 0x22, 0x27), QColor(0x4f, 0x9c, 0xd8)};
const Colours light = {
    QColor(0xe9, 0xec, 0xef), QColor(0xf7, 0xf8, 0xf9), QColor(0xdd, 0xe1, 0xe6),
    QColor(0xff, 0xff, 0xff), QColor(0x1c, 0x22, 0x28), QColor(0x5a, 0x62, 0x6a),
    QColor(0x78, 0x80, 0x88), QColor(0x74, 0x76, 0x79), QColor(0x1d, 0x6f, 0xb8)};
const Colours highContrast = {Qt::black, Qt::black, QColor(0x20, 0x20, 0x20),
                              Qt::black, Qt::white, QColor(0xc8, 0xc8, 0xc8),
                              Qt::white, Qt::white, QColor(0xff, 0xe1, 0x4d)};

bool isDark(const QColor& ground) {
  return ground.lightness() < 128;
}

Colours coloursOf(const QPalette& desktop) {
  const QColor text = desktop.color(QPalette::WindowText);
  return {desktop.color(QPalette::Window),
          desktop.color(QPalette::Window),
          desktop.color(QPalette::Button),
          desktop.color(QPalette::Base),
          text,
          desktop.color(QPalette::Disabled, QPalette::WindowText),
          text,
          text,
          desktop.color(QPalette::Highlight)};
}

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
  palette.setColor(QPalette::Shadow, colours.shadow);
  palette.setColor(QPalette::Highlight, colours.highlight);
  const bool isPale = colours.highlight.lightness() > 140;
  palette.setColor(QPalette::HighlightedText, isPale ? Qt::black : Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, colours.dimmed);
  return palette;
}

QByteArray resource(const QString& name) {
  QFile file(QStringLiteral(":/") + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString styleSheet(const QStringList& names) {
  QString sheet;
  for (const QString& name : names)
    sheet += QString::fromUtf8(resource(name + QLatin1String(".css")));
  return sheet;
}

/// Its points one behind the other, as `convert icon.png rgba:window-icon.rgba` writes them for an
/// icon of 64 x 64. To read a picture file of any format the toolkit loads its readers of all.
QPixmap windowIcon() {
  constexpr int side = 64;
  const QByteArray points = resource(QStringLiteral("window-icon.rgba"));
  return QPixmap::fromImage(QImage(reinterpret_cast<const uchar*>(points.constData()), side, side,
                                   QImage::Format_RGBA8888));
}

const Colours& coloursOf(Theme theme) {
  if (theme == Theme::highContrast) return highContrast;
  return theme == Theme::dark ? dark : light;
}

}  // namespace

Theme themeOf(const QPalette& desktop) {
  const auto isExtreme = [&desktop](QPalette::ColorRole role) {
    const int lightness = desktop.color(role).lightness();
    return lightness <= 12 || lightness >= 243;
  };
  // The boxes of a light desktop are lighter than its windows.
  constexpr int shade = 6;
  const int difference =
      desktop.color(QPalette::Base).lightness() - desktop.color(QPalette::Window).lightness();
  if (isExtreme(QPalette::Window) && isExtreme(QPalette::WindowText) &&
      isExtreme(QPalette::Button) && std::abs(difference) < shade)
    return Theme::highContrast;
  return isDark(desktop.color(QPalette::Window)) ? Theme::dark : Theme::light;
}

void applyTheme(QApplication& application, Theme chosen, const QPalette& desktop) {
  initResources();
  const bool isDesktops = chosen == Theme::system;
  const Theme theme = isDesktops ? themeOf(desktop) : chosen;
  const bool hasContrast = theme == Theme::highContrast;
  const Colours colours = isDesktops && hasContrast ? coloursOf(desktop) : coloursOf(theme);
  QStringList sheets = {QStringLiteral("common"),
                        isDark(colours.window) ? QStringLiteral("dark") : QStringLiteral("light")};
  if (hasContrast) sheets << QStringLiteral("contrast");
  const QPalette palette = paletteOf(colours);
  const QString sheet = styleSheet(sheets);
  // Each widget there is would be styled anew.
  if (application.styleSheet() == sheet && QApplication::palette() == palette) return;
  QApplication::setStyle(new PanelStyle);
  QApplication::setPalette(palette);
  application.setStyleSheet(sheet);
}

void applyTheme(QApplication& application, Theme chosen) {
  static const QPalette desktop = QApplication::palette();
  QApplication::setWindowIcon(windowIcon());
  applyTheme(application, chosen, desktop);
}

}  // namespace tracewell
