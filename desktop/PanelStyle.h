// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace tracewell {

/// Fusion, whose outlines are shades of the window's colour and vanish on a dark panel: boxes that
/// can be ticked, chosen, typed into, pressed and scrolled with are outlined in the palette's Mid.
class PanelStyle : public QProxyStyle {
  Q_OBJECT

 public:
  PanelStyle();
  using QProxyStyle::polish;
  void polish(QApplication* application) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  /// Buttons of message boxes have no icons, like all other buttons.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override;
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
};

}  // namespace tracewell
